// SPDX-License-Identifier: GPL-3.0-or-later
/// Deflate for strips that are joined into one stream.
#pragma once
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace zp::codec
{

/// Compresses strips independently of each other. One thread at a time.
class StripDeflater
{
public:
    /// @param step  bytes of a pixel, 1 to 4: whole pixels that repeat are seen too
    explicit StripDeflater(unsigned step);
    ~StripDeflater();
    StripDeflater(const StripDeflater&) = delete;
    StripDeflater& operator=(const StripDeflater&) = delete;
    /// Appends the compressed strip. Unless it is the @p last it ends on a whole byte and without the final mark, so
    /// that another strip's bytes may follow. Throws bad_alloc.
    void deflate(std::span<const std::uint8_t> bytes, bool last, std::vector<std::uint8_t>& out);

private:
    struct Private;
    std::unique_ptr<Private> d;
    unsigned mStep;
};

/// The checksum of two pieces from theirs.
std::uint32_t combinedAdler(std::uint32_t first, std::uint32_t second, std::size_t secondBytes);

} // namespace zp::codec
