#!/bin/bash
# The fault loops of every command that writes, and of the windows' own saves.
source "$(dirname "$0")/loops.sh"

sample_folder "$old"
loop "calcolo in Lire" "$calcolo" PPE --cartella "$at" --data 15/03/2002
loop "dati del professionista" "$saver" "$at" PERS_UTENTE
loop "programmi esterni" "$saver" "$at" CONF_EDITOR

# Criteria that could not be read at the start are told; those in force are then the first ones, and
# it is these that a person confirms.
cp -r "$old" "$work/state-criteri"
rm "$work/state-criteri/CRITERI.PER"
"$saver" "$work/state-criteri" PERS_CRITERI
loop "criteri" "$saver" "$at" PERS_CRITERI

# The input of a note writes its data file twice: with the agreements of before, and with the new.
cp -r "$old" "$work/state-acconti"
"$saver" "$work/state-acconti" PARCELLE_PPE_ID frmGEN_Acconti
loop "input di una parcella" "$saver" "$at" PARCELLE_PPE_ID

# The report of a check grows by hand: it is on the disk before the next step.
loop "relazione di una verifica" "$saver" "$at" VER_SBALZI_P
rm "$at"/*.DOC
strace -o "$work/trace" -e trace=fsync "$saver" "$at" VER_SBALZI_P 2>/dev/null
[ "$(grep -c '^fsync' "$work/trace")" = 2 ] || breaks "relazione di una verifica: non è portata sul disco"

# A folder that lacks two of the installed files.
rm -rf "$old" "$work"/state-* && mkdir "$old" "$work/installed"
for name in {CAC,CS1,CS2,GEO,INC,IND,TUS}.CFG {BALCONI,SOLAIATRALICCIO}.PDF; do
  echo "$name" >"$work/installed/$name"
done
cp "$work"/installed/* "$old" && rm "$old/CS2.CFG" "$old/SOLAIATRALICCIO.PDF"
loop "avvio in una cartella nuova" "$saver" "$at" --avvio "$work/installed"

# Files that an error hides are not files that are not there.
sample_folder "$old"
printf '"01/01/1940","01/01/1979","M",0\r\n' >"$old/REDDITI.PER"
loop "avvio con i propri file" "$saver" "$at" --avvio

# The windows' own saves.
if [ -n "$desktop" ]; then
  sample_folder "$old"
  for what in utente visore copia; do loop "finestra, $what" "$desktop" "$at" $what; done
fi

finish_loops
