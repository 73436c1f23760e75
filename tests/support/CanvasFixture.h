// SPDX-License-Identifier: GPL-3.0-or-later
/// A canvas with an image of known pixels, for tests that go through the real class.
#pragma once
#include "canvas/ZPCanvas.h"
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>

namespace zp::test
{

/// Handles events until @p done or the time is over. @return done
template <class F>
bool eventually(F&& done, int milliseconds = 20'000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > milliseconds) return false;
        QApplication::processEvents(QEventLoop::AllEvents, 5);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

/// The words of a pixel as stored: alpha, red, green, blue in memory.
inline std::uint32_t word(std::uint8_t a, std::uint8_t r, std::uint8_t g, std::uint8_t b)
{
    return std::uint32_t(a) | std::uint32_t(r) << 8 | std::uint32_t(g) << 16 | std::uint32_t(b) << 24;
}

class CanvasTest : public testing::Test
{
protected:
    CanvasTest() : canvas(std::make_unique<ZPCanvas>()) {}
    ~CanvasTest() override { settle(); }

    /// A new image; its first snapshot is written before this returns.
    void makeImage(int width, int height)
    {
        canvas->newImageWithSize({float(width), float(height)});
        canvas->setImagePath("");
        settle();
    }
    /// No worker at work, no timer pending.
    void settle()
    {
        ASSERT_TRUE(eventually([this] { return !canvas->anyWorkerRunning() && !canvas->snapshotTimerPending(); }));
        QApplication::processEvents();
        ASSERT_TRUE(eventually([this] { return !canvas->anyWorkerRunning() && !canvas->snapshotTimerPending(); }));
    }
    std::uint32_t pixel(int x, int y) const { return std::as_const(*canvas->mBitmapRep).view().row(y)[x]; }
    /// As every operation does: not while a snapshot is read from the pixels.
    void setPixel(int x, int y, std::uint32_t w)
    {
        if (canvas->anyWorkerRunning()) settle();
        canvas->mBitmapRep->view().row(y)[x] = w;
    }
    void fillImage(std::uint32_t w)
    {
        settle();
        const BitmapView v = canvas->mBitmapRep->view();
        for (int y = 0; y < v.height; ++y)
            for (int x = 0; x < v.width; ++x) v.row(y)[x] = w;
    }
    std::uint8_t mask(int x, int y) const { return canvas->mSelectionMask->row(y)[x]; }

    std::unique_ptr<ZPCanvas> canvas;
};

} // namespace zp::test
