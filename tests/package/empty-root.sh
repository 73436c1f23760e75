# SPDX-License-Identifier: GPL-3.0-or-later
# In a Debian 12 that holds nothing but the package and what it pulls in: the program edits, opens every kind of picture, and shares a
# folder as a container of the Containerfile would under an Indexed Job. Removed, it leaves nothing.
. "$ROOT/tests/support/script.sh"
long_form
[ "$(id -u)" -eq 0 ] || skip "only the superuser can make an empty system here"
need mmdebstrap
package=$(ls "$BUILD"/long/zelpane_*.deb)
empty=$work/root
# With this machine's package sources, in either form.
sources=$(ls /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources 2>/dev/null) || true
[ -n "$sources" ] || skip "this machine has no package sources"
# shellcheck disable=SC2086
timeout 600 mmdebstrap --quiet --variant=apt --mode=root bookworm "$empty" $sources >"$work/said" 2>&1 ||
    skip "no empty system can be made here: $(tail -n 3 "$work/said")"

inside() { chroot "$empty" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root "$@"; }
if mount -t proc proc "$empty/proc" 2>/dev/null; then at_end 'umount "$empty/proc"'; else echo "without /proc"; fi
everything() { (cd "$empty" && find . -path ./proc -prune -o -path ./tmp -prune -o -print) | grep -i zelpane || true; }
mkdir -p "$empty/pictures/in" "$empty/pictures/out" "$empty/pictures/kinds" "$empty/pictures/opened"

# The Containerfile's content.
cp "$package" "$empty/tmp/"
[ "$(sed -n 's/^COPY //p' "$ROOT/examples/at-scale/Containerfile")" = "zelpane_*.deb /tmp/" ] || fail "the Containerfile copies something else"
sed -e ':join' -e '/\\$/{N;s/\\\n//;bjoin}' "$ROOT/examples/at-scale/Containerfile" | sed -n 's/^RUN //p' >"$work/run"
[ -s "$work/run" ] || fail "the Containerfile runs nothing"
disk=$(du -smx "$empty" | cut -f1)
while read -r command; do
    timeout 900 chroot "$empty" /bin/sh -c "$command" >"$work/said" 2>&1 </dev/null || fail "$command: $(tail -n 20 "$work/said")"
done <"$work/run"
grep -E 'newly installed|Need to get' "$work/said" || true
echo "the system grew from $disk MB to $(du -smx "$empty" | cut -f1) MB"
! inside dpkg -l qt6-wayland 2>/dev/null | grep -q ^ii || fail "what is only recommended was pulled in"
inside dpkg --audit | grep . && fail "the installation is not whole"

inside zelpane --version | grep "^Zelpane " || fail "the program does not start"
! inside ldd /usr/bin/zelpane | grep "not found" || fail "libraries are missing"

# An edit by a script.
cp "$ROOT/examples/first-edit.zps" "$empty/pictures/edit.zps"
inside /bin/sh -c 'cd /pictures && zelpane --offscreen --script edit.zps' >"$work/said" 2>"$work/errors" ||
    fail "the script: $(cat "$work/said" "$work/errors")"
! grep -v '^{"ok":true' "$work/said" || fail "the script was not carried out"
for picture in $(grep -oE '[a-z-]+\.(png|jpg|tiff)$' "$ROOT/examples/first-edit.zps"); do
    [ -s "$empty/pictures/$picture" ] || fail "$picture was not written"
done

# Every kind of picture, by the readers that came along. The batch reads by content; two names are taken by extension.
for picture in "$ROOT"/tests/data/images/made/valid/base.*; do
    cp "$picture" "$empty/pictures/kinds/${picture##*.}.jpg"
done
kinds=$(ls "$empty/pictures/kinds" | wc -l)
[ "$kinds" -ge 10 ] || fail "there are only $kinds kinds of pictures"
inside zelpane --batch /pictures/kinds /pictures/opened --jpeg 2>"$work/errors" || fail "not every kind opens: $(cat "$work/errors")"
[ "$(ls "$empty/pictures/opened" | wc -l)" -eq "$kinds" ] || fail "not every kind opens"

# The Indexed Job's command, once for each index, as the Containerfile's user.
sources "$empty/pictures/in" 40
chown -R 65534:65534 "$empty/pictures/out"
user=$(sed -n 's/^USER //p' "$ROOT/examples/at-scale/Containerfile")
program=$(sed -n 's/^ENTRYPOINT \["\(.*\)"\]$/\1/p' "$ROOT/examples/at-scale/Containerfile")
mapfile -t arguments < <(sed -n '/^ *args:/,/^ *resources:/s/^ *- "\{0,1\}\([^"]*\)"\{0,1\}$/\1/p' "$ROOT/examples/at-scale/kubernetes-job.yaml")
completions=$(sed -n 's/^ *completions: //p' "$ROOT/examples/at-scale/kubernetes-job.yaml")
[ "${arguments[0]}" = --batch ] && [ "$completions" -ge 2 ] || fail "the job was not understood: ${arguments[*]}"
for ((i = 0; i < completions; i++)); do
    chroot --userspec="$user" "$empty" /usr/bin/env -i JOB_COMPLETION_INDEX=$i "$program" "${arguments[@]}" || fail "index $i ended with $?"
done
chroot --userspec="$user" "$empty" /usr/bin/env -i "$program" "${arguments[@]}" 2>"$work/errors" && fail "it ran without an index"
grep -q JOB_COMPLETION_INDEX "$work/errors" || fail "it said: $(cat "$work/errors")"
"$ZELPANE" --batch "$empty/pictures/in" "$work/tmp" --fit 1024x768 --jpeg
same_files "$work/tmp" "$empty/pictures/out"

# Removed, nothing of it is left but what it made for its user.
rm -rf "$empty/root/"{Pictures,Library,.local,.config,.cache}
timeout 300 chroot "$empty" /bin/sh -c 'DEBIAN_FRONTEND=noninteractive apt-get purge -y zelpane' >"$work/said" 2>&1 </dev/null ||
    fail "$(tail -n 20 "$work/said")"
left=$(everything | grep -v '^./var/log/' || true)
[ -z "$left" ] || fail "left behind: $left"
