// SPDX-License-Identifier: GPL-3.0-or-later
/// A script that every picture of a run is put through before it is fitted, stamped and written.
#pragma once
#include "base/BitmapRep.h"
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace zp
{

/// Values by name, for the ${NAME} of a script.
using ScriptValues = std::map<std::string, std::string, std::less<>>;

/// "NAME=VALUE" into its two parts: a name is letters, digits and _, a value has no line breaks.
/// @return a sentence when it is neither
std::string takeScriptValue(std::string_view word, ScriptValues& values);

/// Each picture is played in an editor of its own: another process, with a home, temporary files and clipboard of its
/// own, so that pictures do not depend on each other, on their order, or on what the person who started the run has set
/// up. Immutable; any thread.
class BatchScript
{
public:
    /// Reads the script and puts the values in; inside quotes they may hold anything. Words that a run has no place for
    /// ("open", "choose") are refused, and names that no value was given for.
    /// @param program  what plays it: the file of this program
    /// @return null, with a sentence in @p error, when it cannot be read or is refused
    static std::shared_ptr<const BatchScript> read(const std::string& path, const ScriptValues& values,
                                                   std::string program, std::string& error);

    /// Opens @p file, plays the script on it, and makes what is in the editor then the picture; what travels beside the
    /// pixels stays. Files that the script itself writes are its own affair. Blocks for as long as the script takes.
    /// @return a sentence when the script failed, with its line; the picture is as before then
    std::string play(const std::string& file, std::shared_ptr<BitmapRep>& picture) const;

private:
    BatchScript(std::string text, std::string program) : mText(std::move(text)), mProgram(std::move(program)) {}
    std::string mText; ///< every value put in
    std::string mProgram;
};

} // namespace zp
