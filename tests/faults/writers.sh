#!/bin/bash
# A calculation, again and again, and another program replace one report for twenty seconds: whoever
# reads it finds the text of one of them, whole, and so are the generations.
source "$(dirname "$0")/lib.sh"
readonly at=$work/at
calculate() { "$calcolo" PPE --cartella "$at" --data 15/03/2002 >/dev/null 2>&1; }
sample_folder "$at" && calculate && rm -r "$at/storico"
cp "$at/OUT_PPE.DOC" "$work/uno" && printf 'due\n%.0s' {1..50000} >"$work/due"
whole() { cmp -s "$1" "$work/uno" || cmp -s "$1" "$work/due"; }
{ while calculate; do :; done; touch "$work/stopped"; } & one=$!
"$saver" "$at" --riscrive $'due\n' & two=$!
while [ $SECONDS -lt 20 ]; do
  tried=$((tried + 1))
  cat "$at/OUT_PPE.DOC" >"$work/read" || breaks "lettura $tried: il file non c'è"
  whole "$work/read" || breaks "lettura $tried: $(stat -c %s "$work/read") byte"
done
[ ! -e "$work/stopped" ] || breaks "un calcolo non è riuscito"
{ kill $one $two && wait $one $two; } 2>/dev/null
for file in "$at"/storico/*; do whole "$file" || breaks "$file non è intero"; done
[ "$(ls "$at"/storico | wc -l)" -le 20 ] || breaks "$(ls "$at"/storico | wc -l) generazioni"
finish
