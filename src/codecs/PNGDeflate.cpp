// SPDX-License-Identifier: GPL-3.0-or-later
/// A deflate encoder for filtered pixels: two probes a position, fewer where nothing repeats, codes fitted block by
/// block.
///
/// Written here because strips must end on whole bytes so that they can be joined, which the fast library at hand
/// cannot do, and because photographs after PNG's filters hardly repeat: looking for matches there is what makes others
/// slow.
#include "codecs/PNGDeflate.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace zp::codec
{
namespace
{

constexpr unsigned kWindow = 32768, kMinMatch = 4, kMaxMatch = 258, kHashBits = 14, kBlockTokens = 32768;
constexpr unsigned kLiterals = 286, kDistances = 30, kEndOfBlock = 256, kLengthCodes = 19;
constexpr std::uint32_t kMatchFlag = 0x80000000; // over length - 3 (8 bits) and distance - 1 (16 bits)

struct Extra {
    std::uint16_t base;
    std::uint8_t bits;
};
constexpr std::array<Extra, 29> kLengths{{{3, 0},   {4, 0},   {5, 0},   {6, 0},   {7, 0},  {8, 0},  {9, 0},  {10, 0},
                                          {11, 1},  {13, 1},  {15, 1},  {17, 1},  {19, 2}, {23, 2}, {27, 2}, {31, 2},
                                          {35, 3},  {43, 3},  {51, 3},  {59, 3},  {67, 4}, {83, 4}, {99, 4}, {115, 4},
                                          {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0}}};
constexpr std::array<Extra, 30> kOffsets{{{1, 0},     {2, 0},     {3, 0},     {4, 0},      {5, 1},      {7, 1},
                                          {9, 2},     {13, 2},    {17, 3},    {25, 3},     {33, 4},     {49, 4},
                                          {65, 5},    {97, 5},    {129, 6},   {193, 6},    {257, 7},    {385, 7},
                                          {513, 8},   {769, 8},   {1025, 9},  {1537, 9},   {2049, 10},  {3073, 10},
                                          {4097, 11}, {6145, 11}, {8193, 12}, {12289, 12}, {16385, 13}, {24577, 13}}};

struct Symbols {
    std::array<std::uint8_t, 256> ofLength{};   ///< by length - 3
    std::array<std::uint8_t, 512> ofDistance{}; ///< by distance - 1 below 256, else by 256 + (distance - 1) / 128
    constexpr Symbols()
    {
        for (unsigned length = 3; length <= kMaxMatch; ++length) {
            unsigned s = 0;
            while (s + 1 < kLengths.size() && kLengths[s + 1].base <= length) ++s;
            ofLength[length - 3] = std::uint8_t(s);
        }
        for (unsigned i = 0; i < 512; ++i) {
            const unsigned distance = (i < 256 ? i : (i - 256) * 128) + 1;
            unsigned s = 0;
            while (s + 1 < kOffsets.size() && kOffsets[s + 1].base <= distance) ++s;
            ofDistance[i] = std::uint8_t(s);
        }
    }
    unsigned distance(unsigned lessOne) const { return ofDistance[lessOne < 256 ? lessOne : 256 + (lessOne >> 7)]; }
};
constexpr Symbols kSymbols;

std::uint32_t load4(const std::uint8_t* p)
{
    std::uint32_t v;
    std::memcpy(&v, p, 4);
    return v;
}

std::size_t commonBytes(const std::uint8_t* a, const std::uint8_t* b, std::size_t most)
{
    std::size_t n = 0;
    while (n + 8 <= most) {
        std::uint64_t x, y;
        std::memcpy(&x, a + n, 8);
        std::memcpy(&y, b + n, 8);
        if (x != y) return n + std::size_t(__builtin_ctzll(x ^ y)) / 8;
        n += 8;
    }
    while (n < most && a[n] == b[n]) ++n;
    return n;
}

/// Bits into bytes, the lowest first.
struct BitWriter {
    std::uint8_t* to;
    std::uint64_t bits = 0;
    unsigned count = 0;

    void put(std::uint64_t value, unsigned width)
    {
        bits |= value << count;
        count += width;
    }
    void drain()
    {
        std::memcpy(to, &bits, 8); // there is always room for eight bytes
        to += count / 8;
        bits >>= count & ~7u;
        count &= 7;
    }
    void align()
    {
        drain();
        if (count > 0) {
            *to++ = std::uint8_t(bits);
            bits = 0;
            count = 0;
        }
    }
};

/// A prefix code of at most @p N symbols: lengths, and codes ready to be written.
template <unsigned N>
struct Code {
    std::array<std::uint32_t, N> frequency{};
    std::array<std::uint8_t, N> length{};
    std::array<std::uint16_t, N> code{};

    void build(unsigned longest)
    {
        std::array<std::uint32_t, N> order{}; // symbols in use, rarest first
        unsigned used = 0;
        for (unsigned s = 0; s < N; ++s) used += frequency[s] > 0;
        // Two codes at least, so that the code is complete for every decoder.
        for (unsigned s = 0; used < 2; ++s)
            if (frequency[s] == 0) {
                frequency[s] = 1;
                ++used;
            }
        used = 0;
        for (unsigned s = 0; s < N; ++s)
            if (frequency[s] > 0) order[used++] = s;
        std::sort(order.begin(), order.begin() + used, [&](std::uint32_t a, std::uint32_t b) {
            return frequency[a] != frequency[b] ? frequency[a] < frequency[b] : a < b;
        });

        std::array<std::uint32_t, 64> countOf{};
        countLengths(order, used, countOf);
        // Too long codes are cut to the longest allowed; shorter ones give way until the code is complete again.
        std::uint64_t total = 0;
        for (unsigned i = longest + 1; i < countOf.size(); ++i) countOf[longest] += std::exchange(countOf[i], 0);
        for (unsigned i = 1; i <= longest; ++i) total += std::uint64_t{countOf[i]} << (longest - i);
        while (total != std::uint64_t{1} << longest) {
            --countOf[longest];
            for (unsigned i = longest - 1; i > 0; --i)
                if (countOf[i]) {
                    --countOf[i];
                    countOf[i + 1] += 2;
                    break;
                }
            --total;
        }
        length.fill(0);
        unsigned next = used;
        for (unsigned bits = 1; bits <= longest; ++bits)
            for (unsigned i = 0; i < countOf[bits]; ++i) length[order[--next]] = std::uint8_t(bits);
        assign(countOf, longest);
    }

private:
    /// How many codes of each length the best prefix code has: two queues, merged from the rarest.
    void countLengths(const std::array<std::uint32_t, N>& order, unsigned used,
                      std::array<std::uint32_t, 64>& countOf) const
    {
        std::array<std::uint64_t, 2 * N> weight{};
        std::array<std::uint16_t, 2 * N> parent{};
        for (unsigned i = 0; i < used; ++i) weight[i] = frequency[order[i]];
        unsigned leaf = 0, inner = used, made = used;
        const auto lightest = [&] {
            if (leaf < used && (inner >= made || weight[leaf] <= weight[inner])) return leaf++;
            return inner++;
        };
        while (made < 2 * used - 1) {
            const unsigned a = lightest(), b = lightest();
            weight[made] = weight[a] + weight[b];
            parent[a] = parent[b] = std::uint16_t(made);
            ++made;
        }
        std::array<std::uint8_t, 2 * N> depth{};
        for (unsigned i = 2 * used - 2; i-- > 0;) {
            depth[i] = std::uint8_t(depth[parent[i]] + 1);
            if (i < used) ++countOf[std::min<unsigned>(depth[i], 63)];
        }
    }
    void assign(const std::array<std::uint32_t, 64>& countOf, unsigned longest)
    {
        std::array<std::uint32_t, 65> next{};
        for (unsigned bits = 1; bits <= longest; ++bits) next[bits + 1] = (next[bits] + countOf[bits]) << 1;
        for (unsigned s = 0; s < N; ++s) {
            if (length[s] == 0) continue;
            std::uint32_t c = next[length[s]]++, reversed = 0;
            for (unsigned i = 0; i < length[s]; ++i, c >>= 1) reversed = reversed << 1 | (c & 1);
            code[s] = std::uint16_t(reversed);
        }
    }
};

} // namespace

struct StripDeflater::Private {
    std::array<std::array<std::uint32_t, 2>, std::size_t{1} << kHashBits>
        head; ///< the last two positions + 1 of a hash
    std::array<std::uint32_t, kBlockTokens> tokens;
    unsigned tokenCount = 0;
    Code<kLiterals> literals;
    Code<kDistances> distances;
    std::array<std::uint32_t, 256> secondCount; ///< of literals, beside the code's own

    /// Two counters take turns: the same byte twice in a row would wait for its own count.
    void literalRun(const std::uint8_t* bytes, std::size_t count)
    {
        std::uint32_t* to = &tokens[tokenCount];
        std::size_t i = 0;
        for (; i + 2 <= count; i += 2) {
            to[i] = bytes[i];
            to[i + 1] = bytes[i + 1];
            ++literals.frequency[bytes[i]];
            ++secondCount[bytes[i + 1]];
        }
        if (i < count) {
            to[i] = bytes[i];
            ++literals.frequency[bytes[i]];
        }
        tokenCount += unsigned(count);
    }
    void match(unsigned length, unsigned distance)
    {
        tokens[tokenCount++] = kMatchFlag | (length - 3) << 16 | (distance - 1);
        ++literals.frequency[257u + kSymbols.ofLength[length - 3]];
        ++distances.frequency[kSymbols.distance(distance - 1)];
    }
    void startBlock()
    {
        tokenCount = 0;
        literals.frequency.fill(0);
        secondCount.fill(0);
        distances.frequency.fill(0);
    }
    void writeBlock(BitWriter& out, std::span<const std::uint8_t> raw, bool last);
    void writeCodes(BitWriter& out);
    void writeTokens(BitWriter& out) const;
};

/// The lengths of both codes, run-length coded, under a code of their own.
void StripDeflater::Private::writeCodes(BitWriter& out)
{
    unsigned literalCount = kLiterals, distanceCount = kDistances;
    while (literalCount > 257 && literals.length[literalCount - 1] == 0) --literalCount;
    while (distanceCount > 1 && distances.length[distanceCount - 1] == 0) --distanceCount;
    std::array<std::uint8_t, kLiterals + kDistances> lengths{};
    std::copy_n(literals.length.begin(), literalCount, lengths.begin());
    std::copy_n(distances.length.begin(), distanceCount, lengths.begin() + literalCount);

    struct Run {
        std::uint8_t symbol, extra, bits;
    };
    std::array<Run, kLiterals + kDistances> runs{};
    unsigned runCount = 0;
    Code<kLengthCodes> code;
    const auto add = [&](unsigned symbol, unsigned extra, unsigned bits) {
        runs[runCount++] = {std::uint8_t(symbol), std::uint8_t(extra), std::uint8_t(bits)};
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
    for (unsigned i = 0; i < runCount; ++i) {
        out.put(code.code[runs[i].symbol], code.length[runs[i].symbol]);
        out.put(runs[i].extra, runs[i].bits);
        out.drain();
    }
}

void StripDeflater::Private::writeTokens(BitWriter& out) const
{
    for (unsigned i = 0; i < tokenCount; ++i) {
        const std::uint32_t token = tokens[i];
        if (!(token & kMatchFlag)) {
            out.put(literals.code[token], literals.length[token]);
            if (out.count >= 40) out.drain();
            continue;
        }
        out.drain();
        const unsigned length = (token >> 16 & 0xFF) + 3, distance = (token & 0xFFFF) + 1;
        const unsigned l = kSymbols.ofLength[length - 3], d = kSymbols.distance(distance - 1);
        out.put(literals.code[257 + l], literals.length[257 + l]);
        out.put(length - kLengths[l].base, kLengths[l].bits);
        out.put(distances.code[d], distances.length[d]);
        out.put(distance - kOffsets[d].base, kOffsets[d].bits); // 15 + 5 + 15 + 13 bits and 7 waiting: they fit
        out.drain();
    }
    out.drain();
    out.put(literals.code[kEndOfBlock], literals.length[kEndOfBlock]);
    out.drain();
}

void StripDeflater::Private::writeBlock(BitWriter& out, std::span<const std::uint8_t> raw, bool last)
{
    for (std::size_t i = 0; i < secondCount.size(); ++i) literals.frequency[i] += secondCount[i];
    literals.frequency[kEndOfBlock] = 1;
    literals.build(15);
    distances.build(15);
    std::uint64_t bits = 600;
    for (unsigned s = 0; s < kLiterals; ++s)
        bits += std::uint64_t{literals.frequency[s]} * (literals.length[s] + (s > 256 ? kLengths[s - 257].bits : 0u));
    for (unsigned s = 0; s < kDistances; ++s)
        bits += std::uint64_t{distances.frequency[s]} * (distances.length[s] + std::uint64_t{kOffsets[s].bits});
    if (bits / 8 < raw.size()) {
        out.put(last, 1);
        out.put(2, 2);
        writeCodes(out);
        writeTokens(out);
        return;
    }
    // Noise: stored as it is.
    do {
        const std::size_t n = std::min<std::size_t>(raw.size(), 65535);
        out.put(last && n == raw.size(), 1);
        out.put(0, 2);
        out.align();
        out.put(n | (~n & 0xFFFF) << 16, 32);
        out.drain();
        if (n > 0) std::memcpy(out.to, raw.data(), n);
        out.to += n;
        raw = raw.subspan(n);
    } while (!raw.empty());
}

StripDeflater::StripDeflater() : d(std::make_unique<Private>()) {}
StripDeflater::~StripDeflater() = default;

void StripDeflater::deflate(std::span<const std::uint8_t> bytes, bool last, std::vector<std::uint8_t>& out)
{
    Private& p = *d;
    const std::size_t start = out.size();
    // Blocks that do not shrink are stored: five bytes more in 64 kB, and what the writer may write ahead.
    out.resize(start + bytes.size() + bytes.size() / 4000 + 1024);
    BitWriter writer{out.data() + start};
    const std::uint8_t* const data = bytes.data();
    const std::size_t size = bytes.size();
    for (auto& bucket : p.head) bucket = {0, 0};
    p.startBlock();
    std::size_t at = 0, blockStart = 0;
    unsigned misses = 0;
    const auto endBlock = [&](bool final) {
        p.writeBlock(writer, bytes.subspan(blockStart, at - blockStart), final);
        p.startBlock();
        blockStart = at;
    };
    const auto bucketOf = [&](std::size_t position) -> auto&
    {
        return p.head[(load4(data + position) * 0x9E3779B1u) >> (32 - kHashBits)];
    };
    const auto remember = [](auto& bucket, std::size_t position) {
        bucket[1] = bucket[0];
        bucket[0] = std::uint32_t(position + 1);
    };
    while (at < size) {
        unsigned length = 0, distance = 0;
        if (size - at >= 8) {
            auto& bucket = bucketOf(at);
            for (const std::uint32_t candidate : bucket) {
                if (candidate == 0 || at - (candidate - 1) > kWindow) continue;
                const std::uint8_t* from = data + candidate - 1;
                if (load4(from) != load4(data + at)) continue;
                const auto n =
                    unsigned(4 + commonBytes(from + 4, data + at + 4, std::min<std::size_t>(kMaxMatch, size - at) - 4));
                const auto away = unsigned(at - (candidate - 1));
                if (n > length) {
                    length = n;
                    distance = away;
                }
            }
            remember(bucket, at);
            // A short match far away costs more than its literals.
            if (length < (distance <= 64 ? 4u : distance <= 1024 ? 5u : 6u)) length = 0;
        }
        if (length > 0) {
            p.match(length, distance);
            at += length;
            misses = length >= 16 ? 0 : misses - std::min(misses, 2 * length); // short ones in noise are chance
            // The run's last position, so that what goes on is found close by.
            if (size - at >= 4) remember(bucketOf(at - 1), at - 1);
        } else {
            // Where nothing repeats fewer and fewer positions are looked up.
            const std::size_t step =
                std::min<std::size_t>({1 + std::min(misses, 960u) / 32, size - at, kBlockTokens - p.tokenCount});
            p.literalRun(data + at, step);
            at += step;
            misses += unsigned(step);
        }
        if (p.tokenCount == kBlockTokens) endBlock(last && at == size);
    }
    if (blockStart < size || size == 0) endBlock(last);
    if (!last) {
        writer.put(0, 3); // an empty stored block brings the stream to a whole byte
        writer.align();
        static constexpr std::uint8_t kEmpty[] = {0, 0, 0xFF, 0xFF};
        std::memcpy(writer.to, kEmpty, 4);
        writer.to += 4;
    } else {
        writer.align();
    }
    out.resize(std::size_t(writer.to - out.data()));
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
