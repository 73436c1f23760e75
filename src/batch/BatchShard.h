// SPDX-License-Identifier: GPL-3.0-or-later
/// One folder on many machines: which sources are this worker's, and how it learns its place among the workers.
///
/// Workers never talk to each other. Each lists the same folder and takes its share by the rule below, so any scheduler
/// that can start the same command several times with a number in it can spread a folder.
#pragma once
#include <string>
#include <vector>

namespace zp
{

/// One worker's place: the @p number -th (from 1) of @p count.
struct Shard {
    unsigned number = 1, count = 1;
};

/// "K/N", or "auto/N": the place is then what the scheduler says in the environment, SLURM_ARRAY_TASK_ID counted from
/// SLURM_ARRAY_TASK_MIN (in steps of SLURM_ARRAY_TASK_STEP) or JOB_COMPLETION_INDEX, both from 0.
/// @param error a sentence when the text or the environment makes no sense, else empty
Shard parseShard(const std::string& text, std::string& error);

/// The worker's share of the names, sorted by their bytes: every count-th base name, with all sources that have it. The
/// shares of all numbers are the whole and meet nowhere, in whatever order a machine lists the folder; two sources of
/// one result (a.jpg and a.tiff) are always in one share, because two machines would race for it.
std::vector<std::string> shardOf(std::vector<std::string> names, Shard shard);

} // namespace zp
