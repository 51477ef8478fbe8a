#!/usr/bin/env bash
# clang-tidy over the groups of sources in a folder: tidy.sh CLANG_TIDY BUILD GROUPS
set -euo pipefail
tidy=$1 build=$2 groups=("$3"/unity_*.cxx)
[[ -e ${groups[0]} ]] || { echo "there are no groups of sources in $3"; exit 1; }
status=0
for group in "${groups[@]}"; do
    "$tidy" --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option "$group" || status=1
done
exit $status
