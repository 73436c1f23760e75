// SPDX-License-Identifier: GPL-3.0-or-later
/// The selection of a real canvas: mask, commands, combining, clock, menu rules.
#include "desktop/KeyModifiers.h"
#include "desktop/Pasteboard.h"
#include "desktop/Sounds.h"
#include "selection/PathBooleans.h"
#include "support/CanvasFixture.h"
#include <QLabel>
#include <QSignalSpy>
#include <algorithm>
#include <gmock/gmock.h>

using namespace zp;
using testing::ElementsAre;
using testing::IsEmpty;

class Selection : public zp::test::CanvasTest
{
protected:
    void SetUp() override
    {
        setScriptedKeyModifiers(0);
        canvas->mInfoField = &info;
        makeImage(40, 30);
        takeSounds();
    }
    void TearDown() override
    {
        settle();
        setScriptedKeyModifiers(std::nullopt);
    }
    void selectRect(float x, float y, float w, float h)
    {
        canvas->mSelectionPath = BezierPath::withRect(makeRect(x, y, w, h));
    }
    std::size_t maskCount(std::uint8_t value) const
    {
        const std::uint8_t* bytes = canvas->mSelectionMaskData.get();
        return std::size_t(
            std::count(bytes, bytes + canvas->mSelectionMask->width * canvas->mSelectionMask->height, value));
    }
    QLabel info;
};

TEST_F(Selection, TheMaskReadsItsBytesInPlace)
{
    ASSERT_TRUE(canvas->mSelectionMask);
    EXPECT_EQ(canvas->mSelectionMask->data, canvas->mSelectionMaskData.get());
    EXPECT_EQ(canvas->mSelectionMask->width, 40);
    EXPECT_EQ(canvas->mSelectionMask->height, 30);
    EXPECT_EQ(canvas->mSelectionMask->stride, 40);
    EXPECT_EQ(maskCount(255), 40u * 30);
    canvas->mSelectionMaskData[41] = 3;
    EXPECT_EQ(mask(1, 1), 3);
    canvas->releaseSelectionMask();
    EXPECT_FALSE(canvas->mSelectionMask);
    EXPECT_FALSE(canvas->mSelectionMaskData);
    canvas->createSelectionMask();
    EXPECT_EQ(maskCount(255), 40u * 30);
}

TEST_F(Selection, BothClearsSayThatTheMaskIsClear)
{
    canvas->mSelectionMaskClear = false;
    canvas->clearSelectionMaskINVERT();
    EXPECT_EQ(maskCount(0), 40u * 30);
    EXPECT_TRUE(canvas->mSelectionMaskClear);
    canvas->mSelectionMaskClear = false;
    canvas->clearSelectionMask();
    EXPECT_EQ(maskCount(255), 40u * 30);
    EXPECT_TRUE(canvas->mSelectionMaskClear);
}

TEST_F(Selection, ThePathGoesIntoTheMaskPlainAndInverted)
{
    canvas->selectionPathToMask(); // no path, no effect
    EXPECT_EQ(maskCount(255), 40u * 30);
    selectRect(2, 3, 5, 6);
    const BezierPath before = *canvas->mSelectionPath;
    canvas->selectionPathToMask();
    EXPECT_EQ(maskCount(0), 30u);
    EXPECT_EQ(mask(2, 3), 0);
    EXPECT_EQ(mask(6, 8), 0);
    EXPECT_EQ(mask(7, 8), 255);
    EXPECT_EQ(canvas->mSelectionPath->windingRule(), WindingRule::EvenOdd); // and stays
    EXPECT_TRUE(canvas->mSelectionPath->hasSameElements(before));
    canvas->clearSelectionMaskINVERT();
    canvas->selectionPathToMaskINVERT();
    EXPECT_EQ(maskCount(255), 30u);
    EXPECT_EQ(maskCount(0), 40u * 30 - 30);
}

TEST_F(Selection, ASelfCrossingLassoLeavesItsDoubleLoopOut)
{
    BezierPath twice;
    twice.moveTo({5, 5});
    for (const Point p : {Point{25, 5}, {25, 25}, {5, 25}, {5, 5}, {10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}})
        twice.lineTo(p);
    twice.closePath();
    canvas->mSelectionPath = twice;
    canvas->selectionPathToMask();
    EXPECT_EQ(mask(7, 15), 0);
    EXPECT_EQ(mask(15, 15), 255);
    // With another shape added the loop stays as it was.
    canvas->mAuxSelectionPath = BezierPath::withRect(makeRect(30, 5, 5, 5));
    canvas->mSelectionPath = twice;
    setScriptedKeyModifiers(kShiftKey);
    canvas->combineWithAuxSelection();
    EXPECT_FALSE(canvas->mSelectionPath->contains({15, 15}));
    EXPECT_TRUE(canvas->mSelectionPath->contains({7, 15}));
    EXPECT_TRUE(canvas->mSelectionPath->contains({32, 7}));
}

TEST_F(Selection, AllOnASinglePixelImage)
{
    makeImage(1, 1);
    canvas->mPasteIntoSelectionPath = BezierPath::withRect(makeRect(0, 0, 1, 1));
    canvas->mSelectionImage = std::make_shared<Image>();
    canvas->selectAll();
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(countSubPaths(*canvas->mSelectionPath), 1);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(0, 0, 1, 1));
    EXPECT_EQ(mask(0, 0), 255); // not rendered until it is needed
    EXPECT_FALSE(canvas->mPasteIntoSelectionPath);
    EXPECT_FALSE(canvas->mSelectionImage);
    ASSERT_TRUE(canvas->mSelectionTimer);
    EXPECT_EQ(canvas->mSelectionTimer->interval(), 200);
    EXPECT_FALSE(canvas->mSelectionTimer->isSingleShot());
}

TEST_F(Selection, AllClearsAMaskThatIsNotClear)
{
    canvas->mSelectionMaskData[0] = 0;
    canvas->mSelectionMaskClear = false;
    canvas->selectAll();
    EXPECT_EQ(maskCount(255), 40u * 30);
    canvas->mSelectionMaskData[0] = 7; // believed to be clear: not touched
    canvas->selectAll();
    EXPECT_EQ(mask(0, 0), 7);
}

TEST_F(Selection, NoneDropsEverythingOfTheSelection)
{
    fillImage(zp::test::word(255, 1, 2, 3));
    selectRect(1, 1, 5, 5);
    canvas->mPasteIntoSelectionPath = *canvas->mSelectionPath;
    canvas->mSelectionImage = std::make_shared<Image>(); // floats: its pixels are not written
    canvas->mPolygonLasso = true;
    canvas->mSelectionMaskData[5] = 0;
    canvas->mSelectionMaskClear = false;
    canvas->restartSelectionTimer();
    info.setText("old");
    canvas->selectNone();
    EXPECT_TRUE(canvas->selectionNil());
    EXPECT_TRUE(canvas->selectionImageNil());
    EXPECT_FALSE(canvas->mPasteIntoSelectionPath);
    EXPECT_FALSE(canvas->mSelectionTimer);
    EXPECT_FALSE(canvas->mPolygonLasso);
    EXPECT_EQ(maskCount(255), 40u * 30);
    EXPECT_EQ(info.text(), "");
    EXPECT_THAT(takeSounds(), IsEmpty());
    EXPECT_EQ(pixel(2, 2), zp::test::word(255, 1, 2, 3));
    selectRect(1, 1, 5, 5);
    canvas->selectNoneWithSound();
    EXPECT_TRUE(canvas->selectionNil());
    EXPECT_THAT(takeSounds(), ElementsAre("Frog"));
}

TEST_F(Selection, InverseWithoutASelectionBeeps)
{
    canvas->mSelectionMaskData[3] = 9;
    canvas->selectInverse();
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    EXPECT_TRUE(canvas->selectionNil());
    EXPECT_EQ(mask(3, 0), 9);
}

TEST_F(Selection, InverseSelectsTheRest)
{
    selectRect(10, 5, 8, 9);
    canvas->selectInverse();
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(maskCount(255), 72u);
    EXPECT_EQ(mask(10, 5), 255);
    EXPECT_EQ(mask(9, 5), 0);
    EXPECT_EQ(countSubPaths(*canvas->mSelectionPath), 2);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(0, 0, 40, 30)); // the tracer's pixel taken back
    canvas->mSelectionPath->setWindingRule(WindingRule::EvenOdd);
    EXPECT_FALSE(canvas->mSelectionPath->contains({12, 8}));
    EXPECT_TRUE(canvas->mSelectionPath->contains({5, 8}));
    EXPECT_EQ(info.text(), "{{0, 0}, {40, 30}}");
    EXPECT_TRUE(canvas->mSelectionTimer);
    // And back again: on whole pixels exactly the first region.
    canvas->selectInverse();
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(10, 5, 8, 9));
    EXPECT_EQ(info.text(), "{{10, 5}, {8, 9}}");
    EXPECT_EQ(maskCount(0), 72u);
}

TEST_F(Selection, InverseOfEverythingIsPresentButEmpty)
{
    canvas->selectAll();
    canvas->stopSelectionTimer();
    canvas->selectInverse();
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_TRUE(canvas->mSelectionPath->isEmpty());
    EXPECT_EQ(maskCount(255), 40u * 30);
    EXPECT_TRUE(canvas->mSelectionTimer);
    EXPECT_EQ(info.text(), "{{0, 0}, {0, 0}}");
}

TEST_F(Selection, InverseCountsPartlySelectedPixelsAsSelected)
{
    selectRect(10.5f, 5, 8, 9); // half a pixel on either side
    canvas->selectInverse();
    canvas->selectInverse();
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(11, 5, 7, 9));
}

TEST_F(Selection, ShiftAddsAndOptionSubtracts)
{
    const auto combine = [&](std::uint32_t keys) {
        canvas->mAuxSelectionPath = BezierPath::withRect(makeRect(0, 0, 10, 10));
        selectRect(5, 5, 10, 10);
        setScriptedKeyModifiers(keys);
        canvas->combineWithAuxSelection();
        EXPECT_FALSE(canvas->mAuxSelectionPath);
        return canvas->mSelectionPath;
    };
    std::optional<BezierPath> path = combine(kShiftKey);
    ASSERT_TRUE(path);
    EXPECT_TRUE(path->contains({2, 2}) && path->contains({7, 7}) && path->contains({13, 13}));
    EXPECT_EQ(path->bounds(), makeRect(0, 0, 15, 15));
    path = combine(kOptionKey);
    ASSERT_TRUE(path);
    EXPECT_TRUE(path->contains({2, 2}));
    EXPECT_FALSE(path->contains({7, 7}) || path->contains({13, 13}));
    path = combine(kShiftKey | kOptionKey); // Shift wins
    ASSERT_TRUE(path);
    EXPECT_TRUE(path->contains({13, 13}));
    EXPECT_FALSE(combine(0)); // let go of both keys: nothing is left
}

TEST_F(Selection, CombiningWaitsForThePolygon)
{
    canvas->mAuxSelectionPath = BezierPath::withRect(makeRect(0, 0, 10, 10));
    selectRect(5, 5, 10, 10);
    canvas->mPolygonLasso = true;
    setScriptedKeyModifiers(kShiftKey);
    canvas->combineWithAuxSelection();
    EXPECT_TRUE(canvas->mAuxSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(5, 5, 10, 10));
    canvas->mPolygonLasso = false;
    canvas->mAuxSelectionPath.reset();
    canvas->combineWithAuxSelection(); // nothing set aside: nothing happens
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(5, 5, 10, 10));
}

TEST_F(Selection, ThePhaseGoesRoundInFourSteps)
{
    selectRect(0, 0, 5, 5);
    EXPECT_EQ(canvas->mSelectionPhase, 0);
    for (const float phase : {2.5f, 5.0f, 7.5f, 0.0f, 2.5f}) {
        canvas->selectionTimerFired();
        EXPECT_EQ(canvas->mSelectionPhase, phase);
    }
}

TEST_F(Selection, TheClockTicksUntilStopped)
{
    selectRect(0, 0, 5, 5);
    canvas->restartSelectionTimer();
    const QTimer* first = canvas->mSelectionTimer.get();
    QSignalSpy ticks(first, &QTimer::timeout);
    EXPECT_TRUE(zp::test::eventually([&] { return ticks.count() >= 2; }, 5000));
    EXPECT_EQ(canvas->mSelectionPhase, 5);
    canvas->restartSelectionTimer();
    EXPECT_TRUE(canvas->mSelectionTimer->isActive());
    canvas->stopSelectionTimer();
    EXPECT_FALSE(canvas->mSelectionTimer);
}

TEST_F(Selection, TintMarksWhatIsNotSelected)
{
    fillImage(zp::test::word(100, 50, 60, 70));
    selectRect(0, 0, 20, 30);
    canvas->selectionPathToMask();
    canvas->makeSelection();
    EXPECT_EQ(pixel(5, 5), zp::test::word(100, 50, 60, 70));
    EXPECT_EQ(pixel(25, 5), zp::test::word(76, 109, 82, 70)); // 75.7, 108.5, 81.6
}

TEST_F(Selection, WorldsAreCopiedWhole)
{
    fillImage(zp::test::word(255, 9, 8, 7));
    const auto other = BitmapRep::create(40, 30);
    GWorld destination = GWorld::over(*other);
    ASSERT_TRUE(canvas->mGWorld);
    canvas->copyGWorld(*canvas->mGWorld, destination);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) ASSERT_EQ(other->view().row(y)[x], zp::test::word(255, 9, 8, 7));
}

TEST_F(Selection, InfoShowsWholePixels)
{
    selectRect(1.5f, 2.25f, 3, 4);
    canvas->showSelectionInfo();
    EXPECT_EQ(info.text(), "{{1, 2}, {4, 5}}");
    canvas->mSelectionPath.reset();
    canvas->showSelectionInfo("?");
    EXPECT_EQ(info.text(), "?");
    canvas->mInfoField = nullptr;
    canvas->showSelectionInfo();
}

TEST_F(Selection, MenuRules)
{
    const QStringList needSelection{"selectNone:",      "selectInverse:", "fill:", "stroke:", "smartFill:",
                                    "anchorSelection:", "copy:",          "cut:",  "delete:", "cropToSelection:"};
    const QStringList always{"selectAll:", "rotateCW:", "somethingElse:"};
    Pasteboard::general().clear();
    for (const bool selected : {false, true}) {
        if (selected) selectRect(0, 0, 5, 5);
        for (const QString& action : needSelection)
            EXPECT_EQ(canvas->validateMenuItem(action), selected) << action.toStdString();
        for (const QString& action : always) EXPECT_TRUE(canvas->validateMenuItem(action)) << action.toStdString();
        EXPECT_FALSE(canvas->validateMenuItem("paste:"));
        EXPECT_FALSE(canvas->validateMenuItem("pasteInto:"));
    }
    Pasteboard::general().setTIFF({'I', 'I', 42, 0});
    EXPECT_TRUE(canvas->validateMenuItem("paste:"));
    EXPECT_TRUE(canvas->validateMenuItem("pasteInto:"));
    canvas->mSelectionPath.reset();
    EXPECT_TRUE(canvas->validateMenuItem("paste:"));
    EXPECT_FALSE(canvas->validateMenuItem("pasteInto:"));
    Pasteboard::general().clear();
}

TEST_F(Selection, AnchorItemNamesWhatItWouldDo)
{
    QString title;
    EXPECT_FALSE(canvas->validateMenuItem("anchorSelection:", &title));
    EXPECT_EQ(title, "Float Selection");
    selectRect(0, 0, 5, 5);
    canvas->mSelectionImage = std::make_shared<Image>();
    EXPECT_TRUE(canvas->validateMenuItem("anchorSelection:", &title));
    EXPECT_EQ(title, "Anchor Selection");
    canvas->mSelectionImage.reset();
    EXPECT_TRUE(canvas->validateMenuItem("anchorSelection:", &title));
    EXPECT_EQ(title, "Float Selection");
}

TEST_F(Selection, UndoAndRedoFollowThePosition)
{
    const auto at = [&](std::int32_t position, std::int32_t newest) {
        canvas->mUndoRedoIndex = position, canvas->mUndoIndex = newest;
        return std::pair(canvas->validateMenuItem("undo:"), canvas->validateMenuItem("redo:"));
    };
    EXPECT_EQ(at(-1, -1), std::pair(false, false));
    EXPECT_EQ(at(0, 0), std::pair(false, false));
    EXPECT_EQ(at(1, 1), std::pair(true, false));
    EXPECT_EQ(at(0, 2), std::pair(false, true));
    EXPECT_EQ(at(1, 2), std::pair(true, true));
}

TEST_F(Selection, AnImageOf24MegapixelsIsInverted)
{
    makeImage(6000, 4000);
    canvas->mSelectionPath = BezierPath::withOvalInRect(makeRect(300, 200, 5000, 3500));
    canvas->selectInverse();
    EXPECT_EQ(mask(0, 0), 0);
    EXPECT_EQ(mask(2800, 1950), 255);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(0, 0, 6000, 4000));
    makeImage(10, 10);
}
