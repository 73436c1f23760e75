// SPDX-License-Identifier: GPL-3.0-or-later
/// Writing and reading a snapshot's two halves, beside one plain libjpeg-turbo run over the same picture.
#include "base/WorkPool.h"
#include "undo/AlphaRLE.h"
#include "undo/Fingerprint.h"
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotStore.h"
#include "undo/TestPictures.h"
#include <benchmark/benchmark.h>
#include <turbojpeg.h>

namespace
{

using namespace zp;
using namespace zp::test;

constexpr int kWidth = 6000, kHeight = 4000;

/// A grainy picture of 24 megapixels, made once.
BitmapView photo()
{
    static Picture picture(kWidth, kHeight);
    static const bool painted = (paintPhoto(picture.view(), 3), true);
    benchmark::DoNotOptimize(painted);
    return picture.view();
}

void countPixels(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * kWidth * kHeight); }

void BM_EncodePlainTurboJPEG(benchmark::State& state)
{
    const BitmapView pixels = photo();
    tjhandle handle = tjInitCompress();
    unsigned char* file = nullptr;
    unsigned long size = 0;
    for (auto _ : state)
        tjCompress2(handle, pixels.data, pixels.width, int(pixels.rowBytes), pixels.height, TJPF_XRGB, &file, &size,
                    TJSAMP_420, kSnapshotQuality, 0);
    state.counters["MB"] = double(size) / 1e6;
    tjFree(file);
    tjDestroy(handle);
    countPixels(state);
}
void BM_EncodeAllChanged(benchmark::State& state)
{
    const BitmapView pixels = photo();
    SnapshotEncoder encoder;
    std::size_t size = 0;
    for (auto _ : state) {
        for (int y = 0; y < pixels.height; y += kStripRows) pixels.pixel(17, y)[1] ^= 1;
        size = encoder.encode(pixels).size();
    }
    if (encoder.stripsEncoded() != kHeight / kStripRows) state.SkipWithError("not everything was encoded");
    state.counters["MB"] = double(size) / 1e6;
    countPixels(state);
}
/// A brush stroke across 100 of the rows.
void BM_EncodeSmallStroke(benchmark::State& state)
{
    const BitmapView pixels = photo();
    SnapshotEncoder encoder;
    encoder.encode(pixels);
    for (auto _ : state) {
        for (int y = 1000; y < 1100; ++y) pixels.pixel(800 + y, y)[2] ^= 64;
        benchmark::DoNotOptimize(encoder.encode(pixels).data());
    }
    state.counters["strips"] = encoder.stripsEncoded();
    countPixels(state);
}
void BM_Fingerprint(benchmark::State& state)
{
    const BitmapView pixels = photo();
    for (auto _ : state) benchmark::DoNotOptimize(fingerprint(ConstBitmapView(pixels)));
    countPixels(state);
}

/// Everything the worker does for one snapshot, files included. Argument: rows that changed.
void BM_WholeSnapshot(benchmark::State& state)
{
    const BitmapView pixels = photo();
    SnapshotEncoder encoder;
    encoder.encode(pixels);
    SnapshotStore store;
    if (!store.reset()) return state.SkipWithError("no folder");
    int number = 0;
    std::string error;
    for (auto _ : state) {
        for (int y = 1000; y < 1000 + state.range(0); ++y) pixels.pixel(700, y % kHeight)[2] ^= 64;
        number = (number + 1) % 8;
        store.begin(number);
        store.stage(number, SnapshotStore::Half::Alpha, encodeAlphaRLE(pixels), error);
        store.stage(number, SnapshotStore::Half::Colour, encoder.encode(pixels), error);
        if (!store.commit(number)) state.SkipWithError(error.c_str());
        store.record({"/picture.png", kWidth, kHeight, number, number});
    }
    state.counters["strips"] = encoder.stripsEncoded();
    store.remove();
    countPixels(state);
}

void BM_DecodePlainTurboJPEG(benchmark::State& state)
{
    SnapshotEncoder encoder;
    const auto file = encoder.encode(photo());
    Picture target(kWidth, kHeight);
    const BitmapView pixels = target.view();
    tjhandle handle = tjInitDecompress();
    for (auto _ : state)
        tjDecompress2(handle, file.data(), (unsigned long)file.size(), pixels.data, pixels.width, int(pixels.rowBytes),
                      pixels.height, TJPF_ARGB, 0);
    tjDestroy(handle);
    countPixels(state);
}
void BM_DecodeSnapshot(benchmark::State& state)
{
    SnapshotEncoder encoder;
    const auto file = encoder.encode(photo());
    Picture target(kWidth, kHeight);
    for (auto _ : state)
        if (!decodeSnapshotJPEG(file, target.view())) state.SkipWithError("not decoded");
    countPixels(state);
}

/// Argument: 0 opaque, 1 soft edges and empty areas, 2 no two neighbours equal, 3 random bytes.
void paintAlpha(BitmapView pixels, std::int64_t kind)
{
    std::minstd_rand random(7);
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x) {
            std::uint8_t& alpha = pixels.pixel(x, y)[0];
            if (kind == 0)
                alpha = 255;
            else if (kind == 1)
                alpha = std::uint8_t(std::clamp((x + y) % 1500 - 500, 0, 255));
            else if (kind == 2)
                alpha = std::uint8_t(x);
            else
                alpha = std::uint8_t(random() >> 8);
        }
}
void BM_EncodeAlpha(benchmark::State& state)
{
    Picture picture(kWidth, kHeight);
    paintAlpha(picture.view(), state.range(0));
    std::size_t size = 0;
    for (auto _ : state) size = encodeAlphaRLE(picture.view()).size();
    state.counters["MB"] = double(size) / 1e6;
    countPixels(state);
}
void BM_DecodeAlpha(benchmark::State& state)
{
    Picture picture(kWidth, kHeight);
    paintAlpha(picture.view(), state.range(0));
    const auto file = encodeAlphaRLE(picture.view());
    for (auto _ : state) benchmark::DoNotOptimize(decodeAlphaRLE(file, picture.view()));
    countPixels(state);
}
/// The format's definition, a byte at a time through a cursor.
void BM_EncodeAlphaByteByByte(benchmark::State& state)
{
    Picture picture(kWidth, kHeight);
    paintAlpha(picture.view(), state.range(0));
    for (auto _ : state) {
        std::vector<std::uint8_t> file;
        AlphaCursor cursor(picture.view());
        int previous = -1, copies = -1;
        for (int byte = cursor.get(); byte != -1; byte = cursor.get()) {
            if (copies >= 0 && byte == previous) {
                if (++copies < 255) continue;
                file.push_back(255);
                previous = copies = -1;
                continue;
            }
            if (copies >= 0) {
                file.push_back(std::uint8_t(copies));
                copies = previous = -1;
            }
            file.push_back(std::uint8_t(byte));
            if (byte == previous) copies = 0;
            previous = byte;
        }
        if (copies >= 0) file.push_back(std::uint8_t(copies));
        benchmark::DoNotOptimize(file.data());
    }
    countPixels(state);
}

#define ZP_MS ->Unit(benchmark::kMillisecond)->UseRealTime()
BENCHMARK(BM_EncodePlainTurboJPEG) ZP_MS;
BENCHMARK(BM_EncodeAllChanged) ZP_MS;
BENCHMARK(BM_EncodeSmallStroke) ZP_MS;
BENCHMARK(BM_WholeSnapshot)->Arg(100)->Arg(kHeight) ZP_MS;
BENCHMARK(BM_Fingerprint) ZP_MS;
BENCHMARK(BM_DecodePlainTurboJPEG) ZP_MS;
BENCHMARK(BM_DecodeSnapshot) ZP_MS;
BENCHMARK(BM_EncodeAlpha)->DenseRange(0, 3) ZP_MS;
BENCHMARK(BM_EncodeAlphaByteByByte)->Arg(0)->Arg(3) ZP_MS;
BENCHMARK(BM_DecodeAlpha)->DenseRange(0, 3) ZP_MS;

} // namespace
