// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture that is being edited: its pixels, its file, and how often it became another one.
#pragma once
#include "base/BitmapRep.h"
#include "base/Folders.h"
#include "base/GWorld.h"
#include "base/Image.h"
#include "codecs/PictureFacts.h"
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace zp
{

/// What comes with a bitmap that becomes the picture; one for each way in which that happens.
struct Replacement {
    ImageCacheMode cacheMode = ImageCacheMode::Default;
    bool makeGWorld = true;
    bool storeBitmapPointer = true;
    bool imageHasSize = true;
    bool begins = false; ///< a document of its own: it is looked at anew
};
inline constexpr Replacement kBlankPicture{ImageCacheMode::Default, true, false, true, true};
inline constexpr Replacement kInternalPicture{ImageCacheMode::Never, true, false, true};
/// An opened picture has no GWorld until it is rebuilt, and its image takes its size from the bitmap.
inline constexpr Replacement kOpenedPicture{ImageCacheMode::Never, false, true, false, true};
inline constexpr Replacement kRebuiltPicture{};

/// The quality of JPEG files, unless another is chosen.
inline constexpr int kJPEGQuality = 70;

/// What is known of the files that the picture was read from or written to, so that saving overwrites nothing that the
/// person does not know of.
struct PictureFiles {
    std::map<std::string, FileStamp> stamps;      ///< by path: their state when their content was the picture's
    std::string opened;                           ///< the one it was read from
    PictureFacts facts;                           ///< what that one holds beside the picture
    bool lossAccepted = false;                    ///< it may be written over all the same
    std::pair<std::string, int> jpegQuality = {}; ///< the path of a JPEG file whose quality was chosen, and that
};

/// One bitmap seen in three ways: as a representation, as an image to draw, as a graphics world over the same bytes.
/// Main thread, but for pixelLock() and what it guards.
class Picture
{
public:
    Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    bool isLoaded() const; ///< width and height, truncated, are both non-zero
    Size size() const { return mImage->size(); }
    Rect bounds() const { return {{0, 0}, size()}; }
    int width() const { return mBitmapRep ? mBitmapRep->pixelsWide() : 0; }
    int height() const { return mBitmapRep ? mBitmapRep->pixelsHigh() : 0; }
    PixelBox box() const { return {0, 0, width(), height()}; }
    /// Null without a picture.
    std::shared_ptr<const BitmapRep> bitmap() const { return mBitmapRep; }
    ConstBitmapView pixels() const { return mBitmapRep ? std::as_const(*mBitmapRep).view() : ConstBitmapView{}; }
    /// The bytes A, R, G, B of a pixel inside the picture, also while a stroke is being painted.
    std::array<std::uint8_t, 4> pixel(int x, int y) const
    {
        const std::lock_guard lock(mPixelLock);
        const std::uint8_t* const bytes = pixels().pixel(x, y);
        return {bytes[0], bytes[1], bytes[2], bytes[3]};
    }
    const Image& image() const { return *mImage; }
    const std::uint8_t* bitmapPointer() const { return mBitmap; } ///< as the last rebuild stored it
    const std::optional<GWorld>& gworld() const { return mGWorld; }
    /// The file on disk, empty for a picture that was never saved.
    const std::string& path() const { return mImagePath; }
    const PictureFiles& files() const { return mFiles; }
    /// The quality for writing to @p path: as chosen when it was saved last, else 70.
    int jpegQualityFor(const std::string& path) const
    {
        return mFiles.jpegQuality.first == path && !path.empty() ? mFiles.jpegQuality.second : kJPEGQuality;
    }
    /// Rises when another bitmap takes the picture's place, when its pixels change places, and when a step of the
    /// history comes back: what was computed from an older generation is nobody's result any more.
    std::uint64_t generation() const { return mPictureGeneration; }
    /// Rises whenever somebody has been given the pixels to write, and when others take their place: what was computed
    /// under another number may be of other pixels. A stroke that is still painted writes on under the number of its
    /// press.
    std::uint64_t writes() const { return mWrites; }
    /// Held while pixels are written off the main thread (a stamp, a segment), and by the main thread while it draws
    /// from them meanwhile. Never held across a wait.
    std::mutex& pixelLock() const { return mPixelLock; }

    // ---- transitions; only an edit has them ------------------------------------------------------------------------

    /// Another bitmap, or none, becomes the picture. Nobody may be at work on the old one.
    void replace(std::shared_ptr<BitmapRep> rep, const Replacement& how);
    /// The bytes, to be written by whoever holds an edit; empty without a picture.
    BitmapView writablePixels()
    {
        ++mWrites;
        return mBitmapRep ? mBitmapRep->view() : BitmapView{};
    }
    std::shared_ptr<BitmapRep> writableBitmap()
    {
        ++mWrites;
        return mBitmapRep;
    }
    /// A step of the history is in the pixels.
    void restored() { ++mPictureGeneration, ++mWrites; }
    void setPath(std::string path) { mImagePath = std::move(path); }
    void setFiles(PictureFiles files) { mFiles = std::move(files); }
    /// The file of that path holds the picture now.
    void noteWritten(const std::string& path);
    void acceptLoss() { mFiles.lossAccepted = true; }
    void setJPEGQuality(const std::string& path, int quality) { mFiles.jpegQuality = {path, quality}; }
    /// A path whose file is gone is emptied. @return whether there is no file
    bool forgetMissingFile();

private:
    std::string mImagePath;
    PictureFiles mFiles;
    std::shared_ptr<Image> mImage; ///< never null
    std::shared_ptr<BitmapRep> mBitmapRep;
    std::uint8_t* mBitmap = nullptr;
    std::optional<GWorld> mGWorld;
    std::uint64_t mPictureGeneration = 0, mWrites = 0;
    mutable std::mutex mPixelLock;
};

} // namespace zp
