// SPDX-License-Identifier: GPL-3.0-or-later
/// Thumbnails in the shared cache: one PNG file for each size, named by the digest of the file's address, which holds
/// address and time of the file.
#include "desktop/Thumbnails.h"
#include "base/BitmapRep.h"
#include "base/Folders.h"
#include "base/Translation.h"
#include "codecs/ImageImporter.h"
#include "desktop/Desktop.h"
#include <QBuffer>
#include <QCryptographicHash>
#include <QFile>
#include <QImageReader>
#include <QSaveFile>
#include <QUrl>
#include <algorithm>
#include <array>
#include <optional>
#include <sys/stat.h>

namespace zp
{

namespace
{

struct Store {
    const char* folder;
    int side;
};
/// As the desktops have agreed on them.
constexpr std::array<Store, 4> kStores{{{"normal", 128}, {"large", 256}, {"x-large", 512}, {"xx-large", 1024}}};
const QString kAddressKey = "Thumb::URI", kTimeKey = "Thumb::MTime";

std::string cacheFolder()
{
    const QByteArray set = qgetenv("XDG_CACHE_HOME");
    const std::string root = set.startsWith('/') ? set.toStdString() : pathByAppending(homeFolder(), ".cache");
    return pathByAppending(root, "thumbnails");
}

/// What identifies a file as it is now.
struct Subject {
    QByteArray address;
    QString time;   ///< seconds
    QString digest; ///< of the address
    std::uintmax_t bytes = 0;
};

std::optional<Subject> subjectOf(const std::string& path)
{
    struct stat facts {
    };
    if (stat(path.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) return std::nullopt;
    Subject subject;
    subject.address = urlFromPath(path).toEncoded();
    subject.bytes = std::uintmax_t(facts.st_size);
    subject.time = QString::number(qint64(facts.st_mtime));
    subject.digest = QCryptographicHash::hash(subject.address, QCryptographicHash::Md5).toHex();
    return subject;
}

QString cachePath(const Store& store, const Subject& subject)
{
    return textFromPath(pathByAppending(pathByAppending(cacheFolder(), store.folder), subject.digest.toStdString())) +
           ".png";
}

QImage fromCache(const Store& store, const Subject& subject)
{
    QImageReader reader(cachePath(store, subject), "png");
    const QSize stated = reader.size();
    if (!stated.isValid() || std::max(stated.width(), stated.height()) > store.side) return {};
    const QImage image = reader.read();
    if (image.text(kTimeKey) != subject.time || image.text(kAddressKey) != QString::fromLatin1(subject.address))
        return {};
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void intoCache(QImage image, const Store& store, const Subject& subject)
{
    const std::string folder = pathByAppending(cacheFolder(), store.folder);
    constexpr unsigned kMineAlone = 0700;
    if (!createFolder(folder, kMineAlone)) return;
    image.setText(kAddressKey, QString::fromLatin1(subject.address));
    image.setText(kTimeKey, subject.time);
    QBuffer bytes;
    if (!bytes.open(QIODevice::WriteOnly) || !image.save(&bytes, "png")) return;
    QSaveFile file(cachePath(store, subject)); // whole or not at all: others read it
    if (!file.open(QIODevice::WriteOnly)) return;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write(bytes.data());
    file.commit();
}

/// By a whole factor, averaging, straight from the picture's rows: what is left is less than twice too large.
QImage reduced(const BitmapRep& bitmap, int side)
{
    const int w = bitmap.pixelsWide(), h = bitmap.pixelsHigh();
    const int factor = std::max(1, std::max(w, h) / side);
    const int rw = w / factor, rh = h / factor;
    QImage half(std::max(rw, 1), std::max(rh, 1), QImage::Format_ARGB32_Premultiplied);
    if (half.isNull()) return {};
    for (int y = 0; y < rh; ++y) {
        auto* out = reinterpret_cast<QRgb*>(half.scanLine(y));
        for (int x = 0; x < rw; ++x) {
            unsigned sum[4] = {};
            for (int dy = 0; dy < factor; ++dy) {
                const std::uint8_t* p = bitmap.bitmapData() + (std::ptrdiff_t(y) * factor + dy) * bitmap.bytesPerRow() +
                                        std::ptrdiff_t{4} * x * factor;
                for (int i = 0; i < 4 * factor; ++i) sum[i & 3] += p[i];
            }
            const unsigned n = unsigned(factor * factor);
            out[x] = sum[0] / n << 24 | sum[1] / n << 16 | sum[2] / n << 8 | sum[3] / n;
        }
    }
    return half;
}

/// @param fitted  exactly @p side on the longer side of a picture that is larger; else up to twice that
Thumbnail decoded(const std::string& path, int side, bool fitted)
{
    ImportedImage read = importImageFile(path, {.atLeastWidth = side, .atLeastHeight = side, .properties = false});
    if (!read.bitmap) return {{}, std::move(read.error)};
    Thumbnail made{reduced(*read.bitmap, side), {}};
    const QSize whole(read.bitmap->pixelsWide(), read.bitmap->pixelsHigh());
    if (fitted && std::max(whole.width(), whole.height()) > side)
        made.image = made.image.scaled(whole.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}),
                                       Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (made.image.isNull()) made.error = translated("Codecs", "There is not enough memory for this image.");
    return made;
}

} // namespace

Thumbnail thumbnailOf(const std::string& path, int side, std::uintmax_t largestFile)
{
    const std::optional<Subject> subject = subjectOf(path);
    const auto store = std::ranges::find_if(kStores, [side](const Store& each) { return each.side >= side; });
    const bool cached = subject && store != kStores.end() && !path.starts_with(cacheFolder());
    if (cached) {
        QImage kept = fromCache(*store, *subject);
        if (!kept.isNull()) return {std::move(kept), {}};
    }
    if (subject && subject->bytes > largestFile)
        return {{}, translated("Desktop", "The file is too large for a small image of it.")};
    if (!cached) return decoded(path, side, false);
    Thumbnail made = decoded(path, store->side, true);
    if (!made.image.isNull()) intoCache(made.image, *store, *subject);
    return made;
}

} // namespace zp
