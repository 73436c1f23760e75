// SPDX-License-Identifier: GPL-3.0-or-later
/// Prefix codes as deflate has them.
#pragma once
#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace zp::codec
{

/// A prefix code of at most @p N symbols: lengths, and codes ready to be written.
template <unsigned N>
struct PrefixCode {
    std::array<std::uint32_t, N> frequency{};
    std::array<std::uint8_t, N> length{};
    std::array<std::uint16_t, N> code{};

    void build(unsigned longest)
    {
        std::array<std::uint32_t, N> order{}; // symbols in use, rarest first
        unsigned used = 0;
        for (unsigned s = 0; s < N; ++s) used += frequency[s] > 0;
        // Two codes at least, so that the code is complete for every decoder.
        for (unsigned s = 0; used < 2; ++s)
            if (frequency[s] == 0) {
                frequency[s] = 1;
                ++used;
            }
        used = 0;
        for (unsigned s = 0; s < N; ++s)
            if (frequency[s] > 0) order[used++] = s;
        std::sort(order.begin(), order.begin() + used, [&](std::uint32_t a, std::uint32_t b) {
            return frequency[a] != frequency[b] ? frequency[a] < frequency[b] : a < b;
        });

        std::array<std::uint32_t, 64> countOf{};
        countLengths(order, used, countOf);
        // Too long codes are cut to the longest allowed; shorter ones give way until the code is complete again.
        std::uint64_t total = 0;
        for (unsigned i = longest + 1; i < countOf.size(); ++i) countOf[longest] += std::exchange(countOf[i], 0);
        for (unsigned i = 1; i <= longest; ++i) total += std::uint64_t{countOf[i]} << (longest - i);
        while (total != std::uint64_t{1} << longest) {
            --countOf[longest];
            for (unsigned i = longest - 1; i > 0; --i)
                if (countOf[i]) {
                    --countOf[i];
                    countOf[i + 1] += 2;
                    break;
                }
            --total;
        }
        length.fill(0);
        unsigned next = used;
        for (unsigned bits = 1; bits <= longest; ++bits)
            for (unsigned i = 0; i < countOf[bits]; ++i) length[order[--next]] = std::uint8_t(bits);
        assign(countOf, longest);
    }

private:
    /// How many codes of each length the best prefix code has: two queues, merged from the rarest.
    void countLengths(const std::array<std::uint32_t, N>& order, unsigned used,
                      std::array<std::uint32_t, 64>& countOf) const
    {
        std::array<std::uint64_t, 2 * N> weight{};
        std::array<std::uint16_t, 2 * N> parent{};
        for (unsigned i = 0; i < used; ++i) weight[i] = frequency[order[i]];
        unsigned leaf = 0, inner = used, made = used;
        const auto lightest = [&] {
            if (leaf < used && (inner >= made || weight[leaf] <= weight[inner])) return leaf++;
            return inner++;
        };
        while (made < 2 * used - 1) {
            const unsigned a = lightest(), b = lightest();
            weight[made] = weight[a] + weight[b];
            parent[a] = parent[b] = std::uint16_t(made);
            ++made;
        }
        std::array<std::uint8_t, 2 * N> depth{};
        for (unsigned i = 2 * used - 2; i-- > 0;) {
            depth[i] = std::uint8_t(depth[parent[i]] + 1);
            if (i < used) ++countOf[std::min<unsigned>(depth[i], 63)];
        }
    }
    void assign(const std::array<std::uint32_t, 64>& countOf, unsigned longest)
    {
        std::array<std::uint32_t, 65> next{};
        for (unsigned bits = 1; bits <= longest; ++bits) next[bits + 1] = (next[bits] + countOf[bits]) << 1;
        for (unsigned s = 0; s < N; ++s) {
            if (length[s] == 0) continue;
            std::uint32_t c = next[length[s]]++, reversed = 0;
            for (unsigned i = 0; i < length[s]; ++i, c >>= 1) reversed = reversed << 1 | (c & 1);
            code[s] = std::uint16_t(reversed);
        }
    }
};

} // namespace zp::codec
