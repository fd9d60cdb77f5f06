#!/usr/bin/env bash
# Measures the import of made-up STEP files by the native program: tools/bench_import.sh [MODELS...]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"
place=$build/import_bench
rm -rf "$place"
mkdir -p "$place"
cd "$place"
[ $# -gt 0 ] || set -- 1000 10000 30000

TIMEFORMAT='%R %U %S'
printf '%8s  %6s  %9s  %11s\n' models MB seconds processor
for models in "$@"; do
  python3 "$here/large_step.py" "$models" "$models.stp"
  read -r seconds user system < <({ time "$here/workbench.sh" import "$models.stp" "$models" >log; } 2>&1)
  grep -qx "$models models in $models" log
  awk -v models="$models" -v bytes="$(stat -c %s "$models.stp")" -v seconds="$seconds" \
    -v processor="$user $system" 'BEGIN {
      split(processor, part, " ")
      printf "%8d  %6.1f  %9.2f  %11.2f\n", models, bytes / 1e6, seconds, part[1] + part[2]
    }'
  rm -rf "$models" "$models.stp"
done
rm -rf "$place"
