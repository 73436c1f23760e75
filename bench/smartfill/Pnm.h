// SPDX-License-Identifier: GPL-3.0-or-later
/// The plainest picture files, for benchmarks that look at photos.
#pragma once
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace zp::bench
{

/// A binary PGM (one channel) or PPM (three) with 255 as its most.
struct Pnm {
    int width = 0, height = 0, channels = 0;
    std::vector<std::uint8_t> bytes; ///< width * height * channels
};

inline Pnm readPnm(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::string magic;
    Pnm pnm;
    int most = 0;
    in >> magic >> pnm.width >> pnm.height >> most;
    in.get();
    if (!in || (magic != "P6" && magic != "P5") || most != 255 || pnm.width < 1 || pnm.height < 1)
        throw std::runtime_error("not a binary PPM or PGM: " + path);
    pnm.channels = magic == "P6" ? 3 : 1;
    pnm.bytes.resize(std::size_t(pnm.width) * std::size_t(pnm.height) * std::size_t(pnm.channels));
    in.read(reinterpret_cast<char*>(pnm.bytes.data()), std::streamsize(pnm.bytes.size()));
    if (!in) throw std::runtime_error("cut short: " + path);
    return pnm;
}

} // namespace zp::bench
