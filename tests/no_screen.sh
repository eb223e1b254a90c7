#!/bin/bash
# Programs with windows where there is no screen: a word for the user and exit 1, no crash.
# tests/no_screen.sh PROGRAM...
set -uo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" && echo testo >F.DOC
for program in "$@"; do
  said=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$program" F.DOC 2>&1 >/dev/null)
  code=$?
  if [ $code != 1 ] || ! grep -q "non c'è uno schermo" <<<"$said"; then
    echo "$program: esito $code, $said"; exit 1
  fi
done
# No letters on the system: a word, and no document of empty pages.
echo '<fontconfig></fontconfig>' >none.conf
said=$(env -u DISPLAY -u WAYLAND_DISPLAY FONTCONFIG_FILE="$PWD/none.conf" "${@: -1}" --pdf F.pdf F.DOC 2>&1 >/dev/null)
code=$?
if [ $code != 1 ] || [ -e F.pdf ] || ! grep -q 'alcun carattere' <<<"$said"; then
  echo "senza caratteri: esito $code, $said"; exit 1
fi
