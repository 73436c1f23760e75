// SPDX-License-Identifier: GPL-3.0-or-later
/// Large files of which only a part is needed.
#include "codecs/FileWindow.h"
#include "base/Folders.h"
#include "codecs/ImageImporter.h"
#include "codecs/TestPictures.h"
#include "support/Samples.h"
#include "support/TemporaryFolder.h"
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{
namespace
{

constexpr off_t kLarge = off_t{3} << 30; // on the disk it takes no more than what was written

struct Kind {
    const char* file;
    codec::Format format;
};
class LargeFiles : public testing::TestWithParam<Kind>
{
protected:
    /// The sample with gigabytes of nothing behind it.
    std::string padded() const
    {
        std::string path = (mFolder.path() / "large").string();
        EXPECT_TRUE(copyItem(test::sample(GetParam().file), path));
        ::chmod(path.c_str(), 0644);
        EXPECT_EQ(::truncate(path.c_str(), kLarge), 0);
        return path;
    }
    const test::TemporaryFolder mFolder;
};

TEST_P(LargeFiles, GiveThePictureThatIsInThem)
{
    const ImportedImage whole = importImageFile(test::sample(GetParam().file)), part = importImageFile(padded());
    ASSERT_TRUE(whole.bitmap) << whole.error;
    ASSERT_TRUE(part.bitmap) << part.error;
    EXPECT_TRUE(test::samePixels(part.bitmap->view(), whole.bitmap->view()));
    EXPECT_EQ(part.bitmap->properties.exif, whole.bitmap->properties.exif);
    EXPECT_EQ(part.bitmap->properties.iccProfile, whole.bitmap->properties.iccProfile);
    EXPECT_EQ(part.facts, whole.facts);
}

TEST_P(LargeFiles, AreReadAsFarAsTheirPictureNeeds)
{
    const std::string path = padded();
    const PixelDimensions size = imageFileDimensions(path);
    ASSERT_GT(size.width, 0);
    const std::uint64_t most = codec::mostBytesFor(GetParam().format, size.width, size.height);
    EXPECT_LT(most, std::uint64_t{300} << 20) << "the pictures are small";
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    codec::FileWindow window(fd, kLarge, most);
    ASSERT_TRUE(window.isOpen());
    codec::takeNeededParts(window, GetParam().format, 0);
    EXPECT_LE(window.taken(), most);
    // Kinds that say where their pieces are need no more than the file had at first, twice what is pointed to twice.
    const auto original = std::uint64_t(fileAttributes(test::sample(GetParam().file))->size);
    if (GetParam().format == codec::Format::PNG || GetParam().format == codec::Format::TIFF) {
        EXPECT_LE(window.taken(), 2 * original + 256);
    }
    ::close(fd);
}

INSTANTIATE_TEST_SUITE_P(Kinds, LargeFiles,
                         testing::Values(Kind{"made/valid/base.png", codec::Format::PNG},
                                         Kind{"apng/num_plays.png", codec::Format::PNG},
                                         Kind{"photos/tahoe-gps.jpg", codec::Format::JPEG},
                                         Kind{"made/valid/base.tif", codec::Format::TIFF},
                                         Kind{"made/exif/orientation-6.tif", codec::Format::TIFF},
                                         Kind{"tiff-pillow/multipage.tiff", codec::Format::TIFF},
                                         Kind{"tiff-pillow/hopper_bigtiff.tif", codec::Format::TIFF},
                                         Kind{"tiff-pillow/hopper.iccprofile.tif", codec::Format::TIFF},
                                         Kind{"made/valid/base.bmp", codec::Format::BMP}));

TEST(LargeFiles, OfNoKnownKindAreNotRead)
{
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / "large").string();
    ASSERT_TRUE(writeFileSafely(path, "nothing that is known", 21));
    ASSERT_EQ(::truncate(path.c_str(), kLarge), 0);
    EXPECT_EQ(importImageFile(path).error, "It is not an image of a kind that can be opened.");
}

TEST(LargeFiles, AWindowKeepsToItsBudget)
{
    const test::TemporaryFolder folder;
    const std::string path = (folder.path() / "f").string(), text = "0123456789";
    ASSERT_TRUE(writeFileSafely(path, text.data(), text.size()));
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    codec::FileWindow window(fd, 10, 6);
    window.take(2, 3);
    EXPECT_FALSE(window.ranOut());
    window.take(7, 100); // to the end
    EXPECT_FALSE(window.ranOut());
    window.take(0, 1);
    EXPECT_TRUE(window.ranOut());
    const std::string seen(window.bytes().begin(), window.bytes().end());
    EXPECT_EQ(seen, std::string("\0\0"
                                "234\0\0"
                                "789",
                                10));
    ::close(fd);
}

} // namespace
} // namespace zp
