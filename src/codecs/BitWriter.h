// SPDX-License-Identifier: GPL-3.0-or-later
/// Codes of varying width into bytes, in the orders that the file formats have.
#pragma once
#include <bit>
#include <cstdint>
#include <cstring>

namespace zp::codec
{

enum class BitOrder {
    LowFirst,        ///< deflate
    HighFirst,       ///< LZW as TIFF has it
    HighFirstStuffed ///< JPEG: behind every byte 0xFF stands a zero, so that no code looks like a marker
};

/// Whether one of the eight bytes is 0xFF.
constexpr bool hasFullByte(std::uint64_t word)
{
    return ((~word - 0x0101010101010101u) & word & 0x8080808080808080u) != 0;
}

/// Collects bits and stores whole bytes. Every call of drain() may write eight bytes behind the last one that counts
/// (16 where zeros are stuffed), so the memory must reach that much further than the data.
template <BitOrder Order>
class BitWriter
{
public:
    explicit BitWriter(std::uint8_t* to) : mTo(to) {}

    /// Takes the low @p length bits of @p value, which has no others. At most 63 bits may wait between two drains, of
    /// which a drain leaves up to 7.
    void put(std::uint64_t value, unsigned length)
    {
        if constexpr (Order == BitOrder::LowFirst)
            mBits |= value << mCount;
        else
            mBits = mBits << length | value;
        mCount += length;
    }
    unsigned waiting() const { return mCount; }

    /// Stores the whole bytes among the waiting bits.
    void drain()
    {
        if constexpr (Order == BitOrder::LowFirst) {
            std::memcpy(mTo, &mBits, 8);
            mTo += mCount / 8;
            mBits >>= mCount & ~7u;
        } else {
            // The waiting bits at the top, zeros below them; shifted in two steps because there may be none.
            const std::uint64_t word = mBits << 1 << (63 - mCount);
            if (Order == BitOrder::HighFirst || !hasFullByte(word)) {
                const std::uint64_t swapped = __builtin_bswap64(word);
                std::memcpy(mTo, &swapped, 8);
                mTo += mCount / 8;
            } else {
                for (unsigned i = 0; i < mCount / 8; ++i) {
                    *mTo = std::uint8_t(word >> (56 - 8 * i));
                    if (*mTo++ == 0xFF) *mTo++ = 0;
                }
            }
        }
        mCount &= 7;
    }
    /// Fills up to a whole byte, by ones where zeros are stuffed and by zeros elsewhere, and stores everything.
    /// @return behind the last byte
    std::uint8_t* finish()
    {
        drain();
        if (mCount > 0) {
            const unsigned open = 8 - mCount;
            put(Order == BitOrder::HighFirstStuffed ? (1u << open) - 1 : 0, open);
            drain();
        }
        return mTo;
    }
    /// Goes on at another place of memory; bits that wait go there.
    void moveTo(std::uint8_t* to) { mTo = to; }
    std::uint8_t* position() const { return mTo; }

private:
    static_assert(std::endian::native == std::endian::little);

    std::uint8_t* mTo;
    std::uint64_t mBits = 0;
    unsigned mCount = 0;
};

} // namespace zp::codec
