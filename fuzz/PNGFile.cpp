// SPDX-License-Identifier: GPL-3.0-or-later
/// PNG files: the chunks' checksums are made right first, or nothing behind them would be reached.
#include "ReadBack.h"
#include <zlib.h>

ZP_FUZZ(PNGFile, "png", bytes)
{
    std::vector<std::uint8_t> file(bytes.begin(), bytes.end());
    const std::uint8_t mark[8] = {0x89, 'P', 'N', 'G', 13, 10, 26, 10};
    if (file.size() < 8) return;
    std::copy(std::begin(mark), std::end(mark), file.begin());
    for (std::size_t at = 8; at + 12 <= file.size();) {
        const std::size_t length = std::size_t(file[at]) << 24 | file[at + 1] << 16 | file[at + 2] << 8 | file[at + 3];
        if (length > file.size() - at - 12) break;
        const auto sum = std::uint32_t(crc32(0, &file[at + 4], uInt(length + 4)));
        for (int i = 0; i < 4; ++i) file[at + 8 + length + std::size_t(i)] = std::uint8_t(sum >> (24 - 8 * i));
        at += 12 + length;
    }
    zp::fuzz::readBack(file);
}
