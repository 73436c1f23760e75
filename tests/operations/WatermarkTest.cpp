// SPDX-License-Identifier: GPL-3.0-or-later
/// A watermark drawn into the picture.
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "support/DocumentFixture.h"

using namespace zp;
using namespace zp::test;

namespace
{

class Watermark : public DocumentTest
{
protected:
    Watermark()
    {
        makeImage(60, 50);
        paintNoise();
    }
};

TEST_F(Watermark, AWatermarkLandsByTheLowerLeftCorner)
{
    const std::string path = temporaryFolder() + "/mark.tiff";
    const auto tiff = encodeTIFF(zp::test::picture(6, 4, word(255, 1, 2, 3))->view(), {});
    ASSERT_TRUE(writeFileSafely(path, tiff.data(), tiff.size()));
    perform("placeWatermark:atPoint:alpha:", {{10, 5, 1}, path});
    EXPECT_EQ(pixel(10, 50 - 5 - 1), word(255, 1, 2, 3));
    EXPECT_EQ(pixel(15, 50 - 5 - 4), word(255, 1, 2, 3));
    EXPECT_NE(pixel(16, 44), word(255, 1, 2, 3));
    EXPECT_NE(pixel(10, 45), word(255, 1, 2, 3));
}

TEST_F(Watermark, AMissingWatermarkDrawsNothing)
{
    const auto before = allPixels();
    perform("placeWatermark:atPoint:alpha:", {{0, 0, 1}, ""});
    perform("placeWatermark:atPoint:alpha:", {{0, 0, 1}, "/nonexistent/mark.tiff"});
    EXPECT_EQ(allPixels(), before);
}

} // namespace
