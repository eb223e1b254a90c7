#!/bin/bash
# Folders that cannot be written, disks without space, and two programs on one folder.
source "$(dirname "$0")/lib.sh"
readonly at=$work/at commands="PERS_CRITERI PERS_UTENTE CONF_EDITOR PARCELLE_PPE_ID"
chmod 755 "$work"

# refused REASON WHERE COMMAND...: a run-time failure with that reason, and the folder as it was.
refused() {
  local reason=$1 where=$2 before told code
  shift 2
  before=$(picture "$at")
  tried=$((tried + 1))
  told=$("$@" 2>&1 >/dev/null)
  code=$?
  [ $code = 2 ] || breaks "$where: esce con $code: $told"
  grep -q "$reason" <<<"$told" || breaks "$where: il messaggio non dice la ragione: $told"
  grep -q '^File : ' <<<"$told" || breaks "$where: il messaggio non nomina il file: $told"
  [ "$before" = "$(picture "$at")" ] || breaks "$where: la cartella è cambiata"
}

refuses_all() {
  local command
  refused "$1" "$2, calcolo" "${as[@]}" "$calcolo" PPE --cartella "$at"
  for command in $commands; do refused "$1" "$2, $command" "${as[@]}" "$saver" "$at" "$command"; done
}

# For root no right counts: the programs run as somebody else.
as=()
if [ "$(id -u)" = 0 ]; then as=(setpriv --reuid=65534 --regid=65534 --clear-groups); fi
sample_folder "$at"
chmod 755 "$at" && chmod 644 "$at"/*
if "${as[@]}" "$calcolo" --help >/dev/null 2>&1; then
  [ "$(id -u)" = 0 ] || chmod a-w "$at"
  refuses_all 'permesso' "cartella senza permesso"
  chmod 777 "$at" && chmod 666 "$at"/* && chmod 444 "$at/OUT_PPE.DOC"
  refused 'permesso' "parcella protetta" "${as[@]}" "$calcolo" PPE --cartella "$at"
  chmod 000 "$at/UTENTE.DAG"
  refused 'permesso' "file illeggibile" "${as[@]}" "$calcolo" PPE --cartella "$at"
  chmod 000 "$at"
  told=$("${as[@]}" "$calcolo" --tutti --cartella "$at" 2>&1)
  code=$? tried=$((tried + 1))
  [ "$code $(wc -l <<<"$told")" = '1 1' ] || breaks "cartella illeggibile: esce con $code: $told"
  chmod 755 "$at"
else
  echo "SALTATO (in parte): i programmi non si possono eseguire come un altro utente"
fi

# A small disk, filled to its end.
as=()
rm -rf "$at" && mkdir "$at"
if mount -t tmpfs -o size=64k,mode=755 orm2002-prova "$at" 2>/dev/null; then
  trap 'umount "$at" 2>/dev/null; rm -rf "$work"' EXIT
  sample_folder "$work/sample"
  cp "$work/sample"/* "$at"
  dd if=/dev/zero of="$at/zzz" bs=1k 2>/dev/null
  refuses_all 'spazio' "disco pieno"
  [ -z "$desktop" ] || for what in utente visore copia stampa; do
    refused 'spazio' "disco pieno, finestra $what" "$desktop" "$at" $what
  done
  rm "$at/zzz"
  "$calcolo" PPE --cartella "$at" 2>/dev/null >&2 || breaks "disco di nuovo libero: non calcola"
  umount "$at"
else
  echo "SALTATO (in parte): non è permesso montare un disco; il disco pieno è provato in saves.sh"
fi

# Two users on a shared folder: group and mode stay, so that each goes on after the other.
if [ "$(id -u)" = 0 ] && setpriv --reuid=60001 --regid=60001 --clear-groups "$calcolo" --help >/dev/null 2>&1; then
  sample_folder "$at"
  chgrp -R 60000 "$at" && chmod 2770 "$at" && chmod 660 "$at"/*
  for user in 60001 60002 60001; do
    tried=$((tried + 1))
    setpriv --reuid=$user --regid=$user --groups=60000 bash -c \
      'umask 077; "$1" PPE --cartella "$2" && "$3" "$2" PERS_UTENTE' _ "$calcolo" "$at" "$saver" \
      >/dev/null 2>&1 || breaks "utente $user: non salva nella cartella comune"
    for file in UTENTE.DAG OUT_PPE.DOC storico/OUT_PPE.*; do
      [ "$(stat -c '%g %a' "$at/"$file | sort -u)" = '60000 660' ] || breaks "utente $user: $file ha perso i suoi diritti"
    done
    echo ritoccata >>"$at/OUT_PPE.DOC"
  done
fi

# Names that stood beside a file once, and leftovers of ours: a person's stay, ours go when old.
sample_folder "$at"
mkfifo "$at/OUT_PPE.DOC.tmp"
touch "$at/.orm2002-adesso.tmp" && touch -d '1 hour ago' "$at/.orm2002-prima.tmp" "$at/mio.tmp"
timeout 5 "$calcolo" PPE --cartella "$at" >/dev/null 2>&1 || breaks "una pipe di nome OUT_PPE.DOC.tmp ferma il calcolo"
tried=$((tried + 1))
[ "$(cd "$at" && echo .orm2002* *.tmp)" = ".orm2002-adesso.tmp OUT_PPE.DOC.tmp mio.tmp" ] ||
  breaks "file di altri, o lasciati a metà: $(cd "$at" && echo .orm2002* *.tmp)"

# File systems that keep no rights: the errors of their calls are none of the save.
if strace -o /dev/null true 2>/dev/null; then
  for call in fchmod fchown fsetxattr,fremovexattr listxattr; do
    sample_folder "$at" && chmod 606 "$at/OUT_PPE.DOC" && echo altro >>"$at/OUT_PPE.DOC"
    tried=$((tried + 1))
    strace -o /dev/null -e inject="$call:error=EPERM" "$calcolo" PPE --cartella "$at" >/dev/null 2>&1 ||
      breaks "$call con EPERM: non salva"
  done
  # A folder of the network, as its file system's number (here that of NFS) says: told, and saved.
  sample_folder "$at"
  tried=$((tried + 1))
  told=$(strace -o /dev/null -e inject=fstatfs:poke_exit=@arg2=6969000000000000 "$calcolo" PPE --cartella "$at" 2>&1 >/dev/null) &&
    grep -q 'La cartella è di rete' <<<"$told" || breaks "cartella di rete: $told"
fi

# A limit on the size of files: an error like the others, not the end of the process.
sample_folder "$at"
limited() {
  ulimit -f 0
  "$@"
}
refused 'troppo grande' "limite alla dimensione dei file" limited "$calcolo" PPE --cartella "$at"

# Two programs on one folder; the lock goes with its process, however it ends.
sample_folder "$at"
mkfifo "$work/ready"
"$saver" "$at" --tiene >"$work/ready" &
holder=$!
read -r _ <"$work/ready"
before=$(picture "$at")
told=$("$calcolo" PPE --cartella "$at" 2>&1)
code=$?
[ $code = 1 ] || breaks "secondo programma: esce con $code"
grep -q 'GIÀ IN USO' <<<"$told" || breaks "secondo programma: $told"
[ "$before" = "$(picture "$at")" ] || breaks "secondo programma: la cartella è cambiata"
{
  kill -9 $holder
  wait $holder
} 2>/dev/null
"$calcolo" PPE --cartella "$at" >/dev/null 2>&1 || breaks "il blocco resta dopo la fine del programma"
tried=$((tried + 2))
finish
