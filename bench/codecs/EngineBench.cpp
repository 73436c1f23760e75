// SPDX-License-Identifier: GPL-3.0-or-later
/// The engines of our own beside the best packaged ones doing the same work on the same cores: the codes of JPEG
/// strips, deflate, LZW. Rows of one name and argument belong together.
#include "base/WorkPool.h"
#include "codecs/BenchPictures.h"
#include "codecs/JPEGStrips.h"
#include "codecs/PNGDeflate.h"
#include "codecs/PNGFilter.h"
#include "codecs/TIFFLZW.h"
#include "codecs/TIFFSource.h"
#include <atomic>
#include <benchmark/benchmark.h>
#include <isa-l/igzip_lib.h>
#include <libdeflate.h>
#include <turbojpeg.h>
#include <zlib.h>

namespace
{

using namespace zp;
using namespace zp::bench;

constexpr int kQuality = 70, kStripRows = 5, kStripHeight = kStripRows * jpeg::kBlockRow;

void count(benchmark::State& state, std::size_t bytes) { state.counters["MB"] = double(bytes) / 1e6; }

/// The picture's strips coded on all cores.
void StripsOwn(benchmark::State& state)
{
    const auto rep = picture(Photo);
    jpeg::StripEncoder encoder;
    if (!encoder.prepare({.width = kWidth, .height = kHeight, .quality = kQuality, .stripRows = kStripRows}))
        return state.SkipWithError("no head");
    std::vector<std::vector<std::uint8_t>> strips(std::size_t(encoder.format().strips()));
    for (auto _ : state)
        parallelFor(int(strips.size()), [&](int i) {
            encoder.encode(rep->view().part(encoder.format().rowsOf(i)), strips[std::size_t(i)]);
        });
    std::size_t bytes = 0;
    for (const auto& strip : strips) bytes += strip.size();
    count(state, bytes);
}
/// Each strip as a picture of its own, on the same cores.
void StripsTurbo(benchmark::State& state)
{
    const auto rep = picture(Photo);
    std::atomic<std::size_t> bytes = 0;
    for (auto _ : state) {
        bytes = 0;
        parallelFor((kHeight + kStripHeight - 1) / kStripHeight, [&](int i) {
            thread_local const tjhandle handle = tjInitCompress();
            thread_local unsigned char* out = nullptr;
            thread_local unsigned long size = 0;
            const int y = i * kStripHeight, rows = std::min(kStripHeight, kHeight - y);
            tjCompress2(handle, rep->view().rowData(y), kWidth, int(rep->bytesPerRow()), rows, TJPF_XRGB, &out, &size,
                        TJSAMP_420, kQuality, 0);
            bytes += size;
        });
    }
    count(state, bytes);
}

/// Filtered strips of a megabyte, as the PNG writer has them.
const std::vector<std::vector<std::uint8_t>>& filteredStrips(Look look)
{
    static std::vector<std::vector<std::uint8_t>> made[3];
    auto& strips = made[look];
    if (!strips.empty()) return strips;
    constexpr int kRows = (1 << 20) / (3 * kWidth);
    codec::RowFilter filter(kWidth, 3);
    for (int y = 0; y < kHeight; ++y) {
        if (y % kRows == 0) strips.emplace_back();
        auto& strip = strips.back();
        strip.resize(strip.size() + 1 + 3 * kWidth);
        filter.filterRow(picture(look)->view(), y, y % kRows == 0, &strip[strip.size() - 1 - 3 * kWidth]);
    }
    return strips;
}

/// On one core. @param pack  packs a strip and gives the size
template <class Pack>
void measureDeflate(benchmark::State& state, Pack pack)
{
    const auto& strips = filteredStrips(Look(state.range(0)));
    std::size_t bytes = 0;
    for (auto _ : state) {
        bytes = 0;
        for (const auto& strip : strips) bytes += pack(strip);
    }
    count(state, bytes);
}
void DeflateOwn(benchmark::State& state)
{
    codec::StripDeflater deflater(3);
    std::vector<std::uint8_t> out;
    measureDeflate(state, [&](const auto& strip) {
        out.clear();
        deflater.deflate(strip, false, out);
        return out.size();
    });
}
void DeflateISAL(benchmark::State& state)
{
    const auto stream = std::make_unique<isal_zstream>();
    std::vector<std::uint8_t> level(ISAL_DEF_LVL1_DEFAULT), out(2 << 20);
    measureDeflate(state, [&](const auto& strip) {
        isal_deflate_init(stream.get());
        stream->level = 1;
        stream->level_buf = level.data();
        stream->level_buf_size = std::uint32_t(level.size());
        stream->flush = FULL_FLUSH;
        stream->next_in = const_cast<std::uint8_t*>(strip.data());
        stream->avail_in = std::uint32_t(strip.size());
        stream->next_out = out.data();
        stream->avail_out = std::uint32_t(out.size());
        isal_deflate(stream.get());
        return std::size_t{stream->total_out};
    });
}
void DeflateLibdeflate(benchmark::State& state)
{
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(1);
    std::vector<std::uint8_t> out(2 << 20);
    measureDeflate(state, [&](const auto& strip) {
        return libdeflate_deflate_compress(compressor, strip.data(), strip.size(), out.data(), out.size());
    });
    libdeflate_free_compressor(compressor);
}
/// The filters alone, to be added to each of the three.
void DeflateFilters(benchmark::State& state)
{
    const auto rep = picture(Look(state.range(0)));
    codec::RowFilter filter(kWidth, 3);
    std::vector<std::uint8_t> row(1 + 3 * kWidth);
    for (auto _ : state)
        for (int y = 0; y < kHeight; ++y) filter.filterRow(rep->view(), y, y == 0, row.data());
}

/// The strips above as one stream, unpacked on one core.
template <class Unpack>
void measureInflate(benchmark::State& state, Unpack unpack)
{
    std::vector<std::uint8_t> raw;
    for (const auto& strip : filteredStrips(Look(state.range(0)))) raw.insert(raw.end(), strip.begin(), strip.end());
    uLongf size = compressBound(uLong(raw.size()));
    std::vector<std::uint8_t> packed(size), out(raw.size());
    compress2(packed.data(), &size, raw.data(), uLong(raw.size()), 1);
    packed.resize(size);
    for (auto _ : state) unpack(packed, out);
    if (out != raw) state.SkipWithError("not the same");
}
void InflateLibdeflate(benchmark::State& state)
{
    libdeflate_decompressor* decompressor = libdeflate_alloc_decompressor();
    measureInflate(state, [&](const auto& packed, auto& out) {
        libdeflate_zlib_decompress(decompressor, packed.data(), packed.size(), out.data(), out.size(), nullptr);
    });
    libdeflate_free_decompressor(decompressor);
}
void InflateISAL(benchmark::State& state)
{
    const auto stream = std::make_unique<inflate_state>();
    measureInflate(state, [&](const auto& packed, auto& out) {
        isal_inflate_init(stream.get());
        stream->crc_flag = ISAL_ZLIB;
        stream->next_in = const_cast<std::uint8_t*>(packed.data());
        stream->avail_in = std::uint32_t(packed.size());
        stream->next_out = out.data();
        stream->avail_out = std::uint32_t(out.size());
        isal_inflate(stream.get());
    });
}

/// Strips of half a megabyte of differences, as the TIFF writer has them.
constexpr int kLZWRows = (512 << 10) / (3 * kWidth), kLZWStrips = (kHeight + kLZWRows - 1) / kLZWRows;
const std::vector<std::uint8_t>& differences(Look look)
{
    static std::vector<std::uint8_t> made[3];
    auto& rows = made[look];
    if (!rows.empty()) return rows;
    rows.resize(std::size_t{3} * kWidth * kHeight);
    eachRowInRGB(*picture(look), [&](const std::uint8_t* row, int y) {
        std::uint8_t* to = &rows[std::size_t(y) * 3 * kWidth];
        for (int i = 0; i < 3 * kWidth; ++i) to[i] = std::uint8_t(row[i] - (i < 3 ? 0 : row[i - 3]));
    });
    return rows;
}
std::span<const std::uint8_t> lzwStrip(const std::vector<std::uint8_t>& rows, int strip)
{
    const std::size_t rowBytes = 3 * kWidth, from = std::size_t(strip) * kLZWRows * rowBytes;
    return std::span(rows).subspan(from, std::min(kLZWRows * rowBytes, rows.size() - from));
}
/// A TIFF file of a few strips in memory, which libtiff writes or reads.
struct MemoryTIFF {
    std::vector<std::uint8_t> bytes;
    std::uint64_t at = 0;

    TIFF* open(const char* mode)
    {
        at = 0;
        return TIFFClientOpen(
            "x", mode, this,
            [](thandle_t h, void* to, tmsize_t n) -> tmsize_t {
                auto* m = static_cast<MemoryTIFF*>(h);
                n = std::min<tmsize_t>(n, tmsize_t(m->bytes.size() - m->at));
                std::memcpy(to, m->bytes.data() + m->at, std::size_t(n));
                m->at += std::uint64_t(n);
                return n;
            },
            [](thandle_t h, void* data, tmsize_t n) -> tmsize_t {
                auto* m = static_cast<MemoryTIFF*>(h);
                if (m->bytes.size() < m->at + std::uint64_t(n)) m->bytes.resize(m->at + std::uint64_t(n));
                std::memcpy(m->bytes.data() + m->at, data, std::size_t(n));
                m->at += std::uint64_t(n);
                return n;
            },
            [](thandle_t h, toff_t o, int whence) -> toff_t {
                auto* m = static_cast<MemoryTIFF*>(h);
                return m->at = (whence == SEEK_CUR ? m->at : whence == SEEK_END ? m->bytes.size() : 0) + o;
            },
            [](thandle_t) { return 0; },
            [](thandle_t h) -> toff_t { return static_cast<MemoryTIFF*>(h)->bytes.size(); }, nullptr, nullptr);
    }
    void write(const std::vector<std::uint8_t>& rows, int first, int last)
    {
        TIFF* t = open("w");
        TIFFSetField(t, TIFFTAG_IMAGEWIDTH, kWidth);
        TIFFSetField(t, TIFFTAG_IMAGELENGTH, std::min(kHeight, last * kLZWRows) - first * kLZWRows);
        TIFFSetField(t, TIFFTAG_BITSPERSAMPLE, 8);
        TIFFSetField(t, TIFFTAG_SAMPLESPERPIXEL, 3);
        TIFFSetField(t, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
        TIFFSetField(t, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        TIFFSetField(t, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
        TIFFSetField(t, TIFFTAG_ROWSPERSTRIP, kLZWRows);
        std::vector<std::uint8_t> copy; // libtiff may change what it is given
        for (int i = first; i < last; ++i) {
            const auto strip = lzwStrip(rows, i);
            copy.assign(strip.begin(), strip.end());
            TIFFWriteEncodedStrip(t, std::uint32_t(i - first), copy.data(), tmsize_t(copy.size()));
        }
        TIFFClose(t);
    }
};

void LZWPackOwn(benchmark::State& state)
{
    const auto& rows = differences(Look(state.range(0)));
    std::atomic<std::size_t> bytes = 0;
    for (auto _ : state) {
        bytes = 0;
        parallelBands(kLZWStrips, 1, [&](int first, int last) {
            codec::LZWEncoder encoder;
            std::vector<std::uint8_t> out;
            for (int i = first; i < last; ++i) {
                encoder.encode(lzwStrip(rows, i), out);
                bytes += out.size();
            }
        });
    }
    count(state, bytes);
}
void LZWPackLibtiff(benchmark::State& state)
{
    const auto& rows = differences(Look(state.range(0)));
    std::atomic<std::size_t> bytes = 0;
    for (auto _ : state) {
        bytes = 0;
        parallelBands(kLZWStrips, 1, [&](int first, int last) {
            MemoryTIFF file;
            file.write(rows, first, last);
            bytes += file.bytes.size();
        });
    }
    count(state, bytes);
}
void LZWUnpackOwn(benchmark::State& state)
{
    const auto& rows = differences(Look(state.range(0)));
    std::vector<std::vector<std::uint8_t>> packed(kLZWStrips);
    codec::LZWEncoder encoder;
    for (int i = 0; i < kLZWStrips; ++i) encoder.encode(lzwStrip(rows, i), packed[std::size_t(i)]);
    for (auto _ : state)
        parallelBands(kLZWStrips, 1, [&](int first, int last) {
            const auto decoder = std::make_unique<codec::LZWDecoder>();
            std::vector<std::uint8_t> out(std::size_t{3} * kWidth * kLZWRows + codec::LZWDecoder::kSlack);
            for (int i = first; i < last; ++i)
                decoder->decode(packed[std::size_t(i)], out.data(), lzwStrip(rows, i).size());
        });
}
void LZWUnpackLibtiff(benchmark::State& state)
{
    const auto& rows = differences(Look(state.range(0)));
    MemoryTIFF whole;
    whole.write(rows, 0, kLZWStrips);
    for (auto _ : state)
        parallelBands(kLZWStrips, 1, [&](int first, int last) {
            codec::TIFFSource source(whole.bytes);
            std::vector<std::uint8_t> out(std::size_t{3} * kWidth * kLZWRows);
            for (int i = first; i < last; ++i)
                source.readChunk(std::uint64_t(i), out.data(), std::int64_t(lzwStrip(rows, i).size()), false);
        });
}

#define ZP_MS ->Unit(benchmark::kMillisecond)->UseRealTime()
#define ZP_LOOKS ->Arg(Camera)->Arg(Photo)->Arg(Drawing)->ArgName("look") ZP_MS
BENCHMARK(StripsOwn) ZP_MS;
BENCHMARK(StripsTurbo) ZP_MS;
BENCHMARK(DeflateFilters) ZP_LOOKS;
BENCHMARK(DeflateOwn) ZP_LOOKS;
BENCHMARK(DeflateISAL) ZP_LOOKS;
BENCHMARK(DeflateLibdeflate) ZP_LOOKS;
BENCHMARK(InflateLibdeflate) ZP_LOOKS;
BENCHMARK(InflateISAL) ZP_LOOKS;
BENCHMARK(LZWPackOwn) ZP_LOOKS;
BENCHMARK(LZWPackLibtiff) ZP_LOOKS;
BENCHMARK(LZWUnpackOwn) ZP_LOOKS;
BENCHMARK(LZWUnpackLibtiff) ZP_LOOKS;

} // namespace
