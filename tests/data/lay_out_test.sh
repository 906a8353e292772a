#!/bin/bash
# Lays a small data folder out again and again, as builds do, and looks at what a person did in between.
# usage: lay_out_test.sh LAY_OUT_SCRIPT
set -euo pipefail

script=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
shipped="$work/shipped" program="$work/program folder"
failures=0

lay_out() { bash "$script" "$shipped" "$program"; }

expect() { # WHAT EXPECTED ACTUAL
    if [[ "$2" != "$3" ]]; then
        echo "FAILED: $1: expected \"$2\", found \"$3\""
        failures=$((failures + 1))
    fi
}

content() { if [[ -f "$program/$1" ]]; then cat "$program/$1"; else echo "(none)"; fi; }

mkdir -p "$shipped/Antennas" "$shipped/Coax"
for maker in STAYS CHANGED DELETED DROPPED "KEPT DROPPED" [ODD]; do
    echo "first $maker" >"$shipped/Antennas/$maker.DAT"
done
mkdir "$shipped/Help"
echo "first help" >"$shipped/Help/Quillon.hlp"
echo sources >"$shipped/SOURCES.md"
echo front >"$shipped/README.md"
: >"$shipped/QuillonSystems.dat"

lay_out
expect "a shipped file is laid out" "first STAYS" "$(content Antennas/STAYS.DAT)"
expect "a name with brackets is laid out" "first [ODD]" "$(content 'Antennas/[ODD].DAT')"
expect "the help lies beside the program" "first help" "$(content Help/Quillon.hlp)"
expect "the sources lie beside the catalogues" "sources" "$(content SOURCES.md)"
expect "the saved systems start empty" "" "$(content QuillonSystems.dat)"
expect "documents of the project stay out" "(none)" "$(content README.md)"

# What a person does.
echo mine >"$program/Antennas/CHANGED.DAT"
echo mine >"$program/Antennas/KEPT DROPPED.DAT"
echo mine >"$program/Antennas/ADDED.DAT"
echo mine >"$program/Antennas/later.dat"
echo saved >"$program/QuillonSystems.dat"
rm "$program/Antennas/DELETED.DAT"

expect "laying out the same again says nothing" "" "$(lay_out)"
expect "a changed file stands" "mine" "$(content Antennas/CHANGED.DAT)"
expect "a deleted file stays deleted" "(none)" "$(content Antennas/DELETED.DAT)"
expect "saved systems stand" "saved" "$(content QuillonSystems.dat)"

# What a new version ships.
for maker in STAYS CHANGED DELETED LATER NEW; do
    echo "second $maker" >"$shipped/Antennas/$maker.DAT"
done
echo "second help" >"$shipped/Help/Quillon.hlp"
echo not-empty >"$shipped/QuillonSystems.dat"
rm "$shipped/Antennas/DROPPED.DAT" "$shipped/Antennas/KEPT DROPPED.DAT"

said=$(lay_out)
expect "an untouched file follows the shipped one" "second STAYS" "$(content Antennas/STAYS.DAT)"
expect "the help follows the program" "second help" "$(content Help/Quillon.hlp)"
expect "a changed file stands when the shipped one changes" "mine" "$(content Antennas/CHANGED.DAT)"
expect "that is told" "1" "$(grep -c 'Kept .*/CHANGED.DAT' <<<"$said")"
expect "a deleted file stays deleted when the shipped one changes" "(none)" "$(content Antennas/DELETED.DAT)"
expect "an added file stands" "mine" "$(content Antennas/ADDED.DAT)"
expect "a new file comes" "second NEW" "$(content Antennas/NEW.DAT)"
expect "no second candidate beside an added file of that name" "(none)" "$(content Antennas/LATER.DAT)"
expect "an untouched file that is no longer shipped goes" "(none)" "$(content Antennas/DROPPED.DAT)"
expect "a changed file that is no longer shipped stands" "mine" "$(content 'Antennas/KEPT DROPPED.DAT')"
expect "saved systems stand whatever is shipped" "saved" "$(content QuillonSystems.dat)"
expect "it is told once" "" "$(lay_out)"

# What a person made of the help is theirs like any other file.
echo "my help" >"$program/Help/Quillon.hlp"
echo "third help" >"$shipped/Help/Quillon.hlp"
said=$(lay_out)
expect "a changed help stands" "my help" "$(content Help/Quillon.hlp)"
expect "that is told" "1" "$(grep -c 'Kept .*/Quillon.hlp' <<<"$said")"

# Without its record every file may be somebody's.
rm "$program/.laid-out"
echo third >"$shipped/Antennas/STAYS.DAT"
lay_out >/dev/null
expect "without a record no file is written over" "second STAYS" "$(content Antennas/STAYS.DAT)"

rm "$program/QuillonSystems.dat"
lay_out >/dev/null
expect "the file of the saved systems comes back" "not-empty" "$(content QuillonSystems.dat)"

rm "$program/Antennas/NEW.DAT"
ln -s "$work/elsewhere" "$program/Antennas/NEW.DAT"
echo "third NEW" >"$shipped/Antennas/NEW.DAT"
lay_out >/dev/null
expect "a link stands, even one that leads nowhere" "$work/elsewhere" "$(readlink "$program/Antennas/NEW.DAT")"

if bash "$script" "$work" "$program" 2>/dev/null; then
    expect "a folder that is not the shipped data is refused" "refused" "accepted"
fi
expect "and nothing goes" "mine" "$(content Antennas/ADDED.DAT)"
expect "nothing unfinished is left" "" "$(find "$work" -name '*.new')"

exit $((failures > 0))
