// SPDX-License-Identifier: GPL-3.0-or-later
/// The batch pipeline: one worker an image, the next file already on its way from the disk.
#include "batch/BatchJob.h"
#include "base/Folders.h"
#include "base/WorkPool.h"
#include "batch/BatchRules.h"
#include "batch/WatermarkDrawing.h"
#include "codecs/FileNames.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "drawing/Resample.h"
#include <algorithm>
#include <atomic>
#include <cmath>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <unistd.h>

namespace zp
{
namespace
{

/// How much larger than the result a reduced decode must be: the averaging that follows then hides that the decoder
/// dropped frequencies instead of averaging pixels (checked against the full path in the tests: 40 dB and more).
constexpr double kDecodeMargin = 1.9;

/// Null when memory fails or the size is absurd.
std::shared_ptr<BitmapRep> resized(const BitmapRep& image, int width, int height)
{
    auto out = BitmapRep::createUninitialized(width, height);
    if (!out) return nullptr;
    resample(image.view(), out->view());
    out->properties = image.properties;
    return out;
}

std::string writeResult(const std::vector<std::uint8_t>& bytes, const std::string& path)
{
    if (bytes.empty()) return "There is not enough memory to encode the image.";
    std::string error;
    if (writeFileSafely(path, bytes.data(), bytes.size(), &error)) return {};
    return error.empty() ? "The result could not be written." : error;
}

bool resultsExist(const BatchSettings& settings, const std::string& name)
{
    if (settings.tiff && !fileExists(batchOutput(settings.destination, name, "tiff"))) return false;
    if (settings.jpeg && !fileExists(batchOutput(settings.destination, name, "jpg"))) return false;
    return settings.tiff || settings.jpeg;
}

/// Asks the system to read a file while something else is worked on.
void readAhead(const std::string& path)
{
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return;
    posix_fadvise(fd, 0, 0, POSIX_FADV_WILLNEED);
    close(fd);
}

} // namespace

std::vector<std::string> batchNames(const BatchSettings& settings)
{
    std::vector<std::string> names = contentsOfFolder(settings.source);
    std::erase_if(names, [](const std::string& name) { return !isBatchSource(name); });
    return settings.shards > 1 ? shardOf(std::move(names), settings.shard, settings.shards) : names;
}

std::string processBatchImage(const BatchSettings& settings, const std::string& name)
{
    const std::string entry = settings.source + "/" + name;
    const std::string path = resolveAlias(entry).value_or(entry);
    const bool fit = settings.fitWidth > 0 && settings.fitHeight > 0;
    ImportOptions options;
    Size target;
    if (fit && settings.reducedDecoding) {
        // The result's size follows from the file's own, so that a reduced decode changes no size by a rounding.
        const PixelDimensions size = imageFileDimensions(path);
        if (size.width > 0) {
            target = wholePixels(fittedSize({float(size.width), float(size.height)}, float(settings.fitWidth),
                                            float(settings.fitHeight)));
            options.atLeastWidth = int(std::ceil(double(target.width) * kDecodeMargin));
            options.atLeastHeight = int(std::ceil(double(target.height) * kDecodeMargin));
        }
    }
    ImportedImage imported = importImageFile(path, options);
    if (!imported.bitmap) return imported.error;
    std::shared_ptr<BitmapRep> image = std::move(imported.bitmap);
    image->properties.userComment = kEditedComment;
    if (fit) {
        if (target.width <= 0)
            target = wholePixels(fittedSize({float(image->pixelsWide()), float(image->pixelsHigh())},
                                            float(settings.fitWidth), float(settings.fitHeight)));
        const int width = int(target.width), height = int(target.height);
        if (width != image->pixelsWide() || height != image->pixelsHigh()) image = resized(*image, width, height);
        if (!image) return "There is not enough memory for the resized image, or it would be too large.";
    }
    if (settings.watermark)
        drawWatermark(image->view(), settings.watermark->view(), sizeInPoints(*settings.watermark),
                      settings.watermarkPoint, settings.watermarkAlpha);

    std::string error;
    if (settings.tiff)
        error =
            writeResult(encodeTIFF(image->view(), image->properties), batchOutput(settings.destination, name, "tiff"));
    if (settings.jpeg && error.empty())
        error = writeResult(encodeJPEG(image->view(), image->properties, {.factor = 0.7, .fallbackBackground = kWhite}),
                            batchOutput(settings.destination, name, "jpg"));
    return error;
}

std::vector<BatchOutcome> runBatch(const BatchSettings& settings, const std::vector<std::string>& names,
                                   const std::function<bool(const BatchOutcome&, std::size_t done)>& onDone)
{
    std::vector<std::vector<std::size_t>> groups;
    std::map<std::string, std::size_t> groupOf;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto [found, isNew] = groupOf.try_emplace(pathWithoutExtension(names[i]), groups.size());
        if (isNew) groups.emplace_back();
        groups[found->second].push_back(i);
    }

    std::vector<BatchOutcome> outcomes(names.size());
    std::atomic<std::size_t> next{0};
    std::atomic<bool> stopped{false};
    std::mutex mutex;
    std::size_t done = 0;
    const auto work = [&](int) {
        while (!stopped) {
            const std::size_t group = next.fetch_add(1);
            if (group >= groups.size()) return;
            if (group + 1 < groups.size() && !settings.dryRun)
                readAhead(settings.source + "/" + names[groups[group + 1].front()]);
            for (const std::size_t i : groups[group]) {
                if (stopped) return;
                BatchOutcome& outcome = outcomes[i];
                outcome.name = names[i];
                outcome.skipped = settings.skipExisting && resultsExist(settings, names[i]);
                if (!outcome.skipped && !settings.dryRun) outcome.error = processBatchImage(settings, names[i]);
                const std::scoped_lock lock(mutex);
                if (onDone && !onDone(outcome, ++done)) stopped = true;
            }
        }
    };
    parallelFor(std::max(1, settings.jobs), work);

    std::vector<BatchOutcome> failures;
    for (BatchOutcome& outcome : outcomes)
        if (!outcome.error.empty()) failures.push_back(std::move(outcome));
    return failures;
}

} // namespace zp
