// SPDX-License-Identifier: GPL-3.0-or-later
/// From one set of primaries to another, as numbers that a kernel can run through.
#pragma once
#include <array>
#include <cstdint>

namespace zp
{

/// A byte becomes light by a curve, the light of three colours that of three others by a matrix, light a byte by
/// another curve, which is looked up by the root of the light: near black, where curves are steep, a step is then less
/// than one of 255. Index 0 is red, 1 green, 2 blue.
struct ColourTables {
    static constexpr int kSteps = 4096; ///< of the root of the light

    std::array<std::array<float, 256>, 3> light{};           ///< 0 to 1
    std::array<float, 9> matrix{};                           ///< row by row
    std::array<std::array<std::uint32_t, kSteps>, 3> byte{}; ///< of light (i / (kSteps - 1)) squared
};

} // namespace zp
