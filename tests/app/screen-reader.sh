#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Starts the program on a display and an accessibility bus of its own and walks through it as a screen reader does.
# usage: screen-reader.sh PROGRAM PICTURE      77: something that it needs is not installed
set -u
here=$(dirname "$0")
if [ "${3:-}" = inside ]; then
    /usr/libexec/at-spi-bus-launcher --launch-immediately &
    bus=$!
    "$1" --no-start-choice "$2" &
    program=$!
    timeout 60 /usr/bin/python3 "$here/screen-reader.py"
    answer=$?
    kill "$program" "$bus"
    wait "$program"
    exit $answer
fi
for needed in Xvfb dbus-run-session /usr/libexec/at-spi-bus-launcher /usr/bin/python3; do
    command -v "$needed" >/dev/null || { echo "$needed is not installed"; exit 77; }
done
/usr/bin/python3 -c 'import gi; gi.require_version("Atspi", "2.0")' || exit 77
home=$(mktemp -d) || exit 77
mkdir -m 700 "$home/runtime"
# A bus that starts nothing by itself: portals of the machine are another test's matter, and one of them mounts a folder.
cat >"$home/bus.conf" <<END
<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>
END
env -i PATH="$PATH" HOME="$home" XDG_RUNTIME_DIR="$home/runtime" ZELPANE_TMP="$home" LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
    xvfb-run -a -s "-screen 0 1280x900x24" dbus-run-session --config-file="$home/bus.conf" -- sh "$0" "$1" "$2" inside
answer=$?
rm -rf "$home"
exit $answer
