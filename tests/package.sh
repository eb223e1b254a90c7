#!/bin/bash
# The packages: clean for the validators, and a person who is not root works with them on a bare system
# where nothing else of this checkout is. tests/package.sh BUILD-FOLDER
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
for tool in lintian desktop-file-validate update-mime-database appstreamcli man mmdebstrap dpkg-shlibdeps; do
  command -v $tool >/dev/null || { echo "SALTATO: manca $tool"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work"
fails() { echo "NON VALE: $*"; exit 1; }

cpack --config "$1/CPackConfig.cmake" -B "$work" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
deb=$(echo "$work"/orm2002_*.deb) tar=$(echo "$work"/orm2002-*.tar.gz)

# What the validators say.
lintian --allow-root --fail-on error,warning "$deb"
dpkg-deb -x "$deb" "$work/x"
cd "$work/x/usr"
desktop-file-validate share/applications/*
appstreamcli validate --no-net share/metainfo/* >"$work/log" || { cat "$work/log"; exit 1; }
said=$(XDG_DATA_DIRS=$PWD/share update-mime-database share/mime 2>&1)
[ -z "$said" ] || fails "tipi di file: $said"
for program in bin/*; do
  page=share/man/man1/$(basename "$program").1.gz
  said=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$page" 2>&1 >"$work/page")
  [ -z "$said" ] && grep -q SINTASSI "$work/page" || fails "$page: $said"
done

# A bare system, made with the sources of packages that this one has.
# shellcheck source=/dev/null
. /etc/os-release
[ "$ID" = debian ] || { echo "SALTATO (in parte): non è un sistema Debian"; exit 77; }
sources=()
for list in /etc/apt/sources.list /etc/apt/sources.list.d/debian.sources; do
  if [ -s $list ]; then sources+=("$list"); fi
done
sample=$here/../data/sample
mmdebstrap --quiet --variant=apt --dpkgopt=force-unsafe-io \
  --customize-hook="echo arrivato" \
  --customize-hook="upload $deb /tmp/orm2002.deb" --customize-hook="upload $tar /tmp/orm2002.tar.gz" \
  --customize-hook="upload $sample/INT_PPE.DAP /tmp/INT_PPE.DAP" \
  --customize-hook="upload $sample/INP_PPE.DAP /tmp/INP_PPE.DAP" \
  --customize-hook="upload $sample/UTENTE.DAG /tmp/UTENTE.DAG" \
  --customize-hook="upload $here/scripts/ppe/lire.DOC /tmp/attesa.DOC" \
  --customize-hook="upload $here/package_user.sh /tmp/package_user.sh" \
  --customize-hook='chroot "$1" bash /tmp/package_user.sh' \
  "$VERSION_CODENAME" /dev/null "${sources[@]}" >"$work/log" 2>&1 && exit
tail -n 25 "$work/log"
grep -q arrivato "$work/log" || { echo "SALTATO: non si può fare un sistema di prova"; exit 77; }
exit 1
