// SPDX-License-Identifier: GPL-3.0-or-later
/// The entropy-coded bytes of one strip of 16 rows, made in vector registers: byte for byte what the JPEG library
/// writes.
#pragma once
#include "base/BitmapView.h"
#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace zp
{

/// Everything a strip's bytes depend on beside its pixels, taken from the header that the library wrote.
class StripCoder
{
public:
    /// Whether this machine has the vectors for it. Without them the library does the work, with the same result.
    static bool available();
    /// Reads quantisation and Huffman tables. @return false when the header is not baseline 4:2:0 with one scan
    bool readTables(std::span<const std::uint8_t> header);
    /// @param pixels exactly 16 rows; alpha is not looked at
    /// @param out    replaced by the strip's bytes, ended on a whole byte, without a marker
    /// Any thread; several strips may be coded at the same time. Only where available().
    void encode(ConstBitmapView pixels, std::vector<std::uint8_t>& out) const;

private:
    friend struct StripKernels;
    /// For one component kind: divisors as multipliers, rows of 8 repeated over the vector; and codes.
    struct alignas(64) Tables {
        std::array<std::array<std::uint16_t, 32>, 8> half, multiplier, shift;
        std::array<std::uint32_t, 16> dcCode{};    ///< code << 6 | length, by the difference's size
        std::array<std::uint32_t, 256> acCode{};   ///< by run << 4 | size
        std::array<std::uint32_t, 1024> acSmall{}; ///< code and value bits together, by run << 6 | (value + 32)
    };
    void setDivisors(Tables& tables, const std::uint8_t* zigzagged);
    static bool setCodes(Tables& tables, bool dc, std::span<const std::uint8_t> definition);

    Tables mLuma, mChroma;
};

} // namespace zp
