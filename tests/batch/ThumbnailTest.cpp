// SPDX-License-Identifier: GPL-3.0-or-later
/// Small pictures for file managers.
#include "batch/Thumbnail.h"
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "support/TemporaryFolder.h"
#include <gtest/gtest.h>
#include <utility>

using namespace zp;

namespace
{

TEST(Thumbnail, FitsTheSizeAndIsNeverLargerThanThePicture)
{
    struct Case {
        int width, height, size, newWidth, newHeight;
    };
    const test::TemporaryFolder folder;
    const std::string source = (folder.path() / "a.png").string(), small = (folder.path() / "b.png").string();
    for (const Case& c :
         {Case{400, 200, 128, 128, 64}, {200, 400, 256, 128, 256}, {40, 20, 128, 40, 20}, {128, 128, 128, 128, 128}}) {
        const auto picture = BitmapRep::create(c.width, c.height);
        const auto bytes = encodePNG(std::as_const(*picture).view(), {});
        ASSERT_TRUE(writeFileSafely(source, bytes.data(), bytes.size()));
        EXPECT_EQ(writeThumbnail(source, small, c.size), "");
        const PixelDimensions size = imageFileDimensions(small);
        EXPECT_EQ(size.width, c.newWidth);
        EXPECT_EQ(size.height, c.newHeight);
    }
}

TEST(Thumbnail, SaysWhyThereIsNone)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(writeThumbnail((folder.path() / "none.psd").string(), (folder.path() / "b.png").string(), 64),
              "The file does not exist.");
    EXPECT_NE(writeThumbnail(ZP_RESOURCES "/B1.png", (folder.path() / "no" / "b.png").string(), 64), "");
}

TEST(Thumbnail, RefusesWordsWithoutSense)
{
    for (std::vector<const char*> words : {std::vector<const char*>{"zelpane", "--thumbnail"},
                                           {"zelpane", "--thumbnail", "0", "a", "b"},
                                           {"zelpane", "--thumbnail", "big", "a", "b"},
                                           {"zelpane", "--thumbnail", "64", "a"}})
        EXPECT_EQ(runThumbnailCommandLine(int(words.size()), const_cast<char**>(words.data())), 2);
}

} // namespace
