// SPDX-License-Identifier: GPL-3.0-or-later
/// Makes the pictures.
#include "codecs/BenchPictures.h"
#include "codecs/ImageImporter.h"
#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>
#include <random>
#include <string>
#include <turbojpeg.h>

namespace zp::bench
{
namespace
{

void enlargePhoto(BitmapRep& rep, cv::Mat target)
{
    const auto source = importImageFile(std::string(ZP_TESTDATA) + "/images/photos/tahoe-gps.jpg").bitmap;
    const cv::Mat from(source->pixelsHigh(), source->pixelsWide(), CV_8UC4, source->bitmapData(),
                       std::size_t(source->bytesPerRow()));
    cv::resize(from, target, target.size(), 0, 0, cv::INTER_LINEAR);
    std::mt19937 random(1);
    std::normal_distribution<float> noise(0, 2);
    std::vector<int> table(65536);
    for (int& n : table) n = int(std::lround(noise(random)));
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            std::uint8_t* p = rep.view().pixel(x, y);
            p[0] = 255;
            for (int k = 1; k < 4; ++k) p[k] = std::uint8_t(std::clamp(p[k] + table[random() & 65535], 0, 255));
        }
}

void drawShapes(cv::Mat target)
{
    target = cv::Scalar(255, 250, 248, 240);
    for (int i = 0; i < 60; ++i)
        cv::rectangle(target, {i * 97 % kWidth, i * 131 % kHeight, 700, 500},
                      cv::Scalar(255, i * 40 % 256, i * 70 % 256, i * 110 % 256), cv::FILLED);
    cv::ellipse(target, {3000, 2000}, {2500, 1500}, 20, 0, 360, cv::Scalar(255, 20, 20, 60), 9, cv::LINE_AA);
}

} // namespace

std::shared_ptr<BitmapRep> picture(Look look)
{
    static std::shared_ptr<BitmapRep> made[3];
    auto& rep = made[look];
    if (rep) return rep;
    if (look == Camera) return rep = importImage(turboEncode(*picture(Photo), 92)).bitmap;
    rep = BitmapRep::create(kWidth, kHeight);
    const cv::Mat target(kHeight, kWidth, CV_8UC4, rep->bitmapData(), std::size_t(rep->bytesPerRow()));
    if (look == Photo)
        enlargePhoto(*rep, target);
    else
        drawShapes(target);
    return rep;
}

std::vector<std::uint8_t> turboEncode(const BitmapRep& rep, int quality)
{
    static const tjhandle handle = tjInitCompress();
    unsigned char* out = nullptr;
    unsigned long bytes = 0;
    tjCompress2(handle, rep.bitmapData(), kWidth, int(rep.bytesPerRow()), kHeight, TJPF_XRGB, &out, &bytes, TJSAMP_420,
                quality, 0);
    std::vector<std::uint8_t> result(out, out + bytes);
    tjFree(out);
    return result;
}

} // namespace zp::bench
