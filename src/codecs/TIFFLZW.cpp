// SPDX-License-Identifier: GPL-3.0-or-later
/// The encoder finds pairs of bytes in a table of their own and goes through runs in leaps; the decoder copies strings
/// from where they stood before.
#include "codecs/TIFFLZW.h"
#include "codecs/BitWriter.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace zp::codec
{
namespace
{

constexpr unsigned kClear = 256, kEnd = 257, kFirst = 258, kShortest = 9, kLongest = 12;
constexpr unsigned kLast = 4094; ///< behind it the table is started anew

constexpr std::size_t kLeastRun = 8; ///< bytes that have to follow their like
constexpr unsigned kSlotBits = 13;
constexpr std::uint32_t kEmpty = 0xFFFFFFFF; // no string: it would be code 4095, which is never given out

std::uint64_t load8(const std::uint8_t* p)
{
    std::uint64_t v;
    std::memcpy(&v, p, 8);
    return v;
}

std::uint64_t eightTimes(std::uint32_t byte) { return 0x0101010101010101u * byte; }

/// Behind the bytes from @p p on that are the same as the first.
const std::uint8_t* endOfRun(const std::uint8_t* p, const std::uint8_t* end)
{
    const std::uint32_t byte = *p;
    for (; end - p >= 8; p += 8)
        if (const std::uint64_t differences = load8(p) ^ eightTimes(byte)) return p + std::countr_zero(differences) / 8;
    while (p < end && *p == byte) ++p;
    return p;
}

/// Where the encoder stands. Handed on by value, and never by address: so it lives in registers, whatever the bytes
/// that are written might be taken to overlap with.
struct Cursor {
    BitWriter<BitOrder::HighFirst> out;
    unsigned width = kShortest, next = kFirst;
    unsigned limit = 0; ///< the number of the next code with which something changes
};

} // namespace

struct LZWEncoder::State {
    /// Codes of two bytes, under the number of the clear code since which they are known (20 bits over 12): most
    /// strings begin with a look here, which needs nothing but the bytes themselves.
    std::array<std::uint32_t, 65536> pairs{};
    /// Longer strings as prefix code and byte (20 bits) over the code they became, in an open table that is never more
    /// than half full; behind its last slot a search goes on.
    std::array<std::uint32_t, (std::size_t{1} << kSlotBits) + 4096> slots;
    /// Codes of one byte's runs by their length, as far as they are known since the last clear code.
    std::array<std::uint16_t, 4096> chain;
    std::size_t chainLength = 0;
    std::uint32_t chainByte = 0;

    std::uint32_t clears = 0;

    Cursor clear(Cursor c);
    std::uint32_t takeString(const std::uint8_t*& p, const std::uint8_t* end, const std::uint8_t*& runEnd,
                             unsigned next);
};

Cursor LZWEncoder::State::clear(Cursor c)
{
    c.out.put(kClear, c.width);
    c.out.drain();
    slots.fill(kEmpty);
    chainLength = 0;
    if (++clears == 1u << 20) {
        pairs.fill(0);
        clears = 1;
    }
    return {.out = c.out, .limit = 1u << kShortest};
}

/// Takes the longest string that is known, and makes it known with the byte behind it as @p next. @return its code
[[gnu::always_inline]] inline std::uint32_t LZWEncoder::State::takeString(const std::uint8_t*& p,
                                                                          const std::uint8_t* end,
                                                                          const std::uint8_t*& runEnd, unsigned next)
{
    std::uint32_t prefix = *p++;
    if (p == end) return prefix;
    bool run = false;
    if (end - p >= std::ptrdiff_t(kLeastRun) && load8(p) == eightTimes(prefix)) {
        // A run's first bytes need no looking up as far as its codes have been met.
        run = true;
        if (p >= runEnd) runEnd = endOfRun(p, end);
        if (chainLength == 0 || chainByte != prefix) {
            chain[1] = std::uint16_t(prefix);
            chainLength = 1;
            chainByte = prefix;
        }
        const std::size_t known = std::min(chainLength, std::size_t(runEnd - p) + 1);
        prefix = chain[known];
        p += known - 1;
    }
    // While strings are runs that go on, the chain grows.
    const auto grow = [&](std::uint32_t code) {
        if (run && p < runEnd) chain[++chainLength] = std::uint16_t(code);
    };
    if (prefix < 256 && p < end) {
        std::uint32_t& pair = pairs[prefix << 8 | *p];
        if (pair >> 12 != clears) {
            pair = clears << 12 | next;
            grow(next);
            return prefix;
        }
        prefix = pair & 0xFFF;
        grow(prefix);
        ++p;
    }
    for (; p < end; ++p) {
        const std::uint32_t key = prefix << 8 | *p;
        std::uint32_t* slot = &slots[(key * 0x9E3779B1u) >> (32 - kSlotBits)];
        while (*slot >> 12 != key && *slot != kEmpty) ++slot;
        if (*slot == kEmpty) {
            *slot = key << 12 | next;
            grow(next);
            return prefix;
        }
        prefix = *slot & 0xFFF;
        grow(prefix);
    }
    return prefix;
}

LZWEncoder::LZWEncoder() : d(std::make_unique<State>()) {}
LZWEncoder::~LZWEncoder() = default;

void LZWEncoder::encode(std::span<const std::uint8_t> bytes, std::vector<std::uint8_t>& out)
{
    // The worst case is a code of 12 bits for every byte, and the clear codes.
    out.resize(bytes.size() * 3 / 2 + bytes.size() / 1000 + 64);
    State& s = *d;
    Cursor c = s.clear({.out = BitWriter<BitOrder::HighFirst>(out.data())});
    const std::uint8_t *p = bytes.data(), *const end = p + bytes.size(), *runEnd = p;
    while (p < end) {
        c.out.put(s.takeString(p, end, runEnd, c.next), c.width);
        c.out.drain();
        if (++c.next != c.limit) continue;
        if (c.next == kLast) {
            c = s.clear(c);
        } else {
            ++c.width;
            c.limit = c.width == kLongest ? kLast : 1u << c.width;
        }
    }
    c.out.put(kEnd, c.width);
    out.resize(std::size_t(c.out.finish() - out.data()));
}

bool LZWDecoder::handles(std::span<const std::uint8_t> strip)
{
    return strip.size() < 2 || strip[0] != 0 || (strip[1] & 1) == 0;
}

std::size_t LZWDecoder::decode(std::span<const std::uint8_t> strip, std::uint8_t* to, std::size_t size)
{
    const std::size_t bits = 8 * strip.size();
    // Eight bytes are read at a time; near the strip's end from a copy with zeros behind it.
    std::uint8_t tail[16] = {};
    const std::size_t tailAt = strip.size() < 8 ? 0 : strip.size() - 8;
    std::copy(strip.begin() + std::ptrdiff_t(tailAt), strip.end(), tail);
    std::size_t at = 0, written = 0;
    unsigned width = kShortest, next = kFirst;
    const auto read = [&] {
        const std::size_t byte = at / 8;
        const std::uint64_t word =
            __builtin_bswap64(load8(byte < tailAt ? strip.data() + byte : tail + (byte - tailAt)));
        const auto code = unsigned(word << (at % 8) >> (64 - width));
        at += width;
        return code;
    };
    const auto put = [&](const Entry& entry) {
        const std::size_t length = std::min<std::size_t>(entry.length, size - written);
        std::memcpy(to + written, &entry.head, 8);
        for (std::size_t i = 8; i < length; i += 16) {
            // Taken before any is put: a string that repeats itself lies over its own end, by the byte that the head
            // has put there already.
            std::uint8_t sixteen[16];
            std::memcpy(sixteen, to + entry.at + i, 16);
            std::memcpy(to + written + i, sixteen, 16);
        }
        written += length;
    };
    for (std::uint64_t byte = 0; byte < 256; ++byte) mTable[byte] = {byte, 0, 1};
    Entry last{}; // the string before, empty behind a clear code
    while (written < size && at + width <= bits) {
        const unsigned code = read();
        if (code == kEnd) break;
        if (code == kClear) {
            width = kShortest;
            next = kFirst;
            last = {};
            continue;
        }
        const bool first = last.length == 0, repeats = code == next;
        if (first ? code > 255 : code > next) break; // no such string
        Entry entry = mTable[code];
        if (!first && next < mTable.size()) {
            // The string before and the first byte of this one: it stands where the one before stands, and a byte
            // further.
            const std::uint64_t byte = (repeats ? last.head : entry.head) & 0xFF;
            Entry added{last.head, last.at, last.length + 1};
            if (last.length < 8) added.head |= byte << (8 * last.length);
            mTable[next++] = added;
            if (repeats) entry = added;
            if (next >= (1u << width) - 1 && width < kLongest) ++width;
        }
        const std::size_t start = written;
        put(entry);
        last = {entry.head, std::uint32_t(start), entry.length};
    }
    return written;
}

} // namespace zp::codec
