#!/bin/sh
# translations.sh <project> <share folder of an installation>: whether the program finds there the translation of each
# place, and for other places that of the language alone.
set -eu
language=$2/quintra/language
for source in "$1"/language/Quintra_*.ts; do
    place=$(basename "$source" .ts)
    if [ ! -s "$language/$place.qm" ] || ! cmp "$language/$place.qm" "$language/${place%_*}"; then
        echo "The translation $place is not installed, or not for its language." >&2
        exit 1
    fi
done
