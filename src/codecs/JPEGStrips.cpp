// SPDX-License-Identifier: GPL-3.0-or-later
/// The head of a file in strips, which the JPEG library writes, and the tables that the strips are coded by.
#include "codecs/JPEGStrips.h"
#include "codecs/JPEGStripKernels.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

namespace zp::jpeg
{
namespace
{

using Segments = std::span<const std::pair<int, std::span<const std::uint8_t>>>;

void setUp(jpeg_compress_struct* info, const StripFormat& format)
{
    info->image_width = JDIMENSION(format.width);
    info->image_height = JDIMENSION(format.height);
    info->input_components = 4;
    info->in_color_space = JCS_EXT_XRGB;
    jpeg_set_defaults(info); // 4:2:0 and the standard codes are the library's own defaults
    jpeg_set_quality(info, format.quality, TRUE);
    if (format.strips() > 1) info->restart_in_rows = format.stripRows;
    if (format.xDpi >= 1 && format.yDpi >= 1 && format.xDpi < 65535 && format.yDpi < 65535) {
        info->density_unit = 1;
        info->X_density = UINT16(std::lround(format.xDpi));
        info->Y_density = UINT16(std::lround(format.yDpi));
    }
}

/// Brings the file to where the first strip's bytes would follow. Owns nothing that a jump could leak.
bool writeHead(jpeg_compress_struct* info, Errors& errors, const StripFormat& format, Segments segments, Output& output)
{
    info->err = &errors;
    if (setjmp(errors.jump)) return false;
    jpeg_create_compress(info);
    info->dest = &output;
    setUp(info, format);
    jpeg_start_compress(info, TRUE);
    for (const auto& [marker, bytes] : segments) jpeg_write_marker(info, marker, bytes.data(), unsigned(bytes.size()));
    JSAMPROW none = nullptr;
    jpeg_write_scanlines(info, &none, 0); // writes what has to stand before the pixels
    return true;
}

struct Compressor {
    jpeg_compress_struct info{};
    Errors errors;

    ~Compressor() { jpeg_destroy_compress(&info); } // harmless on one that was never created
};

void setDivisors(StripTables& tables, const JQUANT_TBL& divisors)
{
    for (std::size_t i = 0; i < 64; ++i) {
        // The transform's output is eight times too large. For every sum below 2^15 the multiplier, rounded up, gives
        // the exact quotient: its error stays below 2^15 times the power of two that the divisor is rounded up to.
        const unsigned divisor = 8u * divisors.quantval[i];
        const int power = std::bit_width(divisor - 1);
        tables.half[i] = std::uint16_t(divisor / 2);
        tables.multiplier[i] = std::uint16_t(((1u << (15 + power)) + divisor - 1) / divisor);
        tables.scale[i] = std::uint16_t(1u << (17 - power));
    }
}

template <std::size_t N>
void setCodes(std::array<std::uint32_t, N>& codes, const JHUFF_TBL& table)
{
    std::size_t symbol = 0;
    std::uint32_t code = 0;
    for (std::uint32_t length = 1; length <= 16; ++length, code <<= 1)
        for (int i = 0; i < table.bits[length]; ++i, ++code, ++symbol)
            codes[table.huffval[symbol] % N] = code << 6 | length;
}

} // namespace

int StripFormat::strips() const
{
    const int rows = kBlockRow * stripRows;
    return (height + rows - 1) / rows;
}

PixelBox StripFormat::rowsOf(int strip) const
{
    const int rows = kBlockRow * stripRows;
    return {0, strip * rows, width, std::min((strip + 1) * rows, height)};
}

bool StripEncoder::prepare(const StripFormat& format, Segments segments)
{
    mFormat = format;
    mHead.clear();
    const std::int64_t blocks = std::int64_t{(format.width + kBlockRow - 1) / kBlockRow} * format.stripRows;
    if (format.strips() > 1 && blocks > 65535) return false; // the interval is a number of 16 bits
    Output output;
    Compressor compressor;
    if (!writeHead(&compressor.info, compressor.errors, format, segments, output)) return false;
    readTables(compressor.info);
    const auto written = output.written();
    mHead.assign(written.begin(), written.end());
    return true;
}

void StripEncoder::readTables(const jpeg_compress_struct& info)
{
    for (int i = 0; i < 2; ++i) {
        StripTables& tables = i == 0 ? mLuma : mChroma;
        setDivisors(tables, *info.quant_tbl_ptrs[i]);
        setCodes(tables.dcCode, *info.dc_huff_tbl_ptrs[i]);
        setCodes(tables.acCode, *info.ac_huff_tbl_ptrs[i]);
        setSmallCodes(tables);
    }
}

void StripEncoder::encode(ConstBitmapView pixels, std::vector<std::uint8_t>& out) const
{
    encodeStrip(mLuma, mChroma, pixels, out);
}

} // namespace zp::jpeg
