// SPDX-License-Identifier: GPL-3.0-or-later
/// A real canvas with the controls that tools ask, driven by real mouse events.
#pragma once
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Sounds.h"
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QSpinBox>
#include <QThread>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace zp::test
{

class ToolTest : public testing::Test
{
protected:
    void SetUp() override
    {
        setScriptedKeyModifiers(0);
        for (int i = 0; i < 10; ++i) tools.addItem(QString::number(i));
        for (const char* title : {"6.25%", "12.5%", "25%", "50%", "100%", "200%", "400%", "800%", "1600%"})
            zooms.addItem(title);
        zooms.setCurrentIndex(4);
        for (int i = 1; i <= 8; ++i) brushes.addItem("B" + QString::number(i));
        slider.setRange(0, 100);
        slider.setValue(10);
        canvas = std::make_unique<ZPCanvas>();
        canvas->mToolPopUp = &tools;
        canvas->mZoomPopUp = &zooms;
        canvas->mBrushPopUp = &brushes;
        canvas->mToleranceSlider = &slider;
        canvas->mToleranceField = &field;
        canvas->mInfoField = &info;
        canvas->awakeFromNib();
        newImage(200, 100);
        takeSounds();
        takeLogLines();
    }
    void TearDown() override
    {
        canvas.reset();
        setScriptedKeyModifiers(std::nullopt);
    }

    void newImage(int width, int height)
    {
        canvas->newImageForMeWithSize({float(width), float(height)});
        settle();
        fillWith(kWhiteWord);
    }
    void fillWith(std::uint32_t word)
    {
        const BitmapView pixels = canvas->mBitmapRep->view();
        for (int y = 0; y < pixels.height; ++y) std::fill_n(pixels.row(y), pixels.width, word);
    }
    /// Until no worker is at work and nothing is on its way to the main thread.
    void settle()
    {
        QElapsedTimer clock;
        clock.start();
        do {
            QApplication::processEvents(QEventLoop::AllEvents, 5);
            QThread::usleep(200);
            ASSERT_LT(clock.elapsed(), 20'000) << "workers never came to rest";
        } while (canvas->anyWorkerRunning() || canvas->snapshotTimerPending());
        QApplication::processEvents();
    }

    void send(QEvent::Type type, float x, float y, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const double zoom = canvas->effectiveZoom();
        QMouseEvent event(type, QPointF(x * zoom, y * zoom), QPointF(x * zoom, y * zoom), button, buttons,
                          Qt::NoModifier);
        QApplication::sendEvent(canvas.get(), &event);
    }
    void press(float x, float y) { send(QEvent::MouseButtonPress, x, y, Qt::LeftButton, Qt::LeftButton); }
    void drag(float x, float y) { send(QEvent::MouseMove, x, y, Qt::NoButton, Qt::LeftButton); }
    void move(float x, float y) { send(QEvent::MouseMove, x, y, Qt::NoButton, Qt::NoButton); }
    void release(float x, float y) { send(QEvent::MouseButtonRelease, x, y, Qt::LeftButton, Qt::NoButton); }
    void key(int code, const QString& text = {})
    {
        QKeyEvent down(QEvent::KeyPress, code, Qt::NoModifier, text);
        QApplication::sendEvent(canvas.get(), &down);
    }
    void hold(std::uint32_t keys) { setScriptedKeyModifiers(keys); }

    std::uint32_t word(int x, int y) const { return canvas->mBitmapRep->view().row(y)[x]; }
    std::uint8_t mask(int x, int y) const
    {
        return canvas
            ->mSelectionMaskData[std::size_t(y) * std::size_t(canvas->mBitmapRep->pixelsWide()) + std::size_t(x)];
    }
    std::size_t countWords(std::uint32_t value) const
    {
        const BitmapView pixels = canvas->mBitmapRep->view();
        std::size_t n = 0;
        for (int y = 0; y < pixels.height; ++y)
            n += std::size_t(std::count(pixels.row(y), pixels.row(y) + pixels.width, value));
        return n;
    }
    static bool has(const std::vector<std::string>& lines, const std::string& line)
    {
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }
    void select(Rect r)
    {
        canvas->mSelectionPath = BezierPath::withRect(r);
        canvas->clearSelectionMask();
        canvas->selectionPathToMask();
    }

    static constexpr std::uint32_t kWhiteWord = 0xFFFFFFFF, kBlackWord = 0x000000FF, kRedWord = 0x0000FFFF;
    QComboBox tools, zooms, brushes;
    QSlider slider{Qt::Horizontal};
    QSpinBox field;
    QLabel info;
    std::unique_ptr<ZPCanvas> canvas;
};

} // namespace zp::test
