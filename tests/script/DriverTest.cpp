// SPDX-License-Identifier: GPL-3.0-or-later
/// The automation language itself: answers, failures, waiting, files of commands.
#include "support/Session.h"

using zp::test::Session;

namespace
{

/// Plays a file of commands. @return its standard output
QByteArray playFile(const QByteArray& commands, int& status, QByteArray* errors = nullptr)
{
    QTemporaryDir home;
    QFile file(home.path() + "/commands.zps");
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(commands);
    file.close();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    environment.insert("ZELPANE_TMP", home.path());
    process.setProcessEnvironment(environment);
    process.start(ZP_PROGRAM, {"--script", file.fileName(), "--no-start-choice"});
    EXPECT_TRUE(process.waitForFinished(60'000));
    status = process.exitCode();
    if (errors) *errors = process.readAllStandardError();
    return process.readAllStandardOutput();
}

} // namespace

TEST(Driver, AnswersEveryCommandWithOneLine)
{
    int status = -1;
    const QByteArray out = playFile("# a comment\n\nimage\nstate\n\nsounds\n", status);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(out.count('\n'), 3);
    for (const QByteArray& line : out.trimmed().split('\n')) {
        EXPECT_TRUE(line.startsWith("{\"ok\":true")) << line.toStdString();
        EXPECT_TRUE(QJsonDocument::fromJson(line).isObject());
    }
}

TEST(Driver, TheFirstFailureEndsAFile)
{
    int status = -1;
    QByteArray errors;
    const QByteArray out = playFile("image\nnonsense\nimage\n", status, &errors);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(out.count('\n'), 2);
    EXPECT_TRUE(errors.contains(":2:")) << errors.toStdString();
}

TEST(Driver, ALineWithADashMayFail)
{
    int status = -1;
    const QByteArray out = playFile("-nonsense\nimage\n", status);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(out.startsWith("{\"ok\":false,\"error\":"));
}

TEST(Driver, AnUnreadableScriptIsWrongUsage)
{
    QProcess process;
    process.start(ZP_PROGRAM, {"--script", "/nowhere/at/all.zps"});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 2);
    process.start(ZP_PROGRAM, {"--script"});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 2);
}

TEST(Driver, FailuresOfStandardInputEndNothing)
{
    Session s;
    EXPECT_EQ(s.failure("set"), "set OUTLET VALUE");
    EXPECT_EQ(s.failure("pixel 0 0"), "outside the image");
    EXPECT_EQ(s.failure("answer OK"), "no alert");
    EXPECT_EQ(s.failure("click new_new:"), "no such button");
    s.must("image");
    EXPECT_EQ(s.end(), 0);
}

TEST(Driver, PlaysTheExampleOfTheManual)
{
    Session s(QStringList{});
    s.play({"answer \"New…\"", "set mNew_Width 320", "set mNew_Height 240", "click new_new:", "wait",
            "set mColorWell #ffffff", "menu selectAll:", "menu fill:", "wait", "set mColorWell #ff0000",
            "modifiers control", "press 100 60", "drag 220 180", "release 220 180", "modifiers", "menu fill:", "wait"});
    EXPECT_EQ(s.pixel(160, 120), (std::vector<int>{255, 255, 0, 0}));
    EXPECT_EQ(s.pixel(105, 65), (std::vector<int>{255, 255, 255, 255}));
    EXPECT_EQ(s.state()["mUndoIndex"], 2);
    s.must("send saveImageAsTIFF: " + s.file("disc.tiff"));
    EXPECT_TRUE(QFileInfo::exists(s.file("disc.tiff")));
    s.must("write-bitmap " + s.file("disc.pam"));
    EXPECT_EQ(
        QFileInfo(s.file("disc.pam")).size() % (320 * 240 * 4),
        QByteArray("P7\nWIDTH 320\nHEIGHT 240\nDEPTH 4\nMAXVAL 255\nTUPLTYPE ARGB_PREMULTIPLIED\nENDHDR\n").size());
}

TEST(Driver, ABrushStrokePaintsFromEndToEnd)
{
    Session s;
    s.newImage(200, 100);
    s.play({"key 4", "set mSizeField 20", "set mColorWell #0000ff", "press 30 50", "drag 60 50", "drag 120 50",
            "release 170 50", "wait"});
    EXPECT_EQ(s.state()["mTool"], 3);
    for (const int x : {40, 80, 120, 160}) EXPECT_GT(s.pixel(x, 50)[0], 100) << x;
    EXPECT_EQ(s.pixel(100, 90)[0], 0);
    EXPECT_EQ(s.state()["_ptIndex"], 4);
    EXPECT_EQ(s.state()["mUndoIndex"], 1);
    s.must("menu undo:");
    EXPECT_EQ(s.pixel(80, 50)[0], 0);
    s.must("menu redo:");
    EXPECT_GT(s.pixel(80, 50)[0], 100);
}

TEST(Driver, AFixedCoordinateIsTheSameAtEveryZoom)
{
    for (const char* zoom : {"25%", "100%", "800%"}) {
        Session s;
        s.newImage(100, 100);
        s.must(QString("set mZoomPopUp %1").arg(zoom));
        s.play({"press 10.5 20.25", "drag 60 70", "release 60.75 70.5"});
        const QJsonObject state = s.state();
        EXPECT_EQ(state["mPt1"], (QJsonArray{10.5, 20.25})) << zoom;
        EXPECT_EQ(state["mPt2"], (QJsonArray{60.75, 70.5})) << zoom;
    }
}
