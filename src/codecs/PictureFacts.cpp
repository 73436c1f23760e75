// SPDX-License-Identifier: GPL-3.0-or-later
/// Sentences about what a file holds beside the picture.
#include "codecs/PictureFacts.h"

namespace zp
{

std::vector<std::string> noticesOf(const PictureFacts& facts, int savedQuality)
{
    std::vector<std::string> said;
    if (facts.endedEarly) said.emplace_back("The file is damaged or ended too early; what could be read is shown.");
    if (facts.pages > 1)
        said.emplace_back("The file has " + std::to_string(facts.pages) + " pages; this is the first.");
    if (facts.frames > 1)
        said.emplace_back("The file has " + std::to_string(facts.frames) + " frames; this is the first.");
    if (facts.layers > 1)
        said.emplace_back("The file has " + std::to_string(facts.layers) + " layers; this is what they make together.");
    if (facts.bits > 8)
        said.emplace_back("The file has " + std::to_string(facts.bits) + " bits a colour; the picture has 8.");
    if (facts.inks) said.emplace_back("The file is in printing inks; the picture is in red, green and blue.");
    if (facts.jpegQuality > savedQuality)
        said.emplace_back("Save writes quality " + std::to_string(savedQuality) + "; this file has " +
                          std::to_string(facts.jpegQuality) + ".");
    return said;
}

std::string lossBySaving(const PictureFacts& facts)
{
    std::string lost;
    const auto add = [&lost](const std::string& what) { lost += (lost.empty() ? "" : ", ") + what; };
    if (facts.pages > 1) add(std::to_string(facts.pages) + " pages");
    if (facts.frames > 1) add(std::to_string(facts.frames) + " frames");
    if (facts.layers > 1) add(std::to_string(facts.layers) + " layers");
    if (facts.bits > 8) add(std::to_string(facts.bits) + " bits a colour");
    return lost;
}

} // namespace zp
