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
        if (textToolHooks()) mBefore = *textToolHooks();
        TextToolHooks hooks;
        hooks.setFontSize = [this](int size) { fontSize = size; };
        hooks.showWindow = [this] { calls += "show "; };
        hooks.run = [this] {
            calls += "run ";
            canvas->textEditorNotif();
            preview = canvas->mSelectionPath;
        };
        // A letter of the test: a box that stands on its base line, y upwards.
        hooks.textPathAtPoint = [](Point p) { return BezierPath::withRect(makeRect(p.x, p.y, 8, 12)); };
        hooks.isValid = [this] { return valid; };
        setTextToolHooks(hooks);
        NotificationCenter::defaultCenter().addObserver(
            this, "FontSizeNotif", [this](const Notification& note) { posted = note.userInfo.at("fontSize"); });
        canvas->setTool(8);
    }
    void TearDown() override
    {
        NotificationCenter::defaultCenter().removeObserver(this);
        setTextToolHooks(mBefore);
        ToolTest::TearDown();
    }
    int fontSize = 0;
    bool valid = true;
    std::string calls, posted;
    std::optional<BezierPath> preview;

private:
    TextToolHooks mBefore;
};

TEST_F(TextTool, PutsTheTextUprightAtThePressAndPreviewsIt)
{
    canvas->mSize = 12.6f;
    canvas->mPasteIntoSelectionPath = BezierPath::withRect(makeRect(0, 0, 5, 5));
    press(50, 40);
    EXPECT_EQ(calls, "show run ");
    EXPECT_EQ(fontSize, 13);
    EXPECT_EQ(posted, "13");
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->bounds(), makeRect(50, 28, 8, 12)); // above the base line, where y grows downwards
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(50, 28, 8, 12));
    EXPECT_FALSE(canvas->mPasteIntoSelectionPath);
    release(50, 40);
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    EXPECT_TRUE(canvas->mSelectionTimer);
}

TEST_F(TextTool, CancelLeavesNoSelection)
{
    valid = false;
    press(50, 40);
    release(50, 40);
    EXPECT_TRUE(preview);
    EXPECT_FALSE(canvas->mSelectionPath);
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
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(60, 38, 8, 12));
}

TEST_F(TextTool, AReleaseThatTheEditorSwallowedIsMadeUpFor)
{
    press(50, 40); // the platform's button is up when the editor closes, and no release comes
    EXPECT_EQ(canvas->mIsMouseDown, 0);
}

} // namespace
