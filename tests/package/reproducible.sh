# SPDX-License-Identifier: GPL-3.0-or-later
# The same sources give the same package, byte for byte: in another folder, by a build from nothing, for another user's habits.
. "$ROOT/tests/support/script.sh"
long_form
first=$(ls "$BUILD"/long/zelpane_*.deb)
mkdir -p "$work/elsewhere/with a longer name" "$work/out"
copy="$work/elsewhere/with a longer name/sources"
# What is tracked, as it stands: the first was built from the same.
git config --global --add safe.directory '*'
mkdir "$copy"
(cd "$ROOT" && git ls-files -z | tar --null --ignore-failed-read -T - -cf - | tar -C "$copy" -xf -)
# The date of the last change comes from git where there is git, and must be handed over where there is not.
epoch=$(git -C "$ROOT" log -1 --format=%ct)
(
    umask 077
    export CCACHE_DISABLE=1 SOURCE_DATE_EPOCH=$epoch TZ=Asia/Tokyo LC_ALL=C.UTF-8 LANGUAGE=de
    "$copy/package" --out "$work/out"
) >"$work/log" 2>&1 || fail "$(tail -n 40 "$work/log")"
second=$(ls "$work"/out/zelpane_*.deb)
if ! cmp "$first" "$second"; then
    dpkg-deb -R "$first" "$work/first" && dpkg-deb -R "$second" "$work/second"
    diff -r "$work/first" "$work/second" >&2 || true
    fail "two builds gave two packages"
fi
