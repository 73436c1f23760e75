// SPDX-License-Identifier: GPL-3.0-or-later
/// Thumbnails are shared with other programs' and never outlive the file they show.
#include "desktop/Thumbnails.h"
#include "desktop/Desktop.h"
#include <QColor>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QUrl>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

class Thumbnails : public testing::Test
{
protected:
    Thumbnails() { qputenv("XDG_CACHE_HOME", mFolder.filePath("cache").toUtf8()); }
    ~Thumbnails() override { qunsetenv("XDG_CACHE_HOME"); }
    QString picture(int width, int height, QColor color = Qt::red)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(color);
        const QString path = mFolder.filePath("a picture & more.png");
        EXPECT_TRUE(image.save(path));
        return path;
    }
    /// Where every program looks for it.
    QString cached(const QString& path, const char* size) const
    {
        const QByteArray address = QUrl::fromLocalFile(path).toEncoded();
        return mFolder.filePath(QString("cache/thumbnails/%1/%2.png")
                                    .arg(size)
                                    .arg(QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex()));
    }
    static QImage thumbnail(const QString& path, int side) { return thumbnailOf(path.toStdString(), side).image; }

    QTemporaryDir mFolder;
};

TEST_F(Thumbnails, OfEverySizeStandWhereOtherProgramsLook)
{
    const QString path = picture(2000, 1000);
    struct Case {
        int side;
        const char* folder;
        QSize size;
    };
    for (const Case& c : {Case{96, "normal", {128, 64}},
                          {192, "large", {256, 128}},
                          {300, "x-large", {512, 256}},
                          {1000, "xx-large", {1024, 512}}}) {
        EXPECT_EQ(thumbnail(path, c.side).size(), c.size);
        const QImage kept(cached(path, c.folder));
        EXPECT_EQ(kept.size(), c.size) << c.folder;
        EXPECT_EQ(kept.text("Thumb::URI"), QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded()));
        EXPECT_EQ(kept.text("Thumb::MTime").toLongLong(), QFileInfo(path).lastModified().toSecsSinceEpoch());
        EXPECT_EQ(QFile::permissions(cached(path, c.folder)) & (QFile::ReadOther | QFile::ReadGroup), 0);
    }
}

TEST(Addresses, AreSpelledAsOtherProgramsSpellThem)
{
    struct Case {
        const char *path, *address;
    };
    for (const Case& c : {Case{"/a b.png", "file:///a%20b.png"},
                          {"/!$&'()*+,:=@-._~", "file:///!$&'()*+,:=@-._~"},
                          {"/100%;?#[x]", "file:///100%25%3B%3F%23%5Bx%5D"},
                          {"/\xc3\xa4\xff", "file:///%C3%A4%FF"}}) {
        EXPECT_EQ(urlFromPath(c.path).toEncoded(), c.address);
        EXPECT_EQ(pathFromUrl(urlFromPath(c.path)), c.path);
    }
}

TEST_F(Thumbnails, OfAnotherProgramAreTakenAndThoseOfAnOlderFileAreNot)
{
    const QString path = picture(300, 300, Qt::red);
    QImage theirs(100, 100, QImage::Format_ARGB32);
    theirs.fill(Qt::green);
    theirs.setText("Thumb::URI", QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded()));
    theirs.setText("Thumb::MTime", QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch()));
    QDir().mkpath(QFileInfo(cached(path, "normal")).path());
    ASSERT_TRUE(theirs.save(cached(path, "normal")));
    EXPECT_EQ(thumbnail(path, 100).pixelColor(50, 50), QColor(Qt::green));
    theirs.setText("Thumb::MTime", "1");
    ASSERT_TRUE(theirs.save(cached(path, "normal")));
    EXPECT_EQ(thumbnail(path, 100).pixelColor(50, 50), QColor(Qt::red));
    EXPECT_EQ(thumbnail(path, 100).pixelColor(50, 50), QColor(Qt::red)) << "ours is kept in its place";
}

TEST_F(Thumbnails, AreNeverEnlargedAndDamagedOnesAreMadeAgain)
{
    const QString path = picture(40, 30);
    EXPECT_EQ(thumbnail(path, 128).size(), QSize(40, 30));
    QFile file(cached(path, "normal"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    EXPECT_EQ(thumbnail(path, 128).size(), QSize(40, 30));
}

TEST_F(Thumbnails, OfWhatIsNoPictureSayWhy)
{
    const QString text = mFolder.filePath("text.jpg");
    QFile file(text);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a picture at all");
    file.close();
    const Thumbnail made = thumbnailOf(text.toStdString(), 100);
    EXPECT_TRUE(made.image.isNull());
    EXPECT_FALSE(made.error.empty());
    EXPECT_FALSE(QFile::exists(cached(text, "normal")));
    EXPECT_FALSE(thumbnailOf(mFolder.filePath("none.jpg").toStdString(), 100).error.empty());
    EXPECT_TRUE(thumbnailOf(picture(500, 500).toStdString(), 100, 10).image.isNull()) << "larger than was asked for";
}

} // namespace
