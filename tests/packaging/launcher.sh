#!/bin/sh
# launcher.sh <build folder>: an installation, wherever it is put, starts by its launcher and finds its files.
set -eu
scratch=$(mktemp -d)
program=
trap '[ -z "$program" ] || kill "$program" 2>/dev/null || true; rm -rf "$scratch"' EXIT

cmake --install "$1" --prefix "$scratch/installed" >/dev/null
mv "$scratch/installed" "$scratch/moved here"
XDG_DATA_HOME=$scratch/home "$scratch/moved here/bin/quintra" &
program=$!

# The first-start dialog comments config.ini as soon as it has found a translation.
folder=$scratch/home/quintra
for _ in $(seq 200); do
    if grep -qs '^;' "$folder/config.ini"; then
        kill -0 "$program"
        [ -s "$folder/default.png" ]
        exit 0
    fi
    sleep 0.1
done
echo "The program did not start with its translations; in its folder:" >&2
ls -l "$folder" >&2
exit 1
