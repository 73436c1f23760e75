// SPDX-License-Identifier: GPL-3.0-or-later
/// TIFF files.
#include "ReadBack.h"

ZP_FUZZ(TIFFFile, "tif tiff", bytes)
{
    if (bytes.size() < 4 || (bytes[0] != 'I' && bytes[0] != 'M')) return;
    zp::fuzz::readBack(bytes);
}
