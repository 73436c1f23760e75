// SPDX-License-Identifier: GPL-3.0-or-later
/// Quarter turns and flips beside OpenCV's, same bytes, memory warm on both sides.
#include "base/BitmapRep.h"
#include "imageops/RotateFlip.h"
#include <benchmark/benchmark.h>
#include <cstring>
#include <opencv2/core.hpp>

namespace
{

using namespace zp;

/// A picture and the memory for its turned copy, made once: first touch is nobody's work here.
struct Pair {
    std::shared_ptr<BitmapRep> from, to;
    explicit Pair(int width, int height) : from(BitmapRep::create(width, height)), to(BitmapRep::create(height, width))
    {
        for (BitmapRep* rep : {from.get(), to.get()})
            for (int y = 0; y < rep->pixelsHigh(); ++y)
                std::memset(rep->view().rowData(y), y * 7, std::size_t(rep->bytesPerRow()));
    }
    cv::Mat mat(BitmapRep& rep) const
    {
        return {rep.pixelsHigh(), rep.pixelsWide(), CV_8UC4, rep.bitmapData(), std::size_t(rep.bytesPerRow())};
    }
};

void count(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1)); }

void BM_RotateClockwise(benchmark::State& state)
{
    Pair pair(int(state.range(0)), int(state.range(1)));
    for (auto _ : state) rotateClockwise(pair.from->view(), pair.to->view());
    count(state);
}
void BM_RotateCounterClockwise(benchmark::State& state)
{
    Pair pair(int(state.range(0)), int(state.range(1)));
    for (auto _ : state) rotateCounterClockwise(pair.from->view(), pair.to->view());
    count(state);
}
void BM_RotateOpenCV(benchmark::State& state)
{
    Pair pair(int(state.range(0)), int(state.range(1)));
    cv::Mat from = pair.mat(*pair.from), to = pair.mat(*pair.to);
    for (auto _ : state) cv::rotate(from, to, cv::ROTATE_90_CLOCKWISE);
    if (to.data != pair.to->bitmapData()) state.SkipWithError("the peer wrote elsewhere");
    count(state);
}
void BM_FlipHorizontally(benchmark::State& state)
{
    Pair pair(int(state.range(0)), int(state.range(1)));
    for (auto _ : state) flipHorizontally(pair.from->view());
    count(state);
}
void BM_FlipVertically(benchmark::State& state)
{
    Pair pair(int(state.range(0)), int(state.range(1)));
    for (auto _ : state) flipVertically(pair.from->view());
    count(state);
}
/// @p code 1: left and right, 0: top and bottom; in place or into a second picture.
void flipOpenCV(benchmark::State& state, int code, bool inPlace)
{
    Pair pair(int(state.range(0)), int(state.range(1)));
    const auto copy = BitmapRep::create(int(state.range(0)), int(state.range(1)));
    cv::Mat from = pair.mat(*pair.from), to = inPlace ? from : pair.mat(*copy);
    for (auto _ : state) cv::flip(from, to, code);
    count(state);
}
void BM_FlipHorizontallyOpenCV(benchmark::State& state) { flipOpenCV(state, 1, false); }
void BM_FlipHorizontallyOpenCVInPlace(benchmark::State& state) { flipOpenCV(state, 1, true); }
void BM_FlipVerticallyOpenCV(benchmark::State& state) { flipOpenCV(state, 0, false); }
void BM_FlipVerticallyOpenCVInPlace(benchmark::State& state) { flipOpenCV(state, 0, true); }

#define ZP_SIZES ->Args({6000, 4000})->Args({1000, 800})->Unit(benchmark::kMillisecond)->UseRealTime()
BENCHMARK(BM_RotateClockwise) ZP_SIZES;
BENCHMARK(BM_RotateCounterClockwise) ZP_SIZES;
BENCHMARK(BM_RotateOpenCV) ZP_SIZES;
BENCHMARK(BM_FlipHorizontally) ZP_SIZES;
BENCHMARK(BM_FlipHorizontallyOpenCV) ZP_SIZES;
BENCHMARK(BM_FlipHorizontallyOpenCVInPlace) ZP_SIZES;
BENCHMARK(BM_FlipVertically) ZP_SIZES;
BENCHMARK(BM_FlipVerticallyOpenCV) ZP_SIZES;
BENCHMARK(BM_FlipVerticallyOpenCVInPlace) ZP_SIZES;

} // namespace
