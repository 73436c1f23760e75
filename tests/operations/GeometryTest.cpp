// SPDX-License-Identifier: GPL-3.0-or-later
/// The geometric commands on the canvas: pixels, buffers, selection, snapshot; and the retina mode.
#include "canvas/ZPCanvas.h"
#include "desktop/Panels.h"
#include "undo/SnapshotStore.h"
#include <QAction>
#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

class Geometry : public testing::Test
{
protected:
    void TearDown() override
    {
        canvas.reset();
        SnapshotStore::shared().remove();
    }
    void settle()
    {
        while (canvas->anyWorkerRunning()) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QCoreApplication::processEvents();
    }
    /// Every pixel different.
    void make(int width, int height)
    {
        canvas->newImageWithSize({float(width), float(height)});
        settle();
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) canvas->mBitmapRep->view().row(y)[x] = word(x, y);
        canvas->mBitmapRep->properties.userComment = "kept";
    }
    static std::uint32_t word(int x, int y) { return std::uint32_t(x * 1000 + y) << 8 | 0xFF; }
    std::uint32_t at(int x, int y) { return canvas->mBitmapRep->view().row(y)[x]; }
    /// What each command leaves behind.
    void expectFresh(int width, int height)
    {
        EXPECT_EQ(canvas->mBitmapRep->pixelsWide(), width);
        EXPECT_EQ(canvas->mBitmapRep->pixelsHigh(), height);
        EXPECT_EQ(canvas->mBitmapRep->bytesPerRow(), 64 * (width / 16) + 64);
        EXPECT_EQ(canvas->imageSize(), (Size{float(width), float(height)}));
        EXPECT_TRUE(canvas->mImage->isFlipped());
        ASSERT_TRUE(canvas->mGWorld);
        EXPECT_EQ(canvas->mGWorld->pixels.data, canvas->mBitmapRep->bitmapData());
        EXPECT_EQ(canvas->mGWorld->bounds.right, width);
        EXPECT_EQ(canvas->mBitmap, canvas->mBitmapRep->bitmapData());
        EXPECT_EQ(canvas->mImage->drawn(), canvas->mBitmapRep.get());
        EXPECT_EQ(canvas->mBitmapRep->properties.userComment, "kept");
        EXPECT_FALSE(canvas->mSelectionPath);
        EXPECT_FALSE(canvas->mSelectionImage);
        EXPECT_FALSE(canvas->mSelectionTimer);
        ASSERT_TRUE(canvas->mSelectionMask);
        EXPECT_EQ(canvas->mSelectionMask->width, width);
        EXPECT_EQ(canvas->mSelectionMask->height, height);
        EXPECT_TRUE(canvas->mSelectionMaskClear);
        EXPECT_EQ(canvas->mSelectionMask->row(height - 1)[width - 1], 255);
        settle();
        EXPECT_EQ(canvas->mUndoIndex, 1) << "one new snapshot";
    }
    void selectSomething()
    {
        canvas->mSelectionPath = BezierPath::withRect({{1, 0}, {2, 2}});
        canvas->mSelectionImage = std::make_shared<Image>(Size{2, 2});
        canvas->restartSelectionTimer();
    }
    std::unique_ptr<ZPCanvas> canvas = std::make_unique<ZPCanvas>();
};

TEST_F(Geometry, CounterClockwise)
{
    make(3, 2);
    selectSomething();
    canvas->rotateCCW();
    expectFresh(2, 3);
    EXPECT_EQ(at(0, 0), word(2, 0)) << "the old top right";
    for (int v = 0; v < 2; ++v)
        for (int u = 0; u < 3; ++u) EXPECT_EQ(at(v, 2 - u), word(u, v));
}

TEST_F(Geometry, Clockwise)
{
    make(16, 9);
    selectSomething();
    canvas->rotateCW();
    expectFresh(9, 16);
    for (int v = 0; v < 9; ++v)
        for (int u = 0; u < 16; ++u) EXPECT_EQ(at(8 - v, u), word(u, v));
}

TEST_F(Geometry, RowsOfTheNewBitmapArePadded)
{
    make(20, 16);
    canvas->rotateCW();
    EXPECT_EQ(canvas->mBitmapRep->bytesPerRow(), 128);
    make(20, 15);
    canvas->rotateCW();
    EXPECT_EQ(canvas->mBitmapRep->bytesPerRow(), 64);
}

TEST_F(Geometry, Flips)
{
    make(37, 21);
    selectSomething();
    canvas->flipH();
    expectFresh(37, 21);
    for (int v = 0; v < 21; ++v)
        for (int u = 0; u < 37; ++u) ASSERT_EQ(at(36 - u, v), word(u, v));
    make(37, 21);
    canvas->flipV();
    expectFresh(37, 21);
    for (int v = 0; v < 21; ++v)
        for (int u = 0; u < 37; ++u) ASSERT_EQ(at(u, 20 - v), word(u, v));
}

TEST_F(Geometry, FourTurnsAndTwoFlipsAreNothing)
{
    make(35, 20);
    for (int i = 0; i < 4; ++i) canvas->rotateCW();
    for (int i = 0; i < 2; ++i) canvas->flipH();
    for (int i = 0; i < 2; ++i) canvas->flipV();
    for (int i = 0; i < 4; ++i) canvas->rotateCCW();
    ASSERT_EQ(canvas->mBitmapRep->pixelsWide(), 35);
    for (int v = 0; v < 20; ++v)
        for (int u = 0; u < 35; ++u) ASSERT_EQ(at(u, v), word(u, v));
    settle();
}

TEST_F(Geometry, UndoBringsBackTheFormerShape)
{
    make(35, 20);
    canvas->takeSnapshot();
    settle();
    canvas->rotateCW();
    settle();
    canvas->undo();
    EXPECT_EQ(canvas->mBitmapRep->pixelsWide(), 35);
    EXPECT_EQ(canvas->mBitmapRep->pixelsHigh(), 20);
}

TEST_F(Geometry, WithoutAPictureNothingHappens)
{
    canvas->rotateCW();
    canvas->rotateCCW();
    canvas->flipH();
    canvas->flipV();
    EXPECT_FALSE(canvas->mBitmapRep);
    EXPECT_EQ(canvas->mUndoIndex, -1);
}

TEST_F(Geometry, RetinaFollowsTheMenuItemAndSaysSo)
{
    make(20, 10);
    canvas->mZoom = 2;
    canvas->updateViewGeometry();
    QAction item;
    item.setCheckable(true);
    std::vector<AlertState> alerts;
    const auto answer = [&] {
        QTimer::singleShot(0, canvas.get(), [&] {
            if (const auto alert = currentAlert()) alerts.push_back(*alert);
            answerAlert("OK");
        });
    };
    answer();
    canvas->retina(&item);
    EXPECT_TRUE(item.isChecked());
    EXPECT_TRUE(canvas->m2xRetina);
    EXPECT_EQ(canvas->size(), QSize(20, 10)) << "zoom 2, halved";
    answer();
    canvas->retina(&item);
    EXPECT_FALSE(item.isChecked());
    EXPECT_FALSE(canvas->m2xRetina);
    EXPECT_EQ(canvas->size(), QSize(40, 20));
    ASSERT_EQ(alerts.size(), 2u);
    EXPECT_EQ(alerts[0].title, "You have enabled 2x retina display mode.");
    EXPECT_EQ(alerts[1].title, "You have disabled 2x retina display mode.");
    EXPECT_EQ(alerts[0].message, "");
    EXPECT_EQ(alerts[0].buttons, QStringList{"OK"});
}

} // namespace
