#!/usr/bin/env bash
# Runs the built workbench under Wine with the project's own environment: tools/workbench.sh help
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"
if [ ! -e "$cross/workbench.exe" ]; then
  echo "tools/workbench.sh: build/cross/workbench.exe is not there; run tools/build.sh first" >&2
  exit 2
fi
prepare_locale
prepare_wine
run_windows "$cross/workbench.exe" "$@"
