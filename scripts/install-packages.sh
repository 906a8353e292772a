#!/bin/bash
# Installs the missing packages of the groups it is given: scripts/install-packages.sh GROUP...
# The groups stand in packages.txt. Nothing is asked and nothing is done when all is there.
set -euo pipefail
cd "$(dirname "$0")"

packages_of() {
    awk -v wanted="[$1]" '
        /^\[/ { inside = ($0 == wanted); found = found || inside; next }
        inside && NF && !/^#/ { print $1 }
        END { exit !found }' packages.txt || { echo "packages.txt has no group \"$1\"." >&2; exit 2; }
}

is_installed() {
    dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

as_root() {
    if [[ $EUID -eq 0 ]]; then
        env DEBIAN_FRONTEND=noninteractive "$@"
    else
        sudo env DEBIAN_FRONTEND=noninteractive "$@"
    fi
}

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This installs Debian packages, and there is no apt-get here. What is needed stands in scripts/packages.txt." >&2
    exit 1
fi

missing=()
for group in "$@"; do
    packages=$(packages_of "$group")
    for package in $packages; do
        is_installed "$package" || missing+=("$package")
    done
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

echo "Installing ${missing[*]}"
if [[ $EUID -ne 0 ]] && ! command -v sudo >/dev/null; then
    echo "These packages are missing, and only root can install them. Become root and run" >&2
    echo "    apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
    exit 1
fi
as_root apt-get -qq update
as_root apt-get -qq -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 install --yes --no-install-recommends "${missing[@]}" >/dev/null
