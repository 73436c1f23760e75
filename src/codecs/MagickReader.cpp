// SPDX-License-Identifier: GPL-3.0-or-later
/// PSD, GIF, BMP, WebP and the other kinds, by ImageMagick's readers, each called by name over bytes in memory.
#include "codecs/MagickReader.h"
#include "base/Translation.h"
#include "codecs/ColourProfiles.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PixelRows.h"
#include <Magick++.h>
#include <algorithm>
#include <cstring>
#include <mutex>

namespace zp::codec
{

const char* magickName(Format format)
{
    switch (format) {
    case Format::GIF:
        return "GIF";
    case Format::BMP:
        return "BMP";
    case Format::PSD:
        return "PSD";
    case Format::WebP:
        return "WEBP";
    case Format::JP2:
        return "JP2";
    case Format::J2K:
        return "J2K";
    case Format::PNM:
        return "PNM";
    case Format::SGI:
        return "SGI";
    case Format::PCX:
        return "PCX";
    case Format::ICO:
        return "ICO";
    case Format::CUR:
        return "CUR";
    case Format::PICT:
        return "PICT";
    case Format::TGA:
        return "TGA";
    default:
        return nullptr;
    }
}

namespace
{

DecodedRest failure(std::string sentence)
{
    DecodedRest rest;
    rest.error = std::move(sentence);
    return rest;
}

void initializeOnce()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Magick::InitializeMagick(nullptr);
        Magick::ResourceLimits::thread(1); // callers spread pictures over threads themselves
        Magick::ResourceLimits::disk(0);   // no pixels in temporary files: they would go on for minutes
        Magick::ResourceLimits::width(std::size_t(kMaxPixelsPerSide));
        Magick::ResourceLimits::height(std::size_t(kMaxPixelsPerSide));
    });
}

std::string sentence(Format format, const Magick::Exception& e)
{
    // "program: what `name' @ file/function/line": only the middle is for people
    std::string text = e.what();
    if (const auto colon = text.find(": "); colon != std::string::npos) text.erase(0, colon + 2);
    if (const auto at = text.find(" @ "); at != std::string::npos) text.erase(at);
    if (const auto quote = text.find(" `"); quote != std::string::npos) text.erase(quote);
    if (dynamic_cast<const Magick::ErrorResourceLimit*>(&e))
        return filledIn(translated("Codecs", "The %1 image is larger than the limits of this machine allow."),
                        {magickName(format)});
    return filledIn(translated("Codecs", "The %1 data cannot be read: %2."),
                    {magickName(format), tidyMessage(text.c_str())});
}

std::vector<std::uint8_t> profileOf(Magick::Image& image, const char* name)
{
    const Magick::Blob blob = image.profile(name);
    const auto* p = static_cast<const std::uint8_t*>(blob.data());
    return p ? std::vector<std::uint8_t>(p, p + blob.length()) : std::vector<std::uint8_t>();
}

void collectProperties(Magick::Image& image, bool converted, ImageProperties& properties)
{
    const double x = image.xResolution(), y = image.yResolution();
    const auto unit = image.resolutionUnits();
    if (x > 0 && y > 0 && unit != Magick::UndefinedResolution) {
        const double perInch = unit == Magick::PixelsPerCentimeterResolution ? 2.54 : 1;
        properties.xDpi = x * perInch;
        properties.yDpi = y * perInch;
    }
    auto exif = profileOf(image, "exif");
    if (exif.size() > 6 && std::memcmp(exif.data(), "Exif\0", 5) == 0) exif.erase(exif.begin(), exif.begin() + 6);
    if (exif.size() > 8) keepExif(properties, exif);
    const auto xmp = profileOf(image, "xmp");
    if (!xmp.empty()) keepXMP(properties, {reinterpret_cast<const char*>(xmp.data()), xmp.size()});
    const bool byProfile = converted && profileOf(image, "icc") == sRGBProfile();
    keepProfile(properties, profileOf(image, "icc"), "RGB ", converted && !byProfile ? "CMYK" : nullptr);
}

int orientationOf(Magick::Image& image)
{
    auto exif = profileOf(image, "exif");
    if (exif.size() > 6 && std::memcmp(exif.data(), "Exif\0", 5) == 0) exif.erase(exif.begin(), exif.begin() + 6);
    return exifOrientation(exif);
}

/// The reader gives rows and columns as they are stored; the header says which corner is stored first.
int orientationOfTGA(Bytes tga)
{
    const bool top = tga[17] & 0x20, right = tga[17] & 0x10;
    return top ? (right ? 2 : 1) : (right ? 3 : 4);
}

/// Whether the alpha that the reader reports means transparency in this kind of file.
bool alphaCounts(Format format) { return format != Format::PICT && format != Format::PCX; }

/// A true-colour TGA file may carry a colour map that nothing uses, which the reader stumbles over: the file without
/// it.
std::vector<std::uint8_t> withoutUnusedMap(Bytes tga)
{
    const std::size_t head = 18 + std::size_t{tga[0]};
    const std::size_t map = (std::size_t{tga[5]} | std::size_t{tga[6]} << 8) * ((std::size_t{tga[7]} + 7) / 8);
    if (head + map >= tga.size()) return {};
    std::vector<std::uint8_t> out(tga.begin(), tga.begin() + std::ptrdiff_t(head));
    out.insert(out.end(), tga.begin() + std::ptrdiff_t(head + map), tga.end());
    out[1] = 0;
    std::fill(out.begin() + 3, out.begin() + 8, std::uint8_t{0});
    return out;
}

DecodedRest read(Bytes bytes, Format format, bool properties, RowTarget& target)
{
    std::vector<std::uint8_t> changed;
    if (format == Format::TGA && bytes[1] == 1 && (bytes[2] & 7) != 1) changed = withoutUnusedMap(bytes);
    const Magick::Blob blob(changed.empty() ? bytes.data() : changed.data(),
                            changed.empty() ? bytes.size() : changed.size());
    const auto prepare = [&](Magick::Image& image) {
        image.quiet(true); // warnings are no exceptions
        image.magick(magickName(format));
        image.subImage(0); // the first frame alone; of a PSD that is the merged picture
        image.subRange(1);
    };
    DecodedRest result;
    Magick::Image head;
    prepare(head);
    head.ping(blob);
    if (!checkSize(std::int64_t(head.columns()), std::int64_t(head.rows()), bytes.size(), result.error)) return result;

    Magick::Image image;
    prepare(image);
    image.quiet(false);
    try {
        image.read(blob);
    } catch (const Magick::WarningCorruptImage&) { // the pixels that could be read are there
        result.damaged = true;
    } catch (const Magick::Warning&) {
    }
    if (!image.isValid()) return failure(translated("Codecs", "The image has no pixels."));
    const bool inks = image.colorSpace() == Magick::CMYKColorspace;
    const bool deep = image.depth() > 8 && format != Format::GIF;
    if (inks && !profileOf(image, "icc").empty()) {
        const ProfileBytes screen = sRGBProfile();
        image.profile("icc", Magick::Blob(screen.data(), screen.size())); // over another profile: a conversion
    }
    if (image.colorSpace() != Magick::sRGBColorspace && image.colorSpace() != Magick::GRAYColorspace)
        image.colorSpace(Magick::sRGBColorspace);

    // A frame of an animation may cover only a part of its screen.
    int width = int(image.columns()), height = int(image.rows()), left = 0, top = 0;
    if (format == Format::GIF) {
        const Magick::Geometry page = image.page();
        if (page.width() > 0 && page.height() > 0) {
            if (!checkSize(std::int64_t(page.width()), std::int64_t(page.height()), bytes.size(), result.error))
                return result;
            width = int(page.width());
            height = int(page.height());
            left = page.xNegative() ? -int(page.xOff()) : int(page.xOff());
            top = page.yNegative() ? -int(page.yOff()) : int(page.yOff());
        }
    }
    if (!target.begin(width, height))
        return failure(translated("Codecs", "There is not enough memory for this image."));
    const bool transparent = image.matte() && alphaCounts(format);
    const int columns = int(image.columns());
    const int x0 = std::max(0, left), x1 = std::min(width, left + columns);
    std::vector<std::uint8_t> row(std::size_t(columns) * 4);
    for (int to = 0; to < height; ++to) {
        std::uint8_t* const out = target.row(to);
        const int y = to - top;
        if (y < 0 || y >= int(image.rows())) continue;
        image.write(0, y, std::size_t(columns), 1, "ARGB", Magick::CharPixel, row.data());
        if (!transparent)
            for (std::size_t x = 0; x < row.size(); x += 4) row[x] = 255;
        else
            premultiplyRow(row.data(), std::size_t(columns));
        if (x0 < x1) std::memcpy(out + std::size_t(x0) * 4, &row[std::size_t(x0 - left) * 4], std::size_t(x1 - x0) * 4);
    }
    if (result.damaged)
        result.properties.warnings.emplace_back(
            translated("Codecs", "The image's data is damaged; what could be read is shown."));
    if (deep) result.bits = 16;
    result.inks = inks;
    if (deep)
        result.properties.warnings.emplace_back(
            translated("Codecs", "The image had %n bits a colour; it was reduced to 8.", nullptr, 16));
    result.orientation = format == Format::TGA ? orientationOfTGA(bytes) : orientationOf(image);
    if (properties) collectProperties(image, inks, result.properties);
    return result;
}

} // namespace

void prepareMagick() { initializeOnce(); }

DecodedRest readByMagick(Bytes bytes, Format format, bool properties, RowTarget& target)
{
    if (!magickName(format)) return failure(translated("Codecs", "It is not an image of a kind that can be opened."));
    initializeOnce();
    try {
        return read(bytes, format, properties, target);
    } catch (const Magick::Exception& e) {
        return failure(sentence(format, e));
    }
}

} // namespace zp::codec
