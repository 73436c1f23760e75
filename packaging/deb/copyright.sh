#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The package's copyright file on standard output: what .reuse/dep5 says of every file, and the text of each licence it names.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
sed -e '/^License: /s/ AND / and /g' "$root/.reuse/dep5"
for file in "$root"/LICENSES/*.txt; do
    name=$(basename "$file" .txt)
    echo
    echo "License: $name"
    case $name in
    GPL-3.0-or-later) common=GPL-3 ;;
    Apache-2.0 | CC0-1.0) common=$name ;;
    *) common= ;;
    esac
    if [ -n "$common" ]; then
        echo " On Debian systems its text is in /usr/share/common-licenses/$common."
    else
        sed -e 's/[[:space:]]*$//' -e 's/^$/./' -e 's/^/ /' "$file"
    fi
done
