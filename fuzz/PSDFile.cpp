// SPDX-License-Identifier: GPL-3.0-or-later
/// Photoshop files with a palette, which a reader of our own takes.
#include "ReadBack.h"
#include "codecs/Codec.h"

ZP_FUZZ(PSDFile, "psd", bytes)
{
    if (zp::codec::isIndexedPSD(bytes)) zp::fuzz::readBack(bytes);
}
