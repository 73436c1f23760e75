// SPDX-License-Identifier: GPL-3.0-or-later
/// Extensions, save proposals and numbered names, by table.
#include "codecs/FileNames.h"
#include "base/Folders.h"
#include <gtest/gtest.h>

namespace zp
{
namespace
{

struct Kind {
    const char* path;
    SaveFormat format;
    const char* written;
};
class FileNames : public testing::TestWithParam<Kind>
{
};
TEST_P(FileNames, SavingGoesByTheExtension)
{
    const Kind& kind = GetParam();
    EXPECT_EQ(saveFormatForPath(kind.path), kind.format);
    if (kind.format != SaveFormat::None && kind.format != SaveFormat::Photoshop) {
        EXPECT_EQ(writtenPath(kind.path, kind.format), kind.written);
    }
}
INSTANTIATE_TEST_SUITE_P(
    Paths, FileNames,
    testing::Values(Kind{"/a/photo.jpg", SaveFormat::JPEG, "/a/photo.jpg"},
                    Kind{"/a/photo.JPG", SaveFormat::JPEG, "/a/photo.jpg"},
                    Kind{"/a/scan.tif", SaveFormat::TIFF, "/a/scan.tiff"},
                    Kind{"/a/scan.tiff", SaveFormat::TIFF, "/a/scan.tiff"},
                    Kind{"/a/icon.png", SaveFormat::PNG, "/a/icon.png"},
                    Kind{"/a.b/two.dots.png", SaveFormat::PNG, "/a.b/two.dots.png"},
                    Kind{"/a/layers.psd", SaveFormat::Photoshop, ""}, Kind{"/a/photo.jpeg", SaveFormat::None, ""},
                    Kind{"/a/photo.Jpg", SaveFormat::None, ""}, Kind{"/a/scan.TIF", SaveFormat::None, ""},
                    Kind{"/a/scan.TIFF", SaveFormat::None, ""}, Kind{"/a/icon.PNG", SaveFormat::None, ""},
                    Kind{"/a/anim.gif", SaveFormat::None, ""}, Kind{"/a/layers.PSD", SaveFormat::None, ""},
                    Kind{"/a/noextension", SaveFormat::None, ""}, Kind{"/a.jpg/noextension", SaveFormat::None, ""},
                    Kind{"/a/.png", SaveFormat::None, ""}, Kind{"", SaveFormat::None, ""}));

struct Typed {
    const char* name;
    SaveFormat format;
    const char* written;
};
class TypedNames : public testing::TestWithParam<Typed>
{
};
TEST_P(TypedNames, GetTheExtensionOfWhatIsWritten)
{
    const auto& [name, format, written] = GetParam();
    EXPECT_EQ(nameToWrite(name, format), written);
    EXPECT_EQ(nameToWrite(written, format), written);
    EXPECT_EQ(writtenPath(written, format), written) << "one name from the panel to the disk";
}
INSTANTIATE_TEST_SUITE_P(Names, TypedNames,
                         testing::Values(Typed{"/a/photo.jpeg", SaveFormat::JPEG, "/a/photo.jpg"},
                                         Typed{"/a/photo.JPG", SaveFormat::JPEG, "/a/photo.jpg"},
                                         Typed{"/a/keep.tiff", SaveFormat::JPEG, "/a/keep.jpg"},
                                         Typed{"/a/tree.psd", SaveFormat::PNG, "/a/tree.png"},
                                         Typed{"/a/Version 2.5", SaveFormat::TIFF, "/a/Version 2.5.tiff"},
                                         Typed{"/a/v1.2.png", SaveFormat::TIFF, "/a/v1.2.tiff"},
                                         Typed{"/a/plain", SaveFormat::PNG, "/a/plain.png"},
                                         Typed{"/a/dot.", SaveFormat::PNG, "/a/dot.png"},
                                         Typed{"/a/.hidden", SaveFormat::JPEG, "/a/.hidden.jpg"},
                                         Typed{"/a.tiff/b", SaveFormat::JPEG, "/a.tiff/b.jpg"}));

TEST(SaveProposal, OfAnUnsavedImageIsInThePicturesFolder)
{
    const SaveProposal tiff = saveProposal("", SaveFormat::TIFF, "/home/someone");
    EXPECT_EQ(tiff.folder, "/home/someone/Pictures");
    EXPECT_EQ(tiff.name, "My Great Image.tiff");
    EXPECT_EQ(saveProposal("", SaveFormat::JPEG, "/h").name, "My Great Image.jpg");
}

TEST(SaveProposal, OfASavedImageIsBesideItsFile)
{
    const SaveProposal p = saveProposal("/pictures/2024/tree.psd", SaveFormat::JPEG, "/home/someone");
    EXPECT_EQ(p.folder, "/pictures/2024");
    EXPECT_EQ(p.name, "tree.jpg");
    EXPECT_EQ(saveProposal("/p/tree", SaveFormat::TIFF, "/h").name, "tree.tiff");
    EXPECT_EQ(saveProposal("/p/tree 2.5", SaveFormat::TIFF, "/h").name, "tree 2.5.tiff");
}

class QuickSave : public testing::Test
{
protected:
    QuickSave() { createFolder(mFolder); }
    ~QuickSave() override { removeItem(mFolder); }
    void add(int number)
    {
        const std::string path = mFolder + "/My Great Image " + std::to_string(number) + ".tiff";
        ASSERT_TRUE(writeFileSafely(path, "x", 1));
    }
    std::string mFolder = temporaryFolder() + "/quick";
};

TEST_F(QuickSave, ProposesTheFirstFreeNumber)
{
    EXPECT_EQ(proposedQuickSaveName(mFolder), "My Great Image 1.tiff");
    for (const int n : {1, 2, 3}) add(n);
    EXPECT_EQ(proposedQuickSaveName(mFolder), "My Great Image 4.tiff");
    add(5);
    EXPECT_EQ(proposedQuickSaveName(mFolder), "My Great Image 4.tiff");
}

TEST_F(QuickSave, StopsAtNinetyNineEvenWhenItExists)
{
    for (int n = 1; n <= 98; ++n) add(n);
    EXPECT_EQ(proposedQuickSaveName(mFolder), "My Great Image 99.tiff");
    add(99);
    EXPECT_EQ(proposedQuickSaveName(mFolder), "My Great Image 99.tiff");
}

} // namespace
} // namespace zp
