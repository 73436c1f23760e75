// SPDX-License-Identifier: GPL-3.0-or-later
/// Opening and saving 24 megapixels beside the bare libraries, memory to memory.
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "codecs/TIFFSource.h"
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <opencv2/imgproc.hpp>
#include <png.h>
#include <random>
#include <turbojpeg.h>
#include <unistd.h>

namespace
{

using namespace zp;

constexpr int kWidth = 6000, kHeight = 4000;

/// A photograph enlarged, with the noise of a sensor; or flat colours and a curve.
std::shared_ptr<BitmapRep> picture(bool photo)
{
    static std::shared_ptr<BitmapRep> made[2];
    auto& rep = made[photo];
    if (rep) return rep;
    rep = BitmapRep::create(kWidth, kHeight);
    cv::Mat target(kHeight, kWidth, CV_8UC4, rep->bitmapData(), std::size_t(rep->bytesPerRow()));
    if (photo) {
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
                std::uint8_t* p = rep->view().pixel(x, y);
                p[0] = 255;
                for (int k = 1; k < 4; ++k) p[k] = std::uint8_t(std::clamp(p[k] + table[random() & 65535], 0, 255));
            }
    } else {
        target = cv::Scalar(255, 250, 248, 240);
        for (int i = 0; i < 60; ++i)
            cv::rectangle(target, {i * 97 % kWidth, i * 131 % kHeight, 700, 500},
                          cv::Scalar(255, i * 40 % 256, i * 70 % 256, i * 110 % 256), cv::FILLED);
        cv::ellipse(target, {3000, 2000}, {2500, 1500}, 20, 0, 360, cv::Scalar(255, 20, 20, 60), 9, cv::LINE_AA);
    }
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

void pixels(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * std::int64_t{kWidth} * kHeight); }

void JPEGOpen(benchmark::State& state)
{
    const auto bytes = turboEncode(*picture(true), 92);
    for (auto _ : state) benchmark::DoNotOptimize(importImage(bytes).bitmap.get());
    pixels(state);
}
void JPEGOpenFile(benchmark::State& state)
{
    const auto bytes = turboEncode(*picture(true), 92);
    const std::string path = temporaryFolder() + "/zelpane-bench-" + std::to_string(getpid()) + ".jpg";
    if (!writeFileSafely(path, bytes.data(), bytes.size())) return state.SkipWithError("cannot be written");
    for (auto _ : state) benchmark::DoNotOptimize(importImageFile(path).bitmap.get());
    removeItem(path);
    pixels(state);
}
void JPEGOpenPeerTurbo(benchmark::State& state)
{
    const auto bytes = turboEncode(*picture(true), 92);
    auto out = BitmapRep::create(kWidth, kHeight); // warm
    const tjhandle handle = tjInitDecompress();
    for (auto _ : state)
        tjDecompress2(handle, bytes.data(), bytes.size(), out->bitmapData(), kWidth, int(out->bytesPerRow()), kHeight,
                      TJPF_ARGB, 0);
    tjDestroy(handle);
    pixels(state);
}
void JPEGSave(benchmark::State& state)
{
    const auto rep = picture(true);
    for (auto _ : state) benchmark::DoNotOptimize(encodeJPEG(rep->view(), {}, {.fallbackBackground = kWhite}).data());
    pixels(state);
}
void JPEGSavePeerTurbo(benchmark::State& state)
{
    for (auto _ : state) benchmark::DoNotOptimize(turboEncode(*picture(true), 70).data());
    pixels(state);
}

/// What the libraries take: rows of three bytes a pixel, one after the other.
template <class Take>
void eachRowInRGB(const BitmapRep& rep, Take take)
{
    std::vector<std::uint8_t> row(3 * kWidth);
    for (int y = 0; y < kHeight; ++y) {
        const std::uint8_t* p = rep.view().rowData(y);
        for (std::size_t x = 0; x < kWidth; ++x) std::memcpy(&row[3 * x], p + 4 * x + 1, 3);
        take(row.data(), y);
    }
}

/// @param encode  gives the bytes of a picture's file
template <class Encode>
void measureSaving(benchmark::State& state, Encode encode)
{
    const auto rep = picture(state.range(0));
    std::size_t bytes = 0;
    for (auto _ : state) bytes = encode(*rep).size();
    state.counters["MB"] = double(bytes) / 1e6;
}

std::vector<std::uint8_t> tiffByLibrary(const BitmapRep& rep)
{
    struct Sink {
        std::vector<std::uint8_t> bytes;
        std::uint64_t at = 0;
    } sink;
    TIFF* t = TIFFClientOpen(
        "x", "w", &sink, [](thandle_t, void*, tmsize_t) -> tmsize_t { return 0; },
        [](thandle_t h, void* data, tmsize_t n) -> tmsize_t {
            auto* s = static_cast<Sink*>(h);
            if (s->bytes.size() < s->at + std::uint64_t(n)) s->bytes.resize(s->at + std::uint64_t(n));
            std::memcpy(s->bytes.data() + s->at, data, std::size_t(n));
            s->at += std::uint64_t(n);
            return n;
        },
        [](thandle_t h, toff_t o, int whence) -> toff_t {
            auto* s = static_cast<Sink*>(h);
            return s->at = (whence == SEEK_CUR ? s->at : whence == SEEK_END ? s->bytes.size() : 0) + o;
        },
        [](thandle_t) { return 0; }, [](thandle_t h) -> toff_t { return static_cast<Sink*>(h)->bytes.size(); }, nullptr,
        nullptr);
    TIFFSetField(t, TIFFTAG_IMAGEWIDTH, kWidth);
    TIFFSetField(t, TIFFTAG_IMAGELENGTH, kHeight);
    TIFFSetField(t, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(t, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(t, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(t, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(t, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    TIFFSetField(t, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(t, TIFFTAG_ROWSPERSTRIP, 64);
    eachRowInRGB(rep, [t](std::uint8_t* row, int y) { TIFFWriteScanline(t, row, std::uint32_t(y), 0); });
    TIFFClose(t);
    return std::move(sink.bytes);
}

void TIFFSave(benchmark::State& state)
{
    measureSaving(state, [](const BitmapRep& rep) { return encodeTIFF(rep.view(), {}); });
}
void TIFFSavePeerLibtiff(benchmark::State& state) { measureSaving(state, tiffByLibrary); }
void TIFFOpen(benchmark::State& state)
{
    const auto bytes = encodeTIFF(picture(state.range(0))->view(), {});
    for (auto _ : state) benchmark::DoNotOptimize(importImage(bytes).bitmap.get());
}
void TIFFOpenPeerLibtiff(benchmark::State& state)
{
    const auto bytes = encodeTIFF(picture(state.range(0))->view(), {});
    std::vector<std::uint8_t> row(3 * kWidth);
    for (auto _ : state) {
        codec::TIFFSource source(bytes);
        for (int y = 0; y < kHeight; ++y) TIFFReadScanline(source.handle(), row.data(), std::uint32_t(y), 0);
    }
}

std::vector<std::uint8_t> pngByLibrary(const BitmapRep& rep, int level)
{
    std::vector<std::uint8_t> out;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &out,
        [](png_structp p, png_bytep data, png_size_t n) {
            auto* bytes = static_cast<std::vector<std::uint8_t>*>(png_get_io_ptr(p));
            bytes->insert(bytes->end(), data, data + n);
        },
        nullptr);
    png_set_compression_level(png, level);
    png_set_filter(png, 0, PNG_FILTER_SUB);
    png_set_IHDR(png, info, kWidth, kHeight, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, 0, 0);
    png_write_info(png, info);
    eachRowInRGB(rep, [png](const std::uint8_t* row, int) { png_write_row(png, row); });
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return out;
}

void PNGSave(benchmark::State& state)
{
    measureSaving(state, [](const BitmapRep& rep) { return encodePNG(rep.view(), {}); });
}
void PNGSavePeerLibpng(benchmark::State& state)
{
    measureSaving(state, [&](const BitmapRep& rep) { return pngByLibrary(rep, int(state.range(1))); });
}
void PNGOpen(benchmark::State& state)
{
    const auto bytes = pngByLibrary(*picture(state.range(0)), 1);
    for (auto _ : state) benchmark::DoNotOptimize(importImage(bytes).bitmap.get());
}
void PNGOpenPeerLibpng(benchmark::State& state)
{
    const auto bytes = pngByLibrary(*picture(state.range(0)), 1);
    auto rep = BitmapRep::create(kWidth, kHeight);
    for (auto _ : state) {
        struct Source {
            const std::uint8_t* at;
        } source{bytes.data()};
        png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
        png_infop info = png_create_info_struct(png);
        png_set_read_fn(png, &source, [](png_structp p, png_bytep out, png_size_t n) {
            auto* s = static_cast<Source*>(png_get_io_ptr(p));
            std::memcpy(out, s->at, n);
            s->at += n;
        });
        png_read_info(png, info);
        png_set_filler(png, 255, PNG_FILLER_BEFORE);
        png_read_update_info(png, info);
        for (int y = 0; y < kHeight; ++y) png_read_row(png, rep->view().rowData(y), nullptr);
        png_destroy_read_struct(&png, &info, nullptr);
    }
}

constexpr auto kUnit = benchmark::kMillisecond;
BENCHMARK(JPEGOpen)->Unit(kUnit)->UseRealTime();
BENCHMARK(JPEGOpenFile)->Unit(kUnit)->UseRealTime();
BENCHMARK(JPEGOpenPeerTurbo)->Unit(kUnit)->UseRealTime();
BENCHMARK(JPEGSave)->Unit(kUnit)->UseRealTime();
BENCHMARK(JPEGSavePeerTurbo)->Unit(kUnit)->UseRealTime();
BENCHMARK(TIFFSave)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();
BENCHMARK(TIFFSavePeerLibtiff)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();
BENCHMARK(TIFFOpen)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();
BENCHMARK(TIFFOpenPeerLibtiff)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();
BENCHMARK(PNGSave)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();
BENCHMARK(PNGSavePeerLibpng)
    ->Args({1, 1})
    ->Args({0, 1})
    ->Args({0, 6})
    ->ArgNames({"photo", "level"})
    ->Unit(kUnit)
    ->UseRealTime();
BENCHMARK(PNGOpen)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();
BENCHMARK(PNGOpenPeerLibpng)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();

} // namespace
