// SPDX-License-Identifier: GPL-3.0-or-later
/// Random events and commands in every state of a gesture: whatever is done in whatever order, the document stays
/// sound.
#include "desktop/Panels.h"
#include "support/ToolFixture.h"
#include <array>
#include <random>

namespace
{

using namespace zp;
using namespace zp::test;

class Monkey : public ToolTest
{
protected:
    /// Button up, accepted: one that comes while a step is written is refused. Then until all is at rest.
    void rest()
    {
        while (history().isBusy()) QApplication::processEvents(QEventLoop::AllEvents, 1);
        const Point at = document->view().pointer();
        if (gesture().isMouseDown()) release(at.x, at.y);
        settle();
    }
    /// Colour at most alpha in every pixel, a mask of the picture's size, nothing that floats alone, numbers in order.
    void checkInvariants(int event)
    {
        SCOPED_TRACE(testing::Message() << "after event " << event);
        ASSERT_TRUE(isPremultiplied(picture().pixels()));
        ASSERT_EQ(selection().mask().width(), picture().width());
        ASSERT_EQ(selection().mask().height(), picture().height());
        ASSERT_FALSE(floating() && !outline());
        ASSERT_FALSE(selection().pasteInto() && !floating());
        ASSERT_GE(history().newest(), -1);
        ASSERT_LE(history().position(), history().newest());
        ASSERT_GE(history().position(), -1);
        ASSERT_FALSE(picture().gworld() && picture().gworld()->pixels.data != picture().bitmap()->bitmapData());
        ASSERT_LE(gesture().stroke().pointCount(), BrushStroke::kCapacity);
    }
};

TEST_F(Monkey, RandomEventsLeaveTheDocumentSound)
{
    std::mt19937 random(20'260'704);
    const auto upTo = [&](int n) { return int(random() % unsigned(n)); };
    canvas->show();
    newImage(120, 90);
    constexpr int kEvents = 10'000;
    constexpr std::array kCommands{
        "selectAll:", "selectNone:", "selectInverse:", "reselect:",  "fill:", "stroke:", "delete:",
        "copy:",      "cut:",        "paste:",         "pasteInto:", "undo:", "redo:",   "anchorSelection:",
        "flipH:",     "rotateCW:"};
    const SilencedPanels nobodyThere;
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
    for (int event = 0; event < kEvents; ++event) {
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
            document->setBrushSize(float(1 + upTo(600)) / 10);
            break;
        case 3:
            document->setPaintColor({float(upTo(256)) / 255, float(upTo(256)) / 255, float(upTo(256)) / 255,
                                     upTo(3) ? 1.0f : float(upTo(256)) / 255});
            break;
        case 4:
            document->setToleranceSetting(upTo(101));
            break;
        case 5:
            QApplication::processEvents();
            break;
        case 6:
            if (upTo(4) == 0) canvas->repaint();
            break;
        case 7:
            perform(kCommands[std::size_t(upTo(int(kCommands.size())))]);
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
                accepted += gesture().isMouseDown();
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
    EXPECT_GT(accepted, 300);
    EXPECT_FALSE(document->anyWorkerRunning());
    EXPECT_FALSE(gesture().isMouseDown());
    EXPECT_TRUE(gesture().stroke().isDrawn());
}

} // namespace
