// SPDX-License-Identifier: GPL-3.0-or-later
/// Marks of files and the index that keeps them.
#include "base/Folders.h"
#include "library/PictureMark.h"
#include "support/TemporaryFolder.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace zp;

namespace
{

class Marks : public testing::Test
{
protected:
    std::string file(const std::string& name, const std::string& bytes) const
    {
        const std::string path = mRoot + "/" + name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    static std::string noise(unsigned seed, std::size_t count)
    {
        std::mt19937 random(seed);
        std::string bytes(count, '\0');
        for (char& each : bytes) each = char(random());
        return bytes;
    }
    const zp::test::TemporaryFolder mFolder;
    const std::string mRoot = mFolder.path();
};

using LibraryIndex = Marks;

PictureMarks someMarks()
{
    PictureMarks marks;
    marks["/a b/c.jpg"] = {.size = 1, .modified = 2, .samples = 3};
    marks["/\xFF\n%20/ö \x7F.tiff"] = {
        .size = std::int64_t{1} << 40, .modified = -5, .samples = ~std::uint64_t{0}, .whole = 0};
    marks["/plain.png"] = {.size = 7, .modified = 8, .samples = 9, .whole = 10, .looked = true};
    marks["/seen.png"] = {
        .size = 7, .modified = 8, .samples = 9, .looked = true, .look = PictureLook{~std::uint64_t{1}, -58}};
    return marks;
}

} // namespace

TEST_F(Marks, AreOfTheContentNotOfTheName)
{
    for (const std::size_t size : {0, 1, 7, 8, 1000, 131072, 131073, 500000}) {
        const auto first = markOfFile(file("a", noise(1, size))), copy = markOfFile(file("b", noise(1, size)));
        ASSERT_TRUE(first && copy) << size;
        EXPECT_EQ(first->size, std::int64_t(size));
        EXPECT_EQ(first->samples, copy->samples) << size;
        EXPECT_EQ(digestOfFile(mRoot + "/a"), digestOfFile(mRoot + "/b")) << size;
        if (size == 0) continue;
        EXPECT_NE(first->samples, markOfFile(file("b", noise(2, size)))->samples) << size;
        for (const std::size_t at : {std::size_t{0}, size / 2, size - 1}) {
            std::string other = noise(1, size);
            other[at] = char(other[at] ^ 1);
            EXPECT_NE(digestOfFile(file("b", other)), digestOfFile(mRoot + "/a")) << size << " at " << at;
            if (at != size / 2 || size <= 131072) {
                EXPECT_NE(markOfFile(mRoot + "/b")->samples, first->samples) << size << " at " << at;
            }
        }
    }
}

TEST_F(Marks, AreNotMadeOfWhatIsNoOrdinaryFile)
{
    ASSERT_EQ(mkfifo((mRoot + "/pipe").c_str(), 0600), 0);
    fs::create_symlink("/nowhere", mRoot + "/broken");
    for (const std::string& path : {mRoot, mRoot + "/pipe", mRoot + "/broken", std::string("/dev/zero")}) {
        EXPECT_FALSE(markOfFile(path)) << path;
        EXPECT_FALSE(digestOfFile(path)) << path;
        EXPECT_FALSE(lookOfFile(path)) << path;
    }
    EXPECT_FALSE(lookOfFile(file("text.jpg", "no picture")));
    EXPECT_TRUE(lookOfFile(ZP_SOURCE "/resources/Hibiskus.jpg"));
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_FALSE(digestOfFile(mRoot + "/text.jpg", stopped.get_token()));
}

TEST_F(LibraryIndex, KeepsWhatItWasGiven)
{
    const std::string path = mRoot + "/new folder/.index";
    EXPECT_TRUE(readLibraryIndex(path).empty());
    ASSERT_TRUE(writeLibraryIndex(path, someMarks()));
    EXPECT_EQ(readLibraryIndex(path), someMarks());
    ASSERT_TRUE(writeLibraryIndex(path, {}));
    EXPECT_TRUE(readLibraryIndex(path).empty());
}

TEST_F(LibraryIndex, IsAsIfNoneWhenItIsDamagedAnywhere)
{
    const std::string path = mRoot + "/.index";
    ASSERT_TRUE(writeLibraryIndex(path, someMarks()));
    const std::string whole = readWholeFile(path).value();
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string other = whole;
        other[at] = char(other[at] ^ 4);
        file(".index", other);
        EXPECT_TRUE(readLibraryIndex(path).empty()) << "changed at " << at;
        file(".index", whole.substr(0, at));
        EXPECT_TRUE(readLibraryIndex(path).empty()) << "cut at " << at;
    }
    file(".index", whole + "x");
    EXPECT_TRUE(readLibraryIndex(path).empty());
    file(".index", noise(3, 5000));
    EXPECT_TRUE(readLibraryIndex(path).empty());
    fs::remove(path);
    fs::create_directory(path);
    EXPECT_TRUE(readLibraryIndex(path).empty());
    EXPECT_FALSE(writeLibraryIndex(path, someMarks()));
}

TEST_F(LibraryIndex, IsBounded)
{
    PictureMarks marks;
    for (int i = 0; i < 100100; ++i) marks["/" + std::to_string(i)] = {.size = i};
    const std::string path = mRoot + "/.index";
    ASSERT_TRUE(writeLibraryIndex(path, marks));
    EXPECT_EQ(readLibraryIndex(path).size(), 100000u);
}
