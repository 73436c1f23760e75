// SPDX-License-Identifier: GPL-3.0-or-later
/// EXIF, XMP and colour profiles as they travel between files: checked on reading, put right on writing.
///
/// An EXIF block is a TIFF structure without pixels. It is taken apart and put together here, because a picture that
/// was turned, cropped or saved as another kind of file must not keep the old file's size, orientation and thumbnail.
#pragma once
#include "base/BitmapRep.h"
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zp::codec
{

struct ExifEntry {
    std::uint16_t tag = 0, type = 0;
    std::uint32_t count = 0;
    std::vector<std::uint8_t> value; ///< in the block's byte order
    std::uint32_t offset = 0;        ///< where the value stood, 0 when inside the entry
};
using ExifDirectory = std::vector<ExifEntry>;

/// The parts of a block that are kept. The thumbnail is not: it would show another picture.
struct ExifBlock {
    bool bigEndian = false;
    ExifDirectory image, photo, gps, interop;
    bool damaged = false; ///< something had to be left out

    static const ExifEntry* find(const ExifDirectory& directory, std::uint16_t tag);
    /// The first number of an entry of an integer type.
    std::optional<std::uint32_t> number(const ExifDirectory& directory, std::uint16_t tag) const;
    /// The first value of a rational entry.
    std::optional<double> rational(const ExifDirectory& directory, std::uint16_t tag) const;
    void setNumber(ExifDirectory& directory, std::uint16_t tag, std::uint16_t type, std::uint32_t value);
    /// An array of kShort or kLong.
    void setNumbers(ExifDirectory& directory, std::uint16_t tag, std::uint16_t type,
                    std::span<const std::uint32_t> values);
    void setRational(ExifDirectory& directory, std::uint16_t tag, double value);
    static void setBytes(ExifDirectory& directory, std::uint16_t tag, std::uint16_t type, std::uint32_t count,
                         std::vector<std::uint8_t> value);
    static void erase(ExifDirectory& directory, std::uint16_t tag);
    bool isEmpty() const { return image.empty() && photo.empty() && gps.empty() && interop.empty(); }
};

namespace tag
{
inline constexpr std::uint16_t Orientation = 0x0112, XResolution = 0x011A, YResolution = 0x011B,
                               ResolutionUnit = 0x0128, ExifIFD = 0x8769, GPSIFD = 0x8825, InteropIFD = 0xA005,
                               UserComment = 0x9286, MakerNote = 0x927C, PixelXDimension = 0xA002,
                               PixelYDimension = 0xA003, XMPPacket = 0x02BC, IPTC = 0x83BB, ICCProfile = 0x8773;
} // namespace tag
enum ExifType : std::uint16_t { kByte = 1, kAscii = 2, kShort = 3, kLong = 4, kRational = 5, kUndefined = 7 };

/// Takes a block, or the head of a TIFF file (BigTIFF included), apart. Entries that point outside are left out, as are
/// directories met twice. Nothing when there is no first directory.
std::optional<ExifBlock> parseExif(std::span<const std::uint8_t> bytes);
/// Puts a block together, empty when it has no entries. A maker note stays at its old offset: its own pointers count
/// from the block's start. The size depends on the entries' sizes alone, so values that are offsets may be filled in
/// afterwards.
std::vector<std::uint8_t> serialiseExif(const ExifBlock& block);

/// The orientation of a block, 1 when it has none that is valid. Looks at the first directory only.
int exifOrientation(std::span<const std::uint8_t> exif);

/// Take what a file brought into the properties, or leave it out with a warning when it is broken or absurdly large.
/// @param exif a block, or a whole TIFF file
void keepExif(ImageProperties& properties, std::span<const std::uint8_t> exif);
void keepXMP(ImageProperties& properties, std::string packet);
/// @param colourSpace the four letters of the space the pixels are in; @p sourceSpace those of the file's pixels when
/// they were converted on reading, so that a profile for them says nothing about the picture any more
void keepProfile(ImageProperties& properties, std::vector<std::uint8_t> profile, const char* colourSpace,
                 const char* sourceSpace = nullptr);

/// Captions, as records of IPTC.
void keepIPTC(ImageProperties& properties, std::span<const std::uint8_t> records);
/// The records among image resources ("8BIM"), in which JPEG files carry them; empty when there are none.
std::span<const std::uint8_t> iptcOfResources(std::span<const std::uint8_t> resources);
/// The other way round; empty for none.
std::vector<std::uint8_t> iptcAsResource(std::span<const std::uint8_t> records);

/// The block for a file of this size: orientation upright, size right, no thumbnail, the user comment set, the
/// resolution that of the properties. Empty when there is nothing to say.
ExifBlock exifForSaving(const ImageProperties& properties, int width, int height);
/// The packet with its own orientation, if it states one, upright.
std::string xmpForSaving(const ImageProperties& properties);

/// UserComment's bytes as UTF-8: ASCII, Unicode of either byte order, undefined as UTF-8 or Latin-1. Empty when they
/// cannot be understood. @param bigEndian the block's order
std::string decodeUserComment(std::span<const std::uint8_t> value, bool bigEndian);
std::vector<std::uint8_t> encodeUserComment(const std::string& utf8, bool bigEndian);

} // namespace zp::codec

namespace zp
{

/// The EXIF entries for the log, "{ UserComment = ...; Make = ...; }": those with a known name, the comment first.
std::string exifDescription(const ImageProperties& properties);

} // namespace zp
