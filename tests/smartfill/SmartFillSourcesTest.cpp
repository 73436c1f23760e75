// SPDX-License-Identifier: GPL-3.0-or-later
/// Fills that take their colours from marked places only, or never from them.
#include "smartfill/SmartFillSources.h"
#include "smartfill/SmartFillPictures.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>

using namespace zp;
using namespace zp::testpictures;

namespace
{

/// Grain whose red is 40 in the left half, 200 in the right one, and a hole in the middle.
Scene halves()
{
    Scene scene(120, 80);
    std::mt19937 random(3);
    scene.paint([&](int x, int) { return argb(255, x < 60 ? 40 : 200, random() % 256, random() % 256); });
    scene.select({50, 30, 70, 50});
    return scene;
}

MarkedPixels wholly(PixelBox box)
{
    return {box, std::vector<std::uint8_t>(std::size_t(box.width()) * std::size_t(box.height()), 255)};
}

/// The reds in the hole after a fill.
std::set<unsigned> redsAfter(const SmartFillSources& sources, bool faster, SmartFillStatus expected)
{
    Scene scene = halves();
    const SmartFillArea area =
        areaWithSources(smartFillArea(makeRect(50, 30, 20, 20), scene.width, scene.height, 50, faster), sources);
    SmartFillPicture picture = fetchSmartFillPicture(scene.bitmap(), scene.maskView(), area);
    limitSources(picture, area, sources);
    EXPECT_EQ(fillSmartFillPicture(picture, 9, {}), expected);
    std::set<unsigned> reds;
    for (std::size_t i = 0; i < picture.pixels.size(); ++i)
        if (picture.mask[i]) reds.insert(picture.pixels[i] >> 8 & 255);
    return reds;
}

TEST(SmartFillSources, OnlyMarkedPixelsAreTakenHoweverFarAwayTheyAre)
{
    for (const bool faster : {false, true}) {
        SCOPED_TRACE(faster);
        EXPECT_EQ(redsAfter({}, faster, SmartFillStatus::Filled), (std::set<unsigned>{40, 200}));
        EXPECT_EQ(redsAfter({wholly({3, 5, 20, 17}), {}}, faster, SmartFillStatus::Filled), std::set<unsigned>{40});
        EXPECT_EQ(redsAfter({wholly({101, 61, 119, 79}), {}}, faster, SmartFillStatus::Filled),
                  std::set<unsigned>{200});
    }
}

TEST(SmartFillSources, ForbiddenPixelsAreNeverTaken)
{
    EXPECT_EQ(redsAfter({{}, wholly({0, 0, 60, 80})}, false, SmartFillStatus::Filled), std::set<unsigned>{200});
    EXPECT_EQ(redsAfter({wholly({10, 10, 110, 70}), wholly({60, 0, 120, 80})}, false, SmartFillStatus::Filled),
              std::set<unsigned>{40});
}

TEST(SmartFillSources, WhenAllIsForbiddenThereIsNothingToFillFrom)
{
    redsAfter({{}, wholly({0, 0, 120, 80})}, false, SmartFillStatus::NoSource);
    redsAfter({wholly({52, 32, 60, 40}), {}}, false, SmartFillStatus::NoSource); // inside the hole
}

TEST(SmartFillSources, TheAreaHoldsTheMarkedPixelsWithEvenCornersIfFaster)
{
    const SmartFillArea area = smartFillArea(makeRect(50, 30, 20, 20), 121, 81, 50, true);
    const PixelBox grown = areaWithSources(area, {wholly({3, 5, 121, 81}), {}}).work;
    EXPECT_EQ(grown, (PixelBox{4, 6, 120, 80}));
    EXPECT_EQ(areaWithSources(area, {{}, wholly({0, 0, 121, 81})}).work, area.work)
        << "what is forbidden is not needed";
}

TEST(SmartFillSources, NoLimitIsNoMark)
{
    const Scene scene = halves();
    const SmartFillArea area = smartFillArea(makeRect(50, 30, 20, 20), 120, 80, 50, false);
    SmartFillPicture picture = fetchSmartFillPicture(Scene(scene).bitmap(), scene.maskView(), area);
    picture.sources.assign(picture.mask.size(), 0);
    limitSources(picture, area, {});
    EXPECT_TRUE(picture.sources.empty());
    EXPECT_EQ(areaWithSources(area, {}).work, area.work);
}

TEST(SmartFillSources, MarkedPixelsAreCutOutOfAMaskThatBeginsAnywhere)
{
    std::vector<std::uint8_t> bytes(20);
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = std::uint8_t(i);
    const MarkedPixels marked = markedPixels({bytes.data(), 5, 4, 5}, {8, 0, 12, 23}, {7, 20});
    EXPECT_EQ(marked.box, (PixelBox{8, 20, 12, 23}));
    EXPECT_EQ(marked.at(8, 20), 1);
    EXPECT_EQ(marked.at(11, 22), 14);
    EXPECT_EQ(marked.at(7, 20), 0) << "outside";
}

} // namespace
