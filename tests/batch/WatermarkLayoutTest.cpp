// SPDX-License-Identifier: GPL-3.0-or-later
/// Watermarks whose size follows the picture's, repeated and turned ones, and what is kept of them.
#include "batch/WatermarkLayout.h"
#include "base/BitmapRep.h"
#include "base/Folders.h"
#include "batch/WatermarkDrawing.h"
#include "batch/Watermarks.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace zp
{
namespace
{

constexpr std::uint32_t kInk = 0x302010FF, kPaper = 0x646464FF;

std::shared_ptr<BitmapRep> sheet(int width, int height, std::uint32_t fill)
{
    auto rep = BitmapRep::create(width, height);
    for (int y = 0; y < height; ++y) std::fill_n(rep->view().row(y), width, fill);
    return rep;
}

/// A mark with an edge to it, half clear: what is drawn twice or shifted shows.
std::shared_ptr<BitmapRep> framedMark(int width, int height)
{
    auto rep = sheet(width, height, 0x20202080);
    for (int x = 0; x < width; ++x) rep->view().row(0)[x] = kInk;
    for (int y = 0; y < height; ++y) rep->view().row(y)[0] = kInk;
    return rep;
}

bool samePixels(const BitmapRep& a, const BitmapRep& b)
{
    for (int y = 0; y < a.pixelsHigh(); ++y)
        if (!std::equal(a.view().row(y), a.view().row(y) + a.pixelsWide(), b.view().row(y))) return false;
    return true;
}

struct Picture {
    const char* name;
    int width, height;
};
void PrintTo(const Picture& picture, std::ostream* out) { *out << picture.name; }

class RelativeWatermark : public testing::TestWithParam<Picture>
{
};

TEST_P(RelativeWatermark, HasTheSameProportionsInEveryPicture)
{
    const auto [name, width, height] = GetParam();
    const Size picture{float(width), float(height)};
    const double shorter = std::min(width, height);
    const WatermarkLayout layout{.relative = true, .size = 20, .margin = 5};
    struct Case {
        Size mark;
        WatermarkPlace place;
        Point point{};
    };
    for (const Case& c :
         {Case{{300, 100}, WatermarkPlace::LowerRight}, Case{{64, 256}, WatermarkPlace::UpperLeft},
          Case{{50, 50}, WatermarkPlace::LowerLeft}, Case{{1000, 700}, WatermarkPlace::UpperRight},
          Case{{300, 100}, WatermarkPlace::Center}, Case{{300, 100}, WatermarkPlace::Custom, {10, 30}}}) {
        const WatermarkPlan plan = planWatermark(layout, c.mark, picture, c.place, c.point, 999);
        ASSERT_EQ(plan.places.size(), 1u);
        const double longer = std::max(c.mark.width, c.mark.height);
        EXPECT_NEAR(plan.size.width, shorter * 0.2 * c.mark.width / longer, 0.5);
        EXPECT_NEAR(plan.size.height, shorter * 0.2 * c.mark.height / longer, 0.5);
        EXPECT_EQ(plan.box, plan.size);
        const double left = plan.places[0].x, right = width - left - plan.box.width;
        const double top = plan.places[0].y, bottom = height - top - plan.box.height;
        const bool isLeft = c.place == WatermarkPlace::UpperLeft || c.place == WatermarkPlace::LowerLeft;
        const bool isTop = c.place == WatermarkPlace::UpperLeft || c.place == WatermarkPlace::UpperRight;
        if (c.place == WatermarkPlace::Center) {
            EXPECT_NEAR(left, right, 1);
            EXPECT_NEAR(top, bottom, 1);
        } else if (c.place == WatermarkPlace::Custom) {
            EXPECT_NEAR(left, shorter * 0.10, 0.5);
            EXPECT_NEAR(bottom, shorter * 0.30, 0.5);
        } else {
            EXPECT_NEAR(isLeft ? left : right, shorter * 0.05, 0.5);
            EXPECT_NEAR(isTop ? top : bottom, shorter * 0.05, 0.5);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Pictures, RelativeWatermark,
                         testing::Values(Picture{"OneMegapixel", 1200, 800},
                                         Picture{"TwentyFourMegapixels", 6000, 4000}, Picture{"Upright", 4000, 6000},
                                         Picture{"Square", 3000, 3000}, Picture{"Panorama", 9000, 700},
                                         Picture{"Small", 200, 133}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(WatermarkLayout, TheLargestOneLiesWithinEveryPicture)
{
    for (const Size picture : {Size{600, 200}, Size{200, 600}, Size{300, 300}})
        for (const Size mark : {Size{900, 90}, Size{90, 900}, Size{7, 7}}) {
            const WatermarkPlan plan = planWatermark({.relative = true, .size = kLargestWatermark, .margin = 0}, mark,
                                                     picture, WatermarkPlace::LowerRight, {}, 0);
            EXPECT_GE(plan.places[0].x, 0);
            EXPECT_GE(plan.places[0].y, 0);
            EXPECT_EQ(plan.places[0].x + plan.box.width, picture.width);
            EXPECT_EQ(plan.places[0].y + plan.box.height, picture.height);
        }
}

TEST(WatermarkLayout, AnEmptyOrTinyMarkIsStillAPixel)
{
    const WatermarkLayout layout{.relative = true, .size = 1};
    for (const Size mark : {Size{}, Size{1000, 1}, Size{1, 1}}) {
        const WatermarkPlan plan = planWatermark(layout, mark, {10, 10}, WatermarkPlace::Center, {}, 0);
        EXPECT_EQ(plan.box, (Size{1, 1}));
    }
}

struct Tiling {
    const char* name;
    WatermarkLayout layout;
    int width, height;         ///< of the picture
    int markWidth, markHeight; ///< in pixels
    WatermarkPlace place = WatermarkPlace::LowerRight;
    Point point{};
};
void PrintTo(const Tiling& tiling, std::ostream* out) { *out << tiling.name; }

class TiledWatermark : public testing::TestWithParam<Tiling>
{
protected:
    const Tiling mCase = GetParam();
    const std::shared_ptr<BitmapRep> mMark = framedMark(mCase.markWidth, mCase.markHeight);
    const Size mPicture{float(mCase.width), float(mCase.height)};
    const WatermarkPlan mPlan =
        planWatermark(mCase.layout, sizeInPoints(*mMark), mPicture, mCase.place, mCase.point, 4);
};

TEST_P(TiledWatermark, CoversEveryRegionOfThePicture)
{
    // No point of the picture is further from a mark's middle than the pattern's widest hole.
    const double gap = std::max(mPlan.size.width, mPlan.size.height) * mCase.layout.gap / 100.0 + 1;
    const double across = std::max(mPlan.size.width + gap, 8.0), down = std::max(mPlan.size.height + gap, 8.0);
    const double hole = std::hypot(across / 2, down / 2) + 2;
    ASSERT_FALSE(mPlan.places.empty());
    // Near an edge the nearest one may lie outside, where it is not listed.
    const int edge = int(hole) + 1;
    for (int y = edge; y < mCase.height - edge; y += 5)
        for (int x = edge; x < mCase.width - edge; x += 5) {
            double nearest = 1e9;
            for (const PixelPoint place : mPlan.places)
                nearest = std::min(
                    nearest, std::hypot(place.x + mPlan.box.width / 2.0 - x, place.y + mPlan.box.height / 2.0 - y));
            ASSERT_LE(nearest, hole) << x << "," << y;
        }
}

TEST_P(TiledWatermark, BeginsAtItsPlaceAndKeepsToTheMarksThatTouchThePicture)
{
    WatermarkLayout once = mCase.layout;
    once.tiled = false;
    const WatermarkPlan single = planWatermark(once, sizeInPoints(*mMark), mPicture, mCase.place, mCase.point, 4);
    const PixelPoint first = single.places[0];
    const bool inside =
        first.x > -single.box.width && first.y > -single.box.height && first.x < mCase.width && first.y < mCase.height;
    EXPECT_EQ(std::count(mPlan.places.begin(), mPlan.places.end(), first), inside ? 1 : 0);
    for (const PixelPoint place : mPlan.places) {
        EXPECT_GT(place.x + mPlan.box.width, 0);
        EXPECT_GT(place.y + mPlan.box.height, 0);
        EXPECT_LT(place.x, mCase.width);
        EXPECT_LT(place.y, mCase.height);
    }
}

TEST_P(TiledWatermark, EqualsALoopOfSingleStamps)
{
    auto tiled = sheet(mCase.width, mCase.height, kPaper), looped = sheet(mCase.width, mCase.height, kPaper);
    drawWatermarks(tiled->view(), mMark->view(), mPlan, mPicture, 0.6f);
    for (const PixelPoint place : mPlan.places) {
        WatermarkPlan one = mPlan;
        one.places = {place};
        drawWatermarks(looped->view(), mMark->view(), one, mPicture, 0.6f);
    }
    EXPECT_TRUE(samePixels(*tiled, *looped));
    EXPECT_FALSE(samePixels(*tiled, *sheet(mCase.width, mCase.height, kPaper)));
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, TiledWatermark,
    testing::Values(
        Tiling{"OwnSize", {.tiled = true}, 400, 300, 31, 12},
        Tiling{"NoGap", {.tiled = true, .gap = 0}, 400, 300, 31, 12},
        Tiling{"WideGap", {.tiled = true, .gap = 400}, 700, 500, 31, 12, WatermarkPlace::Center},
        Tiling{"Relative", {.relative = true, .size = 17, .tiled = true}, 301, 467, 90, 40},
        Tiling{"Turned", {.relative = true, .size = 25, .tiled = true, .turn = 30}, 500, 333, 90, 40},
        Tiling{"TurnedBack", {.tiled = true, .gap = 20, .turn = -45}, 333, 500, 60, 15},
        Tiling{"Upright", {.tiled = true, .turn = 90}, 200, 500, 60, 15},
        Tiling{"Dust", {.tiled = true, .gap = 0}, 150, 120, 1, 1},
        Tiling{"LargerThanThePicture", {.tiled = true}, 60, 40, 200, 90},
        Tiling{"FromFarOutside", {.tiled = true, .turn = 10}, 300, 200, 31, 12, WatermarkPlace::Custom, {-5000, 90000}},
        Tiling{"FromTheEndOfNumbers",
               {.relative = true, .tiled = true},
               300,
               200,
               31,
               12,
               WatermarkPlace::Custom,
               {2e9f, -2e9f}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(WatermarkLayout, EverySecondRowIsHalfAStepFurther)
{
    const WatermarkPlan plan =
        planWatermark({.tiled = true, .gap = 50}, {20, 10}, {100, 60}, WatermarkPlace::UpperLeft, {}, 0);
    std::vector<int> even, odd;
    for (const PixelPoint place : plan.places) {
        if (place.y == 0) even.push_back(place.x);
        if (place.y == 20) odd.push_back(place.x); // 10 high, 10 between
    }
    EXPECT_EQ(even, (std::vector<int>{0, 30, 60, 90}));
    EXPECT_EQ(odd, (std::vector<int>{-15, 15, 45, 75}));
}

TEST(WatermarkLayout, ATurnGoesAgainstTheClockAboutTheMiddle)
{
    // The mark's left half is dark: a quarter turn against the clock brings it down.
    auto mark = sheet(40, 20, 0xFFFFFFFF);
    for (int y = 0; y < 20; ++y) std::fill_n(mark->view().row(y), 20, kInk);
    auto image = sheet(100, 100, kPaper);
    const WatermarkPlan plan = planWatermark({.turn = 90}, {40, 20}, {100, 100}, WatermarkPlace::LowerLeft, {}, 10);
    EXPECT_EQ(plan.box, (Size{20, 40}));
    drawWatermarks(image->view(), mark->view(), plan, {100, 100}, 1);
    EXPECT_EQ(image->view().row(85)[20], kInk);
    EXPECT_EQ(image->view().row(55)[20], 0xFFFFFFFFu);
    EXPECT_EQ(image->view().row(45)[20], kPaper);
    EXPECT_EQ(image->view().row(70)[35], kPaper);
}

TEST(WatermarkLayout, AnUnturnedSingleMarkOfItsOwnSizeIsTheOldOne)
{
    const auto mark = framedMark(33, 21);
    for (const Point point : {Point{2, 5}, Point{-9, 70}, Point{88, -3}}) {
        auto old = sheet(100, 80, kPaper), planned = sheet(100, 80, kPaper);
        drawWatermark(old->view(), mark->view(), {33, 21}, point, 0.4f);
        drawWatermarks(planned->view(), mark->view(),
                       planWatermark({}, {33, 21}, {100, 80}, WatermarkPlace::Custom, point, 0), {100, 80}, 0.4f);
        EXPECT_TRUE(samePixels(*old, *planned));
    }
}

TEST(WatermarkLayout, IsKeptInLinesThatMayBeOlderOrNewer)
{
    const WatermarkLayout layout{.relative = true, .size = 40, .margin = 7, .tiled = true, .gap = 120, .turn = -30};
    EXPECT_EQ(layoutOfText(textOfLayout(layout)), layout);
    EXPECT_EQ(layoutOfText(""), WatermarkLayout());
    struct Case {
        const char* text;
        WatermarkLayout means;
    };
    for (const Case& c : {Case{"relative 1\nsize 12\n", {.relative = true, .size = 12}},
                          Case{"colour 7\nsize 30\nmargin 2 px\n", {.size = 30}}, Case{"size 0\ngap 401\nturn 999", {}},
                          Case{"size\n\n  turn   15  \r\nsize twelve", {.turn = 15}}, Case{"\0\xFF\xFE", {}}})
        EXPECT_EQ(layoutOfText(c.text), c.means) << c.text;
}

TEST(WatermarkLayout, IsKeptBesideItsWatermark)
{
    createFolder(applicationSupportFolder());
    removeItem(watermarkFolder());
    createFolder(watermarkFolder());
    EXPECT_EQ(keptWatermarkLayout("a.jpg"), WatermarkLayout());
    keepWatermarkLayout("a.jpg", {});
    EXPECT_TRUE(contentsOfFolder(watermarkFolder()).empty());
    const WatermarkLayout layout{.relative = true, .size = 11};
    keepWatermarkLayout("a.jpg", layout);
    EXPECT_EQ(keptWatermarkLayout("a.jpg"), layout);
    EXPECT_EQ(keptWatermarkLayout("b.jpg"), WatermarkLayout());
    EXPECT_TRUE(watermarkNames().empty()); // its file is no watermark
    keepWatermarkLayout("a.jpg", {});
    EXPECT_TRUE(contentsOfFolder(watermarkFolder()).empty());
    removeItem(watermarkFolder());
}

} // namespace
} // namespace zp
