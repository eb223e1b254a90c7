#!/bin/bash
# A real screen that breaks off at once after a key: what was typed is kept.
source "$(dirname "$0")/lib.sh"
readonly at=$work/at
command -v Xvfb >/dev/null && [ -n "$desktop" ] || skip "manca Xvfb"
sample_folder "$at"
mkfifo "$work/number" "$work/ready"
Xvfb -displayfd 1 -nolisten tcp >"$work/number" 2>/dev/null & screen=$!
read -r number <"$work/number"
DISPLAY=:$number timeout 20 "$desktop" "$at" aspetta >"$work/ready" 2>/dev/null & window=$!
tried=1
if read -r _ <"$work/ready"; then
  { kill -9 $screen && wait $screen $window; } 2>/dev/null
  grep -q 'parcella corretta' "$at/.orm2002-OUT_PPE.DOC.bozza" || breaks "il testo non salvato è perso"
else
  breaks "la finestra non si apre"
fi
finish
