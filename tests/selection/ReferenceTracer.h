// SPDX-License-Identifier: GPL-3.0-or-later
/// The outline of a mask found the plain way, segment by segment through a map of points: slow, and easy to believe.
#pragma once
#include "base/BezierPath.h"
#include "base/BitmapView.h"
#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace reference
{

/// Key space: x as in the mask, y upwards. Keys are ordered from the top row down, left to right.
struct Key {
    int x, y;
    friend bool operator==(Key, Key) = default;
    friend bool operator<(Key a, Key b) { return a.y != b.y ? a.y > b.y : a.x < b.x; }
};
using Segment = std::pair<Key, Key>;
using SegmentMap = std::map<Key, std::vector<Segment>>;

class MaskTracer
{
public:
    explicit MaskTracer(zp::ConstMaskView mask) : mMask(mask) {}

    zp::BezierPath path()
    {
        zp::BezierPath path;
        SegmentMap map = buildLineSegments();
        while (!map.empty()) unwind(map, path);
        return path;
    }

private:
    bool inside(int x, int y) const { return mMask.row(y)[x] != 255; }

    SegmentMap buildLineSegments() const
    {
        SegmentMap map;
        for (int y = 0; y < mMask.height; ++y)
            for (int x = 0; x < mMask.width; ++x) {
                if (!inside(x, y)) continue;
                if (x == 0 || !inside(x - 1, y)) insert(map, {x, y}, {x, y + 1});
                if (x == mMask.width - 1 || !inside(x + 1, y)) insert(map, {x + 1, y}, {x + 1, y + 1});
                if (y == 0 || !inside(x, y - 1)) insert(map, {x, y}, {x + 1, y});
                if (y == mMask.height - 1 || !inside(x, y + 1)) insert(map, {x, y + 1}, {x + 1, y + 1});
            }
        return map;
    }

    void insert(SegmentMap& map, Key start, Key end) const
    {
        start.y = mMask.height - start.y - 1;
        end.y = mMask.height - end.y - 1;
        map[start].push_back({start, end});
        map[end].push_back({start, end});
    }

    static void remove(SegmentMap& map, Segment segment)
    {
        for (const Key key : {segment.first, segment.second}) {
            const auto at = map.find(key);
            if (at == map.end()) continue;
            if (at->second.size() > 1)
                std::erase(at->second, segment);
            else
                map.erase(at);
        }
    }

    zp::Point out(Key key) const { return {float(key.x), float(mMask.height - key.y)}; }

    void add(Key next, zp::BezierPath& path)
    {
        if (mCached1 == mCached2) {
            mCached2 = next;
        } else if (mCached1.x == mCached2.x && mCached2.x == next.x) {
            mCached2 = next;
        } else if (mCached1.y == mCached2.y && mCached2.y == next.y) {
            mCached2 = next;
        } else {
            path.lineTo(out(mCached2));
            mCached1 = mCached2;
            mCached2 = next;
        }
    }

    void unwind(SegmentMap& map, zp::BezierPath& path)
    {
        const Key start = map.begin()->first;
        path.moveTo(out(start));
        mCached1 = mCached2 = start;
        Key current = start;
        for (auto at = map.find(current); at != map.end(); at = map.find(current)) {
            const Segment segment = at->second.front();
            const Key next = current == segment.first ? segment.second : segment.first;
            add(next, path);
            remove(map, segment);
            current = next;
        }
        path.lineTo(out(mCached2));
        path.closePath();
    }

    zp::ConstMaskView mMask;
    Key mCached1{}, mCached2{};
};

} // namespace reference
