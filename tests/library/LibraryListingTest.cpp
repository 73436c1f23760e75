// SPDX-License-Identifier: GPL-3.0-or-later
/// The library's rows and values, the odd ones included.
#include "library/LibraryListing.h"
#include "support/TemporaryFolder.h"
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace zp;
using Names = std::vector<std::string>;

TEST(LibraryRows, AreOneLessThanTheFolderHasEntries)
{
    EXPECT_EQ(libraryRows({".DS_Store", "a", "b"}), (Names{"a", "b"}));
    EXPECT_EQ(libraryRows({"a", "b"}), (Names{"a"}));                             // the last one is not shown
    EXPECT_EQ(libraryRows({".A", ".DS_Store", "b"}), (Names{".A", ".DS_Store"})); // shown as a row, the last one hidden
    EXPECT_EQ(libraryRows({".DS_Store"}), Names{});
    EXPECT_EQ(libraryRows({"a"}), Names{});
    EXPECT_EQ(libraryRows({}), Names{});
}

TEST(LibraryValues, SizeIsCutToKilobytesOrMegabytes)
{
    EXPECT_EQ(librarySizeText(0), "0 KB");
    EXPECT_EQ(librarySizeText(1023), "0 KB");
    EXPECT_EQ(librarySizeText(1024), "1 KB");
    EXPECT_EQ(librarySizeText(2000 * 1024), "2000 KB");
    EXPECT_EQ(librarySizeText(2000 * 1024 + 512), "1 MB");
    EXPECT_EQ(librarySizeText(5 * 1024 * 1024 - 1), "4 MB");
    EXPECT_EQ(librarySizeText(std::numeric_limits<std::int32_t>::max()), "2048 MB"); // rounded up as a float
    EXPECT_EQ(librarySizeText((std::int64_t{1} << 32) + 4096), "4 KB");              // wraps
    EXPECT_EQ(librarySizeText(std::int64_t{3} << 30), "-1048576 KB");
}

TEST(LibraryValues, DateIsShortAndLocal)
{
    setenv("TZ", "UTC", 1);
    tzset();
    EXPECT_EQ(libraryDateText(0), "00:00 - 01/01/70");
    EXPECT_EQ(libraryDateText(1262349296), "12:34 - 01/01/10");
    unsetenv("TZ");
    tzset();
}

TEST(LibraryDrop, TakesTiffAndJpgAndStepsOverTheOneAfterARefusedOne)
{
    EXPECT_EQ(acceptedDrop({"/a.tiff", "/b.jpg"}), (Names{"/a.tiff", "/b.jpg"}));
    EXPECT_EQ(acceptedDrop({"/a.png"}), Names{});
    EXPECT_EQ(acceptedDrop({"/a.png", "/b.png", "/c.png"}), Names{"/b.png"});
    EXPECT_EQ(acceptedDrop({"/a.JPG", "/b.jpg", "/c.tif"}), Names{"/b.jpg"});
    EXPECT_EQ(acceptedDrop({"/jpg", "/.jpg", "/x.jpeg"}), Names{"/.jpg"});
    EXPECT_EQ(acceptedDrop({}), Names{});
}

TEST(LibraryRename, PutsTheOldExtensionBack)
{
    EXPECT_EQ(renamedPath("/l", "b.png", "a.jpg"), "/l/b.jpg");
    EXPECT_EQ(renamedPath("/l", "b", "a.jpg"), "/l/b.jpg");
    EXPECT_EQ(renamedPath("/l", "b.c.d", "a.tiff"), "/l/b.c.tiff");
    EXPECT_EQ(renamedPath("/l", "b.png", "a"), "/l/b");
}

namespace
{

class LibraryItems : public testing::Test
{
protected:
    void SetUp() override { fs::create_directory(mRoot + "/lib"); }
    std::string file(const std::string& name, std::size_t bytes) const
    {
        std::ofstream(mRoot + "/" + name, std::ios::binary) << std::string(bytes, 'x');
        return mRoot + "/" + name;
    }
    std::string value(const std::string& name, const char* column)
    {
        return libraryValue(libraryItem(mRoot + "/lib", name), column, mDimensions);
    }
    const zp::test::TemporaryFolder mFolder;
    const std::string mRoot = mFolder.path();
    int mReads = 0;
    DimensionsMemory mDimensions{[this](const std::string& path) {
        ++mReads;
        return path.ends_with("b.jpg") ? PixelDimensions{640, 480} : PixelDimensions{};
    }};
};

} // namespace

TEST_F(LibraryItems, OfAnAliasCarryABulletAndTheTargetsValues)
{
    const std::string target = file("b.jpg", 3000);
    ASSERT_TRUE(makeAlias(target, mRoot + "/lib", "b.jpg"));
    EXPECT_EQ(value("b.jpg", "FILE_NAME"), "b.jpg \xE2\x80\xA2");
    EXPECT_EQ(value("b.jpg", "KIND"), "JPEG");
    EXPECT_EQ(value("b.jpg", "SIZE"), "2 KB");
    EXPECT_EQ(value("b.jpg", "DIMENSIONS"), "640 x 480");
    EXPECT_EQ(value("b.jpg", "PATH"), target + " [alias \xE2\x80\xA2]");
    EXPECT_EQ(value("b.jpg", "COLOUR"), "NULL");
}

TEST_F(LibraryItems, OfAPlainFileHaveNone)
{
    const std::string path = file("lib/a.tif", 2048);
    EXPECT_EQ(value("a.tif", "FILE_NAME"), "a.tif");
    EXPECT_EQ(value("a.tif", "KIND"), "TIFF");
    EXPECT_EQ(value("a.tif", "SIZE"), "2 KB");
    EXPECT_EQ(value("a.tif", "DIMENSIONS"), "\xE2\x80\x94");
    EXPECT_EQ(value("a.tif", "PATH"), path);
    for (const auto& [name, kind] : {std::pair{"x.tiff", "TIFF"},
                                     {"x.TIF", ""},
                                     {"x.jpeg", "JPEG"},
                                     {"x.JPG", "JPEG"},
                                     {"x.JPEG", ""},
                                     {"x.png", ""},
                                     {"x", ""}})
        EXPECT_EQ(value(name, "KIND"), kind) << name;
}

TEST_F(LibraryItems, OfABrokenLinkSaySo)
{
    fs::create_symlink("/nowhere/gone.jpg", mRoot + "/lib/gone.jpg");
    const LibraryItem item = libraryItem(mRoot + "/lib", "gone.jpg");
    EXPECT_TRUE(item.broken);
    EXPECT_EQ(item.file(), mRoot + "/lib/gone.jpg");
    EXPECT_EQ(value("gone.jpg", "FILE_NAME"), "gone.jpg");
    EXPECT_EQ(value("gone.jpg", "DIMENSIONS"), "broken link");
    EXPECT_EQ(value("gone.jpg", "PATH"), mRoot + "/lib/gone.jpg");
    fs::create_symlink("ring.jpg", mRoot + "/lib/ring.jpg");
    EXPECT_TRUE(libraryItem(mRoot + "/lib", "ring.jpg").broken);
}

TEST_F(LibraryItems, ReadAHeaderOnceUntilTheFileChanges)
{
    file("lib/b.jpg", 100);
    EXPECT_EQ(value("b.jpg", "DIMENSIONS"), "640 x 480");
    EXPECT_EQ(value("b.jpg", "DIMENSIONS"), "640 x 480");
    EXPECT_EQ(mReads, 1);
    file("lib/b.jpg", 101);
    value("b.jpg", "DIMENSIONS");
    EXPECT_EQ(mReads, 2);
    fs::create_directory(mRoot + "/lib/folder.jpg");
    EXPECT_EQ(value("folder.jpg", "DIMENSIONS"), "\xE2\x80\x94"); // a folder is not read at all
    EXPECT_EQ(mReads, 2);
}

TEST_F(LibraryItems, KeepTheFoldersStore)
{
    const std::string lib = mRoot + "/lib";
    keepFolderStore(lib);
    EXPECT_EQ(contentsOfFolder(lib), Names{".DS_Store"});
    std::ofstream(lib + "/.DS_Store") << "own";
    keepFolderStore(lib);
    EXPECT_EQ(readWholeFile(lib + "/.DS_Store"), "own");
    keepFolderStore(mRoot + "/none");
    EXPECT_FALSE(fileExists(mRoot + "/none"));
}

TEST_F(LibraryItems, WithOddNamesAreAllThereOnce)
{
    const std::string target = file("b.jpg", 10), lib = mRoot + "/lib";
    keepFolderStore(lib);
    Names names;
    for (int i = 0; i < 200; ++i) {
        std::string name = std::to_string(i) + (i % 7 == 0   ? "\n\"'\\"
                                                : i % 7 == 1 ? "\xFF\xC3("
                                                : i % 7 == 2 ? "  "
                                                : i % 7 == 3 ? "\xF0\x9F\x8C\xBA"
                                                : i % 7 == 4 ? "%s%n$(x)"
                                                : i % 7 == 5 ? std::string(240, 'n')
                                                             : "*?[a]");
        name += ".jpg";
        ASSERT_TRUE(makeAlias(target, lib, name)) << name;
        names.push_back(name);
    }
    const Names rows = libraryRows(contentsOfFolder(lib));
    ASSERT_EQ(rows.size(), 200u);
    for (const std::string& name : rows) {
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end());
        EXPECT_EQ(value(name, "DIMENSIONS"), "640 x 480");
    }
    EXPECT_EQ(mReads, 1); // all lead to one file
}
