# SPDX-License-Identifier: GPL-3.0-or-later
# Shared by the tests that spread a folder; to be sourced. $work/in holds the sources, $work/whole what one run makes of them,
# $work/out is for the workers, zelpane is the program under test and leaves its process number behind.
. "$ROOT/tests/support/script.sh"
options=(--fit 700x700 --jpeg --tiff)

# prepare COUNT
prepare() {
    mkdir -p "$work/whole" "$work/out" "$work/bin" "$work/pids"
    sources "$work/in" "$1"
    printf '#!/bin/sh\necho $$ >"%s/pids/${SLURM_ARRAY_TASK_ID:-$$}"\nexec "%s" "$@"\n' "$work" "$ZELPANE" >"$work/bin/zelpane"
    chmod +x "$work/bin/zelpane"
    export PATH=$work/bin:$PATH
    zelpane --batch "$work/in" "$work/whole" "${options[@]}"
    [ "$(ls "$work/whole" | wc -l)" -eq $((2 * $1)) ] || fail "the whole run made $(ls "$work/whole" | wc -l) files"
}

# The plans of the shards together are the plan of the whole, and no file is in two of them.
check_plans() {
    local k
    for ((k = 1; k <= $1; k++)); do zelpane --batch "$work/in" "$work/out" "${options[@]}" --dry-run --shard "$k/$1"; done >"$work/plans"
    [ -z "$(sort "$work/plans" | uniq -d)" ] || fail "in two shards: $(sort "$work/plans" | uniq -d | head -n 3)"
    zelpane --batch "$work/in" "$work/out" "${options[@]}" --dry-run | sort | cmp - <(sort "$work/plans") || fail "shards are not the whole"
}

# Each file that can be seen now is complete: one that is being written has no name yet.
check_what_is_there() {
    [ -s "$work/sums" ] || (cd "$work/whole" && md5sum -- *) >"$work/sums"
    [ -n "$(ls "$work/out")" ] || return 0
    (cd "$work/out" && md5sum -- *) >"$work/seen"
    ! grep -vxF -f "$work/sums" "$work/seen" || fail "half of a file was seen"
}

# What workers that were killed left behind has names that begin with a dot and is nobody's result.
remove_leftovers() { find "$work/out" -name '.zelpane-*.part' -delete; }

# kill_when_begun PIDFILE K/N: ends a worker at once when the first result of its shard can be seen.
kill_when_begun() {
    local files i
    zelpane --batch "$work/in" "$work/out" "${options[@]}" --dry-run --shard "$2" >"$work/plan"
    for ((i = 0; i < 6000; i++)); do
        while read -r files; do [ ! -e "$files" ] || break 2; done <"$work/plan"
        sleep 0.01
    done
    kill -KILL "$(cat "$1")" || fail "the worker had ended before it could be killed"
    local missing=0
    while read -r files; do [ -e "$files" ] || missing=$((missing + 1)); done <"$work/plan"
    [ "$missing" -gt 0 ] || fail "the worker had done all before it was killed"
    echo "killed with $missing of $(wc -l <"$work/plan") files missing"
}
