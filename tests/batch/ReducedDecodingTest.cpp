// SPDX-License-Identifier: GPL-3.0-or-later
/// What is decoded smaller looks like what is decoded whole.
#include "base/Folders.h"
#include "batch/BatchPicture.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "support/Decibels.h"
#include "support/Samples.h"
#include <gtest/gtest.h>
#include <random>

namespace zp
{
namespace
{

struct Result {
    std::shared_ptr<BitmapRep> bitmap;
    int read = 0; ///< the width that was decoded
};

/// A picture fitted into a square box; null when it cannot be read.
Result fitted(const std::string& path, int box, bool reduced)
{
    BatchSettings settings;
    settings.source = folderOfPath(path);
    settings.fitWidth = settings.fitHeight = box;
    settings.reducedDecoding = reduced;
    BatchPicture picture(settings, lastPathComponent(path));
    if (!picture.read().empty()) return {};
    const int read = picture.bitmap()->pixelsWide();
    EXPECT_EQ(picture.fit(), "");
    return {picture.bitmap(), read};
}

constexpr int kBoxes[] = {64, 80, 100, 112, 128, 144, 160, 200, 256, 320, 400};

/// Fits all JPEG files of a folder and those below it, and compares. @return how many results were reduced
int compareAll(const std::string& folder, double& worst)
{
    int count = 0;
    for (const std::string& name : contentsOfFolder(folder)) {
        const std::string path = pathByAppending(folder, name);
        if (isFolder(path)) {
            count += compareAll(path, worst);
            continue;
        }
        const std::string kind = pathExtension(name);
        if (kind != "jpg" && kind != "jpeg") continue;
        for (const int box : kBoxes) {
            const Result reduced = fitted(path, box, true);
            if (!reduced.bitmap) break;
            if (reduced.read == imageFileDimensions(path).width) continue;
            const Result full = fitted(path, box, false);
            EXPECT_EQ(reduced.bitmap->pixelsWide(), full.bitmap->pixelsWide());
            EXPECT_EQ(reduced.bitmap->pixelsHigh(), full.bitmap->pixelsHigh());
            const double near = test::decibels(reduced.bitmap->view(), full.bitmap->view());
            EXPECT_GE(near, 40) << path << " at " << box << ", decoded " << reduced.read << " wide";
            worst = std::min(worst, near);
            ++count;
        }
    }
    return count;
}

TEST(ReducedDecoding, OfPhotographsIsFortyDecibelsFromFullDecoding)
{
    double worst = 99;
    EXPECT_GE(compareAll(test::sample("photos"), worst), 10);
    RecordProperty("worst", std::to_string(worst));
}

/// A folder of other photographs may be named: ZP_PHOTOGRAPHS.
TEST(ReducedDecodingLong, OfAllPicturesIsFortyDecibelsFromFullDecoding)
{
    double worst = 99;
    const char* more = std::getenv("ZP_PHOTOGRAPHS");
    const int count = compareAll(more ? more : test::sample(""), worst);
    EXPECT_GE(count, 10);
    std::printf("%d reduced results, the worst %.1f dB from the full path\n", count, worst);
}

/// Sides that no divisor divides, in all eight orientations: nothing is shifted.
TEST(ReducedDecoding, KeepsThePlaceOfEveryPixelHoweverThePictureStandsInItsFile)
{
    constexpr int kWidth = 1233, kHeight = 1025;
    const auto picture = BitmapRep::create(kWidth, kHeight);
    std::mt19937 random(7);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth;
             ++x) { // large flat squares with sharp edges: a shift by what stands beyond the edge is 30 dB or less
            const unsigned cell = unsigned(x / 33) * 31 + unsigned(y / 33) * 17;
            picture->view().row(y)[x] = 0xFF | (cell * 2654435761u & 0xF8F8F800u);
        }
    const auto bytes = encodeJPEG(picture->view(), {}, {.factor = 0.95});
    for (int orientation = 1; orientation <= 8; ++orientation) {
        // Behind the file's first marker: an EXIF block with nothing but the orientation.
        std::vector<std::uint8_t> turned(bytes.begin(), bytes.begin() + 2);
        const std::uint8_t exif[] = {0xFF, 0xE1, 0, 34, 'E', 'x', 'i', 'f', 0, 0,
                                     'M',  'M',  0, 42, 0,   0,   0,   8,   0, 1,
                                     1,    18,   0, 3,  0,   0,   0,   1,   0, std::uint8_t(orientation),
                                     0,    0,    0, 0,  0,   0};
        turned.insert(turned.end(), std::begin(exif), std::end(exif));
        turned.insert(turned.end(), bytes.begin() + 2, bytes.end());
        const std::string path = temporaryFolder() + "/turned.jpg";
        ASSERT_TRUE(writeFileSafely(path, turned.data(), turned.size()));
        for (const int box : {70, 128, 300}) {
            const Result reduced = fitted(path, box, true), full = fitted(path, box, false);
            ASSERT_TRUE(reduced.bitmap && full.bitmap);
            ASSERT_LT(reduced.read, full.read);
            EXPECT_EQ(full.read, orientation > 4 ? kHeight : kWidth);
            EXPECT_GE(test::decibels(reduced.bitmap->view(), full.bitmap->view()), 35) << orientation << " at " << box;
        }
        removeItem(path);
    }
}

TEST(ReducedDecoding, IsNotForSmallPictures)
{
    const std::string path = test::sample("photos/seeding-600-grey.jpg");
    EXPECT_EQ(fitted(path, 64, true).read, fitted(path, 64, false).read);
}

} // namespace
} // namespace zp
