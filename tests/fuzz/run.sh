#!/bin/bash
# Fuzzes every format from the kept corpus: tests/fuzz/run.sh [RUNS] [FORMAT...]
# RUNS inputs each (20000), from a copy, so that the kept corpus stays small and readable. An input
# that breaks a law is left in build/checked/findings: mend the program, then keep the input in the
# corpus under a name that says what it is.
set -euo pipefail
cd "$(dirname "$0")"
runs=${1:-20000}
shift || true
work=../../build/checked
fuzzer=$work/tests/fuzz/fuzz_dati
[ -x $fuzzer ] || { echo "Manca il programma: cmake --preset checked && cmake --build --preset checked"; exit 1; }
[ ! -d /dev/shm ] || export TMPDIR=/dev/shm
mkdir -p $work/findings
export runs work fuzzer

fuzz() {
  local format=$1 log=$work/$1.log started
  rm -rf "$work/corpus/$format" && mkdir -p "$work/corpus/$format"
  cp corpus/"$format"/* "$work/corpus/$format"
  started=$(date +%s)
  if ! "$fuzzer" "$format" -runs="$runs" -max_len=2048 -seed=20020315 -timeout=10 -rss_limit_mb=1024 \
      -dict=fields.dict -artifact_prefix="$work/findings/$format-" -print_final_stats=1 \
      "$work/corpus/$format" >"$log" 2>&1; then
    tail -40 "$log"
    echo "$format: una legge non vale; l'ingresso è in build/checked/findings"
    return 1
  fi
  printf '%-13s %8d ingressi in %4d s, %s\n' "$format" "$runs" $(($(date +%s) - started)) \
    "$(grep -o 'cov: [0-9]* ft: [0-9]*' "$log" | tail -1)"
}
export -f fuzz
printf '%s\n' ${*:-$(ls corpus)} | xargs -P "$(nproc)" -I '{}' bash -c 'fuzz {}'
