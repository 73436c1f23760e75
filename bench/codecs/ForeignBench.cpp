// SPDX-License-Identifier: GPL-3.0-or-later
/// What it costs to have a picture read by another process. ZP_PROGRAM is the program that reads.
///
/// To compare both ways on a machine that has other things to do:
/// bench_codecs --benchmark_filter=foreign --benchmark_repetitions=15 --benchmark_enable_random_interleaving=true
#include "codecs/ForeignDecoder.h"
#include "codecs/ImageImporter.h"
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
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

void decodeApart(bool apart)
{
    zp::codec::setForeignDecoding(apart ? zp::codec::ForeignDecoding{.program = ZP_PROGRAM, .arguments = {"--decode"}}
                                        : zp::codec::ForeignDecoding{});
}

/// A file of that picture, and its name, as long as it lives.
class Picture
{
public:
    Picture(int width, int height)
    {
        const auto bytes = bmp(width, height);
        const int file = ::mkstemp(mName.data());
        mWritten = file >= 0 && ::write(file, bytes.data(), bytes.size()) == ssize_t(bytes.size());
        ::close(file);
    }
    ~Picture() { ::unlink(mName.c_str()); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    bool open() const { return mWritten && zp::importImageFile(mName).bitmap; }

private:
    std::string mName = "/tmp/foreign-XXXXXX";
    bool mWritten = false;
};

/// Whether this process has read a picture: from then on no process that comes from it reads its first.
bool hasRead = false;

enum Way { InTheProgram, Apart, ApartWithOneReady };

/// The first picture of a program: the library's beginnings belong to it in the program, and the start of another
/// process where none was made ready when the panel came up.
void foreignFirst(benchmark::State& state)
{
    if (hasRead) state.SkipWithError("pictures were read before: choose this benchmark alone");
    const Picture picture(64, 48);
    for (auto _ : state) {
        int pipe[2];
        if (::pipe(pipe) != 0) return state.SkipWithError("no pipe");
        const pid_t program = ::fork();
        if (program == 0) {
            decodeApart(state.range(0) != InTheProgram);
            if (state.range(0) == ApartWithOneReady) {
                zp::codec::readyForeignDecoder();
                ::usleep(500'000); // nobody chooses a file sooner
            }
            const auto begin = std::chrono::steady_clock::now();
            const bool right = picture.open();
            const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
            const double answer = right ? took.count() : -1;
            (void)!::write(pipe[1], &answer, sizeof answer);
            decodeApart(false);
            ::_exit(0);
        }
        ::close(pipe[1]);
        double took = -1;
        const bool answered = ::read(pipe[0], &took, sizeof took) == sizeof took && took >= 0;
        ::close(pipe[0]);
        ::waitpid(program, nullptr, 0);
        if (!answered) return state.SkipWithError("the picture could not be read");
        state.SetIterationTime(took);
    }
}
BENCHMARK(foreignFirst)
    ->ArgNames({"way"})
    ->DenseRange(InTheProgram, ApartWithOneReady)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// Those that follow.
void foreign(benchmark::State& state)
{
    hasRead = true;
    decodeApart(state.range(1) != InTheProgram);
    const Picture picture(int(state.range(0)), int(state.range(0)) * 2 / 3);
    picture.open();
    for (auto _ : state)
        if (!picture.open()) state.SkipWithError("the picture could not be read");
    decodeApart(false);
}
BENCHMARK(foreign)
    ->ArgNames({"width", "way"})
    ->ArgsProduct({{64, 1000, 6000}, {InTheProgram, Apart}})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
