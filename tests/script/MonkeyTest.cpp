// SPDX-License-Identifier: GPL-3.0-or-later
/// A monkey at the automation language: every command in every state of a gesture, and what must hold whatever it does.
///
/// ZELPANE_MONKEY_EVENTS and ZELPANE_MONKEY_SEEDS make it longer; the seed of a failure is in its message.
#include "app/CommandTable.h"
#include "base/BezierPath.h"
#include "base/BitmapRep.h"
#include "selection/MaskOps.h"
#include "support/Session.h"
#include <QCryptographicHash>
#include <iostream>
#include <map>
#include <random>
#include <set>

namespace
{

using namespace zp;
using namespace zp::test;

/// What every answer must come within.
constexpr int kPatience = 10'000;
/// Operations that write the mask by themselves: after them it need not be the outline's.
const std::set<std::string> kMaskWriters{
    "inverseMask", "clearSelectionMask",        "selectionPathToMask", "clearSelectionMaskINVERT",
    "magicWand:",  "selectionPathToMaskINVERT", "smartFill:",          "magicWandOver:"};
/// Rows that open a window or a panel and wait for a person, or end the program: they have no operation. And what
/// writes files where the person's are.
bool isLeftOut(const Command& row)
{
    return (!row.run && row.effect == Effect::Window) || row.action == std::string("save:");
}

/// Operations that are told to break a rule that is checked: no steps from here on, alpha or a tint by itself.
const std::set<std::string> kRuleBreakers{"dontTakeSnapshot", "makeSelection", "readAlphaRLEFile:"};

struct Look {
    QJsonObject state;
    QByteArray picture;
    int position = -1, newest = -1;
};

class Monkey : public testing::TestWithParam<unsigned>
{
protected:
    Monkey() : random(GetParam())
    {
        run.newImage(72, 56);
        run.play({"set mColorWell #3366cc", "menu selectAll:", "menu fill:", "menu selectNone:", "wait"});
    }
    int upTo(int n) { return int(random() % unsigned(n)); }
    QJsonObject say(const QString& line)
    {
        said.append(line);
        if (said.size() > 40) said.removeFirst();
        return run.ask(line, kPatience);
    }
    QString where() const { return "\nthe last lines:\n  " + said.join("\n  "); }

    QByteArray pictureBytes()
    {
        if (!say("write-bitmap " + run.file("shot.pam"))["ok"].toBool()) return {};
        QFile file(run.file("shot.pam"));
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }
    Look look()
    {
        say("wait");
        Look now;
        now.state = say("state");
        now.picture = pictureBytes();
        now.position = now.state["mUndoRedoIndex"].toInt();
        now.newest = now.state["mUndoIndex"].toInt();
        return now;
    }
    static BezierPath pathOf(const QJsonObject& object)
    {
        BezierPath path;
        for (const QJsonValue& value : object["elements"].toArray()) {
            const QJsonArray e = value.toArray();
            const auto at = [&e](int i) { return Point{float(e[i].toDouble()), float(e[i + 1].toDouble())}; };
            const QString kind = e[0].toString();
            if (kind == "M") path.moveTo(at(1));
            if (kind == "L") path.lineTo(at(1));
            if (kind == "C") path.curveTo(at(5), at(1), at(3));
            if (kind == "Z") path.closePath();
        }
        path.setWindingRule(WindingRule::EvenOdd);
        return path;
    }
    void checkColour(const QByteArray& picture)
    {
        const qsizetype begin = picture.indexOf("ENDHDR\n") + 7;
        int wrong = 0;
        for (qsizetype i = begin; i + 3 < picture.size(); i += 4)
            for (int c = 1; c < 4; ++c) wrong += std::uint8_t(picture[i + c]) > std::uint8_t(picture[i]);
        EXPECT_EQ(wrong, 0) << "samples above their alpha" << where().toStdString();
    }
    void checkMask(const Look& now)
    {
        if (maskIsItsOwn || now.state["mSelectionMaskClear"].toBool()) return;
        if (!say("write-mask " + run.file("mask.pgm"))["ok"].toBool()) return;
        QFile file(run.file("mask.pgm"));
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        const QByteArray pgm = file.readAll();
        const QList<QByteArray> head = pgm.left(30).split('\n');
        const QList<QByteArray> size = head[1].split(' ');
        const int width = size[0].toInt(), height = size[1].toInt();
        const qsizetype begin = head[0].size() + head[1].size() + head[2].size() + 3;
        std::vector<std::uint8_t> wanted(std::size_t(width) * std::size_t(height), kNotSelected);
        const QJsonValue path = say("path")["path"];
        if (path.isObject())
            renderPathInMask({wanted.data(), width, height, width}, pathOf(path.toObject()), kSelected);
        int wrong = 0;
        for (std::size_t i = 0; i < wanted.size(); ++i)
            wrong += std::abs(int(wanted[i]) - int(std::uint8_t(pgm[begin + qsizetype(i)]))) > 1;
        EXPECT_EQ(wrong, 0) << "mask bytes that are not the outline's" << where().toStdString();
    }
    /// After a whole gesture or one command; @p leavesSteps: every change of it must be exactly one.
    void check(const Look& before, bool leavesSteps)
    {
        const Look now = look();
        const int fills = std::exchange(runFills, 0);
        checkColour(now.picture);
        checkMask(now);
        EXPECT_TRUE(!now.state["floating"].toBool() || now.state["selection"].toBool()) << where().toStdString();
        EXPECT_TRUE(!now.state["pasteInto"].toBool() || now.state["floating"].toBool()) << where().toStdString();
        EXPECT_LE(now.position, now.newest) << where().toStdString();
        if (!leavesSteps) return;
        EXPECT_LE(now.position, before.position + 1 + fills) << where().toStdString();
        if (now.picture == before.picture) return;
        EXPECT_GT(now.position, before.position) << "a change is one step" << where().toStdString();
    }

    QString someMenuCommand()
    {
        std::vector<const char*> actions;
        for (const Command& row : commandTable())
            if (row.menu && *row.action && *row.action != '|' && !isLeftOut(row)) actions.push_back(row.action);
        return actions[std::size_t(upTo(int(actions.size())))];
    }
    QString someOperation()
    {
        std::vector<const Command*> rows;
        for (const Command& row : commandTable())
            if (row.parameters && !kRuleBreakers.contains(row.action)) rows.push_back(&row);
        const Command& row = *rows[std::size_t(upTo(int(rows.size())))];
        QString line = row.action;
        for (const QString& kind : QString(row.parameters).split(' ', Qt::SkipEmptyParts)) {
            if (kind == "path")
                line += " " + run.file(upTo(3) ? "kept.tiff" : "kept.jpg");
            else if (kind == "word")
                line += QString(" %1").arg(random() | 255u);
            else if (kind == "text")
                line += upTo(3) ? " \"M 5 5 L 40 9 C 50 20 30 30 20 45 Z\"" : " \"\"";
            else if (kind == "number" || (kind == "[number]" && upTo(2)))
                line += QString(" %1").arg(upTo(5) ? double(1 + upTo(90)) : double(upTo(400) - 200) / 3);
            else if (!kind.startsWith('['))
                line += QString(" %1 %2").arg(upTo(72)).arg(upTo(56));
        }
        return line;
    }
    void wander()
    {
        if (upTo(20) == 0) {
            x = upTo(160) - 40, y = upTo(140) - 40;
        } else {
            x += upTo(31) - 15, y += upTo(31) - 15;
        }
        x = std::clamp(x, -60, 130), y = std::clamp(y, -60, 110);
    }
    QString at() { return QString(" %1 %2").arg(x + upTo(4) / 4.0).arg(y + upTo(4) / 4.0); }

    void changeSomething()
    {
        switch (upTo(7)) {
        case 0:
            say(QString("set mSizeField %1").arg(1 + upTo(40)));
            break;
        case 1:
            say(QString::asprintf("set mColorWell #%02x%02x%02x%02x", upTo(256), upTo(256), upTo(256),
                                  upTo(3) ? 255 : upTo(256)));
            break;
        case 2:
            say(QString("set mToleranceSlider %1").arg(upTo(101)));
            break;
        case 3:
            say(QString("set mZoomPopUp #%1").arg(upTo(9)));
            break;
        default:
            say(QString("key %1").arg(upTo(10)));
        }
    }
    void holdSomething()
    {
        QString line = "modifiers";
        if (upTo(2))
            for (const char* key : {" shift", " option", " command", " control"})
                if (upTo(3) == 0) line += key;
        say(line);
    }
    void choose(const QString& action)
    {
        if (kMaskWriters.contains(action.toStdString())) maskIsItsOwn = true;
        // A grey item does nothing.
        if (say("menu " + action)["ok"].toBool() && action.startsWith("select")) maskIsItsOwn = false;
    }
    /// A command in whatever state the gesture is.
    void commandSomething()
    {
        const int kind = upTo(10);
        if (kind < 6) {
            const QString action = someMenuCommand();
            choose(action);
        } else if (kind < 8) {
            const char* const keys[] = {"Return", "Escape", "Up", "Down", "Left", "Right", "s", "+", "-"};
            say(QString("key %1").arg(keys[upTo(9)]));
        } else {
            const QString operation = someOperation();
            if (kMaskWriters.contains(operation.section(' ', 0, 0).toStdString())) maskIsItsOwn = true;
            say("send " + operation);
        }
        closeWindows();
    }
    /// Alerts are answered, dialogs and the smart fill window go away; a fill that runs may go on.
    void closeWindows()
    {
        for (int i = 0; i < 5; ++i) {
            const QJsonValue alert = say("alert")["alert"];
            if (!alert.isObject()) break;
            const QJsonArray buttons = alert.toObject()["buttons"].toArray();
            say(QString("answer \"%1\"").arg(buttons[upTo(int(buttons.size()))].toString()));
        }
        for (const QJsonValue& window : say("windows")["windows"].toArray()) {
            const QString name = window.toObject()["name"].toString();
            if (name == "TextEditor") {
                if (upTo(2)) say(QString("set textEditor %1").arg(upTo(1000)));
                say(upTo(2) ? "click ok:" : "click cancel:");
            }
            if (name == "SmartFill") {
                maskIsItsOwn = true;
                if (upTo(2) && say("click run:")["ok"].toBool()) ++runFills;
                if (upTo(3) == 0) say("click cancel:");
                say("click closeMe:");
            }
        }
    }
    void gesture(bool interrupted)
    {
        wander();
        say("press" + at());
        closeWindows();
        for (int i = upTo(5); i > 0; --i) {
            wander();
            say("drag" + at());
            if (interrupted && upTo(4) == 0) commandSomething();
            if (interrupted && upTo(6) == 0) holdSomething();
            if (interrupted && upTo(9) == 0) changeSomething();
        }
        if (!interrupted || upTo(30)) say("release" + at());
    }
    void undoToTheFloorAndBack()
    {
        say("key Escape");
        say("menu selectNone:");
        maskIsItsOwn = false;
        Look now = look();
        std::map<int, QByteArray> pictures;
        for (int steps = 0; now.position > 0 && steps < 400; ++steps) {
            EXPECT_TRUE(say("menu undo:")["ok"].toBool());
            now = look();
            pictures[now.position] = now.picture;
        }
        while (now.position < now.newest) {
            const int before = now.position;
            EXPECT_TRUE(say("menu redo:")["ok"].toBool());
            now = look();
            ASSERT_GT(now.position, before) << "of " << now.newest << where().toStdString();
            if (pictures.contains(now.position)) {
                EXPECT_EQ(pictures[now.position], now.picture) << "step " << now.position << where().toStdString();
            }
            pictures[now.position] = now.picture;
        }
    }

    Session run;
    std::mt19937 random;
    QStringList said;
    int x = 30, y = 30;
    bool maskIsItsOwn = false;
    int runFills = 0; ///< by smart fill's own window since the last check, a step each
};

constexpr int kEventsPerLine = 5'000; ///< of a long run: it says how far it is

int fromEnvironment(const char* name, int otherwise)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok && value > 0 ? value : otherwise;
}

TEST_P(Monkey, LeavesThePictureSoundWhateverItDoes)
{
    const int events = fromEnvironment("ZELPANE_MONKEY_EVENTS", 600);
    for (int event = 0; event < events && !HasFailure(); ++event) {
        SCOPED_TRACE(testing::Message() << "seed " << GetParam() << ", event " << event);
        if (event > 0 && event % kEventsPerLine == 0) std::cout << "after " << event << " events" << std::endl;
        switch (upTo(12)) {
        case 0:
            holdSomething();
            break;
        case 1:
            changeSomething();
            break;
        case 2:
        case 3:
        case 4: {
            const Look before = look();
            gesture(false);
            say("modifiers");
            check(before, true);
            break;
        }
        case 5:
        case 6: {
            const Look before = look();
            const QString action = someMenuCommand();
            const bool moves = action == "undo:" || action == "redo:" || action == "previousPicture:";
            choose(action);
            closeWindows();
            check(before, !moves);
            break;
        }
        case 7:
            commandSomething();
            check({}, false);
            break;
        case 8:
            if (upTo(10) == 0) undoToTheFloorAndBack(); // which selects nothing first
            if (upTo(4) == 0) {
                say(QString("send newImageWithSize: %1 %2").arg(8 + upTo(80)).arg(8 + upTo(70)));
                maskIsItsOwn = false;
            }
            break;
        default:
            gesture(true);
            say("key Escape");
            check({}, false);
        }
    }
    undoToTheFloorAndBack();
    say("modifiers");
    EXPECT_EQ(run.end(), 0);
}

std::vector<unsigned> seeds()
{
    std::vector<unsigned> list;
    for (int i = 0; i < fromEnvironment("ZELPANE_MONKEY_SEEDS", 1); ++i) list.push_back(20'260'704u + unsigned(i));
    return list;
}
INSTANTIATE_TEST_SUITE_P(Seeds, Monkey, testing::ValuesIn(seeds()));

} // namespace
