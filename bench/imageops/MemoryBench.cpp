// SPDX-License-Identifier: GPL-3.0-or-later
/// What the machine's memory takes for the pixels of a 24-megapixel picture: no work on all of them can be faster.
#include "base/BitmapRep.h"
#include "base/WorkPool.h"
#include <benchmark/benchmark.h>
#include <numeric>

namespace
{

using namespace zp;

constexpr int kWidth = 6000, kHeight = 4000;

/// @param body  called as body(first, last) for rows
template <class Body>
void onThreads(int threads, Body body)
{
    if (threads == 1) return body(0, kHeight);
    parallelBands(kHeight, 64, body);
}

void BM_ReadPixels(benchmark::State& state)
{
    const auto rep = BitmapRep::create(kWidth, kHeight);
    for (auto _ : state)
        onThreads(int(state.range(0)), [&](int first, int last) {
            std::uint32_t sum = 0;
            for (int y = first; y < last; ++y)
                sum = std::accumulate(rep->view().row(y), rep->view().row(y) + kWidth, sum);
            benchmark::DoNotOptimize(sum);
        });
}

void BM_ChangePixels(benchmark::State& state)
{
    const auto rep = BitmapRep::create(kWidth, kHeight);
    for (auto _ : state)
        onThreads(int(state.range(0)), [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                std::uint32_t* const row = rep->view().row(y);
                for (int x = 0; x < kWidth; ++x) row[x] ^= 0x01010100;
            }
        });
}

BENCHMARK(BM_ReadPixels)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_ChangePixels)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
