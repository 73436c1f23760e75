// SPDX-License-Identifier: GPL-3.0-or-later
/// Smart fill on photo-like scenes: the fast version beside the literal one in the same run.
#include "smartfill/LiteralSmartFill.h"
#include "smartfill/SmartFillPictures.h"
#include <benchmark/benchmark.h>

using namespace zp;
using namespace zp::testpictures;

namespace
{

/// A 2000 x 1500 picture with a hole of 200 x 150 and the radius at half of it; texture by the argument: 0 waves, an
/// edge and grain of +-6, 1 the same almost without grain, 2 nothing but noise.
struct Job {
    SmartFillArea area;
    SmartFillPicture picture;

    explicit Job(std::int64_t texture)
    {
        std::mt19937 random(7);
        Scene scene(2000, 1500);
        scene.paint([&](int x, int y) {
            return texture == 2 ? random() : photoPixel(x - 800, y - 600, random, texture == 1 ? 1 : 6);
        });
        const PixelBox hole{900, 650, 1100, 800};
        scene.select(hole);
        area = smartFillArea(hole.rect(), scene.width, scene.height, 50, false);
        picture = fetchSmartFillPicture(scene.bitmap(), scene.maskView(), area);
    }
};

void run(benchmark::State& state, SmartFillSpeed speed)
{
    const Job job(state.range(0));
    for (auto _ : state) {
        SmartFillPicture picture = job.picture;
        fillSmartFillPicture(picture, 1, {}, speed);
        benchmark::DoNotOptimize(picture.pixels.data());
    }
    state.counters["hole px/s"] = benchmark::Counter(30000.0 * double(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_SmartFill(benchmark::State& state) { run(state, SmartFillSpeed::Best); }
void BM_SmartFillPortable(benchmark::State& state) { run(state, SmartFillSpeed::Portable); }

void BM_SmartFillLiteral(benchmark::State& state)
{
    const Job job(state.range(0));
    for (auto _ : state) {
        SmartFillPicture picture = job.picture;
        literal::fill(picture, 1, {});
        benchmark::DoNotOptimize(picture.pixels.data());
    }
}

BENCHMARK(BM_SmartFill)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SmartFillPortable)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SmartFillLiteral)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
