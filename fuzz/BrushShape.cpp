// SPDX-License-Identifier: GPL-3.0-or-later
/// Brush tips of any shape, size and colour, stamped anywhere.
#include "Fuzz.h"
#include "tools/BrushTip.h"
#include <cstring>

ZP_FUZZ(BrushShape, "", bytes)
{
    using namespace zp;
    constexpr std::size_t kHead = 12;
    if (bytes.size() < kHead) return;
    const int width = bytes[0] % 40, height = bytes[1] % 40;
    std::vector<std::uint8_t> shape(std::size_t(width) * std::size_t(height) * 4);
    const fuzz::Bytes rest = bytes.subspan(kHead);
    for (std::size_t i = 0; i < shape.size() && !rest.empty(); ++i) shape[i] = rest[i % rest.size()];
    float size = 0; // any number at all, within what a tip's memory is spent on
    std::memcpy(&size, &bytes[2], sizeof size);
    if (size > 300) size = float(bytes[2]);
    const auto share = [&bytes](std::size_t at) { return float(bytes[at]) / 255; };
    const BrushTip tip({shape.data(), width, height, std::ptrdiff_t{4} * width}, size,
                       {share(6), share(7), share(8), 1});
    const auto within = [](ConstBitmapView pixels) {
        for (int y = 0; y < pixels.height; ++y)
            for (int x = 0; x < pixels.width; ++x) {
                const std::uint8_t* p = pixels.pixel(x, y);
                fuzz::require(p[1] <= p[0] && p[2] <= p[0] && p[3] <= p[0], "colour within alpha");
            }
    };
    within(tip.pixels());
    constexpr int kSide = 64;
    std::vector<std::uint8_t> canvas(kSide * kSide * 4);
    const BitmapView pixels{canvas.data(), kSide, kSide, std::ptrdiff_t{4} * kSide};
    const BrushStamp stamp(tip, share(9));
    for (int i = 0; i < 3; ++i) stamp.drawAt(pixels, int(bytes[10]) - 128 + i * 7, int(bytes[11]) - 128 + i * 3);
    within(pixels);
}
