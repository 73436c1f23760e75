// SPDX-License-Identifier: GPL-3.0-or-later
/// Read, play, fit, stamp, write.
#include "batch/BatchPicture.h"
#include "base/Folders.h"
#include "batch/BatchRules.h"
#include "batch/BatchScript.h"
#include "batch/WatermarkDrawing.h"
#include "codecs/FileNames.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "codecs/PrivateData.h"
#include "drawing/Resample.h"
#include <utility>

namespace zp
{
namespace
{

constexpr const char* kNoMemory = "There is not enough memory for the resized image, or it would be too large.";
constexpr const char* kDamaged = "The file is damaged or ends too early: only a part of it can be read.";

/// A reduced decode drops frequencies where the full path averages pixels. How much larger than the result it must be
/// for the averaging that follows to hide that: with these the result is at least 40 dB from that of the full path (the
/// tests try it on photographs), and at an eighth and a quarter mostly 45.
struct Margin {
    int divisor;
    double times;
};
constexpr Margin kMargins[] = {{8, 1.9}, {4, 1.9}, {2, 1.5}};
/// Small pictures hold much detail in each pixel, which shows, and are read whole in a few milliseconds.
constexpr std::int64_t kFewestPixels = 1'000'000;

/// The least size at which a file may be decoded for a result of width by height; 0: whole.
PixelDimensions leastSize(const PixelDimensions& file, int width, int height)
{
    if (std::int64_t(file.width) * file.height < kFewestPixels) return {};
    for (const Margin& margin : kMargins) {
        const PixelDimensions reduced{file.width / margin.divisor, file.height / margin.divisor};
        if (reduced.width >= width * margin.times && reduced.height >= height * margin.times) return reduced;
    }
    return {};
}

std::string writeResult(const std::vector<std::uint8_t>& bytes, const std::string& path)
{
    if (bytes.empty()) return "There is not enough memory to encode the image.";
    std::string error;
    if (writeFileSafely(path, bytes.data(), bytes.size(), &error)) return {};
    return error.empty() ? "The result could not be written." : error;
}

} // namespace

std::string batchSource(const BatchSettings& settings, const std::string& name)
{
    const std::string path = settings.source + "/" + name;
    return resolveAlias(path).value_or(path);
}

BatchPicture::BatchPicture(const BatchSettings& settings, std::string name, int preview)
    : mSettings(settings), mName(std::move(name)), mFile(batchSource(settings, mName)), mPreviewSide(preview)
{
}

std::string BatchPicture::tiffPath() const { return batchOutput(mSettings.destination, mName, "tiff"); }
std::string BatchPicture::jpegPath() const { return batchOutput(mSettings.destination, mName, "jpg"); }

void BatchPicture::fitsTo(int width, int height)
{
    mResult = {float(width), float(height)};
    if (mSettings.fits())
        mResult = wholePixels(fittedSize(mResult, float(mSettings.fitWidth), float(mSettings.fitHeight)));
    Size made = mResult;
    const auto side = float(mPreviewSide);
    if (mPreviewSide > 0 && (made.width > side || made.height > side)) made = wholePixels(fittedSize(made, side, side));
    mWidth = int(made.width);
    mHeight = int(made.height);
}

std::string BatchPicture::read()
{
    ImportOptions options;
    if (isResized() && mSettings.reducedDecoding && !mSettings.script) {
        // The result's size follows from the file's own, so that a reduced decode changes no size by a rounding.
        const PixelDimensions size = imageFileDimensions(mFile);
        if (size.width > 0) {
            fitsTo(size.width, size.height);
            const PixelDimensions least = leastSize(size, mWidth, mHeight);
            options.atLeastWidth = least.width;
            options.atLeastHeight = least.height;
        }
    }
    ImportedImage imported = importImageFile(mFile, options);
    if (!imported.bitmap) return imported.error;
    if (imported.damaged) {
        if (!mSettings.keepDamaged) return kDamaged;
        mDamage = kDamaged;
    }
    mReduction = imported.reduction;
    mPixels = std::move(imported.bitmap);
    mPixels->properties.userComment = kEditedComment;
    if (mSettings.stripPrivate) removePrivateData(mPixels->properties);
    return {};
}

std::string BatchPicture::play() { return mSettings.script ? mSettings.script->play(mFile, mPixels) : std::string(); }

std::string BatchPicture::fit()
{
    if (mWidth == 0) fitsTo(mPixels->pixelsWide(), mPixels->pixelsHigh());
    if (mWidth == mPixels->pixelsWide() && mHeight == mPixels->pixelsHigh()) return {};
    auto fitted = BitmapRep::createUninitialized(mWidth, mHeight);
    if (!fitted) return kNoMemory;
    resample(std::as_const(*mPixels).view(), mReduction, fitted->view());
    fitted->properties = mPixels->properties;
    mPixels = std::move(fitted);
    return {};
}

void BatchPicture::stamp()
{
    const Size result = mResult.width > 0 ? mResult : Size{float(mPixels->pixelsWide()), float(mPixels->pixelsHigh())};
    stampWatermark(mSettings, result, mPixels->view());
}

std::string BatchPicture::writeTIFF() const
{
    return writeResult(encodeTIFF(mPixels->view(), mPixels->properties), tiffPath());
}

std::string BatchPicture::writeJPEG() const
{
    return writeResult(encodeJPEG(mPixels->view(), mPixels->properties, {.fallbackBackground = kWhite}), jpegPath());
}

void stampWatermark(const BatchSettings& settings, Size result, BitmapView image)
{
    if (!settings.watermark) return;
    const Size size = sizeInPoints(*settings.watermark);
    const ConstBitmapView mark = settings.watermark->view();
    const float alpha = settings.watermarkAlpha;
    if (!settings.watermarkLayout.isAsGiven())
        return drawWatermarks(image, mark,
                              planWatermark(settings.watermarkLayout, size, result, settings.watermarkPlace,
                                            settings.watermarkPoint, settings.watermarkMargin),
                              result, alpha);
    const Point point = settings.watermarkPlace == WatermarkPlace::Custom
                            ? settings.watermarkPoint
                            : watermarkPosition(settings.watermarkPlace, result, size, settings.watermarkMargin);
    const float across = float(image.width) / result.width, down = float(image.height) / result.height;
    drawWatermark(image, mark, {size.width * across, size.height * down}, {point.x * across, point.y * down}, alpha);
}

} // namespace zp
