// SPDX-License-Identifier: GPL-3.0-or-later
/// Reading a snapshot's colours straight into a picture, bands of strips side by side; and any other JPEG plainly.
#include "base/BitmapRep.h"
#include "base/PixelMemory.h"
#include "base/WorkPool.h"
#include "codecs/LibJPEG.h"
#include "undo/JPEGMarkers.h"
#include "undo/SnapshotJPEG.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <new>

namespace zp
{

namespace
{

/// What the file's head says, as far as cutting it needs.
struct Layout {
    int width = 0, height = 0;
    std::size_t frame = 0; ///< where the frame segment begins
    std::size_t data = 0;  ///< where entropy-coded data begin
    std::optional<jpeg::Segment> seal;
    bool cuttable = false; ///< baseline, 4:2:0, one scan, a restart marker behind every block row
    int strips() const { return (height + kStripRows - 1) / kStripRows; }
};

std::optional<Layout> readLayout(std::span<const std::uint8_t> file)
{
    Layout layout;
    int interval = 0;
    bool baseline = false;
    jpeg::SegmentWalk walk(file);
    while (const auto segment = walk.next()) {
        const std::uint8_t* const body = file.data() + segment->begin + 4;
        const std::size_t size = segment->end - segment->begin - 4;
        if (!layout.seal && jpeg::isSeal(file, *segment)) layout.seal = segment;
        if (segment->marker == jpeg::kRestartInterval && size == 2) interval = jpeg::read16(body);
        const bool frame = segment->marker >= 0xC0 && segment->marker <= 0xCF &&
                           segment->marker != jpeg::kHuffmanTables && segment->marker != 0xC8 &&
                           segment->marker != jpeg::kArithmetic;
        if (frame && size >= 6) {
            layout.frame = segment->begin;
            layout.height = jpeg::read16(body + 1);
            layout.width = jpeg::read16(body + 3);
            constexpr std::array<std::uint8_t, 3> sampling = {0x22, 0x11, 0x11};
            baseline = (segment->marker == jpeg::kFrameBaseline || segment->marker == jpeg::kFrameExtended) &&
                       body[0] == 8 && body[5] == 3 && size == 15;
            for (std::size_t i = 0; baseline && i < 3; ++i) baseline = body[6 + 3 * i + 1] == sampling[i];
        }
        if (segment->marker == jpeg::kStartOfScan) {
            if (!layout.frame) return std::nullopt;
            layout.data = segment->end;
            const bool marked = interval == (layout.width + kStripRows - 1) / kStripRows;
            layout.cuttable = baseline && size >= 1 && body[0] == 3 && (marked || layout.strips() == 1);
        }
    }
    if (!layout.data || !isSensibleImageSize(layout.width, layout.height)) return std::nullopt;
    return layout;
}

bool sealHolds(std::span<const std::uint8_t> file, const jpeg::Segment& seal)
{
    return fingerprint(file.subspan(seal.end)) == jpeg::sealedFingerprint(file, seal);
}

constexpr std::array<std::uint8_t, 2> kEnd = {jpeg::kMark, jpeg::kEndOfImage};

/// Decodes rows of one JPEG: the first @p skip are dropped, the following ones go into @p into (as many as it has), the
/// rest is not decoded. Owns nothing that a jump could leak. @return false when the bytes are damaged or no such JPEG
bool decodeRows(jpeg_decompress_struct* info, jpeg::Errors& errors, jpeg::Input& input, int width, int height, int skip,
                BitmapView into, std::uint8_t* scratchRow)
{
    info->err = &errors;
    if (setjmp(errors.jump)) return false;
    jpeg_create_decompress(info);
    info->src = &input;
    jpeg_read_header(info, TRUE);
    if (int(info->image_width) != width || int(info->image_height) != height) errors.fail("another size");
    info->out_color_space = JCS_EXT_ARGB;
    jpeg_start_decompress(info);
    const int last = skip + into.height;
    while (int(info->output_scanline) < last) {
        JSAMPROW rows[kStripRows];
        const int y = int(info->output_scanline);
        const int count = std::min(kStripRows, last - y);
        for (int i = 0; i < count; ++i) rows[i] = y + i < skip ? scratchRow : into.rowData(y + i - skip);
        jpeg_read_scanlines(info, rows, JDIMENSION(count));
    }
    return errors.num_warnings == 0;
}
bool decodeRows(jpeg::Input& input, int width, int height, int skip, BitmapView into, std::uint8_t* scratchRow)
{
    jpeg_decompress_struct info{};
    jpeg::Errors errors;
    const bool sound = decodeRows(&info, errors, input, width, height, skip, into, scratchRow);
    jpeg_destroy_decompress(&info);
    return sound;
}

/// Where each strip's data begin, and behind the last one the end marker; nothing when the markers are not as expected.
std::optional<std::vector<std::size_t>> findStrips(std::span<const std::uint8_t> file, const Layout& layout)
{
    std::vector<std::size_t> starts;
    starts.reserve(std::size_t(layout.strips()) + 1);
    std::size_t at = layout.data;
    for (int strip = 0; strip < layout.strips(); ++strip) {
        starts.push_back(at);
        const std::size_t end = jpeg::findMarker(file, at);
        const bool lastOne = strip + 1 == layout.strips();
        const int expected = lastOne ? int(jpeg::kEndOfImage) : jpeg::kRestart0 + strip % jpeg::kRestartCycle;
        if (end == file.size() || file[end + 1] != expected) return std::nullopt;
        at = end + 2;
    }
    starts.push_back(at);
    return starts;
}

/// Bands of strips on all cores. A band begins with a strip that only serves its neighbour: colour is interpolated
/// between the strips, so each band decodes one strip more on either side, and every pixel comes out as in one go.
bool decodeInBands(std::span<const std::uint8_t> file, const Layout& layout, const std::vector<std::size_t>& starts,
                   BitmapView pixels)
{
    const int strips = layout.strips();
    // At least four cycles to a band keeps the double work at the borders under 7 %.
    const int cycles = (strips + jpeg::kRestartCycle - 1) / jpeg::kRestartCycle;
    const int bands = workerCount() == 1 ? 1 : std::clamp(cycles / 4, 1, workerCount() * 3);
    std::atomic<bool> sound{true};
    parallelFor(bands, [&](int band) {
        // Context strips stand on multiples of the cycle, where the marker behind them is number 0.
        const auto context = [&](int b) { return int(std::int64_t{cycles} * b / bands) * jpeg::kRestartCycle; };
        const int from = context(band);
        const int first = band ? from + 1 : 0;
        const int last = band + 1 < bands ? context(band + 1) + 1 : strips;
        const int to = std::min(last + 1, strips);
        if (first >= last) return;

        std::vector<std::uint8_t> header(file.begin(), file.begin() + std::ptrdiff_t(layout.data));
        const int height = std::min(to * kStripRows, layout.height) - from * kStripRows;
        jpeg::write16(header.data() + layout.frame + jpeg::kFrameHeightOffset, height);
        const std::size_t begin = starts[std::size_t(from)];
        jpeg::Input source(header, file.subspan(begin, starts[std::size_t(to)] - 2 - begin), kEnd);
        std::vector<std::uint8_t> scratchRow(first > from ? std::size_t(pixels.width) * 4 + 64 : 0);
        const PixelBox rows{0, first * kStripRows, pixels.width, std::min(last * kStripRows, pixels.height)};
        if (!decodeRows(source, layout.width, height, (first - from) * kStripRows, pixels.part(rows),
                        scratchRow.data()))
            sound = false;
    });
    return sound;
}

bool decodePlainly(std::span<const std::uint8_t> file, const Layout& layout, BitmapView pixels)
{
    const std::ptrdiff_t rowBytes = BitmapRep::rowBytesForWidth(pixels.width);
    const PixelMemory beside = allocatePixelsUninitialized(std::size_t(rowBytes) * std::size_t(pixels.height));
    if (!beside) return false;
    const BitmapView decoded{beside.get(), pixels.width, pixels.height, rowBytes};
    jpeg::Input source(file, kEnd);
    if (!decodeRows(source, layout.width, layout.height, 0, decoded, nullptr)) return false;
    for (int y = 0; y < pixels.height; ++y)
        std::memcpy(pixels.rowData(y), decoded.rowData(y), std::size_t(pixels.width) * 4);
    return true;
}

} // namespace

std::optional<SnapshotJPEGSize> inspectSnapshotJPEG(std::span<const std::uint8_t> file)
{
    const auto layout = readLayout(file);
    if (!layout || (layout->seal && !sealHolds(file, *layout->seal))) return std::nullopt;
    return SnapshotJPEGSize{layout->width, layout->height};
}

bool decodeSnapshotJPEG(std::span<const std::uint8_t> file, BitmapView pixels)
try {
    const auto layout = readLayout(file);
    if (!layout || pixels.isEmpty() || pixels.width != layout->width || pixels.height != layout->height) return false;
    if (layout->seal) {
        if (!sealHolds(file, *layout->seal)) return false;
        if (layout->cuttable)
            if (const auto starts = findStrips(file, *layout)) return decodeInBands(file, *layout, *starts, pixels);
    }
    return decodePlainly(file, *layout, pixels);
} catch (const std::bad_alloc&) {
    return false;
}

} // namespace zp
