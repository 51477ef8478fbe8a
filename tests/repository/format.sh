#!/usr/bin/env bash
# Whether every C++ file below the folder given is formatted as .clang-format says.
set -euo pipefail
cd "$1"
mapfile -t files < <(find data platform map detail app tools tests bench fuzz \
    -name '*.cpp' -o -name '*.h' 2>/dev/null)
[[ ${#files[@]} -gt 0 ]]
exec clang-format --dry-run --Werror "${files[@]}"
