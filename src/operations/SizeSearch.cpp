// SPDX-License-Identifier: GPL-3.0-or-later
/// Doubling steps away from a guess, then halves between the last two.
#include "operations/SizeSearch.h"
#include "base/Translation.h"
#include <algorithm>
#include <exception>
#include <utility>

namespace zp
{

namespace
{

/// A region of 64 × 64 pixels that lost its pattern is seen even where all others are perfect.
constexpr double kMeanAlike = 0.985, kWorstAlike = 0.97;

/// From here on a guess from some of the rows saves more than it costs.
constexpr int kLargePixels = 4'000'000, kBandRows = 64, kOneBandOf = 8;
/// Where a small picture's search begins.
constexpr int kFirstGuess = 70;

/// Every eighth band of rows of a large picture: what its detail costs, for a guess.
std::shared_ptr<const BitmapRep> sampleOf(const BitmapRep& picture)
{
    const std::int64_t pixels = std::int64_t{picture.pixelsWide()} * picture.pixelsHigh();
    const int bands = picture.pixelsHigh() / (kBandRows * kOneBandOf);
    if (pixels < kLargePixels || bands < 1) return nullptr;
    auto sample = BitmapRep::createUninitialized(picture.pixelsWide(), bands * kBandRows);
    if (!sample) return nullptr; // it goes without
    for (int band = 0; band < bands; ++band) {
        const auto rows = [&](int from) { return PixelBox{0, from, picture.pixelsWide(), from + kBandRows}; };
        copyPixels(picture.view().part(rows(band * kOneBandOf * kBandRows)),
                   sample->view().part(rows(band * kBandRows)));
    }
    return sample;
}

/// One attempt: the file, and what it shows once somebody has asked.
struct Trial {
    std::vector<std::uint8_t> bytes;
    std::shared_ptr<BitmapRep> shown;
    Likeness likeness;

    bool look(const BitmapRep& picture, const LossyWriter& writer)
    {
        if (shown) return true;
        shown = BitmapRep::createUninitialized(picture.pixelsWide(), picture.pixelsHigh());
        if (!shown || !writer.read(bytes, shown->view())) return false;
        likeness = likenessOf(picture.view(), std::as_const(*shown).view());
        return true;
    }
};

/// The largest rank from 1 to kBestQuality that is taken, when all below it are; 0 when none is.
/// @param taken  false also ends what was stopped
template <class Taken>
int largestTaken(int guess, Taken taken)
{
    int low = 0, high = kBestQuality + 1; // taken, not taken
    int step = 1;
    for (int rank = guess; rank > low && rank < high; step *= 2) {
        if (taken(rank)) {
            low = rank;
            rank = std::min(rank + step, kBestQuality);
        } else {
            high = rank;
            rank = std::max(rank - step, 1);
        }
        if (low > 0 && high <= kBestQuality) break;
    }
    while (high - low > 1) {
        const int middle = (low + high) / 2;
        (taken(middle) ? low : high) = middle;
    }
    return low;
}

/// One search: the goal, and the best trial so far.
class Search
{
public:
    Search(const BitmapRep& picture, LossyWriter& writer, const SizeGoal& goal, const std::stop_token& stop,
           const std::function<void(int)>& trying)
        : mPicture(picture), mWriter(writer), mGoal(goal), mStop(stop), mTrying(trying)
    {
    }
    /// @return the quality, 0 when there is none
    int run(int guess)
    {
        if (mGoal.kind == SizeGoal::Quality) return attempt(mGoal.quality) ? mGoal.quality : 0;
        // Ranks grow with size in one case and shrink in the other.
        const bool up = mGoal.kind == SizeGoal::AtMost;
        const auto quality = [up](int rank) { return up ? rank : kBestQuality + kLeastQuality - rank; };
        const int rank = largestTaken(quality(guess), [&](int r) { return attempt(quality(r)); });
        return rank > 0 ? quality(rank) : 0;
    }
    Trial& best() { return mBest; }
    bool failed() const { return mFailed; }

private:
    bool attempt(int quality)
    {
        if (mStop.stop_requested() || mFailed) return false;
        if (mTrying) mTrying(quality);
        Trial trial;
        trial.bytes = mWriter.write(quality, mStop);
        mFailed = trial.bytes.empty() || (mGoal.kind == SizeGoal::LooksSame && !trial.look(mPicture, mWriter));
        const bool good = !mFailed && (mGoal.kind == SizeGoal::AtMost      ? trial.bytes.size() <= mGoal.bytes
                                       : mGoal.kind == SizeGoal::LooksSame ? looksTheSame(trial.likeness)
                                                                           : true);
        if (good) mBest = std::move(trial);
        return good;
    }

    const BitmapRep& mPicture;
    LossyWriter& mWriter;
    SizeGoal mGoal;
    const std::stop_token& mStop;
    const std::function<void(int)>& mTrying;
    Trial mBest;
    bool mFailed = false;
};

} // namespace

bool looksTheSame(const Likeness& likeness) { return likeness.mean >= kMeanAlike && likeness.worst >= kWorstAlike; }

SizeSearch::SizeSearch(std::shared_ptr<const BitmapRep> picture, SaveFormat format) : mPicture(std::move(picture))
{
    mWriter = LossyWriter::make(format, mPicture->view(), mPicture->properties, mWhyNot);
    if (mWriter) mSample = sampleOf(*mPicture);
    std::string ignored;
    if (mSample) mSampleWriter = LossyWriter::make(format, mSample->view(), mSample->properties, ignored);
}

SizedFile SizeSearch::find(const SizeGoal& goal, const std::stop_token& stop,
                           const std::function<void(int quality)>& trying) noexcept
{
    SizedFile found;
    const std::string noMemory = translated("Codecs", "There is not enough memory for this image.");
    try {
        found.error = mWhyNot;
        if (!mWriter) return found;
        int guess = kFirstGuess;
        if (mSampleWriter && goal.kind != SizeGoal::Quality) {
            SizeGoal part = goal;
            part.bytes = std::size_t(double(goal.bytes) * mSample->pixelsHigh() / mPicture->pixelsHigh());
            const int quality = Search(*mSample, *mSampleWriter, part, stop, trying).run(guess);
            // What no quality of a part serves begins at the end it was sought at.
            guess = quality > 0 ? quality : goal.kind == SizeGoal::AtMost ? kLeastQuality : kBestQuality;
        }
        Search search(*mPicture, *mWriter, goal, stop, trying);
        int quality = search.run(guess);
        // Nothing is more alike than the best there is.
        if (quality == 0 && goal.kind == SizeGoal::LooksSame && !search.failed() && !stop.stop_requested()) {
            const SizeGoal best{.kind = SizeGoal::Quality, .quality = kBestQuality};
            Search last(*mPicture, *mWriter, best, stop, trying);
            quality = last.run(kBestQuality);
            search.best() = std::move(last.best());
        }
        if (stop.stop_requested()) return found;
        if (quality == 0) {
            found.error =
                search.failed() ? noMemory : translated("Codecs", "Even at the lowest quality the file is larger.");
            return found;
        }
        if (!search.best().look(*mPicture, *mWriter)) {
            found.error = noMemory;
            return found;
        }
        found.bytes = std::move(search.best().bytes);
        found.shown = std::move(search.best().shown);
        found.likeness = search.best().likeness;
        found.properties = mPicture->properties;
        found.quality = quality;
    } catch (const std::exception&) {
        found = {};
        found.error = noMemory;
    }
    return found;
}

} // namespace zp
