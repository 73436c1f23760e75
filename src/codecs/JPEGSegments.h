// SPDX-License-Identifier: GPL-3.0-or-later
/// The bytes of a JPEG file that cutting and joining its strips has to know.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>

namespace zp::jpeg
{

inline constexpr std::uint8_t kMark = 0xFF, kStartOfImage = 0xD8, kEndOfImage = 0xD9, kRestart0 = 0xD0;
inline constexpr std::uint8_t kFrameBaseline = 0xC0, kFrameExtended = 0xC1, kFrameLast = 0xCF;
inline constexpr std::uint8_t kHuffmanTables = 0xC4, kExtensions = 0xC8, kArithmeticTables = 0xCC; ///< among the frames
inline constexpr std::uint8_t kStartOfScan = 0xDA, kApp0 = 0xE0, kApp9 = 0xE9;
inline constexpr int kRestartCycle = 8; ///< restart markers are numbered modulo this
/// Where the height stands in a frame segment, counted from its 0xFF: marker, length, precision come before; the width
/// follows.
inline constexpr std::size_t kFrameHeightOffset = 5;

inline int read16(const std::uint8_t* bytes) { return bytes[0] << 8 | bytes[1]; }
inline void write16(std::uint8_t* bytes, int value)
{
    bytes[0] = std::uint8_t(value >> 8);
    bytes[1] = std::uint8_t(value);
}

/// Whether a segment of this kind states the picture's size.
inline bool isFrame(std::uint8_t marker)
{
    return marker >= kFrameBaseline && marker <= kFrameLast && marker != kHuffmanTables && marker != kExtensions &&
           marker != kArithmeticTables;
}

struct Segment {
    std::uint8_t marker = 0;
    std::size_t begin = 0, end = 0; ///< from its 0xFF to behind its last byte
};

/// Steps through the segments from SOI to the first SOS, that one included.
class SegmentWalk
{
public:
    explicit SegmentWalk(std::span<const std::uint8_t> file) : mFile(file)
    {
        if (file.size() >= 4 && file[0] == kMark && file[1] == kStartOfImage) mNext = 2;
    }
    /// Nothing behind SOS, at the end, and where the bytes are no segment.
    std::optional<Segment> next()
    {
        if (!mNext || mNext + 4 > mFile.size() || mFile[mNext] != kMark) return std::nullopt;
        Segment segment{mFile[mNext + 1], mNext, 0};
        segment.end = mNext + 2 + std::size_t(read16(mFile.data() + mNext + 2));
        if (segment.marker < 0xC0 || segment.end < mNext + 4 || segment.end > mFile.size()) return std::nullopt;
        mNext = segment.marker == kStartOfScan ? 0 : segment.end;
        return segment;
    }

private:
    std::span<const std::uint8_t> mFile;
    std::size_t mNext = 0;
};

/// The next marker in entropy-coded data at or behind @p from (stuffed zeros and fill bytes passed over); the data's
/// size when there is none.
inline std::size_t findMarker(std::span<const std::uint8_t> data, std::size_t from)
{
    while (from + 1 < data.size()) {
        const void* found = std::memchr(data.data() + from, kMark, data.size() - 1 - from);
        if (!found) break;
        from = std::size_t(static_cast<const std::uint8_t*>(found) - data.data());
        if (data[from + 1] != 0 && data[from + 1] != kMark) return from;
        ++from;
    }
    return data.size();
}

} // namespace zp::jpeg
