// SPDX-License-Identifier: GPL-3.0-or-later
/// Stamping and erasing rows, on every vector target, against the sum for a single byte.
#include "tools/BrushRows.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <gtest/gtest.h>

namespace
{

using namespace zp;

std::uint32_t byteOf(std::uint32_t word, int shift) { return word >> shift & 255; }
std::uint32_t over255(std::uint32_t v) { return (2 * v + 255) / 510; } // rounded to the nearest

TEST(BrushRows, StampAndEraseByteByByte)
{
    test::onEveryTarget([] {
        std::mt19937 random(31);
        for (const int count : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                const auto size = std::size_t(count + start + 1);
                const auto there = test::extremePixels(random, size), add = test::extremePixels(random, size);
                const auto mask = test::extremeBytes(random, size);
                std::vector<std::uint32_t> keep(size);
                for (std::size_t i = 0; i < size; ++i) keep[i] = (255 - (add[i] & 255)) * 0x01010101u;
                auto stamped = there, erased = there;
                stampRow(stamped.data() + start, add.data() + start, keep.data() + start, count);
                eraseRow(erased.data() + start, mask.data() + start, count);
                for (std::size_t i = 0; i < size; ++i)
                    for (int shift = 0; shift < 32; shift += 8) {
                        const bool inside = int(i) >= start && int(i) < start + count;
                        const std::uint32_t was = byteOf(there[i], shift);
                        ASSERT_EQ(byteOf(stamped[i], shift),
                                  inside ? byteOf(add[i], shift) + over255(was * byteOf(keep[i], shift)) : was)
                            << i << " of " << count;
                        ASSERT_EQ(byteOf(erased[i], shift), inside ? over255(was * mask[i]) : was)
                            << i << " of " << count;
                    }
            }
    });
}

} // namespace
