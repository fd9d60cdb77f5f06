#!/usr/bin/env bash
# Builds everything and runs all tests: the pure parts natively under the sanitizers, and the
# plug-in in the workbench under Wine, with both code pages. Ends with "N passed, N failed".
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"

passed=0
failed=0

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

finish() {
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
  exit
}

mkdir -p "$build"
if ! "$here/build.sh" --native >"$build/build.log" 2>&1; then
  tail -n 60 "$build/build.log"
  failed=1
  finish
fi
prepare_locale
prepare_wine

# The library's own checks of freed memory would count Wine's and the framework's start-up blocks.
"$native/native_tests" >"$build/native.log" 2>&1
count "native" "$build/native.log"

# Users' machines have code page 936; the other one must work as well.
for locale in zh_CN.UTF-8 en_US.UTF-8; do
  log=$build/windows-$locale.log
  LC_ALL=$locale run_windows "$cross/quillmax_tests.exe" >"$log" 2>&1
  count "windows, $locale" "$log"
done

check "documents are up to date" python3 "$here/generate_docs.py" --check
check "the library's file" "$here/check_dll.sh" "$cross/quillmax5.1C3.dll"
check "package" "$here/check_package.sh"
finish
