// SPDX-License-Identifier: GPL-3.0-or-later
/// The clipboard as a giver and taker of TIFF, with PNG for the programs that know no TIFF.
#include "desktop/Pasteboard.h"
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "desktop/Desktop.h"
#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <array>

namespace zp
{

namespace
{

constexpr const char* kTIFF = "image/tiff";
constexpr const char* kPNG = "image/png";
// What other programs offer, the lossless kinds first.
constexpr std::array kAccepted{kTIFF,
                               "image/x-tiff",
                               kPNG,
                               "image/x-png",
                               "image/bmp",
                               "image/x-bmp",
                               "image/x-MS-bmp",
                               "image/x-win-bitmap",
                               "image/webp",
                               "image/jpeg",
                               "image/jpg"};
constexpr const char* kQtImage = "application/x-qt-image";

/// One copied picture. Most copies are pasted here again, so PNG is made only when somebody asks for it.
class CopiedPicture : public QMimeData
{
public:
    explicit CopiedPicture(QByteArray tiff) : mTIFF(std::move(tiff)) {}
    QStringList formats() const override { return {kTIFF, kPNG}; }
    bool hasFormat(const QString& type) const override { return type == kTIFF || type == kPNG; }

protected:
    QVariant retrieveData(const QString& type, QMetaType) const override
    {
        if (type == kTIFF) return mTIFF;
        if (type != kPNG) return {};
        if (mPNG.isEmpty()) {
            const std::span bytes(reinterpret_cast<const std::uint8_t*>(mTIFF.constData()), std::size_t(mTIFF.size()));
            const ImportedImage picture = importImage(bytes);
            if (!picture.bitmap) return {};
            const auto png = encodePNG(picture.bitmap->view(), picture.bitmap->properties);
            mPNG = QByteArray(reinterpret_cast<const char*>(png.data()), qsizetype(png.size()));
        }
        return mPNG;
    }

private:
    QByteArray mTIFF;
    mutable QByteArray mPNG;
};

/// The first file on the clipboard that its header says to be a picture. Reads a few kilobytes of each.
std::optional<std::string> copiedPictureFile(const QMimeData* data)
{
    if (!data->hasUrls()) return std::nullopt;
    for (const std::string& path : pathsFromMimeData(data)) {
        const PixelDimensions size = imageFileDimensions(path);
        if (size.width > 0 && size.height > 0) return path;
    }
    return std::nullopt;
}

const QMimeData* clipboardData() { return QGuiApplication::clipboard()->mimeData(); }

} // namespace

Pasteboard& Pasteboard::general()
{
    static Pasteboard one;
    return one;
}

void Pasteboard::setTIFF(std::vector<std::uint8_t> tiff)
{
    QByteArray bytes(reinterpret_cast<const char*>(tiff.data()), qsizetype(tiff.size()));
    QGuiApplication::clipboard()->setMimeData(new CopiedPicture(std::move(bytes)));
}

std::vector<std::uint8_t> Pasteboard::imageData() const
{
    const QMimeData* data = clipboardData();
    if (!data) return {};
    for (const char* type : kAccepted) {
        if (!data->hasFormat(type)) continue;
        const QByteArray bytes = data->data(type);
        if (!bytes.isEmpty()) return {bytes.begin(), bytes.end()};
    }
    // Files that a file manager copied: the first that is a picture.
    if (const std::optional<std::string> file = copiedPictureFile(data))
        if (const std::optional<std::string> bytes = readWholeFile(*file)) return {bytes->begin(), bytes->end()};
    // A picture handed over inside the toolkit has no bytes yet.
    if (data->hasImage()) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        if (data->imageData().value<QImage>().save(&buffer, "PNG")) return {bytes.begin(), bytes.end()};
    }
    return {};
}

bool Pasteboard::hasImageData() const
{
    const QMimeData* data = clipboardData();
    if (!data) return false;
    for (const char* type : kAccepted)
        if (data->hasFormat(type)) return true;
    return copiedPictureFile(data) || data->hasFormat(kQtImage);
}

QStringList Pasteboard::types() const
{
    const QMimeData* data = clipboardData();
    return data ? data->formats() : QStringList();
}

void Pasteboard::clear() { QGuiApplication::clipboard()->clear(); }

} // namespace zp
