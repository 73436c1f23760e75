// SPDX-License-Identifier: GPL-3.0-or-later
/// The segment that vouches for a snapshot's file.
#pragma once
#include "codecs/JPEGSegments.h"
#include "undo/Fingerprint.h"
#include <array>

namespace zp::jpeg
{

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
