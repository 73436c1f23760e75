// SPDX-License-Identifier: GPL-3.0-or-later
/// Every tool works by keys alone.
#include "support/DocumentFixture.h"
#include <QTest>

using namespace zp;
using namespace zp::test;

namespace
{

class KeyboardPointerTest : public DocumentTest
{
protected:
    KeyboardPointerTest()
    {
        makeImage(100, 80);
        canvas->show();
        setScriptedKeyModifiers(std::nullopt); // keys are real here
        document->setPointer({50.5f, 40.5f}, true);
        canvas->setKeyboardPointer(true);
    }
    void steer(Qt::Key key, int times = 1)
    {
        for (int i = 0; i < times; ++i) QTest::keyClick(canvas.get(), key, Qt::ControlModifier);
    }
    void button() { steer(Qt::Key_Space); }
    Point pointer() const { return document->view().pointer(); }
};

TEST_F(KeyboardPointerTest, ArrowsAndThePadMoveItByPixelsInsideThePicture)
{
    steer(Qt::Key_Right, 3);
    steer(Qt::Key_Up, 2);
    EXPECT_EQ(pointer(), (Point{53.5f, 38.5f}));
    QTest::keyClick(canvas.get(), Qt::Key_7, Qt::KeypadModifier);
    EXPECT_EQ(pointer(), (Point{52.5f, 37.5f}));
    QTest::keyClick(canvas.get(), Qt::Key_PageDown, Qt::KeypadModifier);
    EXPECT_EQ(pointer(), (Point{53.5f, 38.5f}));
    steer(Qt::Key_Left, 200);
    EXPECT_EQ(pointer(), (Point{0.5f, 38.5f}));
}

TEST_F(KeyboardPointerTest, AMarqueeIsDrawnAndCtrlMakesNoOvalOfIt)
{
    button();
    steer(Qt::Key_Right, 10);
    steer(Qt::Key_Down, 5);
    button();
    ASSERT_TRUE(outline());
    EXPECT_EQ(outlineBounds(), makeRect(50.5f, 40.5f, 10, 5));
    EXPECT_EQ(outline()->elementCount(), BezierPath::withRect(makeRect(0, 0, 1, 1)).elementCount());
}

TEST_F(KeyboardPointerTest, ThePencilDraws)
{
    canvas->setTool(int(Tool::Pencil));
    document->setBrushSize(3);
    button();
    steer(Qt::Key_Right, 20);
    button();
    settle();
    EXPECT_EQ(pixel(60, 40), kBlackWord);
    EXPECT_EQ(pixel(60, 60), 0u);
}

TEST_F(KeyboardPointerTest, WithoutItTheKeysMeanWhatTheyMeant)
{
    canvas->setKeyboardPointer(false);
    perform("selectAll:");
    QTest::keyClick(canvas.get(), Qt::Key_Right);
    EXPECT_EQ(outlineBounds().minX(), 1);
    EXPECT_EQ(pointer(), (Point{50.5f, 40.5f}));
}

} // namespace
