// SPDX-License-Identifier: GPL-3.0-or-later
/// Small masks drawn as text, random masks, and coverage counted the slow way.
#pragma once
#include "base/BezierPath.h"
#include "base/BitmapView.h"
#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace zp
{

inline std::ostream& operator<<(std::ostream& out, Point p) { return out << "(" << p.x << ", " << p.y << ")"; }

/// A mask that owns its bytes.
struct TestMask {
    int width = 0, height = 0;
    std::vector<std::uint8_t> bytes;

    TestMask(int w, int h, std::uint8_t value = 255)
        : width(w), height(h), bytes(std::size_t(w) * std::size_t(h), value)
    {
    }
    /// '#' selected (0), '.' not (255), '+' partly (128); '/' ends a row.
    explicit TestMask(std::string_view picture)
    {
        for (const char c : picture) {
            if (c == '/') {
                ++height;
                continue;
            }
            bytes.push_back(c == '#' ? 0 : c == '+' ? 128 : 255);
        }
        ++height;
        width = int(bytes.size()) / height;
    }
    MaskView view() { return {bytes.data(), width, height, width}; }
    ConstMaskView view() const { return {bytes.data(), width, height, width}; }
    std::string text() const
    {
        std::string text;
        for (int y = 0; y < height; ++y) {
            if (y) text += '/';
            for (int x = 0; x < width; ++x) {
                const std::uint8_t m = bytes[std::size_t(y * width + x)];
                text += m == 0 ? '#' : m == 255 ? '.' : '+';
            }
        }
        return text;
    }
};

/// Islands and holes of every size: @p density of the pixels selected, then smoothed @p rounds times by majority.
inline TestMask randomMask(std::mt19937& random, int width, int height, double density, int rounds)
{
    TestMask mask(width, height);
    std::uniform_real_distribution<double> share(0, 1);
    for (std::uint8_t& m : mask.bytes) m = share(random) < density ? std::uint8_t(random() % 255) : 255;
    for (int round = 0; round < rounds; ++round) {
        const TestMask old = mask;
        for (int y = 1; y < height - 1; ++y)
            for (int x = 1; x < width - 1; ++x) {
                int inside = 0;
                for (int dy = -1; dy <= 1; ++dy)
                    for (int dx = -1; dx <= 1; ++dx) inside += old.bytes[std::size_t((y + dy) * width + x + dx)] != 255;
                mask.bytes[std::size_t(y * width + x)] = inside > 4 ? 0 : 255;
            }
    }
    return mask;
}

/// The subpaths of a straight path as lists of points, closing points left out.
inline std::vector<std::vector<Point>> subpaths(const BezierPath& path)
{
    std::vector<std::vector<Point>> all;
    path.forEach([&](PathElement kind, const Point* p) {
        if (kind == PathElement::MoveTo) all.emplace_back();
        if (kind != PathElement::ClosePath) all.back().push_back(*p);
    });
    return all;
}

/// Whether a straight path holds the point, by casting a ray; the rule is the path's own.
inline bool holds(const std::vector<std::vector<Point>>& loops, WindingRule rule, double x, double y)
{
    int winding = 0, crossings = 0;
    for (const std::vector<Point>& loop : loops)
        for (std::size_t i = 0; i < loop.size(); ++i) {
            const Point a = loop[i], b = loop[(i + 1) % loop.size()];
            if ((double(a.y) <= y) == (double(b.y) <= y)) continue;
            const double at = a.x + (y - a.y) / (double(b.y) - a.y) * (double(b.x) - a.x);
            if (at <= x) continue;
            ++crossings;
            winding += b.y > a.y ? 1 : -1;
        }
    return rule == WindingRule::EvenOdd ? crossings % 2 : winding != 0;
}

} // namespace zp
