// SPDX-License-Identifier: GPL-3.0-or-later
/// A deflate encoder for filtered pixels: runs of equal bytes or pixels, and codes fitted block by block.
///
/// After PNG's filters hardly anything but runs repeats: a search for other matches finds chance ones, which cost more
/// time than all the rest and more bytes than the literals they stand for.
#include "codecs/PNGDeflate.h"
#include "codecs/BitWriter.h"
#include "codecs/PrefixCode.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "codecs/PNGDeflate.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#ifndef ZP_PNG_DEFLATE_ONCE
#define ZP_PNG_DEFLATE_ONCE
namespace zp::codec
{
namespace
{

constexpr unsigned kMaxMatch = 258;
/// A block ends where its codes should be fitted anew: behind so many literals and runs, looked at every so many bytes.
constexpr std::size_t kBlockTokens = 1 << 15, kBlockStep = 1 << 16, kBlockRuns = 1 << 14;

/// Literals, and a run behind them.
struct Run {
    std::uint32_t literals;
    std::uint16_t length, distance; ///< the latter 1 to 4, whose codes are the number less one
};

/// What a block is made of: behind the last run there may be more literals.
struct Runs {
    std::array<Run, kBlockRuns> run;
    std::size_t count = 0;
    std::size_t covered = 0;  ///< bytes that the runs stand for
    std::size_t literals = 0; ///< where the bytes begin that no run has taken yet
};

std::size_t commonBytes(const std::uint8_t* a, const std::uint8_t* b, std::size_t most)
{
    std::size_t n = 0;
    while (n + 8 <= most) {
        std::uint64_t x, y;
        std::memcpy(&x, a + n, 8);
        std::memcpy(&y, b + n, 8);
        if (x != y) return n + std::size_t(std::countr_zero(x ^ y)) / 8;
        n += 8;
    }
    while (n < most && a[n] == b[n]) ++n;
    return n;
}

/// Whether so many bits in a row are set from here on, for every bit.
constexpr std::size_t kLeastRun = 4;
std::uint64_t runStarts(std::uint64_t bits)
{
    bits &= bits >> 1;
    return bits & bits >> 2;
}

} // namespace
} // namespace zp::codec
#endif

HWY_BEFORE_NAMESPACE();
namespace zp::codec::HWY_NAMESPACE
{
namespace
{
namespace hn = hwy::HWY_NAMESPACE;
using D8 = hn::CappedTag<std::uint8_t, 64>;

HWY_INLINE std::uint64_t equalBits(hn::Vec<D8> here, const std::uint8_t* there)
{
    const D8 d;
    std::uint8_t bytes[8] = {};
    hn::StoreMaskBits(d, hn::Eq(here, hn::LoadU(d, there)), bytes);
    std::uint64_t bits;
    std::memcpy(&bits, bytes, 8);
    return bits;
}

/// Adds the runs of bytes from @p at to at least @p until that are the same as those one or @p step before them; of
/// @p size bytes the last few are not looked at. @return behind the last byte that was taken: further than @p until
/// where a run goes on, earlier where there is no room for more runs
std::size_t findRuns(const std::uint8_t* bytes, std::size_t at, std::size_t until, std::size_t size, unsigned step,
                     Runs& runs)
{
    const D8 d;
    const std::size_t n = hn::Lanes(d), fresh = n - kLeastRun + 1;
    std::size_t& literals = runs.literals;
    for (std::size_t i = std::max<std::size_t>(at, step); i < until && i + n <= size;) {
        const auto here = hn::LoadU(d, bytes + i);
        const std::uint64_t one = equalBits(here, bytes + i - 1), other = equalBits(here, bytes + i - step);
        std::uint64_t starts = runStarts(one) | runStarts(other);
        std::size_t next = i + fresh;
        while (starts != 0) {
            const int place = std::countr_zero(starts);
            const auto length1 = std::size_t(std::countr_one(one >> place));
            const auto length2 = std::size_t(std::countr_one(other >> place));
            const unsigned distance = length1 >= length2 ? 1 : step;
            const std::size_t start = i + std::size_t(place);
            std::size_t end = start + std::max(length1, length2);
            if (end == i + n) end += commonBytes(bytes + end - distance, bytes + end, size - end);
            while (end - literals >= 3 && literals < end) {
                if (runs.count == kBlockRuns) return literals;
                // Of a longer run at least three bytes are left for another code.
                const std::size_t from = std::max(literals, start), left = end - from;
                const std::size_t length = left <= kMaxMatch ? left : std::min<std::size_t>(kMaxMatch, left - 3);
                runs.run[runs.count++] = {std::uint32_t(from - literals), std::uint16_t(length),
                                          std::uint16_t(distance)};
                runs.covered += length;
                literals = from + length;
            }
            if (end >= next) {
                next = end;
                break;
            }
            starts &= ~std::uint64_t{0} << (end - i);
        }
        i = next;
    }
    return std::max(literals, until);
}

} // namespace
} // namespace zp::codec::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp::codec
{
HWY_EXPORT(findRuns);

namespace
{

constexpr unsigned kLongestCode = 14; // four literals and what waits fit 64 bits
constexpr unsigned kLiterals = 286, kDistances = 30, kEndOfBlock = 256, kLengthCodes = 19;

struct Extra {
    std::uint16_t base;
    std::uint8_t bits;
};
constexpr std::array<Extra, 29> kLengths{{{3, 0},   {4, 0},   {5, 0},   {6, 0},   {7, 0},  {8, 0},  {9, 0},  {10, 0},
                                          {11, 1},  {13, 1},  {15, 1},  {17, 1},  {19, 2}, {23, 2}, {27, 2}, {31, 2},
                                          {35, 3},  {43, 3},  {51, 3},  {59, 3},  {67, 4}, {83, 4}, {99, 4}, {115, 4},
                                          {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0}}};
struct Symbols {
    std::array<std::uint8_t, 256> ofLength{}; ///< by length - 3
    constexpr Symbols()
    {
        for (unsigned length = 3; length <= kMaxMatch; ++length) {
            unsigned s = 0;
            while (s + 1 < kLengths.size() && kLengths[s + 1].base <= length) ++s;
            ofLength[length - 3] = std::uint8_t(s);
        }
    }
};
constexpr Symbols kSymbols;

using Writer = BitWriter<BitOrder::LowFirst>;

} // namespace

struct StripDeflater::Private {
    Runs runs;
    PrefixCode<kLiterals> literals;
    PrefixCode<kDistances> distances;

    std::uint64_t fitCodes(std::span<const std::uint8_t> raw);
    void writeBlock(Writer& out, std::span<const std::uint8_t> raw, bool last);
    void writeCodes(Writer& out);
    void writeTokens(Writer& out, std::span<const std::uint8_t> block) const;
};

/// @return about how many bits the block will take
std::uint64_t StripDeflater::Private::fitCodes(std::span<const std::uint8_t> raw)
{
    // Four counters take turns: the same byte twice in a row would wait for its own count.
    std::array<std::array<std::uint32_t, 256>, 4> counts{};
    literals.frequency.fill(0);
    distances.frequency.fill(0);
    const std::uint8_t* at = raw.data();
    const auto count = [&](std::size_t n) {
        std::size_t i = 0;
        for (; i + 4 <= n; i += 4)
            for (std::size_t k = 0; k < 4; ++k) ++counts[k][at[i + k]];
        for (; i < n; ++i) ++counts[0][at[i]];
        at += n;
    };
    for (std::size_t i = 0; i < runs.count; ++i) {
        count(runs.run[i].literals);
        at += runs.run[i].length;
        ++literals.frequency[257u + kSymbols.ofLength[runs.run[i].length - 3]];
        ++distances.frequency[runs.run[i].distance - 1u];
    }
    count(std::size_t(raw.data() + raw.size() - at));
    for (const auto& counter : counts)
        for (std::size_t i = 0; i < 256; ++i) literals.frequency[i] += counter[i];
    literals.frequency[kEndOfBlock] = 1;
    literals.build(kLongestCode);
    distances.build(kLongestCode);
    std::uint64_t bits = 600;
    for (unsigned s = 0; s < kLiterals; ++s)
        bits += std::uint64_t{literals.frequency[s]} * (literals.length[s] + (s > 256 ? kLengths[s - 257].bits : 0u));
    for (unsigned s = 0; s < kDistances; ++s) bits += std::uint64_t{distances.frequency[s]} * distances.length[s];
    return bits;
}

/// The lengths of both codes, run-length coded, under a code of their own.
void StripDeflater::Private::writeCodes(Writer& out)
{
    unsigned literalCount = kLiterals, distanceCount = kDistances;
    while (literalCount > 257 && literals.length[literalCount - 1] == 0) --literalCount;
    while (distanceCount > 1 && distances.length[distanceCount - 1] == 0) --distanceCount;
    std::array<std::uint8_t, kLiterals + kDistances> lengths{};
    std::copy_n(literals.length.begin(), literalCount, lengths.begin());
    std::copy_n(distances.length.begin(), distanceCount, lengths.begin() + literalCount);

    struct Repeat {
        std::uint8_t symbol, extra, bits;
    };
    std::array<Repeat, kLiterals + kDistances> repeats{};
    unsigned repeatCount = 0;
    PrefixCode<kLengthCodes> code;
    const auto add = [&](unsigned symbol, unsigned extra, unsigned bits) {
        repeats[repeatCount++] = {std::uint8_t(symbol), std::uint8_t(extra), std::uint8_t(bits)};
        ++code.frequency[symbol];
    };
    const unsigned all = literalCount + distanceCount;
    for (unsigned i = 0; i < all;) {
        unsigned same = 1;
        while (i + same < all && lengths[i + same] == lengths[i]) ++same;
        if (lengths[i] == 0 && same >= 3) {
            same = std::min(same, 138u);
            if (same >= 11)
                add(18, same - 11, 7);
            else
                add(17, same - 3, 3);
        } else if (same >= 4) {
            same = std::min(same, 7u);
            add(lengths[i], 0, 0);
            add(16, same - 4, 2);
        } else {
            same = 1;
            add(lengths[i], 0, 0);
        }
        i += same;
    }
    code.build(7);
    static constexpr std::array<std::uint8_t, kLengthCodes> kOrder{16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                                   11, 4,  12, 3, 13, 2, 14, 1, 15};
    unsigned codeCount = kLengthCodes;
    while (codeCount > 4 && code.length[kOrder[codeCount - 1]] == 0) --codeCount;
    out.put(literalCount - 257, 5);
    out.put(distanceCount - 1, 5);
    out.put(codeCount - 4, 4);
    out.drain();
    for (unsigned i = 0; i < codeCount; ++i) {
        out.put(code.length[kOrder[i]], 3);
        out.drain();
    }
    for (unsigned i = 0; i < repeatCount; ++i) {
        out.put(code.code[repeats[i].symbol], code.length[repeats[i].symbol]);
        out.put(repeats[i].extra, repeats[i].bits);
        out.drain();
    }
}

void StripDeflater::Private::writeTokens(Writer& writer, std::span<const std::uint8_t> block) const
{
    const std::uint8_t* raw = block.data();
    Writer out = writer; // of its own, so that it lives in registers
    const auto put = [&](unsigned symbol) { out.put(literals.code[symbol], literals.length[symbol]); };
    const auto putLiterals = [&](std::size_t count) {
        for (; count >= 4; count -= 4, raw += 4) {
            for (std::size_t i = 0; i < 4; ++i) put(raw[i]);
            out.drain();
        }
        for (; count > 0; --count) put(*raw++);
        out.drain();
    };
    for (std::size_t i = 0; i < runs.count; ++i) {
        putLiterals(runs.run[i].literals);
        const unsigned length = runs.run[i].length, l = kSymbols.ofLength[length - 3],
                       distance = runs.run[i].distance - 1u;
        put(257 + l);
        out.put(length - kLengths[l].base, kLengths[l].bits);
        out.put(distances.code[distance], distances.length[distance]);
        out.drain();
        raw += length;
    }
    putLiterals(std::size_t(block.data() + block.size() - raw));
    put(kEndOfBlock);
    out.drain();
    writer = out;
}

void StripDeflater::Private::writeBlock(Writer& out, std::span<const std::uint8_t> raw, bool last)
{
    if (fitCodes(raw) / 8 < raw.size()) {
        out.put(last, 1);
        out.put(2, 2);
        writeCodes(out);
        writeTokens(out, raw);
        return;
    }
    // Noise: stored as it is.
    do {
        const std::size_t n = std::min<std::size_t>(raw.size(), 65535);
        out.put(last && n == raw.size(), 1);
        out.put(0, 2);
        out.moveTo(out.finish());
        out.put(n | (~n & 0xFFFF) << 16, 32);
        out.drain();
        if (n > 0) std::memcpy(out.position(), raw.data(), n);
        out.moveTo(out.position() + n);
        raw = raw.subspan(n);
    } while (!raw.empty());
}

StripDeflater::StripDeflater(unsigned step) : d(std::make_unique<Private>()), mStep(step) {}
StripDeflater::~StripDeflater() = default;

void StripDeflater::deflate(std::span<const std::uint8_t> bytes, bool last, std::vector<std::uint8_t>& out)
{
    Private& p = *d;
    const std::size_t before = out.size(), size = bytes.size();
    // Blocks that do not shrink are stored: five bytes more in 64 kB, and what the writer may write ahead.
    out.resize(before + size + size / 4000 + 1024);
    Writer writer(out.data() + before);
    std::size_t at = 0;
    do {
        const std::size_t start = at;
        p.runs.count = p.runs.covered = 0;
        p.runs.literals = at;
        do at = HWY_DYNAMIC_DISPATCH(findRuns)(bytes.data(), at, std::min(size, at + kBlockStep), size, mStep, p.runs);
        while (at < size && at - start - p.runs.covered + p.runs.count < kBlockTokens && p.runs.count < kBlockRuns);
        p.writeBlock(writer, bytes.subspan(start, at - start), last && at == size);
    } while (at < size);
    if (!last) {
        writer.put(0, 3); // an empty stored block brings the stream to a whole byte
        writer.moveTo(writer.finish());
        static constexpr std::uint8_t kEmpty[] = {0, 0, 0xFF, 0xFF};
        std::memcpy(writer.position(), kEmpty, 4);
        writer.moveTo(writer.position() + 4);
    }
    out.resize(std::size_t(writer.finish() - out.data()));
}

std::uint32_t combinedAdler(std::uint32_t first, std::uint32_t second, std::size_t secondBytes)
{
    constexpr std::uint64_t kBase = 65521;
    const std::uint64_t a1 = first & 0xFFFF, b1 = first >> 16, a2 = second & 0xFFFF, b2 = second >> 16;
    const std::uint64_t a = (a1 + a2 + kBase - 1) % kBase;
    const std::uint64_t b = (b1 + b2 + (secondBytes % kBase) * ((a1 + kBase - 1) % kBase)) % kBase;
    return std::uint32_t(b << 16 | a);
}

} // namespace zp::codec
#endif
