// SPDX-License-Identifier: GPL-3.0-or-later
/// Finds the strips of a file, which are its rows of blocks where it has no markers, and decodes bands of them. Colour
/// is interpolated between the rows of two bands, so each takes its neighbours' next strips along, and every pixel
/// comes out as in one go.
#include "codecs/JPEGBands.h"
#include "base/WorkPool.h"
#include "codecs/JPEGPlanes.h"
#include "codecs/JPEGSegments.h"
#include <algorithm>
#include <atomic>

namespace zp::jpeg
{
namespace
{

/// Strips for each strip that is decoded twice, so that this costs at most a fourteenth.
constexpr int kStripsPerBand = 14;
constexpr int kBandsPerWorker = 3;

constexpr std::uint8_t kEnd[] = {kMark, kEndOfImage};

int dividedUp(int a, int b) { return (a + b - 1) / b; }

int bandsFor(int strips)
{
    const int workers = workerCount(), bands = std::min(1 + strips / kStripsPerBand, kBandsPerWorker * workers);
    return bands <= workers ? bands : bands - bands % workers; // none shall be left over for one core at the end
}

/// A band begins in the middle of the cycle of markers' numbers: the one that comes is the right one.
boolean takeAnyRestart(j_decompress_ptr info, int wanted)
{
    if (info->unread_marker < kRestart0 || info->unread_marker >= kRestart0 + kRestartCycle)
        return jpeg_resync_to_restart(info, wanted);
    info->unread_marker = 0;
    return TRUE;
}

/// The head of a band's file, up to the decoding itself. Owns nothing that a jump could leak.
bool start(jpeg_decompress_struct* info, Errors& errors, Input& input, int scale, J_COLOR_SPACE colours)
{
    info->err = &errors;
    if (setjmp(errors.jump)) return false;
    jpeg_create_decompress(info);
    input.resync_to_restart = takeAnyRestart;
    info->src = &input;
    jpeg_read_header(info, TRUE);
    info->out_color_space = colours;
    info->scale_num = 1;
    info->scale_denom = unsigned(scale);
    info->raw_data_out = TRUE;
    if (!PlaneDecoder::handles(*info)) return false;
    jpeg_start_decompress(info);
    return true;
}

struct Decompressor {
    jpeg_decompress_struct info{};
    Errors errors;

    ~Decompressor() { jpeg_destroy_decompress(&info); } // harmless on one that was never created
};

/// Where each strip's bytes begin, and behind the last one the end marker; empty when the markers are not as expected.
std::vector<std::size_t> findStrips(std::span<const std::uint8_t> file, std::size_t at, int strips)
{
    std::vector<std::size_t> starts;
    for (int i = 0; i < strips; ++i) {
        starts.push_back(at);
        const std::size_t end = findMarker(file, at);
        const int expected = i + 1 == strips ? int(kEndOfImage) : kRestart0 + i % kRestartCycle;
        if (end == file.size() || file[end + 1] != expected) return {};
        at = end + 2;
    }
    starts.push_back(at);
    return starts;
}

} // namespace

std::optional<BandPlan> BandPlan::make(std::span<const std::uint8_t> file, const jpeg_decompress_struct& info)
{
    if (info.progressive_mode || info.arith_code || info.comps_in_scan != info.num_components) return std::nullopt;
    // A grey picture's blocks are coded one by one, whatever its sampling says.
    const bool grey = info.num_components == 1;
    if (grey && info.max_v_samp_factor > 1) return std::nullopt;
    const int unitWidth = DCTSIZE * (grey ? 1 : info.max_h_samp_factor),
              unitHeight = DCTSIZE * (grey ? 1 : info.max_v_samp_factor);
    const int unitsAcross = dividedUp(int(info.image_width), unitWidth);
    const bool marked = info.restart_interval > 0;
    if (marked && info.restart_interval % unsigned(unitsAcross) != 0) return std::nullopt;

    BandPlan plan;
    plan.mFile = file;
    plan.mUnitHeight = unitHeight;
    plan.mStripHeight = marked ? int(info.restart_interval) / unitsAcross * unitHeight : unitHeight;
    plan.mHeightOfPicture = int(info.image_height);
    plan.mScale = int(info.scale_denom);
    plan.mColours = info.out_color_space;
    plan.mStrips = dividedUp(plan.mHeightOfPicture, plan.mStripHeight);
    if (workersHere() < 2 || bandsFor(plan.mStrips) < 2) return std::nullopt;
    SegmentWalk walk(file);
    Segment last;
    while (const auto segment = walk.next()) {
        if (isFrame(segment->marker)) plan.mHeight = segment->begin + kFrameHeightOffset;
        last = *segment;
    }
    if (plan.mHeight == 0 || read16(file.data() + plan.mHeight) != plan.mHeightOfPicture) return std::nullopt;
    if (file.data() + last.end != info.src->next_input_byte) return std::nullopt; // bytes that are no segments
    plan.mHead.assign(file.begin(), file.begin() + std::ptrdiff_t(last.end));
    if (marked) {
        plan.mStarts = findStrips(file, last.end, plan.mStrips);
        if (plan.mStarts.empty()) return std::nullopt;
        return plan;
    }
    plan.mIndex = RowIndex::make(file.subspan(last.end), info, plan.mStrips, unitsAcross);
    if (!plan.mIndex) return std::nullopt;
    const auto tables = plan.mIndex->tables();
    plan.mHead.insert(plan.mHead.begin() + std::ptrdiff_t(last.begin), tables.begin(), tables.end());
    return plan;
}

bool BandPlan::decode(BitmapView out) const
{
    const int bands = bandsFor(mStrips), before = mIndex ? 1 : 0;
    std::atomic<bool> sound{true};
    parallelFor(before + bands, [&](int part) {
        // The part that finds the rows is the first to begin, wherever it runs: the others wait for it alone.
        const auto edge = [&](int b) { return int(std::int64_t{mStrips} * b / bands); };
        const bool done =
            part < before ? mIndex->findRows() : sound && decodeBand(edge(part - before), edge(part - before + 1), out);
        if (!done) sound = false;
    });
    return sound;
}

bool BandPlan::decodeBand(int firstStrip, int lastStrip, BitmapView out) const
{
    const int from = std::max(0, firstStrip - 1), to = std::min(lastStrip + 1, mStrips);
    // Of the strip behind only its first block row is needed.
    const int top = from * mStripHeight, bottom = std::min(lastStrip * mStripHeight + mUnitHeight, mHeightOfPicture);
    std::vector<std::uint8_t> head = mHead;
    write16(head.data() + mHeight, bottom - top);
    if (mIndex && !mIndex->awaitRows(to)) return false;
    const CodedRows rows = mIndex ? mIndex->coded(from, to) : CodedRows{};
    const auto strips = [&]() -> std::span<const std::uint8_t> {
        if (mIndex) return {rows.memory.get(), rows.count};
        const std::size_t begin = mStarts[std::size_t(from)], end = mStarts[std::size_t(to)] - 2;
        return mFile.subspan(begin, end - begin);
    };
    Input input(head, strips(), kEnd);
    Decompressor decompressor;
    if (!start(&decompressor.info, decompressor.errors, input, mScale, mColours)) return false;

    const auto scaled = [this](int y) { return y / mScale; };
    const int y0 = scaled(firstStrip * mStripHeight),
              y1 = lastStrip == mStrips ? out.height : scaled(lastStrip * mStripHeight);
    PlaneDecoder planes(decompressor.info, out.part({0, y0, out.width, y1}), y0 - scaled(top));
    return planes.decode() == y1 - y0 && decompressor.errors.num_warnings == 0;
}

} // namespace zp::jpeg
