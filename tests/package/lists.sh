# SPDX-License-Identifier: GPL-3.0-or-later
# The list of packages has its five parts, the version is one, and a second start installs nothing.
. "$ROOT/tests/support/script.sh"
root=$ROOT
. "$ROOT/packaging/prepare.sh"
parts=$(sed -n 's/^## \([a-z0-9]*\).*/\1/p' "$ROOT/packaging/packages.txt" | tr '\n' ' ')
[ "$parts" = "run test arm64 fuzz bench " ] || fail "the parts are: $parts"
all=$(packages_of run test long arm64 fuzz bench)
[ -z "$(sort <<<"$all" | uniq -d)" ] || fail "listed twice: $(sort <<<"$all" | uniq -d)"
! packages_of run | grep -qE 'opencv|benchmark|gtest|slurm' || fail "./run would install what only tests and benchmarks need"
! packages_of run test | grep -qE 'opencv|benchmark' || fail "./test would install what only benchmarks need"
# A name that the package system does not know as installed would be asked for again at every start.
if command -v dpkg-query >/dev/null; then
    # whoever builds by hand may have come here without them
    for package in $(packages_of run); do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || fail "$package is not installed"
    done
fi

version=$("$ZELPANE" --version | sed -n 's/^Zelpane //p')
grep -q "^## $version (" "$ROOT/CHANGELOG.md" || fail "CHANGELOG.md says nothing of $version"
newest=$(grep -m1 -oE '^## [0-9.]+ ' "$ROOT/CHANGELOG.md" | tr -dc '0-9.')
[ "$newest" = "$version" ] || fail "the newest version of CHANGELOG.md is $newest, the program's is $version"
date=$(sed -n "s/^## $version (\(.*\))/\1/p" "$ROOT/CHANGELOG.md")
grep -q "<release version=\"$version\" date=\"$date\">" "$ROOT"/packaging/*.metainfo.xml || fail "the metainfo file has another release"
