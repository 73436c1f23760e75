// SPDX-License-Identifier: GPL-3.0-or-later
/// Compressing the strips of a picture that changed, each by itself, and joining them into one JPEG file.
#include "base/WorkPool.h"
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotSeal.h"
#include <algorithm>
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

std::span<const std::uint8_t> SnapshotEncoder::finish()
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
    return mFile;
}

bool SnapshotEncoder::start(int width, int height)
{
    mStripsEncoded = 0;
    if (mCoder && width == mCoder->format().width && height == mCoder->format().height) return true;
    forget();
    mCoder.emplace();
    if (!mCoder->prepare({.width = width, .height = height, .quality = kSnapshotQuality, .stripRows = 1})) {
        forget();
        throw std::bad_alloc();
    }
    mStrips.resize(std::size_t(mCoder->format().strips()));
    return false;
}

void SnapshotEncoder::encodeRows(ConstBitmapView rows, int first)
{
    for (int y = 0; y < rows.height; y += kStripRows) {
        const ConstBitmapView part = rows.part({0, y, rows.width, std::min(y + kStripRows, rows.height)});
        Strip& strip = mStrips[std::size_t((first + y) / kStripRows)];
        const Fingerprint now = fingerprint(part);
        if (strip.pixels == now) continue;
        strip.pixels.reset(); // in case the encoding ends half-way
        mCoder->encode(part, strip.bytes);
        strip.pixels = now;
        ++mStripsEncoded;
    }
}

std::span<const std::uint8_t> SnapshotEncoder::encode(ConstBitmapView pixels)
try {
    mStripsEncoded = 0;
    if (pixels.isEmpty()) return {};
    start(pixels.width, pixels.height);
    constexpr int kRows = kGroup * kStripRows;
    parallelFor((pixels.height + kRows - 1) / kRows, [&](int group) {
        const int first = group * kRows;
        encodeRows(pixels.part({0, first, pixels.width, std::min(first + kRows, pixels.height)}), first);
    });
    return finish();
} catch (const std::bad_alloc&) {
    forget();
    return {};
}

} // namespace zp
