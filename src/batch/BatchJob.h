// SPDX-License-Identifier: GPL-3.0-or-later
/// A folder-to-folder run without a window: every image read, fitted, stamped and written, several at a time.
#pragma once
#include "base/BitmapRep.h"
#include "base/Geometry.h"
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zp
{

struct BatchSettings {
    std::string source, destination; ///< folders
    int fitWidth = 0, fitHeight = 0; ///< the box in pixels; 0: sizes stay
    std::shared_ptr<const BitmapRep> watermark;
    Point watermarkPoint; ///< lower-left corner, y upwards
    float watermarkAlpha = 1;
    bool tiff = false, jpeg = false;
    bool skipExisting = false; ///< images whose results are all there are passed over
    bool dryRun = false;       ///< nothing is read or written
    int jobs = 1;              ///< images at a time
    unsigned shard = 1, shards = 1;
    bool reducedDecoding = true; ///< JPEG files are decoded at a half, a quarter or an eighth where that suffices
};

struct BatchOutcome {
    std::string name;  ///< of the source
    std::string error; ///< a sentence; empty: done
    bool skipped = false;
};

/// The names of the source folder that the settings' share covers.
std::vector<std::string> batchNames(const BatchSettings& settings);

/// One image from file to files. @return why it failed, empty when it did not. Any thread.
std::string processBatchImage(const BatchSettings& settings, const std::string& name);

/// Runs the names through. Sources of one base name write the same results: they are worked on one after the other, in
/// order. @p onDone is called after each image, one call at a time, on any thread; when it answers false no further
/// image is begun. Memory: about two fitted or reduced images a job. @return all failures, in the order of the names
std::vector<BatchOutcome> runBatch(const BatchSettings& settings, const std::vector<std::string>& names,
                                   const std::function<bool(const BatchOutcome&, std::size_t done)>& onDone);

} // namespace zp
