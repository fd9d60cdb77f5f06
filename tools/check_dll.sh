#!/usr/bin/env bash
# Checks the plug-in's file as users get it: what it exports and imports, its size, the processor it
# needs, and that nothing in it depends on the time of the build.
#   tools/check_dll.sh DLL
set -euo pipefail

dll=${1:?"usage: $0 DLL"}
objdump=${OBJDUMP:-x86_64-w64-mingw32-objdump}
max_bytes=$((3 * 1024 * 1024))
exports='user_initialize user_terminate'
# Libraries of every Windows since 7; no run-time library of a compiler among them.
windows='advapi32 comctl32 comdlg32 gdi32 kernel32 msvcrt ole32 oleaut32 shell32 shlwapi user32'

failures=0
fail() {
  echo "$dll: $*" >&2
  failures=$((failures + 1))
}

[ -f "$dll" ] || { echo "$0: there is no file $dll; build it first" >&2; exit 2; }
headers=$(TZ=UTC "$objdump" -p "$dll")

found=$(awk '/^\[Ordinal\/Name Pointer\] Table/ {on = 1; next} on && NF == 0 {exit} on {print $NF}' \
  <<<"$headers" | LC_ALL=C sort | tr '\n' ' ')
[ "${found% }" = "$exports" ] || fail "exports \"${found% }\" instead of \"$exports\""

imported=$(sed -n 's/^\s*DLL Name: \(.*\)$/\1/p' <<<"$headers")
[ -n "$imported" ] || fail "no imported library found; is it a Windows DLL?"
while read -r library; do
  name=${library,,}
  [[ " $windows " == *" ${name%.dll} "* ]] || fail "imports from $library, which is not Windows' own"
done <<<"$imported"
if ! grep -qE '^Entry d 0+ 0+ Delay Import Directory' <<<"$headers"; then
  fail "has delay-loaded imports"
fi

# The user's own spreadsheet program is never attached to: nothing that finds running ones.
attaching=$(grep -oE '\b(GetActiveObject|GetRunningObjectTable|CoGetObject|BindMoniker)\b' \
  <<<"$headers" | LC_ALL=C sort -u | tr '\n' ' ' || true)
[ -z "$attaching" ] || fail "imports ${attaching% }, which finds programs of the user's"

bytes=$(stat -c %s "$dll")
[ "$bytes" -le "$max_bytes" ] || fail "has $bytes bytes, more than $max_bytes"

# Registers of 32 and 64 bytes, and three-operand instructions (all begin with v; of the plain ones
# only verr, verw and those of virtual machines do).
avx=$("$objdump" -d --no-show-raw-insn "$dll" |
  grep -E '%[yz]mm|^ *[0-9a-f]+:\s+v' | grep -vE ':\s+v(err|erw|mcall|mlaunch|mresume|mxoff)' |
  head -n 5 || true)
[ -z "$avx" ] || fail "needs AVX:"$'\n'"$avx"

stamp=$(sed -n 's/^Time\/Date\s*//p' <<<"$headers" | head -n 1)
[[ -z $stamp || $stamp == *1970* ]] || fail "carries the time of its build: $stamp"
# Name of the build folder, or __DATE__ as the compiler writes it.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
if grep -aqF "$root" "$dll"; then fail "names the folder $root"; fi
months='Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec'
if grep -aqE "($months) [ 0-9][0-9] 20[0-9][0-9]" "$dll"; then fail "holds a date of its build"; fi

[ "$failures" -eq 0 ] || exit 1
echo "$dll: $bytes bytes, exports and imports as they should be, plain x86-64"
