// SPDX-License-Identifier: GPL-3.0-or-later
/// The files that ship: there, readable, and of the kind that the program expects.
#include "base/Folders.h"
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

using namespace zp;

namespace
{

QString shipped(const QString& name) { return QString(ZP_RESOURCES) + "/" + name; }

QByteArray bytesOf(const QString& name)
{
    QFile file(shipped(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

} // namespace

TEST(Resources, BrushTipsCarryTheirShapeInTheAlpha)
{
    for (int i = 1; i <= 8; ++i) {
        const QImage tip(shipped(QString("B%1.png").arg(i)));
        ASSERT_EQ(tip.size(), QSize(200, 200)) << i;
        ASSERT_TRUE(tip.hasAlphaChannel()) << i;
        int opaque = 0, clear = 0;
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 200; ++x) {
                const int alpha = qAlpha(tip.pixel(x, y));
                opaque += alpha > 200;
                clear += alpha < 20;
            }
        EXPECT_GT(opaque, 1000) << i;
        EXPECT_GT(clear, 1000) << i;
        EXPECT_EQ(qAlpha(tip.pixel(0, 0)), 0) << i; // no edge of the square is ever stamped
    }
    const QImage round(shipped("Brush60.png"));
    EXPECT_EQ(round.size(), QSize(60, 60));
    EXPECT_EQ(qAlpha(round.pixel(30, 30)), 255);
}

TEST(Resources, EachToolHasALineIconOfItsName)
{
    for (const char* name : {"Rectangle Selection",
                             "Lasso",
                             "Magic Wand",
                             "Brush",
                             "Pencil",
                             "Eraser",
                             "Paint Bucket",
                             "Eyedropper",
                             "Text",
                             "Clone Stamp",
                             "zelpane",
                             "open",
                             "new",
                             "save",
                             "undo",
                             "redo",
                             "zoom-in",
                             "zoom-out",
                             "zoom-fit",
                             "rotate-left",
                             "rotate-right",
                             "flip-horizontal",
                             "flip-vertical"}) {
        const QByteArray drawing = bytesOf(QString("icons/%1.svg").arg(name));
        EXPECT_TRUE(qstrcmp(name, "zelpane") == 0 || drawing.contains("currentColor")) << name;
        QSvgRenderer renderer(drawing);
        ASSERT_TRUE(renderer.isValid()) << name;
        QImage image(24, 24, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter);
        painter.end();
        int drawn = 0;
        for (int y = 0; y < 24; ++y)
            for (int x = 0; x < 24; ++x) drawn += qAlpha(image.pixel(x, y)) > 100;
        EXPECT_GT(drawn, 20) << name;
    }
}

TEST(Resources, SoundsAreShortAndPlain)
{
    for (const char* name : {"Frog", "Pop", "Ping", "Glass"}) {
        const std::string wav = bytesOf(QString("%1.wav").arg(name)).toStdString();
        ASSERT_GT(wav.size(), 44u) << name;
        EXPECT_TRUE(wav.starts_with("RIFF") && wav.substr(8, 4) == "WAVE") << name;
        const auto byte = [&](std::size_t at) { return int(static_cast<unsigned char>(wav.at(at))); };
        EXPECT_EQ(byte(24) | byte(25) << 8 | byte(26) << 16 | byte(27) << 24, 44100) << name;
        EXPECT_EQ(byte(34) | byte(35) << 8, 16) << name;
        EXPECT_LT(wav.size(), 100000u) << name;
        int loudest = 0, last = 0;
        for (std::size_t i = 44; i + 1 < wav.size(); i += 2) {
            last = std::int16_t(byte(i) | byte(i + 1) << 8);
            loudest = std::max(loudest, std::abs(last));
        }
        EXPECT_GT(loudest, 10000) << name;
        EXPECT_LT(std::abs(last), 100) << name; // no click at the end
    }
}

TEST(Resources, PicturesFlagAndPreferencesAreThere)
{
    EXPECT_EQ(QImage(shipped("Hibiskus.jpg")).size(), QSize(2000, 1500));
    EXPECT_EQ(QImage(shipped("Title.jpg")).size(), QSize(320, 96));
    EXPECT_EQ(bytesOf("2xRetina.txt"), "NO");
    EXPECT_TRUE(bytesOf("com.orvanta.Zelpane.plist").contains("<plist"));
}
