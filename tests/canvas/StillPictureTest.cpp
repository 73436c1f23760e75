// SPDX-License-Identifier: GPL-3.0-or-later
/// What is kept of the picture on screen: the words that drawing it anew gives, and no older ones.
#include "canvas/StillPicture.h"
#include "drawing/ScreenRenderer.h"
#include "support/ToolFixture.h"
#include <QElapsedTimer>
#include <QImage>
#include <algorithm>
#include <random>

using namespace zp;
using namespace zp::test;

namespace
{

class StillPictureDrawing : public ToolTest
{
protected:
    void SetUp() override
    {
        makeImage(900, 700);
        paintImage([](int x, int y) { return word((x ^ y) & 64 ? 255 : 100, x % 100, y % 100, (x + y) % 100); });
    }
    void expectAsRendered(PixelBox box, const StillPicture::Scene& scene)
    {
        std::vector<std::uint32_t> kept(std::size_t(box.width()) * std::size_t(box.height())), rendered(kept);
        still.draw({kept.data(), box.width(), box}, picture(), scene);
        renderToScreen(picture().pixels(), rendered.data(), box.width(), box, scene.scale, scene.outside);
        ASSERT_EQ(kept, rendered) << box.x0 << "," << box.y0 << " to " << box.x1 << "," << box.y1 << " at "
                                  << scene.scale;
    }
    StillPicture still;
};

TEST_F(StillPictureDrawing, GivesTheWordsOfARendering)
{
    std::mt19937 random(7);
    const auto between = [&](int low, int high) { return low + int(random() % std::uint32_t(high - low + 1)); };
    for (const double scale : {0.5, 0.25, 0.3})
        for (const PixelBox visible : {PixelBox{0, 0, 460, 360}, PixelBox{13, 70, 300, 201}, PixelBox{5, 5, 6, 6}})
            for (int i = 0; i < 40; ++i) {
                const int x = between(visible.x0, visible.x1 - 1), y = between(visible.y0, visible.y1 - 1);
                expectAsRendered({x, y, between(x + 1, visible.x1), between(y + 1, visible.y1)},
                                 {visible, scale, 0xFF102030});
            }
}

TEST_F(StillPictureDrawing, FollowsThePicture)
{
    const StillPicture::Scene scene{{0, 0, 225, 175}, 0.25, 0xFF000000};
    expectAsRendered(scene.visible, scene);
    fillBox({100, 100, 300, 200}, kRedWord);
    expectAsRendered({20, 20, 90, 60}, scene);
    makeImage(900, 700);
    expectAsRendered(scene.visible, scene);
}

TEST_F(StillPictureDrawing, DrawsWhatCannotBeSeen)
{
    expectAsRendered({-10, 20, 200, 170}, {{0, 0, 100, 100}, 0.25, 0xFF000000});
    expectAsRendered({0, 0, 20, 20}, {{}, 0.25, 0xFF000000});
}

TEST_F(StillPictureDrawing, BeginsAnewAfterForgetting)
{
    const StillPicture::Scene scene{{0, 0, 225, 175}, 0.25, 0xFF000000};
    expectAsRendered({10, 10, 100, 100}, scene);
    still.forget();
    expectAsRendered({10, 10, 100, 100}, scene);
}

TEST_F(StillPictureDrawing, ADraggedPieceLeavesNoTraces)
{
    const auto seen = [this] { return canvas->grab().toImage().convertToFormat(QImage::Format_RGB32); };
    canvas->setZoom(0.25f);
    canvas->show();
    QApplication::processEvents();
    ASSERT_FALSE(canvas->visibleRegion().isEmpty());
    select(BezierPath::withRect(makeRect(100, 100, 300, 250)));
    lift();
    for (int i = 0; i < 12; ++i) {
        performNumbers("nudge", {i % 2 ? 37. : 22., double(i)});
        QApplication::processEvents();
    }
    const QImage dragged = seen();
    // A canvas that never saw the piece elsewhere.
    canvas = std::make_unique<ZPCanvas>(*document);
    ASSERT_TRUE(canvas->visibleRegion().isEmpty());
    EXPECT_EQ(dragged, seen());
}

TEST_F(StillPictureDrawing, IsPreparedPartByPart)
{
    const StillPicture::Scene scene{{0, 0, 227, 177}, 0.25, 0xFF000000};
    const auto parts = [&] {
        int count = 0;
        while (still.prepare(picture(), scene)) ++count;
        return count;
    };
    EXPECT_EQ(parts(), 3); // of 64 rows
    EXPECT_EQ(parts(), 0);
    expectAsRendered(scene.visible, scene);
    fillBox({100, 100, 300, 200}, kRedWord);
    expectAsRendered({0, 0, 227, 64}, scene); // makes the first part anew
    EXPECT_EQ(parts(), 2);
    expectAsRendered(scene.visible, scene);
}

TEST_F(StillPictureDrawing, AVeryLargePictureIsShownAsItIsHoweverLongItWasQuiet)
{
    makeImage(12500, 8100);
    canvas->setZoom(0.0625f);
    canvas->show();
    const auto quiet = [](int milliseconds) {
        for (QElapsedTimer clock; !clock.isValid() || clock.elapsed() < milliseconds;) {
            if (!clock.isValid()) clock.start();
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        }
    };
    const auto expectAsRendered = [&](const char* when) {
        const QImage seen = canvas->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QImage rendered(seen.size(), QImage::Format_RGB32);
        renderToScreen(picture().pixels(), reinterpret_cast<std::uint32_t*>(rendered.bits()),
                       rendered.bytesPerLine() / 4, {0, 0, rendered.width(), rendered.height()}, 0.0625,
                       canvas->palette().color(QPalette::Mid).rgb() | 0xFF000000);
        EXPECT_EQ(seen, rendered) << when;
    };
    for (const int milliseconds : {0, 430, 1500}) { // at once, while it is being prepared, when it is
        quiet(milliseconds);
        expectAsRendered("quiet");
        fillBox({1000 + milliseconds, 700, 9000, 1500 + milliseconds}, milliseconds ? kRedWord : kBlackWord);
        expectAsRendered("changed");
    }
    quiet(600);
    canvas->setZoom(1);
    document->setRetina(true);
    canvas->setZoom(0.0625f);
    EXPECT_EQ(canvas->width(), 391); // half of the smallest
}

} // namespace
