#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The libraries of packages.txt for 64-bit ARM, in build-arm64/root, for the preset "arm64". Packages are only unpacked: nothing of
# them runs, and this machine's own packages stay as they are. A root that is there already is left alone.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/packaging/prepare.sh"
to=$root/build-arm64/root
[ ! -f "$to/complete" ] || exit 0
install_missing_packages arm64
suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
libraries=$(packages_of run test | grep -E -- '-dev$|^qt6-qpa-plugins$' | grep -vx dpkg-dev | paste -sd,)
rm -rf "$to"
mkdir -p "$(dirname "$to")"
mmdebstrap --quiet --variant=extract --arch=arm64 --include="libc6-dev,libstdc++-12-dev,$libraries" "$suite" "$to" >&2
# Links by whole paths lead out of the root: the linker would find nothing there and take a static archive instead.
find "$to/usr/lib" "$to/lib" -type l -lname '/*' | while read -r link; do ln -sfr "$to$(readlink "$link")" "$link"; done
touch "$to/complete"
