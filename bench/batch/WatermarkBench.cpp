// SPDX-License-Identifier: GPL-3.0-or-later
/// A watermark over the whole of a 24-megapixel picture.
#include "base/BitmapRep.h"
#include "batch/WatermarkDrawing.h"
#include <benchmark/benchmark.h>

namespace
{

using namespace zp;

constexpr int kWidth = 6000, kHeight = 4000;

std::shared_ptr<BitmapRep> sheet(int width, int height, std::uint32_t pixel)
{
    auto rep = BitmapRep::create(width, height);
    for (int y = 0; y < height; ++y) std::fill_n(rep->view().row(y), width, pixel);
    return rep;
}

/// As a run lays it: planned, drawn once, stamped. A half-clear mark, whose every pixel has to be blended.
void TiledWatermark(benchmark::State& state)
{
    const auto picture = sheet(kWidth, kHeight, 0x604020FF), mark = sheet(800, 300, 0x40404080);
    const WatermarkLayout layout{.relative = true,
                                 .size = int(state.range(0)),
                                 .tiled = true,
                                 .gap = int(state.range(1)),
                                 .turn = int(state.range(2))};
    std::size_t stamps = 0;
    for (auto _ : state) {
        const WatermarkPlan plan =
            planWatermark(layout, sizeInPoints(*mark), {kWidth, kHeight}, WatermarkPlace::LowerRight, {}, 0);
        drawWatermarks(picture->view(), mark->view(), plan, {kWidth, kHeight}, 0.5f);
        stamps = plan.places.size();
    }
    state.counters["stamps"] = double(stamps);
    state.SetItemsProcessed(state.iterations() * kWidth * kHeight);
}

BENCHMARK(TiledWatermark)
    ->ArgNames({"size", "gap", "turn"})
    ->Args({25, 50, 0})
    ->Args({25, 50, 30})
    ->Args({10, 0, 0})
    ->Args({1, 0, 0})
    ->Args({100, 0, 30})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
