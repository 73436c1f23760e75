// SPDX-License-Identifier: GPL-3.0-or-later
/// What a gesture is from press to release, however it ends.
#include "support/ToolFixture.h"

namespace
{

using namespace zp;
using namespace zp::test;

class GestureLife : public ToolTest
{
protected:
    void red(float size = 4)
    {
        document->setPaintColor({1, 0, 0, 1});
        document->setBrushSize(size);
    }
};

TEST_F(GestureLife, UnknownToolBeepsAndDoesNothing)
{
    document->press(nullptr, {10, 10});
    EXPECT_EQ(takeSounds(), Lines{"beep"});
    document->drag({20, 20});
    document->release({20, 20});
    EXPECT_FALSE(gesture().isMouseDown());
    EXPECT_EQ(countPixels(kWhiteWord), 20'000u);
    EXPECT_FALSE(outline());
}

TEST_F(GestureLife, StrokesAreTakenWhileStepsAreWritten)
{
    red();
    choose(Tool::Pencil);
    for (int i = 0; i < 20; ++i) {
        EXPECT_FALSE(history().isWriting()) << "the mouse is never refused";
        press(5, float(5 + 4 * i));
        drag(150, float(5 + 4 * i));
        release(150, float(5 + 4 * i));
    }
    EXPECT_TRUE(takeSounds().empty());
    EXPECT_EQ(history().position(), 20);
    settle();
    const auto after = countPixels(kWhiteWord);
    for (int i = 19; i > 0; --i) {
        perform("undo:");
        EXPECT_EQ(history().position(), i);
        EXPECT_GT(countPixels(kWhiteWord), after + std::size_t(19 - i) * 100) << "step " << i;
    }
}

TEST_F(GestureLife, AToolChosenInMidDragEndsTheGesture)
{
    red();
    choose(Tool::Pencil);
    press(20, 20);
    drag(60, 20);
    key(Qt::Key_1, "1");
    EXPECT_EQ(gesture().tool(), Tool::Rectangle);
    EXPECT_FALSE(gesture().isMouseDown());
    settle();
    EXPECT_EQ(pixel(40, 20), kRedWord);
    drag(60, 90);
    release(60, 90);
    settle();
    EXPECT_EQ(pixel(60, 60), kWhiteWord);
    EXPECT_FALSE(outline());
}

TEST_F(GestureLife, ACommandEndsItAsItsReleaseWould)
{
    red();
    for (const Tool tool : {Tool::Brush, Tool::Pencil}) {
        SCOPED_TRACE(int(tool));
        newImage(200, 100);
        choose(tool);
        document->setBrushSize(10);
        press(20, 50);
        drag(60, 50);
        perform("undo:"); // of the stroke, whose step has been recorded first
        EXPECT_FALSE(gesture().isMouseDown());
        EXPECT_TRUE(gesture().stroke().isDrawn());
        expectNumbers(0, 1);
        EXPECT_EQ(pixel(40, 50), 0u) << "as the new image was";
        perform("redo:");
        EXPECT_NEAR(channelOf(pixel(40, 50), 1), 255, 20);
        EXPECT_NEAR(channelOf(pixel(40, 50), 2), 0, 80);
        EXPECT_TRUE(takeSounds().empty());
        drag(60, 90); // the hand has not noticed
        release(60, 90);
        settle();
        expectNumbers(1, 1);
    }
}

TEST_F(GestureLife, AMarqueeInProgressIsWhatACommandFills)
{
    red();
    choose(Tool::Rectangle);
    press(10, 10);
    drag(30, 30);
    perform("fill:");
    EXPECT_EQ(countPixels(kRedWord), 400u);
    EXPECT_EQ(outlineBounds(), makeRect(10, 10, 20, 20));
}

TEST_F(GestureLife, LookingDoesNotEndIt)
{
    choose(Tool::Rectangle);
    press(10, 10);
    drag(30, 30);
    document->setZoom(2);
    document->setPaintColor({0, 1, 0, 1});
    EXPECT_TRUE(gesture().isMouseDown());
    drag(50, 50);
    release(50, 50);
    EXPECT_EQ(outlineBounds(), makeRect(10, 10, 40, 40));
}

/// Pixels, outlines, record, colour, points and numbers: all that a gesture may have changed.
class TakenBack : public GestureLife, public testing::WithParamInterface<Tool>
{
protected:
    struct All {
        std::vector<std::uint32_t> pixels;
        Rect bounds;
        bool parked, pasteInto;
        const Floating* floating;
        bool changed;
        Point position, pt1, pt2, reference;
        Color color;
        int at, newest;
        bool operator==(const All&) const = default;
    };
    All all() const
    {
        return {allPixels(),
                outlineBounds(),
                selection().parked() != nullptr,
                selection().pasteInto() != nullptr,
                floating(),
                floating() && floating()->isChanged(),
                record().position,
                gesture().pt1(),
                gesture().pt2(),
                gesture().cloneReference(),
                paint().color(),
                history().position(),
                history().newest()};
    }
};

TEST_P(TakenBack, ByEscapeEverythingIsAsBeforeThePress)
{
    red(12);
    fillBox({80, 40, 140, 80}, kBlackWord);
    choose(Tool::CloneStamp);
    hold(kOptionKey);
    gestureThrough({{90, 50}});
    choose(GetParam());
    for (const std::uint32_t keys : {0u, kShiftKey, kOptionKey, kControlKey, kCommandKey, kCommandKey | kShiftKey})
        for (const char* scene : {"nothing", "a selection", "a lifted piece", "a pasted piece"})
            for (const Point from : {Point{35, 30}, {150, 20}}) { // inside the outline, and outside
                SCOPED_TRACE(testing::Message() << scene << ", keys " << keys << ", from " << from.x);
                hold(0);
                dropSelection();
                const std::string name = scene;
                if (name != "nothing") select(makeRect(10, 10, 60, 50));
                if (name == "a lifted piece") lift();
                if (name == "a pasted piece") placePiece(makeRect(30, 20, 20, 20), true);
                const All before = all();
                hold(keys);
                press(from.x, from.y);
                drag(from.x + 8, from.y + 20);
                drag(from.x + 15, from.y + 40);
                ASSERT_TRUE(gesture().actions());
                takeSounds();
                key(Qt::Key_Escape, "\x1b");
                EXPECT_TRUE(takeSounds().empty());
                EXPECT_FALSE(gesture().actions());
                EXPECT_FALSE(gesture().pencilPath());
                EXPECT_TRUE(gesture().stroke().isDrawn());
                EXPECT_TRUE(all() == before);
                drag(from.x, from.y + 10); // the button is still down
                release(from.x, from.y + 10);
                settle();
                EXPECT_EQ(allPixels(), before.pixels);
                EXPECT_EQ(outlineBounds(), before.bounds);
                EXPECT_EQ(history().newest(), before.newest);
            }
}

INSTANTIATE_TEST_SUITE_P(EveryTool, TakenBack,
                         testing::Values(Tool::Rectangle, Tool::Lasso, Tool::Wand, Tool::Brush, Tool::Pencil,
                                         Tool::Eraser, Tool::Eyedropper, Tool::CloneStamp),
                         [](const auto& test) { return "Tool" + std::to_string(int(test.param)); });

} // namespace
