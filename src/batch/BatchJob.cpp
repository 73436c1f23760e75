// SPDX-License-Identifier: GPL-3.0-or-later
/// The batch pipeline: one worker an image, the next file already on its way from the disk.
#include "batch/BatchJob.h"
#include "base/Folders.h"
#include "base/WorkPool.h"
#include "batch/BatchPicture.h"
#include <algorithm>
#include <atomic>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <unistd.h>

namespace zp
{
namespace
{

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
try {
    BatchPicture picture(settings, name);
    if (std::string why = picture.read(); !why.empty()) return why;
    if (std::string why = picture.play(); !why.empty()) return why;
    if (std::string why = picture.fit(); !why.empty()) return why;
    picture.stamp();
    std::string sentences = picture.damage();
    const auto note = [&](const std::string& error, bool& isMissing) {
        isMissing = !error.empty();
        if (isMissing && sentences.find(error) == std::string::npos)
            sentences += (sentences.empty() ? "" : " ") + error;
    };
    if (missing.tiff) note(picture.writeTIFF(), missing.tiff);
    if (missing.jpeg) note(picture.writeJPEG(), missing.jpeg);
    return sentences;
} catch (const std::exception&) {
    return "There is not enough memory.";
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
