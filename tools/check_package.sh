#!/usr/bin/env bash
# The package as a user meets it: unzipped into a folder with blanks and Chinese characters in its
# name, registered by its own script, loaded, one command run.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"
prepare_locale
prepare_wine

zip=$("$here/package.sh" "$cross" | tail -n 1)
place=$build/package_check/'羽石 工具箱'
rm -rf "$build/package_check"
mkdir -p "$place"
unzip -q "$zip" -d "$place"
tree=$(dirname "$(find "$place" -name install.cmd)")
(cd "$tree" && run_windows cmd /c install.cmd </dev/null >"$build/package_check/install.log" 2>&1)
# The file is in the system's code page: compared as bytes.
LC_ALL=C grep -aq '^EXEC_FILE .*quillmax5.1C3.dll' "$tree/protk.dat"
LC_ALL=C grep -aq '^STARTUP *dll' "$tree/protk.dat"

cat >"$build/package_check/run.qms" <<'S'
folder temp
part bolt
assembly pump
component pump <- bolt hidden
open pump.asm
run QmShowAllComp
expect shown bolt
S
run_windows "$cross/workbench.exe" run "$build/package_check/run.qms" \
  --plugin "$tree/quillmax5.1C3.dll" | tr -d '\r' | tee "$build/package_check/run.log"
grep -qE '^[0-9]+ passed, 0 failed$' "$build/package_check/run.log"
