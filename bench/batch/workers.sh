#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Throughput of a folder of 12-megapixel JPEG files shared by 1, 2, 3, … workers on this machine, and of one worker with as many
# images at a time: bench/batch/workers.sh [PICTURES [MOST WORKERS [ROUNDS]]]
# The numbers of workers take turns, so that what else the machine does disturbs all of them alike; the median of the rounds counts.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
zelpane=${ZELPANE:-$root/build/zelpane}
pictures=${1:-100} most=${2:-$(($(nproc) + 2))} rounds=${3:-5}
work=$(mktemp -d "${TMPDIR:-/tmp}/zelpane-workers.XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/one" "$work/large" "$work/in" "$work/out"
export HOME=$work
cp "$root/tests/data/images/photos/tahoe-gps.jpg" "$work/one/a.jpg"
"$zelpane" --batch "$work/one" "$work/large" --fit 4000x3000 --jpeg
for ((i = 0; i < pictures; i++)); do cp "$work/large/a.jpg" "$work/in/picture $i.jpg"; done
echo "$pictures pictures of 4000 x 3000, $(stat -c %s "$work/large/a.jpg" | awk '{ printf "%.2f", $1 / 1e6 }') MB each, to fit 1024 x 768 as JPEG"

# run WORKERS JOBS: seconds
run() {
    local k started ended pids=()
    rm -rf "$work/out" && mkdir "$work/out"
    started=$(date +%s.%N)
    for ((k = 1; k <= $1; k++)); do
        "$zelpane" --batch "$work/in" "$work/out" --fit 1024x768 --jpeg --jobs "$2" --shard "$k/$1" &
        pids+=($!)
    done
    for pid in "${pids[@]}"; do wait "$pid" || exit 1; done
    ended=$(date +%s.%N)
    [ "$(ls "$work/out" | wc -l)" -eq "$pictures" ] || exit 1
    awk -v a="$started" -v b="$ended" 'BEGIN { print b - a }'
}

for ((round = 0; round < rounds; round++)); do
    for ((n = 1; n <= most; n++)); do
        run "$n" 1 >>"$work/workers.$n"
        run 1 "$n" >>"$work/jobs.$n"
    done
done
median() { sort -n "$1" | awk '{ v[NR] = $1 } END { print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }
echo "|  | workers with one image at a time: s, images/s | one worker with as many at a time: s, images/s |"
echo "|---|---|---|"
for ((n = 1; n <= most; n++)); do
    awk -v n="$n" -v p="$pictures" -v w="$(median "$work/workers.$n")" -v j="$(median "$work/jobs.$n")" \
        'BEGIN { printf "| %d | %.2f, %.1f | %.2f, %.1f |\n", n, w, p / w, j, p / j }'
done
