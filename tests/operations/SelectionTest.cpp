// SPDX-License-Identifier: GPL-3.0-or-later
/// The commands of the selection as a whole, and the mask by itself.
#include "selection/PathBooleans.h"
#include "support/DocumentFixture.h"
#include <gmock/gmock.h>

using namespace zp;
using namespace zp::test;
using testing::ElementsAre;
using testing::IsEmpty;

class SelectionCommands : public DocumentTest
{
protected:
    void SetUp() override
    {
        makeImage(40, 30);
        takeSounds();
    }
};

TEST_F(SelectionCommands, BothClearsSayThatTheMaskIsClear)
{
    select(makeRect(2, 3, 5, 6));
    renderMask();
    EXPECT_FALSE(selection().mask().isClear());
    perform("clearSelectionMaskINVERT");
    EXPECT_EQ(countMask(0), 40u * 30);
    EXPECT_TRUE(selection().mask().isClear());
    perform("selectionPathToMask");
    EXPECT_FALSE(selection().mask().isClear());
    perform("clearSelectionMask");
    EXPECT_EQ(countMask(255), 40u * 30);
    EXPECT_TRUE(selection().mask().isClear());
}

TEST_F(SelectionCommands, ThePathGoesIntoTheMaskPlainAndInverted)
{
    perform("selectionPathToMask"); // no path, no effect
    EXPECT_EQ(countMask(255), 40u * 30);
    const BezierPath path = BezierPath::withRect(makeRect(2, 3, 5, 6));
    select(path);
    perform("selectionPathToMask");
    EXPECT_EQ(countMask(0), 30u);
    EXPECT_EQ(mask(2, 3), 0);
    EXPECT_EQ(mask(6, 8), 0);
    EXPECT_EQ(mask(7, 8), 255);
    EXPECT_EQ(outline()->windingRule(), WindingRule::EvenOdd); // and stays
    EXPECT_TRUE(outline()->hasSameElements(path));
    perform("clearSelectionMaskINVERT");
    perform("selectionPathToMaskINVERT");
    EXPECT_EQ(countMask(255), 30u);
    EXPECT_EQ(countMask(0), 40u * 30 - 30);
}

TEST_F(SelectionCommands, AllOnASinglePixelImage)
{
    makeImage(1, 1);
    select(makeRect(0, 0, 1, 1));
    placePiece(makeRect(0, 0, 1, 1), true);
    perform("clearSelectionMask");
    perform("selectAll:");
    ASSERT_TRUE(outline());
    EXPECT_EQ(countSubPaths(*outline()), 1);
    EXPECT_EQ(outline()->bounds(), makeRect(0, 0, 1, 1));
    EXPECT_EQ(mask(0, 0), 255); // not rendered until it is needed
    EXPECT_FALSE(selection().pasteInto());
    EXPECT_FALSE(floating());
    EXPECT_TRUE(selection().antsMarch());
}

TEST_F(SelectionCommands, AllClearsAMaskThatIsNotClear)
{
    select(makeRect(0, 0, 5, 5));
    renderMask();
    EXPECT_EQ(countMask(0), 25u);
    perform("selectAll:");
    EXPECT_TRUE(selection().mask().isClear());
    EXPECT_EQ(countMask(255), 40u * 30);
}

TEST_F(SelectionCommands, NoneDropsEverythingOfTheSelection)
{
    fillImage(word(255, 1, 2, 3));
    select(makeRect(1, 1, 5, 5));
    // Floats: its pixels are not written.
    placePiece(makeRect(1, 1, 5, 5), true);
    edit([](Edit& e) { e.gesture().openPolygon(true); });
    EXPECT_FALSE(selection().mask().isClear());
    perform("selectNone:");
    EXPECT_TRUE(selection().isNil());
    EXPECT_FALSE(floating());
    EXPECT_FALSE(selection().pasteInto());
    EXPECT_FALSE(selection().antsMarch());
    EXPECT_FALSE(gesture().polygonIsOpen());
    EXPECT_EQ(countMask(255), 40u * 30);
    EXPECT_TRUE(selection().mask().isClear());
    EXPECT_EQ(document->infoText(), "");
    EXPECT_THAT(takeSounds(), ElementsAre("Frog"));
    EXPECT_EQ(pixel(2, 2), word(255, 1, 2, 3));
}

TEST_F(SelectionCommands, NoneWithoutASelectionBeepsInTheMenuAndCuesByTheKey)
{
    EXPECT_FALSE(perform("selectNone:"));
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    perform("selectNone");
    EXPECT_THAT(takeSounds(), ElementsAre("Frog"));
}

TEST_F(SelectionCommands, ReselectBringsTheDroppedSelectionBackOnce)
{
    EXPECT_FALSE(perform("reselect:"));
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    select(makeRect(3, 4, 5, 6));
    perform("selectNone:");
    perform("reselect:");
    EXPECT_EQ(outlineBounds(), makeRect(3, 4, 5, 6));
    EXPECT_TRUE(selection().antsMarch());
}

TEST_F(SelectionCommands, InverseWithoutASelectionBeeps)
{
    edit([](Edit& e) { e.selection().rawMask().writable().row(0)[3] = 9; });
    EXPECT_FALSE(perform("selectInverse:"));
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    EXPECT_TRUE(selection().isNil());
    EXPECT_EQ(mask(3, 0), 9);
}

TEST_F(SelectionCommands, InverseSelectsTheRest)
{
    select(makeRect(10, 5, 8, 9));
    perform("selectInverse:");
    ASSERT_TRUE(outline());
    EXPECT_EQ(countMask(255), 72u);
    EXPECT_EQ(mask(10, 5), 255);
    EXPECT_EQ(mask(9, 5), 0);
    EXPECT_EQ(countSubPaths(*outline()), 2);
    EXPECT_EQ(outline()->bounds(), makeRect(0, 0, 40, 30)); // the tracer's pixel taken back
    BezierPath evenOdd = *outline();
    evenOdd.setWindingRule(WindingRule::EvenOdd);
    EXPECT_FALSE(evenOdd.contains({12, 8}));
    EXPECT_TRUE(evenOdd.contains({5, 8}));
    EXPECT_EQ(document->infoText(), "{{0, 0}, {40, 30}}");
    EXPECT_TRUE(selection().antsMarch());
    // And back again: on whole pixels exactly the first region.
    perform("selectInverse:");
    EXPECT_EQ(outlineBounds(), makeRect(10, 5, 8, 9));
    EXPECT_EQ(document->infoText(), "{{10, 5}, {8, 9}}");
    EXPECT_EQ(countMask(0), 72u);
}

TEST_F(SelectionCommands, InverseOfEverythingIsPresentButEmpty)
{
    perform("selectAll:");
    perform("selectInverse:");
    ASSERT_TRUE(outline());
    EXPECT_TRUE(outline()->isEmpty());
    EXPECT_EQ(countMask(255), 40u * 30);
    EXPECT_TRUE(selection().antsMarch());
    EXPECT_EQ(document->infoText(), "{{0, 0}, {0, 0}}");
}

TEST_F(SelectionCommands, InverseCountsPartlySelectedPixelsAsSelected)
{
    select(makeRect(10.5f, 5, 8, 9)); // half a pixel on either side
    perform("selectInverse:");
    perform("selectInverse:");
    EXPECT_EQ(outlineBounds(), makeRect(11, 5, 7, 9));
}

TEST_F(SelectionCommands, AnImageOf24MegapixelsIsInverted)
{
    makeImage(6000, 4000);
    select(BezierPath::withOvalInRect(makeRect(300, 200, 5000, 3500)));
    perform("selectInverse:");
    EXPECT_EQ(mask(0, 0), 0);
    EXPECT_EQ(mask(2800, 1950), 255);
    EXPECT_EQ(outlineBounds(), makeRect(0, 0, 6000, 4000));
    makeImage(10, 10);
}

TEST_F(SelectionCommands, TintMarksWhatIsNotSelected)
{
    fillImage(word(100, 50, 60, 70));
    select(makeRect(0, 0, 20, 30));
    perform("selectionPathToMask");
    perform("makeSelection");
    EXPECT_EQ(pixel(5, 5), word(100, 50, 60, 70));
    EXPECT_EQ(pixel(25, 5), word(76, 109, 82, 70)); // 75.7, 108.5, 81.6
}

TEST_F(SelectionCommands, NudgeMovesTheOutlineAndTheRecord)
{
    performNumbers("nudge", {5, 5}); // nothing to move
    EXPECT_FALSE(outline());
    select(makeRect(10, 10, 8, 8));
    renderMask();
    lift();
    performNumbers("nudge", {-2, 3});
    EXPECT_EQ(outlineBounds(), makeRect(8, 13, 8, 8));
    EXPECT_EQ(record().position, (Point{12, 17}));
    EXPECT_TRUE(floating()->isChanged());
    renderMask();
    EXPECT_EQ(countMask(0), 64u) << "only where it is now";
    EXPECT_EQ(mask(8, 20), 0);
}

TEST_F(SelectionCommands, StrokeAndFillPaintTheSelectionAndBeepWithoutOne)
{
    fillImage(kWhiteWord);
    EXPECT_FALSE(perform("stroke:"));
    EXPECT_FALSE(perform("fill:"));
    EXPECT_THAT(takeSounds(), ElementsAre("beep", "beep"));
    expectNumbers(0, 0);
    document->setPaintColor({1, 0, 0, 1});
    BezierPath ring = BezierPath::withRect(makeRect(2, 2, 26, 26));
    ring.appendRect(makeRect(8, 8, 14, 14));
    select(ring);
    perform("fill:");
    settle();
    EXPECT_EQ(pixel(5, 15), kRedWord);
    EXPECT_EQ(pixel(15, 15), kWhiteWord); // the hole stays open
    EXPECT_EQ(outline()->windingRule(), WindingRule::EvenOdd);
    expectNumbers(1, 1);
}

TEST_F(SelectionCommands, StrokeGivesTheOutlineItsLookBack)
{
    fillImage(kWhiteWord);
    document->setZoom(2);
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(1);
    BezierPath box = BezierPath::withRect(makeRect(10.5f, 10.5f, 20, 15));
    box.setLineWidth(2.75f);
    select(box);
    edit([](Edit& e) { e.selection().advanceAnts(), e.selection().advanceAnts(); });
    ASSERT_EQ(selection().phase(), 5);
    perform("stroke:");
    settle();
    EXPECT_EQ(pixel(20, 10), kRedWord);
    EXPECT_EQ(pixel(20, 20), kWhiteWord);
    EXPECT_EQ(outline()->lineWidth(), 2);
    EXPECT_EQ(outline()->lineDash(), (std::vector<float>{2.5f, 2.5f}));
    EXPECT_EQ(outline()->dashPhase(), 2.5f);
}
