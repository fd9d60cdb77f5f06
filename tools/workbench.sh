#!/usr/bin/env bash
# Runs the built workbench under Wine with the project's own environment: tools/workbench.sh help
# Imports are done by the native program.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"
program=$cross/workbench.exe
[ "${1:-}" != import ] || program=$programs/workbench-import
if [ ! -e "$program" ]; then
  echo "tools/workbench.sh: ${program#"$root"/} is not there; run tools/build.sh first" >&2
  exit 2
fi
if [ "${1:-}" = import ]; then
  shift
  exec "$program" "$@"
fi
prepare_locale
prepare_wine
run_windows "$program" "$@"
