// SPDX-License-Identifier: GPL-3.0-or-later
/// Fills a hole in a picture file and, beside it, lets OpenCV's inpainting fill the same hole.
///
///     smartfill_looks PICTURE.ppm MASK.pgm RADIUS [faster|normal] OUTPUT-PREFIX [NAME=RESULT.ppm…]
///
/// The mask is white where the hole is. Writes PREFIX-smart.ppm, PREFIX-even.ppm, PREFIX-telea.ppm, PREFIX-ns.ppm and,
/// where OpenCV's xphoto is installed, PREFIX-shiftmap.ppm, and prints seconds, PSNR and SSIM over the hole's pixels,
/// for which the picture itself is the truth. What others made of the same hole is judged by the same measures.
#include "Pnm.h"
#include "smartfill/SmartFillEvening.h"
#include <chrono>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fstream>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <opencv2/photo.hpp>
#ifdef ZP_XPHOTO
#include <opencv2/xphoto.hpp>
#endif
#include <string>

namespace
{

cv::Mat readPicture(const std::string& path)
{
    zp::bench::Pnm pnm = zp::bench::readPnm(path);
    return cv::Mat(pnm.height, pnm.width, pnm.channels == 3 ? CV_8UC3 : CV_8UC1, pnm.bytes.data()).clone();
}

void writePnm(const std::string& path, const cv::Mat& picture)
{
    std::ofstream out(path, std::ios::binary);
    out << "P6\n" << picture.cols << " " << picture.rows << "\n255\n";
    out.write(reinterpret_cast<const char*>(picture.data), std::streamsize(picture.total() * picture.elemSize()));
}

double psnr(const cv::Mat& a, const cv::Mat& b, const cv::Mat& hole)
{
    cv::Mat d;
    cv::absdiff(a, b, d);
    d.convertTo(d, CV_64FC3);
    const cv::Scalar mean = cv::mean(d.mul(d), hole);
    return 10 * std::log10(255 * 255 / std::max(1e-9, (mean[0] + mean[1] + mean[2]) / 3));
}

/// The usual structural similarity: luma, a Gaussian window of sigma 1.5, averaged over the hole.
double ssim(const cv::Mat& a, const cv::Mat& b, const cv::Mat& hole)
{
    const auto luma = [](const cv::Mat& picture) {
        cv::Mat grey;
        cv::cvtColor(picture, grey, cv::COLOR_RGB2GRAY);
        grey.convertTo(grey, CV_64F);
        return grey;
    };
    const auto blurred = [](const cv::Mat& m) {
        cv::Mat out;
        cv::GaussianBlur(m, out, {11, 11}, 1.5);
        return out;
    };
    const cv::Mat x = luma(a), y = luma(b), mx = blurred(x), my = blurred(y);
    const cv::Mat vx = blurred(x.mul(x)) - mx.mul(mx), vy = blurred(y.mul(y)) - my.mul(my);
    const cv::Mat vxy = blurred(x.mul(y)) - mx.mul(my);
    const double c1 = 6.5025, c2 = 58.5225;
    const cv::Mat top = (2 * mx.mul(my) + c1).mul(2 * vxy + c2);
    const cv::Mat bottom = (mx.mul(mx) + my.mul(my) + c1).mul(vx + vy + c2);
    return cv::mean(top / bottom, hole)[0];
}

template <class F>
double seconds(F&& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv)
try {
    if (argc < 6) {
        std::fputs("smartfill_looks PICTURE.ppm MASK.pgm RADIUS faster|normal OUTPUT-PREFIX [NAME=RESULT.ppm…]\n",
                   stderr);
        return 2;
    }
    const cv::Mat truth = readPicture(argv[1]), hole = readPicture(argv[2]);
    const bool faster = std::string(argv[4]) == "faster";
    const std::string prefix = argv[5];
    cv::Rect box = cv::boundingRect(hole);

    cv::Mat argb(truth.size(), CV_8UC4, cv::Scalar(255, 0, 0, 0));
    const int channels[] = {0, 1, 1, 2, 2, 3};
    cv::mixChannels(&truth, 1, &argb, 1, channels, 3);
    const zp::SmartFillArea area =
        zp::smartFillArea(zp::makeRect(float(box.x), float(box.y), float(box.width), float(box.height)), truth.cols,
                          truth.rows, std::atoi(argv[3]), faster);
    // Both ways, from the same random numbers.
    const auto filledBy = [&](cv::Mat& result, auto fill) {
        cv::Mat filled = argb.clone();
        const zp::BitmapView view{filled.data, filled.cols, filled.rows, std::ptrdiff_t(filled.step)};
        const double took = seconds([&] {
            zp::SmartFillPicture picture =
                zp::fetchSmartFillPicture(view, {hole.data, hole.cols, hole.rows, std::ptrdiff_t(hole.step)}, area);
            if (fill(picture) == zp::SmartFillStatus::Filled) zp::writeBackSmartFill(view, picture, area);
        });
        result.create(truth.size(), CV_8UC3);
        const int back[] = {1, 0, 2, 1, 3, 2};
        cv::mixChannels(&filled, 1, &result, 1, back, 3);
        return took;
    };
    cv::Mat smart, even;
    const double smartSeconds = filledBy(smart, [](auto& picture) { return zp::fillSmartFillPicture(picture, 1, {}); });
    const double evenSeconds = filledBy(even, [](auto& picture) { return zp::fillEvenly(picture, 1, {}); });

    cv::Mat telea, ns;
    const double teleaSeconds = seconds([&] { cv::inpaint(truth, hole, telea, 5, cv::INPAINT_TELEA); });
    const double nsSeconds = seconds([&] { cv::inpaint(truth, hole, ns, 5, cv::INPAINT_NS); });
    const auto report = [&](const char* name, const cv::Mat& result, double took) {
        std::printf("%s %.3f s PSNR %.2f SSIM %.3f  ", name, took, psnr(truth, result, hole),
                    ssim(truth, result, hole));
        writePnm(prefix + "-" + name + ".ppm", result);
    };
    std::printf("%dx%d at %d,%d: ", box.width, box.height, box.x, box.y);
    report("smart", smart, smartSeconds);
    report("even", even, evenSeconds);
    report("telea", telea, teleaSeconds);
    report("ns", ns, nsSeconds);
#ifdef ZP_XPHOTO
    // Its mask is 0 where the hole is, and it works in Lab, as its makers advise.
    cv::Mat lab, filled, shiftMap, kept;
    cv::bitwise_not(hole, kept);
    const double shiftSeconds = seconds([&] {
        cv::cvtColor(truth, lab, cv::COLOR_RGB2Lab);
        cv::xphoto::inpaint(lab, kept, filled, cv::xphoto::INPAINT_SHIFTMAP);
        cv::cvtColor(filled, shiftMap, cv::COLOR_Lab2RGB);
    });
    report("shiftmap", shiftMap, shiftSeconds);
#endif
    for (int i = 6; i < argc; ++i) {
        const std::string word = argv[i];
        const std::size_t equals = word.find('=');
        const cv::Mat result = readPicture(word.substr(equals + 1));
        std::printf("%s PSNR %.2f SSIM %.3f  ", word.substr(0, equals).c_str(), psnr(truth, result, hole),
                    ssim(truth, result, hole));
    }
    std::puts("");
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
