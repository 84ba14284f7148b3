#!/usr/bin/env bash
# reproducible.sh: the packages are the same byte by byte wherever and with whatever mask of permissions they are built, and
# building them changes nothing outside build/. Takes as long as script/package twice.
set -euo pipefail
cd "$(dirname "$0")/../.."
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# packaged <folder> <mask>: a copy of the tracked files, packaged.
packaged() {
    local folder=$scratch/$1
    mkdir -p "$folder"
    git ls-files -z | tar --create --null --files-from=- | tar --extract --directory="$folder"
    (cd "$folder" && find . -type f -exec sha256sum {} +) | sort >"$folder.before"
    (umask "$2" && "$folder/script/package")
    (cd "$folder" && find . -path ./build -prune -o -type f -exec sha256sum {} +) | sort >"$folder.after"
    diff "$folder.before" "$folder.after"
}

packaged one 022
packaged another/much/deeper 077
for file in "$scratch"/one/build/package/*.*deb; do
    cmp "$file" "$scratch/another/much/deeper/build/package/${file##*/}"
done
echo "Both builds give the same packages."
