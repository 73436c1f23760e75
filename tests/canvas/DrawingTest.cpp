// SPDX-License-Identifier: GPL-3.0-or-later
/// What the canvas shows: picture, grey behind it, zoom, marquee, ants, floating selection.
#include "codecs/ColourProfiles.h"
#include "support/ProcessLook.h"
#include "support/ToolFixture.h"
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <array>

using namespace zp;
using namespace zp::test;

class Drawing : public ToolTest
{
protected:
    void SetUp() override {}
    QImage shown() { return canvas->grab().toImage().convertToFormat(QImage::Format_RGB32); }
};

TEST_F(Drawing, AnImageOfNoSizeDrawsNothing)
{
    canvas->setFixedSize(10, 10);
    QImage paper(10, 10, QImage::Format_RGB32);
    paper.fill(0xFF112233);
    QPainter painter(&paper);
    canvas->drawRect(painter, QRect(0, 0, 10, 10), QPoint(0, 0), 1);
    painter.end();
    EXPECT_EQ(paper.pixel(5, 5), 0xFF112233);
}

TEST_F(Drawing, TransparentPixelsShowGrey)
{
    makeImage(8, 4);
    setPixel(1, 0, word(255, 10, 20, 30));
    setPixel(2, 0, word(128, 128, 0, 0));
    const QImage seen = shown();
    EXPECT_EQ(seen.pixel(0, 0), 0xFF808080);
    EXPECT_EQ(seen.pixel(1, 0), 0xFF0A141E);
    EXPECT_EQ(qRed(seen.pixel(2, 0)), 128 + 64);
    EXPECT_NEAR(qGreen(seen.pixel(2, 0)), 64, 1);
}

TEST_F(Drawing, APictureLooksAsItsProfileSays)
{
    // The same red in the primaries of wide screens and in those of ordinary ones.
    const codec::ProfileBytes wide = codec::profileFromPNG({.gamma = 1 / 2.2,
                                                            .hasPrimaries = true,
                                                            .white = {0.3127, 0.3290},
                                                            .red = {0.680, 0.320},
                                                            .green = {0.265, 0.690},
                                                            .blue = {0.150, 0.060}});
    const std::uint32_t red = word(255, 187, 61, 52);
    makeImage(8, 4);
    fillImage(red);
    const QRgb plain = shown().pixel(3, 2);
    EXPECT_EQ(plain, qRgb(187, 61, 52)) << "without a profile the numbers are the screen's";
    edit([&](Edit& e) { e.picture().writableBitmap()->properties.iccProfile = wide; });
    perform("rotateCW:"); // another bitmap, the same profile
    const QRgb seen = shown().pixel(3, 2);
    EXPECT_NEAR(qRed(seen), 205, 3);
    EXPECT_NEAR(qGreen(seen), 42, 4);
    EXPECT_EQ(pixel(3, 2), red) << "the picture's own numbers stay";
    const Color asShown = canvas->asShown({187 / 255.0f, 61 / 255.0f, 52 / 255.0f, 0.5f});
    EXPECT_EQ(qRgb(int(std::lround(asShown.red * 255)), int(std::lround(asShown.green * 255)),
                   int(std::lround(asShown.blue * 255))),
              seen);
    EXPECT_EQ(asShown.alpha, 0.5f);
    QImage small(3, 2, QImage::Format_ARGB32);
    small.fill(qRgba(187, 61, 52, 255));
    small.setPixel(1, 1, qRgba(187, 61, 52, 128));
    const QImage smallShown = canvas->asShown(small);
    EXPECT_EQ(smallShown.pixel(0, 0), seen);
    EXPECT_EQ(qAlpha(smallShown.pixel(1, 1)), 128) << "what is clear stays so";
    // On a screen with those very primaries nothing has to be done.
    canvas->setScreenProfile(wide);
    EXPECT_EQ(shown().pixel(3, 2), plain);
    canvas->setScreenProfile({});
    EXPECT_EQ(shown().pixel(3, 2), seen);
}

TEST_F(Drawing, ZoomedInPixelsAreCrispSquares)
{
    makeImage(4, 4);
    fillImage(kBlackWord);
    setPixel(1, 2, kWhiteWord);
    canvas->setZoom(4);
    ASSERT_EQ(canvas->size(), QSize(16, 16));
    const QImage seen = shown();
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            ASSERT_EQ(seen.pixel(x, y), (x / 4 == 1 && y / 4 == 2) ? 0xFFFFFFFF : 0xFF000000) << x << "," << y;
}

TEST_F(Drawing, ZoomedOutPixelsAreAveraged)
{
    makeImage(4, 4);
    paintImage([](int x, int y) { return (x + y) % 2 ? kWhiteWord : kBlackWord; });
    canvas->setZoom(0.5f);
    const QImage seen = shown();
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x) EXPECT_NEAR(qRed(seen.pixel(x, y)), 127, 1);
}

TEST_F(Drawing, TheZoomIsAskedForInPercent)
{
    makeImage(10, 10);
    for (const auto& [percent, zoom] : {std::pair{50.0, 0.5f}, {12.5, 0.125f}, {0.0, 0.125f}, {200.0, 2.0f}}) {
        canvas->zoom(percent);
        EXPECT_EQ(document->view().zoom(), zoom);
    }
    EXPECT_EQ(canvas->size(), QSize(20, 20));
    document->setRetina(true);
    EXPECT_EQ(document->view().effectiveZoom(), 1.0f);
    EXPECT_EQ(canvas->size(), QSize(10, 10));
}

TEST_F(Drawing, TheMarqueeFollowsPointerAndKeys)
{
    makeImage(60, 60);
    press(10, 10);
    drag(4, 30);
    EXPECT_EQ(outlineBounds(), makeRect(4, 10, 6, 20));
    EXPECT_EQ(outline()->lineWidth(), 1);
    const std::uint64_t version = selection().version();
    shown();
    EXPECT_EQ(selection().version(), version) << "drawing changes nothing";

    hold(kCommandKey);
    key(Qt::Key_Meta);
    EXPECT_EQ(outlineBounds(), makeRect(4, 10, 6, 6));

    hold(kControlKey);
    key(Qt::Key_Control);
    EXPECT_EQ(outline()->elementCount(), 6) << "a move, four curves, a close";
    release(4, 30);
}

TEST_F(Drawing, AntsAreFiveScreenPixelsLongAtEveryZoom)
{
    makeImage(40, 40);
    fillImage(word(255, 90, 90, 90));
    select(makeRect(10, 10, 20, 20));
    const auto runs = [&](int row, int from, int to) {
        const QImage seen = shown();
        std::string text;
        for (int x = from; x < to; ++x)
            text += seen.pixel(x, row) == 0xFF000000 ? '#' : seen.pixel(x, row) == 0xFFFFFFFF ? 'o' : '.';
        return text;
    };
    EXPECT_EQ(runs(10, 10, 30), "#####ooooo#####ooooo");
    edit([](Edit& e) { e.selection().advanceAnts(); });
    EXPECT_EQ(runs(10, 10, 30), "ooo#####ooooo#####oo");
    edit([](Edit& e) {
        while (e.selection().phase() > 0) e.selection().advanceAnts();
    });
    canvas->setZoom(2);
    EXPECT_EQ(runs(20, 20, 40), "#####ooooo#####ooooo");
}

TEST_F(Drawing, AFloatingSelectionShowsWhatAnchoringWillWrite)
{
    makeImage(50, 40);
    paintImage([](int x, int y) { return word(255, x * 5, y * 6, x + y); });
    select(BezierPath::withOvalInRect(makeRect(5, 6, 20, 17)));
    lift();
    performNumbers("nudge", {13, 9});
    const QImage floating = shown();
    perform("anchorSelection");
    settle();
    const QImage anchored = shown();
    int compared = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 50; ++x) {
            const QRgb f = floating.pixel(x, y);
            if (f == 0xFF000000 || f == 0xFFFFFFFF) continue; // ants: the dashes are not part of the picture
            ASSERT_EQ(f, anchored.pixel(x, y)) << x << "," << y;
            ++compared;
        }
    EXPECT_GT(compared, 1900);
}

TEST_F(Drawing, AZoomedOutFloatingSelectionReachesItsEdges)
{
    makeImage(64, 64);
    fillImage(kBlackWord);
    BezierPath all = BezierPath::withRect(makeRect(0, 0, 64, 64));
    all.setLineWidth(1);
    select(all);
    lift();
    // The picture under it turns white; the floating copy stays black and must cover all of it.
    fillImage(kWhiteWord);
    for (const float zoom : {0.3f, 0.25f, 0.7f}) {
        canvas->setZoom(zoom);
        const QImage seen = shown();
        int white = 0;
        for (int y = 1; y + 1 < seen.height(); ++y)
            for (int x = 1; x + 1 < seen.width(); ++x) white += qRed(seen.pixel(x, y)) > 10;
        EXPECT_EQ(white, 0) << zoom;
    }
}

TEST_F(Drawing, ATickOfTheAntsDirtiesTheOutlineNotItsInside)
{
    makeImage(1000, 1000);
    canvas->resize(1000, 1000);
    canvas->show();
    ASSERT_TRUE(eventually([this] { return canvas->isVisible(); }));
    QApplication::processEvents();
    select(makeRect(100, 100, 800, 800));
    QApplication::processEvents();

    struct Watch : QObject {
        QRegion painted;
        bool eventFilter(QObject*, QEvent* e) override
        {
            if (e->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(e)->region();
            return false;
        }
    } watch;
    canvas->installEventFilter(&watch);
    emit document->antsMoved();
    QApplication::processEvents();
    canvas->removeEventFilter(&watch);
    EXPECT_TRUE(watch.painted.contains(QPoint(100, 500)));
    EXPECT_TRUE(watch.painted.contains(QPoint(500, 899)));
    EXPECT_FALSE(watch.painted.contains(QPoint(500, 500)));
    canvas->hide();
}

/// Whoever goes home leaves the ants marching.
class AntsLong : public Drawing
{
protected:
    void march(int ticks)
    {
        makeImage(200, 150);
        canvas->show();
        ASSERT_TRUE(eventually([this] { return canvas->isVisible(); }));
        select(makeRect(20, 20, 120, 90));
        qint64 atHalf = 0;
        for (int tick = 0; tick < ticks; ++tick) {
            edit([](Edit& e) { e.selection().advanceAnts(); });
            emit document->antsMoved();
            if (tick % 50 == 0) QApplication::processEvents();
            if (tick == ticks / 2) atHalf = residentBytes();
        }
        // The program's own ticks come among these: which phase it is, is chance.
        EXPECT_TRUE(std::ranges::count(std::array{0.f, 2.5f, 5.f, 7.5f}, selection().phase())) << selection().phase();
        if (kMemoryTells) {
            EXPECT_LE(residentBytes(), atHalf + (qint64{4} << 20));
        }
        canvas->hide();
    }
};
using Ants = AntsLong;

TEST_F(Ants, MarchForAQuarterOfAnHour) { march(15 * 60 * 5); }
TEST_F(AntsLong, MarchForADay) { march(24 * 60 * 60 * 5); }

TEST_F(Drawing, AStrokeIsShownBeforeItIsThereAsItWillBe)
{
    for (const Tool tool : {Tool::Pencil, Tool::Eraser}) {
        SCOPED_TRACE(int(tool));
        newImage(60, 40);
        document->setPaintColor({1, 0, 0, 1});
        document->setBrushSize(6.5f);
        select(makeRect(10.5f, 5, 30, 30));
        choose(tool);
        press(5, 20);
        drag(25, 12);
        drag(55, 30);
        const QImage before = shown();
        EXPECT_EQ(countPixels(kWhiteWord), 2400u);
        release(55, 30);
        settle();
        EXPECT_LT(countPixels(kWhiteWord), 2400u);
        const QImage after = shown();
        const auto isAnt = [](QRgb p) { return p == 0xFF000000; };
        int compared = 0;
        for (int y = 6; y < 34; ++y)
            for (int x = 12; x < 39; ++x) { // inside the line of ants; the ring of the tool is beside them
                if (isAnt(before.pixel(x, y)) || isAnt(after.pixel(x, y))) continue;
                ASSERT_EQ(before.pixel(x, y), after.pixel(x, y)) << x << ", " << y;
                ++compared;
            }
        EXPECT_GT(compared, 600);
        dropSelection();
    }
}
