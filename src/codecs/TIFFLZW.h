// SPDX-License-Identifier: GPL-3.0-or-later
/// LZW as TIFF files have it: codes of 9 to 12 bits, the highest bit first, lengthened one code early.
#pragma once
#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace zp::codec
{

/// Compresses strips one after the other; holds its tables, so one object a thread.
class LZWEncoder
{
public:
    LZWEncoder();
    ~LZWEncoder();
    LZWEncoder(const LZWEncoder&) = delete;
    LZWEncoder& operator=(const LZWEncoder&) = delete;
    /// Replaces @p out by one complete strip, clear code to end code. About 4 ns a byte, next to nothing in long runs.
    /// Throws bad_alloc.
    void encode(std::span<const std::uint8_t> bytes, std::vector<std::uint8_t>& out);

private:
    struct State;
    std::unique_ptr<State> d;
};

/// Unpacks strips; holds its table, so one object a thread.
class LZWDecoder
{
public:
    static constexpr std::size_t kSlack = 32; ///< bytes behind the unpacked ones that may be overwritten

    /// Whether a strip is of the kind that is decoded here: very old files have another order of bits.
    static bool handles(std::span<const std::uint8_t> strip);
    /// As far as the strip goes and is sound, at most @p size bytes to @p to, which has kSlack more.
    /// @return how many there are
    std::size_t decode(std::span<const std::uint8_t> strip, std::uint8_t* to, std::size_t size);

private:
    struct Entry {
        std::uint64_t head; ///< the string's first eight bytes
        std::uint32_t at;   ///< where the whole string stands among what was unpacked
        std::uint32_t length;
    };
    std::array<Entry, 4096> mTable;
};

} // namespace zp::codec
