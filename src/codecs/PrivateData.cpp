// SPDX-License-Identifier: GPL-3.0-or-later
/// What stays is listed, not what goes: nobody knows all the entries that programs and cameras invent.
#include "codecs/PrivateData.h"
#include "codecs/FileNames.h"
#include "codecs/MetadataBlocks.h"
#include <algorithm>
#include <span>

namespace zp
{

namespace
{

using namespace codec;

constexpr std::uint16_t kDateTime = 0x0132, kYCbCrPositioning = 0x0213;
constexpr std::uint16_t kImage[] = {tag::Orientation,    tag::XResolution, tag::YResolution,
                                    tag::ResolutionUnit, kDateTime,        kYCbCrPositioning};
/// Times of exposure, apertures, speeds, dates, light, flash, focal lengths, how the picture was rendered.
constexpr std::uint16_t kPhoto[] = {
    0x829A, 0x829D, 0x8822, 0x8827, 0x8830, 0x9000, 0x9003, 0x9004, 0x9101, 0x9102, 0x9201, 0x9202, 0x9203,
    0x9204, 0x9205, 0x9206, 0x9207, 0x9208, 0x9209, 0x920A, 0x9290, 0x9291, 0x9292, 0xA000, 0xA001, 0xA002,
    0xA003, 0xA401, 0xA402, 0xA403, 0xA404, 0xA405, 0xA406, 0xA407, 0xA408, 0xA409, 0xA40A, 0xA40C, tag::UserComment};

void keepOnly(ExifDirectory& directory, std::span<const std::uint16_t> kept)
{
    std::erase_if(directory,
                  [kept](const ExifEntry& entry) { return std::ranges::find(kept, entry.tag) == kept.end(); });
}

} // namespace

void removePrivateData(ImageProperties& properties)
{
    properties.xmp.clear();
    properties.iptc.clear();
    properties.comments.clear();
    // Our own mark says nothing of anybody; another's may.
    const bool ownComment = properties.userComment == kEditedComment;
    if (!ownComment) properties.userComment.clear();
    auto block = properties.exif.empty() ? std::nullopt : parseExif(properties.exif);
    properties.exif.clear();
    if (!block) return;
    keepOnly(block->image, kImage);
    keepOnly(block->photo, kPhoto);
    if (!ownComment) ExifBlock::erase(block->photo, tag::UserComment);
    block->gps.clear();
    if (!block->isEmpty()) properties.exif = serialiseExif(*block);
}

} // namespace zp
