#!/bin/bash
# Runs every fuzzer from the kept corpus: tests/fuzz/run.sh [RUNS] [FUZZER...]
# RUNS inputs each (20000), from a copy, so that the kept corpus stays small and readable. An input
# that breaks a law is left in build/fuzz/findings: mend the program, then keep the input in the
# corpus under a name that says what it is.
set -euo pipefail
cd "$(dirname "$0")"
runs=${1:-20000}
shift || true
built=../../build/fuzz/fuzzers
work=../../build/fuzz
[ -x $built/fuzz_numero ] || { echo "Mancano i programmi: cmake --preset fuzz && cmake --build --preset fuzz"; exit 1; }
mkdir -p $work/findings
for target in ${*:-$(ls corpus)}; do
  rm -rf "$work/corpus/$target" && mkdir -p "$work/corpus/$target"
  cp corpus/"$target"/* "$work/corpus/$target"
  log=$work/$target.log
  started=$(date +%s)
  if ! "$built/fuzz_$target" -runs="$runs" -max_len=2048 -seed=20020315 -timeout=10 -rss_limit_mb=1024 \
      -dict=fields.dict -artifact_prefix="$work/findings/$target-" -print_final_stats=1 \
      "$work/corpus/$target" >"$log" 2>&1; then
    tail -40 "$log"
    echo "fuzz_$target: una legge non vale; l'ingresso è in build/fuzz/findings"
    exit 1
  fi
  printf 'fuzz_%-13s %8d ingressi in %4d s, %s\n' "$target" "$runs" $(($(date +%s) - started)) \
    "$(grep -o 'cov: [0-9]* ft: [0-9]*' "$log" | tail -1)"
done
