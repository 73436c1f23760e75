// SPDX-License-Identifier: GPL-3.0-or-later
/// Size limits, turning upright, and messages of libraries.
#include "base/Translation.h"
#include "base/WorkPool.h"
#include "codecs/Codec.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace zp::codec
{
namespace
{

/// Above this many pixels a file must hold something for them. Real files of one flat colour stay below 400 pixels a
/// byte in every kind that stores colours; bombs are in the thousands.
constexpr std::int64_t kSuspiciousPixels = 100'000'000;
constexpr std::uint64_t kMaxPixelsPerByte = 1100;

std::uint64_t machineMemory()
{
    static const std::uint64_t bytes =
        std::uint64_t(std::max(0L, sysconf(_SC_PHYS_PAGES))) * std::uint64_t(std::max(0L, sysconf(_SC_PAGESIZE)));
    return bytes;
}

/// Copies every pixel of @p from, in blocks small enough for the cache, to where @p target says its row and column go.
template <class Target>
void copyTurned(ConstBitmapView from, BitmapView to, Target target)
{
    constexpr int kBlock = 32;
    const int bands = (from.height + kBlock - 1) / kBlock;
    parallelFor(bands, [&](int band) {
        const int y0 = band * kBlock, y1 = std::min(from.height, y0 + kBlock);
        for (int x0 = 0; x0 < from.width; x0 += kBlock) {
            const int x1 = std::min(from.width, x0 + kBlock);
            for (int y = y0; y < y1; ++y) {
                const std::uint32_t* row = from.row(y);
                for (int x = x0; x < x1; ++x) {
                    const PixelPoint p = target(x, y);
                    to.row(p.y)[p.x] = row[x];
                }
            }
        }
    });
}

} // namespace

bool checkSize(std::int64_t width, std::int64_t height, std::uint64_t fileBytes, std::string& error,
               std::uint64_t workBytes)
{
    if (width <= 0 || height <= 0) {
        error = translated("Codecs", "The image has no pixels.");
        return false;
    }
    const auto refuse = [&](const char* format) {
        error = filledIn(translated("Codecs", format), {std::to_string(width), std::to_string(height)});
        return false;
    };
    if (!isSensibleImageSize(width, height))
        return refuse(ZP_TEXT("Codecs", "The image is too large: %1 x %2 pixels."));
    if (width * height > kSuspiciousPixels && std::uint64_t(width * height) > kMaxPixelsPerByte * fileBytes)
        return refuse(ZP_TEXT("Codecs", "The file is far too small for the %1 x %2 pixels it claims to hold."));
    const std::uint64_t memory = machineMemory();
    if (memory && (std::uint64_t(width * height) * 4 > memory / 2 || workBytes > memory / 4))
        return refuse(ZP_TEXT("Codecs", "The image of %1 x %2 pixels does not fit this machine's memory."));
    return true;
}

std::shared_ptr<BitmapRep> turnedUpright(BitmapRep& rep, int orientation)
{
    const ConstBitmapView from = rep.view();
    const int w = from.width, h = from.height;
    auto turned = swapsSides(orientation) ? BitmapRep::createUninitialized(h, w) : BitmapRep::createUninitialized(w, h);
    if (!turned) return nullptr;
    const BitmapView to = turned->view();
    switch (orientation) {
    case 2:
        copyTurned(from, to, [=](int x, int y) { return PixelPoint{w - 1 - x, y}; });
        break;
    case 3:
        copyTurned(from, to, [=](int x, int y) { return PixelPoint{w - 1 - x, h - 1 - y}; });
        break;
    case 4:
        copyTurned(from, to, [=](int x, int y) { return PixelPoint{x, h - 1 - y}; });
        break;
    case 5:
        copyTurned(from, to, [=](int x, int y) { return PixelPoint{y, x}; });
        break;
    case 6:
        copyTurned(from, to, [=](int x, int y) { return PixelPoint{h - 1 - y, x}; });
        break;
    case 7:
        copyTurned(from, to, [=](int x, int y) { return PixelPoint{h - 1 - y, w - 1 - x}; });
        break;
    case 8:
        copyTurned(from, to, [=](int x, int y) { return PixelPoint{y, w - 1 - x}; });
        break;
    default:
        copyTurned(from, to, [=](int x, int y) { return PixelPoint{x, y}; });
        break;
    }
    turned->properties = std::move(rep.properties);
    if (swapsSides(orientation)) std::swap(turned->properties.xDpi, turned->properties.yDpi);
    return turned;
}

std::string tidyMessage(const char* message)
{
    std::string out;
    for (const char* p = message; p && *p && out.size() < 150; ++p) out += *p >= 0x20 && *p < 0x7F ? *p : ' ';
    while (!out.empty() && (out.back() == '.' || out.back() == ' ')) out.pop_back();
    return out.empty() ? translated("Codecs", "its data is damaged") : out;
}

} // namespace zp::codec
