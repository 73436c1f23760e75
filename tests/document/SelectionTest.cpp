// SPDX-License-Identifier: GPL-3.0-or-later
/// The transitions of the selection: outline and mask, what is parked and dropped, what floats, the ants.
#include "support/DocumentFixture.h"
#include <QSignalSpy>

using namespace zp;
using namespace zp::test;

namespace
{

class SelectionTransitions : public DocumentTest
{
protected:
    void SetUp() override { makeImage(40, 30); }

    void change(const std::function<void(zp::Selection&)>& body)
    {
        edit([&body](Edit& e) { body(e.selection()); });
    }
    /// 0 to 9 parked, 5 to 14 drawn.
    void parkAndDraw(SetOperation operation)
    {
        change([operation](zp::Selection& s) {
            s.select(BezierPath::withRect(makeRect(0, 0, 10, 10)));
            s.park(operation);
            s.shape(BezierPath::withRect(makeRect(5, 5, 10, 10)));
        });
    }
    static BezierPath doubleLoop()
    {
        BezierPath twice;
        twice.moveTo({5, 5});
        for (const Point p :
             {Point{25, 5}, {25, 25}, {5, 25}, {5, 5}, {10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}})
            twice.lineTo(p);
        twice.closePath();
        return twice;
    }
};

TEST_F(SelectionTransitions, TheMaskIsTheOutlinesAndFollowsIt)
{
    select(makeRect(2, 3, 5, 6));
    EXPECT_TRUE(selection().mask().isClear()) << "not rendered before it is needed";
    renderMask();
    EXPECT_TRUE(selection().mask().shows(selection().version()));
    EXPECT_EQ(countMask(0), 30u);
    struct Change {
        const char* name;
        std::function<void(zp::Selection&)> change;
        std::size_t selected;
    };
    for (const Change& c : {
             Change{"another outline", [](auto& s) { s.select(BezierPath::withRect(makeRect(10, 10, 4, 4))); }, 16},
             {"a shape in progress", [](auto& s) { s.shape(BezierPath::withRect(makeRect(0, 0, 2, 2))); }, 4},
             {"a line more",
              [](auto& s) {
                  s.extendShape({20, 2});
              },
              4},
             {"moved",
              [](auto& s) {
                  s.select(BezierPath::withRect(makeRect(1, 1, 3, 3))), s.move({5, 5});
              },
              9},
             {"parked", [](auto& s) { s.park(SetOperation::Union); }, 0},
             {"back again", [](auto& s) { s.unpark(); }, 9},
             {"scaled",
              [this](auto& s) {
                  s.select(BezierPath::withRect(makeRect(9, 9, 4, 4)));
                  s.lift(picture());
                  s.transform(2, 0);
              },
              64},
             {"dropped", [](auto& s) { s.drop(); }, 0},
             {"back for good", [](auto& s) { s.reselect(); }, 64},
             {"a new shape begun", [](auto& s) { s.beginShape(); }, 0},
         }) {
        SCOPED_TRACE(c.name);
        change(c.change);
        EXPECT_TRUE(selection().mask().isClear());
        EXPECT_EQ(countMask(255), 40u * 30);
        renderMask();
        EXPECT_EQ(countMask(0), c.selected);
        EXPECT_EQ(selection().mask().isClear(), selection().isNil() || !outline());
    }
}

TEST_F(SelectionTransitions, ATracedOutlineKeepsTheMaskItWasTracedFrom)
{
    change([](zp::Selection& s) {
        s.rawMask().select(7, 8);
        s.selectTraced(BezierPath::withRect(makeRect(7, 8, 1, 1)));
    });
    EXPECT_TRUE(selection().mask().shows(selection().version()));
    EXPECT_EQ(mask(7, 8), 0);
    EXPECT_FALSE(selection().mask().isClear());
}

TEST_F(SelectionTransitions, ASelfCrossingOutlineLeavesItsDoubleLoopOut)
{
    select(doubleLoop());
    renderMask();
    EXPECT_EQ(mask(7, 15), 0);
    EXPECT_EQ(mask(15, 15), 255);
    // With another shape added the loop stays as it was.
    change([](zp::Selection& s) {
        s.select(BezierPath::withRect(makeRect(30, 5, 5, 5)));
        s.park(SetOperation::Union);
        s.shape(doubleLoop());
        s.combine(SetOperation::Union);
    });
    EXPECT_FALSE(outline()->contains({15, 15}));
    EXPECT_TRUE(outline()->contains({7, 15}));
    EXPECT_TRUE(outline()->contains({32, 7}));
}

TEST_F(SelectionTransitions, ParkedAndShapeAreCombined)
{
    struct Case {
        SetOperation operation;
        bool both, onlyParked, onlyDrawn;
    };
    for (const Case& c :
         {Case{SetOperation::Union, true, true, true}, {SetOperation::Difference, false, true, false}}) {
        parkAndDraw(c.operation);
        EXPECT_EQ(selection().parkedFor(), c.operation);
        change([&c](zp::Selection& s) { s.combine(c.operation); });
        EXPECT_FALSE(selection().parked());
        ASSERT_TRUE(outline());
        EXPECT_EQ(outline()->contains({7, 7}), c.both);
        EXPECT_EQ(outline()->contains({2, 2}), c.onlyParked);
        EXPECT_EQ(outline()->contains({13, 13}), c.onlyDrawn);
    }
    parkAndDraw(SetOperation::Union);
    change([](zp::Selection& s) { s.combine(SetOperation::None); }); // let go of both keys: nothing is left
    EXPECT_FALSE(outline());
    EXPECT_FALSE(selection().parked());
    change([](zp::Selection& s) { s.reselect(); });
    EXPECT_EQ(outlineBounds(), makeRect(0, 0, 10, 10)) << "but it can come back";
}

TEST_F(SelectionTransitions, WithNothingParkedThereIsNothingToCombine)
{
    select(makeRect(5, 5, 10, 10));
    change([](zp::Selection& s) { s.combine(SetOperation::None), s.unpark(), s.forgetParked(); });
    EXPECT_EQ(outlineBounds(), makeRect(5, 5, 10, 10));
}

TEST_F(SelectionTransitions, WhatWasDroppedLastCanBeReselected)
{
    EXPECT_FALSE(selection().canReselect());
    struct Case {
        const char* name;
        std::function<void(zp::Selection&)> drop;
    };
    for (const Case& c : {Case{"dropped", [](auto& s) { s.drop(); }},
                          {"another shape begun", [](auto& s) { s.beginShape(), s.endWithoutShape(false); }},
                          {"nothing enclosed", [](auto& s) { s.endWithoutShape(true); }},
                          {"parked and forgotten",
                           [](auto& s) {
                               s.park(SetOperation::Union);
                               s.shape(BezierPath::withRect(makeRect(0, 0, 1, 1)));
                               s.forgetParked();
                               s.endWithoutShape(false);
                           }},
                          {"another picture", [](auto& s) { s.pictureReplaced(40, 30); }}}) {
        SCOPED_TRACE(c.name);
        select(makeRect(3, 4, 5, 6));
        change(c.drop);
        EXPECT_FALSE(outline());
        change([](zp::Selection& s) { s.reselect(); });
        EXPECT_EQ(outlineBounds(), makeRect(3, 4, 5, 6));
        EXPECT_TRUE(selection().antsMarch());
    }
}

TEST_F(SelectionTransitions, AFloatLivesAndDiesWithItsRecordAndItsClip)
{
    struct Case {
        const char* name;
        std::function<void(Edit&)> end;
    };
    for (const Case& c : {Case{"a gesture", [](Edit& e) { e.selection().beginShape(); }},
                          {"parking", [](Edit& e) { e.selection().park(SetOperation::Union); }},
                          {"another outline", [](Edit& e) { e.selection().select(BezierPath()); }},
                          {"dropping", [](Edit& e) { e.selection().drop(); }},
                          {"another picture", [](Edit& e) { e.selection().pictureReplaced(40, 30); }},
                          {"letting go", [](Edit& e) { e.selection().letGo(); }},
                          {"anchoring", [](Edit& e) { e.selection().anchor(e.picture().writablePixels(), 1); }},
                          {"settling", [](Edit& e) { e.settleFloat(); }}}) {
        SCOPED_TRACE(c.name);
        select(makeRect(1, 1, 20, 20));
        placePiece(makeRect(3, 3, 5, 5), true);
        ASSERT_TRUE(floating());
        ASSERT_TRUE(selection().pasteInto());
        EXPECT_TRUE(floating()->isChanged());
        edit(c.end);
        EXPECT_FALSE(floating());
        EXPECT_FALSE(selection().pasteInto());
        EXPECT_FALSE(selection().isTransforming());
        EXPECT_EQ(selection().transformMode(), -1);
    }
}

TEST_F(SelectionTransitions, SettlingAnchorsWhatWasChangedAndLetsGoTheRest)
{
    fillImage(kWhiteWord);
    fillBox({0, 0, 5, 5}, kBlackWord);
    struct Case {
        const char* name;
        std::function<void(zp::Selection&)> change;
        Settled settled;
    };
    for (const Case& c : {Case{"only lifted", [](auto&) {}, Settled::LetGo},
                          {"moved",
                           [](auto& s) {
                               s.move({10, 0});
                           },
                           Settled::Anchored},
                          {"turned", [](auto& s) { s.transform(1, 45); }, Settled::Anchored},
                          {"scaled", [](auto& s) { s.transform(2, 0); }, Settled::Anchored},
                          {"as it was", [](auto& s) { s.transform(1, 0); }, Settled::LetGo},
                          {"adjusted",
                           [](auto& s) {
                               s.floating()->adjust({50, 100, 0, 100, 0}, true);
                           },
                           Settled::Anchored},
                          {"adjusted by nothing", [](auto& s) { s.floating()->adjust({}, true); }, Settled::LetGo}}) {
        SCOPED_TRACE(c.name);
        select(makeRect(0, 0, 5, 5));
        lift();
        change(c.change);
        const Rect bounds = outlineBounds();
        Settled settled{};
        edit([&settled](Edit& e) { settled = e.settleFloat(); });
        EXPECT_EQ(settled, c.settled);
        EXPECT_FALSE(floating());
        EXPECT_EQ(outlineBounds(), bounds);
    }
    EXPECT_EQ(pixel(12, 2), kBlackWord) << "what was moved is where it went";
    Settled settled = Settled::Anchored;
    edit([&settled](Edit& e) { settled = e.settleFloat(); });
    EXPECT_EQ(settled, Settled::Nothing);
}

TEST_F(SelectionTransitions, AnOutlineOfNoAreaLiftsNothing)
{
    BezierPath line;
    line.moveTo({3, 3});
    line.lineTo({9, 3});
    select(line);
    change([this](zp::Selection& s) { EXPECT_FALSE(s.lift(picture())); });
    EXPECT_FALSE(floating());
    dropSelection();
    change([this](zp::Selection& s) { EXPECT_FALSE(s.lift(picture())); });
}

TEST_F(SelectionTransitions, AMementoBringsAllOfItBack)
{
    select(makeRect(1, 1, 6, 6));
    lift();
    const Floating* const piece = floating();
    const Point position = record().position;
    std::shared_ptr<zp::Selection::Memento> memento;
    change([&memento](zp::Selection& s) {
        memento = s.remember();
        s.move({4, 4});
        s.drop();
    });
    change([&memento](zp::Selection& s) { s.bringBack(*memento); });
    EXPECT_EQ(outlineBounds(), makeRect(1, 1, 6, 6));
    EXPECT_EQ(floating(), piece);
    EXPECT_FALSE(floating()->isChanged());
    EXPECT_EQ(record().position, position);
    EXPECT_TRUE(selection().antsMarch());
}

TEST_F(SelectionTransitions, ThePhaseGoesRoundInFourSteps)
{
    select(makeRect(0, 0, 5, 5));
    EXPECT_EQ(selection().phase(), 0);
    for (const float phase : {2.5f, 5.0f, 7.5f, 0.0f, 2.5f}) {
        change([](zp::Selection& s) { s.advanceAnts(); });
        EXPECT_EQ(selection().phase(), phase);
    }
}

TEST_F(SelectionTransitions, TheAntsMarchUntilTheyRest)
{
    QSignalSpy ticks(document.get(), &Document::antsMoved);
    select(makeRect(0, 0, 5, 5));
    EXPECT_TRUE(eventually([&] { return ticks.count() >= 2; }, 5000));
    EXPECT_EQ(selection().phase(), 2.5f * float(ticks.count()));
    change([](zp::Selection& s) { s.marchAnts(), s.marchAnts(); });
    EXPECT_TRUE(selection().antsMarch());
    change([](zp::Selection& s) { s.restAnts(); });
    EXPECT_FALSE(selection().antsMarch());
}

TEST_F(SelectionTransitions, TheInfoShowsWholePixels)
{
    select(makeRect(1.5f, 2.25f, 3, 4));
    EXPECT_EQ(document->infoText(), "{{1, 2}, {4, 5}}");
    dropSelection();
    EXPECT_EQ(document->infoText(), "");
}

} // namespace
