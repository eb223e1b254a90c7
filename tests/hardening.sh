#!/bin/bash
# The programs as the system sees them: loaded anywhere, tables closed before the start, stack and
# calls checked. Called with the programs.
command -v readelf >/dev/null || { echo "SALTATO: manca readelf"; exit 77; }
broken=0
for program; do
  seen=$(readelf -Whlds "$program" 2>/dev/null)
  for mark in 'Type: *DYN' GNU_RELRO 'FLAGS_1.*NOW.*PIE' __stack_chk_fail; do
    grep -q "$mark" <<<"$seen" || { echo "NON VALE: $program: $mark"; broken=1; }
  done
  [ "$(uname -m)" = x86_64 ] || continue
  targets=$(LC_ALL=C grep -aoP '\xf3\x0f\x1e\xfa' "$program" | wc -l)  # endbr64
  [ "$targets" -gt 200 ] || { echo "NON VALE: $program: $targets posti per le chiamate"; broken=1; }
done
exit $broken
