// SPDX-License-Identifier: GPL-3.0-or-later
/// Photoshop files whose pixels are numbers of a palette's colours, which the reader of the other kinds refuses. Such
/// files have no layers: the picture stands at their end, plain or packed.
#include "base/Translation.h"
#include "codecs/Codec.h"
#include "codecs/MetadataBlocks.h"
#include <algorithm>
#include <array>
#include <cstring>

namespace zp::codec
{
namespace
{

constexpr std::size_t kHeadBytes = 26, kPaletteBytes = 768;
constexpr unsigned kIndexed = 2;
constexpr unsigned kResolution = 1005, kProfile = 1039, kTransparentColour = 1047, kExif = 1058, kXMP = 1060;

/// Numbers and pieces in the order of the file, highest byte first; behind its end all is 0 and empty.
class Walk
{
public:
    explicit Walk(Bytes bytes) : mLeft(bytes) {}
    std::uint32_t number(std::size_t bytes)
    {
        std::uint32_t value = 0;
        const Bytes piece = take(bytes);
        for (const std::uint8_t byte : piece) value = value << 8 | byte;
        return piece.size() == bytes ? value : 0;
    }
    Bytes take(std::size_t count)
    {
        const Bytes piece = mLeft.first(std::min(count, mLeft.size()));
        mLeft = mLeft.subspan(piece.size());
        return piece;
    }
    bool atEnd() const { return mLeft.empty(); }

private:
    Bytes mLeft;
};

/// What is said of the picture beside its pixels. @return the palette's transparent colour, or -1
int readResources(Bytes resources, bool wanted, ImageProperties& properties)
{
    int transparent = -1;
    Walk walk(resources);
    while (!walk.atEnd()) {
        walk.take(4); // "8BIM"
        const unsigned id = walk.number(2);
        const std::size_t name = walk.number(1);
        walk.take(name + (name % 2 == 0)); // name and its length are an even number of bytes together
        const std::size_t size = walk.number(4);
        const Bytes data = walk.take(size);
        walk.take(size % 2);
        if (id == kTransparentColour && data.size() >= 2) transparent = data[0] << 8 | data[1];
        if (!wanted) continue;
        if (id == kResolution && data.size() >= 16) {
            Walk fields(data);
            properties.xDpi = fields.number(4) / 65536.0;
            fields.take(4);
            properties.yDpi = fields.number(4) / 65536.0;
        } else if (id == kProfile) {
            keepProfile(properties, {data.begin(), data.end()}, "RGB ", nullptr);
        } else if (id == kExif && data.size() > 8) {
            keepExif(properties, {data.begin(), data.end()});
        } else if (id == kXMP && !data.empty()) {
            keepXMP(properties, {reinterpret_cast<const char*>(data.data()), data.size()});
        }
    }
    return transparent;
}

/// One row of Apple's run lengths. @return whether it was filled
bool unpackRow(Bytes packed, std::uint8_t* row, std::size_t width)
{
    Walk walk(packed);
    std::size_t at = 0;
    while (at < width && !walk.atEnd()) {
        const unsigned code = walk.number(1);
        if (code == 128) continue;
        const std::size_t count = std::min<std::size_t>(code < 128 ? code + 1 : 257 - code, width - at);
        if (code < 128) {
            const Bytes plain = walk.take(count);
            std::copy(plain.begin(), plain.end(), row + at);
            if (plain.size() < count) return false;
        } else {
            if (walk.atEnd()) return false;
            std::memset(row + at, int(walk.number(1)), count);
        }
        at += count;
    }
    return at == width;
}

} // namespace

bool isIndexedPSD(Bytes bytes)
{
    Walk walk(bytes);
    walk.take(4);
    const unsigned version = walk.number(2);
    walk.take(6 + 2 + 4 + 4);
    const unsigned depth = walk.number(2), mode = walk.number(2);
    return bytes.size() > kHeadBytes && version == 1 && depth == 8 && mode == kIndexed;
}

Decoded decodeIndexedPSD(Bytes bytes, const ImportOptions& options)
{
    Walk walk(bytes);
    walk.take(14);
    const std::uint32_t height = walk.number(4), width = walk.number(4);
    walk.take(4);
    Decoded result;
    if (!checkSize(width, height, bytes.size(), result.error)) return result;
    const Bytes palette = walk.take(walk.number(4));
    if (palette.size() < kPaletteBytes)
        return Decoded::failure(translated("Codecs", "The PSD data cannot be read: its palette is damaged."));
    result.bitmap = BitmapRep::create(int(width), int(height));
    if (!result.bitmap) return Decoded::failure(translated("Codecs", "There is not enough memory for this image."));
    const int transparent = readResources(walk.take(walk.number(4)), options.properties, result.bitmap->properties);
    walk.take(walk.number(4)); // layers and masks

    std::array<std::uint32_t, 256> colours{};
    for (unsigned i = 0; i < 256; ++i)
        if (int(i) != transparent)
            colours[i] = 0xFFu | std::uint32_t(palette[i]) << 8 | std::uint32_t(palette[256 + i]) << 16 |
                         std::uint32_t(palette[512 + i]) << 24;

    const bool packed = walk.number(2) == 1;
    std::vector<std::size_t> lengths(packed ? height : 0);
    for (std::size_t& length : lengths) length = walk.number(2);
    std::vector<std::uint8_t> row(width);
    const BitmapView out = result.bitmap->view();
    for (int y = 0; y < out.height && !result.damaged; ++y) {
        const Bytes data = walk.take(packed ? lengths[std::size_t(y)] : width);
        if (packed)
            result.damaged = !unpackRow(data, row.data(), width);
        else
            result.damaged = data.size() < width;
        if (result.damaged) break;
        const std::uint8_t* numbers = packed ? row.data() : data.data();
        for (std::uint32_t x = 0; x < width; ++x) out.row(y)[x] = colours[numbers[x]];
    }
    if (result.damaged)
        result.bitmap->properties.warnings.emplace_back(
            translated("Codecs", "The PSD data is damaged; what could be read is shown."));
    return result;
}

} // namespace zp::codec
