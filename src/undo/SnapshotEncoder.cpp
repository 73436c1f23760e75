// SPDX-License-Identifier: GPL-3.0-or-later
/// Compressing the strips of a picture that changed, each by itself, and joining them into one JPEG file.
#include "base/WorkPool.h"
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotSeal.h"
#include <algorithm>
#include <atomic>
#include <new>

namespace zp
{

namespace
{

/// Strips that one thread looks at in a go: few enough that the cores end together.
constexpr int kGroup = 8;

} // namespace

void SnapshotEncoder::forget()
{
    mStrips.clear();
    mCoder.reset();
}

void SnapshotEncoder::join()
{
    const std::span<const std::uint8_t> header = mCoder->head();
    std::size_t size = header.size() + jpeg::kSealSize;
    for (const Strip& strip : mStrips) size += strip.bytes.size() + 2;
    // Every byte is written below; a vector that only shrinks and grows within its capacity touches none twice.
    mFile.resize(size);
    std::uint8_t* to = mFile.data();
    const auto put = [&to](std::span<const std::uint8_t> bytes) { to = std::copy(bytes.begin(), bytes.end(), to); };

    // The seal stands behind the JFIF segment, which readers expect first.
    jpeg::SegmentWalk walk(header);
    const auto first = walk.next();
    const std::size_t head = first && first->marker == jpeg::kApp0 ? first->end : 2;
    put(header.first(head));
    std::uint8_t* const seal = to;
    to += jpeg::kSealSize;
    put(header.subspan(head));
    for (std::size_t i = 0; i < mStrips.size(); ++i) {
        put(mStrips[i].bytes);
        *to++ = jpeg::kMark;
        *to++ = i + 1 < mStrips.size() ? std::uint8_t(jpeg::kRestart0 + i % jpeg::kRestartCycle) : jpeg::kEndOfImage;
    }
    const std::uint8_t* const sealed = seal + jpeg::kSealSize;
    jpeg::writeSeal(seal, fingerprint(std::span(sealed, std::size_t(to - sealed))));
}

std::span<const std::uint8_t> SnapshotEncoder::encode(ConstBitmapView pixels)
try {
    mStripsEncoded = 0;
    if (pixels.isEmpty()) return {};
    if (!mCoder || pixels.width != mCoder->format().width || pixels.height != mCoder->format().height) {
        forget();
        mCoder.emplace();
        if (!mCoder->prepare(
                {.width = pixels.width, .height = pixels.height, .quality = kSnapshotQuality, .stripRows = 1})) {
            forget();
            return {};
        }
        mStrips.resize(std::size_t(mCoder->format().strips()));
    }

    const int strips = mCoder->format().strips();
    const int groups = (strips + kGroup - 1) / kGroup;
    std::atomic<int> encoded{0};
    parallelFor(groups, [&](int group) {
        for (int i = group * kGroup; i < std::min((group + 1) * kGroup, strips); ++i) {
            const ConstBitmapView rows = pixels.part(mCoder->format().rowsOf(i));
            Strip& strip = mStrips[std::size_t(i)];
            const Fingerprint now = fingerprint(rows);
            if (strip.pixels == now) continue;
            mCoder->encode(rows, strip.bytes);
            strip.pixels = now;
            ++encoded;
        }
    });
    mStripsEncoded = encoded;
    join();
    return mFile;
} catch (const std::bad_alloc&) {
    forget();
    return {};
}

} // namespace zp
