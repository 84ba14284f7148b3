#!/bin/sh
# installed_files.sh <project> <build folder>: desktop_files.sh and translations.sh of what the build installs.
set -eu
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cmake --install "$2" --prefix "$scratch" >/dev/null
for check in desktop_files translations; do
    sh "$1/tests/packaging/$check.sh" "$1" "$scratch/share"
done
