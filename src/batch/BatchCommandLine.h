// SPDX-License-Identifier: GPL-3.0-or-later
/// The batch run as a command, for servers and timers: no window, no display.
#pragma once
#include "batch/BatchJob.h"
#include "batch/BatchScript.h"
#include <string>

namespace zp
{

struct BatchCommandLine {
    BatchSettings settings;
    std::string watermarkPath;
    std::string scriptPath;
    ScriptValues scriptValues;
    bool help = false;
    bool dryRun = false; ///< only say what would be written
    std::string error;   ///< what is wrong with the words; empty: nothing
};

/// @p argv[0] is the program, @p argv[1] "--batch".
BatchCommandLine parseBatchCommandLine(int argc, char** argv);

/// Parses, runs, reports: progress on a terminal, one line a failure on standard error. An interrupt ends the run after
/// the images at work. @return 0, 1 when some images failed, the folder could
/// not be listed or the run was interrupted, 2 when the words make no sense
int runBatchCommandLine(int argc, char** argv);

} // namespace zp
