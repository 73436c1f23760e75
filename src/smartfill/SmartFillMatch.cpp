// SPDX-License-Identifier: GPL-3.0-or-later
/// The robust distance, and the plain version of a step.
#include "smartfill/SmartFillMatch.h"
#include "smartfill/SmartFill.h"
#include "smartfill/SmartFillRace.h"
#include <algorithm>
#include <array>
#include <cmath>

namespace zp
{

std::int32_t robustDistance(int difference)
{
    constexpr double kScale = 0.117;                  // a difference of about 30 of 256 counts as "different"
    constexpr double kFullScale = 4.3047588403794155; // ln(1 + 1 / kScale²): 65,536 for a difference of 256
    const double v = difference * (1.0 / 256) / kScale;
    return std::int32_t(65536 * std::log(1 + v * v) / kFullScale);
}

const std::int32_t* robustDistanceTable()
{
    static const auto table = [] {
        std::array<std::int32_t, 256> values{};
        for (int d = 0; d < 256; ++d) values[std::size_t(d)] = robustDistance(d);
        return values;
    }();
    return table.data();
}

namespace
{

/// The same for differences from -255 to 255: half the instructions of a comparison would take the sign off.
const std::int32_t* signedDistanceTable()
{
    static const auto table = [] {
        std::array<std::int32_t, 511> values{};
        for (int d = -255; d < 256; ++d) values[std::size_t(d + 255)] = robustDistanceTable()[std::abs(d)];
        return values;
    }();
    return table.data() + 255;
}

/// @tparam kFirst the first byte that may differ
template <int kFirst>
std::int32_t pixelDistance(const std::int32_t* table, std::uint32_t a, std::uint32_t b)
{
    std::int32_t sum = 0;
    for (int shift = 8 * kFirst; shift < 32; shift += 8) sum += table[int(a >> shift & 255) - int(b >> shift & 255)];
    return sum;
}

/// A step at work: what is compared with, and the best so far.
class PlainStep
{
    static constexpr int kStart = 8; ///< tries that are compared before any can be dropped

public:
    PlainStep(const MatchState& state, const Neighbourhood& near) : mState(state), mNear(near)
    {
        const bool oneAlpha = state.channelCount > 0 && state.channels[0] != 0;
        const std::uint32_t alpha = state.source[state.drawn->place[0]] & 255;
        std::uint32_t otherAlphas = 0;
        for (int k = 0; k < near.count; ++k) {
            const TargetPixel pixel = state.target[near.index[k]];
            mValue[k] = pixel.value;
            mFrom[k] = pixel.filledFrom;
            if (k > 0) otherAlphas |= (pixel.value ^ alpha) & 255;
        }
        mSkipsAlpha = oneAlpha && otherAlphas == 0;
    }

    void coherent()
    {
        std::int32_t tried[kNeighbours];
        std::int32_t latest = -1; // mostly the same again
        int count = 0;
        for (int k = 0; k < mNear.count && mBest.error; ++k) {
            const std::int32_t candidate = continued(k);
            if (candidate == latest || candidate < 0 || !mState.clear[candidate] ||
                std::find(tried, tried + count, candidate) != tried + count)
                continue;
            latest = candidate;
            tried[count++] = candidate;
            compare(candidate);
        }
    }

    void atRandom(int start)
    {
        const std::int32_t* const place = mState.drawn->place.data() + start;
        if (mNear.far) return compareAll(place, kRandomTries);
        if (mNear.count < 2) return compare(place[0]); // the first will do
        // Nothing to drop anyone by: the first few make a start.
        int next = 0;
        if (mBest.error == kWorstError)
            for (; next < kStart && mBest.error; ++next) compare(place[next]);
        if (!mBest.error) return;
        const CoarseDistance distance(mBest.error);
        Contenders contenders;
        int k = 1;
        if (const NeighbourStreams streams = nearestStreams(start); streams.count > 0) {
            k += raceStreams(streams, distance, place, contenders);
        } else {
            contenders.count = kRandomTries;
            std::copy_n(place, kRandomTries, contenders.place);
            std::fill_n(contenders.error, kRandomTries, 0);
        }
        raceOn({mState.source, mNear.delta, mValue, k, mNear.count}, distance, contenders);
        compareAll(contenders.place, contenders.count);
    }

    BestMatch best() const { return mBest; }

private:
    /// Where the source goes on that neighbour @p k was filled from; -1: nowhere.
    std::int32_t continued(int k) const
    {
        const std::int32_t from = mFrom[k];
        if (from < 0) return -1;
        if (!mNear.far) return from - mNear.delta[k];
        const MatchLayout& layout = mState.layout;
        const int x = layout.x(from) - mNear.dx[k], y = layout.y(from) - mNear.dy[k];
        return x >= 0 && y >= 0 && x < layout.width && y < layout.height ? layout.index(x, y) : -1;
    }

    /// The nearest neighbours as far as they are those close around.
    NeighbourStreams nearestStreams(int start) const
    {
        NeighbourStreams streams;
        streams.channels = mState.channelCount;
        for (std::size_t i = 0; i < DrawnSources::kAround && streams.count + 1 < mNear.count; ++i) {
            const int k = streams.count + 1;
            if (mState.aroundDelta[i] != mNear.delta[k]) continue;
            for (int c = 0; c < mState.channelCount; ++c) {
                const unsigned channel = mState.channels[unsigned(c)];
                streams.bytes[streams.count][c] = mState.drawn->around[i][channel].data() + start;
                streams.value[streams.count][c] = std::uint8_t(mValue[k] >> (8 * channel));
            }
            ++streams.count;
        }
        return streams;
    }

    void compareAll(const std::int32_t* candidates, int count)
    {
        for (int i = 0; i < count && mBest.error; ++i) compare(candidates[i]);
    }

    void compare(std::int32_t c)
    {
        std::int32_t error;
        if (mState.clear[c] > mNear.reach) {
            error = errorOf(c, [](int) { return true; });
        } else if (!mNear.far) {
            error = errorOf(c, [&](int k) { return mState.clear[c + mNear.delta[k]] != 0; });
        } else {
            const MatchLayout& layout = mState.layout;
            const int x = layout.x(c), y = layout.y(c);
            error = errorOf(c, [&](int k) {
                const int qx = x + mNear.dx[k], qy = y + mNear.dy[k];
                return qx >= 0 && qy >= 0 && qx < layout.width && qy < layout.height &&
                       mState.clear[layout.index(qx, qy)] != 0;
            });
        }
        if (error < mBest.error) mBest = {error, c};
    }

    /// The error of one candidate, or some number not below the best. isSource(k): neighbour k has a counterpart there.
    template <class IsSource>
    std::int32_t errorOf(std::int32_t candidate, IsSource isSource) const
    {
        return mSkipsAlpha ? errorFrom<1>(candidate, isSource) : errorFrom<0>(candidate, isSource);
    }
    template <int kFirst, class IsSource>
    std::int32_t errorFrom(std::int32_t candidate, IsSource isSource) const
    {
        std::int32_t error = 0;
        for (int k = 1; k < mNear.count && error < mBest.error; ++k)
            error += isSource(k) ? pixelDistance<kFirst>(mTable, mValue[k], mState.source[candidate + mNear.delta[k]])
                                 : kMissingPenalty;
        return error;
    }

    const MatchState& mState;
    const Neighbourhood& mNear;
    const std::int32_t* const mTable = signedDistanceTable();
    bool mSkipsAlpha = false; ///< that of all pixels compared is the same
    std::uint32_t mValue[kNeighbours];
    std::int32_t mFrom[kNeighbours]; ///< which source pixel it was filled from; -1: it was not
    BestMatch mBest;
};

} // namespace

BestMatch matchPortable(const MatchState& state, const Neighbourhood& near, int start)
{
    PlainStep step(state, near);
    step.coherent();
    if (step.best().error) step.atRandom(start);
    return step.best();
}

BestMatch matchPortable(const MatchState& state, int x, int y, int start)
{
    Neighbourhood near;
    state.known->collect(x, y, near);
    return matchPortable(state, near, start);
}

} // namespace zp
