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

/// The places of the names that share a base name, and so their results; groups in the order of their first.
std::vector<std::vector<std::size_t>> groupsByBaseName(const std::vector<std::string>& names)
{
    std::vector<std::vector<std::size_t>> groups;
    std::map<std::string, std::size_t> groupOf;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto [found, isNew] = groupOf.try_emplace(pathWithoutExtension(names[i]), groups.size());
        if (isNew) groups.emplace_back();
        groups[found->second].push_back(i);
    }
    return groups;
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

std::string batchNames(const BatchSettings& settings, std::vector<std::string>& names)
{
    if (const std::string why = listFolder(settings.source, names); !why.empty()) return why;
    std::erase_if(names, [](const std::string& name) { return !isBatchSource(name); });
    if (settings.shard.count > 1) names = shardOf(std::move(names), settings.shard);
    return {};
}

std::vector<std::string> batchPlan(const BatchSettings& settings, const std::vector<std::string>& names)
{
    std::vector<std::string> files;
    for (const std::vector<std::size_t>& group : groupsByBaseName(names)) {
        const std::string& name = names[group.front()];
        if (settings.skipExisting && resultsExist(settings, name)) continue;
        if (settings.tiff) files.push_back(batchOutput(settings.destination, name, "tiff"));
        if (settings.jpeg) files.push_back(batchOutput(settings.destination, name, "jpg"));
    }
    return files;
}

std::string processBatchImage(const BatchSettings& settings, const std::string& name, BatchResults& missing)
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

    std::string tiffError, jpegError;
    if (missing.tiff) {
        tiffError =
            writeResult(encodeTIFF(image->view(), image->properties), batchOutput(settings.destination, name, "tiff"));
        missing.tiff = !tiffError.empty();
    }
    if (missing.jpeg) {
        jpegError =
            writeResult(encodeJPEG(image->view(), image->properties, {.factor = 0.7, .fallbackBackground = kWhite}),
                        batchOutput(settings.destination, name, "jpg"));
        missing.jpeg = !jpegError.empty();
    }
    if (tiffError.empty() || jpegError.empty() || tiffError == jpegError)
        return tiffError.empty() ? jpegError : tiffError;
    return tiffError + " " + jpegError;
}

std::vector<BatchOutcome> runBatch(const BatchSettings& settings, const std::vector<std::string>& names,
                                   const std::function<bool(const BatchOutcome&, std::size_t done)>& onDone)
{
    const std::vector<std::vector<std::size_t>> groups = groupsByBaseName(names);
    std::vector<BatchOutcome> outcomes(names.size());
    std::atomic<std::size_t> next{0};
    std::atomic<bool> stopped{false};
    std::mutex mutex;
    std::size_t done = 0;
    const auto workOnGroup = [&](const std::vector<std::size_t>& group) {
        const bool skipped = settings.skipExisting && resultsExist(settings, names[group.front()]);
        BatchResults missing{settings.tiff, settings.jpeg};
        for (auto i = group.rbegin(); i != group.rend() && !stopped; ++i) {
            BatchOutcome& outcome = outcomes[*i];
            outcome.name = names[*i];
            outcome.skipped = skipped;
            outcome.superseded = !skipped && i != group.rbegin() && !missing.tiff && !missing.jpeg;
            if (!skipped && !outcome.superseded) outcome.error = processBatchImage(settings, names[*i], missing);
            const std::scoped_lock lock(mutex);
            if (onDone && !onDone(outcome, ++done)) stopped = true;
        }
    };
    parallelThreads(std::max(1, settings.jobs), [&](int) {
        while (!stopped) {
            const std::size_t group = next.fetch_add(1);
            if (group >= groups.size()) return;
            if (group + 1 < groups.size()) readAhead(settings.source + "/" + names[groups[group + 1].back()]);
            workOnGroup(groups[group]);
        }
    });

    std::vector<BatchOutcome> failures;
    for (BatchOutcome& outcome : outcomes)
        if (!outcome.error.empty()) failures.push_back(std::move(outcome));
    return failures;
}

} // namespace zp
