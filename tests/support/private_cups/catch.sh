#!/bin/sh
# Backend of a print service for tests: puts each job's document into a folder instead of on paper.
# Device: catch:FOLDER[?fail][?wait] - fail: report a failure; wait: hold on until FOLDER/go is there.
[ $# -eq 0 ] && exit 0
device=${DEVICE_URI#catch:}
folder=${device%%\?*}
case $device in
*wait*) while [ -d "$folder" ] && [ ! -e "$folder/go" ]; do sleep 0.05; done ;;
esac
cat ${6:+"$6"} >"$folder/part-$1" && printf '%s\n%s\n' "$3" "$5" >"$folder/$1.txt" && mv "$folder/part-$1" "$folder/$1.pdf"
case $device in
*fail*) exit 1 ;;
esac
