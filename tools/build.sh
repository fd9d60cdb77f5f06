#!/usr/bin/env bash
# Builds the plug-in, the workbench, the tests and the install tree into build/.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
"$here/setup.sh"
. "$here/environment.sh"

# The commit names the build; a folder that is no checkout builds "dev".
build_id=$(git -C "$root" rev-parse --short=12 HEAD 2>/dev/null || echo dev)

configure() {
  local folder=$1
  shift
  cmake -S "$root" -B "$folder" -G Ninja -DQM_BUILD_ID="$build_id" "$@" >/dev/null
}

configure "$cross" -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw.cmake" -DCMAKE_BUILD_TYPE=Release
cmake --build "$cross" -- ${QUILLMAX_TARGETS:-all}
"$here/install_tree.sh" "$cross/quillmax5.1C3.dll" "$tree"
# Imports run natively: under Wine the file system takes minutes over thousands of models.
configure "$programs" -DCMAKE_BUILD_TYPE=Release
cmake --build "$programs" --target workbench-import
if [ "${1:-}" = --native ]; then
  configure "$native" -DCMAKE_BUILD_TYPE=Debug -DQM_SANITIZE=ON
  cmake --build "$native"
fi
