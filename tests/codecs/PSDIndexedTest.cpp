// SPDX-License-Identifier: GPL-3.0-or-later
/// Photoshop files with a palette, from another program and made here.
#include "codecs/ImageImporter.h"
#include "support/Samples.h"
#include <gtest/gtest.h>

namespace zp
{
namespace
{

using Bytes = std::vector<std::uint8_t>;

void add(Bytes& file, std::uint32_t value, int bytes)
{
    for (int i = bytes - 1; i >= 0; --i) file.push_back(std::uint8_t(value >> 8 * i));
}

/// 3 x 2 pixels: colour n of the palette is (n, 255 - n, 7), the last one is transparent.
Bytes made(bool packed)
{
    Bytes file{'8', 'B', 'P', 'S', 0, 1, 0, 0, 0, 0, 0, 0, 0, 1};
    for (const auto& [value, size] : {std::pair{2, 4}, {3, 4}, {8, 2}, {2, 2}, {768, 4}})
        add(file, unsigned(value), size);
    for (unsigned n = 0; n < 256; ++n) file.push_back(std::uint8_t(n));
    for (unsigned n = 0; n < 256; ++n) file.push_back(std::uint8_t(255 - n));
    for (unsigned n = 0; n < 256; ++n) file.push_back(7);
    add(file, 14, 4);
    for (const int byte : {0x38, 0x42, 0x49, 0x4D, 0x04, 0x17, 0, 0, 0, 0, 0, 2, 0, 255})
        file.push_back(std::uint8_t(byte));
    add(file, 0, 4);
    add(file, packed, 2);
    if (packed) {
        add(file, 2, 2);
        add(file, 4, 2);
        for (const int byte : {254, 9, 2, 1, 2, 255})
            file.push_back(std::uint8_t(byte)); // a run of three; three as they are
    } else {
        for (const int byte : {9, 9, 9, 1, 2, 255}) file.push_back(std::uint8_t(byte));
    }
    return file;
}

TEST(PSDIndexed, PlainAndPackedRowsGiveThePalettesColours)
{
    for (const bool packed : {false, true}) {
        const ImportedImage read = importImage(made(packed));
        ASSERT_TRUE(read.bitmap) << read.error;
        EXPECT_FALSE(read.damaged);
        const auto colour = [](unsigned n) { return 0xFFu | n << 8 | (255 - n) << 16 | 7u << 24; };
        const std::uint32_t wanted[2][3] = {{colour(9), colour(9), colour(9)}, {colour(1), colour(2), 0}};
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x) EXPECT_EQ(read.bitmap->view().row(y)[x], wanted[y][x]) << x << ", " << y;
    }
}

TEST(PSDIndexed, ThatEndsAnywhereIsRefusedOrDamaged)
{
    for (const bool packed : {false, true}) {
        const Bytes whole = made(packed);
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const ImportedImage read = importImage(std::span(whole).first(size));
            EXPECT_TRUE(!read.bitmap || read.damaged) << size;
        }
    }
}

TEST(PSDIndexed, OfAnotherProgramOpens)
{
    const ImportedImage read = importImageFile(test::sample("psd-tools/4x4_8bit_index_color.psd"));
    ASSERT_TRUE(read.bitmap) << read.error;
    EXPECT_EQ(read.bitmap->pixelsWide(), 4);
    EXPECT_EQ(read.bitmap->properties.xDpi, 72);
    EXPECT_EQ(read.bitmap->view().pixel(0, 0)[0], 255);
}

} // namespace
} // namespace zp
