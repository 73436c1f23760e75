// SPDX-License-Identifier: GPL-3.0-or-later
/// Coverage, blending and image drawing beside AGG and OpenCV on pictures of 24 megapixels.
#include "base/BitmapRep.h"
#include "drawing/BitmapContext.h"
#include "drawing/ImageLevels.h"
#include "support/OpenCvPeer.h"
#include <agg_pixfmt_gray.h>
#include <agg_pixfmt_rgba.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_scanline.h>
#include <agg_scanline_u.h>
#include <array>
#include <benchmark/benchmark.h>
#include <cstring>
#include <numbers>
#include <opencv2/imgproc.hpp>
#include <random>

using namespace zp;
using bench::matOf;

namespace
{
constexpr int kWidth = 6000, kHeight = 4000;
using Outline = std::vector<std::pair<double, double>>;

/// A wobbly star of 1,000 vertices that covers about 7.8 megapixels.
const Outline& star()
{
    static const Outline points = [] {
        Outline p;
        std::mt19937 random(1);
        std::uniform_real_distribution<double> wobble(-0.02, 0.02);
        for (int i = 0; i < 1000; ++i) {
            const double a = 2 * std::numbers::pi * i / 1000, r = 1300 * (1 + 0.3 * std::sin(17 * a) + wobble(random));
            p.push_back({3000 + 1.4 * r * std::cos(a), 2000 + r * std::sin(a)});
        }
        return p;
    }();
    return points;
}

/// 500 long teeth side by side.
const Outline& zigzag()
{
    static const Outline points = [] {
        Outline p;
        for (int i = 0; i < 500; ++i) p.push_back({20 + i * 11.9, i % 2 ? 3950.3 : 40.7});
        for (int i = 499; i >= 0; --i) p.push_back({23 + i * 11.9, i % 2 ? 3970.1 : 60.2});
        return p;
    }();
    return points;
}

const Outline& outlineOf(const benchmark::State& state) { return state.range(0) ? zigzag() : star(); }

std::vector<std::uint8_t>& maskMemory()
{
    static std::vector<std::uint8_t> memory(std::size_t{kWidth} * kHeight);
    return memory;
}

std::shared_ptr<BitmapRep> photo(int width, int height, bool translucent)
{
    auto rep = BitmapRep::create(width, height);
    std::mt19937 random(3);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            rep->view().row(y)[x] =
                translucent ? 0x80u | (std::uint32_t(random()) & 0x7F7F7F00u) : std::uint32_t(random()) | 255u;
    return rep;
}

void perPixel(benchmark::State& state, std::int64_t pixels) { state.SetItemsProcessed(state.iterations() * pixels); }

// ---- an outline into a mask ----------------------------------------------------------------------------------------

void BM_FillMask(benchmark::State& state)
{
    BezierPath path;
    for (const auto& [x, y] : outlineOf(state))
        path.isEmpty() ? path.moveTo({float(x), float(y)}) : path.lineTo({float(x), float(y)});
    path.closePath();
    auto& memory = maskMemory();
    for (auto _ : state) {
        state.PauseTiming();
        std::memset(memory.data(), 0, memory.size());
        state.ResumeTiming();
        fillPathInMask({memory.data(), kWidth, kHeight, kWidth}, path, 255);
    }
}
void BM_FillMaskAgg(benchmark::State& state)
{
    auto& memory = maskMemory();
    agg::rendering_buffer rows(memory.data(), kWidth, kHeight, kWidth);
    agg::pixfmt_gray8 format(rows);
    agg::renderer_base<agg::pixfmt_gray8> renderer(format);
    agg::rasterizer_scanline_aa<> raster(16384);
    agg::scanline_u8 line;
    for (auto _ : state) {
        state.PauseTiming();
        std::memset(memory.data(), 0, memory.size());
        state.ResumeTiming();
        raster.reset();
        raster.clip_box(0, 0, kWidth, kHeight);
        bool first = true;
        for (const auto& [x, y] : outlineOf(state)) {
            first ? raster.move_to_d(x, y) : raster.line_to_d(x, y);
            first = false;
        }
        agg::render_scanlines_aa_solid(raster, line, renderer, agg::gray8(255));
    }
}
void BM_FillMaskOpenCv(benchmark::State& state)
{
    auto& memory = maskMemory();
    cv::Mat mat(kHeight, kWidth, CV_8UC1, memory.data());
    std::vector<std::vector<cv::Point>> points(1);
    for (const auto& [x, y] : outlineOf(state)) points[0].push_back({int(x * 256), int(y * 256)});
    cv::setNumThreads(1);
    for (auto _ : state) {
        state.PauseTiming();
        std::memset(memory.data(), 0, memory.size());
        state.ResumeTiming();
        cv::fillPoly(mat, points, cv::Scalar(255), cv::LINE_AA, 8);
    }
}

// ---- a half-transparent colour over the whole picture --------------------------------------------------------------

void BM_FillColour(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false);
    BitmapContext context(canvas->view());
    context.setColor({1, 0, 0, 0.5f});
    for (auto _ : state) context.fillRect(makeRect(0, 0, kWidth, kHeight), CompositingOperation::SourceOver);
    perPixel(state, std::int64_t{kWidth} * kHeight);
}
void BM_FillColourAgg(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false);
    agg::rendering_buffer rows(canvas->bitmapData(), kWidth, kHeight, int(canvas->bytesPerRow()));
    agg::pixfmt_argb32_pre format(rows);
    agg::renderer_base<agg::pixfmt_argb32_pre> renderer(format);
    for (auto _ : state)
        renderer.blend_bar(0, 0, kWidth - 1, kHeight - 1, agg::rgba8(255, 0, 0, 128).premultiply(), 255);
    perPixel(state, std::int64_t{kWidth} * kHeight);
}

// ---- a 6-megapixel image over the picture: 0 opaque, 1 translucent, 2 opaque at half opacity -----------------------

void BM_DrawImage(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(3000, 2000, state.range(0) == 1);
    BitmapContext context(canvas->view());
    for (auto _ : state)
        context.drawImageAt(image->view(), {1003, 777}, CompositingOperation::SourceOver,
                            state.range(0) == 2 ? 0.5f : 1.0f);
    perPixel(state, 6'000'000);
}
void BM_DrawImageThroughOval(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(3000, 2000, state.range(0) == 1);
    for (auto _ : state) {
        BitmapContext context(canvas->view());
        context.addClip(BezierPath::withOvalInRect(makeRect(1003, 777, 3000, 2000)));
        context.drawImageAt(image->view(), {1003, 777}, CompositingOperation::SourceOver,
                            state.range(0) == 2 ? 0.5f : 1.0f);
    }
    perPixel(state, 6'000'000);
}
void BM_DrawImageAgg(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(3000, 2000, state.range(0) == 1);
    agg::rendering_buffer rows(canvas->bitmapData(), kWidth, kHeight, int(canvas->bytesPerRow()));
    agg::rendering_buffer imageRows(image->bitmapData(), 3000, 2000, int(image->bytesPerRow()));
    agg::pixfmt_argb32_pre format(rows), from(imageRows);
    agg::renderer_base<agg::pixfmt_argb32_pre> renderer(format);
    for (auto _ : state) renderer.blend_from(from, nullptr, 1003, 777, state.range(0) == 2 ? 128 : 255);
    perPixel(state, 6'000'000);
}

// ---- turned by 7 degrees, reduced, enlarged ------------------------------------------------------------------------

void BM_Turn(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(kWidth, kHeight, false);
    BitmapContext context(canvas->view());
    AffineTransform map;
    map.translate(kWidth / 2, kHeight / 2);
    map.rotateByDegrees(7);
    map.translate(-kWidth / 2, -kHeight / 2);
    context.concat(map);
    for (auto _ : state) context.drawImageAt(image->view(), {0, 0});
    perPixel(state, std::int64_t{kWidth} * kHeight);
}
void BM_TurnOpenCv(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(kWidth, kHeight, false);
    const cv::Mat to = matOf(*canvas), from = matOf(*image);
    const cv::Mat map = cv::getRotationMatrix2D({kWidth / 2.f, kHeight / 2.f}, -7, 1);
    for (auto _ : state) cv::warpAffine(from, to, map, to.size(), cv::INTER_CUBIC);
    perPixel(state, std::int64_t{kWidth} * kHeight);
}

/// Where the corners of the whole picture are pulled to, as when a wall is photographed from below.
const std::array<CurvePoint, 4> kPulled{CurvePoint{400, 150}, {5700, 0}, {6000, 4000}, {0, 3900}};

void BM_Perspective(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(kWidth, kHeight, false);
    BitmapContext context(canvas->view());
    const ImageLevels levels(image);
    const auto map = ProjectiveTransform::ofRect(image->view().box().rect(), kPulled);
    for (auto _ : state) context.drawLevels(levels, *map);
    perPixel(state, std::int64_t{kWidth} * kHeight);
}
void BM_PerspectiveOpenCv(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(kWidth, kHeight, false);
    const cv::Mat to = matOf(*canvas), from = matOf(*image);
    std::array<cv::Point2f, 4> own{cv::Point2f{0, 0}, {kWidth, 0}, {kWidth, kHeight}, {0, kHeight}}, pulled;
    for (std::size_t i = 0; i < 4; ++i) pulled[i] = {float(kPulled[i].x), float(kPulled[i].y)};
    const cv::Mat map = cv::getPerspectiveTransform(own.data(), pulled.data());
    for (auto _ : state) cv::warpPerspective(from, to, map, to.size(), cv::INTER_CUBIC);
    perPixel(state, std::int64_t{kWidth} * kHeight);
}

void BM_Levels(benchmark::State& state)
{
    const auto image = photo(kWidth, kHeight, false);
    for (auto _ : state) benchmark::DoNotOptimize(ImageLevels(image).count());
    perPixel(state, std::int64_t{kWidth} * kHeight);
}
void BM_LevelsOpenCv(benchmark::State& state)
{
    const auto image = photo(kWidth, kHeight, false);
    std::vector<cv::Mat> levels;
    for (auto _ : state) {
        levels.assign(1, matOf(*image));
        while (levels.back().rows > 1 && levels.back().cols > 1) {
            cv::Mat half;
            cv::resize(levels.back(), half, {(levels.back().cols + 1) / 2, (levels.back().rows + 1) / 2}, 0, 0,
                       cv::INTER_AREA);
            levels.push_back(half);
        }
    }
    perPixel(state, std::int64_t{kWidth} * kHeight);
}

void BM_Reduce(benchmark::State& state)
{
    const int width = int(state.range(0)), height = width * 2 / 3;
    const auto canvas = photo(width, height, false), image = photo(kWidth, kHeight, false);
    BitmapContext context(canvas->view());
    for (auto _ : state)
        context.drawImage(image->view(), makeRect(0, 0, float(width), float(height)), makeRect(0, 0, kWidth, kHeight));
    perPixel(state, std::int64_t{kWidth} * kHeight);
}
void BM_ReduceOpenCv(benchmark::State& state)
{
    const int width = int(state.range(0)), height = width * 2 / 3;
    const auto canvas = photo(width, height, false), image = photo(kWidth, kHeight, false);
    const cv::Mat to = matOf(*canvas), from = matOf(*image);
    for (auto _ : state) cv::resize(from, to, to.size(), 0, 0, cv::INTER_AREA);
    perPixel(state, std::int64_t{kWidth} * kHeight);
}

void BM_Enlarge(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(3000, 2000, false);
    BitmapContext context(canvas->view());
    for (auto _ : state) context.drawImage(image->view(), makeRect(0, 0, kWidth, kHeight), makeRect(0, 0, 3000, 2000));
    perPixel(state, std::int64_t{kWidth} * kHeight);
}
void BM_EnlargeOpenCv(benchmark::State& state)
{
    const auto canvas = photo(kWidth, kHeight, false), image = photo(3000, 2000, false);
    const cv::Mat to = matOf(*canvas), from = matOf(*image);
    for (auto _ : state) cv::resize(from, to, to.size(), 0, 0, cv::INTER_CUBIC);
    perPixel(state, std::int64_t{kWidth} * kHeight);
}
} // namespace

BENCHMARK(BM_FillMask)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_FillMaskAgg)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_FillMaskOpenCv)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_FillColour)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_FillColourAgg)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_DrawImage)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_DrawImageThroughOval)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_DrawImageAgg)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Turn)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_TurnOpenCv)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Perspective)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_PerspectiveOpenCv)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Levels)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_LevelsOpenCv)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Reduce)->Arg(1600)->Arg(3000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_ReduceOpenCv)->Arg(1600)->Arg(3000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Enlarge)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_EnlargeOpenCv)->Unit(benchmark::kMillisecond)->UseRealTime();
