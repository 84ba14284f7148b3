#!/bin/sh
# installed_desktop_files.sh <project> <build folder>: desktop_files.sh of what the build installs.
set -eu
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cmake --install "$2" --prefix "$scratch" >/dev/null
sh "$1/tests/packaging/desktop_files.sh" "$1" "$scratch/share"
