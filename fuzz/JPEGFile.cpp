// SPDX-License-Identifier: GPL-3.0-or-later
/// JPEG files, whole and reduced.
#include "ReadBack.h"

ZP_FUZZ(JPEGFile, "jpg jpeg", bytes)
{
    if (bytes.size() < 2 || bytes[0] != 0xFF || bytes[1] != 0xD8) return;
    zp::fuzz::readBack(bytes);
    const zp::ImportedImage reduced = zp::importImage(bytes, {.atLeastWidth = 5, .atLeastHeight = 5});
    zp::fuzz::require(bool(reduced.bitmap) == reduced.error.empty(), "a picture or a sentence");
}
