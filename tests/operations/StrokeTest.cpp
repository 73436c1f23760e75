// SPDX-License-Identifier: GPL-3.0-or-later
/// The brush: capture and drawing threads, from mouse event to painted pixels.
#include "support/ToolFixture.h"
#include "tools/PointerFeed.h"
#include <QImage>
#include <cmath>
#include <cstring>
#include <random>

namespace
{

using namespace zp;
using namespace zp::test;

class Stroke : public ToolTest
{
protected:
    void SetUp() override
    {
        ToolTest::SetUp();
        canvas->setTool(3);
        canvas->mColor = {1, 0, 0, 1};
        canvas->setBrushSize(20);
    }
    bool painted(int x, int y) const { return word(x, y) != kWhiteWord; }
    bool anythingPainted() const
    {
        return countWords(kWhiteWord) !=
               std::size_t(canvas->bounds().size.width) * std::size_t(canvas->bounds().size.height);
    }
    void waitForPoints(std::uint32_t count)
    {
        QElapsedTimer clock;
        clock.start();
        while (canvas->_ptIndex < count && clock.elapsed() < 5000) QThread::usleep(100);
        ASSERT_GE(canvas->_ptIndex, count);
    }
};

TEST_F(Stroke, PaintsAlongTheDragAndTakesOneSnapshot)
{
    const int before = canvas->mUndoIndex;
    press(20, 50);
    EXPECT_EQ(canvas->mDrawFinishedFlag, 0);
    for (int x = 25; x <= 180; x += 5) drag(float(x), 50);
    release(180, 50);
    settle();
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
    for (int x = 20; x <= 175; ++x) EXPECT_TRUE(painted(x, 50)) << x;
    EXPECT_FALSE(painted(100, 35));
    EXPECT_FALSE(painted(100, 65));
    const std::vector<std::string> lines = takeLogLines();
    EXPECT_TRUE(has(lines, "w=20 h=20"));
    EXPECT_TRUE(has(lines, "pollThread         1"));
    EXPECT_TRUE(has(lines, "pollThread finish"));
    EXPECT_TRUE(has(lines, "draw thread finish"));
}

TEST_F(Stroke, KeepsEverySampleInOrderWithTheOriginAtTheBottom)
{
    std::mt19937 random(5);
    const StrokePoint unused = canvas->_ptArray[0];
    std::vector<Point> sent{{20, 50}};
    press(20, 50);
    for (int i = 0; i < 3000; ++i) {
        sent.push_back({float(random() % 400) - 100, float(random() % 300) - 100});
        if (sent.back() == sent[sent.size() - 2]) sent.pop_back();
        drag(sent.back().x, sent.back().y);
    }
    sent.push_back({33, 44});
    release(33, 44); // where the button goes up is a sample too
    settle();
    ASSERT_EQ(canvas->_ptIndex, sent.size());
    for (std::size_t i = 0; i < sent.size(); ++i) {
        ASSERT_EQ(canvas->_ptArray[i + 1].x, sent[i].x) << i;
        ASSERT_EQ(canvas->_ptArray[i + 1].y, 100 - sent[i].y) << i;
    }
    EXPECT_EQ(std::memcmp(&unused, canvas->_ptArray, sizeof unused), 0) << "the first slot is never written";
}

TEST_F(Stroke, PressAndReleaseWithoutMovementCapturesOnePointAndTakesASnapshot)
{
    const int before = canvas->mUndoIndex;
    press(50, 50);
    release(50, 50);
    settle();
    EXPECT_EQ(canvas->_ptIndex, 1u);
    EXPECT_FALSE(anythingPainted());
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
    const std::vector<std::string> lines = takeLogLines();
    EXPECT_TRUE(has(lines, "waiting... 0.05"));
    EXPECT_TRUE(has(lines, "waiting... 0.1"));
    EXPECT_TRUE(has(lines, "draw thread finish"));
}

TEST_F(Stroke, APointerThatStandsStillAddsNoPoints)
{
    press(50, 50);
    drag(60, 50);
    for (int i = 0; i < 20; ++i) drag(60, 50);
    waitForPoints(2);
    QThread::msleep(250);
    EXPECT_EQ(canvas->_ptIndex, 2u);
    EXPECT_EQ(canvas->mDrawFinishedFlag, 0);
    const std::vector<std::string> lines = takeLogLines();
    EXPECT_GE(std::count(lines.begin(), lines.end(), "waiting... 0.1"), 2);
    release(60, 50);
    settle();
}

TEST_F(Stroke, BrushesWhoseSpacingRoundsToZeroLeaveNoPaint)
{
    for (const float size : {1.0f, 2.0f, 3.0f, 3.3f}) {
        canvas->setBrushSize(size);
        press(10, 50);
        drag(150, 50);
        release(150, 50);
        settle();
        EXPECT_FALSE(anythingPainted()) << size;
    }
    canvas->setBrushSize(3.4f);
    press(10, 50);
    drag(150, 50);
    release(150, 50);
    settle();
    EXPECT_TRUE(anythingPainted());
}

TEST_F(Stroke, StampsEveryFifteenPercentOfTheSizeAcrossSegments)
{
    // Size 20: a stamp every third visited pixel; both ends of each segment are visited, so joints count twice.
    press(20, 50);
    drag(22, 50); // 3 pixels visited: the third is stamped, its corner at (22 - 10)
    release(22, 50);
    settle();
    const BitmapView pixels = canvas->mBitmapRep->view();
    int left = 200, right = -1;
    for (int x = 0; x < 200; ++x)
        if (pixels.row(50)[x] != kWhiteWord) left = std::min(left, x), right = std::max(right, x);
    EXPECT_NEAR(left, 12, 1);
    EXPECT_NEAR(right, 31, 1);
}

TEST_F(Stroke, OpacityIsSeventyPercentOfTheColoursAlpha)
{
    canvas->mColor = {0, 0, 0, 0.5f};
    press(20, 50);
    drag(22, 50);
    release(22, 50);
    settle();
    // One stamp over white: 255 * (1 - 0.35) in the middle of the tip.
    EXPECT_NEAR(int(word(22, 50) >> 8 & 0xFF), 166, 4);
    EXPECT_EQ(word(22, 50) & 0xFF, 0xFFu);
}

TEST_F(Stroke, ASecondPressBeforeTheEndIsRefused)
{
    press(20, 50);
    drag(120, 50);
    release(120, 50);
    ASSERT_EQ(canvas->mDrawFinishedFlag, 0); // the end has not come through the event loop yet
    takeSounds();
    press(20, 90);
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"beep"});
    drag(120, 90);
    release(120, 90);
    settle();
    EXPECT_FALSE(painted(70, 90));
    EXPECT_TRUE(painted(70, 50));
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
}

TEST_F(Stroke, AnotherToolFinishesTheStrokeFirst)
{
    press(20, 50);
    drag(120, 50);
    release(120, 50);
    ASSERT_EQ(canvas->mDrawFinishedFlag, 0);
    canvas->setTool(7);
    press(70, 50);
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
    release(70, 50);
    settle();
    EXPECT_TRUE(painted(110, 50));
}

TEST_F(Stroke, AToolChosenInMidStrokeEndsIt)
{
    press(20, 50);
    drag(100, 50);
    key(Qt::Key_5, "5");
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    drag(100, 90);
    release(100, 90);
    settle();
    EXPECT_TRUE(painted(60, 50));
    EXPECT_FALSE(painted(100, 80));
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
}

TEST_F(Stroke, BuffersMayBeReplacedInMidStroke)
{
    press(20, 50);
    drag(100, 50);
    canvas->newImageForMeWithSize({64, 64});
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
    drag(30, 30);
    release(30, 30);
    settle();
    EXPECT_EQ(canvas->mBitmapRep->pixelsWide(), 64);
}

TEST_F(Stroke, TheCanvasMayGoInMidStroke)
{
    press(20, 50);
    for (int i = 0; i < 100; ++i) drag(float(20 + i), 50);
    canvas.reset();
    QApplication::processEvents();
    SUCCEED();
}

TEST_F(Stroke, GrowsTheUndoAreaAsGiven)
{
    press(100, 60);
    drag(110, 60);
    drag(130, 20);
    release(130, 20);
    settle();
    // Margin 11 + 10; the first segment only brings its first point, (100, 40) from the bottom.
    EXPECT_EQ(canvas->mUndoRect.left, 100 - 21);
    EXPECT_EQ(canvas->mUndoRect.top, 40 - 21);
    EXPECT_EQ(canvas->mUndoRect.right, 130 + 21);
    EXPECT_EQ(canvas->mUndoRect.bottom, 80 + 21);
    EXPECT_TRUE(has(takeLogLines(), "takeSnapshot: mUndoRect: 79 19 121 61"));
}

TEST_F(Stroke, TheUndoAreaNeverBeginsBelowZero)
{
    press(5, 95);
    drag(6, 96);
    drag(7, 97);
    release(7, 97);
    settle();
    EXPECT_EQ(canvas->mUndoRect.left, 0);
    EXPECT_EQ(canvas->mUndoRect.top, 0);
}

TEST_F(Stroke, ControlTracesItsRefreshesInBlue)
{
    canvas->setBrushSize(3); // no stamps, only the trace
    hold(kControlKey);
    press(50, 50);
    drag(100, 50);
    for (int i = 0; i < 6; ++i) drag(float(101 + i), 50);
    release(106, 50);
    settle();
    constexpr std::uint32_t kBlueWord = 0xFF0000FF;
    EXPECT_GT(countWords(kBlueWord), 100u);
}

TEST_F(Stroke, OptionStillShowsAllInTheEnd)
{
    hold(kOptionKey);
    press(20, 50);
    for (int x = 25; x <= 180; x += 5) drag(float(x), 50);
    release(180, 50);
    settle();
    EXPECT_TRUE(painted(100, 50));
}

TEST_F(Stroke, TheFeedTakesHoverMovesWhenAReleaseWasRefused)
{
    press(20, 50);
    drag(60, 50);
    canvas->mUndoThreadRunning = true;
    release(80, 50);
    canvas->mUndoThreadRunning = false;
    EXPECT_EQ(canvas->mIsMouseDown, 1);
    move(100, 50);
    waitForPoints(4);
    press(100, 50);
    EXPECT_TRUE(has(takeSounds(), "beep"));
    release(100, 50);
    settle();
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
    EXPECT_TRUE(painted(90, 50));
}

TEST_F(Stroke, StaysCleanUnderRedrawsAtSeveralZooms)
{
    // With a sanitizer this is where a race between stamping and drawing would show. Few enough rows that Qt's painter
    // does not call its own pool, whose locks a thread checker cannot see.
    newImage(200, 45);
    canvas->show();
    std::mt19937 random(11);
    for (const float zoom : {1.0f, 0.5f, 2.0f}) {
        canvas->setZoom(zoom);
        press(20, 50);
        for (int i = 0; i < 200; ++i) {
            drag(float(random() % 220) - 10, float(random() % 65) - 10);
            canvas->repaint(QRect(0, 0, 100, 45));
            if (i % 20 == 0) QApplication::processEvents();
        }
        release(50, 50);
        settle();
    }
    const BitmapView pixels = canvas->mBitmapRep->view();
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x)
            for (int c = 1; c < 4; ++c) ASSERT_LE(pixels.pixel(x, y)[c], pixels.pixel(x, y)[0]);
}

} // namespace
