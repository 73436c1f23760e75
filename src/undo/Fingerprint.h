// SPDX-License-Identifier: GPL-3.0-or-later
/// A 128-bit fingerprint of bytes at memory speed: tells whether rows of a picture, or a file, are what they were.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>
#include <span>

namespace zp
{

/// Equal bytes have equal fingerprints; different ones have different fingerprints but for accidents of 1 in 2^64 or
/// rarer. Not for secrets: nothing here withstands someone who looks for a collision. Values depend on the byte order
/// of the machine and are only meant to be compared on it.
struct Fingerprint {
    std::uint64_t low = 0, high = 0;
    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
};

/// Of the pixels of a view, spare bytes at the ends of rows left out. Time: one read of the memory.
Fingerprint fingerprint(ConstBitmapView pixels);
Fingerprint fingerprint(std::span<const std::uint8_t> bytes);

} // namespace zp
