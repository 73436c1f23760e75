// SPDX-License-Identifier: GPL-3.0-or-later
/// Tracing masks of 24 megapixels, beside OpenCV's contour finder on the same pixels.
#include "drawing/BitmapContext.h"
#include "selection/MaskOps.h"
#include "selection/OutlineTracer.h"
#include "selection/ZPPathBuilder.h"
#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>

namespace
{

constexpr int kWidth = 6000, kHeight = 4000;

/// Clouds of every size with a sensor's noise on them: what a photograph looks like to a wand.
const cv::Mat& photograph()
{
    static const cv::Mat image = [] {
        cv::setNumThreads(1);
        cv::RNG random(7);
        cv::Mat sum = cv::Mat::zeros(kHeight, kWidth, CV_32F);
        for (int step = 1024; step >= 4; step /= 2) {
            cv::Mat coarse(kHeight / step + 2, kWidth / step + 2, CV_32F), fine;
            random.fill(coarse, cv::RNG::NORMAL, 0, std::sqrt(double(step)) * 1.2);
            cv::resize(coarse, fine, cv::Size(kWidth, kHeight), 0, 0, cv::INTER_CUBIC);
            sum += fine;
        }
        cv::Mat noise(kHeight, kWidth, CV_32F), gray;
        random.fill(noise, cv::RNG::NORMAL, 128, 2);
        sum += noise;
        sum.convertTo(gray, CV_8U);
        return gray;
    }();
    return image;
}

/// 255 inside; made once.
const cv::Mat& maskNamed(int which)
{
    static std::map<int, cv::Mat> made;
    cv::Mat& mask = made[which];
    if (!mask.empty()) return mask;
    cv::Mat gray;
    switch (which) {
    case 0: // local threshold: fine structure all over
        cv::GaussianBlur(photograph(), gray, cv::Size(), 2);
        cv::adaptiveThreshold(gray, mask, 255, cv::ADAPTIVE_THRESH_MEAN_C, cv::THRESH_BINARY, 51, 0);
        break;
    case 1: { // a wand's region with its islands and ragged edges
        cv::Mat flood(kHeight + 2, kWidth + 2, CV_8U, cv::Scalar(0));
        cv::Mat image = photograph().clone();
        cv::floodFill(image, flood, cv::Point(kWidth / 2, kHeight / 2), cv::Scalar(), nullptr, cv::Scalar(30),
                      cv::Scalar(30), 4 | cv::FLOODFILL_FIXED_RANGE | cv::FLOODFILL_MASK_ONLY | (255 << 8));
        mask = flood(cv::Rect(1, 1, kWidth, kHeight)).clone();
        break;
    }
    default: // a few smooth shapes
        mask = cv::Mat::zeros(kHeight, kWidth, CV_8U);
        cv::ellipse(mask, {3000, 2000}, {2500, 1500}, 10, 0, 360, cv::Scalar(255), -1);
        cv::ellipse(mask, {2000, 1800}, {700, 500}, 50, 0, 360, cv::Scalar(0), -1);
        cv::ellipse(mask, {4000, 2200}, {500, 700}, 30, 0, 360, cv::Scalar(0), -1);
        break;
    }
    return mask;
}

void BM_Trace(benchmark::State& state)
{
    cv::Mat inverted;
    cv::bitwise_not(maskNamed(int(state.range(0))), inverted);
    const zp::ConstMaskView mask{inverted.data, kWidth, kHeight, kWidth};
    int elements = 0;
    for (auto _ : state) {
        const zp::BezierPath path = ZPPathBuilder(mask).path();
        elements = path.elementCount();
        benchmark::DoNotOptimize(&path);
    }
    state.counters["elements"] = elements;
    state.SetItemsProcessed(state.iterations() * kWidth * kHeight);
}

void BM_TraceOpenCV(benchmark::State& state)
{
    cv::setNumThreads(1);
    const cv::Mat& mask = maskNamed(int(state.range(0)));
    std::vector<std::vector<cv::Point>> contours;
    std::vector<cv::Vec4i> hierarchy;
    for (auto _ : state) cv::findContours(mask, contours, hierarchy, cv::RETR_CCOMP, cv::CHAIN_APPROX_SIMPLE);
    std::size_t points = 0;
    for (const auto& contour : contours) points += contour.size();
    state.counters["points"] = double(points);
    state.counters["contours"] = double(contours.size());
    state.SetItemsProcessed(state.iterations() * kWidth * kHeight);
}

/// Everything the command does besides asking for a redraw: set, fill, trace, shift.
void BM_SelectInverse(benchmark::State& state)
{
    std::vector<std::uint8_t> bytes(std::size_t(kWidth) * kHeight);
    const zp::MaskView mask{bytes.data(), kWidth, kHeight, kWidth};
    zp::BezierPath outline = zp::BezierPath::withOvalInRect(zp::makeRect(300, 200, 5000, 3500));
    if (state.range(0)) { // a wand's outline instead of an oval
        cv::Mat inverted;
        cv::bitwise_not(maskNamed(1), inverted);
        outline = ZPPathBuilder(zp::ConstMaskView{inverted.data, kWidth, kHeight, kWidth}).path();
    }
    for (auto _ : state) {
        zp::fillMask(mask, zp::kSelected);
        zp::renderPathInMask(mask, outline, zp::kNotSelected);
        zp::BezierPath path = ZPPathBuilder(mask).path();
        zp::AffineTransform up;
        up.translate(0, -1);
        path.transform(up);
        benchmark::DoNotOptimize(&path);
    }
}

} // namespace

BENCHMARK(BM_Trace)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TraceOpenCV)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SelectInverse)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
