# SPDX-License-Identifier: GPL-3.0-or-later
# Every file says whose it is and under which licence, and the package's copyright file has every text that this needs.
. "$ROOT/tests/support/script.sh"
need reuse
git config --global --add safe.directory '*'
(cd "$ROOT" && reuse lint) >"$work/said" 2>&1 || fail "$(tail -n 40 "$work/said")"

"$ROOT/packaging/deb/copyright.sh" >"$work/copyright"
sed -n 's/^License: //p' "$ROOT/.reuse/dep5" | sed 's/ AND /\n/g' | sort -u | while read -r licence; do
    # a paragraph of its own, not a line of one about files
    grep -B1 -x "License: $licence" "$work/copyright" | grep -qx '' || fail "there is no text of $licence"
done
# The libraries that the program tells of.
"$ZELPANE" --version | sed -n 's/^Libraries: //p' | sed 's/ ([^)]*)//g; s/, /\n/g' | sed 's/^libjpeg$/libjpeg-turbo/; s/^libtiff$/LibTIFF/' |
    while read -r library; do
        grep -q "^ .*$library" "$work/copyright" || fail "the copyright file does not name $library"
    done
# The pictures stand beside their licences, folder by folder.
for folder in "$ROOT"/tests/data/images/*/; do
    name=$(basename "$folder")
    [ "$name" = LICENSES ] || grep -q "\`$name" "$ROOT/tests/data/images/README.md" || fail "README.md does not name $name"
    [ "$name" = LICENSES ] || grep -q "tests/data/images/$name/" "$ROOT/.reuse/dep5" || fail ".reuse/dep5 does not name $name"
done
