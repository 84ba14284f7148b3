#!/bin/sh
# launcher_full_disk.sh <build folder>: the case full_disk of the launcher, on a small disk in the memory. Where nothing
# can be mounted the result is 77: skipped.
set -eu
here=$(dirname "$0")
namespace="unshare --mount"
[ "$(id -u)" -eq 0 ] || namespace="unshare --map-root-user --mount"
disk=$(mktemp -d)
trap 'rmdir "$disk"' EXIT
if ! $namespace mount -t tmpfs none "$disk" 2>/dev/null; then
    echo "Skipped: a small disk cannot be mounted here."
    exit 77
fi
# shellcheck disable=SC2016
QUINTRA_FULL_DISK=$disk $namespace sh -c '
    mount -t tmpfs -o size=64k none "$QUINTRA_FULL_DISK"
    sh "$1/launcher.sh" "$2" full_disk' sh "$here" "$1"
