// SPDX-License-Identifier: GPL-3.0-or-later
/// Words of the automation language.
#include "script/ScriptWords.h"

namespace zp
{

std::optional<std::vector<std::string>> splitScriptLine(const std::string& line)
{
    std::vector<std::string> words;
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    std::size_t i = 0;
    while (i < line.size()) {
        if (blank(line[i])) {
            ++i;
            continue;
        }
        if (line[i] == '#') break;
        std::string word;
        bool quoted = false;
        for (; i < line.size() && (quoted || !blank(line[i])); ++i) {
            if (line[i] == '"') {
                quoted = !quoted;
            } else if (quoted && line[i] == '\\' && i + 1 < line.size() && (line[i + 1] == '"' || line[i + 1] == '\\')) {
                word += line[++i];
            } else {
                word += line[i];
            }
        }
        if (quoted) return std::nullopt;
        words.push_back(word);
    }
    return words;
}

} // namespace zp
