#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Shared by ./run, ./test and ./package: the packages that are missing, then the build. To be sourced, with $root set; or to be
# called with parts of the list (run, test, long, arm64, fuzz, bench) to install those. Everything it says goes to standard error.

# packages_of PART...: the packages listed under those headings. A package with marks behind its name belongs to these parts instead.
packages_of() {
    awk -v wanted=" $* " '
        /^## / { part = $2; next }
        /^#/ || NF == 0 { next }
        NF == 1 { marks = part }
        NF > 1 { marks = $0; sub(/^[^ ]+ /, "", marks) }
        { count = split(marks, mark, " ") }
        { for (i = 1; i <= count; i++) if (index(wanted, " " mark[i] " ")) { print $1; next } }' "$root/packaging/packages.txt"
}

# install_missing_packages PART...
install_missing_packages() {
    command -v dpkg-query >/dev/null 2>&1 || return 0 # not a Debian machine: its owner sees to the libraries
    local wanted missing
    wanted=$(packages_of "$@" | sort -u)
    missing=$(comm -23 <(echo "$wanted") \
        <(dpkg-query -W -f='${Package} ${db:Status-Status}\n' $wanted 2>/dev/null | sed -n 's/ installed$//p' | sort -u))
    [ -n "$missing" ] || return 0
    echo "zelpane: installing" $missing >&2
    local root_command=()
    [ "$(id -u)" -eq 0 ] || root_command=(sudo)
    # Another package manager at work is waited for; a fresh machine has no package lists yet.
    "${root_command[@]}" apt-get -o DPkg::Lock::Timeout=300 update >&2
    "${root_command[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 install -y \
        --no-install-recommends $missing >&2
}

# folder_of PRESET: where it builds.
folder_of() {
    case $1 in release) echo "$root/build" ;; *) echo "$root/build-$1" ;; esac
}

# build PRESET [TARGET...]: configures once, then builds what changed.
build() {
    local preset=$1 folder
    shift
    folder=$(folder_of "$preset")
    [ -f "$folder/build.ninja" ] || (cd "$root" && cmake --preset "$preset") >&2
    # The lines of progress matter to nobody unless they fail.
    ninja -C "$folder" "$@" >&2
}

if [ "${BASH_SOURCE[0]}" = "$0" ]; then
    set -euo pipefail
    root=$(cd "$(dirname "$0")/.." && pwd)
    [ $# -gt 0 ] || { echo "usage: $0 PART... (run, test, long, arm64, fuzz, bench)" >&2 && exit 2; }
    install_missing_packages "$@"
fi
