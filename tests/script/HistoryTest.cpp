// SPDX-License-Identifier: GPL-3.0-or-later
/// Steps as a script and a person see them: names, exact pixels, the panel; and the pictures before the current one.
#include "support/Session.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <vector>

using namespace zp::test;

namespace
{

QByteArray bytesOf(Session& s)
{
    s.must("write-bitmap " + s.file("look.pam"));
    QFile file(s.file("look.pam"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

int position(Session& s) { return s.must("history")["current"].toInt(); }

QString titleOf(Session& s, const QString& action)
{
    for (const QJsonValue& item : s.must("menus")["items"].toArray())
        if (item.toObject()["action"] == action) return item.toObject()["title"].toString();
    return {};
}

TEST(StepsByScript, CarryTheNamesOfTheirCommands)
{
    Session s;
    EXPECT_TRUE(s.must("history")["steps"].toArray().isEmpty());
    s.newImage(40, 30);
    s.play({"menu selectAll:", "menu fill:", "menu flipH:"});
    const QJsonArray steps = s.must("history")["steps"].toArray();
    ASSERT_EQ(steps.size(), 3);
    const char* const names[] = {"New", "Fill", "Flip Horizontally"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(steps[i].toObject()["name"], names[i]);
        EXPECT_EQ(steps[i].toObject()["number"], i);
    }
    EXPECT_EQ(position(s), 2);
    s.must("history-go 0");
    EXPECT_EQ(position(s), 0);
    EXPECT_EQ(s.must("history")["steps"].toArray().size(), 3) << "what can be redone stays";
    EXPECT_FALSE(s.ask("history-go 3")["ok"].toBool());
    EXPECT_FALSE(s.ask("history-go -1")["ok"].toBool());
    s.must("history-go 2");
    EXPECT_EQ(position(s), 2);
}

TEST(StepsByScript, SixtyMixedOperationsComeBackInAnyOrderByteForByte)
{
    Session s;
    s.newImage(160, 120);
    s.play({"set mColorWell #c08040", "menu selectAll:", "menu fill:", "menu selectNone:"});
    std::mt19937 random(11);
    const auto upTo = [&random](int n) { return int(random() % unsigned(n)); };
    std::vector<QByteArray> pictures;
    const auto keep = [&] {
        s.must("wait");
        pictures.resize(std::size_t(position(s)) + 1);
        pictures.back() = bytesOf(s);
    };
    s.must("history-go 0");
    keep();
    s.must("history-go 1");
    keep();
    const char* const geometry[] = {
        "menu flipH:", "menu flipV:", "menu rotateCW:", "send setImageSize:scale: 150 110 1"};
    for (int i = 0; i < 60; ++i) {
        s.must(QString::asprintf("set mColorWell #%02x%02x%02x%02x", upTo(256), upTo(256), upTo(256),
                                 upTo(2) ? 255 : 40 + upTo(200)));
        const int x = upTo(100), y = upTo(80);
        switch (upTo(6)) {
        case 0:
            s.must(geometry[upTo(4)]);
            break;
        case 1: // a filled rectangle
            s.play({"key 1", QString("press %1 %2").arg(x).arg(y), QString("drag %1 %2").arg(x + 30).arg(y + 20),
                    QString("release %1 %2").arg(x + 30).arg(y + 20), "menu fill:", "menu selectNone:"});
            break;
        default: // a stroke
            s.play({QString("key %1").arg(4 + upTo(3)), QString("set mSizeField %1").arg(2 + upTo(20)),
                    QString("press %1 %2").arg(x).arg(y), QString("drag %1 %2").arg(x + 40).arg(y + 10),
                    QString("release %1 %2").arg(x + 40).arg(y + 10)});
        }
        s.must("wait");
        ASSERT_LE(position(s), int(pictures.size()))
            << "one step at most: " << QJsonDocument(s.must("history")).toJson().right(200).toStdString();
        if (position(s) >= int(pictures.size())) keep();
    }
    const int newest = position(s);
    ASSERT_GT(newest, 40);
    for (int round = 0; round < 1000; ++round) {
        const int way = upTo(3);
        if (way == 0)
            s.must(QString("history-go %1").arg(upTo(newest + 1)));
        else
            s.ask(way == 1 ? "menu undo:" : "menu redo:");
        const int at = position(s);
        ASSERT_EQ(bytesOf(s), pictures[std::size_t(at)]) << "round " << round << ", step " << at;
    }
}

TEST(StepsByScript, StrokesInQuickSuccessionAreAllTaken)
{
    Session s;
    s.newImage(1200, 900);
    s.play({"wait", "key 5", "set mColorWell #ff0000"});
    for (int i = 0; i < 30; ++i)
        s.play({QString("press 10 %1").arg(10 + 20 * i), QString("release 900 %1").arg(10 + 20 * i)});
    EXPECT_EQ(position(s), 30);
    for (int i = 0; i < 30; ++i) EXPECT_EQ(s.pixel(500, 10 + 20 * i)[1], 255) << i;
}

TEST(StepsByScript, UndoAndRedoSayWhatTheyWouldDo)
{
    Session s;
    s.newImage(40, 30);
    EXPECT_EQ(titleOf(s, "undo:"), "Undo");
    s.play({"menu selectAll:", "menu fill:"});
    EXPECT_EQ(titleOf(s, "undo:"), "Undo Fill");
    EXPECT_EQ(titleOf(s, "redo:"), "Redo");
    s.must("menu undo:");
    EXPECT_EQ(titleOf(s, "undo:"), "Undo");
    EXPECT_EQ(titleOf(s, "redo:"), "Redo Fill");
}

TEST(StepsByScript, RestoringByNumberShowsWhatThePairHolds)
{
    Session s;
    s.newImage(64, 64);
    s.play({"set mColorWell #102030", "menu selectAll:", "menu fill:", "menu selectNone:", "key 5",
            "set mColorWell #e0f0ff", "press 3 3", "drag 60 47", "release 60 47", "wait"});
    const QByteArray exact = bytesOf(s);
    s.must("send restoreSnapshot: 2");
    EXPECT_NE(bytesOf(s), exact) << "its files are lossy";
    s.play({"menu undo:", "menu redo:"});
    EXPECT_EQ(bytesOf(s), exact);
}

// ---- the pictures before
// -----------------------------------------------------------------------------------------------

void makeRed(Session& s, int width)
{
    s.newImage(width, 20);
    s.play({"set mColorWell #ff0000", "menu selectAll:", "menu fill:", "menu selectNone:"});
}

TEST(PicturesBefore, ComeBackWithTheirStepsInARing)
{
    Session s;
    for (const int width : {30, 40, 50}) makeRed(s, width);
    for (const int width : {40, 30, 50, 40}) {
        s.must("menu previousPicture:");
        EXPECT_EQ(s.must("image")["width"], width);
        EXPECT_EQ(s.pixel(3, 3), (std::vector<int>{255, 255, 0, 0}));
        EXPECT_EQ(position(s), 1);
    }
    s.must("menu undo:");
    EXPECT_EQ(s.pixel(3, 3)[0], 0);
    s.must("menu previousPicture:");
    s.must("menu previousPicture:");
    s.must("menu previousPicture:");
    EXPECT_EQ(s.must("image")["width"], 40);
    EXPECT_EQ(position(s), 0) << "as it was left";
    s.must("menu redo:");
    EXPECT_EQ(s.pixel(3, 3), (std::vector<int>{255, 255, 0, 0}));
}

TEST(PicturesBefore, AreNotListedInTheUndoFolder)
{
    Session s;
    makeRed(s, 30);
    makeRed(s, 40);
    s.must("wait");
    const QStringList listed = QDir(s.file("Zelpane Undo Support")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    EXPECT_EQ(listed, (QStringList{"C_0.jpg", "C_0.rle", "C_1.jpg", "C_1.rle"}));
}

TEST(PicturesBefore, KeepWhatFloatedOverThem)
{
    Session s;
    makeRed(s, 30);
    s.play({"menu selectAll:", "menu copy:", "menu paste:", "key Right"});
    makeRed(s, 40);
    s.must("menu previousPicture:");
    EXPECT_EQ(s.must("image")["width"], 30);
    EXPECT_FALSE(s.state()["floating"].toBool());
    EXPECT_EQ(s.pixel(20, 10), (std::vector<int>{255, 255, 0, 0}));
}

TEST(PicturesBefore, ComeBackWhenTheirFilesCouldNotBeMoved)
{
    Session s;
    makeRed(s, 30);
    s.must("wait");
    // Something in the way of the note of a move that every move begins with.
    const QString inTheWay = s.file("Zelpane Undo Support/.moving");
    ASSERT_TRUE(QDir().mkpath(inTheWay + "/full"));
    makeRed(s, 40);
    s.must("wait");
    ASSERT_TRUE(QDir(inTheWay).removeRecursively() || !QDir(inTheWay).exists());
    s.must("menu previousPicture:");
    EXPECT_EQ(s.must("image")["width"], 30);
    EXPECT_EQ(s.pixel(3, 3), (std::vector<int>{255, 255, 0, 0}));
}

TEST(PicturesBefore, AreTenAtMost)
{
    Session s;
    for (int i = 0; i < 13; ++i) makeRed(s, 20 + i);
    std::set<int> seen;
    for (int i = 0; i < 15; ++i) {
        seen.insert(s.must("image")["width"].toInt());
        s.must("menu previousPicture:");
    }
    EXPECT_EQ(seen.size(), 11u) << "ten and the current one";
    EXPECT_FALSE(seen.contains(20) || seen.contains(21));
}

TEST(PicturesBefore, AreNamedWhenTheProgramQuitsIfTheyWereNotSaved)
{
    Session s;
    makeRed(s, 30);
    s.must("send saveImageAsTIFF: " + s.file("kept.tiff"));
    makeRed(s, 40);
    s.must("send saveImageAsTIFF: " + s.file("lost.tiff"));
    s.play({"menu flipH:"});
    s.newImage(50, 20);
    s.must("menu terminate:");
    const QString message = s.must("alert")["alert"].toObject()["message"].toString();
    EXPECT_TRUE(message.startsWith("Make sure that the image is saved to disk."));
    EXPECT_TRUE(message.contains("lost.tiff")) << message.toStdString();
    EXPECT_FALSE(message.contains("kept.tiff")) << message.toStdString();
    s.must("answer Cancel");
}

TEST(PicturesBefore, WithoutAnyTheItemIsGrey)
{
    Session s;
    s.newImage(30, 20);
    EXPECT_FALSE(s.ask("menu previousPicture:")["ok"].toBool());
}

} // namespace
