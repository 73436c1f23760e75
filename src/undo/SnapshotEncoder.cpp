// SPDX-License-Identifier: GPL-3.0-or-later
/// Compressing the strips of a picture that changed, each by itself, and joining them into one JPEG file.
#include "base/WorkPool.h"
#include "undo/JPEGMarkers.h"
#include "undo/SnapshotJPEG.h"
#include "undo/StripCoder.h"
#include <algorithm>
#include <atomic>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>
#include <memory>
#include <new>

namespace zp
{

namespace
{

/// Strips that go through the library in one call: enough to make its set-up (20 microseconds) vanish, few enough that
/// the cores end together.
constexpr int kGroup = 8;

struct Failure {
    jpeg_error_mgr base;
    std::jmp_buf way;
};

[[noreturn]] void fail(j_common_ptr info) { std::longjmp(reinterpret_cast<Failure*>(info->err)->way, 1); }
void keepQuiet(j_common_ptr, int) {}
void printNothing(j_common_ptr) {}

/// Compressed bytes in memory that outlives one call: growing it touches fresh pages only once.
struct Output {
    jpeg_destination_mgr base;
    std::uint8_t* bytes = nullptr;
    std::size_t capacity = 0, size = 0;

    Output() = default;
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output() { std::free(bytes); }
};

bool grow(Output& output, std::size_t capacity)
{
    void* larger = std::realloc(output.bytes, capacity);
    if (!larger) return false;
    output.bytes = static_cast<std::uint8_t*>(larger);
    output.capacity = capacity;
    return true;
}

void beginOutput(j_compress_ptr info)
{
    auto& output = *reinterpret_cast<Output*>(info->dest);
    if (!output.capacity && !grow(output, std::size_t{256} * 1024)) fail(reinterpret_cast<j_common_ptr>(info));
    output.base.next_output_byte = output.bytes;
    output.base.free_in_buffer = output.capacity;
}

boolean moreOutput(j_compress_ptr info)
{
    auto& output = *reinterpret_cast<Output*>(info->dest);
    const std::size_t full = output.capacity;
    if (!grow(output, full * 2)) fail(reinterpret_cast<j_common_ptr>(info));
    output.base.next_output_byte = output.bytes + full;
    output.base.free_in_buffer = output.capacity - full;
    return TRUE;
}

void endOutput(j_compress_ptr info)
{
    auto& output = *reinterpret_cast<Output*>(info->dest);
    output.size = output.capacity - output.base.free_in_buffer;
}

/// One complete JPEG of @p pixels with a restart marker behind every block row. Holds nothing that a jump could leak.
bool compress(ConstBitmapView pixels, Output& output)
{
    jpeg_compress_struct info;
    Failure failure;
    info.err = jpeg_std_error(&failure.base);
    failure.base.error_exit = fail;
    failure.base.emit_message = keepQuiet;
    failure.base.output_message = printNothing;
    if (setjmp(failure.way)) {
        jpeg_destroy_compress(&info);
        return false;
    }
    jpeg_create_compress(&info);
    output.base.init_destination = beginOutput;
    output.base.empty_output_buffer = moreOutput;
    output.base.term_destination = endOutput;
    info.dest = &output.base;
    info.image_width = JDIMENSION(pixels.width);
    info.image_height = JDIMENSION(pixels.height);
    info.input_components = 4;
    info.in_color_space = JCS_EXT_XRGB;
    jpeg_set_defaults(&info); // 4:2:0 sampling and the standard Huffman tables are the library's own defaults
    jpeg_set_quality(&info, kSnapshotQuality, TRUE);
    info.restart_in_rows = 1;
    jpeg_start_compress(&info, TRUE);
    while (info.next_scanline < info.image_height) {
        JSAMPROW rows[kStripRows];
        const int y = int(info.next_scanline);
        const int count = std::min(kStripRows, pixels.height - y);
        // The library's interface is not const, but it only reads these rows.
        for (int i = 0; i < count; ++i) rows[i] = const_cast<std::uint8_t*>(pixels.rowData(y + i));
        jpeg_write_scanlines(&info, rows, JDIMENSION(count));
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    return true;
}

ConstBitmapView stripRows(ConstBitmapView pixels, int first, int last)
{
    const int top = first * kStripRows;
    return pixels.part({0, top, pixels.width, std::min(last * kStripRows, pixels.height)});
}

/// Writes the picture's height over the strips' in a header of segments.
bool setFrameHeight(std::vector<std::uint8_t>& header, int height)
{
    jpeg::SegmentWalk walk(header);
    while (const auto segment = walk.next())
        if (segment->marker == jpeg::kFrameBaseline) {
            jpeg::write16(header.data() + segment->begin + jpeg::kFrameHeightOffset, height);
            return true;
        }
    return false;
}

} // namespace

void SnapshotEncoder::forget()
{
    mStrips.clear();
    mHeader.clear();
    mWidth = mHeight = 0;
}

bool SnapshotEncoder::prepare(ConstBitmapView pixels)
{
    // The library writes the header, over a strip that need not be coded again for it.
    Output output;
    if (!compress(stripRows(pixels, 0, 1), output)) return false;
    const std::span<const std::uint8_t> file(output.bytes, output.size);
    std::size_t end = 0;
    jpeg::SegmentWalk walk(file);
    while (const auto segment = walk.next()) end = segment->end;
    mHeader.assign(file.begin(), file.begin() + std::ptrdiff_t(end));
    if (!mCoder) mCoder = std::make_shared<StripCoder>();
    mVectors = useVectors && StripCoder::available() && mCoder->readTables(mHeader);
    return setFrameHeight(mHeader, pixels.height);
}

bool SnapshotEncoder::encodeStrips(ConstBitmapView pixels, int first, int last)
{
    if (mVectors)
        for (; first < last && (first + 1) * kStripRows <= pixels.height; ++first)
            mCoder->encode(stripRows(pixels, first, first + 1), mStrips[std::size_t(first)].bytes);
    return first == last || encodeStripsByLibrary(pixels, first, last);
}

bool SnapshotEncoder::encodeStripsByLibrary(ConstBitmapView pixels, int first, int last)
{
    thread_local Output output;
    if (!compress(stripRows(pixels, first, last), output)) return false;
    const std::span<const std::uint8_t> file(output.bytes, output.size);
    std::size_t at = 0;
    jpeg::SegmentWalk walk(file);
    while (const auto segment = walk.next()) at = segment->end;
    for (int strip = first; strip < last; ++strip) {
        const std::size_t end = jpeg::findMarker(file, at);
        if (end == file.size()) return false;
        mStrips[std::size_t(strip)].bytes.assign(file.begin() + std::ptrdiff_t(at), file.begin() + std::ptrdiff_t(end));
        at = end + 2;
    }
    return at == file.size(); // the last marker was the end of the image
}

void SnapshotEncoder::join()
{
    std::size_t size = mHeader.size() + jpeg::kSealSize;
    for (const Strip& strip : mStrips) size += strip.bytes.size() + 2;
    // Every byte is written below; a vector that only shrinks and grows within its capacity touches none twice.
    mFile.resize(size);
    std::uint8_t* to = mFile.data();
    const auto put = [&to](std::span<const std::uint8_t> bytes) { to = std::copy(bytes.begin(), bytes.end(), to); };

    // The seal stands behind the JFIF segment, which readers expect first.
    jpeg::SegmentWalk walk(mHeader);
    const auto first = walk.next();
    const std::size_t head = first && first->marker == jpeg::kApp0 ? first->end : 2;
    put({mHeader.data(), head});
    std::uint8_t* const seal = to;
    to += jpeg::kSealSize;
    put({mHeader.data() + head, mHeader.size() - head});
    for (std::size_t i = 0; i < mStrips.size(); ++i) {
        put(mStrips[i].bytes);
        *to++ = jpeg::kMark;
        *to++ = i + 1 < mStrips.size() ? std::uint8_t(jpeg::kRestart0 + i % 8) : jpeg::kEndOfImage;
    }
    const std::uint8_t* const sealed = seal + jpeg::kSealSize;
    jpeg::writeSeal(seal, fingerprint(std::span(sealed, std::size_t(to - sealed))));
}

std::span<const std::uint8_t> SnapshotEncoder::encode(ConstBitmapView pixels)
try {
    mStripsEncoded = 0;
    if (pixels.isEmpty() || pixels.width > JPEG_MAX_DIMENSION || pixels.height > JPEG_MAX_DIMENSION) return {};
    const int strips = (pixels.height + kStripRows - 1) / kStripRows;
    if (pixels.width != mWidth || pixels.height != mHeight) {
        forget();
        mWidth = pixels.width;
        mHeight = pixels.height;
        mStrips.resize(std::size_t(strips));
    }
    if (mHeader.empty() && !prepare(pixels)) {
        forget();
        return {};
    }

    const int groups = (strips + kGroup - 1) / kGroup;
    std::atomic<int> encoded{0};
    std::atomic<bool> failed{false};
    parallelFor(groups, [&](int group) {
        const int begin = group * kGroup, end = std::min(begin + kGroup, strips);
        const auto changed = [&](int strip) {
            const Fingerprint now = fingerprint(stripRows(pixels, strip, strip + 1));
            auto& known = mStrips[std::size_t(strip)].pixels;
            if (known == now) return false;
            known = now;
            return true;
        };
        for (int strip = begin; strip < end;) {
            const int first = strip;
            while (strip < end && changed(strip)) ++strip;
            if (strip > first) {
                if (!encodeStrips(pixels, first, strip)) failed = true;
                encoded += strip - first;
            }
            ++strip; // the one that ended the stretch did not change
        }
    });
    mStripsEncoded = encoded;
    if (failed) {
        forget();
        return {};
    }
    join();
    return mFile;
} catch (const std::bad_alloc&) {
    forget();
    return {};
}

} // namespace zp
