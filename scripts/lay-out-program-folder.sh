#!/bin/bash
# Lays the shipped data out in the folder of the program: scripts/lay-out-program-folder.sh SHIPPED PROGRAM_FOLDER
#
# What a person did there stands. A file is written only when it is new here, or when it still is what was laid out last
# and the shipped one has changed. A file that was changed or added stays as it is, one that was deleted stays deleted,
# and one that is no longer shipped goes only when nobody changed it. The checksums of what was laid out last are kept in
# the program folder, in .laid-out.
set -euo pipefail

# Nothing can be saved without the file of the saved systems, so it comes back when it was deleted.
always_there=QuillonSystems.dat

shipped=$(realpath "$1")
if [[ ! -f "$shipped/$always_there" ]]; then
    echo "$shipped is not the shipped data: it has no $always_there." >&2
    exit 1
fi
mkdir -p "$2"
folder=$(realpath "$2")
record="$folder/.laid-out"
new_file="$folder/.laid-out.new"
trap 'rm -f "$new_file"' EXIT

shipped_names() {
    cd "$shipped"
    find Antennas Coax Help SOURCES.md "$always_there" -type f 2>/dev/null | LC_ALL=C sort
}

checksum_of() {
    local line
    line=$(sha256sum <"$1") && echo "${line%% *}"
}

# A name that differs in letter case alone would be a second candidate for the same maker.
is_taken() {
    [[ -e "$folder/$1" || -L "$folder/$1" ]] && return 0
    local directory pattern
    directory=$(dirname "$folder/$1")
    pattern=$(basename "$1" | sed 's/[][*?\\]/\\&/g')
    [[ -d "$directory" && -n "$(find -H "$directory" -maxdepth 1 -iname "$pattern" -print -quit)" ]]
}

is_still() { # NAME CHECKSUM: the file of that name has that content
    [[ -f "$folder/$1" && ! -L "$folder/$1" && "$(checksum_of "$folder/$1")" == "$2" ]]
}

# Whole or not at all: a name never stands for half a file.
put() {
    mkdir -p "$(dirname "$folder/$1")"
    cat "$shipped/$1" >"$new_file"
    mv -f "$new_file" "$folder/$1"
}

declare -A laid_out now
if [[ -f "$record" ]]; then
    while read -r checksum name; do
        laid_out[$name]=$checksum
    done <"$record"
fi

while IFS= read -r name; do
    checksum=$(checksum_of "$shipped/$name")
    before=${laid_out[$name]:-}
    now[$name]=$checksum
    if ! is_taken "$name"; then
        if [[ -z "$before" || "$name" == "$always_there" ]]; then
            put "$name"
        fi
    elif [[ "$before" != "$checksum" ]]; then
        if [[ -n "$before" ]] && is_still "$name" "$before"; then
            put "$name"
        elif [[ "$name" != "$always_there" ]] && ! is_still "$name" "$checksum"; then
            echo "Kept $folder/$name, which was changed here; the shipped file is $shipped/$name"
        fi
    fi
done < <(shipped_names)

for name in "${!laid_out[@]}"; do
    if [[ -z "${now[$name]:-}" ]] && is_still "$name" "${laid_out[$name]}"; then
        rm "$folder/$name"
    fi
done

for name in "${!now[@]}"; do
    echo "${now[$name]} $name"
done | LC_ALL=C sort -k 2 >"$new_file"
mv -f "$new_file" "$record"
