// SPDX-License-Identifier: GPL-3.0-or-later
/// Smart fill on photo-like scenes: the fast version beside the literal one in the same run.
#include "smartfill/LiteralSmartFill.h"
#include "smartfill/SmartFillPictures.h"
#include <benchmark/benchmark.h>
#include <sys/resource.h>

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

void literally(benchmark::State& state, literal::Draws draws)
{
    const Job job(state.range(0));
    for (auto _ : state) {
        SmartFillPicture picture = job.picture;
        literal::fill(picture, 1, {}, draws);
        benchmark::DoNotOptimize(picture.pixels.data());
    }
}

void BM_SmartFillLiteral(benchmark::State& state) { literally(state, literal::Draws::AsTheFastOne); }
void BM_SmartFillLiteralByRand(benchmark::State& state) { literally(state, literal::Draws::TheCLibrarys); }

long peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// What a run takes beside the picture and mask that it is given, per pixel of a work area of 12 megapixels with a hole
/// of 3. The peak of the process only ever rises, so this one is registered first.
void BM_SmartFillMemory(benchmark::State& state)
{
    std::mt19937 random(7);
    SmartFillPicture picture{4000, 3000, {}, {}, {}};
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            picture.pixels.push_back(photoPixel(x, y, random));
            picture.mask.push_back(x >= 1000 && x < 3000 && y >= 750 && y < 2250 ? 255 : 0);
        }
    const long before = peakKilobytes();
    // Everything is allocated before the first point but for what grows with the steps, which is nothing; cancelled at
    // the second one.
    int points = 0;
    for (auto _ : state) fillSmartFillPicture(picture, 1, {{}, [&] { return ++points > 1; }});
    state.counters["bytes a pixel"] = double(peakKilobytes() - before) * 1024 / 12e6;
}

BENCHMARK(BM_SmartFillMemory)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_SmartFill)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SmartFillPortable)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SmartFillLiteral)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_SmartFillLiteralByRand)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
