#!/bin/bash
# Lays the shipped files out in the folder of the program: scripts/lay-out-program-folder.sh SHIPPED PROGRAM_FOLDER
#
# What a person did there stands. A file is written only when it is new here, or when it still is what was laid out last
# and the shipped one has changed. A file that was changed or added stays as it is, one that was deleted stays deleted,
# and one that is no longer shipped goes only when nobody changed it. The checksums of what was laid out last are kept in
# the program folder, in .laid-out.
#
# A file is wholly the old or wholly the new one at any moment. A run that was killed is made good by the next one.
set -euo pipefail
# Letter case by the bytes, whatever the language: in Turkish an i is no small I.
export LC_ALL=C

# Nothing can be saved without the file of the saved systems, so it comes back when it was deleted.
systems=QuillonSystems.dat
# No data: it follows the shipped one in any case. The build puts it there itself.
program=Quillon

shipped=$(realpath "$1")
if [[ ! -f "$shipped/$systems" ]]; then
    echo "$shipped is not the shipped data: it has no $systems." >&2
    exit 1
fi
mkdir -p "$2"
folder=$(realpath "$2")
record="$folder/.laid-out"
# Files become whole in a folder beside their place, so that one step brings each there.
staging=.laid-out.new

# Checksum and name of each file in a folder, as sha256sum writes them. Names are read from the input, each ended by a NUL.
checksums_in() {
    (cd "$1" && xargs --null --no-run-if-empty sha256sum --)
}

shipped_names() {
    local name
    for name in Antennas Coax Help SOURCES.md "$program" "$systems"; do
        if [[ -e "$shipped/$name" ]]; then printf '%s\0' "$name"; fi
    done | (cd "$shipped" && find -files0-from - -type f -print0)
}

shipped_checksums() { shipped_names | sort --zero-terminated | checksums_in "$shipped"; }

is_there() { [[ -e "$folder/$1" || -L "$folder/$1" ]]; }

# A name that the files of a program folder can have: nothing else is ever written or removed, whatever the record says.
is_proper() { [[ "$1" =~ ^((Antennas|Coax|Help)/)?[^/]+$ && "${1##*/}" != . && "${1##*/}" != .. ]]; }

# A folder that is a link leads to something else of its user's.
is_in_own_folder() { [[ "$1" != */* || ! -L "$folder/${1%/*}" ]]; }

is_plain() { [[ -f "$folder/$1" && -r "$folder/$1" && ! -L "$folder/$1" ]] && is_in_own_folder "$1"; }

declare -A laid_out=() begun=() now=() present=() taken=()

# A name can have several checksums: those of a run that did not come to its end, and those before it. A plus stands before that
# of a file that was new to such a run: it may not have come, so that its absence is nobody's wish.
read_record() {
    local line name
    [[ -f "$record" ]] || return 0
    while IFS= read -r line; do
        name=${line#* }
        name=${name# }
        if ! is_proper "$name"; then
            continue
        elif [[ "$line" == +* ]]; then
            line=${line#+}
            begun[$name]+=" ${line%% *}"
        else
            laid_out[$name]+=" ${line%% *}"
        fi
    done <"$record"
}

read_shipped() {
    local line
    while IFS= read -r line; do
        now[${line#*  }]=${line%% *}
    done <<<"$1"
}

# What cannot be read is somebody's. A checksum that fails ends the run, or every file would pass for a changed one.
read_present() {
    local name line lines
    lines=$(for name in "${!now[@]}" "${!laid_out[@]}" "${!begun[@]}"; do
        if is_plain "$name"; then printf '%s\0' "$name"; fi
    done | checksums_in "$folder")
    while IFS= read -r line; do
        [[ -z "$line" ]] || present[${line#*  }]=${line%% *}
    done <<<"$lines"
}

# A name that differs in letter case alone would be a second candidate for the same maker.
read_taken() {
    local name
    while IFS= read -r -d '' name; do
        taken[${name,,}]=yes
    done < <(find "$folder" -mindepth 1 -maxdepth 2 -printf '%P\0')
}

was_laid_out() { [[ " ${laid_out[$1]:-} ${begun[$1]:-} " == *" $2 "* ]]; } # NAME CHECKSUM

# Whether the shipped file of that name comes; tells of one that a person's stands in the way of.
is_to_come() {
    local name=$1 here=${present[$1]:-}
    if [[ -n "$here" && "$here" == "${now[$name]}" ]]; then
        return 1
    fi
    if [[ "$name" == "$program" ]]; then
        return 0
    fi
    if ! is_in_own_folder "$name"; then
        return 1
    fi
    if [[ -z "${taken[${name,,}]:-}" ]]; then
        [[ -z "${laid_out[$name]:-}" || "$name" == "$systems" ]]
        return
    fi
    if [[ -n "$here" ]] && was_laid_out "$name" "$here"; then
        return 0
    fi
    if [[ "$name" != "$systems" ]] && ! was_laid_out "$name" "${now[$name]}"; then
        echo "Kept $folder/$name, which was changed here; the shipped file is $shipped/$name"
    fi
    return 1
}

staged_path() { # NAME
    if [[ "$1" == */* ]]; then echo "$folder/${1%/*}/$staging/${1##*/}"; else echo "$folder/$staging/$1"; fi
}

remove_staging() {
    local part
    for part in Antennas/ Coax/ Help/ ''; do
        if is_in_own_folder "$part"; then
            rm -rf "${folder:?}/$part$staging"
        fi
    done
}

# On the disk as a whole before it gets its name.
stage() {
    local name path paths=()
    for name in "$@"; do
        path=$(staged_path "$name")
        mkdir -p "${path%/*}"
        cp "$shipped/$name" "$path"
        paths+=("$path")
    done
    sync "${paths[@]}"
}

write_record() { # LINES
    mkdir -p "$folder/$staging"
    printf '%s\n' "$1" >"$folder/$staging/record"
    sync "$folder/$staging/record"
    mv -f --no-target-directory "$folder/$staging/record" "$record"
}

# Looks at the file once more: a person may have saved it in the meantime.
bring() { # NAME
    local path here
    path=$(staged_path "$1")
    if [[ "$1" == "$program" ]]; then
        mv -f --no-target-directory "$path" "$folder/$1"
    elif ! is_there "$1"; then
        mv --no-clobber --no-target-directory "$path" "$folder/$1"
    else
        here=$(printf '%s\0' "$1" | checksums_in "$folder")
        if [[ "${here%% *}" == "${present[$1]:-}" ]]; then
            mv -f --no-target-directory "$path" "$folder/$1"
        fi
    fi
}

# A file that is brought is known as unchanged from then on, also when this run is killed before it is through.
record_coming() { # NAME...
    local name mark lines
    [[ -f "$record" ]] || return 0
    lines=$(cat "$record")
    for name in "$@"; do
        mark=+
        if [[ -n "${laid_out[$name]:-}" ]]; then mark=; fi
        lines+=$'\n'"$mark${now[$name]}  $name"
    done
    write_record "$lines"
}

remove_dropped() {
    local name
    for name in "${!laid_out[@]}" "${!begun[@]}"; do
        if [[ -z "${now[$name]:-}" && -n "${present[$name]:-}" ]] && was_laid_out "$name" "${present[$name]}"; then
            rm -f "$folder/$name"
        fi
    done
}

sync_folders() {
    local part parts=("$folder")
    for part in Antennas Coax Help; do
        if [[ -d "$folder/$part" ]]; then parts+=("$folder/$part"); fi
    done
    sync "${parts[@]}"
}

lay_out() {
    local name coming=()
    read_present
    read_taken
    while IFS= read -r name; do
        if is_to_come "$name"; then
            coming+=("$name")
        fi
    done < <(printf '%s\n' "${!now[@]}" | sort)

    if [[ ${#coming[@]} -gt 0 ]]; then
        stage "${coming[@]}"
        record_coming "${coming[@]}"
        for name in "${coming[@]}"; do
            bring "$name"
        done
    fi
    remove_dropped
    sync_folders
}

checksums=$(shipped_checksums)
read_shipped "$checksums"
if [[ -f "$record" && "$checksums" == "$(<"$record")" ]] && is_there "$systems" && ! is_there "$staging" &&
    [[ -z "${now[$program]:-}" || -x "$folder/$program" ]]; then
    exit 0
fi
trap remove_staging EXIT
remove_staging
read_record
lay_out
write_record "$checksums"
