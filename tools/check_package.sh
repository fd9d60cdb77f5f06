#!/usr/bin/env bash
# The package as a user meets it: unzipped into a folder with blanks and Chinese characters in its
# name, over an older one with settings of the user's own, registered by its own script, loaded,
# one command run. All in a folder and a Windows environment of its own, so that another run at the
# same time takes nothing away; whatever ends it says where.
set -Eeuo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"
trap 'echo "$(basename "$0"): line $LINENO ended with $?: $BASH_COMMAND" >&2' ERR
prepare_locale
prepare_wine

fail() {
  echo "$(basename "$0"): $*" >&2
  exit 1
}

work=$(mktemp -d "$build/package_check.XXXXXX")
trap 'rm -rf "$work"' EXIT
prepare_second_wine "$work/wine"
export WINEPREFIX=$work/wine
zip=$("$here/package.sh" "$cross" | tail -n 1)
place=$work/'羽石 工具箱'
mkdir -p "$place"
unzip -q "$zip" -d "$place"
script=$(find "$place" -name install.cmd)
[ -n "$script" ] || fail "the package holds no install.cmd"
tree=$(dirname "$script")

settings=$tree/QMconfig
[ -z "$(find "$settings" -maxdepth 1 -type f)" ] || fail "the package would overwrite settings"
diff -r "$tree/text/resource" "$tree/resource" >&2 || fail "the two resource folders differ"
for dialog in "$tree"/resource/*.res; do
  [ "$(head -c 3 "$dialog")" = $'\xef\xbb\xbf' ] || fail "$dialog lacks its byte order mark"
done

# Under Wine the exit code alone says little: what is left behind is looked at in any case.
show_log() {
  echo "$(basename "$0"): $1 wrote:" >&2
  cat "$work/$1" >&2
}

# An older version was used here: one settings file is the user's own, the others are missing.
printf '[tableCols_sum]\r\ncontent=own\r\n' >"$settings/QmBom.ini"
unzip -qo "$zip" -d "$place"
(cd "$tree" && run_windows cmd /c install.cmd </dev/null >"$work/install.log" 2>&1) || {
  code=$?
  show_log install.log
  fail "install.cmd ended with $code"
}
grep -q '^content=own' "$settings/QmBom.ini" || fail "install.cmd overwrote a user's settings"
for shipped in "$settings"/defaults/*; do
  name=$(basename "$shipped")
  [ "$name" = QmBom.ini ] || cmp "$shipped" "$settings/$name" || fail "$name was not put in place"
done
# The file is in the system's code page: compared as bytes.
for line in 'EXEC_FILE .*quillmax5.1C3.dll' 'STARTUP dll' 'UNICODE_ENCODING FALSE'; do
  LC_ALL=C grep -aq "^$line" "$tree/protk.dat" || fail "protk.dat has no line $line"
done

cat >"$work/run.qms" <<'S'
folder temp
part bolt
assembly pump
component pump <- bolt hidden
open pump.asm
run QmShowAllComp
expect shown bolt
S
run_windows "$cross/workbench.exe" run "$work/run.qms" --install "$tree" \
  --plugin "$tree/quillmax5.1C3.dll" >"$work/run.log" 2>&1 || true
if ! tr -d '\r' <"$work/run.log" | grep -xE '[1-9][0-9]* passed, 0 failed' >/dev/null; then
  show_log run.log
  fail "the packaged plug-in does not run"
fi
