// SPDX-License-Identifier: GPL-3.0-or-later
/// Lifting, anchoring and copying a selection of 6 megapixels on a picture of 24, beside plain copies of the same
/// pixels.
#include "selection/FloatingImage.h"
#include "support/NoisePicture.h"
#include "support/OpenCvPeer.h"
#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>

using namespace zp;
using bench::matOf;

namespace
{
constexpr int kWidth = 6000, kHeight = 4000;
const Rect kBox = makeRect(1003, 777, 3000, 2000);

BitmapRep& photo()
{
    static const std::shared_ptr<BitmapRep> rep = bench::noisePicture(kWidth, kHeight);
    return *rep;
}

cv::Rect cvBox() { return {int(kBox.minX()), int(kBox.minY()), int(kBox.size.width), int(kBox.size.height)}; }

BezierPath outline(int kind) { return kind == 0 ? BezierPath::withRect(kBox) : BezierPath::withOvalInRect(kBox); }

void BM_Lift(benchmark::State& state)
{
    const ConstBitmapView image = photo().view(); // made before the clock starts
    for (auto _ : state) benchmark::DoNotOptimize(liftFloatingImage(image, kBox));
}
void BM_LiftOpenCvClone(benchmark::State& state)
{
    const cv::Mat image = matOf(photo());
    for (auto _ : state) benchmark::DoNotOptimize(image(cvBox()).clone());
}

/// 0 a rectangle, 1 an oval.
void BM_Anchor(benchmark::State& state)
{
    const auto floating = liftFloatingImage(photo().view(), kBox);
    const BezierPath path = outline(int(state.range(0)));
    for (auto _ : state) {
        BitmapContext context(photo().view());
        context.addClip(path);
        drawFloating(context, *floating, floatingRecord(kBox), 1);
    }
}
void BM_AnchorOpenCvCopy(benchmark::State& state)
{
    const cv::Mat image = matOf(photo()), floating = image(cvBox()).clone();
    cv::Mat part = image(cvBox());
    // The nearest thing there: an ellipse as a hard mask, drawn once beforehand.
    cv::Mat mask(part.size(), CV_8UC1, cv::Scalar(state.range(0) ? 0 : 255));
    if (state.range(0)) cv::ellipse(mask, {1500, 1000}, {1500, 1000}, 0, 0, 360, cv::Scalar(255), cv::FILLED);
    for (auto _ : state) state.range(0) ? floating.copyTo(part, mask) : floating.copyTo(part);
}

void BM_AnchorTurned(benchmark::State& state)
{
    const auto floating = liftFloatingImage(photo().view(), kBox);
    _ZPTransform record = floatingRecord(kBox);
    BezierPath path = outline(0);
    path.transform(floatingStep(record, 1, 20));
    record.rotate = 20;
    for (auto _ : state) {
        BitmapContext context(photo().view());
        context.addClip(path);
        drawFloating(context, *floating, record, 1);
    }
}
void BM_AnchorTurnedOpenCv(benchmark::State& state)
{
    const cv::Mat image = matOf(photo()), floating = image(cvBox()).clone();
    cv::Mat to = matOf(photo());
    const cv::Mat map = cv::getRotationMatrix2D({1500, 1000}, -20, 1);
    cv::Mat shifted = map.clone();
    shifted.at<double>(0, 2) += 1003, shifted.at<double>(1, 2) += 777;
    for (auto _ : state) cv::warpAffine(floating, to, shifted, to.size(), cv::INTER_CUBIC, cv::BORDER_TRANSPARENT);
}

void BM_CopyOut(benchmark::State& state)
{
    const auto floating = liftFloatingImage(photo().view(), kBox);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            copyOfFloating(*floating, floatingRecord(kBox), outline(int(state.range(0))), kBox, 1));
}
void BM_Clear(benchmark::State& state)
{
    for (auto _ : state) clearInside(photo().view(), outline(int(state.range(0))));
}
} // namespace

BENCHMARK(BM_Lift)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_LiftOpenCvClone)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Anchor)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_AnchorOpenCvCopy)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_AnchorTurned)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_AnchorTurnedOpenCv)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_CopyOut)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Clear)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
