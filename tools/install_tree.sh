#!/bin/sh
# Assembles the folder that users unpack: the plug-in, its texts, dialogs, icons and settings.
#   tools/install_tree.sh BUILD_DLL OUT_DIR [RSVG]
# RSVG is the icon renderer (default rsvg-convert). Icons that are up to date are not drawn again.
#
# Encodings in OUT_DIR: settings are UTF-16LE with a byte order mark, so that they read the same on
# every code page; install.cmd is GB2312 (see there); the README files and other texts are UTF-8 with
# a byte order mark. All of these have CRLF line ends. Message files and dialog resources are UTF-8 with a byte
# order mark, without which the host takes them for the system's code page, and with LF: a carriage
# return would become part of a message key.
#
# Settings lie in QMconfig/defaults: install.cmd copies those that a user does not have yet, so that
# a package unpacked over an older one overwrites none. Dialogs and icons lie in text/resource and
# in resource: hosts differ in where they look below the registered folder.
set -eu

usage="usage: $0 BUILD_DLL OUT_DIR [RSVG]"
dll=${1:?"$usage"}
out=${2:?"$usage"}
export RSVG="${3:-rsvg-convert}"
source=$(cd "$(dirname "$0")/../install" && pwd)

[ -f "$dll" ] || { echo "$0: no plug-in at $dll; build it first" >&2; exit 1; }
command -v "$RSVG" >/dev/null || { echo "$0: no $RSVG; install librsvg2-bin" >&2; exit 1; }

with_crlf() { sed 's/\r*$/\r/' "$1"; }
utf16_file() { { printf '\377\376'; with_crlf "$1" | iconv -f UTF-8 -t UTF-16LE; } >"$2"; }
gb2312_file() { with_crlf "$1" | iconv -f UTF-8 -t GB2312 >"$2"; }
readme_file() { { printf '\357\273\277'; with_crlf "$1"; } >"$2"; }
dialog_file() { { printf '\357\273\277'; cat "$1"; } >"$2"; }

mkdir -p "$out/text/resource" "$out/QMconfig/defaults" "$out/tp"
cp "$dll" "$out/quillmax5.1C3.dll"
cp -R "$source/text/." "$out/text/"
gb2312_file "$source/install.cmd" "$out/install.cmd"
readme_file "$source/README.txt" "$out/README.txt"
readme_file "$source/tp/README.txt" "$out/tp/README.txt"
for ini in "$source"/QMconfig/*.ini; do
  utf16_file "$ini" "$out/QMconfig/defaults/$(basename "$ini")"
done
for text in "$source"/QMconfig/*.txt; do
  readme_file "$text" "$out/QMconfig/defaults/$(basename "$text")"
done
cp "$source"/QMconfig/*.dop "$out/QMconfig/defaults/"
for dialog in "$source"/text/resource/*.res; do
  dialog_file "$dialog" "$out/text/resource/$(basename "$dialog")"
done

# One call draws both sizes of one icon; xargs keeps all processors busy.
export ICONS="$out/text/resource"
# shellcheck disable=SC2016  # the inner shell expands these
find "$source/icons" -name '*.svg' -print0 | xargs -0 -n 8 -P "$(nproc)" sh -c '
  for svg; do
    name=$(basename "$svg" .svg)
    for target in "$name:16" "${name}_large:32"; do
      png=$ICONS/${target%:*}.png
      [ -n "$(find "$png" -newer "$svg" 2>/dev/null)" ] && continue
      "$RSVG" -w "${target#*:}" -h "${target#*:}" "$svg" -o "$png" || exit 255
    done
  done' sh

rm -rf "$out/resource"
cp -R "$out/text/resource" "$out/resource"
