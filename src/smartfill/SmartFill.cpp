// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill run: lists, order of the steps, candidates, progress.
#include "smartfill/SmartFill.h"
#include "base/Log.h"
#include "base/PixelMemory.h"
#include "smartfill/KnownPixels.h"
#include "smartfill/SmartFillMatch.h"
#include "smartfill/SmartFillRandom.h"
#include "smartfill/SmartFillRows.h"
#include <algorithm>
#include <array>
#include <ctime>
#include <memory>
#include <new>
#include <numeric>
#include <span>
#include <utility>

namespace zp
{
namespace
{

constexpr std::int64_t kStepsPerProgress = 1024; // a power of two: a point is where the low bits are zero

/// One run's workspace.
class SmartFillRun
{
public:
    SmartFillRun(const SmartFillPicture& picture, std::uint64_t seed, MatchStep step);

    bool hasHole() const { return !mFillList.empty(); }
    bool hasSource() const { return !mSourceList.empty(); }
    /// @return false when it was cancelled
    bool run(const SmartFillHooks& hooks);
    void copyTarget(SmartFillPicture& picture) const;
    /// Of each pixel, the one it was taken from.
    std::vector<std::int32_t> takenFrom() const;

private:
    void readPicture(const SmartFillPicture& picture);
    void measureClearance();
    void shuffle();
    void findChannels();
    void draw(std::int64_t t);
    void step(std::int64_t t, PixelPoint pixel);

    DrawnSources mDrawn; ///< for the block of steps at work
    MatchLayout mLayout;
    SmartFillRandom mRandom;
    MatchStep mStep;
    // In one block of memory: steps read it at random, and a block of huge pages spares most address translations.
    PixelMemory mMemory;
    std::span<std::uint32_t> mSource;    ///< never changed
    std::span<std::int32_t> mSourceList; ///< all source pixels, row by row
    std::span<TargetPixel> mTarget;
    std::span<std::uint8_t> mClear;    ///< see MatchState::clear
    std::vector<PixelPoint> mFillList; ///< without its revisits, which repeat its beginnings
    KnownPixels mKnown;
    MatchState mState;
};

SmartFillRun::SmartFillRun(const SmartFillPicture& picture, std::uint64_t seed, MatchStep step)
    : mLayout(picture.width, picture.height), mRandom(seed), mStep(step), mKnown(mLayout)
{
    const std::size_t size = mLayout.size();
    std::size_t sources = 0;
    for (std::size_t pixel = 0; pixel < picture.mask.size(); ++pixel) sources += picture.isSource(pixel);
    mMemory = allocatePixelsUninitialized(size * (sizeof(TargetPixel) + 5) + sources * 4 + 64);
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
    take(mClear, size + 3, std::uint8_t{0});
    mState.layout = mLayout;
    mState.source = mSource.data();
    mState.clear = mClear.data();
    mState.target = mTarget.data();
    mState.known = &mKnown;
    mState.drawn = &mDrawn;
    const auto offsets = nearOffsets(2);
    for (std::size_t k = 0; k < mState.aroundDelta.size(); ++k)
        mState.aroundDelta[k] = offsets[k + 1].dy * mLayout.stride + offsets[k + 1].dx;
    readPicture(picture);
}

void SmartFillRun::readPicture(const SmartFillPicture& picture)
{
    mFillList.reserve(picture.mask.size() - std::size_t(std::count(picture.mask.begin(), picture.mask.end(), 0)));
    std::size_t source = 0, pixel = 0;
    for (int y = 0; y < picture.height; ++y) {
        mKnown.setRow(y, picture.mask.data() + pixel);
        for (int x = 0; x < picture.width; ++x, ++pixel) {
            const std::int32_t index = mLayout.index(x, y);
            const std::uint8_t mask = picture.mask[pixel];
            mSource[std::size_t(index)] = mTarget[std::size_t(index)].value = picture.pixels[pixel];
            if (mask) mFillList.push_back({x, y});
            if (!picture.isSource(pixel)) continue;
            mSourceList[source++] = index;
            mClear[std::size_t(index)] = 255;
        }
    }
}

/// From "a source pixel or not" to the size of the square around it: one pass down, one back up.
void SmartFillRun::measureClearance()
{
    const int width = mLayout.width;
    for (int y = 0; y < mLayout.height; ++y) {
        std::uint8_t* const row = mClear.data() + mLayout.index(0, y);
        growFrom(row - mLayout.stride, row, width);
        for (int x = 0, last = 0; x < width; ++x) row[x] = std::uint8_t(last = std::min(int(row[x]), last + 1));
    }
    for (int y = mLayout.height; y-- > 0;) {
        std::uint8_t* const row = mClear.data() + mLayout.index(0, y);
        growFrom(row + mLayout.stride, row, width);
        for (int x = width, last = 0; x-- > 0;) row[x] = std::uint8_t(last = std::min(int(row[x]), last + 1));
    }
}

void SmartFillRun::shuffle()
{
    const auto count = std::uint32_t(mFillList.size());
    for (std::uint32_t i = 0; i < count; ++i)
        std::swap(mFillList[i], mFillList[mRandom.below(count, SmartFillRandom::FillOrder, i)]);
}

/// Draws the candidates for the block of steps that @p t belongs to.
void SmartFillRun::draw(std::int64_t t)
{
    const auto length = std::uint32_t(mSourceList.size());
    for (int i = 0; i < DrawnSources::kCount; ++i)
        mDrawn.place[std::size_t(i)] = mSourceList[mRandom.draw(length, t, i)];
    for (std::size_t k = 0; k < mDrawn.around.size(); ++k)
        takePixels(mSource.data() + mState.aroundDelta[k], mDrawn.place.data(), DrawnSources::kCount,
                   {mDrawn.around[k][0].data(), mDrawn.around[k][1].data(), mDrawn.around[k][2].data(),
                    mDrawn.around[k][3].data()});
}

/// Which channels are worth comparing.
void SmartFillRun::findChannels()
{
    std::uint32_t different = 0;
    for (const std::int32_t source : mSourceList)
        different |= mSource[std::size_t(source)] ^ mSource[std::size_t(mSourceList[0])];
    for (unsigned channel = 0; channel < 4; ++channel)
        if (different >> (8 * channel) & 255)
            mState.channels[std::size_t(mState.channelCount++)] = std::uint8_t(channel);
}

bool SmartFillRun::run(const SmartFillHooks& hooks)
{
    measureClearance();
    shuffle();
    findChannels();
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
            if (t + 1 == total || (t + 1) % SmartFillRandom::kBlockSteps == 0) draw(t);
            step(t, mFillList[std::size_t(i)]);
        }
    }
    return true;
}

void SmartFillRun::step(std::int64_t t, PixelPoint pixel)
{
    mKnown.set(pixel.x, pixel.y);
    const BestMatch best = mStep(mState, pixel.x, pixel.y, mRandom.startOf(t));
    mTarget[std::size_t(mLayout.index(pixel.x, pixel.y))] = {mSource[std::size_t(best.source)], best.source};
}

void SmartFillRun::copyTarget(SmartFillPicture& picture) const
{
    for (const PixelPoint p : mFillList)
        picture.pixels[std::size_t(p.y) * std::size_t(picture.width) + std::size_t(p.x)] =
            mTarget[std::size_t(mLayout.index(p.x, p.y))].value;
}

std::vector<std::int32_t> SmartFillRun::takenFrom() const
{
    std::vector<std::int32_t> all(std::size_t(mLayout.width) * std::size_t(mLayout.height));
    std::iota(all.begin(), all.end(), 0);
    for (const PixelPoint p : mFillList) {
        const std::int32_t source = mTarget[std::size_t(mLayout.index(p.x, p.y))].filledFrom;
        all[std::size_t(p.y) * std::size_t(mLayout.width) + std::size_t(p.x)] =
            mLayout.y(source) * mLayout.width + mLayout.x(source);
    }
    return all;
}

void logStart(const SmartFillHooks& hooks)
{
    logLine("update progress: 0.0");
    if (hooks.progress) hooks.progress(0.0f);
}

SmartFillStatus fillAfterStart(SmartFillPicture& picture, std::uint64_t seed, const SmartFillHooks& hooks,
                               MatchStep step, std::vector<std::int32_t>* takenFrom)
{
    SmartFillRun run(picture, seed, step);
    logLine("image and mask fetched");
    if (!run.hasHole()) return SmartFillStatus::Filled;
    if (!run.hasSource()) return SmartFillStatus::NoSource;
    if (!run.run(hooks)) return SmartFillStatus::Cancelled;
    run.copyTarget(picture);
    if (takenFrom) *takenFrom = run.takenFrom();
    return SmartFillStatus::Filled;
}

} // namespace

SmartFillStatus fillSmartFillPicture(SmartFillPicture& picture, std::uint64_t seed, const SmartFillHooks& hooks,
                                     SmartFillSpeed speed, std::vector<std::int32_t>* takenFrom)
{
    logStart(hooks);
    return fillAfterStart(picture, seed, hooks,
                          speed == SmartFillSpeed::Best ? bestMatchStep() : MatchStep{matchPortable}, takenFrom);
}

SmartFillStatus runSmartFill(BitmapView bitmap, ConstMaskView mask, const SmartFillArea& area,
                             const SmartFillHooks& hooks, std::uint64_t seed)
{
    logStart(hooks);
    SmartFillPicture picture = fetchSmartFillPicture(bitmap, mask, area);
    const SmartFillStatus status =
        fillAfterStart(picture, seed ? seed : std::uint64_t(std::time(nullptr)), hooks, bestMatchStep(), nullptr);
    if (status == SmartFillStatus::Filled) writeBackSmartFill(bitmap, picture, area);
    return status;
}

} // namespace zp
