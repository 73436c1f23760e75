// SPDX-License-Identifier: GPL-3.0-or-later
/// Halving an image until nothing is left to halve.
#include "drawing/ImageLevels.h"
#include "base/WorkPool.h"
#include "drawing/Halving.h"
#include <algorithm>
#include <array>

namespace zp
{

namespace
{

/// Pixels of a half below which another worker is not worth waking.
constexpr int kPixelsPerBand = 100'000;

/// One pixel of the half whose two by two pixels do not all exist: those beyond the border are its last ones.
std::uint32_t meanAtBorder(ConstBitmapView image, int x, int y)
{
    std::array<std::uint32_t, 4> square;
    for (int i = 0; i < 4; ++i)
        square[std::size_t(i)] =
            image.row(std::min(2 * y + i / 2, image.height - 1))[std::min(2 * x + i % 2, image.width - 1)];
    std::uint32_t mean = 0;
    averageSquares({reinterpret_cast<const std::uint8_t*>(square.data()), 2, 2, 8}, 0, 0, 1, 1, &mean);
    return mean;
}

std::shared_ptr<const BitmapRep> halved(ConstBitmapView image)
{
    auto half = BitmapRep::createUninitialized((image.width + 1) / 2, (image.height + 1) / 2);
    if (!half) return nullptr;
    const BitmapView to = half->view();
    parallelBands(to.height, kPixelsPerBand / to.width + 1, [&](int first, int last) {
        for (int y = first; y < last; ++y) {
            const int whole = 2 * y + 1 < image.height ? image.width / 2 : 0;
            if (whole > 0) averageSquares(image, 0, 2 * y, whole, 1, to.row(y));
            for (int x = whole; x < to.width; ++x) to.row(y)[x] = meanAtBorder(image, x, y);
        }
    });
    return half;
}

} // namespace

ImageLevels::ImageLevels(std::shared_ptr<const BitmapRep> image)
{
    mLevels.push_back(std::move(image));
    for (ConstBitmapView last = level(0); last.width > 1 && last.height > 1; last = level(count() - 1)) {
        auto next = halved(last);
        if (!next) return;
        mLevels.push_back(std::move(next));
    }
}

} // namespace zp
