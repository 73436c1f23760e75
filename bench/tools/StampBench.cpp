// SPDX-License-Identifier: GPL-3.0-or-later
/// Stamping a brush tip into a 24-megapixel picture, beside AGG's generic blender of the same tip in the same run.
#include "base/BitmapRep.h"
#include "tools/BrushTip.h"
#include "tools/StrokeGeometry.h"
#include <agg_pixfmt_rgba.h>
#include <agg_renderer_base.h>
#include <agg_rendering_buffer.h>
#include <benchmark/benchmark.h>
#include <random>

namespace
{

using namespace zp;

constexpr int kWidth = 6000, kHeight = 4000;

/// Where a wandering hand stamps: the same places for both.
std::vector<PixelPoint> places()
{
    std::mt19937 random(42);
    std::vector<PixelPoint> result;
    int x = 2000, y = 2000;
    for (int i = 0; i < 512; ++i) {
        x = std::clamp(x + int(random() % 121) - 60, 0, kWidth - 600),
        y = std::clamp(y + int(random() % 121) - 60, 0, kHeight - 600);
        result.push_back({x, y});
    }
    return result;
}

BitmapRep& picture()
{
    static const std::shared_ptr<BitmapRep> rep = [] {
        auto made = BitmapRep::create(kWidth, kHeight);
        for (int y = 0; y < kHeight; ++y) std::fill_n(made->view().row(y), kWidth, 0xC08040FFu);
        return made;
    }();
    return *rep;
}

void stampOurs(benchmark::State& state)
{
    const BrushTip tip({}, float(state.range(0)), {1, 0.5f, 0.25f, 1});
    const BrushStamp stamp(tip, 0.7f);
    const std::vector<PixelPoint> at = places();
    std::size_t i = 0;
    for (auto _ : state) {
        const PixelPoint p = at[i++ % at.size()];
        stamp.drawAt(picture().view(), p.x, p.y);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(0));
}

void stampAGG(benchmark::State& state)
{
    using Format = agg::pixfmt_argb32_pre;
    const BrushTip tip({}, float(state.range(0)), {1, 0.5f, 0.25f, 1});
    const int side = tip.side();
    agg::rendering_buffer rows(picture().bitmapData(), kWidth, kHeight, int(picture().bytesPerRow()));
    Format format(rows);
    agg::renderer_base<Format> base(format);
    agg::rendering_buffer tipRows(const_cast<std::uint8_t*>(tip.pixels().data), unsigned(side), unsigned(side),
                                  side * 4);
    Format tipFormat(tipRows);
    const std::vector<PixelPoint> at = places();
    std::size_t i = 0;
    for (auto _ : state) {
        const PixelPoint p = at[i++ % at.size()];
        base.blend_from(tipFormat, nullptr, p.x, p.y, agg::int8u(0.7 * 255));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(0));
}

BENCHMARK(stampOurs)->Name("stamp")->Arg(20)->Arg(60)->Arg(200)->Arg(500)->Unit(benchmark::kMicrosecond);
BENCHMARK(stampAGG)->Name("stamp, AGG")->Arg(20)->Arg(60)->Arg(200)->Arg(500)->Unit(benchmark::kMicrosecond);

} // namespace
