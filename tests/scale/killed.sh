# SPDX-License-Identifier: GPL-3.0-or-later
# A worker that is killed leaves no half files, and its shard run again makes what was missing and nothing else.
. "$ROOT/tests/scale/scale.sh"
prepare 60
zelpane --batch "$work/in" "$work/out" "${options[@]}" --jobs 2 --shard 2/2 &
worker=$!
for ((i = 0; i < 500; i++)); do [ -s "$work/pids/$worker" ] && break || sleep 0.01; done
kill_when_begun "$work/pids/$worker" 2/2
wait $worker && fail "a worker that was killed ended well"
check_what_is_there
touch "$work/then"
for file in "$work/out"/*; do echo "${file##*/} $(stat -c %Y.%i "$file")"; done >"$work/before"
zelpane --batch "$work/in" "$work/out" "${options[@]}" --shard 2/2 --skip-existing || fail "the second run ended with $?"
zelpane --batch "$work/in" "$work/out" "${options[@]}" --shard 1/2 || fail "the other shard ended with $?"
remove_leftovers
same_files "$work/whole" "$work/out"
# Pairs that were complete were left alone.
while read -r line; do
    name=${line% *}
    other=${name%.*}.jpg
    [ "${name##*.}" = jpg ] && other=${name%.*}.tiff
    grep -q "^$other " "$work/before" || continue
    [ "$line" = "$name $(stat -c %Y.%i "$work/out/$name")" ] || fail "$name was made again"
done <"$work/before"
