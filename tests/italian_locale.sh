#!/bin/bash
# Runs a program of tests under it_IT.UTF-8: tests/italian_locale.sh BUILD-FOLDER PROGRAM ARGUMENT...
# The locale is made in the build folder, so that the system needs none.
set -uo pipefail
readonly locales=$1/locale
shift
if [ ! -d "$locales/it_IT.UTF-8" ]; then
  command -v localedef >/dev/null || { echo "SALTATO: manca localedef"; exit 77; }
  mkdir -p "$locales.$$"
  localedef -i it_IT -f UTF-8 "$locales.$$/it_IT.UTF-8" 2>/dev/null
  [ -d "$locales.$$/it_IT.UTF-8" ] || { echo "SALTATO: mancano i sorgenti delle lingue (pacchetto locales)"; exit 77; }
  mv -T "$locales.$$" "$locales" 2>/dev/null || rm -rf "$locales.$$"
fi
# The C library keeps the path of a locale for good, which a checked build would call a leak.
exec env ASAN_OPTIONS=detect_leaks=0 LOCPATH="$locales" LC_ALL=it_IT.UTF-8 ORM_TEST_LOCALE=1 "$@"
