// SPDX-License-Identifier: GPL-3.0-or-later
/// Colour conversion, cosine transform, quantisation and Huffman codes for as many blocks at a time as the machine's
/// vectors hold.
///
/// Every step is the integer arithmetic that the JPEG library uses (16-bit fixed-point colour, the "slow" accurate
/// integer transform, division rounded half up), so that strips of either origin can stand side by side in one file.
#include "codecs/JPEGStripKernels.h"
#include "codecs/BitWriter.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <memory>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "codecs/JPEGStripKernels.cpp"
#include <hwy/foreach_target.h>

#include "codecs/PairProducts-inl.h"
#include <hwy/highway.h>

#ifndef ZP_JPEG_STRIP_KERNELS_ONCE
#define ZP_JPEG_STRIP_KERNELS_ONCE
namespace zp::jpeg
{
namespace
{

constexpr int kUnit = 64; ///< pixels across that are worked on at a time: four macroblocks
constexpr int kUnitBlocks = kUnit / 8;
/// A block's code is at most 64 times 27 bits, and stuffing may double it.
constexpr std::size_t kMostBytesOfBlock = 512;
constexpr int kSmallValues = 32; ///< values below this in size have their code and bits in one table

/// Place in the block, row by row, of the coefficient that comes k-th in the file.
constexpr std::array<std::uint8_t, 64> kZigzag = [] {
    std::array<std::uint8_t, 64> order{};
    int x = 0, y = 0;
    for (int k = 0; k < 64; ++k) {
        order[std::size_t(k)] = std::uint8_t(8 * y + x);
        const bool up = (x + y) % 2 == 0;
        if (up && x == 7)
            ++y;
        else if (up && y == 0)
            ++x;
        else if (!up && y == 7)
            ++x;
        else if (!up && x == 0)
            ++y;
        else if (up)
            ++x, --y;
        else
            --x, ++y;
    }
    return order;
}();

/// Bits of a block's row, by the row and the bits, moved to where the file has these coefficients.
constexpr auto kZigzagBits = [] {
    std::array<std::array<std::uint64_t, 256>, 8> moved{};
    for (std::size_t k = 0; k < 64; ++k)
        for (std::size_t bits = 0; bits < 256; ++bits)
            if (bits >> (kZigzag[k] % 8) & 1) moved[kZigzag[k] / 8][bits] |= std::uint64_t{1} << k;
    return moved;
}();

int sizeOf(int value) { return std::bit_width(unsigned(value < 0 ? -value : value)); }
/// The value's own bits as they follow its code: negative ones as one less, in so many bits.
std::uint32_t bitsOf(int value, int size) { return std::uint32_t(value - (value < 0)) & ((1u << size) - 1); }

/// Brightness of 16 rows and colour of 8 for kUnit pixels across.
struct Planes {
    alignas(64) std::uint8_t y[kBlockRow][kUnit];
    alignas(64) std::uint8_t cb[kBlockRow / 2][kUnit / 2], cr[kBlockRow / 2][kUnit / 2];
};

/// Coefficients of one row of blocks, as the vectors leave them: groups of blocks that shared a vector; in a group, row
/// by row of all its blocks side by side.
struct Coefficients {
    alignas(64) std::int16_t value[64 * kUnitBlocks];
    std::uint8_t nonZero[8 * kUnitBlocks]; ///< bits of a row of a block; rows of a group one after the other
};

} // namespace
} // namespace zp::jpeg
#endif

HWY_BEFORE_NAMESPACE();
namespace zp::jpeg::HWY_NAMESPACE
{
namespace
{
namespace hn = hwy::HWY_NAMESPACE;
using namespace zp::codec::HWY_NAMESPACE;

using D16 = hn::CappedTag<std::int16_t, 32>; // four blocks; the colour rows of a unit have no more
using D32 = hn::Repartition<std::int32_t, D16>;
using DU16 = hn::RebindToUnsigned<D16>;
using V16 = hn::Vec<D16>;
using V32 = hn::Vec<D32>;

HWY_INLINE std::size_t lanes() { return hn::Lanes(D16()); }
HWY_INLINE std::size_t groupBlocks() { return lanes() / 8; }

/// Pairs of 16-bit numbers from two of the bytes A, R, G, B of each pixel.
HWY_INLINE V16 pairs(V32 pixels, unsigned low, unsigned high)
{
    const hn::Repartition<std::uint8_t, D16> bytes;
    alignas(16) std::uint32_t from[4];
    for (unsigned i = 0; i < 4; ++i) from[i] = 0x80008000u + (low | high << 16) + i * 0x00040004u; // 0x80 gives zero
    const auto order = hn::LoadDup128(hn::Repartition<std::uint32_t, D16>(), from);
    return hn::BitCast(D16(), hn::TableLookupBytesOr0(hn::BitCast(bytes, pixels), hn::BitCast(bytes, order)));
}

struct Colours {
    V32 y, cb, cr; ///< 0 to 255
};
/// Colours of as many pixels as there are 32-bit lanes.
HWY_INLINE Colours convert(const std::uint8_t* pixels)
{
    const D32 d;
    const V32 x = hn::BitCast(d, hn::LoadU(hn::Repartition<std::uint8_t, D16>(), pixels));
    const V16 rb = pairs(x, 1, 3), gg = pairs(x, 2, 2), rg = pairs(x, 1, 2), gb = pairs(x, 2, 3);
    const V32 half = hn::Set(d, 1 << 15), centre = hn::Set(d, (128 << 16) + (1 << 15) - 1);
    const V32 eight = hn::Set(d, 0xFF << 15);
    const auto u = [&](V32 v) { return hn::BitCast(hn::Repartition<std::uint32_t, D16>(), v); };
    // The factors of 16 bits: those above 32767 are halved and taken twice, or are a power of two, which is a shift.
    const V32 y = hn::Add(multiplyPairs(rb, pairOfFactors(D16(), 19595, 7471)),
                          multiplyPairs(gg, pairOfFactors(D16(), 19235, 19235)));
    const V32 cb = hn::Add(multiplyPairs(rg, pairOfFactors(D16(), -11059, -21709)),
                           hn::And(hn::BitCast(d, hn::ShiftRight<9>(u(x))), eight));
    const V32 cr = hn::Add(multiplyPairs(gb, pairOfFactors(D16(), -27439, -5329)), hn::And(hn::ShiftLeft<7>(x), eight));
    return {hn::ShiftRight<16>(hn::Add(y, half)), hn::ShiftRight<16>(hn::Add(cb, centre)),
            hn::ShiftRight<16>(hn::Add(cr, centre))};
}

/// Stores the sums of two rows, halved twice with the library's alternating rounding.
HWY_INLINE void storeAverages(V32 left, V32 right, std::uint8_t* to)
{
    const D32 d;
    const V32 bias = hn::BitCast(d, hn::Set(hn::Repartition<std::int64_t, D16>(), std::int64_t{2} << 32 | 1));
    const V32 sums = hn::Add(hn::ConcatEven(d, right, left), hn::ConcatOdd(d, right, left));
    const hn::Rebind<std::uint8_t, D32> bytes;
    hn::StoreU(hn::DemoteTo(bytes, hn::ShiftRight<2>(hn::Add(sums, bias))), bytes, to);
}

/// Two rows of a unit.
HWY_INLINE void convertRows(const std::uint8_t* top, const std::uint8_t* bottom, Planes& out, int pair)
{
    const D32 d;
    const hn::Rebind<std::uint8_t, D32> bytes;
    const std::size_t n = hn::Lanes(d);
    for (std::size_t x = 0; x < kUnit; x += 2 * n) {
        const Colours a = convert(top + 4 * x), b = convert(top + 4 * (x + n));
        const Colours c = convert(bottom + 4 * x), e = convert(bottom + 4 * (x + n));
        std::uint8_t *const upper = out.y[2 * pair] + x, *const lower = out.y[2 * pair + 1] + x;
        hn::StoreU(hn::DemoteTo(bytes, a.y), bytes, upper);
        hn::StoreU(hn::DemoteTo(bytes, b.y), bytes, upper + n);
        hn::StoreU(hn::DemoteTo(bytes, c.y), bytes, lower);
        hn::StoreU(hn::DemoteTo(bytes, e.y), bytes, lower + n);
        storeAverages(hn::Add(a.cb, c.cb), hn::Add(b.cb, e.cb), out.cb[pair] + x / 2);
        storeAverages(hn::Add(a.cr, c.cr), hn::Add(b.cr, e.cr), out.cr[pair] + x / 2);
    }
}

/// 8x8 numbers in each block of 128 bits.
HWY_INLINE void transpose(V16* r)
{
    const D16 d;
    const D32 d32;
    const hn::Repartition<std::int64_t, D16> d64;
    V32 a[8];
    for (int i = 0; i < 4; ++i) {
        a[2 * i] = hn::BitCast(d32, hn::InterleaveLower(d, r[2 * i], r[2 * i + 1]));
        a[2 * i + 1] = hn::BitCast(d32, hn::InterleaveUpper(d, r[2 * i], r[2 * i + 1]));
    }
    hn::Vec<decltype(d64)> b[8];
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 2; ++j) {
            b[4 * i + 2 * j] = hn::BitCast(d64, hn::InterleaveLower(d32, a[4 * i + j], a[4 * i + 2 + j]));
            b[4 * i + 2 * j + 1] = hn::BitCast(d64, hn::InterleaveUpper(d32, a[4 * i + j], a[4 * i + 2 + j]));
        }
    for (int i = 0; i < 4; ++i) {
        r[2 * i] = hn::BitCast(d, hn::InterleaveLower(d64, b[i], b[4 + i]));
        r[2 * i + 1] = hn::BitCast(d, hn::InterleaveUpper(d64, b[i], b[4 + i]));
    }
}

/// For the two halves of pairs (a, b).
struct Products {
    V32 low, high;
};
HWY_INLINE Products multiply(V16 a, V16 b, int fa, int fb)
{
    const D16 d;
    const V16 f = pairOfFactors(D16(), fa, fb);
    return {multiplyPairs(hn::InterleaveLower(d, a, b), f), multiplyPairs(hn::InterleaveUpper(d, a, b), f)};
}
HWY_INLINE Products add(Products p, Products q) { return {hn::Add(p.low, q.low), hn::Add(p.high, q.high)}; }
template <int Shift>
HWY_INLINE V16 descale(Products p)
{
    return packRounded<Shift>(D16(), p.low, p.high);
}

/// One dimension of the accurate integer cosine transform; constants have 13 fraction bits.
template <bool First>
HWY_INLINE void transform(V16* d)
{
    constexpr int shift = First ? 11 : 15;
    const V16 t0 = hn::Add(d[0], d[7]), t7 = hn::Sub(d[0], d[7]);
    const V16 t1 = hn::Add(d[1], d[6]), t6 = hn::Sub(d[1], d[6]);
    const V16 t2 = hn::Add(d[2], d[5]), t5 = hn::Sub(d[2], d[5]);
    const V16 t3 = hn::Add(d[3], d[4]), t4 = hn::Sub(d[3], d[4]);
    const V16 t10 = hn::Add(t0, t3), t13 = hn::Sub(t0, t3);
    const V16 t11 = hn::Add(t1, t2), t12 = hn::Sub(t1, t2);
    const V16 sum = hn::Add(t10, t11), difference = hn::Sub(t10, t11);
    if constexpr (First) {
        d[0] = hn::ShiftLeft<2>(sum);
        d[4] = hn::ShiftLeft<2>(difference);
    } else {
        const V16 two = hn::Set(D16(), 2);
        d[0] = hn::ShiftRight<2>(hn::Add(sum, two));
        d[4] = hn::ShiftRight<2>(hn::Add(difference, two));
    }
    d[2] = descale<shift>(multiply(t13, t12, 4433 + 6270, 4433));
    d[6] = descale<shift>(multiply(t13, t12, 4433, 4433 - 15137));
    const V16 z3 = hn::Add(t4, t6), z4 = hn::Add(t5, t7);
    const Products p3 = multiply(z3, z4, 9633 - 16069, 9633), p4 = multiply(z3, z4, 9633, 9633 - 3196);
    d[7] = descale<shift>(add(multiply(t4, t7, 2446 - 7373, -7373), p3));
    d[1] = descale<shift>(add(multiply(t4, t7, -7373, 12299 - 7373), p4));
    d[5] = descale<shift>(add(multiply(t5, t6, 16819 - 20995, -20995), p4));
    d[3] = descale<shift>(add(multiply(t5, t6, -20995, 25172 - 20995), p3));
}

/// One row of @p blocks blocks from a plane's eight rows, @p stride apart. Not inlined, as fill() and code() are not:
/// all in one function took the compiler minutes.
HWY_NOINLINE void transformBlocks(const std::uint8_t* plane, std::size_t stride, int blocks, const StripTables& tables,
                                  Coefficients& out)
{
    const D16 d;
    const DU16 du;
    const hn::Rebind<std::uint8_t, D16> bytes;
    const std::size_t n = lanes();
    std::int16_t* to = out.value;
    std::uint8_t* bits = out.nonZero;
    for (std::size_t x = 0; x < 8 * std::size_t(blocks); x += n, to += 8 * n, bits += n) {
        V16 r[8];
        for (std::size_t i = 0; i < 8; ++i)
            r[i] = hn::Sub(hn::PromoteTo(d, hn::LoadU(bytes, plane + i * stride + x)), hn::Set(d, 128));
        transpose(r);
        transform<true>(r);
        transpose(r);
        transform<false>(r);
        for (std::size_t i = 0; i < 8; ++i) {
            const auto half = hn::LoadDup128(du, &tables.half[8 * i]), scale = hn::LoadDup128(du, &tables.scale[8 * i]);
            auto quotient = hn::Add(hn::BitCast(du, hn::Abs(r[i])), half);
            quotient = hn::MulHigh(hn::MulHigh(quotient, hn::LoadDup128(du, &tables.multiplier[8 * i])), scale);
            const V16 sign = hn::BroadcastSignBit(r[i]);
            const V16 value = hn::Sub(hn::Xor(hn::BitCast(d, quotient), sign), sign);
            hn::Store(value, d, to + i * n);
            hn::StoreMaskBits(d, hn::Ne(value, hn::Zero(d)), bits + i * (n / 8));
        }
    }
}

class StripWriter
{
public:
    StripWriter(const StripTables& luma, const StripTables& chroma, int width)
        : mLuma(luma), mChroma(chroma), mWidth(width), mBits(nullptr)
    {
        for (std::size_t k = 0; k < 64; ++k) mPlace[k] = std::uint8_t(kZigzag[k] / 8 * lanes() + kZigzag[k] % 8);
    }

    /// Codes one block row: @p pixels has 16 rows or, at the bottom of the picture, fewer.
    std::uint8_t* blockRow(ConstBitmapView pixels, std::uint8_t* to)
    {
        mBits.moveTo(to);
        Planes planes;
        Coefficients upper, lower, cb, cr;
        const bool half = pixels.height <= 8;
        for (int x = 0; x < mWidth; x += kUnit) {
            fill(pixels, x, planes);
            transformBlocks(planes.y[0], kUnit, kUnitBlocks, mLuma, upper);
            if (!half) transformBlocks(planes.y[8], kUnit, kUnitBlocks, mLuma, lower);
            transformBlocks(planes.cb[0], kUnit / 2, kUnitBlocks / 2, mChroma, cb);
            transformBlocks(planes.cr[0], kUnit / 2, kUnitBlocks / 2, mChroma, cr);
            for (int i = 0; 2 * i < kUnitBlocks && x + 16 * i < mWidth; ++i) {
                // Blocks wholly beyond an edge are empty and repeat the brightness before them.
                const bool narrow = x + 16 * i + 8 >= mWidth;
                code(upper, 2 * i, mLuma, mLastDC[0]);
                narrow ? codeEmpty() : code(upper, 2 * i + 1, mLuma, mLastDC[0]);
                half ? codeEmpty() : code(lower, 2 * i, mLuma, mLastDC[0]);
                half || narrow ? codeEmpty() : code(lower, 2 * i + 1, mLuma, mLastDC[0]);
                code(cb, i, mChroma, mLastDC[1]);
                code(cr, i, mChroma, mLastDC[2]);
            }
        }
        return mBits.position();
    }
    std::uint8_t* finish(std::uint8_t* to)
    {
        mBits.moveTo(to);
        return mBits.finish();
    }

private:
    /// The unit at column @p x, what lies beyond the picture's edges made up as the library does it.
    HWY_NOINLINE void fill(ConstBitmapView pixels, int x, Planes& planes) const
    {
        const int columns = std::min(kUnit, mWidth - x), pairsOfRows = (pixels.height + 1) / 2;
        alignas(64) std::uint8_t edge[2][4 * kUnit];
        for (int pair = 0; pair < pairsOfRows; ++pair) {
            const std::uint8_t* rows[2];
            for (int i = 0; i < 2; ++i) {
                rows[i] = pixels.pixel(x, std::min(2 * pair + i, pixels.height - 1));
                if (columns == kUnit) continue;
                std::memcpy(edge[i], rows[i], std::size_t(columns) * 4);
                for (int c = columns; c < kUnit; ++c) std::memcpy(edge[i] + 4 * c, rows[i] + 4 * (columns - 1), 4);
                rows[i] = edge[i];
            }
            convertRows(rows[0], rows[1], planes, pair);
        }
        for (int y = pixels.height; y < kBlockRow; ++y) std::memcpy(planes.y[y], planes.y[pixels.height - 1], kUnit);
        for (int y = pairsOfRows; y < kBlockRow / 2; ++y) {
            std::memcpy(planes.cb[y], planes.cb[pairsOfRows - 1], kUnit / 2);
            std::memcpy(planes.cr[y], planes.cr[pairsOfRows - 1], kUnit / 2);
        }
    }

    HWY_INLINE void put(std::uint32_t bits, std::uint32_t length)
    {
        mBits.put(bits, length);
        if (mBits.waiting() >= 32) mBits.drain();
    }
    HWY_INLINE void codeEmpty()
    {
        put(mLuma.dcCode[0] >> 6, mLuma.dcCode[0] & 63);
        put(mLuma.acCode[0] >> 6, mLuma.acCode[0] & 63);
    }
    HWY_NOINLINE void code(const Coefficients& coefficients, int block, const StripTables& tables, int& lastDC)
    {
        const std::size_t n = lanes(), group = std::size_t(block) / groupBlocks(),
                          inside = std::size_t(block) % groupBlocks();
        const std::int16_t* const value = coefficients.value + group * 8 * n + inside * 8;
        const std::uint8_t* const rows = coefficients.nonZero + group * n + inside;
        const int difference = value[0] - lastDC;
        lastDC = value[0];
        const int size = sizeOf(difference);
        const std::uint32_t dc = tables.dcCode[std::size_t(size)];
        put((dc >> 6) << size | bitsOf(difference, size), (dc & 63) + std::uint32_t(size));

        std::uint64_t nonZero = 0;
        for (std::size_t i = 0; i < 8; ++i) nonZero |= kZigzagBits[i][rows[i * (n / 8)]];
        nonZero &= ~std::uint64_t{1};
        int before = 0;
        for (; nonZero; nonZero &= nonZero - 1) {
            const int place = std::countr_zero(nonZero);
            int run = place - before - 1;
            before = place;
            for (; run > 15; run -= 16) put(tables.acCode[0xF0] >> 6, tables.acCode[0xF0] & 63);
            const int v = value[mPlace[std::size_t(place)]];
            if (unsigned(v + kSmallValues) < 2 * kSmallValues) {
                const std::uint32_t entry = tables.acSmall[std::size_t(run << 6 | (v + kSmallValues))];
                put(entry >> 6, entry & 63);
            } else {
                const int vSize = sizeOf(v);
                const std::uint32_t entry = tables.acCode[std::size_t(run << 4 | vSize)];
                put((entry >> 6) << vSize | bitsOf(v, vSize), (entry & 63) + std::uint32_t(vSize));
            }
        }
        if (before != 63) put(tables.acCode[0] >> 6, tables.acCode[0] & 63);
    }

    const StripTables &mLuma, &mChroma;
    int mWidth;
    codec::BitWriter<codec::BitOrder::HighFirstStuffed> mBits;
    int mLastDC[3] = {0, 0, 0};
    std::array<std::uint8_t, 64> mPlace; ///< of the k-th coefficient, from a block's first one
};

} // namespace

void encodeStripHere(const StripTables& luma, const StripTables& chroma, ConstBitmapView pixels,
                     std::vector<std::uint8_t>& out)
{
    out.clear();
    // Room for the worst case of a block row; pages that none ever fills are never touched.
    thread_local std::unique_ptr<std::uint8_t[]> room;
    thread_local std::size_t capacity = 0;
    const std::size_t most = std::size_t((pixels.width + 15) / 16) * 6 * kMostBytesOfBlock + 64;
    if (capacity < most) {
        capacity = 0;
        room = std::make_unique_for_overwrite<std::uint8_t[]>(most);
        capacity = most;
    }
    StripWriter writer(luma, chroma, pixels.width);
    for (int y = 0; y < pixels.height; y += kBlockRow) {
        const PixelBox rows{0, y, pixels.width, std::min(y + kBlockRow, pixels.height)};
        const std::uint8_t* const end = writer.blockRow(pixels.part(rows), room.get());
        out.insert(out.end(), room.get(), const_cast<std::uint8_t*>(end));
    }
    out.insert(out.end(), room.get(), writer.finish(room.get()));
}

} // namespace zp::jpeg::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp::jpeg
{
HWY_EXPORT(encodeStripHere);

void encodeStrip(const StripTables& luma, const StripTables& chroma, ConstBitmapView pixels,
                 std::vector<std::uint8_t>& out)
{
    HWY_DYNAMIC_DISPATCH(encodeStripHere)(luma, chroma, pixels, out);
}

void setSmallCodes(StripTables& tables)
{
    for (int run = 0; run < 16; ++run)
        for (int value = -kSmallValues; value < kSmallValues; ++value) {
            const int size = sizeOf(value);
            const std::uint32_t entry = tables.acCode[std::size_t(run << 4 | size)];
            tables.acSmall[std::size_t(run << 6 | (value + kSmallValues))] =
                ((entry >> 6) << size | bitsOf(value, size)) << 6 | ((entry & 63) + std::uint32_t(size));
        }
}

} // namespace zp::jpeg
#endif
