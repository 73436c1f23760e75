// SPDX-License-Identifier: GPL-3.0-or-later
/// The text tool's way from a press through the editor to the selection, with an editor of the test's own.
#include "base/NotificationCenter.h"
#include "operations/TextToolHook.h"
#include "support/ToolFixture.h"

namespace
{

using namespace zp;
using namespace zp::test;

class TextTool : public ToolTest
{
protected:
    void SetUp() override
    {
        ToolTest::SetUp();
        TextToolHooks hooks;
        hooks.setFontSize = [this](int size) { fontSize = size; };
        hooks.showWindow = [this] { calls += "show "; };
        hooks.run = [this] {
            calls += "run ";
            textEditorNotif(*document);
            if (outline()) preview = *outline();
        };
        // A letter of the test: a box that stands on its base line, y upwards.
        hooks.textPathAtPoint = [](Point p) { return BezierPath::withRect(makeRect(p.x, p.y, 8, 12)); };
        hooks.isValid = [this] { return valid; };
        setTextToolHooks(hooks);
        NotificationCenter::defaultCenter().addObserver(
            this, "FontSizeNotif", [this](const Notification& note) { posted = note.userInfo.at("fontSize"); });
        choose(Tool::Text);
    }
    void TearDown() override
    {
        NotificationCenter::defaultCenter().removeObserver(this);
        // Hooks cannot be taken away again: those left behind do nothing.
        setTextToolHooks({[](int) {}, [] {}, [] {}, [](Point) { return std::nullopt; }, [] { return false; }});
    }
    int fontSize = 0;
    bool valid = true;
    std::string calls, posted;
    std::optional<BezierPath> preview;
};

TEST_F(TextTool, PutsTheTextUprightAtThePressAndPreviewsIt)
{
    document->setBrushSize(12.6f);
    select(makeRect(0, 0, 5, 5));
    placePiece(makeRect(1, 1, 2, 2), true);
    press(50, 40);
    EXPECT_EQ(calls, "show run ");
    EXPECT_EQ(fontSize, 13);
    EXPECT_EQ(posted, "13");
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->bounds(), makeRect(50, 28, 8, 12)); // above the base line, where y grows downwards
    EXPECT_EQ(outlineBounds(), makeRect(50, 28, 8, 12));
    EXPECT_FALSE(selection().pasteInto());
    EXPECT_FALSE(floating());
    release(50, 40);
    EXPECT_FALSE(gesture().isMouseDown());
    EXPECT_TRUE(selection().antsMarch());
}

TEST_F(TextTool, CancelLeavesNoSelection)
{
    valid = false;
    press(50, 40);
    release(50, 40);
    EXPECT_TRUE(preview);
    EXPECT_FALSE(outline());
}

TEST_F(TextTool, PressInsideTheTextMovesItInsteadOfOpeningTheEditor)
{
    press(50, 40);
    release(50, 40);
    calls.clear();
    press(53, 35);
    drag(63, 45);
    release(63, 45);
    EXPECT_EQ(calls, "");
    EXPECT_EQ(outlineBounds(), makeRect(60, 38, 8, 12));
}

TEST_F(TextTool, AReleaseThatTheEditorSwallowedIsMadeUpFor)
{
    press(50, 40); // the platform's button is up when the editor closes, and no release comes
    EXPECT_FALSE(gesture().isMouseDown());
}

} // namespace
