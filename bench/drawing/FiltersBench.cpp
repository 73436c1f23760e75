// SPDX-License-Identifier: GPL-3.0-or-later
/// The filters on 24 megapixels beside the same chain of OpenCV's functions, in the same run.
#include "base/BitmapRep.h"
#include "drawing/Filters.h"
#include "support/NoisePicture.h"
#include "support/OpenCvPeer.h"
#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>

using namespace zp;
using bench::matOf;

namespace
{

constexpr int kWidth = 6000, kHeight = 4000;

BitmapRep& photo()
{
    static const std::shared_ptr<BitmapRep> rep = bench::noisePicture(kWidth, kHeight);
    return *rep;
}
BitmapRep& target()
{
    static const std::shared_ptr<BitmapRep> rep = BitmapRep::create(kWidth, kHeight);
    return *rep;
}
void run(benchmark::State& state, const FilterSettings& settings)
{
    const ConstBitmapView source = photo().view();
    const BitmapView out = target().view();
    for (auto _ : state) applyFilters(source, out, settings, source.box());
    state.SetItemsProcessed(state.iterations() * kWidth * kHeight);
}

const FilterSettings kColour{.hueAngle = 0.5f, .saturation = 1.3f, .brightness = 0.05f, .contrast = 1.2f};

void BM_Colour(benchmark::State& state) { run(state, kColour); }
void BM_Gaussian(benchmark::State& state) { run(state, {.blurRadius = float(state.range(0)) / 10}); }
void BM_Unsharp(benchmark::State& state) { run(state, {.unsharpIntensity = 1}); }
void BM_AllFive(benchmark::State& state)
{
    FilterSettings all = kColour;
    all.unsharpIntensity = 1;
    run(state, all);
}
void BM_ColourAndBlurTen(benchmark::State& state)
{
    FilterSettings all = kColour;
    all.blurRadius = 10;
    run(state, all);
}
/// What a slider's step costs at most when a selection of six megapixels is all in view.
void BM_SixMegapixels(benchmark::State& state)
{
    FilterSettings all = kColour;
    (state.range(0) ? all.blurRadius : all.unsharpIntensity) = state.range(0) ? 10 : 1;
    const ConstBitmapView source = photo().view();
    const BitmapView out = target().view();
    for (auto _ : state) applyFilters(source, out, all, {0, 0, 3000, 2000});
}
BENCHMARK(BM_SixMegapixels)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Colour)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Gaussian)->Arg(10)->Arg(25)->Arg(50)->Arg(100)->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Unsharp)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_AllFive)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_ColourAndBlurTen)->Unit(benchmark::kMillisecond)->UseRealTime();

// The peer, with as many threads as it likes. Its matrices stand for any: the time does not depend on the numbers.
const cv::Matx44f kMatrix(1, 0, 0, 0, 0.05f, 0.8f, 0.1f, 0.1f, 0.05f, 0.1f, 0.8f, 0.1f, 0.05f, 0.1f, 0.1f, 0.8f);

void cvTransform(benchmark::State& state)
{
    const cv::Mat source = matOf(photo());
    cv::Mat out = matOf(target());
    for (auto _ : state) cv::transform(source, out, kMatrix);
}
void cvGaussian(benchmark::State& state)
{
    const cv::Mat source = matOf(photo());
    cv::Mat out = matOf(target());
    for (auto _ : state) cv::GaussianBlur(source, out, {}, double(state.range(0)) / 10, 0, cv::BORDER_REPLICATE);
}
void cvUnsharp(benchmark::State& state)
{
    const cv::Mat source = matOf(photo());
    cv::Mat out = matOf(target()), soft(source.size(), source.type());
    for (auto _ : state) {
        cv::GaussianBlur(source, soft, {}, 2.5, 0, cv::BORDER_REPLICATE);
        cv::addWeighted(source, 2, soft, -1, 0, out);
    }
}
/// One transform for the hue, one for the colour controls, then the unsharp mask.
void cvAllFive(benchmark::State& state)
{
    const cv::Mat source = matOf(photo());
    cv::Mat out = matOf(target()), a(source.size(), source.type()), b(source.size(), source.type());
    for (auto _ : state) {
        cv::transform(source, a, kMatrix);
        cv::transform(a, b, kMatrix);
        cv::GaussianBlur(b, a, {}, 2.5, 0, cv::BORDER_REPLICATE);
        cv::addWeighted(b, 2, a, -1, 0, out);
    }
}
void cvColourAndBlurTen(benchmark::State& state)
{
    const cv::Mat source = matOf(photo());
    cv::Mat out = matOf(target()), a(source.size(), source.type()), b(source.size(), source.type());
    for (auto _ : state) {
        cv::transform(source, a, kMatrix);
        cv::transform(a, b, kMatrix);
        cv::GaussianBlur(b, out, {}, 10, 0, cv::BORDER_REPLICATE);
    }
}
BENCHMARK(cvTransform)->Name("OpenCV_Transform")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(cvGaussian)
    ->Name("OpenCV_Gaussian")
    ->Arg(10)
    ->Arg(25)
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(cvUnsharp)->Name("OpenCV_Unsharp")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(cvAllFive)->Name("OpenCV_AllFive")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(cvColourAndBlurTen)->Name("OpenCV_ColourAndBlurTen")->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
