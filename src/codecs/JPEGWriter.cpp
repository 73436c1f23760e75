// SPDX-License-Identifier: GPL-3.0-or-later
/// JPEG files from A, R, G, B rows: strips coded on all cores and joined into one file.
#include "base/PixelMemory.h"
#include "base/WorkPool.h"
#include "codecs/Codec.h"
#include "codecs/CodecWriters.h"
#include "codecs/JPEGStrips.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PixelRows.h"
#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>

namespace zp::codec
{
namespace
{

constexpr std::size_t kMaxMarkerBytes = 65533;
/// A strip's least size: the coder's set-up vanishes in it, and a file has so few restart markers that they cost
/// nothing.
constexpr int kStripPixels = 1 << 19;

/// Strips by the picture's size alone, so that the same picture gives the same file on every machine.
int blockRowsPerStrip(int width, int height)
{
    const int all = (height + jpeg::kBlockRow - 1) / jpeg::kBlockRow;
    return std::clamp(kStripPixels / (jpeg::kBlockRow * width), 1, all);
}

std::vector<std::uint8_t> withPrefix(const char* prefix, std::size_t length, Bytes bytes)
{
    if (bytes.empty() || length + bytes.size() > kMaxMarkerBytes) return {};
    std::vector<std::uint8_t> out;
    out.reserve(length + bytes.size());
    out.insert(out.end(), prefix, prefix + length);
    out.insert(out.end(), bytes.begin(), bytes.end());
    return out;
}

/// A marker holds 64 kB: what is too long for it loses the maker's note first, then everything but the comment.
std::vector<std::uint8_t> exifMarker(const ImageProperties& properties, int width, int height)
{
    ExifBlock block = exifForSaving(properties, width, height);
    auto marker = withPrefix("Exif\0", 6, serialiseExif(block));
    if (!marker.empty() || block.isEmpty()) return marker;
    ExifBlock::erase(block.photo, tag::MakerNote);
    marker = withPrefix("Exif\0", 6, serialiseExif(block));
    if (!marker.empty()) return marker;
    ImageProperties bare;
    bare.userComment = properties.userComment;
    return withPrefix("Exif\0", 6, serialiseExif(exifForSaving(bare, width, height)));
}

/// What stands between the JFIF segment and the picture.
class Segments
{
public:
    Segments(const ImageProperties& properties, int width, int height)
    {
        add(1, exifMarker(properties, width, height));
        static constexpr char kXMP[] = "http://ns.adobe.com/xap/1.0/";
        const std::string packet = xmpForSaving(properties);
        add(1, withPrefix(kXMP, sizeof kXMP, {reinterpret_cast<const std::uint8_t*>(packet.data()), packet.size()}));
        addProfile(properties.iccProfile);
        static constexpr char kResources[] = "Photoshop 3.0";
        add(13, withPrefix(kResources, sizeof kResources, iptcAsResource(properties.iptc)));
        for (const std::string& comment : properties.comments)
            if (comment.size() <= kMaxMarkerBytes)
                mSegments.emplace_back(JPEG_COM, std::vector<std::uint8_t>(comment.begin(), comment.end()));
    }
    std::vector<std::pair<int, Bytes>> views() const
    {
        std::vector<std::pair<int, Bytes>> all;
        for (const auto& [marker, bytes] : mSegments) all.emplace_back(marker, bytes);
        return all;
    }

private:
    void add(int number, std::vector<std::uint8_t> bytes)
    {
        if (!bytes.empty()) mSegments.emplace_back(JPEG_APP0 + number, std::move(bytes));
    }
    /// In numbered pieces, of which there can be 255.
    void addProfile(Bytes profile)
    {
        constexpr std::size_t kPiece = kMaxMarkerBytes - 14;
        const std::size_t count = (profile.size() + kPiece - 1) / kPiece;
        if (count > 255) return;
        for (std::size_t i = 0; i < count; ++i) {
            char prefix[] = "ICC_PROFILE\0\0"; // and the zero at the end of the text: number and count
            prefix[12] = char(i + 1);
            prefix[13] = char(count);
            const std::size_t from = i * kPiece;
            add(2, withPrefix(prefix, 14, profile.subspan(from, std::min(kPiece, profile.size() - from))));
        }
    }
    std::vector<std::pair<int, std::vector<std::uint8_t>>> mSegments;
};

/// Rows of a strip as they are when they are opaque, else composed over the background into @p memory.
ConstBitmapView composed(ConstBitmapView rows, std::uint32_t background, PixelMemory& memory)
{
    if (isOpaque(rows)) return rows;
    memory = allocatePixelsUninitialized(std::size_t(rows.rowBytes) * std::size_t(rows.height));
    if (!memory) throw std::bad_alloc();
    const BitmapView to{memory.get(), rows.width, rows.height, rows.rowBytes};
    for (int y = 0; y < rows.height; ++y)
        composeRow(rows.rowData(y), to.rowData(y), std::size_t(rows.width), background);
    return to;
}

} // namespace

std::vector<std::uint8_t> writeJPEG(ConstBitmapView pixels, const ImageProperties& properties, int quality,
                                    const std::optional<Color>& background)
{
    const auto byte = [](float v) { return std::uint32_t(std::lround(std::clamp(v, 0.0f, 1.0f) * 255)); };
    const std::uint32_t behind =
        background ? 0xFF | byte(background->red) << 8 | byte(background->green) << 16 | byte(background->blue) << 24
                   : 0xFF;
    const Segments segments(properties, pixels.width, pixels.height);
    jpeg::StripEncoder encoder;
    if (!encoder.prepare({.width = pixels.width,
                          .height = pixels.height,
                          .quality = quality,
                          .stripRows = blockRowsPerStrip(pixels.width, pixels.height),
                          .xDpi = properties.xDpi,
                          .yDpi = properties.yDpi},
                         segments.views()))
        return {};

    std::vector<std::vector<std::uint8_t>> strips(std::size_t(encoder.format().strips()));
    parallelFor(int(strips.size()), [&](int i) {
        PixelMemory memory;
        const ConstBitmapView rows = composed(pixels.part(encoder.format().rowsOf(i)), behind, memory);
        encoder.encode(rows, strips[std::size_t(i)]);
    });

    std::size_t size = encoder.head().size();
    for (const auto& strip : strips) size += strip.size() + 2;
    std::vector<std::uint8_t> file;
    file.reserve(size);
    file.insert(file.end(), encoder.head().begin(), encoder.head().end());
    for (std::size_t i = 0; i < strips.size(); ++i) {
        file.insert(file.end(), strips[i].begin(), strips[i].end());
        file.push_back(jpeg::kMark);
        file.push_back(i + 1 < strips.size() ? std::uint8_t(jpeg::kRestart0 + i % jpeg::kRestartCycle)
                                             : jpeg::kEndOfImage);
    }
    return file;
}

} // namespace zp::codec
