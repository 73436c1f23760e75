// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas as a whole on 24 megapixels: redraws of a 1600 x 1000 view, opening until it can be drawn, dragging a
/// floating selection.
#include "app/CommandTable.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ColourProfiles.h"
#include "codecs/ImageEncoder.h"
#include "desktop/ScrollView.h"
#include "document/Document.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cmath>
#include <fstream>
#include <turbojpeg.h>

using namespace zp;

namespace
{

constexpr int kWidth = 6000, kHeight = 4000;

/// Soft clouds with grain: neither flat nor noise, so that a codec works on it as on a photograph.
void paintPicture(BitmapView v)
{
    std::uint32_t random = 12345;
    for (int y = 0; y < v.height; ++y)
        for (int x = 0; x < v.width; ++x) {
            random = random * 1664525u + 1013904223u;
            const int grain = int(random >> 29);
            std::uint8_t* p = v.pixel(x, y);
            p[0] = 255;
            p[1] = std::uint8_t(120 + 90 * std::sin(x * 0.003) + grain);
            p[2] = std::uint8_t(120 + 90 * std::sin(y * 0.004 + x * 0.001) + grain);
            p[3] = std::uint8_t(120 + 90 * std::cos((x + y) * 0.002) + grain);
        }
}

/// A change of the benchmark's own, as a command without a step makes it.
constexpr Command kSetUp{.action = "benchmark", .effect = Effect::Paint};

struct View {
    Document document{commandTable()};
    ScrollView scroll;
    ZPCanvas* canvas = new ZPCanvas(document);
    View()
    {
        scroll.setWidget(canvas);
        scroll.resize(1600, 1000);
        scroll.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        scroll.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        document.perform("dontTakeSnapshot");
        document.perform("newImageForMeWithSize:", {{kWidth, kHeight}, {}});
        document.perform(kSetUp, [](Edit& edit) { paintPicture(edit.writeAll()); });
        scroll.show();
        QApplication::processEvents();
    }
};

View& view()
{
    static auto* shared = new View;
    return *shared;
}

void BM_RedrawView(benchmark::State& state)
{
    ZPCanvas& canvas = *view().canvas;
    canvas.setZoom(float(state.range(0)) / 100);
    QApplication::processEvents();
    QImage screen(1600, 1000, QImage::Format_RGB32);
    const QRect visible = canvas.visibleRegion().boundingRect();
    for (auto _ : state) canvas.render(&screen, QPoint(), QRegion(visible), QWidget::RenderFlags());
    state.counters["pixels"] = double(visible.width()) * visible.height();
}
BENCHMARK(BM_RedrawView)->Arg(25)->Arg(100)->Arg(400)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The same on a screen with a profile of its own, which every word goes through.
void BM_RedrawViewThroughProfile(benchmark::State& state)
{
    ZPCanvas& canvas = *view().canvas;
    canvas.setScreenProfile(codec::profileFromPNG({.gamma = 1 / 2.2,
                                                   .hasPrimaries = true,
                                                   .white = {0.3127, 0.3290},
                                                   .red = {0.680, 0.320},
                                                   .green = {0.265, 0.690},
                                                   .blue = {0.150, 0.060}}));
    BM_RedrawView(state);
    canvas.setScreenProfile({});
}
BENCHMARK(BM_RedrawViewThroughProfile)->Arg(25)->Arg(100)->Arg(400)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_AntsTick(benchmark::State& state)
{
    Document& document = view().document;
    view().canvas->setZoom(0.25f);
    document.perform(kSetUp, [](Edit& edit) {
        edit.selection().select(BezierPath::withOvalInRect(makeRect(500, 500, 5000, 3000)));
        edit.selection().restAnts(); // the ticks are the benchmark's
    });
    QApplication::processEvents();
    for (auto _ : state) {
        emit document.antsMoved();
        QApplication::processEvents();
    }
    document.perform(kSetUp, [](Edit& edit) { edit.selection().drop(); });
}
BENCHMARK(BM_AntsTick)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_DragFloatingSixMegapixels(benchmark::State& state)
{
    Document& document = view().document;
    view().canvas->setZoom(float(state.range(0)) / 100);
    document.perform(kSetUp, [](Edit& edit) {
        edit.selection().select(BezierPath::withRect(makeRect(1000, 500, 3000, 2000)));
        edit.selection().lift(edit.picture());
    });
    QApplication::processEvents();
    double dx = 3, dy = 2;
    for (auto _ : state) {
        document.perform("nudge", {{dx, dy}, {}});
        QApplication::processEvents();
        if (document.selection().record().position.x > 3500) dx = -3, dy = -2;
    }
    document.perform(kSetUp, [](Edit& edit) { edit.selection().drop(); });
}
BENCHMARK(BM_DragFloatingSixMegapixels)
    ->Arg(25)
    ->Arg(100)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(40);

/// A corner of the whole picture, floating, pulled a few pixels further.
void BM_PullCorner(benchmark::State& state)
{
    Document& document = view().document;
    view().canvas->setZoom(float(state.range(0)) / 1000);
    document.perform(kSetUp, [](Edit& edit) {
        edit.selection().select(BezierPath::withRect(edit.picture().bounds()));
        edit.selection().lift(edit.picture());
    });
    double pull = 40;
    const auto step = [&] {
        document.perform("transform_corners:", {{pull, pull / 2, -100, 50, 0, 0, 0, -30}, {}});
        QApplication::processEvents();
        pull = pull > 400 ? 40 : pull + 7;
    };
    step(); // the smaller copies are made once
    for (auto _ : state) step();
    document.perform(kSetUp, [](Edit& edit) { edit.selection().drop(); });
}
BENCHMARK(BM_PullCorner)->Arg(125)->Arg(250)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(40);

const std::vector<std::uint8_t>& jpegBytes()
{
    static const std::vector<std::uint8_t> bytes = [] {
        const auto rep = BitmapRep::create(kWidth, kHeight);
        paintPicture(rep->view());
        return encodeJPEG(rep->view(), {}, {0.92, std::nullopt});
    }();
    return bytes;
}

void BM_OpenJPEG(benchmark::State& state)
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString() + "/photo.jpg";
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(jpegBytes().data()), std::streamsize(jpegBytes().size()));
    Document& document = view().document;
    for (auto _ : state) {
        document.perform("setImagePath:", {{}, path});
        state.PauseTiming();
        // The picture's first step is written 0.3 s later, when nobody waits: not while the next one is opened.
        document.perform(kSetUp, [](Edit& edit) {
            edit.history().recordOwed(edit.picture(), "Open");
            edit.history().waitForWriter();
            edit.wantStep(false);
        });
        state.ResumeTiming();
    }
    state.counters["loaded"] = document.picture().isLoaded();
}
BENCHMARK(BM_OpenJPEG)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_OpenJPEG_TurboIntoWarmMemory(benchmark::State& state)
{
    std::vector<std::uint8_t> pixels(std::size_t(kWidth) * kHeight * 4, 1);
    tjhandle handle = tjInitDecompress();
    for (auto _ : state)
        tjDecompress2(handle, jpegBytes().data(), jpegBytes().size(), pixels.data(), kWidth, 0, kHeight, TJPF_ARGB, 0);
    tjDestroy(handle);
}
BENCHMARK(BM_OpenJPEG_TurboIntoWarmMemory)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    for (const char* variable : {"HOME", "ZELPANE_TMP", "XDG_RUNTIME_DIR"}) qputenv(variable, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    delete view().canvas;
    view().document.close();
}
