// SPDX-License-Identifier: GPL-3.0-or-later
/// One picture of a run in its five steps. The whole run makes its files by these, one after the other; the window by
/// the same, showing the picture in the editor between them: so both write the same bytes.
#pragma once
#include "base/Reduction.h"
#include "batch/BatchJob.h"
#include <memory>
#include <string>

namespace zp
{

/// Each step: any thread. Sentences are for people; an empty one means that the step was done.
class BatchPicture
{
public:
    /// @param settings  must outlive it
    BatchPicture(const BatchSettings& settings, std::string name);

    /// The source from its file, through a link; smaller than it is where the settings allow that and nothing is lost
    /// by it. A source that ended too early or could be read in part only is refused unless the settings keep such.
    std::string read();
    /// The settings' script; without one nothing happens. On failure the picture stays.
    std::string play();
    /// To the size that fits the settings' box; without a box nothing happens. On failure the picture stays.
    std::string fit();
    /// The watermark over the picture, into bitmap(); without one nothing happens.
    void stamp();
    std::string writeTIFF() const;
    std::string writeJPEG() const;

    /// The file that is read.
    const std::string& path() const { return mFile; }
    std::string tiffPath() const;
    std::string jpegPath() const;
    /// Null before read(), and when that failed.
    const std::shared_ptr<BitmapRep>& bitmap() const { return mPixels; }
    /// What is wrong with a source that was kept although it is damaged; empty for a sound one.
    const std::string& damage() const { return mDamage; }

private:
    void fitsTo(int width, int height);

    const BatchSettings& mSettings;
    std::string mName, mFile, mDamage;
    std::shared_ptr<BitmapRep> mPixels;
    Reduction mReduction;        ///< of what was read
    int mWidth = 0, mHeight = 0; ///< of the result; 0: not known yet
};

} // namespace zp
