#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the texts of the sources into .ts files.    update.sh LUPDATE FILE.ts...
set -eu
lupdate=$1
shift
cd "$(dirname "$0")/.."
"$lupdate" -silent -locations none -no-obsolete -I src \
    -tr-function-alias QT_TRANSLATE_NOOP+=ZP_TEXT,translate+=translated src -ts "$@"
