// SPDX-License-Identifier: GPL-3.0-or-later
/// What the program was started with.
#pragma once
#include <string>
#include <vector>

namespace zp
{

struct CommandLine {
    std::vector<std::string> files; ///< to open, absolute
    std::string request;            ///< "--new", "--open" or "--image-processor": what to begin with; empty: nothing
    std::string script;             ///< file of automation commands, "-" for standard input; empty: none
    bool offscreen = false, show = false, startChoice = true, offerRecovery = false;
    std::string answer; ///< text to print and end with (help, version)
    std::string error;  ///< why the command line makes no sense
};

CommandLine parseCommandLine(int argc, char** argv);

/// What --version prints: the program, the libraries it was built with, the vector instructions it uses on this
/// machine.
std::string versionText();

/// Light and dark colours of our own for platforms that bring none; follows the desktop's scheme where it says one.
/// ZELPANE_SCHEME=light or dark overrides.
void applyColorScheme();

} // namespace zp
