// SPDX-License-Identifier: GPL-3.0-or-later
/// Texts as watermarks: cut close, legible on light and dark, kept under a name of their own.
#include "windows/WatermarkText.h"
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace zp
{
namespace
{

struct Count {
    int ink = 0, edge = 0, clear = 0;
    bool touches[4] = {}; ///< left, right, top, bottom
};

/// Pixels of the letters' own colour, half-clear ones of the opposite, clear ones.
Count countOf(const BitmapRep& picture, std::uint8_t ink)
{
    Count count;
    const int w = picture.pixelsWide(), h = picture.pixelsHigh();
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const std::uint8_t* p = picture.view().pixel(x, y);
            count.ink += p[0] == 255 && p[1] == ink;
            count.edge += p[0] > 140 && p[0] < 165 && p[1] == (ink == 255 ? 0 : p[0]);
            count.clear += p[0] == 0;
            if (p[0] == 0) continue;
            const bool at[4] = {x <= 1, x >= w - 2, y <= 1, y >= h - 2};
            for (int i = 0; i < 4; ++i) count.touches[i] |= at[i];
        }
    return count;
}

TEST(WatermarkText, FillsItsPictureAndNothingBehindTheLetters)
{
    struct Case {
        const char* text;
        Color color;
        bool edged;
    };
    for (const Case& c : {Case{"Zelpane 2026", {1, 1, 1, 1}, true}, Case{"Zelpane 2026", {1, 1, 1, 1}, false},
                          Case{"I", {0, 0, 0, 1}, true}, Case{"\xC2\xA9 Anna", {0, 0, 0, 1}, false}}) {
        SCOPED_TRACE(c.text);
        const auto picture = pictureOfText({QString::fromUtf8(c.text), QFont(), c.color, c.edged});
        ASSERT_TRUE(picture);
        EXPECT_EQ(std::max(picture->pixelsWide(), picture->pixelsHigh()), kTextWatermarkSide);
        const Count count = countOf(*picture, c.color.red > 0 ? 255 : 0);
        EXPECT_GT(count.ink, 1000);
        EXPECT_EQ(count.edge > 1000, c.edged);
        EXPECT_GT(count.clear, c.text[1] ? 1000 : -1);
        for (const bool touches : count.touches) EXPECT_TRUE(touches);
    }
}

TEST(WatermarkText, ATextWithoutLettersIsNone)
{
    for (const char* text : {"", " ", "\t"}) EXPECT_FALSE(pictureOfText({text, QFont(), {1, 1, 1, 1}, true}));
}

TEST(WatermarkText, ItsFileHoldsTheVeryPixels)
{
    const auto picture = pictureOfText({"half clear", QFont(), {1, 0, 0, 0.5f}, true});
    ASSERT_TRUE(picture);
    const std::string path = temporaryFolder() + "/text.tiff";
    const auto bytes = encodeTIFF(picture->view(), {});
    ASSERT_TRUE(writeFileSafely(path, bytes.data(), bytes.size()));
    const auto read = importImageFile(path).bitmap;
    ASSERT_TRUE(read);
    ASSERT_EQ(read->pixelsWide(), picture->pixelsWide());
    for (int y = 0; y < picture->pixelsHigh(); ++y)
        ASSERT_TRUE(
            std::equal(picture->view().row(y), picture->view().row(y) + picture->pixelsWide(), read->view().row(y)));
    removeItem(path);
}

TEST(WatermarkText, HasANameOfItsOwn)
{
    struct Case {
        const char* text;
        const char* name;
    };
    const std::vector<std::string> taken{"taken.tiff", "taken 2.tiff", "logo.jpg"};
    for (const Case& c : {Case{"\xC2\xA9 Anna", "\xC2\xA9 Anna.tiff"}, Case{"a/b\nc", "a-b c.tiff"},
                          Case{".hidden", "_.hidden.tiff"}, Case{"taken", "taken 3.tiff"}, Case{"logo", "logo.tiff"},
                          Case{"../../etc", "_..-..-etc.tiff"}, Case{"", "_.tiff"}})
        EXPECT_EQ(watermarkNameForText(QString::fromUtf8(c.text), taken), c.name);
    EXPECT_LE(watermarkNameForText(QString(500, QChar(0x4E00)), taken).size(), 255u);
}

} // namespace
} // namespace zp
