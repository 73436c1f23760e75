// SPDX-License-Identifier: GPL-3.0-or-later
/// Replays a stroke's mouse events in real time and measures how long each takes until its pixels are redrawn.
///
/// A sample counts as shown when a redraw ends that began after the segment was painted and after its request for
/// redisplay had reached the main thread. Its clock starts when it was due, so that time spent waiting for a busy main
/// thread counts as well.
#include "app/CommandTable.h"
#include "canvas/ZPCanvas.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include <QApplication>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QThread>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>

namespace
{

using Clock = std::chrono::steady_clock;

class WatchedCanvas : public ZPCanvas
{
public:
    using ZPCanvas::ZPCanvas;
    std::vector<Clock::time_point> shown; ///< per segment, when its redraw ended

    bool eventFilter(QObject*, QEvent* event) override
    {
        // What a worker asked for reaches the main thread by a socket notifier or a queued call: the requests of all
        // segments counted here are among those this event, or one before it, hands over.
        if (event->type() == QEvent::SockAct || event->type() == QEvent::MetaCall)
            mRequested = document().gesture().stroke().segmentsDrawn();
        return false;
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        const std::uint32_t covered = mRequested;
        ZPCanvas::paintEvent(event);
        const Clock::time_point now = Clock::now();
        while (shown.size() < covered) shown.push_back(now);
    }

private:
    std::uint32_t mRequested = 0;
};

/// Positions of a hand drawing loops of changing size, @p count of them at @p rate a second, in a view of 1600 by 1000.
std::vector<zp::Point> recordedStroke(int count, double rate)
{
    std::vector<zp::Point> points;
    for (int i = 0; i < count; ++i) {
        const double t = i / rate;
        const double size = 180 + 150 * std::sin(t * 0.9);
        points.push_back({float(800 + 420 * std::sin(t * 0.7) + size * std::cos(t * 7.1)),
                          float(500 + 180 * std::sin(t * 1.1) + size * std::sin(t * 6.3))});
    }
    return points;
}

void strokeLatency(benchmark::State& state)
{
    const double rate = double(state.range(0));
    zp::Document document(zp::commandTable());
    QScrollArea view;
    auto* canvas = new WatchedCanvas(document);
    view.setWidget(canvas);
    view.resize(1600, 1000);
    view.show();
    qApp->installEventFilter(canvas);
    document.perform("newImageForMeWithSize:", {{6000, 4000}, {}});
    const auto settle = [&] {
        do {
            QApplication::processEvents(QEventLoop::AllEvents, 5);
        } while (document.anyWorkerRunning() || document.firstStepPending());
        QApplication::processEvents();
    };
    settle();
    document.chooseTool(zp::Tool::Brush);
    document.setBrushSize(200);
    document.setPaintColor({0.8f, 0.1f, 0.2f, 1});
    const auto send = [&](QEvent::Type type, zp::Point p, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, QPointF(p.x, p.y), QPointF(p.x, p.y), button, held, Qt::NoModifier);
        QApplication::sendEvent(canvas, &event);
    };
    const std::vector<zp::Point> points = recordedStroke(2500, rate);
    std::vector<double> latencies;
    for (auto _ : state) {
        canvas->shown.clear();
        std::vector<Clock::time_point> due;
        const Clock::time_point start = Clock::now();
        send(QEvent::MouseButtonPress, points[0], Qt::LeftButton, Qt::LeftButton);
        for (std::size_t i = 1; i < points.size(); ++i) {
            due.push_back(start + std::chrono::nanoseconds(std::int64_t(1e9 * double(i) / rate)));
            while (Clock::now() < due.back()) {
                QApplication::processEvents();
                QThread::usleep(50); // an event loop sleeps too; spinning would take a core from the workers
            }
            send(QEvent::MouseMove, points[i], Qt::NoButton, Qt::LeftButton);
        }
        const Clock::time_point end = Clock::now() + std::chrono::seconds(2);
        while (canvas->shown.size() < due.size() && Clock::now() < end) {
            QApplication::processEvents();
            QThread::usleep(50);
        }
        if (canvas->shown.size() < due.size()) state.SkipWithError("not every sample was shown");
        for (std::size_t i = 0; i < std::min(canvas->shown.size(), due.size()); ++i)
            latencies.push_back(std::chrono::duration<double, std::milli>(canvas->shown[i] - due[i]).count());
        send(QEvent::MouseButtonRelease, points.back(), Qt::LeftButton, Qt::NoButton);
        settle();
    }
    std::sort(latencies.begin(), latencies.end());
    if (latencies.empty()) return;
    const auto quantile = [&](double q) { return latencies[std::size_t(q * double(latencies.size() - 1))]; };
    state.counters["samples"] = double(latencies.size());
    state.counters["median ms"] = quantile(0.5);
    state.counters["99 % ms"] = quantile(0.99);
    state.counters["99.9 % ms"] = quantile(0.999);
    state.counters["most ms"] = latencies.back();
}

BENCHMARK(strokeLatency)
    ->Name("stroke latency, size 200, 24 megapixels, samples a second")
    ->Arg(125)
    ->Arg(1000)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    for (const char* variable : {"HOME", "ZELPANE_TMP", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.path().toLocal8Bit());
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "ZELPANE_BUNDLE"}) qunsetenv(variable);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ZELPANE_RESOURCES", ZP_RESOURCES);
    // As the program does it: every position the platform has is delivered.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
