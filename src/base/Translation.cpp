// SPDX-License-Identifier: GPL-3.0-or-later
/// English, and the way to other languages.
#include "base/Translation.h"
#include <atomic>

namespace zp
{

namespace
{

std::atomic<Translator> currentTranslator = nullptr;

void replaceAll(std::string& text, const std::string& what, const std::string& by)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

} // namespace

std::string translated(const char* context, const char* text, const char* comment, int count)
{
    const Translator translator = currentTranslator;
    std::string said = translator ? translator(context, text, comment, count) : text;
    if (count < 0) return said;
    replaceAll(said, "%n", std::to_string(count));
    replaceAll(said, "(s)", count == 1 ? "" : "s");
    return said;
}

std::string filledIn(const std::string& text, std::initializer_list<std::string> values)
{
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t place =
            i + 1 < text.size() && text[i] == '%' ? std::size_t(text[i + 1] - '1') : values.size();
        if (place >= values.size()) {
            filled += text[i];
            continue;
        }
        filled += values.begin()[place];
        ++i;
    }
    return filled;
}

void setTranslator(Translator translator) { currentTranslator = translator; }

} // namespace zp
