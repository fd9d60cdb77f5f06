#!/bin/sh
# Makes quillmax-5.1-C3.zip from a built plug-in and prints the path of the zip.
#   tools/package.sh [BUILD_DIR]          (default build/cross)
# The same commit gives the same bytes: entries are sorted, carry no owner and no clock, and are
# dated by SOURCE_DATE_EPOCH or else by the commit.
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "${1:-$root/build/cross}"
build=$(cd "${1:-$root/build/cross}" && pwd)
name=quillmax-5.1-C3
zip_file=$build/$name.zip
stage=$build/package.$$
trap 'rm -rf "$stage"' EXIT

dll=$(find "$build" -name quillmax5.1C3.dll ! -path "*/$name/*" | LC_ALL=C sort | head -n 1)
[ -n "$dll" ] || { echo "$0: no quillmax5.1C3.dll under $build; build it first" >&2; exit 1; }
epoch=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct)}

# A fresh folder of this run's own, so that nothing another one left behind, or is about to, gets
# into the package; the zip is put in its place whole.
rm -rf "$stage"
"$root/tools/install_tree.sh" "$dll" "$stage/$name"

cd "$stage"
find "$name" -type d -exec chmod 755 {} +
find "$name" -type f -exec chmod 644 {} +
find "$name" -exec touch -d "@$epoch" {} +
find "$name" -type f | LC_ALL=C sort | TZ=UTC zip -X -q -@ "$name.zip" >&2
mv -f "$name.zip" "$zip_file"
cd "$root"
echo "$zip_file"
