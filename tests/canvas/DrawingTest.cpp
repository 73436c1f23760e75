// SPDX-License-Identifier: GPL-3.0-or-later
/// What the canvas shows: picture, grey behind it, zoom, marquee, ants, floating selection.
#include "desktop/KeyModifiers.h"
#include "support/CanvasFixture.h"
#include <QComboBox>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>

using namespace zp;
using zp::test::word;

class Drawing : public zp::test::CanvasTest
{
protected:
    ~Drawing() override { setScriptedKeyModifiers(std::nullopt); }
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

TEST_F(Drawing, ZoomedInPixelsAreCrispSquares)
{
    makeImage(4, 4);
    fillImage(word(255, 0, 0, 0));
    setPixel(1, 2, word(255, 255, 255, 255));
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
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x) setPixel(x, y, (x + y) % 2 ? word(255, 255, 255, 255) : word(255, 0, 0, 0));
    canvas->setZoom(0.5f);
    const QImage seen = shown();
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x) EXPECT_NEAR(qRed(seen.pixel(x, y)), 127, 1);
}

TEST_F(Drawing, TheZoomPopUpsTitleIsANumber)
{
    makeImage(10, 10);
    QComboBox zooms;
    for (const char* title : {"50%", "12.5 %", "200%", "100"}) zooms.addItem(title);
    for (const auto& [index, zoom] : {std::pair{0, 0.5f}, {1, 0.125f}, {2, 2.0f}, {3, 1.0f}}) {
        zooms.setCurrentIndex(index);
        canvas->zoom(&zooms);
        EXPECT_EQ(canvas->mZoom, zoom);
    }
    zooms.setCurrentIndex(2);
    canvas->m2xRetina = true;
    canvas->zoom(&zooms);
    EXPECT_EQ(canvas->effectiveZoom(), 1.0f);
    EXPECT_EQ(canvas->size(), QSize(10, 10));
}

TEST_F(Drawing, TheMarqueeGrowsFromTheDrag)
{
    makeImage(60, 60);
    canvas->mIsMouseDown = 1;
    canvas->mPt1 = {10, 10};
    canvas->mPt2 = {4, 30};
    shown();
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(4, 10, 6, 20));
    EXPECT_EQ(canvas->mSelectionPath->lineWidth(), 1);

    setScriptedKeyModifiers(kCommandKey);
    shown();
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(4, 10, 6, 6));

    setScriptedKeyModifiers(kControlKey);
    shown();
    EXPECT_EQ(canvas->mSelectionPath->elementCount(), 6) << "a move, four curves, a close";
    canvas->mIsMouseDown = 0;
}

TEST_F(Drawing, AntsAreFiveScreenPixelsLongAtEveryZoom)
{
    makeImage(40, 40);
    fillImage(word(255, 90, 90, 90));
    canvas->mSelectionPath = BezierPath::withRect(makeRect(10, 10, 20, 20));
    const auto runs = [&](int row, int from, int to) {
        const QImage seen = shown();
        std::string text;
        for (int x = from; x < to; ++x)
            text += seen.pixel(x, row) == 0xFF000000 ? '#' : seen.pixel(x, row) == 0xFFFFFFFF ? 'o' : '.';
        return text;
    };
    EXPECT_EQ(runs(10, 10, 30), "#####ooooo#####ooooo");
    canvas->mSelectionPhase = 2.5f;
    EXPECT_EQ(runs(10, 10, 30), "ooo#####ooooo#####oo");
    canvas->mSelectionPhase = 0;
    canvas->setZoom(2);
    EXPECT_EQ(runs(20, 20, 40), "#####ooooo#####ooooo");
}

TEST_F(Drawing, AFloatingSelectionShowsWhatAnchoringWillWrite)
{
    makeImage(50, 40);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 50; ++x)
            setPixel(x, y, word(255, std::uint8_t(x * 5), std::uint8_t(y * 6), std::uint8_t(x + y)));
    canvas->mSelectionPath = BezierPath::withOvalInRect(makeRect(5, 6, 20, 17));
    canvas->floatSelection();
    const AffineTransform shift{1, 0, 0, 1, 13, 9};
    canvas->mSelectionPath->transform(shift);
    canvas->mTransformRecord.position = canvas->mTransformRecord.position + Point{13, 9};
    const std::optional<BezierPath> outline = canvas->mSelectionPath;
    // Without the ants over it: the dashes are not part of the picture.
    const QImage floating = shown();
    canvas->anchorSelection();
    settle();
    const QImage anchored = shown();
    int compared = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 50; ++x) {
            const QRgb f = floating.pixel(x, y);
            if (f == 0xFF000000 || f == 0xFFFFFFFF) continue; // ants
            ASSERT_EQ(f, anchored.pixel(x, y)) << x << "," << y;
            ++compared;
        }
    EXPECT_GT(compared, 1900);
}

TEST_F(Drawing, AZoomedOutFloatingSelectionReachesItsEdges)
{
    makeImage(64, 64);
    fillImage(word(255, 0, 0, 0));
    canvas->mSelectionPath = BezierPath::withRect(makeRect(0, 0, 64, 64));
    canvas->floatSelection();
    // The picture under it turns white; the floating copy stays black and must cover all of it.
    fillImage(word(255, 255, 255, 255));
    canvas->mSelectionPath->setLineWidth(1);
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
    ASSERT_TRUE(zp::test::eventually([&] { return canvas->isVisible(); }));
    QApplication::processEvents();
    canvas->mSelectionPath = BezierPath::withRect(makeRect(100, 100, 800, 800));
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
    canvas->selectionTimerFired();
    QApplication::processEvents();
    canvas->removeEventFilter(&watch);
    EXPECT_TRUE(watch.painted.contains(QPoint(100, 500)));
    EXPECT_TRUE(watch.painted.contains(QPoint(500, 899)));
    EXPECT_FALSE(watch.painted.contains(QPoint(500, 500)));
    canvas->hide();
}
