// SPDX-License-Identifier: GPL-3.0-or-later
/// A folder of 12-megapixel photographs fitted and stamped, beside the same work by the bare libraries.
#include "base/Folders.h"
#include "base/WorkPool.h"
#include "batch/BatchJob.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include <benchmark/benchmark.h>
#include <cmath>
#include <opencv2/imgproc.hpp>
#include <random>
#include <turbojpeg.h>
#include <unistd.h>

namespace
{

using namespace zp;

constexpr int kImages = 12;

/// Two folders in the memory-backed temporary folder; the sources made once.
struct Folders {
    std::string source = temporaryFolder() + "/zelpane-bench-source-" + std::to_string(getpid());
    std::string destination = temporaryFolder() + "/zelpane-bench-destination-" + std::to_string(getpid());

    Folders()
    {
        createFolder(source);
        createFolder(destination);
        const auto photo = importImageFile(std::string(ZP_TESTDATA) + "/images/photos/tahoe-gps.jpg").bitmap;
        auto large = BitmapRep::create(4000, 3000);
        const cv::Mat from(photo->pixelsHigh(), photo->pixelsWide(), CV_8UC4, photo->bitmapData(),
                           std::size_t(photo->bytesPerRow()));
        cv::Mat to(3000, 4000, CV_8UC4, large->bitmapData(), std::size_t(large->bytesPerRow()));
        cv::resize(from, to, to.size(), 0, 0, cv::INTER_LINEAR);
        std::mt19937 random(5);
        for (int y = 0; y < 3000; ++y)
            for (int x = 0; x < 4000; ++x) {
                std::uint8_t* p = large->view().pixel(x, y);
                const int noise = int(random() % 9) - 4;
                for (int k = 1; k < 4; ++k) p[k] = std::uint8_t(std::clamp(p[k] + noise, 0, 255));
            }
        const auto bytes = encodeJPEG(large->view(), {}, {.factor = 0.9});
        for (int i = 0; i < kImages; ++i)
            writeFileSafely(source + "/" + std::to_string(i) + ".jpg", bytes.data(), bytes.size());
    }
    ~Folders()
    {
        removeItem(source);
        removeItem(destination);
    }
};

Folders& folders()
{
    static Folders made;
    return made;
}

void BatchToJPEG(benchmark::State& state)
{
    BatchSettings settings;
    settings.source = folders().source;
    settings.destination = folders().destination;
    settings.fitWidth = 1024;
    settings.fitHeight = 768;
    settings.jpeg = true;
    settings.tiff = state.range(0);
    settings.jobs = workerCount();
    auto mark = BitmapRep::create(256, 96);
    for (int y = 0; y < 96; ++y)
        for (int x = 0; x < 256; ++x) mark->view().row(y)[x] = 0x40404080;
    settings.watermark = mark;
    std::vector<std::string> names;
    batchNames(settings, names);
    for (auto _ : state) {
        const auto failures = runBatch(settings, names, {});
        if (!failures.empty()) state.SkipWithError(failures[0].error.c_str());
    }
    state.SetItemsProcessed(state.iterations() * kImages);
}

/// Half-size decoding by libjpeg-turbo, averaging by OpenCV, encoding; no watermark, as many threads.
void BatchToJPEGPeerTurboAndOpenCV(benchmark::State& state)
{
    cv::setNumThreads(1);
    for (auto _ : state)
        parallelFor(kImages, [&](int i) {
            const auto bytes = readWholeFile(folders().source + "/" + std::to_string(i) + ".jpg");
            const tjhandle decoder = tjInitDecompress(), encoder = tjInitCompress();
            cv::Mat half(1500, 2000, CV_8UC4), small;
            tjDecompress2(decoder, reinterpret_cast<const unsigned char*>(bytes->data()), bytes->size(), half.data,
                          2000, 0, 1500, TJPF_ARGB, 0);
            cv::resize(half, small, {1024, 768}, 0, 0, cv::INTER_AREA);
            unsigned char* out = nullptr;
            unsigned long count = 0;
            tjCompress2(encoder, small.data, 1024, 0, 768, TJPF_XRGB, &out, &count, TJSAMP_420, 70, 0);
            writeFileSafely(folders().destination + "/" + std::to_string(i) + ".jpg", out, count);
            tjFree(out);
            tjDestroy(decoder);
            tjDestroy(encoder);
        });
    state.SetItemsProcessed(state.iterations() * kImages);
}

BENCHMARK(BatchToJPEG)->Arg(0)->Arg(1)->ArgName("tiff")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BatchToJPEGPeerTurboAndOpenCV)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
