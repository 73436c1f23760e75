// SPDX-License-Identifier: GPL-3.0-or-later
/// Steps, undo, redo and the recovery of left work while the system refuses: what cannot be kept is said, what can is
/// right.
#include "faults/Attack.h"

using namespace zp::test;
using zp::faults::Call;

namespace
{

std::string told(const AttackedSession::Outcome& outcome)
{
    return (outcome.sentences + QStringList{outcome.notice}).join(" / ").toStdString();
}

/// A picture with two steps behind it: filled red, then blue on its left half.
struct Prepared {
    AttackedSession s;
    QByteArray opened, red, blue;

    Prepared() { prepare(); }
    void prepare()
    {
        s->must("open " + QString::fromStdString(sample("photos/seeding-600-grey.jpg")));
        s.answerAll();
        s->must("wait");
        opened = s.picture();
        fill("#ff0000");
        red = s.picture();
        fill("#0000ff");
        blue = s.picture();
        EXPECT_TRUE(opened != red && red != blue);
        EXPECT_EQ(current(), 2);
        s.closeNotices();
    }
    void fill(const QString& colour)
    {
        s->must("set mColorWell " + colour);
        s->must("menu selectAll:");
        s->must("menu fill:");
        s->must("wait");
    }
    int current() { return s->must("history")["current"].toInt(-1); }
    void revive()
    {
        s.restart();
        prepare();
    }
    /// The two steps as they were, whatever the attack left of them.
    void bringBack()
    {
        s.closeNotices();
        const auto goesTo = [this](int step, const QByteArray& picture) {
            return s->ask("history-go " + QString::number(step))["ok"].toBool() && s.picture() == picture;
        };
        if (goesTo(0, opened) && goesTo(1, red) && goesTo(2, blue)) return;
        prepare();
    }
};

TEST(FaultsOfTheHistory, AStepIsKeptOrSomethingIsSaid)
{
    Prepared p;
    everyFault([&](Call call, std::int64_t n) {
        SCOPED_TRACE(testing::Message() << nameOf(call) << " " << n);
        p.bringBack();
        p.fill("#101010"); // succeeds: the next trouble is news
        p.s->must("menu undo:");
        p.s.closeNotices();
        p.s->must("set mColorWell #00ff00");
        p.s->must("menu selectAll:");
        const auto outcome = p.s.attack("menu fill:", call, n);
        EXPECT_TRUE(outcome.lives);
        if (!outcome.lives) return p.revive(), outcome.struck;
        const QByteArray now = p.s.picture();
        if (now == p.blue) { // nothing was done
            EXPECT_TRUE(p.s.saysSomething(outcome));
        } else {
            EXPECT_EQ(p.current(), 3);
            p.s->must("menu undo:");
            const bool isRight = p.s.picture() == p.blue;
            EXPECT_TRUE(isRight || p.s.saysSomething(outcome)) << "the step is lost and nothing was said";
            p.s.answerAll();
            if (isRight) {
                p.s->must("menu redo:");
                EXPECT_TRUE(p.s.picture() == now || p.s.saysSomething(outcome)) << told(outcome);
                p.s.answerAll();
            }
        }
        EXPECT_EQ(p.s.leftovers("Zelpane Undo Support"), QStringList());
        return outcome.struck;
    });
}

TEST(FaultsOfTheHistory, UndoAndRedoArriveOrStayAndSaySo)
{
    Prepared p;
    struct Way {
        const char* line;
        int from, to;
    };
    for (const Way way : {Way{"menu undo:", 2, 1}, Way{"menu redo:", 0, 1}, Way{"history-go 0", 2, 0}})
        everyFault(
            [&](Call call, std::int64_t n) {
                SCOPED_TRACE(testing::Message() << way.line << ", " << nameOf(call) << " " << n);
                p.bringBack();
                p.s->must("history-go " + QString::number(way.from));
                const QByteArray pictures[] = {p.opened, p.red, p.blue};
                const auto outcome = p.s.attack(way.line, call, n);
                EXPECT_TRUE(outcome.lives);
                if (!outcome.lives) return p.revive(), outcome.struck;
                const int step = p.current();
                EXPECT_GE(step, 0);
                EXPECT_LE(step, 2);
                EXPECT_TRUE(p.s.picture() == pictures[std::clamp(step, 0, 2)] || p.s.saysSomething(outcome))
                    << "another picture than step " << step;
                if (step != way.to) {
                    EXPECT_TRUE(p.s.saysSomething(outcome)) << "it stays at " << step;
                }
                EXPECT_EQ(p.s.leftovers("Zelpane Undo Support"), QStringList());
                return outcome.struck;
            },
            4);
}

/// A program that was killed left its work; the next one, under attack from its first call on, recovers it or leaves it
/// for the one after.
TEST(FaultsOfTheRecovery, NeverLoseWhatWasLeft)
{
    QTemporaryDir home;
    const QString left = home.filePath("Zelpane Undo Support"), kept = home.filePath("kept");
    QByteArray picture;
    const auto pictureOf = [&](Session& session) {
        session.must("write-bitmap " + home.filePath("picture.pam"));
        QFile file(home.filePath("picture.pam"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    {
        Session s({"--no-start-choice"}, home.path());
        s.newImage(400, 300);
        s.play({"set mColorWell #c04020", "menu selectAll:", "menu fill:", "wait"});
        picture = pictureOf(s);
        s.kill();
    }
    ASSERT_TRUE(QDir().rename(left, kept));
    const auto putBack = [&] {
        for (const QString& name : QDir(home.path()).entryList({"Zelpane Undo*"}, QDir::Dirs | QDir::Hidden))
            QDir(home.filePath(name)).removeRecursively();
        QDir().mkpath(left);
        QFile::setPermissions(left, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        for (const QString& name : QDir(kept).entryList(QDir::Files | QDir::Hidden))
            QFile::copy(kept + "/" + name, left + "/" + name);
    };
    const QStringList arguments{"--no-start-choice", "--offer-recovery"};
    FaultControl control;
    // Answers the offer as a person would. @return whether the work is on screen
    const auto recovers = [&](Session& s, bool& lives) {
        s.send("alert");
        lives = s.takeAnswer();
        if (!lives) return false;
        const QJsonObject alert = s.must("alert")["alert"].toObject();
        if (!alert["title"].toString().contains("recover")) return false;
        s.send("answer Recover");
        lives = s.takeAnswer() && s.settles();
        if (!lives) return false;
        for (QJsonObject up; !(up = s.must("alert")["alert"].toObject()).isEmpty();)
            s.must("answer \"" + up["buttons"].toArray().last().toString() + "\"");
        return s.must("image")["loaded"].toBool() && pictureOf(s) == picture;
    };
    const int more = qEnvironmentVariableIsSet("ZP_LONG") ? 0 : 12; // a start each
    int struckCalls = 0;
    for (const Call call : zp::faults::kCalls) {
        std::int64_t n = 1;
        for (int tried = 0;; ++tried, ++struckCalls, n += 1 + tried * tried * more / 4) {
            SCOPED_TRACE(testing::Message() << nameOf(call) << " " << n);
            putBack();
            control.arm(call, n, 400 << 10);
            bool lives = false, recovered = false;
            {
                Session s(arguments, home.path(), control.variables(home.path()));
                recovered = recovers(s, lives);
                if (recovered) {
                    EXPECT_EQ(s.end(), 0);
                } else if (!lives) { // a start without memory is none, and says so
                    EXPECT_TRUE(s.process().state() == QProcess::NotRunning || s.finishes());
                    EXPECT_EQ(s.process().exitStatus(), QProcess::NormalExit);
                    EXPECT_TRUE(s.process().readAllStandardError().contains("there is not enough memory"));
                }
            }
            const bool struck = control.disarm();
            if (!recovered) {
                Session next(arguments, home.path());
                EXPECT_TRUE(recovers(next, lives)) << "what was left is lost";
            }
            if (!struck || HasFatalFailure()) break;
        }
    }
    EXPECT_GT(struckCalls, 0);
    std::printf("%d calls failed\n", struckCalls);
}

} // namespace
