// SPDX-License-Identifier: GPL-3.0-or-later
/// The brush: capture and drawing threads, from mouse event to painted pixels.
#include "support/ToolFixture.h"
#include <cstring>
#include <random>

namespace
{

using namespace zp;
using namespace zp::test;

class Stroke : public ToolTest
{
protected:
    using ToolTest::ToolTest;

    void SetUp() override
    {
        ToolTest::SetUp();
        choose(Tool::Brush);
        document->setPaintColor({1, 0, 0, 1});
        document->setBrushSize(20);
    }
    const BrushStroke& stroke() const { return gesture().stroke(); }
    bool painted(int x, int y) const { return pixel(x, y) != kWhiteWord; }
    bool anythingPainted() const
    {
        return countPixels(kWhiteWord) != std::size_t(picture().width()) * std::size_t(picture().height());
    }
    void waitForPoints(std::uint32_t count)
    {
        QElapsedTimer clock;
        clock.start();
        while (stroke().pointCount() < count && clock.elapsed() < 5000) QThread::usleep(100);
        ASSERT_GE(stroke().pointCount(), count);
    }
};

TEST_F(Stroke, PaintsAlongTheDragAndTakesOneSnapshot)
{
    const int before = history().newest();
    press(20, 50);
    EXPECT_FALSE(stroke().isDrawn());
    for (int x = 25; x <= 180; x += 5) drag(float(x), 50);
    release(180, 50);
    settle();
    EXPECT_TRUE(stroke().isDrawn());
    EXPECT_EQ(history().newest(), before + 1);
    for (int x = 20; x <= 175; ++x) EXPECT_TRUE(painted(x, 50)) << x;
    EXPECT_FALSE(painted(100, 35));
    EXPECT_FALSE(painted(100, 65));
    const Lines lines = takeLogLines();
    EXPECT_TRUE(has(lines, "w=20 h=20"));
    EXPECT_TRUE(has(lines, "pollThread         1"));
    EXPECT_TRUE(has(lines, "pollThread finish"));
    EXPECT_TRUE(has(lines, "draw thread finish"));
}

TEST_F(Stroke, KeepsEverySampleInOrderWithTheOriginAtTheBottom)
{
    std::mt19937 random(5);
    const Point unused = stroke().pointAt(0);
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
    ASSERT_EQ(stroke().pointCount(), sent.size());
    for (std::size_t i = 0; i < sent.size(); ++i) {
        ASSERT_EQ(stroke().pointAt(std::uint32_t(i) + 1).x, sent[i].x) << i;
        ASSERT_EQ(stroke().pointAt(std::uint32_t(i) + 1).y, 100 - sent[i].y) << i;
    }
    const Point first = stroke().pointAt(0);
    EXPECT_EQ(std::memcmp(&unused, &first, sizeof unused), 0) << "the first slot is never written";
}

TEST_F(Stroke, PressAndReleaseWithoutMovementCapturesOnePointAndTakesASnapshot)
{
    const int before = history().newest();
    press(50, 50);
    release(50, 50);
    settle();
    EXPECT_EQ(stroke().pointCount(), 1u);
    EXPECT_FALSE(anythingPainted());
    EXPECT_EQ(history().newest(), before + 1);
    const Lines lines = takeLogLines();
    EXPECT_TRUE(has(lines, "waiting... 0.05"));
    EXPECT_TRUE(has(lines, "waiting... 0.1"));
    EXPECT_TRUE(has(lines, "draw thread finish"));
}

TEST_F(Stroke, APensPressureSetsSizeOrOpacityWhereItIsAskedTo)
{
    const auto lineWith = [this](PenPressure what, float first, float last) {
        fillImage(kWhiteWord);
        document->setPenPressure(what);
        document->setPressure(first);
        press(20, 50);
        document->setPressure(last);
        for (int x = 25; x <= 180; x += 5) drag(float(x), 50);
        release(180, 50);
        settle();
        document->setPressure(1);
    };
    const auto heightAt = [this](int x) {
        int count = 0;
        for (int y = 0; y < picture().height(); ++y) count += painted(x, y);
        return count;
    };
    const auto darknessAt = [this](int x) { return 255 - channelOf(pixel(x, 50), 2); };
    lineWith(PenPressure::Nothing, 1, 1);
    const std::vector<std::uint32_t> mouse = allPixels();
    const int height = heightAt(100), darkness = darknessAt(100);
    lineWith(PenPressure::Nothing, 0.2f, 0.4f);
    EXPECT_EQ(allPixels(), mouse) << "as given a pen paints as a mouse does";
    lineWith(PenPressure::Size, 1, 1);
    EXPECT_EQ(allPixels(), mouse) << "the whole pressure is the whole size";
    lineWith(PenPressure::Opacity, 1, 1);
    EXPECT_EQ(allPixels(), mouse);
    lineWith(PenPressure::Size, 0.5f, 0.5f);
    EXPECT_NEAR(heightAt(100), height / 2, 2);
    EXPECT_TRUE(painted(100, 50)) << "about the same middle";
    lineWith(PenPressure::Opacity, 0.25f, 0.25f);
    EXPECT_LE(std::abs(heightAt(100) - height), 2);
    EXPECT_LT(darknessAt(100), darkness);
    EXPECT_GT(darknessAt(100), 0);
    lineWith(PenPressure::Size, 0, 0);
    EXPECT_FALSE(anythingPainted());
}

TEST_F(Stroke, PressureChangesBetweenTwoSamplesLittleByLittle)
{
    document->setBrushSize(40);
    document->setPenPressure(PenPressure::Size);
    document->setPressure(0.1f);
    press(20, 50);
    document->setPressure(1);
    drag(180, 50);
    release(180, 50);
    settle();
    const auto heightAt = [this](int x) {
        int count = 0;
        for (int y = 0; y < picture().height(); ++y) count += painted(x, y);
        return count;
    };
    EXPECT_LT(heightAt(40), heightAt(100));
    EXPECT_LT(heightAt(100), heightAt(160));
    document->setPressure(1);
}

TEST_F(Stroke, APointerThatStandsStillAddsNoPoints)
{
    press(50, 50);
    drag(60, 50);
    for (int i = 0; i < 20; ++i) drag(60, 50);
    waitForPoints(2);
    QThread::msleep(250);
    EXPECT_EQ(stroke().pointCount(), 2u);
    EXPECT_FALSE(stroke().isDrawn());
    const Lines lines = takeLogLines();
    EXPECT_GE(std::count(lines.begin(), lines.end(), "waiting... 0.1"), 2);
    release(60, 50);
    settle();
}

TEST_F(Stroke, BrushesWhoseSpacingRoundsToZeroLeaveNoPaint)
{
    for (const float size : {1.0f, 2.0f, 3.0f, 3.3f}) {
        document->setBrushSize(size);
        press(10, 50);
        drag(150, 50);
        release(150, 50);
        settle();
        EXPECT_FALSE(anythingPainted()) << size;
    }
    document->setBrushSize(3.4f);
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
    const ConstBitmapView pixels = picture().pixels();
    int left = 200, right = -1;
    for (int x = 0; x < 200; ++x)
        if (pixels.row(50)[x] != kWhiteWord) left = std::min(left, x), right = std::max(right, x);
    EXPECT_NEAR(left, 12, 1);
    EXPECT_NEAR(right, 31, 1);
}

TEST_F(Stroke, OpacityIsSeventyPercentOfTheColoursAlpha)
{
    document->setPaintColor({0, 0, 0, 0.5f});
    press(20, 50);
    drag(22, 50);
    release(22, 50);
    settle();
    // One stamp over white: 255 * (1 - 0.35) in the middle of the tip.
    EXPECT_NEAR(channelOf(pixel(22, 50), 1), 166, 4);
    EXPECT_EQ(channelOf(pixel(22, 50), 0), 255);
}

TEST_F(Stroke, ASecondPressBeforeTheEndIsRefused)
{
    press(20, 50);
    drag(120, 50);
    release(120, 50);
    ASSERT_FALSE(stroke().isDrawn()); // the end has not come through the event loop yet
    takeSounds();
    press(20, 90);
    EXPECT_EQ(takeSounds(), Lines{"beep"});
    drag(120, 90);
    release(120, 90);
    settle();
    EXPECT_FALSE(painted(70, 90));
    EXPECT_TRUE(painted(70, 50));
    EXPECT_TRUE(stroke().isDrawn());
}

TEST_F(Stroke, AnotherToolFinishesTheStrokeFirst)
{
    press(20, 50);
    drag(120, 50);
    release(120, 50);
    ASSERT_FALSE(stroke().isDrawn());
    choose(Tool::Eyedropper);
    press(70, 50);
    EXPECT_TRUE(stroke().isDrawn());
    release(70, 50);
    settle();
    EXPECT_TRUE(painted(110, 50));
}

TEST_F(Stroke, AToolChosenInMidStrokeEndsIt)
{
    press(20, 50);
    drag(100, 50);
    key(Qt::Key_5, "5");
    EXPECT_FALSE(gesture().isMouseDown());
    drag(100, 90);
    release(100, 90);
    settle();
    EXPECT_TRUE(painted(60, 50));
    EXPECT_FALSE(painted(100, 80));
    EXPECT_TRUE(stroke().isDrawn());
}

TEST_F(Stroke, BuffersMayBeReplacedInMidStroke)
{
    press(20, 50);
    drag(100, 50);
    performNumbers("newImageForMeWithSize:", {64, 64});
    EXPECT_TRUE(stroke().isDrawn());
    drag(30, 30);
    release(30, 30);
    settle();
    EXPECT_EQ(picture().width(), 64);
}

TEST_F(Stroke, GrowsTheUndoAreaAsGiven)
{
    press(100, 60);
    drag(110, 60);
    drag(130, 20);
    release(130, 20);
    settle();
    // Margin 11 + 10; the first segment only brings its first point, (100, 40) from the bottom.
    EXPECT_EQ(stroke().undoRect().left, 100 - 21);
    EXPECT_EQ(stroke().undoRect().top, 40 - 21);
    EXPECT_EQ(stroke().undoRect().right, 130 + 21);
    EXPECT_EQ(stroke().undoRect().bottom, 80 + 21);
    EXPECT_TRUE(has(takeLogLines(), "takeSnapshot: mUndoRect: 79 19 121 61"));
}

TEST_F(Stroke, TheUndoAreaNeverBeginsBelowZero)
{
    press(5, 95);
    drag(6, 96);
    drag(7, 97);
    release(7, 97);
    settle();
    EXPECT_EQ(stroke().undoRect().left, 0);
    EXPECT_EQ(stroke().undoRect().top, 0);
}

TEST_F(Stroke, ControlTracesItsRefreshesInBlue)
{
    document->setBrushSize(3); // no stamps, only the trace
    hold(kControlKey);
    press(50, 50);
    drag(100, 50);
    for (int i = 0; i < 6; ++i) drag(float(101 + i), 50);
    release(106, 50);
    settle();
    EXPECT_GT(countPixels(word(255, 0, 0, 255)), 100u);
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
    EXPECT_TRUE(isPremultiplied(picture().pixels()));
}

TEST_F(Stroke, TheDocumentMayGoInMidStroke)
{
    press(20, 50);
    for (int i = 0; i < 100; ++i) drag(float(20 + i), 50);
    const std::shared_ptr<const BitmapRep> bitmap = picture().bitmap();
    canvas.reset();
    document.reset();
    QApplication::processEvents();
    EXPECT_EQ(bitmap.use_count(), 1) << "nobody holds the picture any more";
}

TEST_F(Stroke, TheSelectionLetsThroughAsMuchAsItCovers)
{
    // Half of column 100 is selected.
    select(makeRect(0, 0, 100.5f, 100));
    document->setBrushSize(30);
    gestureThrough({{60, 50}, {140, 50}});
    settle();
    const int free = 255 - channelOf(pixel(99, 50), 2), half = 255 - channelOf(pixel(100, 50), 2);
    EXPECT_GT(free, 200) << "of red over white, green is what the paint takes away";
    EXPECT_GT(half, free / 3);
    EXPECT_LT(half, free);
    for (int y = 0; y < 100; ++y)
        for (int x = 101; x < 200; ++x) ASSERT_FALSE(painted(x, y)) << x << ", " << y;
    EXPECT_TRUE(isPremultiplied(picture().pixels()));
}

/// A stroke that is soon full.
class ShortStroke : public Stroke
{
protected:
    static constexpr std::uint32_t kPoints = 50;
    ShortStroke() : Stroke(kPoints) {}
};

TEST_F(ShortStroke, EndsWhenItIsFullThoughTheButtonIsStillDown)
{
    EXPECT_EQ(stroke().capacity(), kPoints);
    press(20, 50);
    for (int i = 1; i < 150; ++i) drag(float(20 + i), 50);
    EXPECT_TRUE(eventually([this] { return stroke().isDrawn(); }));
    EXPECT_EQ(stroke().pointCount(), kPoints);
    settle();
    expectNumbers(1, 1);
    EXPECT_TRUE(painted(40, 50));
    EXPECT_FALSE(painted(120, 50));
    drag(190, 90);
    release(190, 90);
    settle();
    expectNumbers(1, 1);
    // And the next one is a whole stroke again.
    gestureThrough({{150, 80}, {190, 80}});
    settle();
    EXPECT_TRUE(painted(170, 80));
    expectNumbers(2, 2);
}

} // namespace
