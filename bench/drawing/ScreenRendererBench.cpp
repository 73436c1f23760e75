// SPDX-License-Identifier: GPL-3.0-or-later
/// A redraw of a 1600 x 1000 view of 24 megapixels, beside the same reduction by OpenCV (which then still has to swap).
#include "base/BitmapRep.h"
#include "drawing/ScreenRenderer.h"
#include "support/NoisePicture.h"
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <opencv2/imgproc.hpp>

using namespace zp;

namespace
{

constexpr int kViewWidth = 1600, kViewHeight = 1000;

ConstBitmapView photo()
{
    static const std::shared_ptr<BitmapRep> rep = bench::noisePicture(6000, 4000);
    return std::as_const(*rep).view();
}

/// Argument: zoom in per cent. Where the picture is smaller than the view, the view is as large as the picture.
void BM_RenderToScreen(benchmark::State& state)
{
    setenv("ZELPANE_JOBS", "1", 0); // the goal is for one core; set it to 2 from outside for both
    const double scale = double(state.range(0)) / 100;
    std::vector<std::uint32_t> out(std::size_t(kViewWidth) * kViewHeight);
    const PixelBox box{0, 0, std::min(kViewWidth, int(6000 * scale)), std::min(kViewHeight, int(4000 * scale))};
    const ConstBitmapView image = photo();
    for (auto _ : state) {
        renderToScreen(image, out.data(), kViewWidth, box, scale, 0xFF000000);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_RenderToScreen)
    ->Arg(10)
    ->Arg(12)
    ->Arg(25)
    ->Arg(33)
    ->Arg(50)
    ->Arg(66)
    ->Arg(75)
    ->Arg(100)
    ->Arg(150)
    ->Arg(400)
    ->Unit(benchmark::kMillisecond);

void BM_OpenCVResize(benchmark::State& state)
{
    cv::setNumThreads(1);
    const double scale = double(state.range(0)) / 100;
    const int width = std::min(kViewWidth, int(6000 * scale)), height = std::min(kViewHeight, int(4000 * scale));
    const ConstBitmapView image = photo();
    const cv::Mat source(int(height / scale), int(width / scale), CV_8UC4, const_cast<std::uint8_t*>(image.data),
                         std::size_t(image.rowBytes));
    cv::Mat out(height, width, CV_8UC4);
    for (auto _ : state) {
        cv::resize(source, out, out.size(), 0, 0, scale < 1 ? cv::INTER_AREA : cv::INTER_NEAREST);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_OpenCVResize)
    ->Arg(10)
    ->Arg(12)
    ->Arg(25)
    ->Arg(33)
    ->Arg(50)
    ->Arg(66)
    ->Arg(75)
    ->Arg(150)
    ->Arg(400)
    ->Unit(benchmark::kMillisecond);

} // namespace
