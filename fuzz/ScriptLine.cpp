// SPDX-License-Identifier: GPL-3.0-or-later
/// Lines of scripts: the words of any line, quoted again, are the same words.
#include "Fuzz.h"
#include "base/ScriptWords.h"

ZP_FUZZ(ScriptLine, "", bytes)
{
    using namespace zp;
    const auto words = splitScriptLine(std::string(bytes.begin(), bytes.end()));
    if (!words) return;
    std::string quoted;
    for (const std::string& word : *words) {
        quoted += quoted.empty() ? "\"" : " \"";
        for (const char c : word) {
            if (c == '"' || c == '\\') quoted += '\\';
            quoted += c;
        }
        quoted += '"';
    }
    const auto again = splitScriptLine(quoted);
    fuzz::require(again.has_value() && *again == *words, "words that are quoted again are the same");
}
