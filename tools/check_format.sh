#!/usr/bin/env bash
# Checks that every source stands as clang-format writes it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
find src workbench tests -name '*.h' -print0 -o -name '*.cpp' -print0 |
  xargs -0 -n 32 -P "$(nproc)" clang-format --dry-run --Werror
