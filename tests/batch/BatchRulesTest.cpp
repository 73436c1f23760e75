// SPDX-License-Identifier: GPL-3.0-or-later
/// Which files, what size, where: the sums and names of a batch run.
#include "batch/BatchRules.h"
#include "base/Folders.h"
#include "batch/Watermarks.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace zp
{
namespace
{

TEST(BatchRules, ExtensionsAreComparedExactly)
{
    for (const char* name : {"a.jpg", "a.tiff", "b.c.jpg", " .jpg", "%s.tiff"})
        EXPECT_TRUE(isBatchSource(name)) << name;
    for (const char* name : {"a.jpeg", "a.JPG", "a.tif", "a.TIFF", "a.png", "jpg", ".jpg", "a.jpg~", "a.jpg ", ""})
        EXPECT_FALSE(isBatchSource(name)) << name;
}

TEST(BatchRules, FitsByTheFlatterSide)
{
    EXPECT_EQ(fittedSize({4000, 2000}, 1024, 768), (Size{1024, 512}));
    EXPECT_EQ(fittedSize({2000, 4000}, 1024, 768), (Size{384, 768}));
    EXPECT_EQ(fittedSize({400, 300}, 1024, 768), (Size{400.0f / 300.0f * 768.0f, 768})); // equal ratios: by the height
    EXPECT_EQ(fittedSize({100, 50}, 1000, 1000), (Size{1000, 500}));                     // smaller ones are enlarged
    const Size exact = fittedSize({1000, 333}, 640, 480);
    EXPECT_EQ(exact.height, 640.0f / (1000.0f / 333.0f)); // single precision, nothing rounded
}

TEST(BatchRules, WholePixelsAreCutOffButNeverNone)
{
    EXPECT_EQ(wholePixels({10.99f, 5.5f}), (Size{10, 5}));
    EXPECT_EQ(wholePixels({0.01f, 10}), (Size{1, 10}));
}

TEST(BatchRules, OutputsAreNamedAfterTheSource)
{
    EXPECT_EQ(batchOutput("/d", "x.jpg", "tiff"), "/d/x.tiff");
    EXPECT_EQ(batchOutput("/d/", "two.dots.tiff", "jpg"), "/d//two.dots.jpg");
}

TEST(BatchRules, FoldersAreCheckedInOrder)
{
    const std::string a = temporaryFolder() + "/a", b = temporaryFolder() + "/b";
    createFolder(a);
    createFolder(b);
    EXPECT_EQ(checkBatchFolders("", ""), BatchFolderFault::NoSource);
    EXPECT_EQ(checkBatchFolders("/nowhere", ""), BatchFolderFault::NoDestination);
    EXPECT_EQ(checkBatchFolders("/nowhere", "/nowhere"), BatchFolderFault::Same);
    EXPECT_EQ(checkBatchFolders("/nowhere", a), BatchFolderFault::Missing);
    EXPECT_EQ(checkBatchFolders(a, "/nowhere"), BatchFolderFault::Missing);
    EXPECT_EQ(checkBatchFolders(a, b), BatchFolderFault::None);
    EXPECT_EQ(checkBatchFolders(a, a + "/"), BatchFolderFault::None); // as they are written, not where they lead
    EXPECT_STREQ(batchFaultText(BatchFolderFault::Same), "Source and destination folder cannot be the same.");
    EXPECT_STREQ(batchFaultText(BatchFolderFault::Missing), "Error: Source or destination folder does not exist.");
    removeItem(a);
    removeItem(b);
}

TEST(BatchRules, PresetsCountFromTheLowerLeft)
{
    const Size image{1000, 500}, mark{100, 50};
    EXPECT_EQ(watermarkPosition(WatermarkPlace::LowerLeft, image, mark), (Point{0, 0}));
    EXPECT_EQ(watermarkPosition(WatermarkPlace::LowerRight, image, mark), (Point{900, 0}));
    EXPECT_EQ(watermarkPosition(WatermarkPlace::UpperLeft, image, mark), (Point{0, 450}));
    EXPECT_EQ(watermarkPosition(WatermarkPlace::UpperRight, image, mark), (Point{900, 450}));
    EXPECT_EQ(watermarkPosition(WatermarkPlace::Center, image, mark), (Point{450, 225}));
}

TEST(BatchRules, PresetsKeepTheirMarginAndFallOnWholePixels)
{
    const Size image{1000, 501}, mark{100.5f, 50};
    EXPECT_EQ(watermarkPosition(WatermarkPlace::LowerLeft, image, mark, 20), (Point{20, 20}));
    EXPECT_EQ(watermarkPosition(WatermarkPlace::LowerRight, image, mark, 20), (Point{879, 20}));
    EXPECT_EQ(watermarkPosition(WatermarkPlace::UpperLeft, image, mark, 20), (Point{20, 431}));
    EXPECT_EQ(watermarkPosition(WatermarkPlace::UpperRight, image, mark, 20), (Point{879, 431}));
    EXPECT_EQ(watermarkPosition(WatermarkPlace::Center, image, mark, 20), (Point{449, 225}));
}

TEST(Watermarks, TheDefaultIsCopiedOnceAndNotBroughtBack)
{
    removeItem(watermarkFolder());
    prepareWatermarkFolder();
    ASSERT_TRUE(isFolder(watermarkFolder()));
    EXPECT_EQ(watermarkNames(), std::vector<std::string>{"ORVANTA.jpg"});
    removeItem(watermarkFolder() + "/ORVANTA.jpg");
    prepareWatermarkFolder();
    EXPECT_TRUE(watermarkNames().empty());
}

TEST(Watermarks, AreListedByTheExactExtension)
{
    createFolder(watermarkFolder());
    for (const char* name : {"b.jpg", "A.tiff", "c.png", "d.JPG", "e.tif"})
        writeFileSafely(watermarkFolder() + "/" + name, "x", 1);
    EXPECT_EQ(watermarkNames(), (std::vector<std::string>{"A.tiff", "b.jpg"}));
    removeItem(watermarkFolder());
}

} // namespace
} // namespace zp
