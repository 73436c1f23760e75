// SPDX-License-Identifier: GPL-3.0-or-later
/// Unions of large outlines, beside Clipper alone on the same corners.
#include "selection/OutlineTracer.h"
#include "selection/PathBooleans.h"
#include "selection/ZPPathBuilder.h"
#include <benchmark/benchmark.h>
#include <cmath>
#include <opencv2/imgproc.hpp>
#include <polyclipping/clipper.hpp>

namespace
{

/// A closed outline of 20,000 corners round (cx, cy) with @p waves teeth and a little roughness.
zp::BezierPath star(double cx, double cy, unsigned seed, double waves)
{
    constexpr int kCorners = 20000;
    zp::BezierPath path;
    std::srand(seed);
    for (int i = 0; i < kCorners; ++i) {
        const double angle = 2 * M_PI * i / kCorners;
        const double rough = 0.04 * (std::rand() / double(RAND_MAX) - 0.5);
        const double r = 1300 * (1 + 0.3 * std::sin(waves * angle) + rough);
        const zp::Point p{float(cx + 1.4 * r * std::cos(angle)), float(cy + r * std::sin(angle))};
        i ? path.lineTo(p) : path.moveTo(p);
    }
    path.closePath();
    path.setWindingRule(zp::WindingRule::EvenOdd);
    return path;
}

std::pair<zp::BezierPath, zp::BezierPath> pairOf(bool spiky)
{
    if (spiky) return {star(3000, 2000, 5, 1200), star(3050, 2030, 6, 1300)};
    return {star(3000, 2000, 5, 40), star(3150, 2080, 6, 43)};
}

ClipperLib::Path gridPath(const zp::BezierPath& path)
{
    ClipperLib::Path out;
    path.forEach([&](zp::PathElement kind, const zp::Point* p) {
        if (kind != zp::PathElement::ClosePath)
            out.push_back({std::llround(double(p->x) * 65536), std::llround(double(p->y) * 65536)});
    });
    return out;
}

void BM_Union(benchmark::State& state)
{
    auto [a, b] = pairOf(state.range(0));
    int elements = 0;
    for (auto _ : state) elements = zp::pathFromUnionWithPath(a, b).elementCount();
    state.counters["elements"] = elements;
}

void BM_UnionClipperAlone(benchmark::State& state)
{
    const auto [a, b] = pairOf(state.range(0));
    const ClipperLib::Path subject = gridPath(a), clip = gridPath(b);
    ClipperLib::Paths out;
    for (auto _ : state) {
        ClipperLib::Clipper clipper;
        clipper.AddPath(subject, ClipperLib::ptSubject, true);
        clipper.AddPath(clip, ClipperLib::ptClip, true);
        clipper.Execute(ClipperLib::ctUnion, out, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
    }
    std::size_t points = 0;
    for (const ClipperLib::Path& path : out) points += path.size();
    state.counters["points"] = double(points);
}

/// A scribble of long straight strokes that cross most of the others, joined with a rectangle: 2,000 right across the
/// picture, or 20,000 of 600 pixels.
void BM_UnionOfStrokes(benchmark::State& state)
{
    const int count = int(state.range(0));
    std::srand(5);
    const auto share = [] { return std::rand() / double(RAND_MAX); };
    zp::BezierPath scribble;
    double x = 3000, y = 2000;
    for (int i = 0; i < count; ++i) {
        if (count <= 2000) {
            x = share() * 6000, y = share() * 4000;
        } else {
            const double angle = share() * 2 * M_PI;
            x += 600 * std::cos(angle), y += 600 * std::sin(angle);
            if (x < 0 || x > 6000) x = 3000;
            if (y < 0 || y > 4000) y = 2000;
        }
        const zp::Point p{float(x), float(y)};
        i ? scribble.lineTo(p) : scribble.moveTo(p);
    }
    scribble.closePath();
    scribble.setWindingRule(zp::WindingRule::EvenOdd);
    zp::BezierPath box = zp::BezierPath::withRect(zp::makeRect(1000, 1000, 3000, 2000));
    int elements = 0;
    for (auto _ : state) elements = zp::pathFromUnionWithPath(scribble, box).elementCount();
    state.counters["elements"] = elements;
}

/// Two wand selections of a blurred noise: about @p side squared / 100 corners each.
zp::BezierPath wandOutline(int side, unsigned seed)
{
    cv::RNG random(seed);
    cv::Mat noise(side, side, CV_8U), mask;
    random.fill(noise, cv::RNG::UNIFORM, 0, 256);
    cv::GaussianBlur(noise, noise, cv::Size(), 3);
    cv::threshold(noise, mask, 127, 255, cv::THRESH_BINARY);
    return ZPPathBuilder(zp::ConstMaskView{mask.data, side, side, side}).path();
}

void BM_UnionOfTraced(benchmark::State& state)
{
    zp::BezierPath a = wandOutline(int(state.range(0)), 1), b = wandOutline(int(state.range(0)), 2);
    state.counters["corners"] = a.elementCount() + b.elementCount();
    for (auto _ : state) benchmark::DoNotOptimize(zp::pathFromUnionWithPath(a, b).elementCount());
}

void BM_UnionOfTracedClipperAlone(benchmark::State& state)
{
    zp::BezierPath paths[2] = {wandOutline(int(state.range(0)), 1), wandOutline(int(state.range(0)), 2)};
    ClipperLib::Paths grids[2];
    for (int i = 0; i < 2; ++i) {
        ClipperLib::Path loop;
        paths[i].forEach([&](zp::PathElement kind, const zp::Point* p) {
            if (kind == zp::PathElement::ClosePath)
                grids[i].push_back(std::exchange(loop, {}));
            else
                loop.push_back({std::llround(double(p->x) * 65536), std::llround(double(p->y) * 65536)});
        });
    }
    for (auto _ : state) {
        ClipperLib::Clipper clipper;
        ClipperLib::Paths out;
        clipper.AddPaths(grids[0], ClipperLib::ptSubject, true);
        clipper.AddPaths(grids[1], ClipperLib::ptClip, true);
        clipper.Execute(ClipperLib::ctUnion, out, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
        benchmark::DoNotOptimize(out.data());
    }
}

} // namespace

BENCHMARK(BM_Union)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnionClipperAlone)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnionOfStrokes)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK(BM_UnionOfTraced)->Arg(512)->Arg(4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnionOfTracedClipperAlone)->Arg(512)->Unit(benchmark::kMillisecond);
