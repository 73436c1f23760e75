# SPDX-License-Identifier: GPL-3.0-or-later
# The program in a real Wayland compositor without a screen: window, menus, keys, dialogs, clipboard, end.
# The compositor does not run as root.
[ "$(id -u)" != 0 ] || exec runuser -u nobody -- bash "$0"
cd /
. "$ROOT/tests/support/script.sh"
long_form
for program in sway swaymsg grim wtype wl-paste; do need $program; done
[ -x "$ZELPANE" ] && [ -r "$ROOT/resources/B1.png" ] || skip "$(id -un) may not read the build"

printf '%s\n' 'output HEADLESS-1 resolution 1280x800' 'default_border none' 'focus_follows_mouse no' >"$work/sway.conf"
WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman \
    timeout 300 sway -c "$work/sway.conf" >"$work/sway.log" 2>&1 &
sway=$!
at_end "kill $sway; wait $sway"
# until SECONDS COMMAND...: waits for it. @return whether it came true
until_true() {
    local end=$((SECONDS + $1))
    shift
    while ! "$@"; do [ $SECONDS -lt $end ] && sleep 0.2 || return 1; done
}
socket_is_there() { compgen -G "$XDG_RUNTIME_DIR/sway-ipc*" >/dev/null; }
until_true 20 socket_is_there || skip "the compositor does not start here: $(tail -n 3 "$work/sway.log")"
export SWAYSOCK=$(compgen -G "$XDG_RUNTIME_DIR/sway-ipc*")
export WAYLAND_DISPLAY=$(basename "$(compgen -G "$XDG_RUNTIME_DIR/wayland-?" | head -n 1)")

# The focus goes with the last keyboard: one stays as long as the test.
wtype -s 280000 -k Shift_L &
at_end "kill $!"
QT_QPA_PLATFORM=wayland "$ZELPANE" --no-start-choice "$ROOT/resources/Hibiskus.jpg" >"$work/said" 2>&1 &
program=$!
at_end "kill -9 $program 2>/dev/null"

windows() { timeout 10 swaymsg -t get_tree | grep -c '"app_id": "com.orvanta.zelpane"'; }
window_named() { timeout 10 swaymsg -t get_tree | grep -q "\"name\": \"$1"; }
windows_are() { [ "$(windows)" = "$1" ]; }
until_true 30 window_named 'Hibiskus.jpg' || fail "no window came up: $(cat "$work/said")"

keys() { timeout 10 wtype -s 200 "$@" -s 200; }
ctrl() { keys -M ctrl -s 50 -k "$1" -m ctrl; }
shot() { timeout 10 grim "$work/$1.png"; }
same() { shot now && cmp -s "$work/now.png" "$work/$1.png"; }
differs() { ! same "$1"; }

# What is compared with must stand still: the first picture is drawn, and drawn finely.
stands_still() { shot start && sleep 1 && same start; }
until_true 30 stands_still || fail "the window does not come to rest"
keys -M alt -s 50 -k f -m alt
until_true 10 differs start || fail "Alt+F opens no menu"
keys -k Escape
keys -k Escape
until_true 10 same start || fail "Escape does not close the menu"
keys -k F10
until_true 10 differs start || fail "F10 opens no menu"
keys -k Escape
keys -k Escape
until_true 10 same start || fail "Escape does not close the menu that F10 opened"

ctrl o
until_true 20 windows_are 2 || fail "Ctrl+O shows no panel"
keys -k Escape
until_true 20 windows_are 1 || fail "Escape does not close the panel"

ctrl a
until_true 10 differs start || fail "Ctrl+A shows no selection"
ctrl c
offers_png() { timeout 10 wl-paste --list-types 2>/dev/null | grep -qx image/png; }
until_true 10 offers_png || fail "Ctrl+C puts no picture on the clipboard"
timeout 20 wl-paste --type image/png >"$work/pasted.png"
[ "$(head -c 4 "$work/pasted.png" | tail -c 3)" = PNG ] || fail "what another program is given is no PNG file"

kill "$program"
ended() { ! kill -0 "$program" 2>/dev/null; }
until_true 20 ended || fail "a signal does not end it"
wait "$program" || fail "it ended with $?"
! grep -iE '^qt\.|wayland|QSocket|QWidget' "$work/said" || fail "the toolkit has something to say"
