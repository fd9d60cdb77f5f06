#!/usr/bin/env bash
# Builds everything and runs all tests: the pure parts natively under the sanitizers, and the
# plug-in in the workbench under Wine, with both code pages and both sets of the host's habits; then
# the checks of sources, documents and package. Ends with "N passed, N failed".
#
#   tools/test.sh
#   tools/test.sh --long [SEED]
#
# With --long sweeps fail every call and every allocation instead of a sample, thousands of commands
# run in random order, thousands of damaged files are read, every script is run twice and compared,
# and the tests themselves run in random order. The seed of all that is chance is printed; with it a
# run is repeated. The faults by command are printed, and written into docs/reliability.md when
# everything has passed.
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"

passed=0
failed=0

long=no
seed=${2:-$RANDOM}
order=()
if [ "${1:-}" = --long ]; then
  long=yes
  export QM_LONG=1 QM_SEED=$seed
  order=(--gtest_shuffle "--gtest_random_seed=$((seed % 99999 + 1))")
  echo "seed $seed"
fi

# Counts a runner's own closing line; a runner without one has failed, whatever its exit code.
count() {
  local name=$1 log=$2
  local line
  line=$(tr -d '\r' <"$log" | grep -E '^[0-9]+ passed, [0-9]+ failed$' | tail -n 1)
  if [ -z "$line" ]; then
    echo "$name: ended without its closing line:"
    tail -n 30 "$log"
    failed=$((failed + 1))
    return
  fi
  passed=$((passed + ${line%% passed*}))
  local lost=${line##*, }
  lost=${lost%% failed}
  failed=$((failed + lost))
  if [ "$lost" -ne 0 ]; then
    tr -d '\r' <"$log" | grep -vE '^\[( *(OK|RUN) *|-+|=+)\]' | head -n 200
  fi
  echo "$name: $line"
}

# The sanitizers report leaks behind the closing line, and tell by the exit code.
count_native() {
  local log=$1 code=$2
  count "native" "$log"
  if [ "$code" -ne 0 ] && grep -qE '^[0-9]+ passed, 0 failed$' "$log"; then
    failed=$((failed + 1))
    echo "native: ended with $code behind its closing line:"
    sed -n '/^[0-9]* passed, 0 failed$/,$p' "$log" | head -n 60
  fi
}

# One check by a tool: quiet when it passes.
check() {
  local name=$1
  shift
  local log=$build/check.log
  if "$@" >"$log" 2>&1; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "$name failed:"
    cat "$log"
  fi
}

# For a tool that has run already and left its log and its exit code.
has_passed() {
  cat "$1.log"
  return "$(cat "$1.code")"
}

finish() {
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
  exit
}

mkdir -p "$build"
# Nothing of a run before may be taken for a result of this one.
rm -f "$build"/*.log "$build"/*.code
if ! "$here/build.sh" --native >"$build/build.log" 2>&1; then
  tail -n 60 "$build/build.log"
  failed=1
  finish
fi
prepare_locale
prepare_wine

# The native tests, the tests under Wine with the code page of users' machines (936) and with
# another one, and the scripts on a host of other habits, all at once. Sweeps of faults run once on
# each of the two hosts, those of other habits with the other code page.
second=$build/wine-second
third=$build/wine-third
prepare_second_wine "$second"
prepare_second_wine "$third"
fourth=$build/wine-fourth
prepare_second_wine "$fourth"
habits='*OtherHabits*'
faults='*Script.Passes/*faults'
other_faults='*OtherHabits/*faults'
# Long tests that the code page has nothing to do with; those that chance makes long stay so.
chance='RandomCommands.*:RepeatedRuns.*:DamagedInstallation.*'
once="*Growth*:LifeCycle.*:*WhatNobodyAnswers*:*Script.Passes/*memory:$chance"
[ "$long" = yes ] && once=$chance

# Tests under Wine in an environment, with a locale, and with a filter: in_wine PREFIX LOCALE FILTER
in_wine() {
  WINEPREFIX=$1 LC_ALL=$2 run_windows "$cross/quillmax_tests.exe" "--gtest_filter=$3" "${order[@]}"
}

# Commands run for the first time, each in a fresh process with one allocation failed. Mostly they
# wait.
cd "$root"
memory=(tests/scripts/memory.qms tests/scripts/drawing/drawing_memory.qms)
if [ "$long" = yes ]; then
  mapfile -t memory < <(grep -rlE '^ *sweep allocations of ' tests/scripts --include=*.qms | sort)
fi
WINEPREFIX=$fourth run_windows "$cross/workbench.exe" memory "${memory[@]}" >"$build/memory.log" 2>&1 &

"$native/native_tests" "${order[@]}" >"$build/native.log" 2>&1 &
native_run=$!
in_wine "$WINEPREFIX" zh_CN.UTF-8 "-$habits:$faults" >"$build/windows-936.log" 2>&1 &
(
  in_wine "$second" en_US.UTF-8 "-$habits:$faults:$once" >"$build/windows-1252.log" 2>&1
  WINEPREFIX=$second wineserver -w
  in_wine "$second" zh_CN.UTF-8 "$faults" >"$build/sweeps.log" 2>&1
) &
(
  in_wine "$third" zh_CN.UTF-8 "$habits-$other_faults" >"$build/habits.log" 2>&1
  WINEPREFIX=$third wineserver -w
  in_wine "$third" en_US.UTF-8 "$other_faults" >"$build/habits-sweeps.log" 2>&1
  # Long, and of use to a processor that has nothing else to do while other tests end.
  "$here/check_tidy.sh" >"$build/tidy.log" 2>&1
  echo $? >"$build/tidy.code"
) &
native_code=0
wait "$native_run" || native_code=$?
wait
count_native "$build/native.log" "$native_code"
count "windows, code page 936" "$build/windows-936.log"
count "windows, code page 1252" "$build/windows-1252.log"
count "sweeps" "$build/sweeps.log"
count "scripts, other habits" "$build/habits.log"
count "sweeps, other habits, code page 1252" "$build/habits-sweeps.log"

if [ "$long" = yes ]; then
  run_windows "$cross/workbench.exe" run "${memory[@]}" --all-allocations --sampled-faults \
    >"$build/memory-warm.log" 2>&1
  count "every allocation, warm" "$build/memory-warm.log"
fi

check "rooms" python3 "$here/check_rooms.py"
check "format" "$here/check_format.sh"
check "tidy" has_passed "$build/tidy"
check "colour tables" python3 "$here/colour_tables.py" --check
check "documents are up to date" python3 "$here/generate_docs.py" --check
check "both READMEs say the same" python3 "$here/check_readmes.py"
check "every command's allocations are swept" python3 "$here/reliability_table.py" --check
check "the library's file" "$here/check_dll.sh" "$cross/quillmax5.1C3.dll"
check "import" "$here/check_import.sh"
check "package" "$here/check_package.sh"
count "allocations at first runs" "$build/memory.log"

# The table of faults by command; it stays as it was where anything has failed.
if [ "$long" = yes ]; then
  write=()
  [ "$failed" -eq 0 ] && write=(--write)
  logs=()
  for name in windows-936 windows-1252 sweeps habits habits-sweeps memory-warm memory; do
    logs+=("$build/$name.log")
  done
  if python3 "$here/reliability_table.py" "${write[@]}" "${logs[@]}"; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
  fi
fi
finish
