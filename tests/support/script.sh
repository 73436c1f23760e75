# SPDX-License-Identifier: GPL-3.0-or-later
# Shared by the tests that are scripts; to be sourced first. They get ROOT (the sources), BUILD (the build's folder) and ZELPANE (the
# program); $work is an empty folder that is removed at the end, and homes and temporary files are in it.
set -euo pipefail
work=$(mktemp -d "${TMPDIR:-/tmp}/zelpane-test.XXXXXX")
cleanups=()
clean_up() {
    local i
    for ((i = ${#cleanups[@]} - 1; i >= 0; i--)); do eval "${cleanups[i]}" || true; done
    rm -rf --one-file-system "$work" # a root of a test may have had something mounted
}
trap clean_up EXIT
at_end() { cleanups+=("$1"); } # a command; the last one given runs first
fail() { echo "FAILED: $*" >&2 && exit 1; }
skip() { echo "SKIPPED: $*" && exit 77; }
long_form() { [ "${ZP_LONG:-}" = 1 ] || skip "a long form; ./test --long runs it"; }
need() { command -v "$1" >/dev/null || skip "$1 is not installed"; }

mkdir -p "$work/home" "$work/runtime" "$work/tmp"
chmod 700 "$work/runtime"
export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime ZELPANE_TMP=$work/tmp QT_QPA_PLATFORM=offscreen
unset XDG_DATA_HOME XDG_CONFIG_HOME DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
for variable in $(compgen -e SLURM_) JOB_COMPLETION_INDEX; do unset "$variable"; done

# sources FOLDER COUNT: that many pictures to convert, of several kinds, none equal to its neighbour by name.
sources() {
    local i kinds=(photos/tahoe-gps.jpg made/valid/base.jpg photos/seeding-600-grey.jpg made/exif/orientation-6.jpg
        photos/seeding-600-cmyk.jpg made/valid/base.tif made/exif/orientation-1.tif)
    mkdir -p "$1"
    for ((i = 1; i <= $2; i++)); do
        local kind=${kinds[i % ${#kinds[@]}]} extension=jpg
        [ "${kind##*.}" = tif ] && extension=tiff
        cp "$ROOT/tests/data/images/$kind" "$1/$(printf 'picture %03d' "$i").$extension"
        # every tenth has a second source of the same result
        if [ $((i % 10)) -eq 0 ] && [ "$extension" = jpg ]; then
            cp "$ROOT/tests/data/images/made/valid/base.tif" "$1/$(printf 'picture %03d' "$i").tiff"
        fi
    done
}

# same_files A B: both folders hold the same names with the same bytes, and nothing hidden.
same_files() { diff -r "$1" "$2" >&2 || fail "$1 and $2 differ"; }
