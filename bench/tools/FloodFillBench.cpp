// SPDX-License-Identifier: GPL-3.0-or-later
/// Flood fill and magic wand on 24-megapixel pictures, beside OpenCV's flood fill of the same picture in the same run.
#include "base/BitmapRep.h"
#include "tools/FloodFill.h"
#include "tools/MagicWand.h"
#include "tools/TileBounds.h"
#include "tools/TileRegion.h"
#include <benchmark/benchmark.h>
#include <map>
#include <opencv2/imgproc.hpp>
#include <random>

namespace
{

using namespace zp;

constexpr int kWidth = 6000, kHeight = 4000;
constexpr int kOpen = 200, kShut = 20;

enum Kind { Uniform, Photo, Drawing, Percolation, Percolation60, Comb, Columns, Rows, Spiral, Checker };
constexpr const char* kNames[] = {"uniform", "photo",   "drawing", "percolation 65 %", "percolation 60 %",
                                  "comb",    "columns", "rows",    "spiral",           "checker"};

struct Subject {
    cv::Mat grey;
    cv::Point seed{0, 0};
    int tolerance = 8; ///< a byte matches when it differs by less
};

void drawSpiral(cv::Mat& grey)
{
    grey = cv::Scalar(kShut);
    int x0 = 0, y0 = 0, x1 = kWidth - 1, y1 = kHeight - 1;
    while (x1 - x0 > 3 && y1 - y0 > 3) {
        cv::line(grey, {x0, y0}, {x1, y0}, kOpen);
        cv::line(grey, {x1, y0}, {x1, y1}, kOpen);
        cv::line(grey, {x0, y1}, {x1, y1}, kOpen);
        cv::line(grey, {x0, y0 + 2}, {x0, y1}, kOpen);
        cv::line(grey, {x0, y0 + 2}, {x0 + 2, y0 + 2}, kOpen);
        x0 += 2, y0 += 2, x1 -= 2, y1 -= 2;
    }
}

const Subject& subject(Kind kind)
{
    static std::map<int, Subject> made;
    if (const auto found = made.find(kind); found != made.end()) return found->second;
    Subject& s = made[kind];
    s.grey = cv::Mat(kHeight, kWidth, CV_8UC1, cv::Scalar(kOpen));
    std::mt19937 random(1234);
    switch (kind) {
    case Photo: {
        // Soft shapes with noise, about a sixth of which lies within the tolerance of the seed and hangs together.
        cv::Mat small(40, 60, CV_8UC1);
        cv::theRNG().state = 77;
        cv::randu(small, 0, 256);
        cv::GaussianBlur(small, small, {}, 4);
        cv::normalize(small, small, 10, 245, cv::NORM_MINMAX);
        cv::resize(small, s.grey, s.grey.size(), 0, 0, cv::INTER_CUBIC);
        cv::Mat noise(s.grey.size(), CV_8SC1);
        cv::randn(noise, 0, 2);
        cv::add(s.grey, noise, s.grey, cv::noArray(), CV_8U);
        s.seed = {kWidth / 2, kHeight / 2};
        s.tolerance = 32;
        break;
    }
    case Drawing:
        cv::ellipse(s.grey, {3000, 2000}, {1500, 1300}, 30, 0, 360, kShut, cv::FILLED);
        for (int i = 0; i < 40; ++i) cv::line(s.grey, {i * 150, 0}, {6000 - i * 97, 3999}, i % 2 ? kOpen : kShut, 3);
        break;
    case Percolation:
    case Percolation60: {
        const unsigned open = kind == Percolation ? 65 : 60;
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                if (random() % 100 >= open) s.grey.at<std::uint8_t>(y, x) = kShut;
        s.grey.row(kHeight / 2) = cv::Scalar(kOpen); // so that the seed hangs together with the large cluster
        s.seed = {kWidth / 2, kHeight / 2};
        break;
    }
    case Comb:
        for (int x = 1; x < kWidth; x += 2) s.grey.col(x).rowRange(1, kHeight) = cv::Scalar(kShut);
        break;
    case Columns:
        for (int x = 1; x < kWidth; x += 2)
            s.grey.col(x).rowRange(x / 2 % 2 ? 1 : 0, x / 2 % 2 ? kHeight : kHeight - 1) = cv::Scalar(kShut);
        break;
    case Rows:
        for (int y = 1; y < kHeight; y += 2)
            s.grey.row(y).colRange(y / 2 % 2 ? 1 : 0, y / 2 % 2 ? kWidth : kWidth - 1) = cv::Scalar(kShut);
        break;
    case Spiral:
        drawSpiral(s.grey);
        break;
    case Checker:
        for (int y = 0; y < kHeight; ++y)
            for (int x = y % 2 ? 0 : 1; x < kWidth; x += 2) s.grey.at<std::uint8_t>(y, x) = kShut;
        break;
    default:
        break;
    }
    return s;
}

std::shared_ptr<BitmapRep> canvasCopy(const cv::Mat& grey)
{
    auto rep = BitmapRep::create(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) rep->view().row(y)[x] = 0x010101u * grey.at<std::uint8_t>(y, x) << 8 | 0xFF;
    return rep;
}

/// How many pixels changed, so that both fills can be seen to do the same work.
void fill(benchmark::State& state, Kind kind)
{
    const Subject& s = subject(kind);
    const std::shared_ptr<BitmapRep> original = canvasCopy(s.grey), work = BitmapRep::create(kWidth, kHeight);
    const std::size_t bytes = std::size_t(original->bytesPerRow()) * kHeight;
    constexpr std::uint32_t kFill = 0x0000FFFF;
    for (auto _ : state) {
        state.PauseTiming();
        std::memcpy(work->bitmapData(), original->bitmapData(), bytes);
        state.ResumeTiming();
        benchmark::DoNotOptimize(floodFill(work->view(), {}, {s.seed.x, s.seed.y}, kFill, s.tolerance,
                                           sharedFillStack(), sharedTileRegion()));
    }
    std::size_t filled = 0;
    for (int y = 0; y < kHeight; ++y)
        filled += std::size_t(std::count(work->view().row(y), work->view().row(y) + kWidth, kFill));
    state.counters["pixels"] = double(filled);
}

void fillPeer(benchmark::State& state, Kind kind)
{
    cv::setNumThreads(1);
    const Subject& s = subject(kind);
    cv::Mat original, work;
    cv::cvtColor(s.grey, original, cv::COLOR_GRAY2BGR);
    int filled = 0;
    for (auto _ : state) {
        state.PauseTiming();
        original.copyTo(work);
        state.ResumeTiming();
        const int t = s.tolerance - 1;
        filled = cv::floodFill(work, s.seed, {0, 0, 255}, nullptr, cv::Scalar::all(t), cv::Scalar::all(t),
                               4 | cv::FLOODFILL_FIXED_RANGE);
    }
    state.counters["pixels"] = filled;
}

void wand(benchmark::State& state, Kind kind)
{
    const Subject& s = subject(kind);
    const std::shared_ptr<BitmapRep> picture = canvasCopy(s.grey);
    const PixelMemory mask = allocatePixels(std::size_t(kWidth) * kHeight);
    const MaskView view{mask.get(), kWidth, kHeight, kWidth};
    const std::uint32_t target = picture->view().row(s.seed.y)[s.seed.x];
    for (auto _ : state) {
        state.PauseTiming();
        std::memset(mask.get(), 255, std::size_t(kWidth) * kHeight);
        state.ResumeTiming();
        benchmark::DoNotOptimize(magicWand(picture->view(), view, true, {s.seed.x, s.seed.y}, target, s.tolerance,
                                           sharedFillStack(), sharedTileRegion()));
    }
    state.counters["pixels"] = double(std::count(mask.get(), mask.get() + std::size_t(kWidth) * kHeight, 0));
}

void wandPeer(benchmark::State& state, Kind kind)
{
    cv::setNumThreads(1);
    const Subject& s = subject(kind);
    cv::Mat picture, mask(kHeight + 2, kWidth + 2, CV_8UC1);
    cv::cvtColor(s.grey, picture, cv::COLOR_GRAY2BGR);
    int filled = 0;
    for (auto _ : state) {
        state.PauseTiming();
        mask = cv::Scalar(0);
        state.ResumeTiming();
        const int t = s.tolerance - 1;
        filled = cv::floodFill(picture, mask, s.seed, {}, nullptr, cv::Scalar::all(t), cv::Scalar::all(t),
                               4 | cv::FLOODFILL_FIXED_RANGE | cv::FLOODFILL_MASK_ONLY | 255 << 8);
    }
    state.counters["pixels"] = filled;
}

/// What the wand would take, found and shown before a press: nothing is marked.
/// @param looked  the picture was looked over beforehand
void previewed(benchmark::State& state, Kind kind, bool looked)
{
    const Subject& s = subject(kind);
    const std::shared_ptr<BitmapRep> picture = canvasCopy(s.grey);
    const ConstBitmapView view = picture->view();
    const std::uint32_t target = view.row(s.seed.y)[s.seed.x];
    TileBounds bounds;
    bounds.reset(kWidth, kHeight);
    const auto always = [] { return true; };
    if (looked) bounds.goOn(view, always);
    TileRegion found;
    std::size_t pixels = 0;
    for (auto _ : state) {
        found.start(view, {}, {s.seed.x, s.seed.y}, {target, s.tolerance, false}, &bounds);
        found.goOn(always);
        pixels = found.count();
        benchmark::DoNotOptimize(found.box());
    }
    state.counters["pixels"] = double(pixels);
}
void preview(benchmark::State& state, Kind kind) { previewed(state, kind, true); }
void previewAtFirst(benchmark::State& state, Kind kind) { previewed(state, kind, false); }

/// The look over the picture.
void look(benchmark::State& state, Kind kind)
{
    const std::shared_ptr<BitmapRep> picture = canvasCopy(subject(kind).grey);
    TileBounds bounds;
    for (auto _ : state) {
        bounds.reset(kWidth, kHeight);
        benchmark::DoNotOptimize(bounds.goOn(std::as_const(*picture).view(), [] { return true; }));
    }
}

struct Run {
    const char* name;
    void (*run)(benchmark::State&, Kind);
};
constexpr Run kRuns[] = {{"fill", fill},       {"fill, OpenCV", fillPeer},
                         {"wand", wand},       {"wand, OpenCV", wandPeer},
                         {"preview", preview}, {"preview, not looked", previewAtFirst},
                         {"look", look}};

const bool registered = [] {
    for (const Kind kind : {Uniform, Photo, Drawing, Percolation, Percolation60, Comb, Columns, Rows, Spiral, Checker})
        for (const auto& [name, run] : kRuns)
            benchmark::RegisterBenchmark((std::string(name) + "/" + kNames[kind]).c_str(),
                                         [run = run, kind](benchmark::State& state) { run(state, kind); })
                ->Unit(benchmark::kMillisecond)
                ->Iterations(9)
                ->UseRealTime();
    return true;
}();

} // namespace
