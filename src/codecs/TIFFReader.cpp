// SPDX-License-Identifier: GPL-3.0-or-later
/// TIFF files into A, R, G, B rows: plain layouts by strips and tiles on all cores, the rest by libtiff's own
/// conversion.
#include "base/WorkPool.h"
#include "codecs/Codec.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/TIFFSamples.h"
#include "codecs/TIFFSource.h"
#include <algorithm>
#include <atomic>
#include <cstring>

namespace zp::codec
{
namespace
{

constexpr std::uint64_t kMaxChunks = 16'000'000;
constexpr std::uint64_t kSmallChunk = 64 << 20; // a strip or tile that is always allowed, whatever the picture's size

std::string checkLayout(const TIFFLayout& layout)
{
    if (layout.samples < 1 || layout.bits < 1) return "The TIFF structure is damaged.";
    if (layout.samples > 64 || layout.bits > 64)
        return "TIFF pictures with so many or so large samples cannot be read.";
    if (!layout.codecKnown) return "The TIFF file is compressed in a way that cannot be read.";
    if (layout.chunkWidth <= 0 || layout.chunkHeight <= 0 || layout.chunkRowBytes <= 0)
        return "The TIFF structure is damaged: its strips or tiles have no size.";
    const auto picture = std::uint64_t(layout.width) * std::uint64_t(layout.height) * layout.samples * layout.bits / 8;
    const std::uint64_t chunk = std::uint64_t(layout.chunkRowBytes) * std::uint64_t(layout.chunkHeight);
    if (chunk > kSmallChunk && chunk / 4 > picture)
        return "The TIFF structure is damaged: its strips or tiles are too large.";
    if (layout.chunkCount() > kMaxChunks) return "The TIFF structure is damaged: it has too many strips or tiles.";
    return {};
}

struct ChunkFaults {
    std::uint64_t damaged = 0, empty = 0; ///< the second are among the first: nothing of them could be decoded
};

/// Strips or tiles straight into the rows.
ChunkFaults decodeChunks(Bytes bytes, const TIFFLayout& layout, BitmapView out)
{
    const auto across = std::uint64_t((layout.width + layout.chunkWidth - 1) / layout.chunkWidth);
    const auto down = std::uint64_t((layout.height + layout.chunkHeight - 1) / layout.chunkHeight);
    const unsigned planes = layout.separatePlanes ? layout.neededSamples() : 1;
    std::atomic<std::uint64_t> failed{0}, empty{0};

    const auto decodeBand = [&](int first, int last) {
        TIFFSource source(bytes); // a handle of its own: libtiff's are not to be shared by threads
        TIFFLayout own;
        if (!source.isOpen() || !own.read(source.handle())) {
            failed += std::uint64_t(last - first) * across;
            empty += std::uint64_t(last - first) * across;
            return;
        }
        const std::size_t chunkBytes = std::size_t(layout.chunkRowBytes) * std::size_t(layout.chunkHeight);
        const auto buffer = allocatePixelsUninitialized(chunkBytes * planes);
        if (!buffer) {
            failed += std::uint64_t(last - first) * across;
            empty += std::uint64_t(last - first) * across;
            return;
        }
        SampleConverter converter(layout);
        for (std::uint64_t row = std::uint64_t(first); row < std::uint64_t(last); ++row) {
            for (std::uint64_t column = 0; column < across; ++column) {
                const int x = int(column) * layout.chunkWidth, y = int(row) * layout.chunkHeight;
                const int width = std::min(layout.chunkWidth, layout.width - x);
                const int height = std::min(layout.chunkHeight, layout.height - y);
                bool whole = true;
                for (unsigned plane = 0; plane < planes; ++plane) {
                    const std::uint64_t index = (plane * down + row) * across + column;
                    std::uint8_t* target = buffer.get() + plane * chunkBytes;
                    std::memset(target, 0, chunkBytes); // a damaged chunk is decoded as far as it goes
                    const std::int64_t got = source.readChunk(index, target, std::int64_t(chunkBytes), layout.tiled);
                    whole &= got >= layout.chunkRowBytes * height;
                }
                if (!whole) {
                    ++failed;
                    const std::uint8_t* from = buffer.get();
                    if (std::all_of(from, from + chunkBytes * planes, [](std::uint8_t b) { return b == 0; })) {
                        ++empty;
                        for (int i = 0; i < height; ++i) std::memset(out.pixel(x, y + i), 0, std::size_t(width) * 4);
                        continue;
                    }
                }
                for (int i = 0; i < height; ++i)
                    converter.convertRow(buffer.get() + std::size_t(i) * std::size_t(layout.chunkRowBytes), chunkBytes,
                                         out.pixel(x, y + i), width);
            }
        }
    };
    // Few large pieces: each opens the file's structure again.
    const int rows = int(down);
    if (rows < 2 || std::int64_t(layout.width) * layout.height < 500'000)
        decodeBand(0, rows);
    else
        parallelBands(rows, std::max(1, rows / (2 * workerCount())), decodeBand);
    return {failed, empty};
}

/// libtiff's own conversion, for colours that are not red, green, blue, grey, palette or inks.
bool decodeByLibrary(TIFFSource& source, const TIFFLayout& layout, BitmapView out, std::string& error)
{
    char message[1024] = {};
    TIFFRGBAImage image{};
    if (!TIFFRGBAImageOK(source.handle(), message) || !TIFFRGBAImageBegin(&image, source.handle(), 0, message)) {
        error = "The TIFF data cannot be read: " + tidyMessage(message) + ".";
        return false;
    }
    image.orientation = image.req_orientation = ORIENTATION_TOPLEFT; // turning is done once for all kinds of file
    auto raster = allocatePixels(std::size_t(layout.width) * std::size_t(layout.height) * 4);
    const bool done = raster && TIFFRGBAImageGet(&image, reinterpret_cast<std::uint32_t*>(raster.get()),
                                                 std::uint32_t(layout.width), std::uint32_t(layout.height));
    TIFFRGBAImageEnd(&image);
    if (!raster) {
        error = "There is not enough memory for this picture.";
        return false;
    }
    for (int y = 0; y < layout.height; ++y) {
        const std::uint8_t* from = raster.get() + std::size_t(y) * std::size_t(layout.width) * 4;
        std::uint8_t* to = out.rowData(y);
        for (int x = 0; x < layout.width; ++x, from += 4, to += 4) {
            const std::uint8_t a = from[3];
            to[0] = a;
            for (int k = 0; k < 3; ++k) to[k + 1] = std::min(from[k], a);
        }
    }
    if (!done) error = "The TIFF data is damaged: " + tidyMessage(source.message()) + ".";
    return done;
}

void collectProperties(TIFFSource& source, const TIFFLayout& layout, Bytes bytes, ImageProperties& properties)
{
    TIFF* tiff = source.handle();
    float x = 0, y = 0;
    std::uint16_t unit = RESUNIT_INCH;
    TIFFGetFieldDefaulted(tiff, TIFFTAG_RESOLUTIONUNIT, &unit);
    if (TIFFGetField(tiff, TIFFTAG_XRESOLUTION, &x) && TIFFGetField(tiff, TIFFTAG_YRESOLUTION, &y) && x > 0 && y > 0 &&
        x < 1e6f && y < 1e6f && (unit == RESUNIT_INCH || unit == RESUNIT_CENTIMETER)) {
        const double perInch = unit == RESUNIT_CENTIMETER ? 2.54 : 1;
        properties.xDpi = double(x) * perInch;
        properties.yDpi = double(y) * perInch;
    }
    std::uint32_t count = 0;
    void* data = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_ICCPROFILE, &count, &data) && data) {
        const auto* p = static_cast<const std::uint8_t*>(data);
        const bool inks = layout.photometric == PHOTOMETRIC_SEPARATED, lab = layout.photometric == PHOTOMETRIC_CIELAB;
        keepProfile(properties, {p, p + count}, layout.isGrey() ? "GRAY" : "RGB ",
                    inks  ? "CMYK"
                    : lab ? "Lab "
                          : nullptr);
    }
    if (TIFFGetField(tiff, TIFFTAG_XMLPACKET, &count, &data) && data)
        keepXMP(properties, {static_cast<const char*>(data), count});
    keepExif(properties, bytes);
}

} // namespace

Decoded decodeTIFF(Bytes bytes, const ImportOptions& options)
{
    TIFFSource source(bytes);
    if (!source.isOpen())
        return Decoded::failure("The TIFF data cannot be read: " + tidyMessage(source.message()) + ".");
    TIFFLayout layout;
    if (!layout.read(source.handle())) return Decoded::failure("The TIFF structure is damaged.");
    Decoded result;
    if (!checkSize(layout.width64, layout.height64, bytes.size(), result.error)) return result;
    if (result.error = checkLayout(layout); !result.error.empty()) return result;

    auto bitmap = BitmapRep::createUninitialized(layout.width, layout.height);
    if (!bitmap) return Decoded::failure("There is not enough memory for this picture.");
    ImageProperties& properties = bitmap->properties;
    if (SampleConverter::handles(layout)) {
        const ChunkFaults faults = decodeChunks(bytes, layout, bitmap->view());
        if (faults.empty >= layout.chunkCount() / (layout.separatePlanes ? layout.samples : 1)) {
            std::vector<std::uint8_t> first(std::size_t(layout.chunkRowBytes) * std::size_t(layout.chunkHeight));
            source.readChunk(0, first.data(), std::int64_t(first.size()), layout.tiled); // for its message
            return Decoded::failure("The TIFF data cannot be read: " + tidyMessage(source.message()) + ".");
        }
        result.damaged = faults.damaged > 0;
        if (result.damaged) properties.warnings.emplace_back("The TIFF data is damaged; what could be read is shown.");
    } else {
        std::string error;
        if (!decodeByLibrary(source, layout, bitmap->view(), error)) return Decoded::failure(error);
    }
    if (layout.bits > 8) {
        properties.warnings.emplace_back("The picture had " + std::to_string(layout.bits) +
                                         " bits a colour; it was reduced to 8.");
    }
    result.orientation = layout.orientation;
    if (options.properties) collectProperties(source, layout, bytes, properties);
    result.bitmap = std::move(bitmap);
    return result;
}

} // namespace zp::codec
