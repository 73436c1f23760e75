// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill run: lists, order of the steps, candidates, progress.
#include "smartfill/SmartFill.h"
#include "platform/Log.h"
#include "platform/PixelMemory.h"
#include "smartfill/KnownPixels.h"
#include "smartfill/SmartFillMatch.h"
#include "smartfill/SmartFillRandom.h"
#include <algorithm>
#include <ctime>
#include <memory>
#include <new>
#include <span>
#include <utility>

namespace zp
{
namespace
{

constexpr int kRandomTries = 200;
constexpr std::int64_t kStepsPerProgress = 1024; // a power of two: a point is where the low bits are zero

/// A pixel being synthesised; both parts are always wanted together.
struct TargetPixel {
    std::uint32_t value;
    std::int32_t filledFrom; ///< index of the source pixel it was filled from; -1: not filled
};

/// One run's workspace.
class SmartFillRun
{
public:
    SmartFillRun(const SmartFillPicture& picture, std::uint64_t seed, MatchSearch search);

    bool hasHole() const { return !mFillList.empty(); }
    bool hasSource() const { return !mSourceList.empty(); }
    /// @return false when it was cancelled
    bool run(const SmartFillHooks& hooks);
    void copyTarget(SmartFillPicture& picture) const;

private:
    void measureClearance();
    void shuffle();
    void step(std::int64_t t, PixelPoint pixel);
    int coherenceCandidates(std::int32_t stamp);

    MatchLayout mLayout;
    SmartFillRandom mRandom;
    MatchSearch mSearch;
    // All with an index in the padded layout, in one block of memory: steps read them at random, and a block of huge
    // pages spares most address translations.
    PixelMemory mMemory;
    std::span<std::uint32_t> mSource;    ///< never changed
    std::span<std::int32_t> mSourceList; ///< by number, not by index: all source pixels, row by row
    std::span<TargetPixel> mTarget;
    std::span<std::int32_t> mStamps;   ///< the step in which a source pixel was last a coherence candidate
    std::span<std::uint8_t> mClear;    ///< see MatchSource::clear
    std::vector<PixelPoint> mFillList; ///< without its revisits, which repeat its beginnings
    KnownPixels mKnown;
    MatchSource mMatchSource;
    Neighbourhood mNear;
    std::int32_t mCandidates[kNeighbours + 1];
};

SmartFillRun::SmartFillRun(const SmartFillPicture& picture, std::uint64_t seed, MatchSearch search)
    : mLayout(picture.width, picture.height), mRandom(seed), mSearch(search), mKnown(mLayout)
{
    const std::size_t size = mLayout.size();
    const auto sources =
        std::size_t(std::count_if(picture.mask.begin(), picture.mask.end(), [](auto m) { return m != 255; }));
    const auto hole = picture.mask.size() - std::size_t(std::count(picture.mask.begin(), picture.mask.end(), 0));
    mMemory = allocatePixelsUninitialized(size * (sizeof(TargetPixel) + 9) + sources * 4 + 64);
    if (!mMemory) throw std::bad_alloc();
    std::uint8_t* next = mMemory.get();
    const auto take = [&]<class T>(std::span<T>& span, std::size_t count, T value) {
        span = {reinterpret_cast<T*>(next), count};
        next += count * sizeof(T);
        std::uninitialized_fill(span.begin(), span.end(), value);
    };
    take(mTarget, size, TargetPixel{0, -1});
    take(mSource, size, 0u);
    take(mSourceList, sources, 0);
    take(mStamps, size, -1);
    take(mClear, size + 3, std::uint8_t{0});
    mFillList.reserve(hole);

    std::size_t source = 0, pixel = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x, ++pixel) {
            const std::int32_t index = mLayout.index(x, y);
            const std::uint8_t mask = picture.mask[pixel];
            mSource[std::size_t(index)] = mTarget[std::size_t(index)].value = picture.pixels[pixel];
            if (mask)
                mFillList.push_back({x, y});
            else
                mKnown.set(x, y);
            if (mask == 255) continue;
            mSourceList[source++] = index;
            mClear[std::size_t(index)] = 255;
        }
    }
    measureClearance();
    mMatchSource = {mLayout, mSource.data(), mClear.data(), mSourceList.data(), std::uint32_t(mSourceList.size())};
}

/// From "a source pixel or not" to the size of the square around it: one pass down, one back up.
void SmartFillRun::measureClearance()
{
    const std::ptrdiff_t stride = mLayout.stride;
    const auto grow = [](std::uint8_t* p, std::ptrdiff_t a, std::ptrdiff_t b, std::ptrdiff_t c, std::ptrdiff_t d) {
        if (*p) *p = std::uint8_t(std::min({int(*p), p[a] + 1, p[b] + 1, p[c] + 1, p[d] + 1}));
    };
    for (int y = 0; y < mLayout.height; ++y) {
        std::uint8_t* row = mClear.data() + mLayout.index(0, y);
        for (int x = 0; x < mLayout.width; ++x) grow(row + x, -1, -stride - 1, -stride, -stride + 1);
    }
    for (int y = mLayout.height; y-- > 0;) {
        std::uint8_t* row = mClear.data() + mLayout.index(0, y);
        for (int x = mLayout.width; x-- > 0;) grow(row + x, 1, stride + 1, stride, stride - 1);
    }
}

void SmartFillRun::shuffle()
{
    mRandom.begin(kSmartFillShuffleStream);
    const auto count = std::uint32_t(mFillList.size());
    for (auto& pixel : mFillList) std::swap(pixel, mFillList[mRandom.below(count)]);
}

bool SmartFillRun::run(const SmartFillHooks& hooks)
{
    shuffle();
    // The list of steps is the fill list, then its first three quarters again, then three quarters of that, down to one
    // pixel; it is worked off from its end. So the first few pixels are placed coarsely and often, before the rest.
    std::vector<std::int64_t> rounds{std::int64_t(mFillList.size())};
    std::int64_t total = rounds[0];
    while (3 * rounds.back() >= 4) {
        rounds.push_back(3 * rounds.back() / 4);
        total += rounds.back();
    }
    std::int64_t t = total;
    for (; !rounds.empty(); rounds.pop_back()) {
        for (std::int64_t i = rounds.back(); i-- > 0;) {
            --t;
            if (t % kStepsPerProgress == 0) {
                const float progress = 1.0f - float(t) / float(total);
                logLine("update progress: %f", double(progress));
                if (hooks.progress) hooks.progress(progress);
                if (hooks.cancelled && hooks.cancelled()) return false;
            }
            step(t, mFillList[std::size_t(i)]);
        }
    }
    return true;
}

/// Reads the neighbours' values, and gathers the source pixels that would continue what they were filled from.
/// @return how many of these there are
int SmartFillRun::coherenceCandidates(std::int32_t stamp)
{
    int count = 0;
    const auto propose = [&](std::int32_t candidate) {
        // Without branches, which nothing could predict. Index 0 lies in the border and is never a source.
        const bool fresh = mStamps[std::size_t(candidate)] != stamp;
        mStamps[std::size_t(candidate)] = stamp;
        mCandidates[count] = candidate;
        count += int(fresh) & int(mClear[std::size_t(candidate)] != 0);
    };
    for (int k = 0; k < mNear.count; ++k) {
        const auto [value, from] = mTarget[std::size_t(mNear.index[k])];
        mNear.value[k] = value;
        if (!mNear.far) {
            propose(from < 0 ? 0 : from - mNear.delta[k]);
        } else if (from >= 0) {
            const int x = mLayout.x(from) - mNear.dx[k], y = mLayout.y(from) - mNear.dy[k];
            if (x >= 0 && y >= 0 && x < mLayout.width && y < mLayout.height) propose(mLayout.index(x, y));
        }
    }
    return count;
}

void SmartFillRun::step(std::int64_t t, PixelPoint pixel)
{
    mKnown.set(pixel.x, pixel.y);
    mKnown.collect(pixel.x, pixel.y, mNear);
    const int coherent = coherenceCandidates(std::int32_t(t));
    BestMatch best;
    mSearch.among(mMatchSource, mNear, mCandidates, coherent, best);
    if (best.error) mSearch.atRandom(mMatchSource, mNear, mRandom.keyOf(std::uint64_t(t)), kRandomTries, best);
    mTarget[std::size_t(mLayout.index(pixel.x, pixel.y))] = {mSource[std::size_t(best.source)], best.source};
}

void SmartFillRun::copyTarget(SmartFillPicture& picture) const
{
    for (const PixelPoint p : mFillList)
        picture.pixels[std::size_t(p.y) * std::size_t(picture.width) + std::size_t(p.x)] =
            mTarget[std::size_t(mLayout.index(p.x, p.y))].value;
}

void logStart(const SmartFillHooks& hooks)
{
    logLine("update progress: 0.0");
    if (hooks.progress) hooks.progress(0.0f);
}

SmartFillStatus fillAfterStart(SmartFillPicture& picture, std::uint64_t seed, const SmartFillHooks& hooks,
                               MatchSearch search)
{
    SmartFillRun run(picture, seed, search);
    logLine("image and mask fetched");
    if (!run.hasHole()) return SmartFillStatus::Filled;
    if (!run.hasSource()) return SmartFillStatus::NoSource;
    if (!run.run(hooks)) return SmartFillStatus::Cancelled;
    run.copyTarget(picture);
    return SmartFillStatus::Filled;
}

} // namespace

SmartFillStatus fillSmartFillPicture(SmartFillPicture& picture, std::uint64_t seed, const SmartFillHooks& hooks,
                                     SmartFillSpeed speed)
{
    logStart(hooks);
    return fillAfterStart(picture, seed, hooks, speed == SmartFillSpeed::Best ? bestMatchSearch() : kPortableSearch);
}

SmartFillStatus runSmartFill(BitmapView bitmap, ConstMaskView mask, const SmartFillArea& area,
                             const SmartFillHooks& hooks, std::uint64_t seed)
{
    logStart(hooks);
    SmartFillPicture picture = fetchSmartFillPicture(bitmap, mask, area);
    const SmartFillStatus status =
        fillAfterStart(picture, seed ? seed : std::uint64_t(std::time(nullptr)), hooks, bestMatchSearch());
    if (status == SmartFillStatus::Filled) writeBackSmartFill(bitmap, picture, area);
    return status;
}

} // namespace zp
