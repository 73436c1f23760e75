// SPDX-License-Identifier: GPL-3.0-or-later
/// Colour conversion, cosine transform, quantisation and Huffman codes for four blocks at a time.
///
/// Every step is the integer arithmetic that the JPEG library uses (16-bit fixed-point colour, the "slow" accurate
/// integer transform, division rounded half up), so that strips of either origin can stand side by side in one file.
#include "undo/StripCoder.h"
#include "undo/JPEGMarkers.h"
#include <algorithm>
#include <bit>
#include <cstring>
#if defined(__x86_64__)
#pragma GCC diagnostic push
// The compiler's own header leaves unused lanes undefined on purpose, and then warns of it.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"
#include <immintrin.h>
#endif

namespace zp
{

namespace
{

constexpr int kRows = 16;
constexpr int kUnit = 32; ///< pixels across that are coded at a time: two macroblocks, four luma blocks
constexpr int kBlocksOfUnit = 12;
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

int sizeOf(int value) { return std::bit_width(unsigned(value < 0 ? -value : value)); }
/// The value's own bits as they follow its code: negative ones as one less, in so many bits.
std::uint32_t bitsOf(int value, int size) { return std::uint32_t(value - (value < 0)) & ((1u << size) - 1); }

} // namespace

bool StripCoder::available()
{
#if defined(__x86_64__)
    static const bool have = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                             __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
    return have;
#else
    return false;
#endif
}

void StripCoder::setDivisors(Tables& tables, const std::uint8_t* zigzagged)
{
    for (int k = 0; k < 64; ++k) {
        const int place = kZigzag[std::size_t(k)];
        const auto row = std::size_t(place / 8);
        // The transform's output is eight times too large. For every sum below 2^15 the multiplier, rounded up, gives
        // the exact quotient: its error stays below 2^15 times the power of two that the divisor is rounded up to.
        const unsigned divisor = 8u * zigzagged[k];
        const int power = std::bit_width(divisor - 1);
        for (std::size_t column = std::size_t(place % 8); column < 32; column += 8) {
            tables.half[row][column] = std::uint16_t(divisor / 2);
            tables.multiplier[row][column] = std::uint16_t(((1u << (15 + power)) + divisor - 1) / divisor);
            tables.shift[row][column] = std::uint16_t(power - 1);
        }
    }
}

bool StripCoder::setCodes(Tables& tables, bool dc, std::span<const std::uint8_t> definition)
{
    std::size_t symbol = 16;
    std::uint32_t code = 0;
    for (std::uint32_t length = 1; length <= 16; ++length, code <<= 1)
        for (int i = 0; i < definition[length - 1]; ++i, ++code, ++symbol) {
            if (symbol >= definition.size() || (dc && definition[symbol] > 15)) return false;
            (dc ? tables.dcCode[definition[symbol]] : tables.acCode[definition[symbol]]) = code << 6 | length;
        }
    if (!dc)
        for (int run = 0; run < 16; ++run)
            for (int value = -kSmallValues; value < kSmallValues; ++value) {
                const int size = sizeOf(value);
                const std::uint32_t entry = tables.acCode[std::size_t(run << 4 | size)];
                tables.acSmall[std::size_t(run << 6 | (value + kSmallValues))] =
                    ((entry >> 6) << size | bitsOf(value, size)) << 6 | ((entry & 63) + std::uint32_t(size));
            }
    return true;
}

bool StripCoder::readTables(std::span<const std::uint8_t> header)
{
    int found = 0;
    jpeg::SegmentWalk walk(header);
    while (const auto segment = walk.next()) {
        std::span<const std::uint8_t> body = header.subspan(segment->begin + 4, segment->end - segment->begin - 4);
        if (segment->marker == jpeg::kQuantisation)
            for (; body.size() >= 65; body = body.subspan(65), ++found) {
                if (body[0] > 1) return false; // 16-bit divisors, or a table that is none of the two
                setDivisors(body[0] == 0 ? mLuma : mChroma, body.data() + 1);
            }
        if (segment->marker == jpeg::kHuffmanTables)
            while (body.size() >= 17) {
                std::size_t size = 17;
                for (int i = 1; i <= 16; ++i) size += body[std::size_t(i)];
                if (size > body.size() || (body[0] & 0x0F) > 1) return false;
                Tables& tables = (body[0] & 0x0F) == 0 ? mLuma : mChroma;
                if (!setCodes(tables, body[0] >> 4 == 0, body.subspan(1, size - 1))) return false;
                body = body.subspan(size);
                ++found;
            }
    }
    return found == 6;
}

#if defined(__x86_64__)

#define ZP_WIDE __attribute__((target("avx512f,avx512bw,avx512dq,avx512vl,bmi,bmi2,lzcnt"), always_inline)) inline

namespace
{

/// Bits into bytes, the most significant first, a zero stuffed behind every 0xFF.
class BitWriter
{
public:
    explicit BitWriter(std::uint8_t* to) : mTo(to) {}
    /// At most 32 bits.
    void put(std::uint32_t bits, std::uint32_t length)
    {
        mBits = mBits << length | bits;
        mCount += length;
        if (mCount >= 32) {
            mCount -= 32;
            const auto word = std::uint32_t(mBits >> mCount);
            // Whether a byte of the word is 0xFF.
            if (((~word - 0x01010101u) & word & 0x80808080u) == 0) {
                const std::uint32_t swapped = __builtin_bswap32(word);
                std::memcpy(mTo, &swapped, 4);
                mTo += 4;
            } else {
                for (int shift = 24; shift >= 0; shift -= 8) putByte(std::uint8_t(word >> shift));
            }
        }
    }
    /// Filled up with ones to a whole byte. @return behind the last byte
    std::uint8_t* finish()
    {
        if (const std::uint32_t open = mCount % 8) put((1u << (8 - open)) - 1, 8 - open);
        for (; mCount >= 8; mCount -= 8) putByte(std::uint8_t(mBits >> (mCount - 8)));
        return mTo;
    }

private:
    void putByte(std::uint8_t byte)
    {
        *mTo++ = byte;
        if (byte == 0xFF) *mTo++ = 0;
    }
    std::uint8_t* mTo;
    std::uint64_t mBits = 0;
    std::uint32_t mCount = 0;
};

struct alignas(64) Coefficients {
    std::int16_t value[kBlocksOfUnit][64]; ///< in the order of the file
    std::uint64_t nonZero[kBlocksOfUnit];
};

} // namespace

/// The vector steps; a struct so that it may see the coder's tables.
struct StripKernels {
    using Tables = StripCoder::Tables;

    struct Colours {
        __m512i y, cb, cr; ///< 32-bit, 0 to 255
    };
    /// Pairs of 16-bit numbers from two of the bytes A, R, G, B of each pixel.
    ZP_WIDE static __m512i pairs(__m512i pixels, unsigned low, unsigned high)
    {
        const __m128i first = _mm_set1_epi32(int(low | 0x8000u | high << 16 | 0x80000000u)); // 0x80 gives a zero byte
        const __m128i step = _mm_setr_epi32(0, 0x00040004, 0x00080008, 0x000C000C);
        return _mm512_shuffle_epi8(pixels, _mm512_broadcast_i32x4(_mm_add_epi32(first, step)));
    }
    /// Two signed 16-bit factors, over and over.
    ZP_WIDE static __m512i factors(int low, int high)
    {
        return _mm512_set1_epi32(int((unsigned(low) & 0xFFFFu) | unsigned(high) << 16));
    }
    /// 16 pixels.
    ZP_WIDE static Colours convert(const std::uint8_t* pixels)
    {
        const __m512i x = _mm512_loadu_si512(pixels);
        const __m512i rb = pairs(x, 1, 3), gg = pairs(x, 2, 2), rg = pairs(x, 1, 2), gb = pairs(x, 2, 3);
        const __m512i half = _mm512_set1_epi32(1 << 15), centre = _mm512_set1_epi32((128 << 16) + (1 << 15) - 1);
        const __m512i eight = _mm512_set1_epi32(0xFF << 15);
        const __m512i y =
            _mm512_add_epi32(_mm512_madd_epi16(rb, factors(19595, 7471)), _mm512_madd_epi16(gg, factors(19235, 19235)));
        const __m512i cb = _mm512_add_epi32(_mm512_madd_epi16(rg, factors(-11059, -21709)),
                                            _mm512_and_si512(_mm512_srli_epi32(x, 9), eight));
        const __m512i cr = _mm512_add_epi32(_mm512_madd_epi16(gb, factors(-27439, -5329)),
                                            _mm512_and_si512(_mm512_slli_epi32(x, 7), eight));
        return {_mm512_srli_epi32(_mm512_add_epi32(y, half), 16), _mm512_srli_epi32(_mm512_add_epi32(cb, centre), 16),
                _mm512_srli_epi32(_mm512_add_epi32(cr, centre), 16)};
    }

    /// Sums of two rows' pairs, halved twice with the library's alternating rounding.
    ZP_WIDE static __m512i average(__m512i left, __m512i right)
    {
        const __m512i bias = _mm512_set1_epi64(std::int64_t{2} << 32 | 1);
        const __m512i sums = _mm512_madd_epi16(_mm512_packs_epi32(left, right), _mm512_set1_epi16(1));
        return _mm512_srli_epi32(_mm512_add_epi32(sums, bias), 2);
    }

    /// 8x8 numbers in each quarter of the vectors.
    ZP_WIDE static void transpose(__m512i* r)
    {
        __m512i a[8], b[8];
        for (int i = 0; i < 4; ++i) {
            a[2 * i] = _mm512_unpacklo_epi16(r[2 * i], r[2 * i + 1]);
            a[2 * i + 1] = _mm512_unpackhi_epi16(r[2 * i], r[2 * i + 1]);
        }
        for (int i = 0; i < 2; ++i)
            for (int j = 0; j < 2; ++j) {
                b[4 * i + 2 * j] = _mm512_unpacklo_epi32(a[4 * i + j], a[4 * i + 2 + j]);
                b[4 * i + 2 * j + 1] = _mm512_unpackhi_epi32(a[4 * i + j], a[4 * i + 2 + j]);
            }
        for (int i = 0; i < 4; ++i) {
            r[2 * i] = _mm512_unpacklo_epi64(b[i], b[4 + i]);
            r[2 * i + 1] = _mm512_unpackhi_epi64(b[i], b[4 + i]);
        }
    }

    /// a * fa + b * fb (+ more), rounded and shifted down to 16 bits, for the two halves of pairs (a, b).
    struct Products {
        __m512i low, high;
    };
    ZP_WIDE static Products multiply(__m512i a, __m512i b, int fa, int fb)
    {
        const __m512i f = factors(fa, fb);
        return {_mm512_madd_epi16(_mm512_unpacklo_epi16(a, b), f), _mm512_madd_epi16(_mm512_unpackhi_epi16(a, b), f)};
    }
    template <int Shift>
    ZP_WIDE static __m512i descale(Products p)
    {
        const __m512i half = _mm512_set1_epi32(1 << (Shift - 1));
        return _mm512_packs_epi32(_mm512_srai_epi32(_mm512_add_epi32(p.low, half), Shift),
                                  _mm512_srai_epi32(_mm512_add_epi32(p.high, half), Shift));
    }
    ZP_WIDE static Products add(Products p, Products q)
    {
        return {_mm512_add_epi32(p.low, q.low), _mm512_add_epi32(p.high, q.high)};
    }

    /// One dimension of the accurate integer cosine transform; constants have 13 fraction bits.
    template <bool First>
    ZP_WIDE static void transform(__m512i* d)
    {
        constexpr int shift = First ? 11 : 15;
        const __m512i t0 = _mm512_add_epi16(d[0], d[7]), t7 = _mm512_sub_epi16(d[0], d[7]);
        const __m512i t1 = _mm512_add_epi16(d[1], d[6]), t6 = _mm512_sub_epi16(d[1], d[6]);
        const __m512i t2 = _mm512_add_epi16(d[2], d[5]), t5 = _mm512_sub_epi16(d[2], d[5]);
        const __m512i t3 = _mm512_add_epi16(d[3], d[4]), t4 = _mm512_sub_epi16(d[3], d[4]);
        const __m512i t10 = _mm512_add_epi16(t0, t3), t13 = _mm512_sub_epi16(t0, t3);
        const __m512i t11 = _mm512_add_epi16(t1, t2), t12 = _mm512_sub_epi16(t1, t2);
        const __m512i sum = _mm512_add_epi16(t10, t11), difference = _mm512_sub_epi16(t10, t11);
        if constexpr (First) {
            d[0] = _mm512_slli_epi16(sum, 2);
            d[4] = _mm512_slli_epi16(difference, 2);
        } else {
            const __m512i two = _mm512_set1_epi16(2);
            d[0] = _mm512_srai_epi16(_mm512_add_epi16(sum, two), 2);
            d[4] = _mm512_srai_epi16(_mm512_add_epi16(difference, two), 2);
        }
        d[2] = descale<shift>(multiply(t13, t12, 4433 + 6270, 4433));
        d[6] = descale<shift>(multiply(t13, t12, 4433, 4433 - 15137));
        const __m512i z3 = _mm512_add_epi16(t4, t6), z4 = _mm512_add_epi16(t5, t7);
        const Products p3 = multiply(z3, z4, 9633 - 16069, 9633), p4 = multiply(z3, z4, 9633, 9633 - 3196);
        d[7] = descale<shift>(add(multiply(t4, t7, 2446 - 7373, -7373), p3));
        d[1] = descale<shift>(add(multiply(t4, t7, -7373, 12299 - 7373), p4));
        d[5] = descale<shift>(add(multiply(t5, t6, 16819 - 20995, -20995), p4));
        d[3] = descale<shift>(add(multiply(t5, t6, -20995, 25172 - 20995), p3));
    }

    /// Four rows of four blocks side by side to the four rows of each block.
    ZP_WIDE static void gather(const __m512i* q, __m512i* b)
    {
        const __m512i a0 = _mm512_shuffle_i32x4(q[0], q[1], 0x44), a1 = _mm512_shuffle_i32x4(q[0], q[1], 0xEE);
        const __m512i a2 = _mm512_shuffle_i32x4(q[2], q[3], 0x44), a3 = _mm512_shuffle_i32x4(q[2], q[3], 0xEE);
        b[0] = _mm512_shuffle_i32x4(a0, a2, 0x88);
        b[1] = _mm512_shuffle_i32x4(a0, a2, 0xDD);
        b[2] = _mm512_shuffle_i32x4(a1, a3, 0x88);
        b[3] = _mm512_shuffle_i32x4(a1, a3, 0xDD);
    }

    /// Four blocks side by side, rows in @p r, to coefficients in file order; block i of the four to slot @p slots[i].
    ZP_WIDE static void block4(__m512i* r, const Tables& tables, Coefficients& out, const int* slots)
    {
        transpose(r);
        transform<true>(r);
        transpose(r);
        transform<false>(r);
        for (int i = 0; i < 8; ++i) {
            const auto row = std::size_t(i);
            const __m512i sign = _mm512_srai_epi16(r[i], 15);
            __m512i n = _mm512_add_epi16(_mm512_abs_epi16(r[i]), _mm512_load_si512(tables.half[row].data()));
            n = _mm512_mulhi_epu16(n, _mm512_load_si512(tables.multiplier[row].data()));
            n = _mm512_srlv_epi16(n, _mm512_load_si512(tables.shift[row].data()));
            r[i] = _mm512_sub_epi16(_mm512_xor_si512(n, sign), sign);
        }
        // The upper four rows of each block in one vector, the lower four in the other.
        __m512i upper[4], lower[4];
        gather(r, upper);
        gather(r + 4, lower);
        const __m512i firstHalf = zigzagIndex(0), secondHalf = zigzagIndex(32);
        for (int i = 0; i < 4; ++i) {
            const __m512i a = _mm512_permutex2var_epi16(upper[i], firstHalf, lower[i]);
            const __m512i b = _mm512_permutex2var_epi16(upper[i], secondHalf, lower[i]);
            const int slot = slots[i];
            _mm512_store_si512(out.value[slot], a);
            _mm512_store_si512(out.value[slot] + 32, b);
            out.nonZero[slot] =
                std::uint64_t(_mm512_test_epi16_mask(b, b)) << 32 | std::uint64_t(_mm512_test_epi16_mask(a, a));
        }
    }
    ZP_WIDE static __m512i zigzagIndex(int from)
    {
        return _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(kZigzag.data() + from)));
    }

    ZP_WIDE static void codeBlock(BitWriter& bits, const std::int16_t* value, std::uint64_t nonZero,
                                  const Tables& tables, int& lastDC)
    {
        const int difference = value[0] - lastDC;
        lastDC = value[0];
        const int size = sizeOf(difference);
        const std::uint32_t dc = tables.dcCode[std::size_t(size)];
        bits.put((dc >> 6) << size | bitsOf(difference, size), (dc & 63) + std::uint32_t(size));

        nonZero &= ~std::uint64_t{1};
        int before = 0;
        for (; nonZero; nonZero &= nonZero - 1) {
            const int place = std::countr_zero(nonZero);
            int run = place - before - 1;
            before = place;
            for (; run > 15; run -= 16) bits.put(tables.acCode[0xF0] >> 6, tables.acCode[0xF0] & 63);
            const int v = value[place];
            if (unsigned(v + kSmallValues) < 2 * kSmallValues) {
                const std::uint32_t entry = tables.acSmall[std::size_t(run << 6 | (v + kSmallValues))];
                bits.put(entry >> 6, entry & 63);
            } else {
                const int vSize = sizeOf(v);
                const std::uint32_t entry = tables.acCode[std::size_t(run << 4 | vSize)];
                bits.put((entry >> 6) << vSize | bitsOf(v, vSize), (entry & 63) + std::uint32_t(vSize));
            }
        }
        if (before != 63) bits.put(tables.acCode[0] >> 6, tables.acCode[0] & 63);
    }

    /// 32 by 16 pixels, @p rowBytes apart, to twelve blocks of coefficients in the order of the file.
    ZP_WIDE static void codeUnit(const StripCoder& coder, const std::uint8_t* pixels, std::ptrdiff_t rowBytes,
                                 Coefficients& out)
    {
        static constexpr int kUpper[4] = {0, 1, 6, 7}, kLower[4] = {2, 3, 8, 9}, kColour[4] = {4, 10, 5, 11};
        const __m512i order = _mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), middle = _mm512_set1_epi16(128);
        const __m512i byBlock = _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
        __m512i luma[8], chroma[8];
        for (int half = 0; half < 2; ++half) {
            for (int pair = 0; pair < 4; ++pair) {
                const std::uint8_t* const top = pixels + rowBytes * (8 * half + 2 * pair);
                const Colours a = convert(top), b = convert(top + 64);
                const Colours c = convert(top + rowBytes), d = convert(top + rowBytes + 64);
                luma[2 * pair] =
                    _mm512_sub_epi16(_mm512_permutexvar_epi64(order, _mm512_packs_epi32(a.y, b.y)), middle);
                luma[2 * pair + 1] =
                    _mm512_sub_epi16(_mm512_permutexvar_epi64(order, _mm512_packs_epi32(c.y, d.y)), middle);
                const __m512i cb = average(_mm512_add_epi32(a.cb, c.cb), _mm512_add_epi32(b.cb, d.cb));
                const __m512i cr = average(_mm512_add_epi32(a.cr, c.cr), _mm512_add_epi32(b.cr, d.cr));
                chroma[4 * half + pair] =
                    _mm512_sub_epi16(_mm512_permutexvar_epi32(byBlock, _mm512_packs_epi32(cb, cr)), middle);
            }
            block4(luma, coder.mLuma, out, half ? kLower : kUpper);
        }
        block4(chroma, coder.mChroma, out, kColour);
    }

    __attribute__((target("avx512f,avx512bw,avx512dq,avx512vl,bmi,bmi2,lzcnt"))) static std::uint8_t*
    codeStrip(const StripCoder& coder, ConstBitmapView pixels, std::uint8_t* to)
    {
        BitWriter bits(to);
        Coefficients unit;
        int lastDC[3] = {0, 0, 0};
        alignas(64) std::uint8_t edge[kRows][4 * kUnit];
        for (int x = 0; x < pixels.width; x += kUnit) {
            const int columns = std::min(kUnit, pixels.width - x);
            if (columns == kUnit) {
                codeUnit(coder, pixels.pixel(x, 0), pixels.rowBytes, unit);
            } else {
                // The last column goes on to the end of the block.
                for (int y = 0; y < kRows; ++y) {
                    std::memcpy(edge[y], pixels.pixel(x, y), std::size_t(columns) * 4);
                    for (int i = columns; i < kUnit; ++i)
                        std::memcpy(edge[y] + 4 * i, pixels.pixel(pixels.width - 1, y), 4);
                }
                codeUnit(coder, edge[0], 4 * kUnit, unit);
            }
            for (int macroblock = 0; macroblock < 2 && x + 16 * macroblock < pixels.width; ++macroblock) {
                const bool half = x + 16 * macroblock + 8 >= pixels.width;
                for (int i = 0; i < 6; ++i) {
                    const int slot = 6 * macroblock + i, component = i < 4 ? 0 : i - 3;
                    // A block wholly beyond the right edge is empty and repeats the brightness before it.
                    if (half && (i == 1 || i == 3)) {
                        unit.value[slot][0] = std::int16_t(lastDC[0]);
                        unit.nonZero[slot] = 0;
                    }
                    codeBlock(bits, unit.value[slot], unit.nonZero[slot], i < 4 ? coder.mLuma : coder.mChroma,
                              lastDC[component]);
                }
            }
        }
        return bits.finish();
    }
};

void StripCoder::encode(ConstBitmapView pixels, std::vector<std::uint8_t>& out) const
{
    // Room for the worst case; pages that no strip ever fills are never touched.
    thread_local std::vector<std::uint8_t> room;
    const std::size_t most = std::size_t((pixels.width + 15) / 16) * 6 * kMostBytesOfBlock + 64;
    if (room.size() < most) room.resize(most);
    std::uint8_t* const end = StripKernels::codeStrip(*this, pixels, room.data());
    out.assign(room.data(), end);
}

#else

void StripCoder::encode(ConstBitmapView, std::vector<std::uint8_t>& out) const { out.clear(); }

#endif

} // namespace zp

#if defined(__x86_64__)
#pragma GCC diagnostic pop
#endif
