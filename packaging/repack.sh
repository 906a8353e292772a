#!/bin/bash
# Packs a package again so that the same files give the same bytes: packaging/repack.sh PACKAGE SCRATCH_FOLDER
set -euo pipefail

package=$1 scratch=$2
rm -rf "$scratch"
mkdir -p "$scratch"
trap 'rm -rf "$scratch"' EXIT

# As readable as everything in a system is, whoever packs.
as_in_a_system() { chmod --recursive u=rwX,go=rX "$scratch"; }

case "$package" in
*.tar.gz)
    tar --extract --gzip --file "$package" --directory "$scratch"
    as_in_a_system
    find "$scratch" -mindepth 1 -printf '%P\0' | LC_ALL=C sort -z |
        tar --create --directory "$scratch" --null --no-recursion --files-from - --format gnu \
            --owner root:0 --group root:0 --mtime "@${SOURCE_DATE_EPOCH:-$(date +%s)}" |
        gzip --best --no-name >"$package.new"
    ;;
*.deb)
    dpkg-deb --raw-extract "$package" "$scratch"
    as_in_a_system
    LC_ALL=C sort --key 2 --output "$scratch/DEBIAN/md5sums" "$scratch/DEBIAN/md5sums"
    dpkg-deb --root-owner-group -Zxz --build "$scratch" "$package.new" >/dev/null
    ;;
esac
mv "$package.new" "$package"
