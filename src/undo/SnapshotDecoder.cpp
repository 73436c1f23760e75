// SPDX-License-Identifier: GPL-3.0-or-later
/// Reading a snapshot's colours straight into a picture; and any other JPEG beside it first.
#include "base/BitmapRep.h"
#include "codecs/Codec.h"
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotSeal.h"
#include <cstring>
#include <new>

namespace zp
{

namespace
{

/// What the file's head says.
struct Layout {
    int width = 0, height = 0;
    std::optional<jpeg::Segment> seal;
};

std::optional<Layout> readLayout(std::span<const std::uint8_t> file)
{
    Layout layout;
    bool scan = false;
    jpeg::SegmentWalk walk(file);
    while (const auto segment = walk.next()) {
        const std::uint8_t* const head = file.data() + segment->begin;
        if (!layout.seal && jpeg::isSeal(file, *segment)) layout.seal = segment;
        if (jpeg::isFrame(segment->marker) && segment->end - segment->begin >= jpeg::kFrameHeightOffset + 4) {
            layout.height = jpeg::read16(head + jpeg::kFrameHeightOffset);
            layout.width = jpeg::read16(head + jpeg::kFrameHeightOffset + 2);
        }
        scan = segment->marker == jpeg::kStartOfScan;
    }
    if (!scan || !isSensibleImageSize(layout.width, layout.height)) return std::nullopt;
    return layout;
}

bool sealHolds(std::span<const std::uint8_t> file, const jpeg::Segment& seal)
{
    return fingerprint(file.subspan(seal.end)) == jpeg::sealedFingerprint(file, seal);
}

} // namespace

std::optional<SnapshotJPEGSize> inspectSnapshotJPEG(std::span<const std::uint8_t> file)
{
    const auto layout = readLayout(file);
    if (!layout || (layout->seal && !sealHolds(file, *layout->seal))) return std::nullopt;
    return SnapshotJPEGSize{layout->width, layout->height};
}

bool decodeSnapshotJPEG(std::span<const std::uint8_t> file, BitmapView pixels)
try {
    const auto layout = readLayout(file);
    if (!layout || pixels.isEmpty() || pixels.width != layout->width || pixels.height != layout->height) return false;
    if (layout->seal) return sealHolds(file, *layout->seal) && codec::decodeJPEGInto(file, pixels);

    const auto beside = BitmapRep::createUninitialized(pixels.width, pixels.height);
    if (!beside || !codec::decodeJPEGInto(file, beside->view())) return false;
    for (int y = 0; y < pixels.height; ++y)
        std::memcpy(pixels.rowData(y), beside->view().rowData(y), std::size_t(pixels.width) * 4);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

} // namespace zp
