// SPDX-License-Identifier: GPL-3.0-or-later
/// Smart fill written down step by step, slow and plain: what the fast one must equal byte for byte.
#pragma once
#include "smartfill/SmartFill.h"
#include "smartfill/SmartFillRandom.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace zp::literal
{

struct PlaneBuffer {
    int width = 0, height = 0, channels = 0;
    std::vector<std::int32_t> values;

    void resize(int w, int h, int c)
    {
        width = w, height = h, channels = c;
        values.assign(std::size_t(w) * std::size_t(h) * std::size_t(c), 0);
    }
    std::int32_t& at(int x, int y, int c) { return values[std::size_t((y * width + x) * channels + c)]; }
};

struct Pair {
    std::int32_t x, y;
};

struct FillPixelRecord {
    std::uint8_t known = 0, filled = 0;
    std::int32_t x = 0, y = 0;
};

struct NeighbourEntry {
    std::int32_t dx, dy;
    FillPixelRecord* record;
    std::int32_t values[4];
};

struct SmartFillContext {
    std::int32_t robust[512], quadratic[512];
    int robustChannels = 4, quadraticChannels = 0, totalChannels = 4;
    PlaneBuffer targetImage, targetMask, sourceImage, sourceMask;
    std::vector<FillPixelRecord> records;
    std::vector<Pair> fillList, sourceList, offsets;
    NeighbourEntry neighbours[30];
    int neighbourCount = 0;
    std::int32_t bestError = 0;
    Pair best{0, 0};
    std::vector<std::int32_t> stamps;

    FillPixelRecord& record(int x, int y)
    {
        return records[std::size_t(y) * std::size_t(targetImage.width) + std::size_t(x)];
    }

    bool admissible(int x, int y)
    {
        return x >= 0 && y >= 0 && x < sourceImage.width && y < sourceImage.height && sourceMask.at(x, y, 0) != 0;
    }

    /// Whether the candidate wins; then it is the best.
    bool evaluate(int cx, int cy)
    {
        std::int32_t err = 0;
        for (int k = 0; k < neighbourCount; ++k) {
            const NeighbourEntry& n = neighbours[k];
            const int qx = cx + n.dx, qy = cy + n.dy;
            if (admissible(qx, qy)) {
                if (k > 0) {
                    int c = 0;
                    for (; c < robustChannels; ++c) err += robust[n.values[c] - sourceImage.at(qx, qy, c) + 256];
                    for (; c < totalChannels; ++c) err += quadratic[n.values[c] - sourceImage.at(qx, qy, c) + 256];
                }
            } else {
                err += robustChannels * robust[0] + quadraticChannels * quadratic[0];
            }
            if (err >= bestError) return false;
        }
        bestError = err;
        best = {cx, cy};
        return true;
    }
};

enum class Draws {
    AsTheFastOne, ///< the same candidates, so that the results can be compared
    TheCLibrarys, ///< rand() modulo the length, each on its own: the slower way that it is usually written
};

/// Same arguments and result as zp::fillSmartFillPicture; without log lines.
inline SmartFillStatus fill(SmartFillPicture& picture, std::uint64_t seed, const SmartFillHooks& hooks,
                            Draws draws = Draws::AsTheFastOne)
{
    const SmartFillRandom random(seed);
    if (hooks.progress) hooks.progress(0.0f);
    SmartFillContext s;
    const int w = picture.width, h = picture.height;
    const auto readInto = [&](PlaneBuffer& image, PlaneBuffer& mask) {
        image.resize(w, h, 4);
        mask.resize(w, h, 1);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                const std::size_t i = std::size_t(y) * std::size_t(w) + std::size_t(x);
                const auto* bytes = reinterpret_cast<const std::uint8_t*>(&picture.pixels[i]);
                for (int c = 0; c < 4; ++c) image.at(x, y, c) = bytes[c];
                mask.at(x, y, 0) = picture.mask[i];
            }
    };
    readInto(s.targetImage, s.targetMask);
    s.records.resize(std::size_t(w) * std::size_t(h));
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            if (s.targetMask.at(x, y, 0))
                s.fillList.push_back({x, y});
            else
                s.record(x, y).known = 1;
        }
    readInto(s.sourceImage, s.sourceMask);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            s.sourceMask.at(x, y, 0) = 255 - s.sourceMask.at(x, y, 0);
            if (!picture.sources.empty() && !picture.sources[std::size_t(y) * std::size_t(w) + std::size_t(x)])
                s.sourceMask.at(x, y, 0) = 0;
            if (s.sourceMask.at(x, y, 0)) s.sourceList.push_back({x, y});
        }
    if (!s.fillList.empty() && s.sourceList.empty()) return SmartFillStatus::NoSource;
    for (int dy = 1 - h; dy <= h - 1; ++dy)
        for (int dx = 1 - w; dx <= w - 1; ++dx) s.offsets.push_back({dx, dy});
    // Among equal lengths any order will do; this one is the same on every machine.
    std::stable_sort(s.offsets.begin(), s.offsets.end(),
                     [](Pair a, Pair b) { return a.x * a.x + a.y * a.y < b.x * b.x + b.y * b.y; });
    for (int i = 0; i < 512; ++i) {
        const double d = i - 256;
        const double v = d * (1.0 / 256) / 0.117;
        s.robust[i] = std::int32_t(65536 * std::log(1 + v * v) / 4.3047588403794155);
        s.quadratic[i] = std::int32_t(d * d * 0.5 * 4.0);
    }
    const std::size_t n = s.fillList.size();
    for (std::size_t i = 0; i < n; ++i)
        std::swap(s.fillList[i], s.fillList[random.below(std::uint32_t(n), SmartFillRandom::FillOrder, i)]);
    for (std::size_t m = n; 3 * m >= 4;) {
        m = 3 * m / 4;
        for (std::size_t i = 0; i < m; ++i) s.fillList.push_back(Pair(s.fillList[i]));
    }
    s.stamps.assign(std::size_t(w) * std::size_t(h), -1);
    const std::int64_t total = std::int64_t(s.fillList.size());
    for (std::int64_t t = total - 1; t >= 0; --t) {
        if (t % 1024 == 0) {
            const float p = 1.0f - float(t) / float(total);
            if (hooks.progress) hooks.progress(p);
            if (hooks.cancelled && hooks.cancelled()) return SmartFillStatus::Cancelled;
        }
        const auto [x, y] = s.fillList[std::size_t(t)];
        s.record(x, y).known = 1;
        s.neighbourCount = 0;
        for (const Pair o : s.offsets) {
            int tx = x + o.x, ty = y + o.y;
            while (tx < 0) tx += w;
            while (tx >= w) tx -= w;
            while (ty < 0) ty += h;
            while (ty >= h) ty -= h;
            if (!s.record(tx, ty).known) continue;
            NeighbourEntry& entry = s.neighbours[s.neighbourCount++];
            entry = {o.x, o.y, &s.record(tx, ty), {}};
            for (int c = 0; c < 4; ++c) entry.values[c] = s.targetImage.at(tx, ty, c);
            if (s.neighbourCount == 30) break;
        }
        s.bestError = 0x40000000;
        for (int j = 0; j < s.neighbourCount && s.bestError; ++j) {
            const NeighbourEntry& entry = s.neighbours[j];
            if (!entry.record->filled) continue;
            const int cx = entry.record->x - entry.dx, cy = entry.record->y - entry.dy;
            if (!s.admissible(cx, cy)) continue;
            std::int32_t& stamp = s.stamps[std::size_t(cy) * std::size_t(w) + std::size_t(cx)];
            if (stamp == std::int32_t(t)) continue;
            s.evaluate(cx, cy);
            stamp = std::int32_t(t);
        }
        const auto sources = std::uint32_t(s.sourceList.size());
        const int start = random.startOf(t);
        for (int i = 0; i < 200 && s.bestError; ++i) {
            const std::uint32_t number = draws == Draws::AsTheFastOne ? random.draw(sources, t, start + i)
                                                                      : std::uint32_t(std::rand()) % sources;
            const Pair c = s.sourceList[number];
            s.evaluate(c.x, c.y);
        }
        for (int c = 0; c < 4; ++c) s.targetImage.at(x, y, c) = s.sourceImage.at(s.best.x, s.best.y, c);
        FillPixelRecord& record = s.record(x, y);
        record.filled = 1, record.x = s.best.x, record.y = s.best.y;
    }
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            auto* bytes =
                reinterpret_cast<std::uint8_t*>(&picture.pixels[std::size_t(y) * std::size_t(w) + std::size_t(x)]);
            for (int c = 0; c < 4; ++c) bytes[c] = std::uint8_t(s.targetImage.at(x, y, c));
        }
    return SmartFillStatus::Filled;
}

} // namespace zp::literal
