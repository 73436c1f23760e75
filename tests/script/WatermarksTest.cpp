// SPDX-License-Identifier: GPL-3.0-or-later
/// Watermarks by each picture's size, through the window of the real program as a script sees it.
#include "support/Session.h"
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

using zp::test::Session;

namespace
{

const QString kPictures = QString(ZP_TESTDATA) + "/images/";

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

TEST(Watermarks, AScriptPreviewsRunsAndFindsThemAsTheyWereLastUsed)
{
    Session session;
    session.newImage(64, 48);
    const QString source = session.file("source"), byWindow = session.file("window"), byWords = session.file("words");
    for (const QString& folder : {source, byWindow, byWords}) ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(QFile::copy(kPictures + "photos/tahoe-gps.jpg", source + "/flat.jpg"));
    ASSERT_TRUE(QFile::copy(kPictures + "made/exif/orientation-6.jpg", source + "/turned.jpg"));
    const auto open = [&] {
        session.must("menu imageProcessor:");
        session.must("answer Yes");
    };
    open();
    ASSERT_TRUE(session.must("get mWatermark")["items"].toArray().contains(QJsonValue("ORVANTA.jpg")));
    for (const char* name : {"mWatermarkRelative", "mWatermarkTiled", "mPreviewButton"})
        EXPECT_EQ(session.must(QString("get %1").arg(name))["value"].toInt(), 0) << name << " is off as given";
    session.play({"set mSrcFolder \"" + source + "\"", "set mDstFolder \"" + byWindow + "\"", "set mFileTypeTIFF 1",
                  "set mFileTypeJPEG 0", "set mImageSizeFit 0", "set mWatermark ORVANTA.jpg",
                  "set mWatermarkRelative 1", "set mWatermarkSize 30", "set mWatermarkTiled 1", "set mWatermarkGap 20",
                  "set mWatermarkTurn 15", "set mWatermarkOpacity 60", "set mWatermarkPosition \"Lower right\"",
                  "set mWatermarkMargin 4", "set mPreviewButton 1"});
    QElapsedTimer clock;
    const auto shown = [&](const char* label) {
        return session.must(QString("get %1").arg(label))["value"].toString();
    };
    for (clock.start(); !shown("mPreviewName2").contains(QChar(0xD7)) && clock.elapsed() < 60'000;)
        session.must("sleep 0.1");
    EXPECT_TRUE(shown("mPreviewName1").startsWith("turned.jpg\n"));
    EXPECT_EQ(shown("mPreviewName2").toStdString(), "flat.jpg\n2048 × 1536");
    EXPECT_EQ(shown("mPreviewName3"), "");
    EXPECT_TRUE(QDir(byWindow).isEmpty());
    session.must("click run:");
    session.must("wait");

    QProcess words;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", session.home());
    words.setProcessEnvironment(environment);
    words.start(ZP_PROGRAM, {"--batch", source, byWords, "--tiff", "--watermark", "ORVANTA.jpg", "--relative", "30",
                             "--place", "lower-right+4", "--tile", "20", "--turn", "15", "--opacity", "60"});
    ASSERT_TRUE(words.waitForFinished(120'000));
    EXPECT_EQ(words.exitCode(), 0) << words.readAllStandardError().toStdString();
    for (const char* name : {"/flat.tiff", "/turned.tiff"})
        EXPECT_EQ(bytesOf(byWindow + name), bytesOf(byWords + name)) << name;

    open();
    session.must("set mWatermark ORVANTA.jpg");
    EXPECT_EQ(session.must("get mWatermarkSize")["value"].toInt(), 30);
    EXPECT_EQ(session.must("get mWatermarkTurn")["value"].toInt(), 15);
    EXPECT_EQ(session.must("get mWatermarkTiled")["value"].toInt(), 1);
    session.must("key Escape");
}

TEST(Watermarks, ATextBecomesOneThatIsRelativeFromTheStart)
{
    Session session;
    session.newImage(64, 48);
    session.must("menu imageProcessor:");
    session.must("answer Yes");
    session.must("click textWatermark:");
    EXPECT_FALSE(session.must("get mWatermarkText_CreateButton")["enabled"].toBool());
    session.must("set mWatermarkText_Field \"Anna 2026\"");
    session.must("click watermarkText_create:");
    EXPECT_EQ(session.must("get mWatermark")["value"].toString().toStdString(), "Anna 2026.tiff");
    EXPECT_EQ(session.must("get mWatermarkRelative")["value"].toInt(), 1);
    const QString folder = session.home() + "/Library/Application Support/Zelpane/Watermarks/";
    EXPECT_TRUE(QFile::exists(folder + "Anna 2026.tiff"));
    EXPECT_TRUE(QFile::exists(folder + "Anna 2026.tiff.layout"));
    session.must("click textWatermark:");
    session.must("set mWatermarkText_Field \"never made\"");
    session.must("key Escape");
    EXPECT_EQ(session.must("get mWatermark")["value"].toString().toStdString(), "Anna 2026.tiff");
    EXPECT_FALSE(QFile::exists(folder + "never made.tiff"));
    session.must("key Escape");
}

} // namespace
