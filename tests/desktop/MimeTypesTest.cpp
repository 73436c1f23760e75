// SPDX-License-Identifier: GPL-3.0-or-later
/// What the menu entry says the program opens, it opens.
#include "codecs/ImageImporter.h"
#include <QDirIterator>
#include <QFile>
#include <QMimeDatabase>
#include <gtest/gtest.h>

namespace
{

QStringList promised()
{
    QFile entry(ZP_SOURCE "/packaging/com.orvanta.zelpane.desktop");
    EXPECT_TRUE(entry.open(QIODevice::ReadOnly));
    for (const QByteArray& line : entry.readAll().split('\n'))
        if (line.startsWith("MimeType=")) return QString(line.mid(9)).split(';', Qt::SkipEmptyParts);
    return {};
}

TEST(MimeTypes, TheMenuEntryNamesTypesByTheirOwnNames)
{
    const QMimeDatabase known;
    EXPECT_GE(promised().size(), 15);
    for (const QString& type : promised()) {
        // its list need not be the desktop's
        if (!known.mimeTypeForName(type).isValid()) continue;
        EXPECT_EQ(known.mimeTypeForName(type).name(), type) << qPrintable(type) << " is another's alias";
    }
    QStringList once = promised();
    once.removeDuplicates();
    EXPECT_EQ(once, promised());
}

/// A PNG file of 64 by 36 pixels as an icon (kind 1) or a pointer (kind 2).
QByteArray icon(char kind)
{
    QFile file(ZP_TESTDATA "/images/made/valid/base.png");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray png = file.readAll();
    const char head[] = {0, 0, kind, 0, 1, 0, 64, 36, 0, 0, 1, 0, 32, 0};
    QByteArray out(head, sizeof head);
    for (const quint32 number : {quint32(png.size()), 22u})
        for (int shift = 0; shift < 32; shift += 8) out.append(char(number >> shift));
    return out + png;
}

TEST(MimeTypes, APictureOfEachOpens)
{
    const QMimeDatabase known;
    QMap<QString, QStringList> pictures;
    QDirIterator files(ZP_TESTDATA "/images", QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.contains("broken") || path.contains("truncated") || path.contains("fuzz")) continue;
        pictures[known.mimeTypeForFile(path, QMimeDatabase::MatchExtension).name()].append(path);
    }
    for (const QString& type : promised()) {
        if (type == "image/vnd.microsoft.icon" || type == "image/x-win-bitmap") {
            const QByteArray bytes = icon(type == "image/x-win-bitmap" ? 2 : 1);
            const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
            EXPECT_TRUE(zp::importImage({data, std::size_t(bytes.size())}).bitmap) << qPrintable(type);
            continue;
        }
        // There are no test pictures of the first two; the third is any of the three below it.
        if (QStringList{"image/jp2", "image/x-jp2-codestream", "image/x-portable-anymap"}.contains(type)) continue;
        ASSERT_FALSE(pictures[type].isEmpty()) << "there is no test picture of " << qPrintable(type);
        bool opened = false;
        for (const QString& path : pictures[type])
            if ((opened = bool(zp::importImageFile(path.toStdString()).bitmap))) break;
        EXPECT_TRUE(opened) << qPrintable(type);
    }
}

} // namespace
