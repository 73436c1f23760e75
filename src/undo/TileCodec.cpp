// SPDX-License-Identifier: GPL-3.0-or-later
/// Differences and LZ4.
#include "undo/TileCodec.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <lz4.h>

namespace zp
{

namespace
{

/// How one plane of the tile follows in the packed bytes.
enum class Form : std::uint8_t {
    Constant, ///< one byte, the value everywhere
    Packed,   ///< a length of four bytes and LZ4 data
    Plain,    ///< the differences as they are
};

constexpr std::size_t kPlanes = 4; // alpha, green, red - green, blue - green

void splitRow(const std::uint8_t* argb, int width, std::uint8_t* a, std::uint8_t* g, std::uint8_t* r, std::uint8_t* b)
{
    for (int x = 0; x < width; ++x) {
        const std::uint8_t green = argb[4 * x + 2];
        a[x] = argb[4 * x];
        g[x] = green;
        r[x] = std::uint8_t(argb[4 * x + 1] - green);
        b[x] = std::uint8_t(argb[4 * x + 3] - green);
    }
}

void joinRow(std::uint8_t* argb, int width, const std::uint8_t* a, const std::uint8_t* g, const std::uint8_t* r,
             const std::uint8_t* b)
{
    for (int x = 0; x < width; ++x) {
        argb[4 * x] = a[x];
        argb[4 * x + 1] = std::uint8_t(r[x] + g[x]);
        argb[4 * x + 2] = g[x];
        argb[4 * x + 3] = std::uint8_t(b[x] + g[x]);
    }
}

/// Rows become what they add to the row above, from the last upwards.
void subtractRows(std::uint8_t* plane, int width, int height)
{
    for (int y = height - 1; y > 0; --y) {
        std::uint8_t* row = plane + std::ptrdiff_t{width} * y;
        const std::uint8_t* above = row - width;
        for (int x = 0; x < width; ++x) row[x] = std::uint8_t(row[x] - above[x]);
    }
}

void addRows(std::uint8_t* plane, int width, int height)
{
    for (int y = 1; y < height; ++y) {
        std::uint8_t* row = plane + std::ptrdiff_t{width} * y;
        const std::uint8_t* above = row - width;
        for (int x = 0; x < width; ++x) row[x] = std::uint8_t(row[x] + above[x]);
    }
}

bool isConstant(const std::uint8_t* plane, std::size_t count) { return std::memcmp(plane, plane + 1, count - 1) == 0; }

} // namespace

std::span<const std::uint8_t> TileCodec::pack(ConstBitmapView tile)
{
    const std::size_t count = std::size_t(tile.width) * std::size_t(tile.height);
    mPlanes.resize(kPlanes * count);
    std::array<std::uint8_t*, kPlanes> planes;
    for (std::size_t i = 0; i < kPlanes; ++i) planes[i] = mPlanes.data() + i * count;
    for (int y = 0; y < tile.height; ++y) {
        const std::size_t at = std::size_t(tile.width) * std::size_t(y);
        splitRow(tile.rowData(y), tile.width, planes[0] + at, planes[1] + at, planes[2] + at, planes[3] + at);
    }
    const std::size_t most = std::max(std::size_t(LZ4_compressBound(int(count))), count);
    mPacked.resize(kPlanes * (5 + most));
    std::size_t end = 0;
    for (std::uint8_t* plane : planes) {
        if (isConstant(plane, count)) {
            mPacked[end++] = std::uint8_t(Form::Constant);
            mPacked[end++] = plane[0];
            continue;
        }
        subtractRows(plane, tile.width, tile.height);
        const int packed = LZ4_compress_default(reinterpret_cast<const char*>(plane),
                                                reinterpret_cast<char*>(mPacked.data() + end + 5), int(count),
                                                int(mPacked.size() - end - 5));
        if (packed > 0 && std::size_t(packed) + 4 < count) {
            const auto length = std::uint32_t(packed);
            mPacked[end] = std::uint8_t(Form::Packed);
            std::memcpy(mPacked.data() + end + 1, &length, 4);
            end += 5 + length;
        } else {
            mPacked[end] = std::uint8_t(Form::Plain);
            std::memcpy(mPacked.data() + end + 1, plane, count);
            end += 1 + count;
        }
    }
    return {mPacked.data(), end};
}

bool TileCodec::unpack(std::span<const std::uint8_t> packed, BitmapView tile)
{
    const std::size_t count = std::size_t(tile.width) * std::size_t(tile.height);
    mPlanes.resize(kPlanes * count);
    std::array<std::uint8_t*, kPlanes> planes;
    for (std::size_t i = 0; i < kPlanes; ++i) {
        std::uint8_t* plane = planes[i] = mPlanes.data() + i * count;
        if (packed.empty()) return false;
        const auto form = Form(packed[0]);
        packed = packed.subspan(1);
        if (form == Form::Constant) {
            if (packed.empty()) return false;
            std::memset(plane, packed[0], count);
            packed = packed.subspan(1);
            continue;
        }
        if (form == Form::Plain) {
            if (packed.size() < count) return false;
            std::memcpy(plane, packed.data(), count);
            packed = packed.subspan(count);
        } else {
            std::uint32_t length = 0;
            if (form != Form::Packed || packed.size() < 4) return false;
            std::memcpy(&length, packed.data(), 4);
            packed = packed.subspan(4);
            if (packed.size() < length ||
                LZ4_decompress_safe(reinterpret_cast<const char*>(packed.data()), reinterpret_cast<char*>(plane),
                                    int(length), int(count)) != int(count))
                return false;
            packed = packed.subspan(length);
        }
        addRows(plane, tile.width, tile.height);
    }
    for (int y = 0; y < tile.height; ++y) {
        const std::size_t at = std::size_t(tile.width) * std::size_t(y);
        joinRow(tile.rowData(y), tile.width, planes[0] + at, planes[1] + at, planes[2] + at, planes[3] + at);
    }
    return packed.empty();
}

} // namespace zp
