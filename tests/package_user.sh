#!/bin/bash
# Within the bare system of package.sh: installs the package, works as a person does, takes it away.
set -euo pipefail
fails() { echo "NON VALE: $*"; exit 1; }

apt-get install -y -qq --no-install-recommends /tmp/orm2002.deb
useradd -m persona
chmod a+r /tmp/*
as=(setpriv --reuid=persona --regid=persona --init-groups env -i HOME=/home/persona PATH=/usr/bin)
# A screen that the program accepts, which nobody sees.
echo '{"screens": [{"name": "prova", "x": 0, "y": 0, "width": 1280, "height": 1024,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}' >/tmp/screen.json
version=$(dpkg-query -W -f '${Version}' orm2002)

# works PROGRAMS FILES: a first start in an empty folder, a note, its PDF.
works() {
  local programs=$1 files=$2 folder=/home/persona/lavoro started
  "${as[@]}" mkdir $folder
  cd $folder
  for program in "$programs"/orm2002*; do
    [ "$("${as[@]}" "$program" --version)" = "$(basename "$program") $version" ] || fails "versione di $program"
    "${as[@]}" "$program" --help | grep -q "^$(basename "$program") - " || fails "aiuto di $program"
  done
  "${as[@]}" QT_QPA_PLATFORM=offscreen:configfile=/tmp/screen.json "$programs/orm2002" & started=$!
  for ((i = 0; i < 200; i++)); do
    [ -e SOLAIATRALICCIO.PDF ] && break
    sleep 0.1
  done
  kill $started
  wait $started || true
  for file in "$files"/*.*; do cmp "$file" "$(basename "$file")"; done
  "${as[@]}" QT_QPA_PLATFORM=offscreen:configfile=/tmp/screen.json \
    timeout 5 "$programs/orm2002-lavori" .. || [ $? = 124 ] || fails "orm2002-lavori non resta aperto"
  "${as[@]}" cp /tmp/*.DAP /tmp/UTENTE.DAG .
  "${as[@]}" "$programs/orm2002-calcolo" PPE --data 15/03/2002
  cmp OUT_PPE.DOC /tmp/attesa.DOC
  "${as[@]}" "$programs/orm2002-visore" --pdf OUT_PPE.PDF OUT_PPE.DOC
  [ "$(head -c 4 OUT_PPE.PDF)" = %PDF ] || fails "PDF della parcella"
  cd /
  rm -r $folder
}
works /usr/bin /usr/share/orm2002

# What is typed after the program's name.
# shellcheck source=/dev/null
. /usr/share/bash-completion/completions/orm2002-calcolo
COMP_WORDS=(orm2002-calcolo PP) COMP_CWORD=1
_orm2002_calcolo
[ "${COMPREPLY[*]}" = PPE ] || fails "completamento: ${COMPREPLY[*]}"

# The archive in a place of its own, with the package gone and nothing of it left.
dpkg --purge orm2002
left=$(find / -xdev -name '*orm2002*' -not -path '/tmp/*' -not -path '/proc/*')
[ -z "$left" ] || fails "restano: $left"
cd /home/persona
"${as[@]}" tar xzf /tmp/orm2002.tar.gz
works "$(echo /home/persona/orm2002-*/bin)" "$(echo /home/persona/orm2002-*/share/orm2002)"
