// SPDX-License-Identifier: GPL-3.0-or-later
/// The lists of tags that a TIFF file is made of, looked at without the library: where things stand in it.
#pragma once
#include "codecs/ByteReader.h"
#include <iterator>

namespace zp::codec
{

/// One list of tags, in either form of the format.
struct TagList {
    const ByteReader& file;
    bool large;
    std::uint64_t at;
    static TagList firstOf(const ByteReader& file)
    {
        const bool large = file.u16(2) == 43;
        return {file, large, large ? file.number(8, 8) : file.u32(4)};
    }
    bool isSensible() const { return at != 0 && at < file.size() && count() > 0 && count() <= 65'535; }
    std::uint64_t count() const { return file.number(at, large ? 8 : 2); }
    unsigned entrySize() const { return large ? 20 : 12; }
    std::uint64_t entry(std::uint64_t i) const { return at + (large ? 8 : 2) + i * entrySize(); }
    std::uint64_t next() const { return file.number(entry(count()), large ? 8 : 4); }
    /// The first value of a tag that holds bytes, 16-bit or 32-bit numbers. @return 0 when there is none
    std::uint64_t value(unsigned tag) const
    {
        const Values found = values(tag);
        return found.count > 0 ? file.number(found.at, found.size) : 0;
    }
    /// Where a tag's values stand.
    struct Values {
        std::uint64_t at = 0, count = 0;
        unsigned size = 1; ///< bytes of each
        std::uint64_t bytes() const { return count > ~std::uint64_t{0} / size ? ~std::uint64_t{0} : count * size; }
    };
    Values valuesOf(std::uint64_t i) const
    {
        // By type number: bytes, texts, 16 and 32 bits, fractions, the same with signs, floats, BigTIFF's 64 bits.
        static constexpr unsigned kSizes[] = {1, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4, 1, 1, 8, 8, 8};
        const std::uint64_t e = entry(i);
        const unsigned type = file.u16(e + 2), room = large ? 8 : 4;
        Values found{e + (large ? 12 : 8), file.number(e + 4, room), type < std::size(kSizes) ? kSizes[type] : 1};
        if (found.bytes() > room) found.at = file.number(found.at, room);
        return found;
    }
    /// None when there is no such tag.
    Values values(unsigned tag) const
    {
        for (std::uint64_t i = 0; i < count(); ++i)
            if (file.u16(entry(i)) == tag) return valuesOf(i);
        return {};
    }
};

} // namespace zp::codec
