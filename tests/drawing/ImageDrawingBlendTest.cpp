// SPDX-License-Identifier: GPL-3.0-or-later
/// Blending of runs, on every vector target, against the arithmetic written out for one byte.
#include "drawing/ImageDrawingBlend.h"
#include "base/FixedPoint.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <gtest/gtest.h>

namespace
{

using namespace zp;

int over255(int v) { return (2 * v + 255) / 510; } // rounded to the nearest

struct Case {
    const char* name;
    CompositingOperation operation;
    bool word, covered;
};

/// One byte of one pixel: @p s faded nowhere yet, @p sa and @p da the alphas of the pixels.
int expectedByte(CompositingOperation operation, bool word, int s, int sa, int d, int da, int cover, int opacity)
{
    if (word) {
        // A colour is faded once, before anything else.
        s = over255(s * opacity), sa = over255(sa * opacity);
        opacity = 255;
    }
    switch (operation) {
    case CompositingOperation::Clear:
        return over255(d * (255 - cover));
    case CompositingOperation::Copy:
        return over255(over255(s * opacity) * cover + d * (255 - cover));
    case CompositingOperation::SourceOver: {
        const int weight = over255(cover * opacity);
        return over255(s * weight + d * (255 - over255(sa * weight)));
    }
    case CompositingOperation::SourceIn:
        return over255(over255(s * over255(da * opacity)) * cover + d * (255 - cover));
    }
    return -1;
}

class BlendRuns : public testing::TestWithParam<Case>
{
};

TEST_P(BlendRuns, AreTheByteArithmeticOnEveryTarget)
{
    const Case& c = GetParam();
    test::onEveryTarget([&] {
        std::mt19937 random(7);
        for (const int opacity : {0, 1, 127, 254, 255})
            for (const int count : test::kKernelLengths)
                for (const int start : test::kKernelStarts) {
                    const auto source = test::extremePixels(random, std::size_t(count + start));
                    auto there = test::extremePixels(random, std::size_t(count + start + 1));
                    const auto before = there;
                    const auto cover = test::extremeBytes(random, std::size_t(count + start));
                    const std::uint32_t word = test::extremePixels(random, 1)[0];
                    BlendRun run;
                    run.destination = there.data() + start;
                    run.source = c.word ? nullptr : source.data() + start;
                    run.word = word;
                    run.cover = c.covered ? cover.data() + start : nullptr;
                    run.count = count;
                    blendRun(run, c.operation, unsigned(opacity));
                    for (int i = 0; i < count + start + 1; ++i) {
                        const std::uint32_t d = before[std::size_t(i)];
                        std::uint32_t expected = d;
                        if (i >= start && i < start + count) {
                            const std::uint32_t s = c.word ? word : source[std::size_t(i)];
                            expected = 0;
                            for (int shift = 0; shift < 32; shift += 8)
                                expected |=
                                    std::uint32_t(expectedByte(c.operation, c.word, int(s >> shift & 255), int(s & 255),
                                                               int(d >> shift & 255), int(d & 255),
                                                               c.covered ? cover[std::size_t(i)] : 255, opacity))
                                    << shift;
                        }
                        ASSERT_EQ(there[std::size_t(i)], expected)
                            << "pixel " << i << " of " << start << " + " << count << ", opacity " << opacity;
                    }
                }
    });
}

INSTANTIATE_TEST_SUITE_P(Operations, BlendRuns,
                         testing::Values(Case{"Clear", CompositingOperation::Clear, true, false},
                                         Case{"ClearCovered", CompositingOperation::Clear, true, true},
                                         Case{"CopyWord", CompositingOperation::Copy, true, false},
                                         Case{"CopyWordCovered", CompositingOperation::Copy, true, true},
                                         Case{"CopyImage", CompositingOperation::Copy, false, false},
                                         Case{"CopyImageCovered", CompositingOperation::Copy, false, true},
                                         Case{"OverWord", CompositingOperation::SourceOver, true, false},
                                         Case{"OverWordCovered", CompositingOperation::SourceOver, true, true},
                                         Case{"OverImage", CompositingOperation::SourceOver, false, false},
                                         Case{"OverImageCovered", CompositingOperation::SourceOver, false, true},
                                         Case{"InWord", CompositingOperation::SourceIn, true, false},
                                         Case{"InWordCovered", CompositingOperation::SourceIn, true, true},
                                         Case{"InImage", CompositingOperation::SourceIn, false, false},
                                         Case{"InImageCovered", CompositingOperation::SourceIn, false, true}),
                         [](const auto& which) { return std::string(which.param.name); });

TEST(BlendRuns, CoversMultiplyOnEveryTarget)
{
    test::onEveryTarget([] {
        std::mt19937 random(8);
        for (const int count : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                const auto before = test::extremeBytes(random, std::size_t(count + start + 1));
                const auto other = test::extremeBytes(random, std::size_t(count + start));
                for (const bool mask : {false, true}) {
                    auto cover = before;
                    if (mask)
                        multiplyCoverByMask(cover.data() + start, other.data() + start, count);
                    else
                        multiplyCover(cover.data() + start, other.data() + start, count);
                    for (int i = 0; i < count + start + 1; ++i) {
                        int expected = before[std::size_t(i)];
                        if (i >= start && i < start + count) {
                            const int by = other[std::size_t(i)];
                            expected = over255(expected * (mask ? 255 - by : by));
                        }
                        ASSERT_EQ(cover[std::size_t(i)], expected) << "byte " << i << " of " << start << " + " << count;
                    }
                }
            }
    });
}

TEST(BlendRuns, DividingBy255IsExactForEveryProductOfBytes)
{
    for (std::uint32_t v = 0; v <= 255 * 255; ++v) ASSERT_EQ(divide255(v), std::uint32_t(over255(int(v)))) << v;
}

} // namespace
