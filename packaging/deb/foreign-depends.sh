#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# foreign-depends.sh PROGRAM: the packages that a program of another architecture depends on, as control files list them. dpkg-shlibdeps
# knows installed libraries alone, and those of another machine are only unpacked: the packages of this machine that bring libraries of
# the same names say it, because Debian calls packages alike everywhere. The versions are those this machine would ask for.
set -euo pipefail
native=$(dpkg --print-architecture)
readelf -d "$1" | sed -n 's/.*(NEEDED).*\[\(.*\)\]$/\1/p' | while read -r library; do
    case $library in ld-linux*) continue ;; esac # comes with the C library
    # "libtiff.so.6" is listed as "libtiff 6 libtiff6 (>= 4.5.0)"
    found=$(awk -v name="${library%%.so.*}" -v version="${library#*.so.}" \
        '$1 == name && $2 == version { sub(/^[^ ]+ [^ ]+ /, ""); print; exit }' /var/lib/dpkg/info/*:"$native".shlibs)
    [ -n "$found" ] || { echo "no installed package brings $library" >&2 && exit 1; }
    echo "$found"
done | sort -u | paste -sd, | sed 's/,/, /g'
