// SPDX-License-Identifier: GPL-3.0-or-later
/// The run lengths of alpha bytes: any file is read without harm, any alpha comes back.
#include "Fuzz.h"
#include "base/BitmapRep.h"
#include "undo/AlphaRLE.h"

ZP_FUZZ(AlphaRunLengths, "", bytes)
{
    using namespace zp;
    if (bytes.size() < 2) return;
    const int width = 1 + bytes[0] % 40, height = 1 + bytes[1] % 20;
    const auto any = BitmapRep::create(width, height), made = BitmapRep::create(width, height),
               back = BitmapRep::create(width, height);
    decodeAlphaRLE(bytes.subspan(2), any->view());
    std::size_t at = 2;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) made->view().pixel(x, y)[0] = bytes.size() > 2 ? bytes[at++ % bytes.size()] : 0;
    decodeAlphaRLE(encodeAlphaRLE(std::as_const(*made).view()), back->view());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            fuzz::require(back->view().pixel(x, y)[0] == made->view().pixel(x, y)[0], "alpha comes back");
}
