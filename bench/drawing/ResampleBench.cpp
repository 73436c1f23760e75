// SPDX-License-Identifier: GPL-3.0-or-later
/// Resizing 24 megapixels beside OpenCV's area and cubic filters, in the same run.
#include "base/BitmapRep.h"
#include "drawing/Resample.h"
#include "support/NoisePicture.h"
#include "support/OpenCvPeer.h"
#include <QImage>
#include <benchmark/benchmark.h>
#include <map>
#include <opencv2/imgproc.hpp>

using namespace zp;
using bench::matOf;

namespace
{

BitmapRep& sized(int width, int height)
{
    static std::map<std::pair<int, int>, std::shared_ptr<BitmapRep>> pictures;
    auto& rep = pictures[{width, height}];
    if (!rep) rep = bench::noisePicture(width, height);
    return *rep;
}
void ours(benchmark::State& state)
{
    BitmapRep& source = sized(int(state.range(0)), int(state.range(1)));
    const auto out = BitmapRep::create(int(state.range(2)), int(state.range(3)));
    for (auto _ : state) {
        resample(std::as_const(source).view(), out->view());
        benchmark::ClobberMemory();
    }
}

void theirs(benchmark::State& state)
{
    const cv::Mat source = matOf(sized(int(state.range(0)), int(state.range(1))));
    const auto rep = BitmapRep::create(int(state.range(2)), int(state.range(3)));
    cv::Mat out = matOf(*rep);
    const int filter = out.cols < source.cols ? cv::INTER_AREA : cv::INTER_CUBIC;
    for (auto _ : state) {
        cv::resize(source, out, out.size(), 0, 0, filter);
        benchmark::ClobberMemory();
    }
}

/// Qt's smooth scaling, with as many threads as it likes; its own byte order, which costs it nothing.
void theirsQt(benchmark::State& state)
{
    BitmapRep& rep = sized(int(state.range(0)), int(state.range(1)));
    const QImage source(rep.bitmapData(), rep.pixelsWide(), rep.pixelsHigh(), qsizetype(rep.bytesPerRow()),
                        QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        const QImage out =
            source.scaled(int(state.range(2)), int(state.range(3)), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        benchmark::DoNotOptimize(out.constBits());
    }
}

void sizes(benchmark::internal::Benchmark* bench)
{
    bench->Args({6000, 4000, 1600, 1067})
        ->Args({6000, 4000, 3000, 2000})
        ->Args({6000, 4000, 5000, 3333})
        ->Args({6000, 4000, 300, 200})
        ->Args({3000, 2000, 6000, 4000})
        ->Args({5000, 3333, 6000, 4000})
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}
BENCHMARK(ours)->Name("BM_Resample")->Apply(sizes);
BENCHMARK(theirs)->Name("OpenCV_Resize")->Apply(sizes);
BENCHMARK(theirsQt)->Name("Qt_Smooth")->Apply(sizes);

} // namespace
