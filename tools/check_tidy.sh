#!/usr/bin/env bash
# Runs clang-tidy (.clang-tidy) over the pure sources of src/, as the native build compiles them.
# Needs build/native.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/environment.sh"
commands=$native/compile_commands.json
if [ ! -e "$commands" ]; then
  echo "tools/check_tidy.sh: build/native is not there; run tools/build.sh --native first" >&2
  exit 2
fi
python3 - "$commands" "$root/src/" <<'PYTHON' |
import json
import sys

commands, folder = sys.argv[1:]
for entry in json.load(open(commands, encoding="utf-8")):
    if entry["file"].startswith(folder):
        print(entry["file"], end="\0")
PYTHON
  # The build's flags are those of another compiler.
  nice xargs -0 -n 1 -P "$(nproc)" clang-tidy -p "$native" --quiet \
    --extra-arg=-Wno-unknown-warning-option
