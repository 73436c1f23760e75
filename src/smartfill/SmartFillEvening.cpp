// SPDX-License-Identifier: GPL-3.0-or-later
/// Shifts of colour as the solution of a sparse system: equal between neighbours of one patch, as far apart as the step
/// between two, and nothing outside the hole. Conjugate gradients, helped by the same system on coarser and coarser
/// grids.
#include "smartfill/SmartFillEvening.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <tuple>
#include <utility>
#include <vector>

namespace zp
{

namespace
{

/// Levels of difference between what two patches say of one place that count half: grain stays below, edges above.
constexpr double kEdge = 16;
/// How much a pixel is held where it is, against one step between neighbours: what no neighbour tells about stays.
constexpr float kHold = 1e-4f;
constexpr int kMostRounds = 60;
constexpr float kPrecision = 1e-3f;
constexpr int kChannels = 3;
/// Of the whole work.
constexpr float kShareOfFilling = 0.75f;
/// Red, green and blue in a word, whose lowest byte is the alpha.
constexpr int shiftOf(int channel) { return 8 * (channel + 1); }
int channelOf(std::uint32_t word, int channel) { return int(word >> shiftOf(channel) & 255); }

/// The system's grid: how strongly each place is held, and tied to those on the right and below.
struct Grid {
    int width = 0, height = 0;
    std::vector<float> hold, right, below;

    Grid(int w, int h) : width(w), height(h), hold(size()), right(size()), below(size()) {}
    std::size_t size() const { return std::size_t(width) * std::size_t(height); }
    /// The sum of the ties of a place and its hold; 0 beside the hole.
    float diagonal(std::size_t i, int x, int y) const
    {
        return hold[i] + right[i] + below[i] + (x > 0 ? right[i - 1] : 0) + (y > 0 ? below[i - std::size_t(width)] : 0);
    }
    float neighbours(const std::vector<float>& values, std::size_t i, int x, int y) const
    {
        const auto row = std::size_t(width);
        float sum = 0;
        if (x + 1 < width) sum += right[i] * values[i + 1];
        if (y + 1 < height) sum += below[i] * values[i + row];
        if (x > 0) sum += right[i - 1] * values[i - 1];
        if (y > 0) sum += below[i - row] * values[i - row];
        return sum;
    }
    /// Four places become one. Ties count half: places that move together are stiffer than those that follow smoothly.
    Grid coarser() const
    {
        Grid coarse((width + 1) / 2, (height + 1) / 2);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const std::size_t i = std::size_t(y) * std::size_t(width) + std::size_t(x);
                const std::size_t to = std::size_t(y / 2) * std::size_t(coarse.width) + std::size_t(x / 2);
                coarse.hold[to] += hold[i];
                if (x % 2 == 1) coarse.right[to] += right[i] / 2;
                if (y % 2 == 1) coarse.below[to] += below[i] / 2;
            }
        return coarse;
    }
};

class Solver
{
public:
    explicit Solver(Grid finest)
    {
        mLevels.push_back({std::move(finest), {}, {}});
        while (std::max(mLevels.back().grid.width, mLevels.back().grid.height) > 2)
            mLevels.push_back({mLevels.back().grid.coarser(), {}, {}});
        for (Level& level : mLevels) {
            level.values.resize(level.grid.size());
            level.wanted.resize(level.grid.size());
        }
    }
    /// @return the values for which the system gives @p wanted; empty when it was cancelled
    std::vector<float> solve(const std::vector<float>& wanted, const std::function<bool()>& cancelled)
    {
        const Grid& grid = mLevels[0].grid;
        std::vector<float> values(grid.size()), rest = wanted, way(grid.size()), applied(grid.size());
        double past = 0;
        const double enough = double(kPrecision) * kPrecision * product(rest, rest);
        for (int round = 0; round < kMostRounds && product(rest, rest) > enough; ++round) {
            if (cancelled && cancelled()) return {};
            mLevels[0].wanted = rest;
            cycle(0);
            const std::vector<float>& guess = mLevels[0].values;
            const double now = product(rest, guess);
            if (!(now > 0)) break;
            const auto turn = float(round == 0 ? 0 : now / past);
            past = now;
            for (std::size_t i = 0; i < way.size(); ++i) way[i] = guess[i] + turn * way[i];
            apply(grid, way, applied);
            const auto length = float(now / product(way, applied));
            for (std::size_t i = 0; i < way.size(); ++i) {
                values[i] += length * way[i];
                rest[i] -= length * applied[i];
            }
        }
        return values;
    }

private:
    struct Level {
        Grid grid;
        std::vector<float> values, wanted;
    };

    static double product(const std::vector<float>& a, const std::vector<float>& b)
    {
        return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
    }
    static void apply(const Grid& grid, const std::vector<float>& values, std::vector<float>& to)
    {
        std::size_t i = 0;
        for (int y = 0; y < grid.height; ++y)
            for (int x = 0; x < grid.width; ++x, ++i)
                to[i] = grid.diagonal(i, x, y) * values[i] - grid.neighbours(values, i, x, y);
    }
    /// One place after the other gets what its neighbours ask for; there and, the second time, back.
    static void smooth(Level& level, bool back)
    {
        const Grid& grid = level.grid;
        const auto settle = [&](int x, int y) {
            const std::size_t i = std::size_t(y) * std::size_t(grid.width) + std::size_t(x);
            const float diagonal = grid.diagonal(i, x, y);
            if (diagonal > 0) level.values[i] = (level.wanted[i] + grid.neighbours(level.values, i, x, y)) / diagonal;
        };
        for (int n = 0; n < grid.height; ++n)
            for (int m = 0; m < grid.width; ++m) back ? settle(grid.width - 1 - m, grid.height - 1 - n) : settle(m, n);
    }
    /// Improves nothing to a rough solution of that level.
    void cycle(std::size_t number)
    {
        Level& level = mLevels[number];
        std::fill(level.values.begin(), level.values.end(), 0.f);
        smooth(level, false);
        if (number + 1 < mLevels.size()) {
            Level& next = mLevels[number + 1];
            std::fill(next.wanted.begin(), next.wanted.end(), 0.f);
            eachPlace(level.grid, next.grid, [&](std::size_t i, std::size_t coarse, int x, int y) {
                next.wanted[coarse] += level.wanted[i] - level.grid.diagonal(i, x, y) * level.values[i] +
                                       level.grid.neighbours(level.values, i, x, y);
            });
            cycle(number + 1);
            eachPlace(level.grid, next.grid,
                      [&](std::size_t i, std::size_t coarse, int, int) { level.values[i] += next.values[coarse]; });
        }
        smooth(level, true);
    }
    template <class F>
    static void eachPlace(const Grid& fine, const Grid& coarse, F&& body)
    {
        std::size_t i = 0;
        for (int y = 0; y < fine.height; ++y)
            for (int x = 0; x < fine.width; ++x, ++i)
                body(i, std::size_t(y / 2) * std::size_t(coarse.width) + std::size_t(x / 2), x, y);
    }

    std::vector<Level> mLevels;
};

class Evening
{
public:
    Evening(SmartFillPicture& picture, std::span<const std::uint32_t> before, std::span<const std::int32_t> takenFrom)
        : mPicture(picture), mBefore(before), mTakenFrom(takenFrom)
    {
        for (int y = 0; y < picture.height; ++y)
            for (int x = 0; x < picture.width; ++x)
                if (picture.mask[index(x, y)]) mHole.include(x, y);
    }
    bool run(const SmartFillHooks& hooks);

private:
    using Step = std::array<float, kChannels>;

    std::size_t index(int x, int y) const { return std::size_t(y) * std::size_t(mPicture.width) + std::size_t(x); }
    std::size_t place(int x, int y) const
    {
        return std::size_t(y - mHole.y0) * std::size_t(mHole.width()) + std::size_t(x - mHole.x0);
    }
    /// The word beside the one that pixel was taken from, if it is one that could be taken.
    const std::uint32_t* beyond(std::size_t pixel, int dx, int dy) const
    {
        const int from = mTakenFrom[pixel], x = from % mPicture.width + dx, y = from / mPicture.width + dy;
        if (x < 0 || y < 0 || x >= mPicture.width || y >= mPicture.height) return nullptr;
        return mPicture.mask[index(x, y)] == 255 ? nullptr : &mBefore[index(x, y)];
    }
    float tie(int x, int y, int dx, int dy, Step& step) const;
    void tieAll(Grid& grid, std::array<std::vector<float>, kChannels>& wanted) const;

    SmartFillPicture& mPicture;
    std::span<const std::uint32_t> mBefore;
    std::span<const std::int32_t> mTakenFrom;
    PixelBox mHole;
};

/// How strongly a pixel and its neighbour are tied, at least one of them in the hole, and by how much the shift of the
/// first shall be above that of the second.
float Evening::tie(int x, int y, int dx, int dy, Step& step) const
{
    step = {};
    const std::size_t a = index(x, y), b = index(x + dx, y + dy);
    const bool inA = mPicture.mask[a] != 0, inB = mPicture.mask[b] != 0;
    if (inA && inB && mTakenFrom[b] == mTakenFrom[a] + dx + dy * mPicture.width) return 1; // one patch
    const std::uint32_t *const behindA = inA ? beyond(a, dx, dy) : nullptr, *const behindB =
                                                                                inB ? beyond(b, -dx, -dy) : nullptr;
    int sides = 0, most = 0;
    for (const auto& [said, there, sign] :
         {std::tuple(behindA, mPicture.pixels[b], 1), std::tuple(behindB, mPicture.pixels[a], -1)}) {
        if (!said) continue;
        ++sides;
        for (int c = 0; c < kChannels; ++c) {
            const int difference = channelOf(there, c) - channelOf(*said, c);
            step[std::size_t(c)] += float(sign * difference);
            most = std::max(most, std::abs(difference));
        }
    }
    if (sides == 0) return inA && inB ? kHold : 0;
    for (float& value : step) value /= float(sides);
    const double edge = most / kEdge;
    return float(1 / (1 + edge * edge));
}

void Evening::tieAll(Grid& grid, std::array<std::vector<float>, kChannels>& wanted) const
{
    const auto isHole = [this](int x, int y) { return mHole.contains(x, y) && mPicture.mask[index(x, y)] != 0; };
    const auto tieTo = [&](int x, int y, int dx, int dy) {
        const int toX = x + dx, toY = y + dy;
        if (x < 0 || y < 0 || toX >= mPicture.width || toY >= mPicture.height) return;
        const bool first = isHole(x, y), second = isHole(toX, toY);
        if (!first && !second) return;
        Step step;
        const float strength = tie(x, y, dx, dy, step);
        if (first && second)
            (dx ? grid.right : grid.below)[place(x, y)] = strength;
        else
            grid.hold[first ? place(x, y) : place(toX, toY)] += strength;
        for (std::size_t c = 0; c < kChannels; ++c) {
            if (first) wanted[c][place(x, y)] += strength * step[c];
            if (second) wanted[c][place(toX, toY)] -= strength * step[c];
        }
    };
    for (int y = mHole.y0 - 1; y < mHole.y1; ++y)
        for (int x = mHole.x0 - 1; x < mHole.x1; ++x) {
            if (isHole(x, y)) grid.hold[place(x, y)] += kHold;
            if (y >= mHole.y0) tieTo(x, y, 1, 0);
            if (x >= mHole.x0) tieTo(x, y, 0, 1);
        }
}

bool Evening::run(const SmartFillHooks& hooks)
{
    if (mHole.isEmpty()) return true;
    Grid grid(mHole.width(), mHole.height());
    std::array<std::vector<float>, kChannels> wanted;
    for (auto& channel : wanted) channel.resize(grid.size());
    tieAll(grid, wanted);
    Solver solver(std::move(grid));
    for (std::size_t c = 0; c < kChannels; ++c) {
        wanted[c] = solver.solve(wanted[c], hooks.cancelled);
        if (wanted[c].empty()) return false;
        if (hooks.progress) hooks.progress(float(c + 1) / kChannels);
    }
    for (int y = mHole.y0; y < mHole.y1; ++y)
        for (int x = mHole.x0; x < mHole.x1; ++x) {
            if (!mPicture.mask[index(x, y)]) continue;
            std::uint32_t& word = mPicture.pixels[index(x, y)];
            const int alpha = int(word & 255);
            std::uint32_t evened = std::uint32_t(alpha);
            for (int c = 0; c < kChannels; ++c) {
                const int value = channelOf(word, c) + int(std::lround(wanted[std::size_t(c)][place(x, y)]));
                evened |= std::uint32_t(std::clamp(value, 0, alpha)) << shiftOf(c);
            }
            word = evened;
        }
    return true;
}

} // namespace

bool evenPatches(SmartFillPicture& picture, std::span<const std::uint32_t> before,
                 std::span<const std::int32_t> takenFrom, const SmartFillHooks& hooks)
{
    return Evening(picture, before, takenFrom).run(hooks);
}

SmartFillStatus fillEvenly(SmartFillPicture& picture, std::uint64_t seed, const SmartFillHooks& hooks)
{
    const std::vector<std::uint32_t> before = picture.pixels;
    std::vector<std::int32_t> takenFrom;
    const auto part = [&hooks](float from, float to) {
        SmartFillHooks told = hooks;
        if (hooks.progress) told.progress = [&hooks, from, to](float p) { hooks.progress(from + p * (to - from)); };
        return told;
    };
    const SmartFillStatus status =
        fillSmartFillPicture(picture, seed, part(0, kShareOfFilling), SmartFillSpeed::Best, &takenFrom);
    if (status != SmartFillStatus::Filled || takenFrom.empty()) return status;
    if (evenPatches(picture, before, takenFrom, part(kShareOfFilling, 1))) return status;
    picture.pixels = before;
    return SmartFillStatus::Cancelled;
}

} // namespace zp
