// SPDX-License-Identifier: GPL-3.0-or-later
/// Captions and comments from file to file, and files that shall say nothing of people and places.
#include "codecs/FileNames.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PrivateData.h"
#include "support/Samples.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace zp
{
namespace
{

bool holds(const std::vector<std::uint8_t>& file, const std::string& text)
{
    return std::ranges::search(file, text).begin() != file.end();
}

TEST(CarriedData, CaptionsGoFromFileToFile)
{
    const auto opened = importImageFile(test::sample("jpeg-pillow/iptc.jpg")).bitmap;
    ASSERT_TRUE(opened);
    const auto& records = opened->properties.iptc;
    ASSERT_TRUE(holds(records, "Budapest"));
    const auto jpeg = encodeJPEG(opened->view(), opened->properties, {.fallbackBackground = kWhite});
    EXPECT_EQ(importImage(jpeg).bitmap->properties.iptc, records);
    const auto tiff = encodeTIFF(opened->view(), opened->properties, {.lzw = true});
    EXPECT_EQ(importImage(tiff).bitmap->properties.iptc, records);
}

TEST(CarriedData, CommentsGoFromJPEGToJPEG)
{
    auto rep = BitmapRep::create(16, 16);
    rep->properties.comments = {"First light", "\xC3\xA9t\xC3\xA9"};
    const auto file = encodeJPEG(rep->view(), rep->properties, {.fallbackBackground = kWhite});
    EXPECT_EQ(importImage(file).bitmap->properties.comments, rep->properties.comments);
}

TEST(CarriedData, CaptionsAreFoundAmongOtherResources)
{
    const std::vector<std::uint8_t> records{0x1C, 2, 0, 0, 3, 'a', 'b', 'c'};
    std::vector<std::uint8_t> resources{'8', 'B', 'I', 'M', 4, 0x0A, 3, 'a', 'b', 'c', 0, 0, 0, 3, 9, 9, 9, 0};
    const auto own = codec::iptcAsResource(records);
    resources.insert(resources.end(), own.begin(), own.end());
    const auto found = codec::iptcOfResources(resources);
    EXPECT_TRUE(std::ranges::equal(found, records));
    for (std::size_t length = 0; length < resources.size(); ++length) // cut off anywhere
        EXPECT_TRUE(codec::iptcOfResources(std::span(resources).first(length)).size() == 0 ||
                    length >= resources.size() - records.size() % 2);
    EXPECT_TRUE(codec::iptcAsResource({}).empty());
}

TEST(PrivateData, SaysNothingOfPlaceDeviceAndNames)
{
    struct Source {
        const char* file;
        std::vector<const char*> words;
    };
    for (const Source& source : {Source{"photos/tahoe-gps.jpg", {"T-Mobile", "WGS-84", "HYBRID-FIX"}},
                                 Source{"jpeg-pillow/iptc.jpg", {"Budapest", "Hungary", "holiday"}}}) {
        const auto opened = importImageFile(test::sample(source.file)).bitmap;
        ASSERT_TRUE(opened);
        opened->properties.userComment = kEditedComment;
        opened->properties.comments = {"by Jane"};
        opened->properties.xmp = "<x:xmpmeta>Jane</x:xmpmeta>";
        ImageProperties shared = opened->properties;
        removePrivateData(shared);
        const auto before = encodeJPEG(opened->view(), opened->properties, {.fallbackBackground = kWhite});
        const auto jpeg = encodeJPEG(opened->view(), shared, {.fallbackBackground = kWhite});
        const auto tiff = encodeTIFF(opened->view(), shared, {.lzw = true}), png = encodePNG(opened->view(), shared);
        for (const char* word : source.words) {
            EXPECT_TRUE(holds(before, word)) << word;
            for (const auto* file : {&jpeg, &tiff, &png}) EXPECT_FALSE(holds(*file, word)) << word;
        }
        EXPECT_FALSE(holds(jpeg, "Jane"));
        EXPECT_TRUE(holds(jpeg, kEditedComment)) << "our own mark says nothing of anybody";
        EXPECT_EQ(shared.xDpi, opened->properties.xDpi);
        EXPECT_EQ(shared.iccProfile, opened->properties.iccProfile);
    }
}

TEST(PrivateData, KeepsWhenAndHowThePictureWasTaken)
{
    auto properties = importImageFile(test::sample("photos/tahoe-gps.jpg")).bitmap->properties;
    properties.userComment = "Jane and John";
    removePrivateData(properties);
    const std::string description = exifDescription(properties);
    EXPECT_NE(description.find("DateTimeOriginal"), std::string::npos) << description;
    EXPECT_EQ(description.find("Make"), std::string::npos);
    EXPECT_EQ(description.find("Jane"), std::string::npos);
}

} // namespace
} // namespace zp
