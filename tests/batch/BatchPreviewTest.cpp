// SPDX-License-Identifier: GPL-3.0-or-later
/// Which pictures of a folder are shown before a run, and that they show what the run writes.
#include "batch/BatchPreview.h"
#include "base/Folders.h"
#include "batch/BatchPicture.h"
#include "codecs/ImageEncoder.h"
#include "drawing/Resample.h"
#include "support/Decibels.h"
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <utility>

namespace zp
{
namespace
{

struct Choice {
    const char* name;
    std::vector<PixelDimensions> sizes;
    std::vector<std::size_t> chosen;
    bool alike = false;
};
void PrintTo(const Choice& choice, std::ostream* out) { *out << choice.name; }

class PreviewChoiceOf : public testing::TestWithParam<Choice>
{
};

TEST_P(PreviewChoiceOf, ShowsTheMostDifferentShapes)
{
    bool alike = false;
    EXPECT_EQ(picturesOfDifferentShape(GetParam().sizes, alike), GetParam().chosen);
    EXPECT_EQ(alike, GetParam().alike);
}

INSTANTIATE_TEST_SUITE_P(
    Folders, PreviewChoiceOf,
    testing::Values(
        Choice{"Empty", {}, {}}, Choice{"One", {{30, 20}}, {0}}, Choice{"Two", {{20, 30}, {30, 20}}, {1, 0}},
        Choice{"ThreeShapes", {{100, 100}, {20, 30}, {90, 20}, {30, 20}}, {2, 1, 0}},
        Choice{"TheSmallestOfSeveralSquares", {{90, 20}, {50, 50}, {10, 10}, {20, 90}, {70, 70}}, {0, 3, 2}},
        Choice{"OneShapeBySize", {{300, 200}, {600, 401}, {150, 100}, {3000, 2000}, {450, 300}}, {3, 4, 2}, true},
        Choice{"TwoOfOneShape", {{300, 200}, {600, 400}}, {1, 0}, true},
        Choice{"UnknownOnesLast", {{0, 0}, {40, 30}, {0, 0}}, {1, 0, 2}},
        Choice{"OnlyUnknown", {{0, 0}, {0, 0}, {0, 0}, {0, 0}}, {0, 1, 2}}),
    [](const auto& test) { return std::string(test.param.name); });

class Preview : public testing::Test
{
protected:
    Preview()
    {
        removeItem(source());
        createFolder(source());
        mSettings.source = source();
        mSettings.destination = source() + "/nowhere";
        mSettings.jpeg = mSettings.tiff = true;
    }
    ~Preview() override { removeItem(source()); }
    static std::string source() { return temporaryFolder() + "/preview source"; }
    static void add(const std::string& original, const std::string& name)
    {
        ASSERT_TRUE(copyItem(std::string(ZP_TESTDATA) + "/images/" + original, source() + "/" + name)) << original;
    }
    static std::shared_ptr<BitmapRep> mark()
    {
        auto mark = BitmapRep::create(240, 90);
        for (int y = 0; y < 90; ++y)
            for (int x = 0; x < 240; ++x) // soft stripes: a shift shows, an alias does not
                mark->view().row(y)[x] = x / 40 % 2 == 0 ? 0xFFFFFFFFu : 0x404040C0u;
        return mark;
    }
    static bool never() { return false; }
    BatchSettings mSettings;
    BatchPreview mPreview;
};

TEST_F(Preview, ListsPicturesOnlyAndSaysHowManyWereLookedAt)
{
    add("made/valid/base.jpg", "a.jpg");
    add("made/valid/base.tif", "b.tiff");
    add("made/valid/base.png", "c.png");
    const PreviewChoice& choice = mPreview.choose(mSettings, never);
    EXPECT_EQ(choice.names, (std::vector<std::string>{"a.jpg", "b.tiff"}));
    EXPECT_EQ(choice.of, 2u);
    EXPECT_EQ(choice.looked, 2u);
    EXPECT_EQ(choice.error, "");
    add("made/valid/base.jpg", "d.jpg");
    EXPECT_EQ(mPreview.choose(mSettings, never).of, 2u); // known already
    mPreview.forget();
    EXPECT_EQ(mPreview.choose(mSettings, never).of, 3u);
    mSettings.source = "/nowhere";
    EXPECT_EQ(mPreview.choose(mSettings, never).of, 0u);
    EXPECT_NE(mPreview.choose(mSettings, never).error, "");
}

TEST_F(Preview, OfALargeFolderAsManyHeadersAsItMay)
{
    const auto bytes = encodeJPEG(BitmapRep::create(8, 8)->view(), {});
    const std::size_t count = 7 * kPreviewHeaders / 2; // a step of three and a half
    const auto name = [](std::size_t i) { return source() + "/" + std::to_string(10000 + i) + ".jpg"; };
    writeFileSafely(name(0), bytes.data(), bytes.size());
    for (std::size_t i = 1; i < count; ++i) std::filesystem::create_hard_link(name(0), name(i));
    const auto flat = encodeJPEG(BitmapRep::create(24, 8)->view(), {});
    writeFileSafely(source() + "/flat", flat.data(), flat.size());
    for (std::size_t i = 0; i < count; i += 7) {
        removeItem(name(i));
        std::filesystem::create_hard_link(source() + "/flat", name(i));
    }
    const PreviewChoice& choice = mPreview.choose(mSettings, never);
    EXPECT_EQ(choice.looked, kPreviewHeaders);
    EXPECT_EQ(choice.of, count);
    EXPECT_EQ(choice.names.size(), kPreviewPictures);
    EXPECT_FALSE(choice.alike);
}

TEST_F(Preview, EndsWhenItIsNoLongerWanted)
{
    for (int i = 0; i < 20; ++i) add("made/valid/base.jpg", std::to_string(i) + ".jpg");
    int asked = 0;
    EXPECT_TRUE(mPreview.choose(mSettings, [&] { return ++asked > 5; }).names.empty());
    EXPECT_EQ(asked, 6);
    EXPECT_EQ(mPreview.choose(mSettings, never).names.size(), 3u); // not taken for done
}

TEST_F(Preview, ADamagedSourceIsSaid)
{
    add("made/truncated/50pc.jpg", "short.jpg");
    mPreview.choose(mSettings, never);
    const BatchPreview::Picture shown = mPreview.picture(mSettings, 0, 100);
    EXPECT_FALSE(shown.bitmap);
    EXPECT_NE(shown.error.find("damaged"), std::string::npos);
}

struct Look {
    const char* name;
    int fit = 0;
    WatermarkLayout layout{};
    WatermarkPlace place = WatermarkPlace::LowerRight;
    Point point{};
};
void PrintTo(const Look& look, std::ostream* out) { *out << look.name; }

class PreviewLooks : public Preview, public testing::WithParamInterface<Look>
{
};

TEST_P(PreviewLooks, LikeWhatTheRunWrites)
{
    constexpr int kSide = 200;
    constexpr double kAlike = 30; ///< dB: steps of the mark's edge fall between two pixels of the small picture
    add("photos/tahoe-gps.jpg", "flat.jpg");
    add("photos/seeding-600-cmyk.jpg", "inks.jpg");
    add("made/exif/orientation-6.jpg", "turned.jpg");
    const Look& look = GetParam();
    mSettings.fitWidth = mSettings.fitHeight = look.fit;
    mSettings.watermark = mark();
    mSettings.watermarkLayout = look.layout;
    mSettings.watermarkPlace = look.place;
    mSettings.watermarkPoint = look.point;
    mSettings.watermarkMargin = 12;
    mSettings.watermarkAlpha = 0.8f;
    const PreviewChoice choice = mPreview.choose(mSettings, never);
    ASSERT_EQ(choice.names.size(), 3u);
    for (std::size_t i = 0; i < choice.names.size(); ++i) {
        SCOPED_TRACE(choice.names[i]);
        const BatchPreview::Picture shown = mPreview.picture(mSettings, i, kSide);
        ASSERT_TRUE(shown.bitmap) << shown.error;
        const int w = shown.bitmap->pixelsWide(), h = shown.bitmap->pixelsHigh();
        EXPECT_LE(std::max(w, h), kSide);

        BatchPicture written(mSettings, choice.names[i]);
        ASSERT_EQ(written.read(), "");
        ASSERT_EQ(written.fit(), "");
        written.stamp();
        EXPECT_EQ(shown.result, (Size{float(written.bitmap()->pixelsWide()), float(written.bitmap()->pixelsHigh())}));
        auto small = BitmapRep::create(w, h);
        resample(std::as_const(*written.bitmap()).view(), small->view());
        EXPECT_GT(test::decibels(small->view(), shown.bitmap->view()), kAlike);
        if (shown.result == Size{float(w), float(h)}) {
            EXPECT_EQ(test::decibels(small->view(), shown.bitmap->view()), 99);
        }
    }
    EXPECT_FALSE(fileExists(mSettings.destination));
}

INSTANTIATE_TEST_SUITE_P(Settings, PreviewLooks,
                         testing::Values(Look{"AsGiven"}, Look{"AtAPoint", 0, {}, WatermarkPlace::Custom, {33, 21}},
                                         Look{"Fitted", 400}, Look{"FittedSmall", 150}, Look{"Enlarged", 2000},
                                         Look{"Relative", 0, {.relative = true, .size = 40, .margin = 6}},
                                         Look{"RelativeFitted", 500, {.relative = true, .size = 40, .margin = 6}},
                                         Look{"Tiled", 0, {.relative = true, .size = 50, .tiled = true}},
                                         Look{"TiledOwnSize", 900, {.tiled = true, .gap = 20}, WatermarkPlace::Center},
                                         Look{"Turned", 0, {.relative = true, .size = 50, .tiled = true, .turn = 30}}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(Preview, FollowsTheSettings)
{
    add("photos/tahoe-gps.jpg", "a.jpg");
    mPreview.choose(mSettings, never);
    const auto plain = mPreview.picture(mSettings, 0, 120).bitmap;
    mSettings.watermark = mark();
    const auto marked = mPreview.picture(mSettings, 0, 120).bitmap;
    EXPECT_LT(test::decibels(plain->view(), marked->view()), 99);
    mSettings.watermark = nullptr;
    EXPECT_EQ(test::decibels(plain->view(), mPreview.picture(mSettings, 0, 120).bitmap->view()),
              99); // nothing was stamped into it
    mSettings.fitWidth = mSettings.fitHeight = 60;
    EXPECT_EQ(mPreview.picture(mSettings, 0, 120).bitmap->pixelsWide(), 60);
    EXPECT_EQ(mPreview.picture(mSettings, 0, 40).bitmap->pixelsWide(), 40);
}

} // namespace
} // namespace zp
