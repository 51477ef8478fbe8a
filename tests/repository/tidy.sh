#!/usr/bin/env bash
# clang-tidy over the sources of some targets, read as one: most of its time goes into the headers of
# the libraries. The command of the first group of sources serves all of them.
#
#     tidy.sh CLANG_TIDY BUILD NAME FOLDER...
#
# FOLDER: where a target's groups of sources are. NAME: of the file that is written beside the first.
set -euo pipefail
tidy=$1 build=$2 name=$3
shift 3
whole=$1/$name.cxx
for folder; do
    groups=("$folder"/unity_*.cxx)
    [[ -e ${groups[0]} ]] || { echo "there are no groups of sources in $folder"; exit 1; }
    printf '#include "%s"\n' "${groups[@]}"
done >"$whole"
exec "$tidy" --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option "$whole"
