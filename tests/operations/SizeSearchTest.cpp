// SPDX-License-Identifier: GPL-3.0-or-later
/// The quality for a size and for a look, against trying them all.
#include "operations/SizeSearch.h"
#include "codecs/ImageImporter.h"
#include "drawing/Resample.h"
#include "support/Samples.h"
#include <gtest/gtest.h>

using namespace zp;

namespace
{

/// A photograph at another size.
std::shared_ptr<const BitmapRep> photo(int width, int height)
{
    const ImportedImage image = importImageFile(test::sample("photos/tahoe-gps.jpg"));
    auto rep = BitmapRep::createUninitialized(width, height);
    resample(std::as_const(*image.bitmap).view(), rep->view());
    return rep;
}

struct Sought {
    SaveFormat format;
    int width, height; ///< the last is large enough for a guess from a part
    std::size_t bytes;
};

class SizeSearches : public testing::TestWithParam<Sought>
{
};

TEST_P(SizeSearches, FindTheBestQualityThatIsSmallEnough)
{
    const Sought& c = GetParam();
    const auto picture = photo(c.width, c.height);
    SizeSearch search(picture, c.format);
    int trials = 0;
    const SizedFile found = search.find({.kind = SizeGoal::AtMost, .bytes = c.bytes}, {}, [&](int) { ++trials; });
    ASSERT_FALSE(found.bytes.empty()) << found.error;
    EXPECT_LE(found.bytes.size(), c.bytes);
    EXPECT_LE(trials, 20);
    std::string error;
    const auto writer = LossyWriter::make(c.format, picture->view(), picture->properties, error);
    EXPECT_EQ(writer->write(found.quality, {}), found.bytes);
    if (found.quality < kBestQuality) {
        EXPECT_GT(writer->write(found.quality + 1, {}).size(), c.bytes);
    }
    ASSERT_TRUE(found.shown);
    EXPECT_NEAR(likenessOf(picture->view(), found.shown->view()).mean, found.likeness.mean, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(Sizes, SizeSearches,
                         testing::Values(Sought{SaveFormat::JPEG, 400, 300, 20'000},
                                         Sought{SaveFormat::JPEG, 400, 300, 9'000},
                                         Sought{SaveFormat::JPEG, 400, 300, 10'000'000},
                                         Sought{SaveFormat::JPEG, 2400, 1800, 300'000},
                                         Sought{SaveFormat::WebP, 400, 300, 12'000}));

} // namespace

TEST(SizeSearch, FindsTheLeastQualityThatLooksTheSame)
{
    for (const SaveFormat format : {SaveFormat::JPEG, SaveFormat::WebP}) {
        const auto picture = photo(400, 300);
        SizeSearch search(picture, format);
        const SizedFile found = search.find({.kind = SizeGoal::LooksSame}, {});
        ASSERT_FALSE(found.bytes.empty()) << found.error;
        EXPECT_TRUE(looksTheSame(found.likeness)) << found.likeness.mean << ' ' << found.likeness.worst;
        const SizedFile below = search.find({.kind = SizeGoal::Quality, .quality = found.quality - 1}, {});
        EXPECT_FALSE(looksTheSame(below.likeness)) << found.quality;
        EXPECT_EQ(below.quality, found.quality - 1);
    }
}

TEST(SizeSearch, SaysWhyThereIsNoFile)
{
    const auto picture = photo(400, 300);
    SizeSearch search(picture, SaveFormat::JPEG);
    EXPECT_EQ(search.find({.kind = SizeGoal::AtMost, .bytes = 100}, {}).error,
              "Even at the lowest quality the file is larger.");
    std::stop_source stop;
    stop.request_stop();
    const SizedFile stopped = search.find({.kind = SizeGoal::LooksSame}, stop.get_token());
    EXPECT_TRUE(stopped.bytes.empty());
    EXPECT_EQ(stopped.error, "");
    EXPECT_EQ(SizeSearch(picture, SaveFormat::TIFF).find({}, {}).error, "This kind of file has no quality to choose.");
}
