// SPDX-License-Identifier: GPL-3.0-or-later
/// Packed tiles of exact steps: any bytes are unpacked or refused, any pixels come back.
#include "Fuzz.h"
#include "undo/TileCodec.h"
#include <cstring>

ZP_FUZZ(PackedTile, "", bytes)
{
    using namespace zp;
    if (bytes.size() < 2) return;
    const int width = 1 + bytes[0] % 128, height = 1 + bytes[1] % 128;
    const fuzz::Bytes rest = bytes.subspan(2);
    const std::size_t count = std::size_t(width) * std::size_t(height) * 4;
    std::vector<std::uint8_t> pixels(count), back(count);
    const BitmapView view{pixels.data(), width, height, std::ptrdiff_t{4} * width};
    const BitmapView viewOfBack{back.data(), width, height, std::ptrdiff_t{4} * width};
    static TileCodec codec;
    codec.unpack(rest, view);
    for (std::size_t i = 0; i < count; ++i) pixels[i] = rest.empty() ? 0 : rest[i % rest.size()];
    const auto packed = codec.pack(view);
    const std::vector<std::uint8_t> kept(packed.begin(), packed.end());
    fuzz::require(codec.unpack(kept, viewOfBack), "a packed tile can be unpacked");
    fuzz::require(pixels == back, "and is the same");
}
