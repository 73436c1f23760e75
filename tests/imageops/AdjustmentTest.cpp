// SPDX-License-Identifier: GPL-3.0-or-later
/// The adjust dialog's numbers as filter settings, and the ledger of computed tiles.
#include "imageops/Adjustment.h"
#include "imageops/TileLedger.h"
#include <gtest/gtest.h>
#include <random>

using namespace zp;

TEST(FilterSettings, NeutralNumbersAreNeutralSettings)
{
    EXPECT_TRUE(filterSettings({}).isNeutral());
    EXPECT_TRUE(filterSettings({0, 100, 0, 100, 0}).isNeutral());
}

TEST(FilterSettings, NumbersAreDividedInSinglePrecision)
{
    const FilterSettings s = filterSettings({-157, 33, 7, 250, 0});
    EXPECT_EQ(s.hueAngle, -157 / 100.0f);
    EXPECT_EQ(s.saturation, 33 / 100.0f);
    EXPECT_EQ(s.brightness, 7 / 100.0f);
    EXPECT_EQ(s.contrast, 250 / 100.0f);
    EXPECT_EQ(s.unsharpIntensity, 0);
    EXPECT_EQ(s.blurRadius, 0);
}

TEST(FilterSettings, SharpnessAboveZeroIsAnUnsharpMask)
{
    const FilterSettings s = filterSettings({0, 100, 0, 100, 1});
    EXPECT_EQ(s.unsharpIntensity, 0.01f);
    EXPECT_EQ(s.unsharpRadius, 2.5f);
    EXPECT_EQ(s.blurRadius, 0);
    EXPECT_FALSE(s.isNeutral());
}

TEST(FilterSettings, SharpnessBelowZeroIsABlur)
{
    EXPECT_EQ(filterSettings({0, 100, 0, 100, -1}).blurRadius, 0.05f);
    EXPECT_EQ(filterSettings({0, 100, 0, 100, -20}).blurRadius, 1);
    EXPECT_EQ(filterSettings({0, 100, 0, 100, -200}).blurRadius, 10);
    EXPECT_EQ(filterSettings({0, 100, 0, 100, -20}).unsharpIntensity, 0);
}

TEST(TileLedger, AnEmptyOneIsComplete)
{
    EXPECT_TRUE(TileLedger().isComplete());
    EXPECT_TRUE(TileLedger().missing({0, 0, 10, 10}).isEmpty());
    EXPECT_TRUE(TileLedger().nextMissing().isEmpty());
}

TEST(TileLedger, MissingTilesAreCutToThePicture)
{
    const TileLedger tiles(300, 200);
    EXPECT_EQ(tiles.missing({-50, -50, 1, 1}), (PixelBox{0, 0, 256, 200}));
    EXPECT_EQ(tiles.missing({256, 0, 257, 1}), (PixelBox{256, 0, 300, 200}));
    EXPECT_EQ(tiles.missing({300, 0, 400, 10}), (PixelBox{}));
}

TEST(TileLedger, OnlyWholeTilesCountAsDone)
{
    TileLedger tiles(512, 256);
    tiles.markDone({0, 0, 400, 256});
    EXPECT_EQ(tiles.missing({0, 0, 512, 256}), (PixelBox{256, 0, 512, 256}));
    tiles.markDone({256, 0, 512, 256});
    EXPECT_TRUE(tiles.isComplete());
}

TEST(TileLedger, WhateverIsAskedForComesOnceAndInTheEndAllIsDone)
{
    std::mt19937 random(2);
    for (int round = 0; round < 50; ++round) {
        const int width = 1 + int(random() % 2000), height = 1 + int(random() % 2000);
        TileLedger tiles(width, height);
        for (int i = 0; i < 10; ++i) {
            PixelBox box{int(random() % 2000), int(random() % 2000), 0, 0};
            box.x1 = box.x0 + 1 + int(random() % 500), box.y1 = box.y0 + 1 + int(random() % 500);
            tiles.markDone(tiles.missing(box));
            ASSERT_TRUE(tiles.missing(box).isEmpty());
        }
        int steps = 0;
        while (!tiles.isComplete()) {
            ASSERT_FALSE(tiles.nextMissing().isEmpty());
            tiles.markDone(tiles.nextMissing());
            ASSERT_LT(++steps, 1000);
        }
    }
}
