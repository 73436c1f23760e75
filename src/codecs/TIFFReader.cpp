// SPDX-License-Identifier: GPL-3.0-or-later
/// TIFF files into A, R, G, B rows: plain layouts by strips and tiles on all cores, the rest by libtiff's own
/// conversion.
#include "base/Translation.h"
#include "base/WorkPool.h"
#include "codecs/Codec.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PNGUnfilter.h"
#include "codecs/TIFFLZW.h"
#include "codecs/TIFFSamples.h"
#include "codecs/TIFFSource.h"
#include "codecs/TIFFTags.h"
#include <algorithm>
#include <atomic>
#include <cstring>
#include <memory>

namespace zp::codec
{
namespace
{

constexpr std::uint64_t kMaxChunks = 16'000'000;
constexpr std::uint64_t kSmallChunk = 64 << 20; // a strip or tile that is always allowed, whatever the picture's size

std::string checkLayout(const TIFFLayout& layout)
{
    if (layout.samples < 1 || layout.bits < 1) return translated("Codecs", "The TIFF structure is damaged.");
    if (layout.samples > 64 || layout.bits > 64)
        return translated("Codecs", "TIFF images with so many or so large samples cannot be read.");
    if (!layout.codecKnown) return translated("Codecs", "The TIFF file is compressed in a way that cannot be read.");
    if (layout.chunkWidth <= 0 || layout.chunkHeight <= 0 || layout.chunkRowBytes <= 0)
        return translated("Codecs", "The TIFF structure is damaged: its strips or tiles have no size.");
    const auto picture = std::uint64_t(layout.width) * std::uint64_t(layout.height) * layout.samples * layout.bits / 8;
    const std::uint64_t chunk = std::uint64_t(layout.chunkRowBytes) * std::uint64_t(layout.chunkHeight);
    if (chunk > kSmallChunk && chunk / 4 > picture)
        return translated("Codecs", "The TIFF structure is damaged: its strips or tiles are too large.");
    if (layout.chunkCount() > kMaxChunks)
        return translated("Codecs", "The TIFF structure is damaged: it has too many strips or tiles.");
    return {};
}

struct ChunkFaults {
    std::uint64_t damaged = 0, empty = 0; ///< the second are among the first: nothing of them could be decoded
};

/// Decodes strips or tiles one after the other; one object a thread.
class ChunkReader
{
public:
    ChunkReader(Bytes bytes, const TIFFLayout& layout)
        : mSource(bytes), // a handle of its own: libtiff's are not to be shared by threads
          mLayout(layout),
          mConverter(layout),
          mPlanes(layout.separatePlanes ? layout.neededSamples() : 1),
          mChunkBytes(std::size_t(layout.chunkRowBytes) * std::size_t(layout.chunkHeight)),
          mBuffer(allocatePixelsUninitialized(mChunkBytes * mPlanes + LZWDecoder::kSlack))
    {
        TIFFLayout own;
        mReady = mSource.isOpen() && own.read(mSource.handle()) && mBuffer;
    }
    bool isReady() const { return mReady; }

    /// The chunk at @p row and @p column to its place. @return whether it was whole; @p empty is set when nothing of it
    /// could be decoded
    bool read(std::uint64_t row, std::uint64_t column, BitmapView out, bool& empty)
    {
        const TIFFLayout& l = mLayout;
        const auto across = std::uint64_t((l.width + l.chunkWidth - 1) / l.chunkWidth);
        const auto down = std::uint64_t((l.height + l.chunkHeight - 1) / l.chunkHeight);
        const int x = int(column) * l.chunkWidth, y = int(row) * l.chunkHeight;
        const int width = std::min(l.chunkWidth, l.width - x), height = std::min(l.chunkHeight, l.height - y);
        const std::size_t wanted = std::size_t(l.chunkRowBytes) * std::size_t(height);
        bool whole = true, differences = false;
        for (unsigned plane = 0; plane < mPlanes; ++plane) {
            const std::uint64_t index = (plane * down + row) * across + column;
            whole &= unpack(index, mBuffer.get() + plane * mChunkBytes, wanted, differences);
        }
        const std::uint8_t* samples = mBuffer.get();
        if (!whole) {
            empty = std::all_of(samples, samples + mChunkBytes * mPlanes, [](std::uint8_t b) { return b == 0; });
            if (empty) {
                for (int i = 0; i < height; ++i) std::memset(out.pixel(x, y + i), 0, std::size_t(width) * 4);
                return false;
            }
        }
        for (int i = 0; i < height; ++i, samples += l.chunkRowBytes) {
            if (differences)
                mConverter.convertDifferences(samples, out.pixel(x, y + i), width);
            else
                mConverter.convertRow(samples, mChunkBytes, out.pixel(x, y + i), width);
        }
        return whole;
    }

private:
    /// One strip or tile as samples, zeros where it is damaged. @param differences  set when each is still less the one
    /// of the pixel before. @return whether it was whole
    bool unpack(std::uint64_t index, std::uint8_t* to, std::size_t wanted, bool& differences)
    {
        const Bytes raw = mLayout.isPlainLZW() ? mSource.rawChunk(index) : Bytes();
        if (raw.empty() || !LZWDecoder::handles(raw)) {
            std::memset(to, 0, mChunkBytes); // a damaged chunk is decoded as far as it goes
            return mSource.readChunk(index, to, std::int64_t(mChunkBytes), mLayout.tiled) >= std::int64_t(wanted);
        }
        const std::size_t got = mLZW.decode(raw, to, mChunkBytes);
        std::memset(to + got, 0, mChunkBytes - got);
        if (mLayout.predictor == PREDICTOR_HORIZONTAL) {
            differences = mConverter.isPlain();
            const std::size_t rowBytes = std::size_t(mLayout.chunkRowBytes);
            const unsigned step = mLayout.separatePlanes ? 1 : mLayout.samples;
            if (!differences)
                for (std::uint8_t* row = to; row < to + mChunkBytes; row += rowBytes)
                    unfilterBytes(PNGFilter::Sub, row, row, row, rowBytes, step);
        }
        return got >= wanted;
    }

    TIFFSource mSource;
    const TIFFLayout& mLayout;
    SampleConverter mConverter;
    LZWDecoder mLZW;
    unsigned mPlanes;
    std::size_t mChunkBytes;
    PixelMemory mBuffer;
    bool mReady = false;
};

/// Strips or tiles straight into the rows.
ChunkFaults decodeChunks(Bytes bytes, const TIFFLayout& layout, BitmapView out)
{
    const auto across = std::uint64_t((layout.width + layout.chunkWidth - 1) / layout.chunkWidth);
    const int down = (layout.height + layout.chunkHeight - 1) / layout.chunkHeight;
    std::atomic<std::uint64_t> damaged{0}, empty{0};
    const auto decodeBand = [&](int first, int last) {
        const auto reader = std::make_unique<ChunkReader>(bytes, layout);
        for (int row = first; row < last; ++row)
            for (std::uint64_t column = 0; column < across; ++column) {
                bool nothing = !reader->isReady();
                if (!nothing && reader->read(std::uint64_t(row), column, out, nothing)) continue;
                ++damaged;
                if (nothing) ++empty;
            }
    };
    // Few large pieces: each opens the file's structure again.
    if (down < 2 || std::int64_t(layout.width) * layout.height < 500'000)
        decodeBand(0, down);
    else
        parallelBands(down, std::max(1, down / (2 * workerCount())), decodeBand);
    return {damaged, empty};
}

/// libtiff's own conversion, for colours that are not red, green, blue, grey, palette or inks.
bool decodeByLibrary(TIFFSource& source, const TIFFLayout& layout, BitmapView out, std::string& error)
{
    char message[1024] = {};
    TIFFRGBAImage image{};
    if (!TIFFRGBAImageOK(source.handle(), message) || !TIFFRGBAImageBegin(&image, source.handle(), 0, message)) {
        error = filledIn(translated("Codecs", "The TIFF data cannot be read: %1."), {tidyMessage(message)});
        return false;
    }
    image.orientation = image.req_orientation = ORIENTATION_TOPLEFT; // turning is done once for all kinds of file
    auto raster = allocatePixels(std::size_t(layout.width) * std::size_t(layout.height) * 4);
    const bool done = raster && TIFFRGBAImageGet(&image, reinterpret_cast<std::uint32_t*>(raster.get()),
                                                 std::uint32_t(layout.width), std::uint32_t(layout.height));
    TIFFRGBAImageEnd(&image);
    if (!raster) {
        error = translated("Codecs", "There is not enough memory for this image.");
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
    if (!done) error = filledIn(translated("Codecs", "The TIFF data is damaged: %1."), {tidyMessage(source.message())});
    return done;
}

/// By the profile of four inks that stand side by side; null when there is none, or another kind of samples.
std::unique_ptr<InkConverter> inksOf(TIFFSource& source, const TIFFLayout& layout)
{
    const bool plain = layout.photometric == PHOTOMETRIC_SEPARATED && layout.inkSet == INKSET_CMYK &&
                       layout.samples == 4 && layout.bits == 8 && layout.format == SAMPLEFORMAT_UINT &&
                       !layout.separatePlanes;
    std::uint32_t count = 0;
    void* data = nullptr;
    if (!plain || !TIFFGetField(source.handle(), TIFFTAG_ICCPROFILE, &count, &data) || !data) return nullptr;
    auto inks = std::make_unique<InkConverter>(Bytes(static_cast<const std::uint8_t*>(data), count), false);
    return *inks ? std::move(inks) : nullptr;
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
    if (layout.inks) {
        properties.iccProfile = sRGBProfile();
    } else if (TIFFGetField(tiff, TIFFTAG_ICCPROFILE, &count, &data) && data) {
        const auto* p = static_cast<const std::uint8_t*>(data);
        const bool inks = layout.photometric == PHOTOMETRIC_SEPARATED, lab = layout.photometric == PHOTOMETRIC_CIELAB;
        keepProfile(properties, {p, p + count}, layout.isGrey() ? "GRAY" : "RGB ",
                    inks  ? "CMYK"
                    : lab ? "Lab "
                          : nullptr);
    }
    if (TIFFGetField(tiff, TIFFTAG_XMLPACKET, &count, &data) && data)
        keepXMP(properties, {static_cast<const char*>(data), count});
    // A field of 32-bit numbers for the library, for no reason but habit: the bytes are as they stand.
    const ByteReader file(bytes, !bytes.empty() && bytes[0] == 'M');
    const TagList::Values iptc = TagList::firstOf(file).values(tag::IPTC);
    if (iptc.count > 0 && iptc.at < bytes.size() && iptc.bytes() <= bytes.size() - iptc.at)
        keepIPTC(properties, bytes.subspan(iptc.at, iptc.bytes()));
    keepExif(properties, bytes);
}

} // namespace

Decoded decodeTIFF(Bytes bytes, const ImportOptions& options)
{
    TIFFSource source(bytes);
    if (!source.isOpen())
        return Decoded::failure(
            filledIn(translated("Codecs", "The TIFF data cannot be read: %1."), {tidyMessage(source.message())}));
    TIFFLayout layout;
    if (!layout.read(source.handle())) return Decoded::failure(translated("Codecs", "The TIFF structure is damaged."));
    Decoded result;
    if (!checkSize(layout.width64, layout.height64, bytes.size(), result.error)) return result;
    if (result.error = checkLayout(layout); !result.error.empty()) return result;

    auto bitmap = BitmapRep::createUninitialized(layout.width, layout.height);
    if (!bitmap) return Decoded::failure(translated("Codecs", "There is not enough memory for this image."));
    const std::unique_ptr<InkConverter> inks = options.properties ? inksOf(source, layout) : nullptr;
    layout.inks = inks.get();
    ImageProperties& properties = bitmap->properties;
    if (SampleConverter::handles(layout)) {
        const ChunkFaults faults = decodeChunks(bytes, layout, bitmap->view());
        if (faults.empty >= layout.chunkCount() / (layout.separatePlanes ? layout.samples : 1)) {
            std::vector<std::uint8_t> first(std::size_t(layout.chunkRowBytes) * std::size_t(layout.chunkHeight));
            source.readChunk(0, first.data(), std::int64_t(first.size()), layout.tiled); // for its message
            return Decoded::failure(
                filledIn(translated("Codecs", "The TIFF data cannot be read: %1."), {tidyMessage(source.message())}));
        }
        result.damaged = faults.damaged > 0;
        if (result.damaged)
            properties.warnings.emplace_back(
                translated("Codecs", "The TIFF data is damaged; what could be read is shown."));
    } else {
        std::string error;
        if (!decodeByLibrary(source, layout, bitmap->view(), error)) return Decoded::failure(error);
    }
    if (layout.bits > 8) {
        properties.warnings.emplace_back(
            translated("Codecs", "The image had %n bits a colour; it was reduced to 8.", nullptr, int(layout.bits)));
    }
    result.orientation = layout.orientation;
    if (options.properties) collectProperties(source, layout, bytes, properties);
    result.bitmap = std::move(bitmap);
    return result;
}

} // namespace zp::codec
