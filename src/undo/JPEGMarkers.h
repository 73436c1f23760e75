// SPDX-License-Identifier: GPL-3.0-or-later
/// The bytes of a JPEG file that cutting and joining strips has to know, and the segment that vouches for a file.
#pragma once
#include "codecs/JPEGStrips.h"
#include "undo/Fingerprint.h"
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <vector>

namespace zp::jpeg
{

inline constexpr std::uint8_t kStartOfImage = 0xD8;
inline constexpr std::uint8_t kFrameBaseline = 0xC0, kFrameExtended = 0xC1, kHuffmanTables = 0xC4, kArithmetic = 0xCC;
inline constexpr std::uint8_t kQuantisation = 0xDB;
inline constexpr std::uint8_t kRestartInterval = 0xDD, kStartOfScan = 0xDA, kApp0 = 0xE0, kApp9 = 0xE9;
/// Where the height stands in a frame segment, counted from its 0xFF: marker, length, precision come before.
inline constexpr std::size_t kFrameHeightOffset = 5;

inline bool isRestart(std::uint8_t marker) { return marker >= kRestart0 && marker <= kRestart0 + 7; }
inline int read16(const std::uint8_t* bytes) { return bytes[0] << 8 | bytes[1]; }
inline void write16(std::uint8_t* bytes, int value)
{
    bytes[0] = std::uint8_t(value >> 8);
    bytes[1] = std::uint8_t(value);
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

/// The segment that holds the fingerprint of everything behind it.
inline constexpr std::array<std::uint8_t, 9> kSealName = {'Z', 'e', 'l', 'p', 'a', 'n', 'e', 0, 1};
inline constexpr std::size_t kSealSize = 4 + kSealName.size() + 16;

inline void writeSeal(std::uint8_t* at, Fingerprint fingerprint)
{
    at[0] = kMark;
    at[1] = kApp9;
    write16(at + 2, int(kSealSize) - 2);
    std::memcpy(at + 4, kSealName.data(), kSealName.size());
    std::memcpy(at + 4 + kSealName.size(), &fingerprint.low, 8);
    std::memcpy(at + 12 + kSealName.size(), &fingerprint.high, 8);
}

inline bool isSeal(std::span<const std::uint8_t> file, const Segment& segment)
{
    return segment.marker == kApp9 && segment.end - segment.begin == kSealSize &&
           std::memcmp(file.data() + segment.begin + 4, kSealName.data(), kSealName.size()) == 0;
}

inline Fingerprint sealedFingerprint(std::span<const std::uint8_t> file, const Segment& seal)
{
    Fingerprint result;
    std::memcpy(&result.low, file.data() + seal.begin + 4 + kSealName.size(), 8);
    std::memcpy(&result.high, file.data() + seal.begin + 12 + kSealName.size(), 8);
    return result;
}

} // namespace zp::jpeg
