// SPDX-License-Identifier: GPL-3.0-or-later
/// Single keys on the canvas.
#include "base/Folders.h"
#include "support/ToolFixture.h"

namespace
{

using namespace zp;
using namespace zp::test;

class Keyboard : public ToolTest
{
};

TEST_F(Keyboard, DigitsChooseToolsInTheOrderOfTheRow)
{
    const char* digits = "1234567890";
    for (int i = 0; i < 10; ++i) {
        key(Qt::Key_0 + (digits[i] - '0'), QString(digits[i]));
        EXPECT_EQ(int(gesture().tool()), i);
    }
}

TEST_F(Keyboard, PlusAndMinusStepTheZoomAndStayInRange)
{
    key(Qt::Key_Plus, "+");
    EXPECT_EQ(document->view().zoom(), 2);
    key(Qt::Key_Minus, "-");
    key(Qt::Key_Minus, "-");
    EXPECT_EQ(document->view().zoom(), 0.5f);
    for (int i = 0; i < 12; ++i) key(Qt::Key_Minus, "-");
    EXPECT_EQ(document->view().zoom(), 0.0625f);
    takeLogLines();
    key(Qt::Key_Minus, "-"); // nowhere to go, but the zoom is sent all the same
    EXPECT_TRUE(has(takeLogLines(), "zoom = 0.062500"));
    for (int i = 0; i < 12; ++i) key(Qt::Key_Plus, "+");
    EXPECT_EQ(document->view().zoom(), 16);
}

TEST_F(Keyboard, ArrowsNudgeTheSelectionAndWhatFloatsInIt)
{
    key(Qt::Key_Up); // without a selection nothing happens
    EXPECT_FALSE(outline());
    select(makeRect(10, 10, 20, 20));
    lift();
    key(Qt::Key_Up), key(Qt::Key_Up), key(Qt::Key_Down), key(Qt::Key_Left), key(Qt::Key_Left), key(Qt::Key_Right);
    EXPECT_EQ(outlineBounds(), makeRect(9, 9, 20, 20));
    EXPECT_EQ(record().position, (Point{19, 19}));
    EXPECT_EQ(document->infoText(), "{{9, 9}, {20, 20}}");
}

TEST_F(Keyboard, ReturnFloatsAndAnchors)
{
    select(makeRect(10, 10, 20, 20));
    key(Qt::Key_Return, "\r");
    EXPECT_TRUE(floating());
    key(Qt::Key_Return, "\r");
    EXPECT_FALSE(floating());
    settle();
}

TEST_F(Keyboard, EscapeDropsTheSelectionWithASound)
{
    select(makeRect(10, 10, 20, 20));
    key(Qt::Key_Escape, "\x1b");
    EXPECT_FALSE(outline());
    EXPECT_EQ(takeSounds(), Lines{"Frog"});
}

TEST_F(Keyboard, EscapeBetweenTheClicksOfAPolygonDropsThePolygonAlone)
{
    select(makeRect(10, 10, 20, 20));
    choose(Tool::Lasso);
    hold(kControlKey | kShiftKey);
    press(60, 30);
    release(60, 30);
    hold(0);
    press(80, 30);
    release(80, 30);
    ASSERT_TRUE(gesture().polygonIsOpen());
    takeSounds();
    key(Qt::Key_Escape, "\x1b");
    EXPECT_FALSE(gesture().polygonIsOpen());
    EXPECT_EQ(outlineBounds(), makeRect(10, 10, 20, 20)) << "what was selected before is again";
    EXPECT_FALSE(selection().parked());
    EXPECT_TRUE(selection().antsMarch());
    EXPECT_EQ(takeSounds(), Lines{"Frog"});
}

TEST_F(Keyboard, SSavesTheSelectionUnlessCommandIsHeld)
{
    const std::string path =
        homeFolder() + "/Library/Application Support/Zelpane/Selections/My Great Default Selection";
    createFolder(folderOfPath(path));
    select(makeRect(10, 10, 20, 20));
    hold(kCommandKey);
    key(Qt::Key_S, "s");
    EXPECT_FALSE(fileExists(path));
    hold(0);
    key(Qt::Key_S, "s");
    EXPECT_TRUE(fileExists(path));
}

TEST_F(Keyboard, OtherKeysAreSwallowedSilently)
{
    select(makeRect(10, 10, 20, 20));
    const Tool tool = gesture().tool();
    for (const int code : {int(Qt::Key_X), int(Qt::Key_F5), int(Qt::Key_Delete), int(Qt::Key_Home)}) {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier, code == Qt::Key_X ? "x" : "");
        QApplication::sendEvent(canvas.get(), &event);
        EXPECT_TRUE(event.isAccepted());
    }
    EXPECT_EQ(gesture().tool(), tool);
    EXPECT_TRUE(outline());
    EXPECT_TRUE(takeSounds().empty());
}

} // namespace
