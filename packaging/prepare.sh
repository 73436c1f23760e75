# SPDX-License-Identifier: GPL-3.0-or-later
# Shared by ./run and ./test: the packages that are missing, then the build. To be sourced, with $root set.
# Everything it says goes to standard error.

install_missing_packages() {
    command -v dpkg-query >/dev/null 2>&1 || return 0 # not a Debian machine: its owner sees to the libraries
    local package missing=()
    for package in $(grep -v '^#' "$root/packaging/packages.txt"); do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "zelpane: installing ${missing[*]}" >&2
    local root_command=()
    [ "$(id -u)" -eq 0 ] || root_command=(sudo)
    # Another package manager at work is waited for; a fresh machine has no package lists yet.
    "${root_command[@]}" apt-get -o DPkg::Lock::Timeout=300 update >&2
    "${root_command[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 install -y \
        --no-install-recommends "${missing[@]}" >&2
}

# build PRESET [TARGET...]: configures once, then builds what changed.
build() {
    local preset=$1
    shift
    local folder
    case $preset in release) folder=$root/build ;; *) folder=$root/build-$preset ;; esac
    [ -f "$folder/build.ninja" ] || (cd "$root" && cmake --preset "$preset") >&2
    # The lines of progress matter to nobody unless they fail.
    ninja -C "$folder" "$@" >&2
}
