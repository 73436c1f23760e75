# SPDX-License-Identifier: GPL-3.0-or-later
# Every option that the program tells of is on its man page and is completed by every shell, and nothing else is.
. "$ROOT/tests/support/script.sh"
{
    "$ZELPANE" --help
    "$ZELPANE" --batch --help
} | grep -oE '(^|[^-[:alnum:]])--[a-z][a-z-]*' | grep -oE -- '--[a-z-]+' | sort -u >"$work/told"
[ "$(wc -l <"$work/told")" -ge 18 ] || fail "only $(wc -l <"$work/told") options were found"

same_as_told() {
    sort -u "$2" | diff "$work/told" - || fail "$1 has other options than the program tells of"
}
sed 's/\\-/-/g' "$BUILD/zelpane.1" | grep -E '^\.(B|BI|BR) ' | grep -oE -- '--[a-z][a-z-]*' >"$work/man"
same_as_told "the man page" "$work/man"
grep -oE -- '--[a-z][a-z-]+' "$ROOT/packaging/completions/zelpane.bash" >"$work/bash"
same_as_told "bash's completion" "$work/bash"
grep -oE -- "--[a-z][a-z-]+" "$ROOT/packaging/completions/_zelpane" >"$work/zsh"
same_as_told "zsh's completion" "$work/zsh"
grep '^complete ' "$ROOT/packaging/completions/zelpane.fish" | grep -oE -- ' -l [a-z-]+' | sed 's/ -l /--/' >"$work/fish"
same_as_told "fish's completion" "$work/fish"

# They complete.
bash -c '. /usr/share/bash-completion/bash_completion; . "$1"; COMP_WORDS=(zelpane --batch a --sk); COMP_CWORD=3
    COMP_LINE="${COMP_WORDS[*]}"; COMP_POINT=${#COMP_LINE}; _zelpane; echo "${COMPREPLY[*]}"' - \
    "$ROOT/packaging/completions/zelpane.bash" >"$work/completed"
grep -qx -- --skip-existing "$work/completed" || fail "bash completed $(cat "$work/completed")"
fish -c "source '$ROOT/packaging/completions/zelpane.fish'; complete -C 'zelpane --batch a --sk'" >"$work/completed"
grep -q -- --skip-existing "$work/completed" || fail "fish completed $(cat "$work/completed")"
zsh -n "$ROOT/packaging/completions/_zelpane" || fail "zsh does not understand its completion"

# The actions of the menu entry start with options that exist.
sed -n 's/^Exec=zelpane \(--[a-z-]*\).*/\1/p' "$ROOT/packaging/com.orvanta.zelpane.desktop" >"$work/actions"
[ "$(wc -l <"$work/actions")" -eq 3 ] || fail "the menu entry has other than three actions"
while read -r option; do grep -qx -- "$option" "$work/told" || fail "there is no option $option"; done <"$work/actions"
