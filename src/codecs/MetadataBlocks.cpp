// SPDX-License-Identifier: GPL-3.0-or-later
/// What of a file's EXIF, XMP and profile is kept, and what is put right before they are written again.
#include "codecs/MetadataBlocks.h"
#include "base/Translation.h"
#include "codecs/ColourProfiles.h"
#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstring>

namespace zp::codec
{
namespace
{

constexpr std::size_t kMaxBlockBytes = 16 << 20; // a packet or profile beyond this is no description of a picture

void appendUTF8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | (c >> 18));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}

/// The next character at @p i, which moves behind it; 0xFFFD and one byte on for what is not UTF-8.
char32_t nextUTF8(const std::string& text, std::size_t& i)
{
    const auto at = [&](std::size_t k) { return k < text.size() ? std::uint8_t(text[k]) : 0u; };
    const unsigned lead = at(i++);
    if (lead < 0x80) return lead;
    const int more = lead >= 0xF0 && lead < 0xF5   ? 3
                     : lead >= 0xE0 && lead < 0xF0 ? 2
                     : lead >= 0xC2 && lead < 0xE0 ? 1
                                                   : 0;
    if (more == 0) return 0xFFFD;
    char32_t c = lead & (0x3Fu >> more);
    for (int k = 0; k < more; ++k) {
        if ((at(i + std::size_t(k)) & 0xC0) != 0x80) return 0xFFFD;
        c = (c << 6) | (at(i + std::size_t(k)) & 0x3F);
    }
    static constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
    if (c < kLeast[more] || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000)) return 0xFFFD;
    i += std::size_t(more);
    return c;
}

bool isUTF8(const std::string& text)
{
    for (std::size_t i = 0; i < text.size();)
        if (nextUTF8(text, i) == 0xFFFD) return false;
    return true;
}

std::string decodeUTF16(std::span<const std::uint8_t> bytes, bool bigEndian)
{
    if (bytes.size() >= 2 && bytes[0] == 0xFE && bytes[1] == 0xFF) {
        bigEndian = true;
        bytes = bytes.subspan(2);
    } else if (bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE) {
        bigEndian = false;
        bytes = bytes.subspan(2);
    } else {
        // Writers differ on whether the order is the block's: where text is mostly Latin the zeros tell.
        std::size_t zeroFirst = 0, zeroSecond = 0;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
            zeroFirst += bytes[i] == 0 && bytes[i + 1] != 0;
            zeroSecond += bytes[i + 1] == 0 && bytes[i] != 0;
        }
        if (zeroFirst > zeroSecond) bigEndian = true;
        if (zeroSecond > zeroFirst) bigEndian = false;
    }
    const auto unit = [&](std::size_t i) {
        return bigEndian ? char32_t(bytes[i] << 8 | bytes[i + 1]) : char32_t(bytes[i + 1] << 8 | bytes[i]);
    };
    std::string out;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t c = unit(i);
        if (c >= 0xD800 && c < 0xDC00 && i + 3 < bytes.size() && unit(i + 2) >= 0xDC00 && unit(i + 2) < 0xE000) {
            c = 0x10000 + ((c - 0xD800) << 10) + (unit(i + 2) - 0xDC00);
            i += 2;
        } else if (c >= 0xD800 && c < 0xE000) {
            c = 0xFFFD;
        }
        appendUTF8(out, c);
    }
    return out;
}

std::string latin1(const std::string& bytes)
{
    std::string out;
    for (const char c : bytes) appendUTF8(out, std::uint8_t(c));
    return out;
}

void trimPadding(std::string& text)
{
    while (!text.empty() && (text.back() == '\0' || text.back() == ' ')) text.pop_back();
}

void warnOnce(ImageProperties& properties, const std::string& sentence)
{
    auto& w = properties.warnings;
    if (std::find(w.begin(), w.end(), sentence) == w.end()) w.emplace_back(sentence);
}

} // namespace

std::string decodeUserComment(std::span<const std::uint8_t> value, bool bigEndian)
{
    if (value.size() <= 8) return {};
    const auto text = value.subspan(8);
    const auto code = [&](std::array<char, 8> name) { return std::memcmp(value.data(), name.data(), 8) == 0; };
    std::string out(text.begin(), text.end());
    if (code({'U', 'N', 'I', 'C', 'O', 'D', 'E', 0})) {
        out = decodeUTF16(text, bigEndian);
        // Some writers put UTF-8 under this heading: then hardly anything of the UTF-16 reading is Latin.
        const std::string raw(text.begin(), text.end());
        if (raw.find('\0') == std::string::npos && isUTF8(raw) && text.size() >= 4) out = raw;
    } else if (code({'A', 'S', 'C', 'I', 'I', 0, 0, 0}) || code({})) {
        trimPadding(out);
        if (!isUTF8(out)) out = latin1(out);
    } else {
        return {}; // JIS and codes of nobody's: left as they are
    }
    trimPadding(out);
    return out;
}

std::vector<std::uint8_t> encodeUserComment(const std::string& utf8, bool bigEndian)
{
    const bool ascii = std::all_of(utf8.begin(), utf8.end(), [](char c) { return std::uint8_t(c) < 0x80; });
    std::vector<std::uint8_t> out;
    out.reserve(8 + 2 * utf8.size());
    for (int i = 0; i < 8; ++i) out.push_back(std::uint8_t((ascii ? "ASCII\0\0\0" : "UNICODE\0")[i]));
    if (ascii) {
        for (const char c : utf8) out.push_back(std::uint8_t(c));
        return out;
    }
    const auto put = [&](char32_t unit) {
        out.push_back(std::uint8_t(bigEndian ? unit >> 8 : unit));
        out.push_back(std::uint8_t(bigEndian ? unit : unit >> 8));
    };
    for (std::size_t i = 0; i < utf8.size();) {
        const char32_t c = nextUTF8(utf8, i);
        if (c < 0x10000) {
            put(c);
        } else {
            put(0xD800 + ((c - 0x10000) >> 10));
            put(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    // Without a mark readers guess, this one among them: 一 looks like the other byte order's zeros, 中午 like Latin.
    if (decodeUserComment(out, bigEndian) != utf8) {
        const std::array<std::uint8_t, 2> mark =
            bigEndian ? std::array<std::uint8_t, 2>{0xFE, 0xFF} : std::array<std::uint8_t, 2>{0xFF, 0xFE};
        out.insert(out.begin() + 8, mark.begin(), mark.end());
    }
    return out;
}

void keepExif(ImageProperties& properties, std::span<const std::uint8_t> exif)
{
    auto block = parseExif(exif);
    if (!block) {
        warnOnce(properties, translated("Codecs", "The EXIF data is damaged and was left out."));
        return;
    }
    if (block->damaged) warnOnce(properties, translated("Codecs", "Damaged parts of the EXIF data were left out."));
    if (ExifBlock::find(block->image, tag::Orientation)) block->setNumber(block->image, tag::Orientation, kShort, 1);
    if (const ExifEntry* comment = ExifBlock::find(block->photo, tag::UserComment))
        properties.userComment = decodeUserComment(comment->value, block->bigEndian);
    if (properties.xDpi <= 0) {
        const auto unit = block->number(block->image, tag::ResolutionUnit).value_or(2);
        const double perInch = unit == 3 ? 2.54 : unit == 2 ? 1 : 0;
        properties.xDpi = block->rational(block->image, tag::XResolution).value_or(0) * perInch;
        properties.yDpi = block->rational(block->image, tag::YResolution).value_or(properties.xDpi) * perInch;
        if (properties.xDpi <= 0 || properties.yDpi <= 0) properties.xDpi = properties.yDpi = 0;
    }
    properties.exif = serialiseExif(*block);
}

void keepXMP(ImageProperties& properties, std::string packet)
{
    while (!packet.empty() && packet.back() == '\0') packet.pop_back();
    // Entities of its own are no part of a packet, and how others' files make their readers run out of memory.
    if (packet.size() > kMaxBlockBytes || packet.find("<!DOCTYPE") != std::string::npos ||
        packet.find("<!ENTITY") != std::string::npos || packet.find('<') == std::string::npos) {
        if (!packet.empty()) warnOnce(properties, translated("Codecs", "The XMP data is damaged and was left out."));
        return;
    }
    properties.xmp = std::move(packet);
}

void keepProfile(ImageProperties& properties, std::vector<std::uint8_t> profile, const char* colourSpace,
                 const char* sourceSpace)
{
    if (profile.empty()) return;
    const bool sound =
        profile.size() >= 132 && profile.size() <= kMaxBlockBytes && std::memcmp(&profile[36], "acsp", 4) == 0;
    if (!sound) {
        warnOnce(properties, translated("Codecs", "The colour profile is damaged and was left out."));
        return;
    }
    const auto isFor = [&](const char* space) { return space && std::memcmp(&profile[16], space, 4) == 0; };
    if (isFor("RGB ") && !sourceSpace) {
        properties.iccProfile = std::move(profile);
        return;
    }
    if (isFor("GRAY") && isFor(colourSpace) && !sourceSpace) {
        if (properties.iccProfile = rgbProfileFromGrey(profile); !properties.iccProfile.empty()) return;
    }
    // The canvas is RGB: a profile that describes grey or ink amounts would be wrong for what is written.
    if (isFor(colourSpace) || isFor(sourceSpace) || sourceSpace)
        warnOnce(properties, translated("Codecs", "The image was converted to RGB; its colour profile was left out."));
    else
        warnOnce(properties, translated("Codecs", "The colour profile does not fit the image and was left out."));
}

void keepIPTC(ImageProperties& properties, std::span<const std::uint8_t> records)
{
    constexpr std::uint8_t kMark = 0x1C; // every record begins with it
    if (records.empty() || !properties.iptc.empty()) return;
    if (records[0] != kMark || records.size() > kMaxBlockBytes) {
        warnOnce(properties, translated("Codecs", "The IPTC data is damaged and was left out."));
        return;
    }
    properties.iptc.assign(records.begin(), records.end());
}

namespace
{
/// An image resource as Photoshop files hold them, which JPEG files borrow for captions.
constexpr char kResource[] = "8BIM";
constexpr unsigned kIPTCResource = 0x0404;
constexpr std::size_t kResourceHead = 12; // mark, number, an empty name, length
} // namespace

std::span<const std::uint8_t> iptcOfResources(std::span<const std::uint8_t> resources)
{
    while (resources.size() >= kResourceHead && std::memcmp(resources.data(), kResource, 4) == 0) {
        const unsigned number = unsigned(resources[4]) << 8 | resources[5];
        const std::size_t name = (std::size_t{resources[6]} + 2) & ~std::size_t{1}; // its length, itself, to even
        if (resources.size() < 6 + name + 4) return {};
        const std::uint8_t* p = resources.data() + 6 + name;
        const std::size_t length = std::size_t{p[0]} << 24 | std::size_t{p[1]} << 16 | std::size_t{p[2]} << 8 | p[3];
        const auto body = resources.subspan(6 + name + 4);
        if (length > body.size()) return {};
        if (number == kIPTCResource) return body.first(length);
        resources = body.subspan(std::min(body.size(), (length + 1) & ~std::size_t{1}));
    }
    return {};
}

std::vector<std::uint8_t> iptcAsResource(std::span<const std::uint8_t> records)
{
    if (records.empty()) return {};
    const auto size = std::uint32_t(records.size());
    std::vector<std::uint8_t> out(kResource, kResource + 4);
    for (const std::uint32_t byte :
         {kIPTCResource >> 8, kIPTCResource & 255u, 0u, 0u, size >> 24, size >> 16, size >> 8, size})
        out.push_back(std::uint8_t(byte));
    out.insert(out.end(), records.begin(), records.end());
    if (records.size() % 2 != 0) out.push_back(0);
    return out;
}

ExifBlock exifForSaving(const ImageProperties& properties, int width, int height)
{
    ExifBlock block;
    if (!properties.exif.empty())
        if (auto parsed = parseExif(properties.exif)) block = std::move(*parsed);
    if (ExifBlock::find(block.image, tag::Orientation)) block.setNumber(block.image, tag::Orientation, kShort, 1);
    if (!properties.userComment.empty()) {
        auto comment = encodeUserComment(properties.userComment, block.bigEndian);
        const auto count = std::uint32_t(comment.size());
        ExifBlock::setBytes(block.photo, tag::UserComment, kUndefined, count, std::move(comment));
    }
    if (!block.photo.empty()) {
        block.setNumber(block.photo, tag::PixelXDimension, kLong, std::uint32_t(width));
        block.setNumber(block.photo, tag::PixelYDimension, kLong, std::uint32_t(height));
        constexpr std::uint16_t kExifVersion = 0x9000; // obligatory wherever the directory is
        if (!ExifBlock::find(block.photo, kExifVersion))
            ExifBlock::setBytes(block.photo, kExifVersion, kUndefined, 4, {'0', '2', '3', '2'});
    }
    if (!block.isEmpty() && properties.xDpi > 0 && properties.yDpi > 0) {
        block.setRational(block.image, tag::XResolution, properties.xDpi);
        block.setRational(block.image, tag::YResolution, properties.yDpi);
        block.setNumber(block.image, tag::ResolutionUnit, kShort, 2);
    }
    return block;
}

std::string xmpForSaving(const ImageProperties& properties)
{
    std::string packet = properties.xmp;
    for (const char* form : {"tiff:Orientation=\"", "tiff:Orientation='", "<tiff:Orientation>"}) {
        for (std::size_t at = packet.find(form); at != std::string::npos; at = packet.find(form, at + 1)) {
            const std::size_t digit = at + std::strlen(form);
            if (digit < packet.size() && packet[digit] >= '1' && packet[digit] <= '8') packet[digit] = '1';
        }
    }
    return packet;
}

} // namespace zp::codec

namespace zp
{

std::string exifDescription(const ImageProperties& properties)
{
    using namespace codec;
    struct Known {
        std::uint16_t tag;
        const char* name;
    };
    static constexpr Known kImage[] = {{0x010E, "ImageDescription"}, {0x010F, "Make"},     {0x0110, "Model"},
                                       {0x0131, "Software"},         {0x0132, "DateTime"}, {0x013B, "Artist"},
                                       {0x8298, "Copyright"}};
    static constexpr Known kPhoto[] = {
        {0x829A, "ExposureTime"}, {0x829D, "FNumber"}, {0x8827, "ISOSpeedRatings"}, {0x9003, "DateTimeOriginal"},
        {0x920A, "FocalLength"},  {0x9209, "Flash"},   {0xA434, "LensModel"}};
    std::string out = "{ UserComment = \"" + properties.userComment + "\";";
    if (const auto block = properties.exif.empty() ? std::nullopt : parseExif(properties.exif)) {
        const auto add = [&](const ExifDirectory& directory, std::span<const Known> names) {
            for (const Known& known : names) {
                const ExifEntry* e = ExifBlock::find(directory, known.tag);
                if (!e) continue;
                std::string value;
                if (e->type == kAscii) {
                    value = '"';
                    for (const std::uint8_t c : e->value)
                        if (c >= 0x20 && c != 0x7F) value += char(c);
                    value += '"';
                } else if (const auto r = block->rational(directory, known.tag)) {
                    char text[32];
                    std::snprintf(text, sizeof text, "%g", *r);
                    value = text;
                } else if (const auto n = block->number(directory, known.tag)) {
                    value = std::to_string(*n);
                }
                if (!value.empty()) out += std::string(" ") + known.name + " = " + value + ";";
            }
        };
        add(block->image, kImage);
        add(block->photo, kPhoto);
    }
    return out + " }";
}

} // namespace zp
