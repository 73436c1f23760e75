#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Every text of the sources has a translation in every language.
set -u
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$ROOT"/translations/zelpane_*.ts "$work"
[ "$(ls "$work" | wc -l)" -ge 6 ] || { echo "languages are missing in translations/"; exit 1; }
lupdate=$(sed -n 's/^LUPDATE:[A-Z]*=//p' "$BUILD/CMakeCache.txt")
"$ROOT/translations/update.sh" "$lupdate" "$work"/*.ts || exit 1
status=0
for now in "$work"/*.ts; do
    kept=$ROOT/translations/$(basename "$now")
    cmp -s "$now" "$kept" || { echo "translations/$(basename "$now") is not up to date with the sources"; status=1; }
    missing=$(grep -c 'type="unfinished"' "$now")
    [ "$missing" = 0 ] && continue
    echo "translations/$(basename "$now") lacks $missing translation(s):"
    grep -B1 'type="unfinished"' "$now" | sed -n 's/^ *<source>\(.*\)<\/source>/    \1/p' | head -20
    status=1
done
[ $status = 0 ] || echo 'To mend it: "ninja -C build texts" takes the new texts into translations/*.ts, marked as unfinished;' \
    'write the translation into each and take the mark type="unfinished" away.'
exit $status
