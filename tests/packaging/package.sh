#!/bin/sh
# package.sh <project> <folder of the packages>: what the packages hold, how they were built, and that the program starts
# once it is installed. Needs lintian.
set -eu
export PATH="$PATH:/usr/sbin:/sbin" # an ordinary user does not have what dpkg looks for
project=$1
deb=$(ls "$2"/quintra_*.deb)
dbgsym=$(ls "$2"/quintra-dbgsym_*.ddeb)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$scratch/root

fails() {
    echo "$1" >&2
    exit 1
}

field() {
    dpkg-deb --field "$deb" "$1"
}

has() {
    grep -q "$1" "$scratch/elf" || fails "The program is built without $2."
}

# It is nobody's package yet, so that the maintainer has no address.
lintian --allow-root --fail-on error --suppress-tags malformed-contact,bogus-mail-host-in-debian-changelog "$deb"

for package in fonts-dejavu-core fonts-liberation; do
    field Recommends | grep -qw "$package" || fails "$package is not recommended."
done
[ -n "$(field Section)" ] || fails "There is no section."
[ "$(field Description | wc -l)" -gt 3 ] || fails "There is no description."

# Installed in a folder by dpkg itself.
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
: >"$root/var/lib/dpkg/status"
fakeroot dpkg --root="$root" --force-depends --install "$deb" >"$scratch/dpkg.log" 2>&1 || fails "$(cat "$scratch/dpkg.log")"
[ -z "$(dpkg --root="$root" --verify quintra)" ] || fails "Files are not as they were packed."
[ -z "$(find "$root/usr" ! -type l -perm /022)" ] || fails "Files can be changed by everybody."
for file in changelog.Debian.gz changelog.gz copyright; do
    [ -s "$root/usr/share/doc/quintra/$file" ] || fails "There is no $file."
done
[ -s "$root/usr/share/man/man1/quintra.1.gz" ] || fails "There is no page of the manual."
for language in it en; do
    grep -q "^<html lang=\"$language\">" "$root/usr/share/quintra/manual/manual_$language.html" ||
        fails "There is no manual in the language $language."
done
sh "$project/tests/packaging/desktop_files.sh" "$project" "$root/usr/share"
sh "$project/tests/packaging/translations.sh" "$project" "$root/usr/share"

program=$root/usr/libexec/quintra/quintra
readelf --wide --file-header --segments --sections --dynamic --dyn-syms --notes "$program" >"$scratch/elf"
has "Type: .*DYN (Position-Independent" "a position-independent executable"
has "GNU_RELRO" "read-only relocations"
has "BIND_NOW" "binding at start"
has "__stack_chk_fail" "the stack protector"
has "__[a-z]*_chk@" "fortified functions"
! grep -qE "\.(symtab|debug_info)" "$scratch/elf" || fails "The program is not stripped."
id=$(sed -n 's/.*Build ID: //p' "$scratch/elf")
dpkg-deb --contents "$dbgsym" | grep -q "$(echo "$id" | cut -c 1-2)/$(echo "$id" | cut -c 3-)\.debug" ||
    fails "The debug symbols are not the program's."

# The first start of an ordinary user.
cp "$project/tests/packaging/first_start.sh" "$project/tests/support/on_desktop" "$scratch"
chmod -R a+rX "$scratch"
mkdir -m 700 "$scratch/home"
user=
if [ "$(id -u)" -eq 0 ]; then
    user="setpriv --reuid=65534 --regid=65534 --clear-groups"
    chown 65534:65534 "$scratch/home"
fi
cd "$scratch/home"
$user env -i HOME="$PWD" XDG_RUNTIME_DIR="$PWD" LANG=de_DE.UTF-8 PATH="$root/usr/bin:$PATH" \
    sh ../on_desktop sh ../first_start.sh >../first_start.log 2>&1 || fails "$(cat ../first_start.log)"
