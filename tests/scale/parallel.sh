# SPDX-License-Identifier: GPL-3.0-or-later
# Four workers on one machine, started by GNU parallel, make what one run makes.
. "$ROOT/tests/scale/scale.sh"
need parallel
prepare 60
check_plans 4
timeout 250 parallel --will-cite -j4 zelpane --batch "$work/in" "$work/out" "${options[@]}" --jobs 1 --shard {}/4 ::: 1 2 3 4 || fail "parallel ended with $?"
same_files "$work/whole" "$work/out"
