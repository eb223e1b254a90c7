#!/bin/bash
# The fault loops of the desk's commands on whole jobs. The calls are those of saves.sh, so each fails in
# one way. Killed at a call that only looks, a program leaves what it leaves at the next one.
source "$(dirname "$0")/loops.sh"

errors=EIO
sample_folder "$work/job"
rm -rf "$old" "$work"/state-* && mkdir -p "$old/Uno/storico" "$old/Due"
cp "$work/job"/{UTENTE.DAG,INT_PPE.DAP,INP_PPE.DAP} "$old/Uno" && cp "$old/Uno/UTENTE.DAG" "$old/TUS.CFG"
for name in INT INP; do
  sed 's/[12]/3/' "$old/Uno/${name}_PPE.DAP" >"$old/Uno/storico/${name}_PPE.2001-01-01_080000.DAP"
  sed 's/[12]/4/' "$old/Uno/${name}_PPE.DAP" >"$old/Due/${name}_PPE.DAP"
done
for what in nuovo copia riporta rinomina archivia; do loop "lavori, $what" "$desk" "$at" $what; done
"$desk" "$old" archivia
loop "lavori, riprende" "$desk" "$at" riprende

# The same in the window of the desk, of each call the first.
if [ -n "$desktop" ]; then
  most=1
  "$calcolo" PPE --cartella "$old/Uno" --data 15/03/2002 >/dev/null
  cp "$old/Uno/UTENTE.DAG" "$old/Due"
  "$calcolo" PPE --json --cartella "$old/Due" >"$old/Uno.json"
  for what in nuovo prende versione; do loop "scrivania, $what" "$desktop" "$at" $what; done
fi

finish_loops
