// SPDX-License-Identifier: GPL-3.0-or-later
/// The one gate: which commands may pass, and what happens before and after each.
#include "base/Folders.h"
#include "desktop/Pasteboard.h"
#include "support/AlertWatch.h"
#include "support/ToolFixture.h"
#include <QDialog>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <new>

using namespace zp;
using namespace zp::test;

namespace
{

class Gate : public ToolTest
{
protected:
    /// A command of the test's own, as its row says.
    Outcome pass(const Command& command, const std::function<void(Edit&)>& body)
    {
        const Outcome outcome = document->perform(command, body);
        settle();
        return outcome;
    }
    static constexpr Command kPaints{
        .action = "paints", .name = "Paints", .effect = Effect::Paint, .step = StepRule::IfChanged};
};

TEST_F(Gate, CommandsNeedWhatTheyWorkOn)
{
    const char* const needSelection[] = {
        "selectNone:",      "selectInverse:", "fill:",   "stroke:",         "smartFill:",
        "anchorSelection:", "cut:",           "delete:", "cropToSelection:"};
    const char* const needPicture[] = {
        "copy:", "saveAsTIFF:", "saveAsJPEG:", "saveAsPNG:", "loadSelection:", "fitToWindow:"};
    const char* const always[] = {"selectAll:", "rotateCW:", "newDocument:"};
    Pasteboard::general().clear();
    for (const bool selected : {false, true}) {
        if (selected) select(makeRect(0, 0, 5, 5));
        for (const char* action : needSelection) EXPECT_EQ(allows(action), selected) << action;
        for (const char* action : needPicture) EXPECT_TRUE(allows(action)) << action;
        for (const char* action : always) EXPECT_TRUE(allows(action)) << action;
        EXPECT_FALSE(allows("paste:"));
        EXPECT_FALSE(allows("pasteInto:"));
    }
    Pasteboard::general().setTIFF({'I', 'I', 42, 0});
    EXPECT_TRUE(allows("paste:"));
    EXPECT_TRUE(allows("pasteInto:"));
    dropSelection();
    EXPECT_TRUE(allows("paste:"));
    EXPECT_FALSE(allows("pasteInto:"));
    Pasteboard::general().clear();
    performNumbers("newImageForMeWithSize:", {0, 0});
    for (const char* action : needPicture) EXPECT_FALSE(allows(action)) << action;
    for (const char* action : always) EXPECT_TRUE(allows(action)) << action;
}

TEST_F(Gate, UndoAndRedoFollowThePosition)
{
    const auto both = [this] { return std::pair(allows("undo:"), allows("redo:")); };
    EXPECT_EQ(both(), std::pair(false, false));
    for (int i = 0; i < 2; ++i) perform("flipH:");
    EXPECT_EQ(both(), std::pair(true, false));
    perform("undo:");
    EXPECT_EQ(both(), std::pair(true, true));
    perform("undo:");
    EXPECT_EQ(both(), std::pair(false, true));
}

TEST_F(Gate, AFileThatIsGoneIsForgotten)
{
    const std::string path = temporaryFolder() + "/gone.tiff";
    performPath("saveImageAsTIFF:", path);
    EXPECT_TRUE(allows("save:"));
    removeItem(path);
    QSignalSpy changed(document.get(), &Document::changed);
    EXPECT_FALSE(allows("save:"));
    EXPECT_EQ(picture().path(), "");
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(Gate, WhatCannotBeChosenIsRefusedWithABeep)
{
    EXPECT_EQ(perform("fill:").kind, Outcome::Refused);
    EXPECT_EQ(takeSounds(), Lines{"beep"});
    EXPECT_EQ(perform("no such command").kind, Outcome::Refused);
}

TEST_F(Gate, RowsAreFoundByMenuAndByName)
{
    EXPECT_FALSE(document->menuCommand("fill"));
    ASSERT_TRUE(document->menuCommand("fill:"));
    EXPECT_STREQ(document->menuCommand("fill:")->title, "Fill");
    EXPECT_FALSE(document->operation("fill:"));
    ASSERT_TRUE(document->operation("magicWand:"));
    EXPECT_STREQ(document->operation("magicWand:")->parameters, "nearest");
}

TEST_F(Gate, AStepIsLeftAsTheRowSays)
{
    struct Case {
        StepRule rule;
        bool writes, refuses;
        int steps;
    };
    for (const Case& c : {Case{StepRule::Never, true, false, 0},
                          {StepRule::IfChanged, false, false, 0},
                          {StepRule::IfChanged, true, false, 1},
                          {StepRule::IfChanged, true, true, 1},
                          {StepRule::Always, false, false, 1},
                          {StepRule::Always, false, true, 0}}) {
        const int before = history().newest();
        pass({.action = "test", .name = "Test", .effect = Effect::Paint, .step = c.rule}, [&c](Edit& e) {
            if (c.writes) e.write({0, 0, 1, 1});
            if (c.refuses) e.refuse();
        });
        EXPECT_EQ(history().newest() - before, c.steps) << int(c.rule) << c.writes << c.refuses;
    }
    // What the command itself decides comes before its row.
    const int before = history().newest();
    pass(kPaints, [](Edit& e) { e.write({0, 0, 1, 1}), e.wantStep(false); });
    EXPECT_EQ(history().newest(), before);
    pass(kPaints, [](Edit& e) { e.wantStep(true); });
    EXPECT_EQ(history().newest(), before + 1);
}

TEST_F(Gate, WithoutMemoryEverythingIsAsBeforeAndThePersonIsTold)
{
    fillImage(kBlackWord);
    perform("takeSnapshot");
    settle();
    const AlertWatch watch;
    const Outcome outcome = pass(kPaints, [](Edit& e) {
        const BitmapView pixels = e.writeAll();
        for (int x = 0; x < 200; ++x) pixels.row(50)[x] = kRedWord;
        throw std::bad_alloc();
    });
    EXPECT_EQ(outcome.kind, Outcome::Failed);
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "There is not enough memory.");
    expectPicture(255, 0);
    expectNumbers(1, 1);
    EXPECT_TRUE(perform("selectAll:")) << "and the gate is open again";
}

TEST_F(Gate, ACommandInsideAnotherIsRefused)
{
    Outcome inner;
    pass(kPaints, [&](Edit&) { inner = perform("selectAll:"); });
    EXPECT_EQ(inner.kind, Outcome::Refused);
    EXPECT_FALSE(outline());
}

TEST_F(Gate, WhatIsToBeSaidOrShownComesWhenTheGateHasClosed)
{
    bool performed = false;
    pass(kPaints, [&](Edit& e) { e.afterwards([&] { performed = bool(perform("selectAll:")); }); });
    EXPECT_TRUE(performed);
    EXPECT_TRUE(outline());
}

TEST_F(Gate, AFloatIsSettledWhereTheRowSaysSo)
{
    for (const bool moved : {false, true})
        for (const OnFloat onFloat : {OnFloat::Keep, OnFloat::Settle}) {
            SCOPED_TRACE(testing::Message() << moved << int(onFloat));
            newImage(200, 100);
            fillBox({0, 0, 10, 10}, kBlackWord);
            select(makeRect(0, 0, 10, 10));
            lift();
            if (moved) performNumbers("nudge", {50, 0});
            bool floats = false;
            pass({.action = "test", .effect = Effect::Paint, .onFloat = onFloat, .step = StepRule::IfChanged},
                 [&](Edit& e) { floats = e.selection().floating() != nullptr; });
            const bool settled = onFloat == OnFloat::Settle, anchored = settled && moved;
            EXPECT_NE(floats, settled) << "before the command runs";
            EXPECT_EQ(pixel(55, 5), anchored ? kBlackWord : kWhiteWord);
            EXPECT_EQ(history().newest(), anchored ? 1 : 0);
            EXPECT_EQ(outlineBounds(), makeRect(moved ? 50 : 0, 0, 10, 10));
        }
}

TEST_F(Gate, CommandsOfTheMenuNeverPaintOverAFloatingPiece)
{
    // Copied, then filled: the paint stays.
    document->setPaintColor({0, 1, 0, 1});
    constexpr std::uint32_t kGreen = word(255, 0, 255, 0);
    select(makeRect(10, 10, 20, 20));
    perform("copy:");
    ASSERT_TRUE(floating());
    perform("fill:");
    EXPECT_FALSE(floating());
    perform("anchorSelection:"); // there is a new piece, of what is green
    perform("anchorSelection:");
    settle();
    EXPECT_EQ(countPixels(kGreen), 400u);
    // What was pasted stays when the picture changes its shape.
    for (const char* action : {"rotateCW:", "rotateCCW:", "flipH:", "flipV:", "setImageSize:scale:"}) {
        newImage(200, 100);
        placePiece(makeRect(20, 20, 10, 10));
        performNumbers(action, {200, 100, 0});
        settle();
        EXPECT_EQ(countPixels(kRedWord), 100u) << action;
        expectNumbers(1, 1);
    }
}

TEST_F(Gate, RequestsFromOutsideWaitForTheButton)
{
    std::string order;
    EXPECT_TRUE(document->whenFree([&order] { order += '1'; }));
    choose(Tool::Rectangle);
    press(10, 10);
    EXPECT_FALSE(document->whenFree([&order] { order += '2'; }));
    EXPECT_FALSE(document->whenFree([&order] { order += '3'; }));
    EXPECT_TRUE(document->requestsWait());
    drag(20, 20);
    EXPECT_EQ(order, "1");
    release(20, 20);
    EXPECT_EQ(order, "123");
    EXPECT_FALSE(document->requestsWait());
}

TEST_F(Gate, RequestsFromOutsideWaitForDialogsAndMenus)
{
    QDialog dialog;
    dialog.setModal(true);
    QMenu menu;
    menu.addAction("An item");
    const struct {
        QWidget& widget;
        std::function<void()> open;
    } things[] = {{dialog, [&] { dialog.open(); }}, {menu, [&] { menu.popup({10, 10}); }}};
    for (const auto& thing : things) {
        bool ran = false;
        thing.open();
        EXPECT_FALSE(document->whenFree([&ran] { ran = true; }));
        EXPECT_FALSE(ran);
        thing.widget.close();
        EXPECT_TRUE(QTest::qWaitFor([&ran] { return ran; }));
    }
}

TEST_F(Gate, ARequestFromInsideACommandComesAfterIt)
{
    bool ran = false, ranInside = false;
    pass(kPaints, [&](Edit&) {
        document->whenFree([&ran] { ran = true; });
        ranInside = ran;
    });
    EXPECT_FALSE(ranInside);
    EXPECT_TRUE(eventually([&ran] { return ran; }));
}

} // namespace
