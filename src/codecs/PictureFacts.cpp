// SPDX-License-Identifier: GPL-3.0-or-later
/// Sentences about what a file holds beside the picture.
#include "codecs/PictureFacts.h"
#include "base/Translation.h"

namespace zp
{

std::vector<std::string> noticesOf(const PictureFacts& facts, int savedQuality)
{
    std::vector<std::string> said;
    if (facts.endedEarly)
        said.emplace_back(translated("Codecs", "The file is damaged or ended too early; what could be read is shown."));
    if (facts.pages > 1)
        said.emplace_back(translated("Codecs", "The file has %n page(s); this is the first.", nullptr, facts.pages));
    if (facts.frames > 1)
        said.emplace_back(translated("Codecs", "The file has %n frame(s); this is the first.", nullptr, facts.frames));
    if (facts.layers > 1)
        said.emplace_back(
            translated("Codecs", "The file has %n layer(s); this is what they make together.", nullptr, facts.layers));
    if (facts.bits > 8)
        said.emplace_back(translated("Codecs", "The file has %n bits a colour; the image has 8.", nullptr, facts.bits));
    if (facts.inks)
        said.emplace_back(translated("Codecs", "The file is in printing inks; the image is in red, green and blue."));
    if (facts.jpegQuality > savedQuality)
        said.emplace_back(filledIn(translated("Codecs", "Save writes quality %1; this file has %2."),
                                   {std::to_string(savedQuality), std::to_string(facts.jpegQuality)}));
    return said;
}

std::string lossBySaving(const PictureFacts& facts)
{
    std::string lost;
    const auto add = [&lost](const std::string& what) { lost += (lost.empty() ? "" : ", ") + what; };
    if (facts.pages > 1) add(translated("Codecs", "%n page(s)", nullptr, facts.pages));
    if (facts.frames > 1) add(translated("Codecs", "%n frame(s)", nullptr, facts.frames));
    if (facts.layers > 1) add(translated("Codecs", "%n layer(s)", nullptr, facts.layers));
    if (facts.bits > 8) add(translated("Codecs", "%n bits a colour", nullptr, facts.bits));
    return lost;
}

} // namespace zp
