# SPDX-License-Identifier: GPL-3.0-or-later
# What is installed is what desktops, shells and readers expect, by the words of the tools that check it.
. "$ROOT/tests/support/script.sh"
tree=$work/tree
DESTDIR=$tree cmake --install "$BUILD" --prefix /usr >/dev/null
share=$tree/usr/share

[ -x "$tree/usr/bin/zelpane" ] || fail "there is no program"
[ -d "$share/zelpane/resources/icons" ] && [ ! -e "$share/zelpane/resources/make" ] || fail "the resources are not right"

desktop-file-validate "$share/applications/com.orvanta.zelpane.desktop" >"$work/said" 2>&1 || fail "$(cat "$work/said")"
[ ! -s "$work/said" ] || fail "$(cat "$work/said")"
for action in new-image open-image image-processor; do
    grep -q "^\[Desktop Action $action\]" "$share/applications/com.orvanta.zelpane.desktop" || fail "there is no action $action"
done
grep -qx 'Exec=/usr/bin/zelpane --no-start-choice' "$share/dbus-1/services/com.orvanta.zelpane.service" || fail "the bus cannot start it"
thumbnailer=$(sed -n 's/^Exec=zelpane \(.*\) %s %i %o$/\1/p' "$share/thumbnailers/zelpane.thumbnailer")
"$tree/usr/bin/zelpane" "$thumbnailer" 64 "$ROOT/resources/B1.png" "$work/small.png" && [ -s "$work/small.png" ] || fail "no thumbnail was made"
for language in de es fr ja pt_BR zh_CN; do
    [ -s "$share/zelpane/translations/zelpane_$language.qm" ] || fail "$language is missing"
done
appstreamcli validate --no-net --pedantic "$share/metainfo/com.orvanta.zelpane.metainfo.xml" >"$work/said" 2>&1 ||
    fail "$(cat "$work/said")"
# Hints do not change its status; they are lines that begin with a letter and a colon.
! grep -E '^[EWIP]: ' "$work/said" || fail "the metainfo file draws remarks"

for size in 16 22 24 32 48 64 128 256 512; do
    icon=$share/icons/hicolor/${size}x$size/apps/zelpane.png
    [ "$(od -An -tu1 -j18 -N2 "$icon" | awk '{ print $1 * 256 + $2 }')" = "$size" ] || fail "$icon is not $size pixels wide"
done
for icon in scalable/apps/zelpane.svg symbolic/apps/zelpane-symbolic.svg; do
    rsvg-convert "$share/icons/hicolor/$icon" -o "$work/icon.png" || fail "$icon cannot be drawn"
done

LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$share/man/man1/zelpane.1" >/dev/null 2>"$work/said"
[ ! -s "$work/said" ] || fail "the man page: $(cat "$work/said")"

for page in user-guide smart-fill scripting at-scale; do
    html=$share/zelpane/guide/$page.html
    grep -q '<h1>' "$html" && grep -q '</html>' "$html" || fail "$html is no page"
    ! grep -q '@[A-Z]*@' "$html" || fail "$html has a place that was not filled"
    for link in $(grep -oE '(href|src)="[^"#]+' "$html" | sed 's/^[a-z]*="//'); do
        case $link in *://*) continue ;; esac
        [ -f "$share/zelpane/guide/$link" ] || fail "$page leads to $link, which is not there"
    done
done
for completion in bash-completion/completions/zelpane zsh/vendor-completions/_zelpane fish/vendor_completions.d/zelpane.fish; do
    [ -s "$share/$completion" ] || fail "there is no $completion"
done
! grep -rl --binary-files=text -F "$ROOT" "$share" || fail "installed files tell of the folder they were made in"

# Started from there, it finds its resources there.
"$tree/usr/bin/zelpane" --offscreen --no-start-choice --script - <<<'image' >"$work/said"
grep -q '"ok":true' "$work/said" || fail "$(cat "$work/said")"
cmp "$share/zelpane/resources/B1.png" "$HOME/.local/share/zelpane/Contents/Resources/B1.png" || fail "resources were not found"
