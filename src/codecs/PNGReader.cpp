// SPDX-License-Identifier: GPL-3.0-or-later
/// PNG files straight into A, R, G, B rows: unpacked in one go into the end of the picture's own memory, from where the
/// rows are unfiltered to their places.
#include "base/Translation.h"
#include "codecs/Codec.h"
#include "codecs/ColourProfiles.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PNGInflate.h"
#include "codecs/PNGParts.h"
#include "codecs/PNGSamples.h"
#include "codecs/PNGUnfilter.h"
#include "codecs/PixelRows.h"
#include <algorithm>
#include <cstring>

namespace zp::codec
{
namespace
{

/// A chunk may unpack to this much: profiles and packets of real files are smaller, bombs are not.
constexpr std::size_t kMaxUnpackedBytes = 8 << 20;

/// The pixels of one pass over an interlaced picture, or all of them.
struct Pass {
    std::uint32_t x = 0, y = 0, stepX = 1, stepY = 1;
    std::uint32_t blockWidth = 1, blockHeight = 1; ///< what a pixel stands for until later passes come
    std::uint32_t width = 0, height = 0;           ///< in pixels of the pass

    std::size_t rowBytes(const PNGHeader& header) const { return 1 + header.rowBytes(width); }
    std::size_t bytes(const PNGHeader& header) const { return width == 0 ? 0 : rowBytes(header) * height; }
};

std::vector<Pass> passesOf(const PNGHeader& header)
{
    if (!header.interlaced) return {{.width = header.width, .height = header.height}};
    std::vector<Pass> passes = {{0, 0, 8, 8, 8, 8}, {4, 0, 8, 8, 4, 8}, {0, 4, 4, 8, 4, 4}, {2, 0, 4, 4, 2, 4},
                                {0, 2, 2, 4, 2, 2}, {1, 0, 2, 2, 1, 2}, {0, 1, 1, 2, 1, 1}};
    for (Pass& pass : passes) {
        pass.width = (header.width - std::min(header.width, pass.x) + pass.stepX - 1) / pass.stepX;
        pass.height = (header.height - std::min(header.height, pass.y) + pass.stepY - 1) / pass.stepY;
    }
    return passes;
}

/// Takes filtered rows one after the other. @return false when a row's filter is none that exists
class RowReader
{
public:
    RowReader(const PNGHeader& header, const PNGSamples& samples, std::uint32_t width)
        : mSamples(samples), mWidth(width), mBytes(header.rowBytes(width)), mStep(header.pixelBytes())
    {
        const bool straight = samples.isPlain() && samples.hasAlpha();
        const std::size_t work = straight ? (std::size_t{width} + 3) / 4 * 16 : samples.isPlain() ? 0 : mBytes;
        mRow.resize(work);
        mAbove.resize(work);
    }
    /// @param filtered may lie in the same memory as @p argb where it begins further behind than the pixels need
    /// @param above the pixels that came out for the row before, null for the first
    bool read(const std::uint8_t* filtered, const std::uint8_t* above, std::uint8_t* argb)
    {
        if (*filtered >= kPNGFilters) return false;
        const auto filter = PNGFilter(*filtered);
        if (!mSamples.isPlain()) {
            std::swap(mRow, mAbove);
            unfilterBytes(filter, filtered + 1, mAbove.data(), mRow.data(), mBytes, mStep);
            mSamples.convertRow(mRow.data(), argb, mWidth);
        } else if (!mSamples.hasAlpha()) {
            unfilterRGB(filter, filtered + 1, above, argb, mWidth);
        } else {
            std::swap(mRow, mAbove);
            unfilterRGBA(filter, filtered + 1, above ? mAbove.data() : nullptr, mRow.data(), mWidth);
            std::memcpy(argb, mRow.data(), std::size_t{mWidth} * 4);
            premultiplyRow(argb, mWidth);
        }
        return true;
    }

private:
    const PNGSamples& mSamples;
    std::size_t mWidth, mBytes;
    unsigned mStep;
    std::vector<std::uint8_t> mRow, mAbove; ///< what later rows are predicted from, where the pixels are not that
};

/// @param rows filtered, @p bytes of them. @return how many came out
int readPlainRows(const PNGHeader& header, const PNGSamples& samples, const std::uint8_t* rows, std::size_t bytes,
                  BitmapView out)
{
    const std::size_t rowBytes = 1 + header.rowBytes(header.width);
    const int whole = int(std::min<std::size_t>(bytes / rowBytes, header.height));
    RowReader reader(header, samples, header.width);
    for (int y = 0; y < whole; ++y)
        if (!reader.read(rows + rowBytes * std::size_t(y), y > 0 ? out.rowData(y - 1) : nullptr, out.rowData(y)))
            return y;
    return whole;
}

/// @param fill  whether pixels shall stand for those of passes that may not come. @return whether all came out
bool readInterlacedRows(const PNGHeader& header, const PNGSamples& samples, const std::uint8_t* rows, std::size_t bytes,
                        bool fill, BitmapView out, int& done)
{
    const std::size_t room = (std::size_t{header.width} + 3) / 4 * 16;
    std::vector<std::uint8_t> row(room), above(room);
    for (const Pass& pass : passesOf(header)) {
        if (pass.width == 0) continue;
        RowReader reader(header, samples, pass.width);
        for (std::uint32_t j = 0; j < pass.height; ++j, ++done) {
            if (bytes < pass.rowBytes(header)) return false;
            std::swap(row, above);
            if (!reader.read(rows, j > 0 ? above.data() : nullptr, row.data())) return false;
            rows += pass.rowBytes(header);
            bytes -= pass.rowBytes(header);
            const std::uint32_t y0 = pass.y + j * pass.stepY, down = fill ? pass.blockHeight : 1;
            for (std::uint32_t y = y0; y < std::min(header.height, y0 + down); ++y)
                for (std::uint32_t i = 0; i < pass.width; ++i) {
                    const std::uint32_t x0 = pass.x + i * pass.stepX, across = fill ? pass.blockWidth : 1;
                    for (std::uint32_t x = x0; x < std::min(header.width, x0 + across); ++x)
                        std::memcpy(out.pixel(int(x), int(y)), &row[std::size_t{i} * 4], 4);
                }
        }
    }
    return true;
}

std::uint32_t big32(const std::uint8_t* p)
{
    return std::uint32_t(p[0]) << 24 | std::uint32_t(p[1]) << 16 | std::uint32_t(p[2]) << 8 | p[3];
}

void keepDensity(ImageProperties& properties, Bytes density)
{
    if (density.size() != 9 || density[8] != 1) return; // pixels a metre, or only a shape
    const std::uint32_t x = big32(density.data()), y = big32(density.data() + 4);
    if (x == 0 || y == 0) return;
    // Pixels a metre are whole numbers: 72 a inch is stored as 2835, which shall read as 72 again.
    const auto perInch = [](std::uint32_t perMetre) {
        const double exact = perMetre * 0.0254, whole = double(std::uint32_t(exact + 0.5));
        return std::uint32_t(whole / 0.0254 + 0.5) == perMetre ? whole : exact;
    };
    properties.xDpi = perInch(x);
    properties.yDpi = perInch(y);
}

/// A name of 1 to 79 bytes, a zero, the way of compression (there is one), the compressed profile.
void keepPackedProfile(ImageProperties& properties, Bytes chunk, bool grey)
{
    if (chunk.empty()) return;
    const auto end = std::find(chunk.begin(), chunk.end(), std::uint8_t{0});
    const auto name = std::size_t(end - chunk.begin());
    std::optional<std::vector<std::uint8_t>> profile;
    if (name > 0 && name < 80 && chunk.size() > name + 2 && chunk[name + 1] == 0)
        profile = inflateBounded(chunk.subspan(name + 2), kMaxUnpackedBytes);
    if (profile && !profile->empty())
        keepProfile(properties, std::move(*profile), grey ? "GRAY" : "RGB ");
    else
        properties.warnings.emplace_back(translated("Codecs", "The colour profile is damaged and was left out."));
}

/// Keyword, zero, whether it is compressed, the way, language, zero, translated keyword, zero, text.
void keepXMPText(ImageProperties& properties, Bytes chunk)
{
    const auto skipText = [&chunk] {
        const auto end = std::find(chunk.begin(), chunk.end(), std::uint8_t{0});
        if (end == chunk.end()) return false;
        chunk = chunk.subspan(std::size_t(end - chunk.begin()) + 1);
        return true;
    };
    if (!skipText() || chunk.size() < 2) return;
    const bool packed = chunk[0] != 0;
    chunk = chunk.subspan(2);
    if (!skipText() || !skipText()) return;
    std::optional<std::vector<std::uint8_t>> text;
    if (packed) {
        text = inflateBounded(chunk, kMaxUnpackedBytes);
        if (!text) return;
        chunk = *text;
    }
    keepXMP(properties, {reinterpret_cast<const char*>(chunk.data()), chunk.size()});
}

/// What the file says of its colours where it has no profile; numbers are hundred-thousandths.
PNGColours coloursOf(const PNGParts& parts)
{
    const auto number = [](Bytes chunk, std::size_t i) { return big32(chunk.data() + 4 * i) / 100'000.0; };
    PNGColours colours;
    if (!parts.standard.empty()) return colours; // sRGB, whatever else stands there for older programs
    if (parts.gamma.size() == 4) colours.gamma = number(parts.gamma, 0);
    if (parts.primaries.size() == 32) {
        colours.hasPrimaries = true;
        std::size_t i = 0;
        for (auto* place : {&colours.white, &colours.red, &colours.green, &colours.blue})
            for (double& value : *place) value = number(parts.primaries, i++);
    }
    return colours;
}

void collectProperties(const PNGParts& parts, ImageProperties& properties)
{
    keepDensity(properties, parts.density);
    if (parts.exif.size() > 4) keepExif(properties, parts.exif);
    const unsigned type = parts.header.type;
    keepPackedProfile(properties, parts.profile, type == PNGHeader::Grey || type == PNGHeader::GreyAlpha);
    if (parts.profile.empty()) properties.iccProfile = profileFromPNG(coloursOf(parts));
    keepXMPText(properties, parts.xmp);
}

} // namespace

Decoded decodePNG(Bytes bytes, const ImportOptions& options)
{
    Decoded result;
    const PNGParts parts = takePNGApart(bytes, result.error);
    if (!result.error.empty()) return result;
    const PNGHeader& header = parts.header;
    std::uint64_t size = 0;
    for (const Pass& pass : passesOf(header)) size += pass.bytes(header);
    // Where a row takes more than its pixels, and where passes are woven into each other, it needs memory of its own.
    const bool inPlace = !header.interlaced && header.samples() * header.depth <= 32;
    if (!checkSize(header.width, header.height, bytes.size(), result.error, inPlace ? 0 : size)) return result;

    const int width = int(header.width), height = int(header.height);
    const auto bitmap = header.interlaced ? BitmapRep::create(width, height) // passes fill in what earlier ones left
                                          : BitmapRep::createUninitialized(width, height);
    if (!bitmap) return Decoded::failure(translated("Codecs", "There is not enough memory for this image."));
    const BitmapView out = bitmap->view();
    PixelMemory own;
    if (!inPlace && !(own = allocatePixelsUninitialized(size)))
        return Decoded::failure(translated("Codecs", "There is not enough memory for this image."));
    std::uint8_t* const rows = own ? own.get() : out.rowData(height) - size;

    std::size_t unpacked = 0;
    const PixelState state = inflatePixels(parts, rows, size, unpacked);
    if (state == PixelState::NoMemory)
        return Decoded::failure(translated("Codecs", "There is not enough memory for this image."));
    const PNGSamples samples(parts);
    int done = 0;
    bool complete = state == PixelState::Whole;
    if (header.interlaced) {
        complete &= readInterlacedRows(header, samples, rows, unpacked, unpacked < size, out, done);
    } else {
        done = readPlainRows(header, samples, rows, unpacked, out);
        complete &= done == height;
        for (int y = done; y < height; ++y) std::memset(out.rowData(y), 0, std::size_t(out.rowBytes));
    }
    if (done == 0)
        return Decoded::failure(
            state == PixelState::Corrupt
                ? translated("Codecs", "The PNG data cannot be read: a checksum of its pixels is wrong.")
                : translated("Codecs", "The PNG data cannot be read: not one row of its pixels is whole."));

    ImageProperties& properties = bitmap->properties;
    result.damaged = !complete || parts.damaged;
    if (result.damaged)
        properties.warnings.emplace_back(translated("Codecs", "The PNG data is damaged; what could be read is shown."));
    if (header.depth == 16)
        properties.warnings.emplace_back(
            translated("Codecs", "The image had %n bits a colour; it was reduced to 8.", nullptr, 16));
    result.orientation = exifOrientation(parts.exif);
    if (options.properties) collectProperties(parts, properties);
    result.bitmap = bitmap;
    return result;
}

} // namespace zp::codec
