// SPDX-License-Identifier: GPL-3.0-or-later
/// EXIF, XMP and ICC blocks, each as it is kept and as it is written again.
#include "Fuzz.h"
#include "codecs/MetadataBlocks.h"

ZP_FUZZ(MetadataBlock, "", bytes)
{
    using namespace zp;
    using namespace zp::codec;
    if (const auto block = parseExif(bytes)) {
        const auto written = serialiseExif(*block);
        if (!written.empty()) {
            const auto again = parseExif(written);
            fuzz::require(again.has_value(), "an EXIF block that was written can be read");
            fuzz::require(serialiseExif(*again) == written, "and is written again as it is");
        }
    }
    const int orientation = exifOrientation(bytes);
    fuzz::require(orientation >= 1 && orientation <= 8, "an orientation from 1 to 8");
    ImageProperties properties;
    keepExif(properties, bytes);
    keepXMP(properties, std::string(bytes.begin(), bytes.end()));
    keepProfile(properties, {bytes.begin(), bytes.end()}, "RGB ");
    exifForSaving(properties, 7, 5);
    xmpForSaving(properties);
    exifDescription(properties);
    for (const bool bigEndian : {false, true}) {
        const std::string comment = decodeUserComment(bytes, bigEndian);
        fuzz::require(decodeUserComment(encodeUserComment(comment, bigEndian), bigEndian) == comment,
                      "a comment that was read is written and read as it is");
    }
}
