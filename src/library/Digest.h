// SPDX-License-Identifier: GPL-3.0-or-later
/// A 64-bit digest that tells files of people apart; not one that withstands somebody who forges them.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zp
{

class Digest
{
public:
    /// Pieces of a multiple of eight bytes (but the last) give the digest of their sum.
    void add(const char* bytes, std::size_t count)
    {
        mCount += count;
        for (; count >= sizeof(std::uint64_t); bytes += sizeof(std::uint64_t), count -= sizeof(std::uint64_t)) {
            std::uint64_t word;
            std::memcpy(&word, bytes, sizeof word);
            mix(word);
        }
        if (count == 0) return;
        std::uint64_t rest = 0;
        std::memcpy(&rest, bytes, count);
        mix(rest);
    }
    std::uint64_t value() const
    {
        Digest last = *this;
        last.mix(mCount);
        last.mix(0);
        return last.mState;
    }

private:
    void mix(std::uint64_t word)
    {
        // An odd factor keeps every bit; the fold brings the high ones, where products mix, down again.
        constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15u;
        mState = (mState ^ word) * kFactor;
        mState ^= mState >> 29;
    }
    std::uint64_t mState = 0x243F6A8885A308D3u, mCount = 0;
};

} // namespace zp
