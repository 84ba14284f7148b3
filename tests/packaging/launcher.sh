#!/bin/sh
# launcher.sh <build folder> [case...]: installs the program, moves it elsewhere and starts it there by its launcher, as an
# ordinary user. The cases are those of launcher_cases.sh; without names all that need no full disk.
set -eu
here=$(dirname "$0")
scratch=$(mktemp -d)
trap 'chmod -R u+w "$scratch"; rm -rf "$scratch"' EXIT

cmake --install "$1" --prefix "$scratch/installed" >/dev/null
shift
mv "$scratch/installed" "$scratch/moved here"
cp "$here/launcher_cases.sh" "$scratch"

user=
if [ "$(id -u)" -eq 0 ] && [ -z "${QUINTRA_FULL_DISK:-}" ]; then
    user="setpriv --reuid=65534 --regid=65534 --clear-groups"
    chown -R 65534:65534 "$scratch"
fi
cd "$scratch"
$user sh launcher_cases.sh "$@"
