#!/bin/bash
# Runs a command in a language that need not be installed on this machine: scripts/in-locale.sh LOCALE COMMAND [ARGUMENT...]
# The language's data are made once, into build/locales, from the sources of Debian's package locales.
set -euo pipefail

name=$1
shift
if [[ $name != C ]]; then
    folder="$(dirname "$(realpath "$0")")/../build/locales"
    mkdir -p "$folder"
    if [[ ! -d $folder/$name ]]; then
        half=$(mktemp -d "$folder/XXXXXX")
        localedef --inputfile "${name%.*}" --charmap "${name#*.}" "$half/$name"
        mv -T "$half/$name" "$folder/$name" || true # made by somebody else in the meantime
        rm -rf "$half"
    fi
    LOCPATH=$(realpath "$folder")
    export LOCPATH
fi
exec env --unset=LANGUAGE LC_ALL="$name" LANG="$name" "$@"
