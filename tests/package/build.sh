# SPDX-License-Identifier: GPL-3.0-or-later
# ./package builds the package that the other long forms look at, and says where it is.
. "$ROOT/tests/support/script.sh"
long_form
rm -rf "$BUILD/long" && mkdir "$BUILD/long"
said=$("$ROOT/package" --out "$BUILD/long" 2>"$work/log") || fail "$(tail -n 40 "$work/log")"
[ "$said" = "$(ls "$BUILD"/long/zelpane_*_"$(dpkg --print-architecture)".deb)" ] || fail "it said: $said"
"$ROOT/package" --arch nonsense >"$work/said" 2>&1 && fail "it built for a machine that it knows nothing of"
grep -q 'no preset "package-nonsense"' "$work/said" || fail "it said: $(cat "$work/said")"
