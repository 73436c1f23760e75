// SPDX-License-Identifier: GPL-3.0-or-later
/// One picture as files of a kind that gives up detail for size, at one quality after the other.
#pragma once
#include "base/BitmapRep.h"
#include "codecs/FileNames.h"
#include <cstdint>
#include <memory>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace zp
{

inline constexpr int kLeastQuality = 1, kBestQuality = 100;

/// Whatever a kind of file needs of the picture once (its colours in the file's own space) is made once, so that the
/// next quality costs the coding alone. A picture has one writer; any thread, one at a time.
class LossyWriter
{
public:
    /// @param pixels  must outlive the writer and stay as they are. @param error  why there is none, in a sentence:
    /// memory, a side too long for this kind of file, or a kind that has no quality. Never throws.
    static std::unique_ptr<LossyWriter> make(SaveFormat format, ConstBitmapView pixels,
                                             const ImageProperties& properties, std::string& error);
    virtual ~LossyWriter() = default;

    /// The whole file, the same bytes for the same picture on every machine. Transparent parts lie over white where the
    /// kind of file has none. Profile, EXIF and XMP go with it.
    /// @param quality  kLeastQuality to kBestQuality. @param stop  ends it soon
    /// @return empty when it was stopped or memory ran out. Never throws.
    virtual std::vector<std::uint8_t> write(int quality, const std::stop_token& stop) noexcept = 0;
    /// What such a file shows, into pixels of its size. @return false when it is damaged or memory ran out. Never
    /// throws
    virtual bool read(std::span<const std::uint8_t> file, BitmapView pixels) const noexcept = 0;
};

} // namespace zp
