// SPDX-License-Identifier: GPL-3.0-or-later
/// Pixel memory, pictures, graphics worlds, the work pool and the log.
#include "base/GWorld.h"
#include "base/Log.h"
#include "base/PixelMemory.h"
#include "base/WorkPool.h"
#include <atomic>
#include <gtest/gtest.h>
#include <numeric>
#include <stdexcept>
#include <thread>

using namespace zp;

namespace
{
constexpr std::size_t kMegabyte = std::size_t{1} << 20;

bool allZero(const std::uint8_t* bytes, std::size_t count)
{
    return std::all_of(bytes, bytes + count, [](std::uint8_t b) { return b == 0; });
}
} // namespace

TEST(PixelMemory, BlocksAreZeroedEvenWhenTheyComeFromThePool)
{
    for (const std::size_t bytes : {std::size_t{1}, std::size_t{100}, kMegabyte - 1, kMegabyte, 5 * kMegabyte + 3}) {
        for (int round = 0; round < 2; ++round) {
            PixelMemory memory = allocatePixels(bytes);
            ASSERT_TRUE(memory);
            EXPECT_TRUE(allZero(memory.get(), bytes)) << bytes << " round " << round;
            std::fill_n(memory.get(), bytes, std::uint8_t(0xAB));
        }
    }
    trimPixelPool();
}

TEST(PixelMemory, LargeBlocksLieOnHugePages)
{
    const PixelMemory small = allocatePixels(1000), large = allocatePixels(3 * kMegabyte);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(small.get()) % 64, 0u);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(large.get()) % (2 * kMegabyte), 0u);
}

TEST(PixelMemory, AReleasedBlockIsUsedAgain)
{
    trimPixelPool();
    PixelMemory first = allocatePixels(8 * kMegabyte);
    const std::uint8_t* const at = first.get();
    first.reset();
    const PixelMemory second = allocatePixelsUninitialized(8 * kMegabyte - 100);
    EXPECT_EQ(second.get(), at);
    const PixelMemory third = allocatePixels(8 * kMegabyte);
    EXPECT_NE(third.get(), at);
}

TEST(PixelMemory, AnImpossibleSizeGivesNull)
{
    EXPECT_FALSE(allocatePixels(~std::size_t{0} / 4));
    EXPECT_FALSE(allocatePixelsUninitialized(~std::size_t{0}));
}

TEST(PixelMemory, ThreadsMayAllocateAndReleaseAtOnce)
{
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([t] {
            for (int i = 0; i < 50; ++i) {
                const PixelMemory memory = allocatePixels(kMegabyte * std::size_t(1 + (i + t) % 3));
                ASSERT_TRUE(memory);
                memory[0] = std::uint8_t(t), memory[kMegabyte - 1] = std::uint8_t(i);
                EXPECT_EQ(memory[0], t);
            }
        });
    for (std::thread& thread : threads) thread.join();
}

TEST(BitmapRep, RowsHaveSpareBytes)
{
    for (const auto& [width, bytes] : {std::pair{1, 64}, {15, 64}, {16, 128}, {17, 128}, {1600, 6464}}) {
        EXPECT_EQ(BitmapRep::rowBytesForWidth(width), bytes) << width;
        const auto rep = BitmapRep::create(width, 3);
        ASSERT_TRUE(rep);
        EXPECT_EQ(rep->bytesPerRow(), bytes);
        EXPECT_TRUE(allZero(rep->bitmapData(), std::size_t(bytes) * 3));
    }
}

TEST(BitmapRep, ACopyHasThePixelsAndTheWordsButNotTheMemory)
{
    const auto rep = BitmapRep::create(17, 5);
    rep->view().pixel(16, 4)[2] = 200;
    rep->properties.xDpi = 300;
    rep->properties.comments = {"a word"};
    const auto copy = copyOf(*rep);
    rep->view().pixel(16, 4)[2] = 0;
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->pixelsWide(), 17);
    EXPECT_EQ(copy->pixelsHigh(), 5);
    EXPECT_EQ(copy->view().pixel(16, 4)[2], 200);
    EXPECT_EQ(copy->view().pixel(0, 0)[2], 0);
    EXPECT_EQ(copy->properties.xDpi, 300);
    EXPECT_EQ(copy->properties.comments, rep->properties.comments);
}

TEST(BitmapRep, AbsurdSizesAreRefused)
{
    for (const auto& [w, h] : {std::pair{0, 5}, {5, 0}, {-1, 5}, {30001, 1}, {1, 30001}, {1 << 30, 1 << 30}}) {
        EXPECT_FALSE(BitmapRep::create(w, h)) << w << "x" << h;
        EXPECT_FALSE(BitmapRep::createUninitialized(w, h));
    }
    EXPECT_TRUE(isSensibleImageSize(30000, 30000));
    EXPECT_FALSE(isSensibleImageSize(INT64_MAX, INT64_MAX));
}

TEST(GWorld, IsTheSameMemoryAsItsRepresentation)
{
    const auto rep = BitmapRep::create(4, 4);
    const GWorld world = GWorld::over(*rep);
    world.pixels.row(2)[3] = 0x12345678;
    EXPECT_EQ(rep->view().row(2)[3], 0x12345678u);
    EXPECT_EQ(world.bounds.right, 4);
}

TEST(GWorld, CopyBitsCopiesAndScalesToTheNearest)
{
    const auto small = BitmapRep::create(2, 2), big = BitmapRep::create(4, 4), same = BitmapRep::create(2, 2);
    for (int i = 0; i < 4; ++i) small->view().row(i / 2)[i % 2] = std::uint32_t(i + 1);
    GWorld from = GWorld::over(*small), to = GWorld::over(*big), twin = GWorld::over(*same);
    copyBits(from, twin);
    copyBits(from, to);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x) EXPECT_EQ(big->view().row(y)[x], std::uint32_t(y / 2 * 2 + x / 2 + 1));
    EXPECT_EQ(same->view().row(1)[0], 3u);
    copyBits(to, from);
    EXPECT_EQ(small->view().row(1)[1], 4u);
    GWorld nothing;
    copyBits(nothing, to);
    copyBits(to, nothing);
}

TEST(WorkPool, EveryPartRunsOnce)
{
    for (const int count : {0, 1, 2, 3, 100, 1000}) {
        std::vector<std::atomic<int>> hits(static_cast<std::size_t>(count));
        parallelFor(count, [&](int i) { ++hits[std::size_t(i)]; });
        for (const auto& h : hits) EXPECT_EQ(h, 1);
    }
}

TEST(WorkPool, BandsCoverAllRowsWithoutOverlap)
{
    for (const int rows : {1, 2, 7, 64, 1000, 4001}) {
        std::vector<std::atomic<int>> hits(static_cast<std::size_t>(rows));
        parallelBands(rows, 10, [&](int first, int last) {
            EXPECT_LT(first, last);
            for (int r = first; r < last; ++r) ++hits[std::size_t(r)];
        });
        for (const auto& h : hits) EXPECT_EQ(h, 1);
    }
}

TEST(WorkPool, AnExceptionArrivesAfterTheOthersEnded)
{
    std::atomic<int> ended{0};
    EXPECT_THROW(parallelFor(40,
                             [&](int i) {
                                 if (i == 3) throw std::runtime_error("three");
                                 ++ended;
                             }),
                 std::runtime_error);
    EXPECT_EQ(ended, 39);
    parallelFor(5, [&](int) { ++ended; }); // the pool goes on
    EXPECT_EQ(ended, 44);
}

TEST(WorkPool, CallsFromInsideABodyDoNotWaitForEachOther)
{
    std::atomic<int> sum{0};
    parallelFor(8, [&](int) { parallelFor(8, [&](int i) { sum += i; }); });
    EXPECT_EQ(sum, 8 * 28);
}

TEST(WorkPool, SeveralThreadsMayCallAtOnce)
{
    std::atomic<int> sum{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&] {
            for (int round = 0; round < 50; ++round) parallelFor(6, [&](int) { ++sum; });
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(sum, 4 * 50 * 6);
}

TEST(Log, LinesComeBackInOrder)
{
    takeLogLines();
    logLine("first %i", 1);
    logLine("%s", "second");
    const std::vector<std::string> expected{"first 1", "second"};
    EXPECT_EQ(takeLogLines(), expected);
    EXPECT_TRUE(takeLogLines().empty());
}

TEST(Log, LongLinesAreCut)
{
    takeLogLines();
    logLine("%s", std::string(5000, 'x').c_str());
    ASSERT_EQ(takeLogLines().at(0).size(), 1000u);
}

TEST(Log, OnlyTheLatestLinesAreKept)
{
    takeLogLines();
    for (int i = 0; i < 450'000; ++i) logLine("%i", i);
    const std::vector<std::string> lines = takeLogLines();
    ASSERT_EQ(lines.size(), 200'000u);
    EXPECT_EQ(lines.front(), "250000");
    EXPECT_EQ(lines.back(), "449999");
}

TEST(Log, ThreadsMayLogAtOnce)
{
    takeLogLines();
    std::vector<std::thread> threads;
    for (int t = 0; t < 3; ++t)
        threads.emplace_back([] {
            for (int i = 0; i < 1000; ++i) logLine("line");
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(takeLogLines().size(), 3000u);
}
