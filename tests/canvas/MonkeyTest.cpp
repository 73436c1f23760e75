// SPDX-License-Identifier: GPL-3.0-or-later
/// Twenty thousand random events: whatever is done in whatever order, the canvas stays sound.
#include "base/Folders.h"
#include "support/ToolFixture.h"
#include <QPointer>
#include <random>

namespace
{

using namespace zp;
using namespace zp::test;

class Monkey : public ToolTest
{
protected:
    /// Button up, accepted: one that comes while a snapshot is written is refused. Then until all is at rest.
    void rest()
    {
        while (canvas->mUndoThreadRunning) QApplication::processEvents(QEventLoop::AllEvents, 1);
        if (canvas->mIsMouseDown) release(canvas->mLastPointer.x, canvas->mLastPointer.y);
        settle();
    }
    /// Colour at most alpha in every pixel, a mask of the picture's size, numbers in order.
    void checkInvariants(int event)
    {
        SCOPED_TRACE(testing::Message() << "after event " << event);
        const BitmapView pixels = canvas->mBitmapRep->view();
        int wrong = 0;
        for (int y = 0; y < pixels.height; ++y)
            for (int x = 0; x < pixels.width; ++x) {
                const std::uint8_t* p = pixels.pixel(x, y);
                wrong += p[1] > p[0] || p[2] > p[0] || p[3] > p[0];
            }
        ASSERT_EQ(wrong, 0) << "pixels with more colour than alpha";
        ASSERT_TRUE(canvas->mSelectionMaskData);
        ASSERT_TRUE(canvas->mSelectionMask);
        ASSERT_EQ(canvas->mSelectionMask->width, pixels.width);
        ASSERT_EQ(canvas->mSelectionMask->height, pixels.height);
        ASSERT_EQ(canvas->mSelectionMask->data, canvas->mSelectionMaskData.get());
        ASSERT_GE(canvas->mUndoIndex, -1);
        ASSERT_LE(canvas->mUndoRedoIndex, canvas->mUndoIndex);
        ASSERT_GE(canvas->mUndoRedoIndex, -1);
        ASSERT_EQ(canvas->mGWorld && canvas->mGWorld->pixels.data != canvas->mBitmapRep->bitmapData(), false);
        ASSERT_LE(canvas->_ptIndex, ZPCanvas::kStrokeCapacity);
    }
};

TEST_F(Monkey, TwentyThousandRandomEventsLeaveTheCanvasSound)
{
    std::mt19937 random(20'260'704);
    const auto upTo = [&](int n) { return int(random() % unsigned(n)); };
    canvas->show();
    newImage(120, 90);
    bool down = false;
    int accepted = 0;
    int x = 50, y = 50;
    const auto wander = [&] {
        if (upTo(20) == 0) {
            x = upTo(300) - 90, y = upTo(250) - 80;
        } else {
            x += upTo(21) - 10, y += upTo(21) - 10;
        }
    };
    const QString keys = "1234567890+-sx";
    for (int event = 0; event < 20'000; ++event) {
        switch (upTo(40)) {
        case 0:
            hold(std::uint32_t(upTo(3) == 0 ? (random() & (kCommandKey | kShiftKey | kOptionKey | kControlKey)) : 0));
            break;
        case 1: {
            const int k = upTo(int(keys.size()) + 6);
            constexpr int kSpecial[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                                        Qt::Key_Right, Qt::Key_Return, Qt::Key_Escape};
            if (k < int(keys.size())) {
                if (keys[k] != 's' || upTo(20) == 0) key(0, QString(keys[k]));
            } else {
                key(kSpecial[k - int(keys.size())]);
            }
            break;
        }
        case 2:
            canvas->setBrushSize(float(1 + upTo(600)) / 10);
            break;
        case 3:
            canvas->setPaintColor({float(upTo(256)) / 255, float(upTo(256)) / 255, float(upTo(256)) / 255,
                                   upTo(3) ? 1.0f : float(upTo(256)) / 255});
            break;
        case 4:
            slider.setValue(upTo(101));
            break;
        case 5:
            QApplication::processEvents();
            break;
        case 6:
            if (upTo(4) == 0) canvas->repaint();
            break;
        case 7:
            if (down) break;
            switch (upTo(12)) {
            case 0:
                canvas->selectAll();
                break;
            case 1:
                canvas->selectNone();
                break;
            case 2:
                canvas->selectInverse();
                break;
            case 3:
                canvas->fill();
                break;
            case 4:
                canvas->stroke();
                break;
            case 5:
                canvas->deleteSelection();
                break;
            case 6:
                canvas->copy();
                break;
            case 7:
                canvas->paste();
                break;
            case 8:
                canvas->anchorOrFloatSelection();
                break;
            case 9:
                rest(), canvas->undo();
                break;
            case 10:
                rest(), canvas->redo();
                break;
            default:
                rest(), upTo(2) ? canvas->flipH() : canvas->rotateCW();
                break;
            }
            break;
        case 8:
            if (upTo(60) == 0) newImage(1 + upTo(200), 1 + upTo(200)), down = false;
            break;
        case 9:
            if (upTo(8) == 0) rest(), down = false;
            break;
        default:
            wander();
            if (down) {
                if (upTo(9) == 0) {
                    release(float(x), float(y));
                    down = upTo(40) == 0; // now and then the button counts as held, and drags come all the same
                    if (upTo(3)) rest();  // or most presses would meet a snapshot and be refused
                } else {
                    drag(float(x) + float(upTo(4)) / 4, float(y) + float(upTo(4)) / 4);
                }
            } else if (upTo(3) == 0) {
                press(float(x), float(y)), down = true;
                accepted += canvas->mIsMouseDown;
            } else {
                move(float(x), float(y));
            }
        }
        if (event % 500 == 499) {
            rest();
            down = false;
            checkInvariants(event);
            if (HasFatalFailure()) return;
        }
    }
    rest();
    EXPECT_GT(accepted, 500);
    EXPECT_FALSE(canvas->anyWorkerRunning());
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
}

} // namespace
