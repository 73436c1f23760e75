// SPDX-License-Identifier: GPL-3.0-or-later
/// Opening and saving 24 megapixels beside the bare libraries, memory to memory.
#include "base/Folders.h"
#include "codecs/BenchPictures.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "codecs/TIFFSource.h"
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <cstring>
#include <png.h>
#include <spng.h>
#include <turbojpeg.h>
#include <unistd.h>

namespace
{

using namespace zp;
using namespace zp::bench;

void pixels(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * std::int64_t{kWidth} * kHeight); }

void JPEGOpen(benchmark::State& state)
{
    const auto bytes = turboEncode(*picture(Photo), 92);
    for (auto _ : state) benchmark::DoNotOptimize(importImage(bytes).bitmap.get());
    pixels(state);
}
void JPEGOpenFile(benchmark::State& state)
{
    const auto bytes = turboEncode(*picture(Photo), 92);
    const std::string path = temporaryFolder() + "/zelpane-bench-" + std::to_string(getpid()) + ".jpg";
    if (!writeFileSafely(path, bytes.data(), bytes.size())) return state.SkipWithError("cannot be written");
    for (auto _ : state) benchmark::DoNotOptimize(importImageFile(path).bitmap.get());
    removeItem(path);
    pixels(state);
}
void JPEGOpenPeerTurbo(benchmark::State& state)
{
    const auto bytes = turboEncode(*picture(Photo), 92);
    auto out = BitmapRep::create(kWidth, kHeight); // warm
    const tjhandle handle = tjInitDecompress();
    for (auto _ : state)
        tjDecompress2(handle, bytes.data(), bytes.size(), out->bitmapData(), kWidth, int(out->bytesPerRow()), kHeight,
                      TJPF_ARGB, 0);
    tjDestroy(handle);
    pixels(state);
}
/// A file of our own, whose strips are decoded side by side.
void JPEGOpenOwn(benchmark::State& state)
{
    const auto bytes = encodeJPEG(picture(Photo)->view(), {}, {.factor = 0.92});
    for (auto _ : state) benchmark::DoNotOptimize(importImage(bytes).bitmap.get());
    pixels(state);
}
void JPEGSave(benchmark::State& state)
{
    const auto rep = picture(Photo);
    for (auto _ : state) benchmark::DoNotOptimize(encodeJPEG(rep->view(), {}, {.fallbackBackground = kWhite}).data());
    pixels(state);
}
void JPEGSavePeerTurbo(benchmark::State& state)
{
    for (auto _ : state) benchmark::DoNotOptimize(turboEncode(*picture(Photo), 70).data());
    pixels(state);
}

/// @param encode  gives the bytes of a picture's file
template <class Encode>
void measureSaving(benchmark::State& state, Encode encode)
{
    const auto rep = picture(Look(state.range(0)));
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
    const auto bytes = encodeTIFF(picture(Look(state.range(0)))->view(), {});
    for (auto _ : state) benchmark::DoNotOptimize(importImage(bytes).bitmap.get());
}
void TIFFOpenPeerLibtiff(benchmark::State& state)
{
    const auto bytes = encodeTIFF(picture(Look(state.range(0)))->view(), {});
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
    const auto bytes = pngByLibrary(*picture(Look(state.range(0))), 1);
    for (auto _ : state) benchmark::DoNotOptimize(importImage(bytes).bitmap.get());
}
void PNGOpenPeerLibpng(benchmark::State& state)
{
    const auto bytes = pngByLibrary(*picture(Look(state.range(0))), 1);
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

void PNGOpenPeerSpng(benchmark::State& state)
{
    const auto bytes = pngByLibrary(*picture(Look(state.range(0))), 1);
    std::vector<std::uint8_t> out(std::size_t{4} * kWidth * kHeight);
    for (auto _ : state) {
        spng_ctx* context = spng_ctx_new(0);
        spng_set_png_buffer(context, bytes.data(), bytes.size());
        if (spng_decode_image(context, out.data(), out.size(), SPNG_FMT_RGBA8, 0) != 0) state.SkipWithError("refused");
        spng_ctx_free(context);
    }
}
void PNGSavePeerSpng(benchmark::State& state)
{
    measureSaving(state, [&](const BitmapRep& rep) {
        static std::vector<std::uint8_t> rows(std::size_t{3} * kWidth * kHeight);
        eachRowInRGB(rep, [](const std::uint8_t* row, int y) {
            std::memcpy(&rows[std::size_t(y) * 3 * kWidth], row, 3 * kWidth);
        });
        spng_ctx* context = spng_ctx_new(SPNG_CTX_ENCODER);
        spng_ihdr header{kWidth, kHeight, 8, SPNG_COLOR_TYPE_TRUECOLOR, 0, 0, 0};
        spng_set_ihdr(context, &header);
        spng_set_option(context, SPNG_ENCODE_TO_BUFFER, 1);
        spng_set_option(context, SPNG_IMG_COMPRESSION_LEVEL, 1);
        spng_set_option(context, SPNG_FILTER_CHOICE, SPNG_FILTER_CHOICE_SUB);
        spng_encode_image(context, rows.data(), rows.size(), SPNG_FMT_PNG, SPNG_ENCODE_FINALIZE);
        std::size_t size = 0;
        int error = 0;
        auto* bytes = static_cast<std::uint8_t*>(spng_get_png_buffer(context, &size, &error));
        std::vector<std::uint8_t> file(bytes, bytes + size);
        std::free(bytes);
        spng_ctx_free(context);
        return file;
    });
}

constexpr auto kUnit = benchmark::kMillisecond;
BENCHMARK(JPEGOpen)->Unit(kUnit)->UseRealTime();
BENCHMARK(JPEGOpenFile)->Unit(kUnit)->UseRealTime();
BENCHMARK(JPEGOpenPeerTurbo)->Unit(kUnit)->UseRealTime();
BENCHMARK(JPEGOpenOwn)->Unit(kUnit)->UseRealTime();
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
BENCHMARK(PNGOpenPeerSpng)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();
BENCHMARK(PNGSavePeerSpng)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();
BENCHMARK(PNGOpenPeerLibpng)->Arg(1)->Arg(0)->ArgName("photo")->Unit(kUnit)->UseRealTime();

} // namespace
