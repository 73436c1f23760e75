// SPDX-License-Identifier: GPL-3.0-or-later
/// What was done, written down as a script, and played again: the same bytes.
#include "support/Samples.h"
#include "support/Session.h"
#include <QRegularExpression>
#include <cstdlib>
#include <random>

using zp::test::Session;

namespace
{

const QString kPhoto = QString(ZP_TESTDATA) + "/images/photos/seeding-600-grey.jpg";

QByteArray bytesOf(const QString& file)
{
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QStringList scriptOf(Session& session)
{
    const QString file = session.file("recorded.zps");
    session.must("write-script " + file);
    return QString::fromUtf8(bytesOf(file)).split('\n', Qt::SkipEmptyParts);
}

struct Look {
    QByteArray picture;
    QJsonValue outline;
    int steps = 0;
    bool operator==(const Look&) const = default;
};

Look lookAt(Session& session)
{
    session.must("wait");
    const QString file = session.file("look.pam");
    session.must("write-bitmap " + file);
    return {bytesOf(file), session.must("path")["path"], session.state()["mUndoRedoIndex"].toInt()};
}

/// Plays a script in a session of its own, on what it begins with.
void expectSameAgain(Session& recorded, const QString& opened)
{
    const Look before = lookAt(recorded);
    const QStringList lines = scriptOf(recorded);
    Session played;
    if (!opened.isEmpty()) played.must("open " + opened);
    played.must("wait");
    for (const QString& line : lines) {
        if (line.startsWith('#')) continue;
        const QJsonObject reply = played.ask(line);
        ASSERT_TRUE(reply["ok"].toBool()) << line.toStdString() << ": " << reply["error"].toString().toStdString();
    }
    const Look after = lookAt(played);
    EXPECT_EQ(before.picture, after.picture) << lines.join('\n').toStdString();
    EXPECT_EQ(before.outline, after.outline) << lines.join('\n').toStdString();
    EXPECT_EQ(before.steps, after.steps) << lines.join('\n').toStdString();
    // What was played is written down alike.
    EXPECT_EQ(scriptOf(played).filter(QRegularExpression("^[^#]")), lines.filter(QRegularExpression("^[^#]")));
}

struct Deed {
    const char* name;
    QStringList lines;    ///< what is done
    QStringList expected; ///< the script that must come of it; empty: only its effect counts
};

class Recorded : public testing::TestWithParam<Deed>
{
};

TEST_P(Recorded, ReplaysToTheSameBytes)
{
    Session session;
    session.must("open " + kPhoto);
    session.must("wait");
    for (const QString& line : GetParam().lines) session.must(line);
    session.must("wait");
    if (!GetParam().expected.isEmpty()) {
        const QStringList lines = scriptOf(session);
        EXPECT_EQ(lines.mid(1), GetParam().expected) << lines.join('\n').toStdString();
        EXPECT_TRUE(lines.value(0).startsWith("# ")) << lines.value(0).toStdString();
    }
    expectSameAgain(session, kPhoto);
}

const Deed kDeeds[] = {
    {"ACommandIsOneLine", {"menu rotateCW:", "menu flipH:"}, {"menu rotateCW:", "menu flipH:"}},
    {"ASettingIsWrittenWhenItMatters",
     {"set mColorWell #ff0000", "set mColorWell #00ff0080", "set mSizeField 7",
      "menu rotateCW:", "menu selectAll:", "menu fill:"},
     {"menu rotateCW:", "menu selectAll:", "set mColorWell #00ff0080", "set mSizeField 7", "menu fill:"}},
    {"AGestureIsItsPoints",
     {"set mToolPopUp #3", "press 20 30.25", "drag 60 80", "drag 90.5 100", "release 91 100"},
     {"set mToolPopUp #3", "set mColorWell #000000", "set mSizeField 20", "set mBrushPopUp #0", "set mPressurePopUp #0",
      "press 20 30.25", "drag 60 80", "drag 90.5 100", "release 91 100"}},
    {"WhatEscapeTookBackIsNotThere",
     {"menu flipV:", "set mToolPopUp #4", "press 20 30", "drag 60 80", "key Escape", "release 60 80"},
     {"menu flipV:"}},
    {"PulledCornersAndStraightenedOnes",
     {"send selectOutline: \"M 60 40 L 200 60 L 190 170 L 50 150 Z\"", "menu straightenCorners:", "key Left",
      "send transform_set: 0.75 20", "send transform_corners: 10 5 -8 3 0 0 -4 -9", "key Return",
      "send selectRectangle: 30 30 90 60", "send floatSelection", "send transform_corners: 0 9 0 0 0 0 0 0",
      "menu resetCorners:", "send transform_corners: 0 0 -20 9 0 0 0 0", "key Return"},
     {}},
    {"AStrokeIsPaintedBeforeTheNextIsBegun",
     {"set mToolPopUp #3", "press 20 30", "drag 500 80", "release 91 100", "wait", "press 50 30", "release 91 100"},
     {"set mToolPopUp #3", "set mColorWell #000000", "set mSizeField 20", "set mBrushPopUp #0", "set mPressurePopUp #0",
      "press 20 30", "drag 500 80", "release 91 100", "wait", "press 50 30", "release 91 100"}},
    {"APensPressure",
     {"set mToolPopUp #3", "set mPressurePopUp #1", "pressure 0.25", "press 20 30", "pressure 0.75", "drag 60 80",
      "drag 90 80", "pressure 1", "drag 200 100", "release 200 100"},
     {}},
    {"HeldKeys",
     {"modifiers control", "press 20 30", "drag 120 80", "modifiers control command", "release 200 130", "modifiers",
      "modifiers shift", "press 100 100", "drag 300 300", "release 300 300", "modifiers", "menu delete:"},
     {}},
    {"AFloatingPiece",
     {"press 50 50", "drag 200 150", "release 200 150", "key Return", "press 100 100", "drag 130 90", "release 130 90",
      "send transform_set: 0.8 25", "send transform_set: 0.75 30.5", "key Up", "key Left", "key Return"},
     {}},
    {"APieceTurnedStepByStep",
     {"press 50 50", "drag 200 150", "release 200 150", "key Return", "send transform_set: 1.25 33",
      "send transform_set: 0.9 16", "send transform_set: 0.75 85", "menu rotateCCW:", "key Return",
      "send transform_set: 1.5 300", "send transform_set: 1.25 33", "key Return"},
     {}},
    {"ASliderIsWhatItEndedWith",
     {"menu selectAll:", "menu adjust:", "set mAdjust_HueField 30", "set mAdjust_HueField 60",
      "set mAdjust_SharpnessField 40", "click mAdjust_ApplyButton", "key Return"},
     {}},
    {"ADialogByItsNumbers",
     {"menu resize:", "set mResize_Width 300", "click mResize_OKButton", "menu selectByNumber:", "set mSelect_Left 10",
      "set mSelect_Width 40", "click mSelect_OKButton", "menu cropToSelection:"},
     {}},
    {"AWandByName",
     {"set mToleranceSlider 60", "send magicWand: 300 100", "send floodFillScanlineStackFast: 20 20"},
     {}},
    {"AWand", {"set mToolPopUp #2", "set mToleranceSlider 35", "press 300 100", "release 300 100", "menu delete:"}, {}},
    {"AWandsDragIsTheToleranceThatCameOfIt",
     {"set mExplain 1",
      "set mToolPopUp #2",
      "set mToleranceSlider 35",
      "press 300 100",
      "drag 400 100",
      "drag 350 90",
      "release 350 90",
      "modifiers shift",
      "press 20 20",
      "drag 10.5 20",
      "release 10.5 20",
      "modifiers",
      "press 30 200",
      "drag 90 200",
      "key Escape",
      "release 90 200",
      "set mToolPopUp #6",
      "press 10 10",
      "release 10 10",
      "wait"},
     {"set mToolPopUp #2", "set mToleranceSlider 46", "press 300 100", "release 350 90", "set mToleranceSlider 45",
      "modifiers shift", "press 20 20", "release 10.5 20", "set mToolPopUp #6", "set mColorWell #000000",
      "set mSizeField 20", "modifiers", "press 10 10", "release 10 10"}},
    {"AWandsDragWithoutExplaining",
     {"set mToolPopUp #2", "press 300 100", "drag 400 100", "release 400 100"},
     {"set mToolPopUp #2", "set mToleranceSlider 20", "press 300 100", "release 400 100"}},
    {"ABucketAndAnEyedropper",
     {"set mToolPopUp #7", "press 300 100", "release 300 100", "set mToolPopUp #6", "set mToleranceSlider 30",
      "press 10 10", "release 10 10"},
     {}},
    {"APolygon",
     {"set mToolPopUp #1", "modifiers control", "press 50 50", "release 50 50", "press 200 60", "release 200 60",
      "press 120 200", "release 120 200", "key Return", "modifiers", "menu fill:"},
     {}},
    {"ACloneStamp",
     {"set mToolPopUp #9", "modifiers option", "press 300 100", "release 300 100", "modifiers", "press 100 200",
      "drag 120 210", "drag 140 200", "release 140 200"},
     {}},
    {"AText",
     {"set mToolPopUp #8", "set mSizeField 60", "press 60 150", "set textEditor \"Ab\"", "click ok:", "release 60 150",
      "menu fill:"},
     {}},
    {"WhatWasCopiedIsPasted",
     {"press 50 50", "drag 200 150", "release 200 150", "menu copy:", "menu selectNone:", "menu paste:", "key Return"},
     {}},
    {"AFill",
     {"press 250 100", "drag 290 140", "release 290 140", "seed 5", "menu smartFill:", "set mRadiusSlider 40",
      "click mRunButton", "wait"},
     {}},
    {"AFillThatWasChosen",
     {"press 250 100", "drag 290 140", "release 290 140", "seed 5", "menu smartFill:", "set mRadiusSlider 40",
      "click mPreviewButton", "wait", "click mAnotherButton", "wait", "click mAnotherButton", "wait", "click mResult2",
      "click mRunButton", "wait"},
     {}},
    {"ARemoval",
     {"menu removeBrush:", "set mSizeField 30", "press 260 120", "drag 290 125", "release 290 125", "wait"},
     {}},
    {"UndoAndHistory",
     {"menu flipH:", "menu selectAll:", "menu delete:", "menu undo:", "menu rotateCW:", "wait", "history-go 1",
      "menu redo:"},
     {}},
    {"WhatEndsAGesture",
     {"set mToolPopUp #3", "press 20 30", "drag 80 90", "menu rotateCW:", "drag 90 90", "release 95 95"},
     {}},
    {"AnotherToolInTheMiddleOfAGesture",
     {"set mToolPopUp #3", "press 20 30", "drag 80 90", "key 1", "drag 90 90", "release 95 95"},
     {}},
    {"ANewMarqueeByItsRule",
     {"menu selectByNumber:", "set mSelect_Rule #1", "set mSelect_Width 40", "set mSelect_Height 30",
      "click mSelect_OKButton", "press 100 100", "drag 200 150", "release 200 150", "menu delete:"},
     {}},
};

std::string nameOf(const testing::TestParamInfo<Deed>& info) { return info.param.name; }
INSTANTIATE_TEST_SUITE_P(Deeds, Recorded, testing::ValuesIn(kDeeds), nameOf);

TEST(RecordedSession, ANewImageAndAnotherFileBeginAnew)
{
    Session session;
    session.newImage(40, 30);
    session.play({"menu selectAll:", "menu fill:"});
    QStringList lines = scriptOf(session);
    EXPECT_EQ(lines.value(0), "send newImageWithSize: 40 30");
    EXPECT_EQ(lines.value(lines.size() - 1), "menu fill:");
    expectSameAgain(session, {});
    session.must("open " + kPhoto);
    EXPECT_EQ(scriptOf(session), QStringList{"# " + kPhoto + " 600 × 338"});
}

TEST(RecordedSession, FilesAreWrittenAsComments)
{
    Session session;
    session.must("open " + kPhoto);
    session.must("send saveImageAsPNG: " + session.file("a.png"));
    session.must("menu flipH:");
    const QStringList lines = scriptOf(session);
    EXPECT_EQ(lines.mid(1), (QStringList{"# send saveImageAsPNG: " + session.file("a.png"), "menu flipH:"}));
}

TEST(RecordedSession, ItIsCopiedAndShownAsItGrows)
{
    Session session;
    EXPECT_EQ(session.failure("menu copyAsScript:"), "disabled");
    session.must("open " + kPhoto);
    session.must("menu showScript:");
    session.play({"menu flipH:", "sleep 0.3"});
    EXPECT_TRUE(session.must("get mScriptText")["value"].toString().endsWith("menu flipH:\n"));
    session.play({"menu flipV:", "sleep 0.3"});
    EXPECT_TRUE(session.must("get mScriptText")["value"].toString().endsWith("menu flipH:\nmenu flipV:\n"));
    session.must("menu copyAsScript:");
    EXPECT_EQ(session.must("status")["message"].toString(), "Copied what was done as a script.");
    EXPECT_TRUE(session.must("pasteboard types")["types"].toArray().contains("text/plain"));
}

TEST(RecordedSession, AScriptIsPlayedOnThePictureThatIsOpen)
{
    Session session;
    session.must("open " + kPhoto);
    QFile script(session.file("turn.zps"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("menu rotateCW:\nmenu cut:\n");
    script.close();
    session.play({"menu showScript:", "choose " + script.fileName(), "click mScriptPlayButton", "sleep 0.5"});
    EXPECT_EQ(session.must("image")["width"].toInt(), 338);
    EXPECT_EQ(session.must("get mScriptStatus")["value"].toString(), "Line 2 of the script: disabled.");
    EXPECT_EQ(session.must("history")["steps"].toArray().size(), 2);
    // The run that played it goes on, its panels answered by it as before.
    session.play({"choose " + session.file("kept.zps"), "click mScriptSaveButton"});
    EXPECT_TRUE(bytesOf(session.file("kept.zps")).endsWith("menu rotateCW:\n"));
}

/// Hands at work for as long as wanted: everything that leaves the picture its own.
TEST(RecordedSession, AnHourReplaysToTheSameBytes)
{
    const char* const wanted = std::getenv("ZELPANE_RECORDED_EVENTS");
    const int events = wanted ? std::atoi(wanted) : std::getenv("ZP_LONG") ? 4000 : 150;
    constexpr int kBrush = 3;
    int tool = 0;
    std::mt19937 random(20'261'122);
    const auto upTo = [&random](int n) { return int(random() % unsigned(n)); };
    const auto at = [&] { return QString(" %1 %2").arg(upTo(1400) / 4.0 - 20).arg(upTo(1100) / 4.0 - 20); };
    Session session;
    session.newImage(300, 220);
    const QStringList commands{
        "fill:",      "stroke:",        "delete:",   "cut:",       "copy:",       "paste:",
        "selectAll:", "selectInverse:", "flipH:",    "rotateCCW:", "selectNone:", "anchorSelection:",
        "undo:",      "redo:",          "reselect:", "pasteInto:"};
    for (int i = 0; i < events; ++i) switch (upTo(8)) {
        case 0:
            session.must(QString("set mColorWell #%1").arg(random() | 0xC0u, 8, 16, QChar('0')));
            break;
        case 1:
            tool = upTo(8) == 7 ? 9 : upTo(8);
            session.must(QString("set mToolPopUp #%1").arg(tool));
            session.must(QString("set mSizeField %1").arg(1 + upTo(30)));
            break;
        case 2:
        case 3:
            session.ask("menu " + commands[upTo(int(commands.size()))]);
            break;
        case 4:
            session.must(QString("key ") + (QStringList{"Return", "Escape", "Up", "Left"})[upTo(4)]);
            break;
        case 5:
            session.must(QString("send transform_set: %1 %2").arg(0.5 + upTo(10) / 8.0).arg(upTo(90)));
            break;
        default: {
            // With Control held the brush leaves a trace of what was refreshed, for as long as it is held while it
            // paints.
            const int keys = upTo(tool == kBrush ? 4 : 5);
            session.must(QString("modifiers") + (QStringList{"", "", " shift", " option", " control"})[keys]);
            session.must("press" + at());
            for (int n = upTo(4); n > 0; --n) session.must("drag" + at());
            session.must("release" + at());
            session.must("modifiers");
        }
        }
    expectSameAgain(session, {});
}

} // namespace
