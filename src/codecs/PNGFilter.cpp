// SPDX-License-Identifier: GPL-3.0-or-later
/// The filters as plain loops that the compiler turns into vector code.
#include "codecs/PNGFilter.h"
#include "base/Simd.h"
#include "codecs/Codec.h"
#include "codecs/PixelRows.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace zp::codec
{
namespace
{

/// Sums of the bytes taken as signed numbers, without their signs: what is small compresses well.
ZP_MULTIVERSION std::uint64_t weight(const std::uint8_t* bytes, std::size_t count)
{
    std::uint64_t total = 0;
    for (std::size_t i = 0; i < count;) {
        const std::size_t end = std::min(count, i + 4096);
        std::uint32_t sum = 0;
        for (; i < end; ++i) {
            const std::uint32_t v = bytes[i]; // as a signed byte, its size
            sum += v < 128 ? v : 256 - v;
        }
        total += sum;
    }
    return total;
}

ZP_MULTIVERSION void subtract(const std::uint8_t* row, const std::uint8_t* other, std::uint8_t* out, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) out[i] = std::uint8_t(row[i] - other[i]);
}

ZP_MULTIVERSION void paeth(const std::uint8_t* row, const std::uint8_t* left, const std::uint8_t* above,
                           const std::uint8_t* corner, std::uint8_t* out, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const std::int16_t a = left[i], b = above[i], c = corner[i];
        const auto pa = std::int16_t(b > c ? b - c : c - b), pb = std::int16_t(a > c ? a - c : c - a);
        const auto sum = std::int16_t(a + b - 2 * c);
        const auto pc = std::int16_t(sum < 0 ? -sum : sum);
        const std::int16_t nearest = pb <= pc ? b : c;
        const std::int16_t predicted = pa <= pb && pa <= pc ? a : nearest;
        out[i] = std::uint8_t(row[i] - predicted);
    }
}

void toRGB(const std::uint8_t* argb, std::uint8_t* rgb, int count)
{
    for (int x = 0; x < count; ++x, argb += 4, rgb += 3) {
        rgb[0] = argb[1];
        rgb[1] = argb[2];
        rgb[2] = argb[3];
    }
}

} // namespace

RowFilter::RowFilter(int width, unsigned samples)
    : mWidth(width),
      mSamples(samples),
      mRow(samples * (std::size_t(width) + 1)),
      mAbove(mRow.size()),
      mCandidate(mRow.size()),
      mBest(mRow.size())
{
}

void RowFilter::unpack(ConstBitmapView pixels, int y)
{
    if (mSamples == 3)
        toRGB(pixels.rowData(y), mRow.data() + 3, mWidth);
    else
        unpremultiplyRowToRGBA(pixels.rowData(y), mRow.data() + 4, std::size_t(mWidth));
}

void RowFilter::filterRow(ConstBitmapView pixels, int y, bool fresh, std::uint8_t* out)
{
    if (fresh) {
        if (y > 0)
            unpack(pixels, y - 1);
        else
            std::fill(mRow.begin(), mRow.end(), std::uint8_t{0});
    }
    std::swap(mRow, mAbove);
    unpack(pixels, y);
    const std::size_t count = std::size_t(mWidth) * mSamples;
    const std::uint8_t *row = mRow.data() + mSamples, *above = mAbove.data() + mSamples;

    enum : std::uint8_t { kSub = 1, kUp = 2, kPaeth = 4 };
    subtract(row, mRow.data(), mBest.data(), count);
    out[0] = kSub;
    std::uint64_t least = weight(mBest.data(), count);
    const auto consider = [&](std::uint8_t filter) {
        const std::uint64_t w = weight(mCandidate.data(), count);
        if (w >= least) return;
        least = w;
        out[0] = filter;
        std::swap(mBest, mCandidate);
    };
    if (y > 0) {
        subtract(row, above, mCandidate.data(), count);
        consider(kUp);
        if (least > 0) {
            paeth(row, mRow.data(), above, mAbove.data(), mCandidate.data(), count);
            consider(kPaeth);
        }
    }
    std::memcpy(out + 1, mBest.data(), count);
}

} // namespace zp::codec
