// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures of 100 to 900 megapixels, of which one at a time is open: opened, panned and zoomed in a view of 1600 x
/// 1000.
#include "app/CommandTable.h"
#include "canvas/ZPCanvas.h"
#include "desktop/ScrollView.h"
#include "document/Document.h"
#include "document/History.h"
#include "document/Picture.h"
#include "document/View.h"
#include "support/CloudsJPEG.h"
#include <QApplication>
#include <QScrollBar>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <sys/mman.h>
#include <thread>
#include <turbojpeg.h>
#include <unistd.h>
#include <vector>

using namespace zp;

namespace
{

struct Size {
    int width, height;
};

Size sizeOf(std::int64_t megapixels)
{
    switch (megapixels) {
    case 100:
        return {12000, 8334};
    case 400:
        return {25000, 16000};
    default:
        return {30000, 30000};
    }
}

std::string& folder()
{
    static std::string path;
    return path;
}

/// The latest one that was asked for is kept.
const std::string& fileOf(std::int64_t megapixels)
{
    static std::int64_t made = 0;
    static std::string path;
    if (made == megapixels) return path;
    if (!path.empty()) std::remove(path.c_str());
    made = megapixels;
    path = folder() + "/" + std::to_string(megapixels) + ".jpg";
    const auto [width, height] = sizeOf(megapixels);
    bench::writeCloudsAsJPEG(path, width, height);
    return path;
}

/// The host of a virtual machine takes back what lies free, and gives it again more slowly than a picture is read:
/// asked for beforehand, so that both that are compared find it there.
void wakeMemory(std::int64_t megapixels)
{
    const auto [width, height] = sizeOf(megapixels);
    const std::size_t bytes = std::size_t(width) * std::size_t(height) * 4 + (std::size_t{64} << 20);
    void* const memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) return;
    madvise(memory, bytes, MADV_HUGEPAGE);
    std::memset(memory, 1, bytes);
    munmap(memory, bytes);
}

double residentMegabytes()
{
    long pages = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return double(resident) * double(sysconf(_SC_PAGESIZE)) / 1e6;
}

class Window
{
public:
    explicit Window(std::int64_t megapixels) : mBefore(residentMegabytes())
    {
        scroll.setWidget(canvas);
        scroll.resize(1600, 1000);
        scroll.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        scroll.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        document.perform("dontTakeSnapshot");
        scroll.show();
        QApplication::processEvents();
        (void)fileOf(megapixels);
    }
    ~Window() { document.close(); }

    void open(std::int64_t megapixels)
    {
        document.perform("setImagePath:", {{}, fileOf(megapixels)});
        QApplication::processEvents(); // the first redraw
    }
    /// What opening, showing and the first step have left resident.
    double megabytes()
    {
        static constexpr Command kSetUp{.action = "benchmark", .effect = Effect::Paint};
        document.perform(kSetUp, [](Edit& edit) {
            edit.history().recordOwed(edit.picture(), "Open");
            edit.history().waitForWriter();
            edit.wantStep(false);
        });
        return residentMegabytes() - mBefore;
    }

    Document document{commandTable()};
    ScrollView scroll;
    ZPCanvas* const canvas = new ZPCanvas(document);

private:
    double mBefore;
};

void BM_OpenLarge(benchmark::State& state)
{
    double megabytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        {
            Window window(state.range(0));
            wakeMemory(state.range(0));
            state.ResumeTiming();
            window.open(state.range(0));
            state.PauseTiming();
            megabytes = window.megabytes();
        }
        state.ResumeTiming();
    }
    state.counters["MB"] = megabytes;
}
BENCHMARK(BM_OpenLarge)->Arg(100)->Arg(400)->Arg(900)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

/// The library into memory of its own, on huge pages and just taken like ours.
void BM_OpenLargeTurbo(benchmark::State& state)
{
    const auto [width, height] = sizeOf(state.range(0));
    const std::size_t bytes = std::size_t(width) * std::size_t(height) * 4;
    const std::string& path = fileOf(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        wakeMemory(state.range(0));
        state.ResumeTiming();
        std::ifstream in(path, std::ios::binary | std::ios::ate);
        std::vector<unsigned char> file(std::size_t(in.tellg()));
        in.seekg(0);
        in.read(reinterpret_cast<char*>(file.data()), std::streamsize(file.size()));
        void* const pixels = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        madvise(pixels, bytes, MADV_HUGEPAGE);
        tjhandle handle = tjInitDecompress();
        if (tjDecompress2(handle, file.data(), file.size(), static_cast<unsigned char*>(pixels), width, 0, height,
                          TJPF_ARGB, 0) != 0)
            state.SkipWithError(tjGetErrorStr2(handle));
        tjDestroy(handle);
        state.PauseTiming();
        munmap(pixels, bytes);
        state.ResumeTiming();
    }
    state.counters["MB"] = double(bytes) / 1e6;
}
BENCHMARK(BM_OpenLargeTurbo)->Arg(100)->Arg(400)->Arg(900)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

Window& largest()
{
    static Window* const window = [] {
        auto* const made = new Window(900);
        made->open(900);
        (void)made->megabytes();
        for (int i = 0; i < 100; ++i) { // a second and a half in which nobody does anything
            QApplication::processEvents();
            std::this_thread::sleep_for(std::chrono::milliseconds(15));
        }
        return made;
    }();
    return *window;
}

/// The view moved by some pixels until it is drawn. @p state.range(0): zoom in hundredths of a percent
void BM_PanLarge(benchmark::State& state)
{
    Window& window = largest();
    window.canvas->setZoom(float(state.range(0)) / 10000);
    QApplication::processEvents();
    QScrollBar& across = *window.scroll.horizontalScrollBar();
    QScrollBar& down = *window.scroll.verticalScrollBar();
    int step = 0;
    for (auto _ : state) {
        across.setValue(step % 50 * 5);
        down.setValue(step % 50 * 11);
        QApplication::processEvents();
        ++step;
    }
}
BENCHMARK(BM_PanLarge)->Arg(625)->Arg(2500)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(40);

/// From the next zoom to this one until it is drawn.
void BM_ZoomLarge(benchmark::State& state)
{
    Window& window = largest();
    for (auto _ : state) {
        state.PauseTiming();
        window.canvas->setZoom(float(state.range(0)) / 5000);
        QApplication::processEvents();
        state.ResumeTiming();
        window.canvas->setZoom(float(state.range(0)) / 10000);
        QApplication::processEvents();
    }
}
BENCHMARK(BM_ZoomLarge)
    ->Arg(625)
    ->Arg(1250)
    ->Arg(2500)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(20);

/// The same, just after some pixels of the picture were changed.
void BM_ZoomLargeChanged(benchmark::State& state)
{
    static constexpr Command kDot{.action = "benchmark", .effect = Effect::Paint};
    Window& window = largest();
    for (auto _ : state) {
        state.PauseTiming();
        window.canvas->setZoom(0.125f);
        window.document.perform(kDot, [](Edit& edit) {
            edit.write({0, 0, 8, 8}).row(0)[0] ^= 0xFFFFFF;
            edit.wantStep(false);
        });
        QApplication::processEvents();
        state.ResumeTiming();
        window.canvas->setZoom(0.0625f);
        QApplication::processEvents();
    }
}
BENCHMARK(BM_ZoomLargeChanged)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    folder() = home.path().toStdString();
    for (const char* variable : {"HOME", "ZELPANE_TMP", "XDG_RUNTIME_DIR"}) qputenv(variable, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
