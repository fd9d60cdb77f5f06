#!/usr/bin/env bash
# Installs what building, testing and running need on a bare Debian machine. Does nothing when all
# of it is there.
set -euo pipefail

packages=(
  cmake ninja-build g++                  # build
  g++-mingw-w64-x86-64-posix
  libz-mingw-w64-dev zlib1g-dev          # workbooks, cross-built and native
  wine wine64                            # run Windows programs
  googletest nlohmann-json3-dev libgtest-dev
  librsvg2-bin zip unzip                 # icons, package
  python3-ezdxf python3-cairo            # DXF and PDF files of the workbench:
  python3-gi-cairo gir1.2-rsvg-2.0       #   made by its companion,
  poppler-utils fonts-noto-cjk           #   read, with Chinese letters
  locales                                # Chinese code page for the tests
  python3 clang-format clang-tidy        # documents from sources, checks of sources
)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
fi
