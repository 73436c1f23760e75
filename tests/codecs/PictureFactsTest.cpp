// SPDX-License-Identifier: GPL-3.0-or-later
/// What is said of files that hold more than a picture can.
#include "codecs/PictureFacts.h"
#include "codecs/ImageImporter.h"
#include "support/Samples.h"
#include <gtest/gtest.h>

namespace zp
{
namespace
{

struct Held {
    const char* file;
    PictureFacts facts;
};
class FactsOfFiles : public testing::TestWithParam<Held>
{
};
TEST_P(FactsOfFiles, AreRead)
{
    const ImportedImage image = importImageFile(test::sample(GetParam().file));
    ASSERT_TRUE(image.bitmap) << image.error;
    const PictureFacts &facts = image.facts, &wanted = GetParam().facts;
    EXPECT_EQ(facts.pages, wanted.pages);
    EXPECT_EQ(facts.frames, wanted.frames);
    EXPECT_EQ(facts.layers, wanted.layers);
    EXPECT_EQ(facts.bits, wanted.bits);
    EXPECT_EQ(facts.inks, wanted.inks);
    EXPECT_EQ(facts.jpegQuality, wanted.jpegQuality);
    EXPECT_EQ(facts.endedEarly, wanted.endedEarly);
}
INSTANTIATE_TEST_SUITE_P(
    Files, FactsOfFiles,
    testing::Values(Held{"made/valid/base.png", {}}, Held{"made/valid/base.tif", {}}, Held{"made/valid/base.gif", {}},
                    Held{"made/valid/base.bmp", {}}, Held{"made/valid/base.jpg", {.jpegQuality = 85}},
                    Held{"photos/tahoe-gps.jpg", {.jpegQuality = 85}},
                    Held{"photos/seeding-600-cmyk.jpg", {.inks = true, .jpegQuality = 85}},
                    Held{"jpeg-pillow/flower.jpg", {.jpegQuality = 75}},
                    Held{"jpeg-pillow/flower2.jpg", {.jpegQuality = 99}},
                    Held{"jpeg-pillow/iptc.jpg", {.jpegQuality = 50}}, Held{"tiff-pillow/multipage.tiff", {.pages = 3}},
                    Held{"tiff-pillow/hopper_bigtiff.tif", {}}, Held{"tiff-pillow/16bit.MM.deflate.tif", {.bits = 16}},
                    Held{"tiff-pillow/tiff_strip_cmyk_jpeg.tif", {.inks = true}},
                    Held{"png-modes/rgb-16-sRGB-tRNS.png", {.bits = 16}}, Held{"apng/single_frame.png", {}},
                    Held{"gif-pillow/chi.gif", {.frames = 31}}, Held{"gif-pillow/no_palette.gif", {.frames = 2}},
                    Held{"gif-pillow/comment_after_only_frame.gif", {}}, Held{"psd-tools/2layers.psd", {.layers = 2}},
                    Held{"made/truncated/50pc.png", {.endedEarly = true}},
                    Held{"made/truncated/50pc.jpg", {.jpegQuality = 85, .endedEarly = true}}));

TEST(FactsOfFiles, AreSaidInSentences)
{
    EXPECT_TRUE(noticesOf({}, 70).empty());
    EXPECT_TRUE(noticesOf({.jpegQuality = 70}, 70).empty());
    EXPECT_EQ(noticesOf({.jpegQuality = 95}, 70),
              std::vector<std::string>{"Save writes quality 70; this file has 95."});
    EXPECT_EQ(noticesOf({.pages = 12, .bits = 16}, 70),
              (std::vector<std::string>{"The file has 12 pages; this is the first.",
                                        "The file has 16 bits a colour; the image has 8."}));
    EXPECT_EQ(noticesOf({.endedEarly = true}, 70).size(), 1u);
    EXPECT_EQ(lossBySaving({.pages = 12, .bits = 16}), "12 pages, 16 bits a colour");
}

TEST(FactsOfFiles, SayWhetherSavingTakesThemAway)
{
    EXPECT_FALSE(PictureFacts{}.losesBySaving());
    EXPECT_FALSE((PictureFacts{.inks = true, .jpegQuality = 95, .endedEarly = true}.losesBySaving()));
    EXPECT_FALSE(PictureFacts{.layers = 1}.losesBySaving()) << "one layer is the picture";
    for (const PictureFacts& facts :
         {PictureFacts{.pages = 2}, PictureFacts{.frames = 2}, PictureFacts{.layers = 2}, PictureFacts{.bits = 16}})
        EXPECT_TRUE(facts.losesBySaving());
}

} // namespace
} // namespace zp
