# SPDX-License-Identifier: GPL-3.0-or-later
# The package draws neither an error nor a warning, depends on what the program links and on nothing else, and tells nothing of the
# machine it was built on.
. "$ROOT/tests/support/script.sh"
long_form
need lintian
package=$BUILD/long/$(ls "$BUILD/long" | grep '^zelpane_.*\.deb$')
[ -f "$package" ] || fail "there is no package"
lintian --allow-root --fail-on error,warning "$package" >"$work/said" 2>&1 || fail "$(cat "$work/said")"
! grep -E '^[EW]:' "$work/said" || fail "lintian has remarks"

dpkg-deb -R "$package" "$work/tree"
[ -z "$(ls "$work/tree/DEBIAN" | grep -vE '^(control|md5sums)$')" ] || fail "the package has scripts: $(ls "$work/tree/DEBIAN")"
(cd "$work/tree" && md5sum --quiet -c DEBIAN/md5sums) || fail "md5sums does not agree"
! grep -rlF --binary-files=text "$ROOT" "$work/tree" || fail "the package tells of $ROOT"

# Each package that brings a library which the program names, and no other.
objdump -p "$work/tree/usr/bin/zelpane" | sed -n 's/^ *NEEDED *//p' | while read -r library; do
    path=$(ldd "$work/tree/usr/bin/zelpane" | awk -v l="$library" '$1 == l { print $3 }')
    [ -n "$path" ] || continue # the loader itself, which comes with the C library
    # the loader names paths below /lib, packages may list them below /usr/lib
    { dpkg-query -S "$path" || dpkg-query -S "/usr$path" || dpkg-query -S "$(readlink -f "$path")"; } 2>/dev/null | sed 's/:.*//' | head -n 1
done | sort -u >"$work/linked"
dpkg-deb -f "$package" Depends | tr ',' '\n' | sed 's/^ *//; s/ .*//' | sort -u >"$work/depends"
"$ROOT/packaging/deb/foreign-depends.sh" "$work/tree/usr/bin/zelpane" | tr ',' '\n' | sed 's/^ *//; s/ .*//' | sort -u >"$work/foreign"
diff "$work/linked" "$work/foreign" >&2 || fail "for another architecture the package would depend on other packages"
diff "$work/linked" "$work/depends" >&2 || fail "the package depends on other packages than those that the program links"
# What it only loads is recommended, and no more.
recommended=$(dpkg-deb -f "$package" Recommends)
[ "$recommended" = "fonts-ebgaramond, qt6-translations-l10n, qt6-wayland, qt6-xdgdesktopportal-platformtheme" ] ||
    fail "the package recommends $recommended"
