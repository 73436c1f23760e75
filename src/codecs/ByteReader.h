// SPDX-License-Identifier: GPL-3.0-or-later
/// Numbers and marks out of a file's bytes, wherever they end.
#pragma once
#include "codecs/Codec.h"
#include <cstdint>
#include <cstring>

namespace zp::codec
{

/// Numbers out of bytes that may end anywhere; what lies behind the end is 0.
class ByteReader
{
public:
    ByteReader(Bytes bytes, bool bigEndian) : mBytes(bytes), mBigEndian(bigEndian) {}
    std::uint64_t number(std::uint64_t at, unsigned size) const
    {
        if (at > mBytes.size() || size > mBytes.size() - at) return 0;
        std::uint64_t value = 0;
        for (unsigned i = 0; i < size; ++i) value = value << 8 | mBytes[at + (mBigEndian ? i : size - 1 - i)];
        return value;
    }
    unsigned u8(std::uint64_t at) const { return unsigned(number(at, 1)); }
    unsigned u16(std::uint64_t at) const { return unsigned(number(at, 2)); }
    std::uint32_t u32(std::uint64_t at) const { return std::uint32_t(number(at, 4)); }
    bool has(std::uint64_t at, const char* text) const
    {
        const std::size_t length = std::strlen(text);
        return at <= mBytes.size() && length <= mBytes.size() - at &&
               std::memcmp(mBytes.data() + at, text, length) == 0;
    }
    std::uint64_t size() const { return mBytes.size(); }

private:
    Bytes mBytes;
    bool mBigEndian;
};

} // namespace zp::codec
