// SPDX-License-Identifier: GPL-3.0-or-later
/// What it costs to have a picture read by another process. ZP_PROGRAM is the program that reads.
#include "codecs/ForeignDecoder.h"
#include "codecs/ImageImporter.h"
#include <benchmark/benchmark.h>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

/// A 24-bit BMP file: the format that costs a reader least, so that the way here is what is measured.
std::vector<std::uint8_t> bmp(int width, int height)
{
    const std::size_t row = (std::size_t(width) * 3 + 3) / 4 * 4, pixels = row * std::size_t(height);
    std::vector<std::uint8_t> file(54 + pixels);
    const auto put = [&file](std::size_t at, std::uint32_t value) {
        for (int i = 0; i < 4; ++i) file[at + std::size_t(i)] = std::uint8_t(value >> 8 * i);
    };
    file[0] = 'B', file[1] = 'M';
    put(2, std::uint32_t(file.size()));
    put(10, 54);
    put(14, 40);
    put(18, std::uint32_t(width));
    put(22, std::uint32_t(height));
    file[26] = 1, file[28] = 24;
    for (std::size_t i = 54; i < file.size(); ++i) file[i] = std::uint8_t(i * 2654435761u >> 24);
    return file;
}

void foreign(benchmark::State& state)
{
    const bool apart = state.range(1) != 0;
    zp::codec::setForeignDecoding(apart ? zp::codec::ForeignDecoding{.program = ZP_PROGRAM, .arguments = {"--decode"}}
                                        : zp::codec::ForeignDecoding{});
    const auto file = bmp(int(state.range(0)), int(state.range(0)) * 3 / 4);
    for (auto _ : state) {
        const zp::ImportedImage image = zp::importImage(file);
        if (!image.bitmap) state.SkipWithError(image.error.c_str());
    }
    zp::codec::setForeignDecoding({});
}
BENCHMARK(foreign)
    ->ArgNames({"width", "apart"})
    ->ArgsProduct({{64, 1000, 4000}, {0, 1}})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

/// With a process that has to be started first, as for the first picture.
void foreignStart(benchmark::State& state)
{
    const auto file = bmp(64, 48);
    for (auto _ : state) {
        zp::codec::setForeignDecoding({.program = ZP_PROGRAM, .arguments = {"--decode"}});
        const zp::ImportedImage image = zp::importImage(file);
        if (!image.bitmap) state.SkipWithError(image.error.c_str());
    }
    zp::codec::setForeignDecoding({});
}
BENCHMARK(foreignStart)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
