// SPDX-License-Identifier: GPL-3.0-or-later
/// The mask by itself: when it is clear, when it is stale, what its renderings leave.
#include "document/SelectionMask.h"
#include <algorithm>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

class SelectionMaskBytes : public testing::Test
{
protected:
    void SetUp() override { mask.setSize(20, 10); }
    static BezierPath box(float x, float y, float w, float h) { return BezierPath::withRect(makeRect(x, y, w, h)); }
    int count(std::uint8_t value) const
    {
        int n = 0;
        for (int y = 0; y < mask.height(); ++y)
            for (int x = 0; x < mask.width(); ++x) n += mask.at(x, y) == value;
        return n;
    }
    int countBytes(std::uint8_t value)
    {
        const ConstMaskView bytes = mask.bytes();
        EXPECT_EQ(bytes.width, 20);
        EXPECT_EQ(bytes.height, 10);
        EXPECT_EQ(bytes.stride, 20);
        return int(std::count(bytes.data, bytes.data + 200, value));
    }
    SelectionMask mask;
};

TEST_F(SelectionMaskBytes, BeginsClearWithoutMemory)
{
    EXPECT_TRUE(mask.exists());
    EXPECT_TRUE(mask.isClear());
    EXPECT_EQ(count(255), 200);
    EXPECT_FALSE(mask.shows(0));
    EXPECT_EQ(countBytes(255), 200);
    EXPECT_TRUE(mask.isClear());
    EXPECT_EQ(mask.writable().data, mask.bytes().data) << "one memory, read in place";
}

TEST_F(SelectionMaskBytes, WithoutAPictureThereIsNone)
{
    for (const auto& [width, height] : {std::pair{0, 10}, {10, 0}, {0, 0}}) {
        mask.setSize(width, height);
        EXPECT_FALSE(mask.exists());
        EXPECT_TRUE(mask.isClear());
        EXPECT_TRUE(mask.bytes().isEmpty());
        EXPECT_TRUE(mask.writable().isEmpty());
        mask.render(box(0, 0, 5, 5));
        mask.renderInverted(box(0, 0, 5, 5));
        mask.invert();
        mask.clearInverted();
        mask.clear();
        EXPECT_TRUE(mask.isClear());
    }
}

TEST_F(SelectionMaskBytes, RenderingMovesBytesByTheShareOfEachPixel)
{
    mask.render(box(2, 3, 4.5f, 2));
    EXPECT_FALSE(mask.isClear());
    EXPECT_EQ(count(0), 8);
    EXPECT_EQ(mask.at(5, 4), 0);
    EXPECT_NEAR(mask.at(6, 4), 128, 1);
    EXPECT_EQ(mask.at(7, 4), 255);
    mask.render(box(2, 3, 1, 1)); // again over what is selected: nothing more to move
    EXPECT_EQ(mask.at(2, 3), 0);
    mask.renderInverted(box(2, 3, 2, 2));
    EXPECT_EQ(mask.at(2, 3), 255);
    EXPECT_EQ(mask.at(4, 3), 0);
    EXPECT_FALSE(mask.isClear());
}

TEST_F(SelectionMaskBytes, WhatLiesBesideThePictureIsCut)
{
    mask.render(box(-50, -50, 52, 53));
    EXPECT_EQ(count(0), 6);
    mask.clear();
    EXPECT_EQ(countBytes(255), 200);
    mask.render(box(100, 100, 5, 5));
    EXPECT_EQ(countBytes(255), 200);
}

TEST_F(SelectionMaskBytes, BothClearValuesCountAsClear)
{
    mask.clearInverted();
    EXPECT_TRUE(mask.isClear());
    EXPECT_EQ(countBytes(0), 200);
    mask.select(3, 3);
    EXPECT_FALSE(mask.isClear());
    mask.clear();
    EXPECT_TRUE(mask.isClear());
    EXPECT_EQ(countBytes(255), 200);
}

TEST_F(SelectionMaskBytes, ClearingReachesEverythingThatWasWritten)
{
    struct Case {
        const char* name;
        void (*write)(SelectionMask&);
    };
    for (const Case& c :
         {Case{"rendered", [](SelectionMask& m) { m.render(box(3, 3, 4, 4)); }},
          {"rendered twice",
           [](SelectionMask& m) {
               m.render(box(0, 0, 2, 2));
               m.render(box(15, 7, 5, 3));
           }},
          {"selected", [](SelectionMask& m) { m.select(0, 9), m.select(19, 0); }},
          {"inverted", [](SelectionMask& m) { m.invert(); }},
          {"marked by the wand", [](SelectionMask& m) { std::fill_n(m.writable().data, 200, std::uint8_t{0}); }},
          {"the hole of an inverse", [](SelectionMask& m) {
               m.clearInverted();
               m.renderInverted(box(1, 1, 3, 3));
           }}}) {
        c.write(mask);
        EXPECT_LT(countBytes(255), 200) << c.name;
        mask.clear();
        EXPECT_EQ(countBytes(255), 200) << c.name;
        EXPECT_TRUE(mask.isClear()) << c.name;
    }
}

TEST_F(SelectionMaskBytes, InvertingMakesTwoValuesOfAll)
{
    mask.render(box(2, 2, 3.5f, 3));
    mask.invert();
    EXPECT_EQ(count(255), 9);
    EXPECT_EQ(mask.at(2, 2), 255);
    EXPECT_EQ(mask.at(5, 3), 0) << "partly selected: not 0, so it becomes 0";
    EXPECT_EQ(mask.at(0, 0), 0);
    EXPECT_EQ(count(0) + count(255), 200);
    mask.invert();
    EXPECT_EQ(count(0), 9);
}

TEST_F(SelectionMaskBytes, AnotherOutlineMakesItStale)
{
    mask.render(box(2, 2, 3, 3));
    EXPECT_FALSE(mask.shows(1)) << "nobody said which outline that is";
    mask.nowShows(1);
    EXPECT_TRUE(mask.shows(1));
    mask.outlineChanged(1); // the same
    EXPECT_TRUE(mask.shows(1));
    EXPECT_EQ(count(0), 9);
    mask.outlineChanged(2);
    EXPECT_FALSE(mask.shows(1));
    EXPECT_FALSE(mask.shows(2));
    EXPECT_TRUE(mask.isClear()) << "its bytes mean nothing";
    EXPECT_EQ(count(255), 200);
    EXPECT_EQ(countBytes(255), 200) << "and follow when they are needed";
}

TEST_F(SelectionMaskBytes, NothingOfAStaleMaskComesThrough)
{
    struct Case {
        const char* name;
        void (*write)(SelectionMask&);
        int selected;
    };
    for (const Case& c : {Case{"rendered", [](SelectionMask& m) { m.render(box(10, 5, 2, 2)); }, 4},
                          {"selected", [](SelectionMask& m) { m.select(10, 5); }, 1},
                          {"for the wand", [](SelectionMask& m) { m.writable().row(5)[10] = 0; }, 1},
                          {"inverted", [](SelectionMask& m) { m.invert(); }, 200},
                          {"cleared inverted", [](SelectionMask& m) { m.clearInverted(); }, 200}}) {
        mask.clear();
        mask.render(box(0, 0, 4, 4));
        mask.nowShows(1);
        mask.outlineChanged(2);
        c.write(mask);
        EXPECT_EQ(count(0), c.selected) << c.name;
        EXPECT_FALSE(mask.shows(1)) << c.name;
    }
}

TEST_F(SelectionMaskBytes, AClearMaskIsNeverStale)
{
    mask.outlineChanged(1);
    EXPECT_TRUE(mask.isClear());
    mask.clearInverted();
    mask.outlineChanged(2);
    EXPECT_TRUE(mask.isClear());
    EXPECT_EQ(count(255), 200) << "the other clear value was no rendering of the new outline";
}

TEST_F(SelectionMaskBytes, WritesMakeItNobodysRendering)
{
    struct Case {
        const char* name;
        void (*write)(SelectionMask&);
    };
    for (const Case& c : {Case{"clear", [](SelectionMask& m) { m.clear(); }},
                          {"clearInverted", [](SelectionMask& m) { m.clearInverted(); }},
                          {"render", [](SelectionMask& m) { m.render(box(0, 0, 1, 1)); }},
                          {"renderInverted", [](SelectionMask& m) { m.renderInverted(box(0, 0, 1, 1)); }},
                          {"invert", [](SelectionMask& m) { m.invert(); }},
                          {"select", [](SelectionMask& m) { m.select(0, 0); }}}) {
        mask.nowShows(7);
        ASSERT_TRUE(mask.shows(7));
        c.write(mask);
        EXPECT_FALSE(mask.shows(7)) << c.name;
    }
}

TEST_F(SelectionMaskBytes, AnotherSizeBeginsAnew)
{
    mask.render(box(2, 2, 3, 3));
    mask.nowShows(1);
    mask.setSize(7, 5);
    EXPECT_EQ(mask.width(), 7);
    EXPECT_EQ(mask.height(), 5);
    EXPECT_TRUE(mask.isClear());
    EXPECT_FALSE(mask.shows(1));
    EXPECT_EQ(count(255), 35);
}

} // namespace
