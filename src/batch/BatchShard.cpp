// SPDX-License-Identifier: GPL-3.0-or-later
/// Shares of a folder, and places from schedulers' environments.
#include "batch/BatchShard.h"
#include "base/Folders.h"
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <utility>

namespace zp
{
namespace
{

std::optional<unsigned> number(const std::string& text)
{
    unsigned value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (fault != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

/// A variable's number; a variable that is empty counts as not set. @param error when it is set and no number
std::optional<unsigned> environmentNumber(const char* name, std::string& error)
{
    const char* text = std::getenv(name);
    if (!text || !*text) return std::nullopt;
    const auto value = number(text);
    if (!value) error = std::string(name) + " is \"" + text + "\", which is no number.";
    return value;
}

/// A task's place in a job array, from 0; nothing outside of one.
std::optional<unsigned> placeInArray(unsigned count, std::string& error)
{
    const auto id = environmentNumber("SLURM_ARRAY_TASK_ID", error);
    if (!id || !error.empty()) return std::nullopt;
    const auto first = environmentNumber("SLURM_ARRAY_TASK_MIN", error);
    const unsigned step = environmentNumber("SLURM_ARRAY_TASK_STEP", error).value_or(1);
    const auto tasks = environmentNumber("SLURM_ARRAY_TASK_COUNT", error);
    if (!error.empty()) return std::nullopt;
    if (!first || *id < *first || step == 0)
        error = "SLURM_ARRAY_TASK_ID is set, but not by an array: SLURM_ARRAY_TASK_MIN is missing or larger.";
    // One task submitted anew is an array of its own and would count itself the first.
    else if (tasks && *tasks != count)
        error = "the job array has " + std::to_string(*tasks) + " tasks, not " + std::to_string(count) +
                "; name the place of a task that is run again by itself (--shard K/" + std::to_string(count) + ").";
    if (!error.empty()) return std::nullopt;
    return (*id - *first) / step;
}

Shard placeFromEnvironment(unsigned count, std::string& error)
{
    std::optional<unsigned> place = placeInArray(count, error);
    if (!place && error.empty()) place = environmentNumber("JOB_COMPLETION_INDEX", error);
    if (!error.empty()) return {};
    if (!place) {
        error = "--shard auto takes its place from SLURM_ARRAY_TASK_ID or JOB_COMPLETION_INDEX; neither is set.";
        return {};
    }
    if (*place >= count) {
        error = "the place taken from the environment is " + std::to_string(std::uint64_t(*place) + 1) + ", of only " +
                std::to_string(count) + ".";
        return {};
    }
    return {*place + 1, count};
}

} // namespace

Shard parseShard(const std::string& text, std::string& error)
{
    error.clear();
    const auto slash = text.find('/');
    const unsigned count = slash == std::string::npos ? 0 : number(text.substr(slash + 1)).value_or(0);
    const std::string place = text.substr(0, slash);
    if (count >= 1) {
        if (place == "auto") return placeFromEnvironment(count, error);
        const unsigned k = number(place).value_or(0);
        if (k >= 1 && k <= count) return {k, count};
    }
    error = "--shard does not understand \"" + text + "\".";
    return {};
}

std::vector<std::string> shardOf(std::vector<std::string> names, Shard shard)
{
    std::vector<std::pair<std::string, std::string>> byBase;
    byBase.reserve(names.size());
    for (std::string& name : names) {
        std::string base = pathWithoutExtension(name);
        byBase.emplace_back(std::move(base), std::move(name));
    }
    std::sort(byBase.begin(), byBase.end());
    std::vector<std::string> share;
    unsigned place = 0;
    for (std::size_t i = 0; i < byBase.size(); ++i) {
        if (i > 0 && byBase[i].first != byBase[i - 1].first) place = (place + 1) % shard.count;
        if (place == shard.number - 1) share.push_back(std::move(byBase[i].second));
    }
    return share;
}

} // namespace zp
