// SPDX-License-Identifier: GPL-3.0-or-later
/// The exact area of what a set operation leaves of two straight paths, by slabs between all corners and crossings.
#pragma once
#include "base/BezierPath.h"
#include "selection/MaskPictures.h"
#include "selection/gpc.h"
#include <algorithm>
#include <vector>

namespace reference
{

struct Edge {
    double x0, y0, x1, y1; ///< y0 < y1
    int direction;         ///< 1 when drawn downwards
    bool ofClip;
    double at(double y) const { return x0 + (y - y0) / (y1 - y0) * (x1 - x0); }
};

inline void addEdges(std::vector<Edge>& edges, const std::vector<std::vector<zp::Point>>& loops, bool ofClip)
{
    for (const auto& loop : loops)
        for (std::size_t i = 0; i < loop.size(); ++i) {
            const zp::Point a = loop[i], b = loop[(i + 1) % loop.size()];
            if (a.y == b.y) continue;
            if (a.y < b.y)
                edges.push_back({a.x, a.y, b.x, b.y, 1, ofClip});
            else
                edges.push_back({b.x, b.y, a.x, a.y, -1, ofClip});
        }
}

inline bool isIn(gpc_op operation, bool subject, bool clip)
{
    switch (operation) {
    case GPC_DIFF:
        return subject && !clip;
    case GPC_INT:
        return subject && clip;
    case GPC_XOR:
        return subject != clip;
    case GPC_UNION:
        break;
    }
    return subject || clip;
}

/// Time: quadratic in the edges for the crossings, and again for the slabs. For tests of a few hundred edges.
inline double area(gpc_op operation, const zp::BezierPath& subject, const zp::BezierPath& clip)
{
    std::vector<Edge> edges;
    addEdges(edges, zp::subpaths(subject), false);
    addEdges(edges, zp::subpaths(clip), true);
    std::vector<double> levels;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const Edge& a = edges[i];
        levels.push_back(a.y0);
        levels.push_back(a.y1);
        for (std::size_t j = 0; j < i; ++j) {
            const Edge& b = edges[j];
            const double top = std::max(a.y0, b.y0), bottom = std::min(a.y1, b.y1);
            if (top >= bottom) continue;
            const double before = a.at(top) - b.at(top), after = a.at(bottom) - b.at(bottom);
            if ((before < 0) == (after < 0)) continue;
            levels.push_back(top + (bottom - top) * before / (before - after));
        }
    }
    std::sort(levels.begin(), levels.end());
    double sum = 0;
    for (std::size_t l = 1; l < levels.size(); ++l) {
        const double height = levels[l] - levels[l - 1], middle = 0.5 * (levels[l] + levels[l - 1]);
        if (height <= 0) continue;
        std::vector<std::pair<double, const Edge*>> cuts;
        for (const Edge& e : edges)
            if (e.y0 < middle && e.y1 > middle) cuts.push_back({e.at(middle), &e});
        std::sort(cuts.begin(), cuts.end());
        int winding[2] = {}, crossings[2] = {};
        for (std::size_t c = 0; c < cuts.size(); ++c) {
            if (c) {
                const auto inside = [&](int which, zp::WindingRule rule) {
                    return rule == zp::WindingRule::EvenOdd ? crossings[which] % 2 != 0 : winding[which] != 0;
                };
                if (isIn(operation, inside(0, subject.windingRule()), inside(1, clip.windingRule())))
                    sum += (cuts[c].first - cuts[c - 1].first) * height;
            }
            const int which = cuts[c].second->ofClip;
            ++crossings[which];
            winding[which] += cuts[c].second->direction;
        }
    }
    return sum;
}

inline double area(const zp::BezierPath& path) { return area(GPC_UNION, path, zp::BezierPath{}); }

} // namespace reference
