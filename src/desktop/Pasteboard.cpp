// SPDX-License-Identifier: GPL-3.0-or-later
/// The clipboard as a giver and taker of TIFF, with PNG for the programs that know no TIFF.
#include "desktop/Pasteboard.h"
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "desktop/Desktop.h"
#include "desktop/WaitWindow.h"
#include "desktop/X11Clipboard.h"
#include <QBuffer>
#include <QClipboard>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>
#include <array>
#include <chrono>

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
/// The toolkit waits five seconds for each kind that the clipboard's owner does not give, and so do we for one; an
/// owner that was silent for that long is not asked for the ten others.
constexpr int kNoAnswerMilliseconds = 2000;
constexpr std::chrono::milliseconds kPatience{5000};
/// Menus ask which kinds there are: nobody waits long for that, nor again and again.
constexpr std::chrono::milliseconds kPatienceForKinds{1000};
constexpr qint64 kAskAgainMilliseconds = 10'000;
/// An image of 268 million pixels as it is in memory.
constexpr std::size_t kMostBytes = std::size_t{1} << 30;
constexpr int kMegabytesOfMost = int(kMostBytes >> 20);
constexpr const char* kUriList = "text/uri-list";
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

/// A picture on its way to another program. Most drags end where nobody wants it, so nothing is made before it is asked
/// for.
class DraggedPicture : public QMimeData
{
public:
    explicit DraggedPicture(std::shared_ptr<const BitmapRep> picture) : mPicture(std::move(picture)) {}
    QStringList formats() const override { return {kPNG, kUriList}; }
    bool hasFormat(const QString& type) const override { return type == kPNG || type == kUriList; }

protected:
    QVariant retrieveData(const QString& type, QMetaType) const override
    {
        if (type != kPNG && type != kUriList) return {};
        if (mPNG.isEmpty()) {
            const auto png = encodePNG(mPicture->view(), mPicture->properties);
            mPNG = QByteArray(reinterpret_cast<const char*>(png.data()), qsizetype(png.size()));
        }
        if (type == kPNG) return mPNG;
        // The file stays as long as the program: who took the address may read it later.
        static QTemporaryDir folder;
        const std::string path =
            pathByAppending(pathFromText(folder.path()),
                            QCoreApplication::translate("Clipboard", "Selection %1.png").arg(++mCount).toStdString());
        if (mFile.empty() && writeFileSafely(path, mPNG.constData(), std::size_t(mPNG.size()))) mFile = path;
        return mFile.empty() ? QByteArray() : urlFromPath(mFile).toEncoded() + "\r\n";
    }

private:
    std::shared_ptr<const BitmapRep> mPicture;
    mutable QByteArray mPNG;
    mutable std::string mFile;
    static inline int mCount = 0;
};

/// What another program offers by an X server, taken within bounds.
class OfferedByAnother : public QMimeData
{
public:
    OfferedByAnother()
    {
        mAge.start();
        for (const QByteArray& kind : kindsOnX11Clipboard(kPatienceForKinds)) mKinds << QString::fromLatin1(kind);
    }
    QStringList formats() const override { return mKinds; }
    bool hasFormat(const QString& type) const override { return mKinds.contains(type); }
    bool isTooLarge() const { return mIsTooLarge; }
    /// One that gave no kinds may do so later without a sign.
    bool isOld() const { return mKinds.isEmpty() && mAge.hasExpired(kAskAgainMilliseconds); }

protected:
    QVariant retrieveData(const QString& type, QMetaType) const override
    {
        mIsTooLarge = false;
        if (!hasFormat(type)) return {};
        const auto wait = readingWait();
        ClipboardAnswer answer =
            askX11Clipboard({.kind = type.toLatin1(), .most = kMostBytes, .patience = kPatience, .goOn = [&wait] {
                                 return wait->goOn();
                             }});
        mIsTooLarge = answer.end == ClipboardAnswer::End::TooLarge;
        return std::move(answer.bytes);
    }

private:
    QStringList mKinds;
    QElapsedTimer mAge;
    mutable bool mIsTooLarge = false;
};

/// Kept until the clipboard changes hands or content, and by whoever reads from it just then; null where another
/// program's offer comes through the toolkit.
std::shared_ptr<const OfferedByAnother> offeredByAnother()
{
    static std::shared_ptr<const OfferedByAnother> offer;
    const QClipboard* const board = QGuiApplication::clipboard();
    if (board->ownsClipboard() || QGuiApplication::platformName() != "xcb") return nullptr;
    static const auto change = QObject::connect(board, &QClipboard::dataChanged, qApp, [] { offer.reset(); });
    if (!offer || offer->isOld()) offer = std::make_shared<OfferedByAnother>();
    return offer;
}

std::shared_ptr<const QMimeData> clipboardData()
{
    if (auto offer = offeredByAnother()) return offer;
    return {std::shared_ptr<void>(), QGuiApplication::clipboard()->mimeData()}; // the toolkit's own
}

std::string tooLarge()
{
    return QCoreApplication::translate("Clipboard", "The clipboard's image is larger than %1 MB.")
        .arg(kMegabytesOfMost)
        .toStdString();
}

} // namespace

std::unique_ptr<QMimeData> dataForDrag(std::shared_ptr<const BitmapRep> picture)
{
    return std::make_unique<DraggedPicture>(std::move(picture));
}

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

std::vector<std::uint8_t> Pasteboard::imageData(std::string* why) const
{
    const auto data = clipboardData();
    if (!data) return {};
    for (const char* type : kAccepted) {
        if (!data->hasFormat(type)) continue;
        QElapsedTimer clock;
        clock.start();
        const QByteArray bytes = data->data(type);
        const auto* const offer = dynamic_cast<const OfferedByAnother*>(data.get());
        if (std::size_t(bytes.size()) > kMostBytes || (offer && offer->isTooLarge())) {
            if (why) *why = tooLarge();
            return {};
        }
        if (!bytes.isEmpty()) return {bytes.begin(), bytes.end()};
        if (clock.elapsed() > kNoAnswerMilliseconds) return {};
    }
    // Files that a file manager copied: the first that is a picture.
    if (const std::optional<std::string> file = copiedPictureFile(data.get()))
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
    const auto data = clipboardData();
    if (!data) return false;
    for (const char* type : kAccepted)
        if (data->hasFormat(type)) return true;
    return copiedPictureFile(data.get()) || data->hasFormat(kQtImage);
}

QStringList Pasteboard::types() const
{
    const auto data = clipboardData();
    return data ? data->formats() : QStringList();
}

void Pasteboard::clear() { QGuiApplication::clipboard()->clear(); }

} // namespace zp
