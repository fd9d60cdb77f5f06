#!/usr/bin/env bash
# The native import program: it writes what workbench.exe writes, and killed it leaves nothing.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"
prepare_locale
prepare_wine
place=$build/import_check
rm -rf "$place"
mkdir -p "$place"
cd "$place"

python3 "$here/large_step.py" 60 small.stp
"$here/workbench.sh" import small.stp native >native.log
run_windows "$cross/workbench.exe" import small.stp windows | tr -d '\r' >windows.log
diff -r native windows
# They name folder and program as the user does.
diff <(sed 's/ native/ windows/; s/"native"/"windows"/; s:tools/workbench.sh:workbench:' native.log) windows.log
grep -qx '60 models in native' native.log

# What is there apart from what imports were told to read and to make.
leftovers() {
  ls -A | grep -vxE 'native|windows|.*\.log|.*\.stp' || true
}

# Killed while it reads, while it writes, and whenever else.
python3 "$here/large_step.py" 5000 large.stp
for tenths in 1 2 3 4 6; do
  timeout -s KILL "0.$tenths" "$here/workbench.sh" import large.stp "killed" >/dev/null 2>&1 || true
  # What was killed may still finish the call that it was in.
  sleep 1
  for wait in $(seq 100); do
    [ -n "$(leftovers | grep '^\.import-')" ] || break
    sleep 0.1
  done
  count=$(find killed -type f 2>/dev/null | wc -l) || true
  if [ "$count" -ne 0 ] && [ "$count" -ne 5000 ]; then
    echo "an import killed after 0.$tenths s left $count of 5000 models"
    exit 1
  fi
  rm -rf killed
  if [ -n "$(leftovers)" ]; then
    echo "an import killed after 0.$tenths s left: $(leftovers)"
    exit 1
  fi
done
rm -rf "$place"
