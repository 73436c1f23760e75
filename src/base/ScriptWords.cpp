// SPDX-License-Identifier: GPL-3.0-or-later
/// Words of the automation language.
#include "base/ScriptWords.h"
#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace zp
{

namespace
{

/// "#3", "#ff8000", "#ff800080": an item's number or a colour as an argument, not the beginning of a comment.
bool isNumberOrColour(const std::string& line, std::size_t at)
{
    std::size_t end = at + 1;
    bool decimal = true;
    for (; end < line.size() && std::isxdigit(static_cast<unsigned char>(line[end])); ++end)
        decimal = decimal && std::isdigit(static_cast<unsigned char>(line[end]));
    if (end < line.size() && line[end] != ' ' && line[end] != '\t' && line[end] != '\r') return false;
    const std::size_t digits = end - at - 1;
    return (decimal && digits > 0) || digits == 6 || digits == 8 || digits == 12 || digits == 16;
}

} // namespace

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
        if (line[i] == '#' && (words.empty() || !isNumberOrColour(line, i))) break;
        std::string word;
        bool quoted = false;
        for (; i < line.size() && (quoted || !blank(line[i])); ++i) {
            if (line[i] == '"') {
                quoted = !quoted;
            } else if (quoted && line[i] == '\\' && i + 1 < line.size() &&
                       (line[i + 1] == '"' || line[i + 1] == '\\')) {
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

std::string scriptWord(const std::string& word)
{
    if (!word.empty() && word.find_first_of(" \t\r\"\\#") == std::string::npos) return word;
    std::string out = "\"";
    for (const char c : word) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + "\"";
}

namespace
{

template <class Number>
std::string shortest(Number number)
{
    constexpr auto kWholeBelow = Number(1e15);
    std::array<char, 32> text{};
    const bool whole = number == std::trunc(number) && std::abs(number) < kWholeBelow;
    const auto end = whole ? std::to_chars(text.begin(), text.end(), static_cast<long long>(number)).ptr
                           : std::to_chars(text.begin(), text.end(), number).ptr;
    return {text.begin(), end};
}

} // namespace

std::string scriptNumber(double number) { return shortest(number); }
std::string scriptNumber(float number) { return shortest(number); }

std::string scriptColor(const Color& color)
{
    const float parts[] = {color.red, color.green, color.blue, color.alpha};
    const int count = color.alpha < 1 ? 4 : 3;
    const bool bytes =
        std::all_of(parts, parts + count, [](float part) { return part == float(std::lround(part * 255)) / 255.0f; });
    std::string word = "#";
    for (int i = 0; i < count; ++i) {
        std::array<char, 8> digits{};
        const float part = std::clamp(parts[i], 0.0f, 1.0f);
        std::snprintf(digits.data(), digits.size(), bytes ? "%02lx" : "%04lx",
                      std::lround(part * (bytes ? 255 : 65535)));
        word += digits.data();
    }
    return word;
}

std::optional<Color> colorOfScriptWord(const std::string& word)
{
    const std::size_t count = word.size() - 1, digits = count >= 12 ? 4 : 2;
    if (word.empty() || word[0] != '#' || (count != 3 * digits && count != 4 * digits)) return std::nullopt;
    float parts[4] = {0, 0, 0, 1};
    for (std::size_t i = 0; digits * i < count; ++i) {
        unsigned value = 0;
        const char* const first = word.data() + 1 + digits * i;
        const auto [end, fault] = std::from_chars(first, first + digits, value, 16);
        if (fault != std::errc() || end != first + digits) return std::nullopt;
        parts[i] = float(value) / (digits == 4 ? 65535.0f : 255.0f);
    }
    return Color{parts[0], parts[1], parts[2], parts[3]};
}

} // namespace zp
