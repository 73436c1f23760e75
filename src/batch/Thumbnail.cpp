// SPDX-License-Identifier: GPL-3.0-or-later
/// Read, fit, write.
#include "batch/Thumbnail.h"
#include "base/BitmapRep.h"
#include "base/Folders.h"
#include "batch/BatchRules.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "drawing/Resample.h"
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace zp
{

namespace
{

constexpr int kLargest = 4096; ///< more than any file manager asks for

} // namespace

std::string writeThumbnail(const std::string& source, const std::string& destination, int size)
{
    ImportedImage image = importImageFile(source, {.atLeastWidth = size, .atLeastHeight = size, .properties = false});
    if (!image.bitmap) return image.error;
    std::shared_ptr<BitmapRep> small = image.bitmap;
    const Size now{float(small->pixelsWide()), float(small->pixelsHigh())};
    if (now.width > float(size) || now.height > float(size)) {
        const Size fitted = wholePixels(fittedSize(now, float(size), float(size)));
        small = BitmapRep::createUninitialized(int(fitted.width), int(fitted.height));
        if (!small) return "There is not enough memory for the image.";
        resample(std::as_const(*image.bitmap).view(), image.reduction, small->view());
    }
    const auto bytes = encodePNG(std::as_const(*small).view(), {});
    if (bytes.empty()) return "There is not enough memory for the image.";
    std::string error;
    writeFileSafely(destination, bytes.data(), bytes.size(), &error);
    return error;
}

int runThumbnailCommandLine(int argc, char** argv)
{
    const int size = argc == 5 ? std::atoi(argv[2]) : 0;
    if (size < 1 || size > kLargest) {
        std::fprintf(stderr, "zelpane: --thumbnail needs a size from 1 to %d, an image and the file to write.\n",
                     kLargest);
        return 2;
    }
    const std::string why = writeThumbnail(argv[3], argv[4], size);
    if (!why.empty()) std::fprintf(stderr, "%s: %s\n", argv[3], why.c_str());
    return why.empty() ? 0 : 1;
}

} // namespace zp
