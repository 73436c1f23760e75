// SPDX-License-Identifier: GPL-3.0-or-later
/// What a tick of the marching ants costs for outlines of a hundred thousand and of millions of corners.
#include "selection/OutlineSimplifier.h"
#include "selection/ZPPathBuilder.h"
#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>

namespace
{

constexpr int kWidth = 6000, kHeight = 4000;

/// Ragged regions all over a picture of 24 megapixels; the smoother, the fewer corners.
const zp::BezierPath& outline(int smooth)
{
    static std::map<int, zp::BezierPath> made;
    zp::BezierPath& path = made[smooth];
    if (!path.isEmpty()) return path;
    cv::RNG random(5);
    cv::Mat noise(kHeight, kWidth, CV_32F), mask;
    random.fill(noise, cv::RNG::NORMAL, 0, 1);
    cv::GaussianBlur(noise, noise, cv::Size(), smooth);
    mask = noise > 0;
    return path = ZPPathBuilder(zp::ConstMaskView{mask.data, kWidth, kHeight, kWidth}).path();
}

zp::AffineTransform zoom(double scale)
{
    zp::AffineTransform t;
    t.scale(scale, scale);
    return t;
}

constexpr zp::PixelBox kScreen{0, 0, 1600, 1000};

/// Arguments: smoothness, zoom in percent.
void BM_AntsTick(benchmark::State& state)
{
    const zp::BezierPath& path = outline(int(state.range(0)));
    const zp::AffineTransform map = zoom(double(state.range(1)) / 100);
    zp::OutlineDrawing drawing;
    std::size_t points = 0;
    for (auto _ : state) {
        drawing.setPath(path, map);
        points = 0;
        drawing.visit(kScreen, [&](std::span<const zp::DevicePoint> line, double) { points += line.size(); });
        benchmark::DoNotOptimize(drawing.dirtyBoxes(kScreen).size());
    }
    state.counters["elements"] = path.elementCount();
    state.counters["points"] = double(points);
    state.counters["boxes"] = double(drawing.dirtyBoxes(kScreen).size());
}

/// A new outline, or a new zoom.
void BM_AntsNewOutline(benchmark::State& state)
{
    const zp::BezierPath& path = outline(int(state.range(0)));
    zp::OutlineDrawing drawing;
    for (auto _ : state) {
        drawing.clear();
        drawing.setPath(path, zoom(double(state.range(1)) / 100));
    }
    state.counters["elements"] = path.elementCount();
    state.counters["points"] = double(drawing.pointCount());
}

} // namespace

BENCHMARK(BM_AntsTick)->ArgsProduct({{3, 30}, {12, 25, 100, 400}})->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_AntsNewOutline)->ArgsProduct({{3, 30}, {12, 100}})->Unit(benchmark::kMillisecond);
