// SPDX-License-Identifier: GPL-3.0-or-later
/// The LZW encoder: one hash probe a byte.
#include "codecs/TIFFLZW.h"
#include <cstring>

namespace zp::codec
{
namespace
{

constexpr unsigned kClear = 256, kEnd = 257, kFirst = 258, kLast = 4094, kShortest = 9;
constexpr std::uint32_t kEmpty = 0xFFFFFFFF; // no entry: it would be code 4095, which is never given out

/// Codes of varying width into bytes, the highest bit first.
struct CodeWriter {
    std::uint8_t* to;
    std::uint64_t bits = 0;
    unsigned count = 0;

    void put(unsigned code, unsigned width)
    {
        bits = bits << width | code;
        count += width;
        if (count < 32) return;
        count -= 32;
        const auto word = std::uint32_t(bits >> count);
        const std::uint32_t swapped = __builtin_bswap32(word);
        std::memcpy(to, &swapped, 4);
        to += 4;
    }
    void flush()
    {
        while (count > 0) {
            const unsigned n = count < 8 ? count : 8;
            *to++ = std::uint8_t((bits >> (count - n)) << (8 - n));
            count -= n;
        }
    }
};

} // namespace

void LZWEncoder::encode(std::span<const std::uint8_t> bytes, std::vector<std::uint8_t>& out)
{
    // The worst case is a code of 12 bits for every byte, and the clear codes.
    const std::size_t start = out.size(), most = bytes.size() * 3 / 2 + bytes.size() / 1000 + 32;
    out.resize(start + most);
    CodeWriter writer{out.data() + start};
    unsigned width = kShortest, next = kFirst;
    std::memset(mTable, 0xFF, sizeof mTable);
    writer.put(kClear, width);
    if (!bytes.empty()) {
        const std::uint8_t* p = bytes.data();
        const std::uint8_t* const end = p + bytes.size();
        std::uint32_t prefix = *p++;
        while (p != end) {
            const std::uint32_t byte = *p++, key = prefix << 8 | byte;
            std::uint32_t slot = (key * 0x9E3779B1u) >> (32 - kTableBits);
            while (mTable[slot] != kEmpty && mTable[slot] >> 12 != key) slot = (slot + 1) & ((1u << kTableBits) - 1);
            if (mTable[slot] != kEmpty) {
                prefix = mTable[slot] & 0xFFF;
                continue;
            }
            writer.put(prefix, width);
            prefix = byte;
            mTable[slot] = key << 12 | next++;
            if (next == kLast) {
                writer.put(kClear, width);
                std::memset(mTable, 0xFF, sizeof mTable);
                next = kFirst;
                width = kShortest;
            } else if (next > (1u << width) - 1) {
                ++width;
            }
        }
        writer.put(prefix, width);
        ++next;
        if (next == kLast) {
            writer.put(kClear, width);
            width = kShortest;
        } else if (next > (1u << width) - 1) {
            ++width;
        }
    }
    writer.put(kEnd, width);
    writer.flush();
    out.resize(std::size_t(writer.to - out.data()));
}

} // namespace zp::codec
