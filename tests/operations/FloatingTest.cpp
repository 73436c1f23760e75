// SPDX-License-Identifier: GPL-3.0-or-later
/// What floats: lifted, scaled and turned, anchored.
#include "canvas/ToolTable.h"
#include "support/DocumentFixture.h"
#include <limits>

using namespace zp;
using namespace zp::test;

namespace
{

class FloatingPiece : public DocumentTest
{
protected:
    FloatingPiece()
    {
        makeImage(60, 50);
        paintNoise();
        takeSounds();
        takeLogLines();
    }
};

TEST_F(FloatingPiece, WithoutASelectionNothingFloats)
{
    perform("floatSelection");
    EXPECT_FALSE(floating());
    perform("anchorSelection");
    settle();
    EXPECT_EQ(history().newest(), 0);
    EXPECT_TRUE(takeSounds().empty());
}

TEST_F(FloatingPiece, FloatingSetsTheRecordAndLeavesTheImageAlone)
{
    const auto before = allPixels();
    select(makeRect(10, 12, 21, 8));
    perform("floatSelection");
    ASSERT_TRUE(floating());
    EXPECT_EQ(floating()->size(), (Size{21, 8}));
    EXPECT_EQ(record().position, (Point{20.5f, 16}));
    EXPECT_EQ(record().oldPos, (Point{10, 12}));
    EXPECT_EQ(record().oldSize, (Size{21, 8}));
    EXPECT_EQ(record().scale, 1);
    EXPECT_EQ(record().rotate, 0);
    EXPECT_EQ(takeSounds(), Lines{"Pop"});
    EXPECT_EQ(allPixels(), before);
}

TEST_F(FloatingPiece, AnchoringUntouchedChangesNoByteAndEndsTheSelection)
{
    const auto before = allPixels();
    const int number = history().newest();
    select(BezierPath::withOvalInRect(makeRect(7, 5, 33, 31)));
    perform("floatSelection");
    perform("anchorSelection");
    EXPECT_EQ(allPixels(), before);
    EXPECT_FALSE(outline());
    EXPECT_FALSE(floating());
    EXPECT_FALSE(selection().antsMarch());
    EXPECT_EQ(document->infoText(), "");
    EXPECT_EQ(takeSounds(), (Lines{"Pop", "Pop"}));
    settle();
    EXPECT_EQ(history().newest(), number + 1);
}

TEST_F(FloatingPiece, WithShiftTheSelectionStays)
{
    select(makeRect(10, 10, 20, 20));
    perform("floatSelection");
    hold(kShiftKey);
    perform("anchorSelection");
    EXPECT_TRUE(outline());
    EXPECT_TRUE(selection().antsMarch());
    EXPECT_FALSE(floating());
    EXPECT_EQ(document->infoText(), "{{10, 10}, {20, 20}}");
    perform("floatSelection");
    EXPECT_TRUE(floating());
}

TEST_F(FloatingPiece, TheColoursAlphaIsTheOpacity)
{
    fillImage(kBlackWord);
    fillBox({0, 0, 10, 10}, word(255, 200, 100, 50));
    select(makeRect(0, 0, 10, 10));
    perform("floatSelection");
    performNumbers("nudge", {20, 0});
    document->setPaintColor({0, 0, 0, 0.5f});
    perform("anchorSelection");
    EXPECT_NEAR(channelOf(pixel(25, 5), 1), 100, 1);
    EXPECT_NEAR(channelOf(pixel(25, 5), 2), 50, 1);
    EXPECT_EQ(pixel(5, 5), word(255, 200, 100, 50));
}

TEST_F(FloatingPiece, TheMenuActionFloatsThenAnchors)
{
    select(makeRect(10, 10, 20, 20));
    perform("anchorSelection:");
    EXPECT_TRUE(floating());
    perform("anchorSelection:");
    EXPECT_FALSE(floating());
    EXPECT_FALSE(outline());
}

TEST_F(FloatingPiece, AFilteredPictureIsAnchoredInsteadAndLogged)
{
    fillImage(word(255, 200, 100, 50));
    select(makeRect(10, 10, 5, 5));
    perform("floatSelection");
    performNumbers("adjust_set:", {0, 0, 0, 100, 0});
    ASSERT_EQ(floating()->representations(), 2);
    const std::uint32_t grey = floating()->image().drawn()->view().row(2)[2];
    EXPECT_NE(grey, pixel(12, 12));
    takeLogLines();
    perform("anchorSelection");
    EXPECT_EQ(pixel(12, 12), grey);
    const Lines lines = takeLogLines();
    EXPECT_EQ(std::ranges::count(lines, "more than one rep"), 1);
    EXPECT_EQ(std::ranges::count(lines, "CIImageRep drawn"), 1);
}

// ---- transform -----------------------------------------------------------------------------------------------------

TEST_F(FloatingPiece, TransformFloatsFirstAndKeepsTheRecord)
{
    select(makeRect(10, 10, 20, 10));
    perform("transform");
    ASSERT_TRUE(floating());
    EXPECT_FALSE(selection().isTransforming());
    EXPECT_EQ(record().scale, 1);
    EXPECT_EQ(record().rotate, 0);
    const Floating* const first = floating();
    performNumbers("transform_set:", {1.5f, 30});
    perform("transform");
    EXPECT_EQ(record().rotate, 30);
    EXPECT_EQ(floating(), first); // not floated again
}

TEST_F(FloatingPiece, SettingTheSameValuesAgainLeavesThePath)
{
    select(makeRect(20, 20, 10, 10));
    perform("transform");
    performNumbers("transform_set:", {2, 0});
    EXPECT_EQ(outlineBounds(), makeRect(15, 15, 20, 20));
    EXPECT_EQ(document->infoText(), "{{15, 15}, {20, 20}}");
    performNumbers("transform_set:", {2, 0});
    EXPECT_EQ(outlineBounds(), makeRect(15, 15, 20, 20));
}

TEST_F(FloatingPiece, MinusOneTwiceResets)
{
    select(makeRect(20, 20, 10, 6));
    perform("transform");
    performNumbers("transform_set:", {2, 90});
    EXPECT_EQ(outlineBounds(), makeRect(19, 13, 12, 20));
    performNumbers("transform_set:", {-1, -1});
    EXPECT_EQ(record().scale, 1);
    EXPECT_EQ(record().rotate, 0);
    EXPECT_EQ(outlineBounds(), makeRect(20, 20, 10, 6));
}

TEST_F(FloatingPiece, AQuarterTurnTurnsTheBoxAboutThePosition)
{
    select(makeRect(20, 20, 20, 10));
    perform("transform");
    performNumbers("transform_set:", {1, 90});
    EXPECT_EQ(outlineBounds(), makeRect(25, 15, 10, 20));
}

TEST_F(FloatingPiece, AScaleOfNothingIsRefusedForItselfAlone)
{
    select(makeRect(20, 20, 20, 10));
    perform("transform");
    takeSounds();
    EXPECT_FALSE(performNumbers("transform_set:", {0, 90}));
    EXPECT_EQ(takeSounds(), Lines{"beep"});
    EXPECT_EQ(record().scale, 1);
    EXPECT_EQ(record().rotate, 90);
    EXPECT_EQ(outlineBounds(), makeRect(25, 15, 10, 20));
}

TEST_F(FloatingPiece, NumbersThatAreNoneAreRefusedWhole)
{
    select(makeRect(20, 20, 20, 10));
    perform("transform");
    takeSounds();
    EXPECT_FALSE(performNumbers("transform_set:", {std::numeric_limits<double>::infinity(), 45}));
    EXPECT_FALSE(performNumbers("transform_set:", {2, std::numeric_limits<double>::quiet_NaN()}));
    EXPECT_EQ(takeSounds(), (Lines{"beep", "beep"}));
    EXPECT_EQ(record().scale, 1);
    EXPECT_EQ(record().rotate, 0);
    EXPECT_EQ(outlineBounds(), makeRect(20, 20, 20, 10));
}

TEST_F(FloatingPiece, WithoutAPathTheInfoIsEmpty)
{
    document->press(&rowOf(Tool::Rectangle).actions, {5, 5});
    document->release({5, 5});
    ASSERT_EQ(document->infoText(), "?");
    performNumbers("transform_set:", {2, 0});
    EXPECT_EQ(document->infoText(), "");
}

} // namespace
