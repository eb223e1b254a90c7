#!/bin/bash
# Two programs that replace one file for twenty seconds: whoever reads it finds the text of one of
# them, whole, and so are the generations; nothing is left beside.
source "$(dirname "$0")/lib.sh"
readonly at=$work/at
mkdir "$at" && printf 'uno\n%.0s' {1..50000} >"$work/uno" && printf 'due\n%.0s' {1..50000} >"$work/due"
cp "$work/uno" "$at/OUT_PPE.DOC"
whole() { cmp -s "$1" "$work/uno" || cmp -s "$1" "$work/due"; }
"$saver" "$at" --riscrive $'uno\n' & one=$!
"$saver" "$at" --riscrive $'due\n' & two=$!
while [ $SECONDS -lt 20 ]; do
  tried=$((tried + 1))
  cat "$at/OUT_PPE.DOC" >"$work/read" || breaks "lettura $tried: il file non c'è"
  whole "$work/read" || breaks "lettura $tried: $(stat -c %s "$work/read") byte"
done
{ kill $one $two && wait $one $two; } 2>/dev/null
for file in "$at"/storico/*; do whole "$file" || breaks "$file non è intero"; done
[ "$(ls "$at"/storico | wc -l)" -le 20 ] || breaks "$(ls "$at"/storico | wc -l) generazioni"
finish
