// SPDX-License-Identifier: GPL-3.0-or-later
/// A folder-to-folder run without a window: every image read, fitted, stamped and written, several at a time.
#pragma once
#include "base/BitmapRep.h"
#include "base/Geometry.h"
#include "batch/BatchRules.h"
#include "batch/BatchShard.h"
#include "batch/WatermarkLayout.h"
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zp
{

class BatchScript;

struct BatchSettings {
    std::string source, destination;           ///< folders
    std::shared_ptr<const BatchScript> script; ///< what each picture is put through first
    int fitWidth = 0, fitHeight = 0;           ///< the box in pixels; 0: sizes stay
    std::shared_ptr<const BitmapRep> watermark;
    Point watermarkPoint; ///< lower-left corner, y upwards
    /// Where it sits in each picture, by that picture's size; Custom: at watermarkPoint.
    WatermarkPlace watermarkPlace = WatermarkPlace::Custom;
    int watermarkMargin = 0;         ///< between the watermark and the edges of its corner, in pixels
    WatermarkLayout watermarkLayout; ///< a relative one: the point is in percent, the margin the layout's own
    float watermarkAlpha = 1;
    bool tiff = false, jpeg = false;
    bool keepDamaged = false;    ///< results are written, and failures reported, of sources that can be read in part
    bool stripPrivate = false;   ///< place, device and names are left out of the results
    bool skipExisting = false;   ///< images whose results are all there are passed over
    int jobs = 1;                ///< images at a time
    Shard shard;                 ///< of the source folder
    bool reducedDecoding = true; ///< JPEG files are decoded at a half, a quarter or an eighth where that suffices
    bool fits() const { return fitWidth > 0 && fitHeight > 0; }
};

struct BatchOutcome {
    std::string name;        ///< of the source
    std::string error;       ///< sentences; empty: done. Of a damaged source that was kept: what is wrong with it
    bool skipped = false;    ///< its results were there
    bool superseded = false; ///< a later source of the same base name made its results
};

/// The sources of the source folder that the settings' share covers. @return why the folder cannot be listed, else
/// empty
std::string batchNames(const BatchSettings& settings, std::vector<std::string>& names);

/// The files that a run of the names would write, in order. Nothing is read.
std::vector<std::string> batchPlan(const BatchSettings& settings, const std::vector<std::string>& names);

/// Results of one image.
struct BatchResults {
    bool tiff = false, jpeg = false;
};
/// One image from file to files; a result that cannot be written does not keep the other from being. Any thread.
/// @param missing  in: the results to make; out: those that were not made
/// @return why not, or what is wrong with a damaged source that was kept; empty when all were made from a sound one
std::string processBatchImage(const BatchSettings& settings, const std::string& name, BatchResults& missing);

/// Runs the names through. Sources of one base name have the same results, which the last in the order of the names
/// makes; one before it is read only when those behind it failed. A result that is there is therefore final, and a run
/// that was killed ends up with the same files when it is run again with skipExisting. @p onDone is called after each
/// image, one call at a time, on any thread; when it answers false no further image is begun. Memory: about two fitted
/// or reduced images a job. @return all failures, in the order of the names
std::vector<BatchOutcome> runBatch(const BatchSettings& settings, const std::vector<std::string>& names,
                                   const std::function<bool(const BatchOutcome&, std::size_t done)>& onDone);

} // namespace zp
