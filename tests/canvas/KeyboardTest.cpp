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
        EXPECT_EQ(canvas->mTool, i);
        EXPECT_EQ(tools.currentIndex(), i);
    }
    key(Qt::Key_3, "3");
    EXPECT_FALSE(slider.isHidden());
    key(Qt::Key_1, "1");
    EXPECT_TRUE(slider.isHidden());
}

TEST_F(Keyboard, PlusAndMinusStepTheZoomAndStayInRange)
{
    key(Qt::Key_Plus, "+");
    EXPECT_EQ(canvas->mZoom, 2);
    key(Qt::Key_Minus, "-");
    key(Qt::Key_Minus, "-");
    EXPECT_EQ(canvas->mZoom, 0.5f);
    for (int i = 0; i < 12; ++i) key(Qt::Key_Minus, "-");
    EXPECT_EQ(zooms.currentIndex(), 0);
    takeLogLines();
    key(Qt::Key_Minus, "-"); // nowhere to go, but the zoom is sent all the same
    EXPECT_TRUE(has(takeLogLines(), "zoom = 0.062500"));
    for (int i = 0; i < 12; ++i) key(Qt::Key_Plus, "+");
    EXPECT_EQ(zooms.currentIndex(), 8);
}

TEST_F(Keyboard, ArrowsNudgeTheSelectionAndWhatFloatsInIt)
{
    key(Qt::Key_Up); // without a selection nothing happens
    select(makeRect(10, 10, 20, 20));
    canvas->mTransformRecord.position = {20, 20};
    key(Qt::Key_Up), key(Qt::Key_Up), key(Qt::Key_Down), key(Qt::Key_Left), key(Qt::Key_Left), key(Qt::Key_Right);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(9, 9, 20, 20));
    EXPECT_EQ(canvas->mTransformRecord.position, (Point{19, 19}));
    EXPECT_EQ(info.text(), "{{9, 9}, {20, 20}}");
}

TEST_F(Keyboard, ReturnFloatsAndAnchors)
{
    select(makeRect(10, 10, 20, 20));
    key(Qt::Key_Return, "\r");
    EXPECT_TRUE(canvas->mSelectionImage);
    key(Qt::Key_Return, "\r");
    EXPECT_FALSE(canvas->mSelectionImage);
    settle();
}

TEST_F(Keyboard, EscapeDropsTheSelectionWithASound)
{
    select(makeRect(10, 10, 20, 20));
    key(Qt::Key_Escape, "\x1b");
    EXPECT_FALSE(canvas->mSelectionPath);
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"Frog"});
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
    const int tool = canvas->mTool;
    for (const int code : {int(Qt::Key_X), int(Qt::Key_F5), int(Qt::Key_Delete), int(Qt::Key_Home)}) {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier, code == Qt::Key_X ? "x" : "");
        QApplication::sendEvent(canvas.get(), &event);
        EXPECT_TRUE(event.isAccepted());
    }
    EXPECT_EQ(canvas->mTool, tool);
    EXPECT_TRUE(canvas->mSelectionPath);
    EXPECT_TRUE(takeSounds().empty());
}

} // namespace
