# SPDX-License-Identifier: GPL-3.0-or-later
# Another program owns the clipboard of an X server: its image comes whole, piece by piece, and while it is stopped nobody waits long.
. "$ROOT/tests/support/script.sh"
need Xvfb
need xclip
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp -noreset 3>"$work/number" 2>/dev/null &
at_end "kill $!"
read -r number <"$work/number"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb

# Noise is not packed: more than the server takes at once.
python3 - "$work/noise.bmp" <<'END'
import random, struct, sys
width, height = 1500, 1500
pixels = random.Random(1).randbytes(width * height * 3)
head = struct.pack("<2sIHHI", b"BM", 54 + len(pixels), 0, 0, 54)
open(sys.argv[1], "wb").write(head + struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, 0, 0, 0, 0, 0) + pixels)
END
play() { timeout 120 "$ZELPANE" --show --no-start-choice --script -; }

xclip -selection clipboard -t image/bmp -i "$work/noise.bmp" -quiet 2>/dev/null &
owner=$!
at_end "kill -CONT $owner; kill $owner"
for ((i = 0; i < 100; i++)); do
    xclip -selection clipboard -o -t TARGETS 2>/dev/null | grep -q image/bmp && break
    sleep 0.1
done
printf '%s\n' "pasteboard types" "pasteboard get $work/got.bmp" "quit" | play >"$work/answers" || fail "$(cat "$work/answers")"
grep -q image/bmp "$work/answers" || fail "the kinds: $(cat "$work/answers")"
cmp "$work/noise.bmp" "$work/got.bmp" || fail "not what was offered"

# One that is stopped: the program starts, says what there is without it, and ends.
kill -STOP "$owner"
printf '%s\n' "open $ROOT/tests/data/images/made/valid/base.jpg" "pasteboard types" "menu paste:" "state" "quit" |
    play >"$work/answers" || fail "stopped by a silent owner: $(cat "$work/answers")"
grep -q '"types": *\[\]' "$work/answers" || fail "the kinds of a silent owner: $(cat "$work/answers")"
