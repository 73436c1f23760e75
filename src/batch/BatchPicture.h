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

/// The file of an entry of the source folder, through a link.
std::string batchSource(const BatchSettings& settings, const std::string& name);

/// Each step: any thread. Sentences are for people; an empty one means that the step was done.
class BatchPicture
{
public:
    /// @param settings  must outlive it
    /// @param preview   side of the square within which the picture is made, smaller than its result; 0: as large as
    /// that
    BatchPicture(const BatchSettings& settings, std::string name, int preview = 0);

    /// The source from its file, through a link; smaller than it is where the settings allow that and nothing is lost
    /// by it. A source that ended too early or could be read in part only is refused unless the settings keep such.
    std::string read();
    /// The settings' script; without one nothing happens. On failure the picture stays.
    std::string play();
    /// To the size that fits the settings' box, or shows it; without either nothing happens. On failure the picture
    /// stays.
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
    /// In whole pixels; known after fit().
    Size resultSize() const { return mResult; }
    /// What is wrong with a source that was kept although it is damaged; empty for a sound one.
    const std::string& damage() const { return mDamage; }

private:
    void fitsTo(int width, int height);
    bool isResized() const { return mSettings.fits() || mPreviewSide > 0; }

    const BatchSettings& mSettings;
    std::string mName, mFile, mDamage;
    std::shared_ptr<BitmapRep> mPixels;
    Reduction mReduction; ///< of what was read
    int mPreviewSide;
    Size mResult;                ///< what the run writes; no width: not known yet
    int mWidth = 0, mHeight = 0; ///< what is made: the result, or a smaller picture of it
};

/// The settings' watermark over @p image, as stamp() lays it; without one nothing happens. Any thread.
/// @param result  size of the picture that the run writes, which @p image is or shows smaller
void stampWatermark(const BatchSettings& settings, Size result, BitmapView image);

} // namespace zp
