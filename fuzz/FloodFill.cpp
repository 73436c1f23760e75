// SPDX-License-Identifier: GPL-3.0-or-later
/// Flood fill and magic wand, against the column-wise scan that defines them.
#include "tools/FloodFill.h"
#include "Fuzz.h"
#include "tools/MagicWand.h"
#include "tools/TileRegion.h"

namespace
{

struct Field {
    int width, height;
    std::vector<std::uint32_t> words;
    std::vector<std::uint8_t> walls;

    zp::BitmapView pixels()
    {
        return {reinterpret_cast<std::uint8_t*>(words.data()), width, height, std::ptrdiff_t{4} * width};
    }
    zp::MaskView mask() { return {walls.data(), width, height, width}; }
};

bool same(const zp::ColumnFillResult& a, const zp::ColumnFillResult& b)
{
    return a.completed == b.completed && a.painted == b.painted;
}

} // namespace

ZP_FUZZ(FloodFill, "", bytes)
{
    using namespace zp;
    constexpr std::size_t kHead = 7;
    if (bytes.size() <= kHead) return;
    Field field{1 + bytes[0] % 200, 1 + bytes[1] % 100, {}, {}};
    const std::size_t count = std::size_t(field.width) * std::size_t(field.height);
    field.words.resize(count);
    field.walls.resize(count);
    const fuzz::Bytes cells = bytes.subspan(kHead);
    for (std::size_t i = 0; i < count; ++i) {
        // Two bits of colour and one of wall a pixel, the bytes over and over but shifted from turn to turn.
        const unsigned cell = unsigned(cells[i % cells.size()]) >> (i / cells.size() % 6);
        const std::uint32_t level = (cell & 3) * 40;
        field.words[i] = 0xFF | level << 8 | (255 - level) << 16 | level << 24;
        field.walls[i] = (cell & 0x1C) == 0x1C ? 255 : 0;
    }
    const PixelPoint seed{bytes[2] % field.width, bytes[3] % field.height};
    const int tolerance = bytes[4] % 129;
    const std::uint32_t fill = bytes[5] % 2 ? 0x0000FFFF : field.words[count / 2];
    const bool walls = bytes[6] % 2;
    // A small stack runs full in the midst of large pictures.
    std::vector<std::uint32_t> slots(bytes[6] < 64 ? 16 : 200'000), slotsOfTwin(slots.size());
    FillStack stack(slots), stackOfTwin(slotsOfTwin);
    Field twin = field;
    const ConstMaskView none;
    const auto a = floodFill(field.pixels(), walls ? ConstMaskView(field.mask()) : none, seed, fill, tolerance, stack,
                             sharedTileRegion());
    const auto b =
        floodFillColumns(twin.pixels(), walls ? ConstMaskView(twin.mask()) : none, seed, fill, tolerance, stackOfTwin);
    fuzz::require(field.words == twin.words, "the fill paints what the scan paints");
    fuzz::require(same(a, b), "and says so");
    const std::uint32_t target = field.words[bytes[5] % count];
    const auto c = magicWand(field.pixels(), field.mask(), false, seed, target, tolerance, stack, sharedTileRegion());
    const auto d = magicWandColumns(twin.pixels(), twin.mask(), seed, target, tolerance, stackOfTwin);
    fuzz::require(field.walls == twin.walls, "the wand marks what the scan marks");
    fuzz::require(same(c, d), "and says so");
}
