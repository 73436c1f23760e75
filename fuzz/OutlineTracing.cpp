// SPDX-License-Identifier: GPL-3.0-or-later
/// Outlines of masks, against the plain way of finding them.
#include "Fuzz.h"
#include "selection/ReferenceTracer.h"
#include "selection/ZPPathBuilder.h"
#include <array>

namespace
{

std::vector<float> numbersOf(const zp::BezierPath& path)
{
    std::vector<float> numbers;
    for (int i = 0; i < path.elementCount(); ++i) {
        std::array<zp::Point, 3> points{};
        const auto type = path.elementAt(i, points);
        numbers.push_back(float(int(type)));
        if (type == zp::PathElement::ClosePath) continue;
        numbers.push_back(points[0].x);
        numbers.push_back(points[0].y);
    }
    return numbers;
}

} // namespace

ZP_FUZZ(OutlineTracing, "", bytes)
{
    using namespace zp;
    if (bytes.size() < 3) return;
    // A bit a pixel, so that few bytes make many borders; wider than a word of the tracer's.
    const int width = 1 + bytes[0] % 150, height = 1 + bytes[1] % 30;
    const fuzz::Bytes bits = bytes.subspan(2);
    std::vector<std::uint8_t> mask(std::size_t(width) * std::size_t(height), 255);
    for (std::size_t i = 0; i < mask.size() && i / 8 < bits.size(); ++i)
        if (bits[i / 8] >> (i % 8) & 1) mask[i] = std::uint8_t(bits[i / 8] % 2 ? 0 : 128);
    const ConstMaskView view{mask.data(), width, height, width};
    fuzz::require(numbersOf(ZPPathBuilder(view).path()) == numbersOf(reference::MaskTracer(view).path()),
                  "the outline is the one that is found segment by segment");
}
