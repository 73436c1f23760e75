// SPDX-License-Identifier: GPL-3.0-or-later
/// Every place where the system can refuse, refused once: the program lives, files are old or new, and it is said.
#include "faults/Attack.h"
#include <QProcess>
#include <set>

using namespace zp::test;
using zp::faults::Call;

namespace
{

std::string told(const QStringList& sentences) { return sentences.join(" / ").toStdString(); }

void openSample(AttackedSession& s, const char* name = "made/valid/base.png")
{
    s->must("open " + QString::fromStdString(sample(name)));
    s->must("wait");
}

TEST(Faults, OfSavingLeaveTheOldFileOrTheNewOne)
{
    for (const char* const operation : {"TIFF:tiff", "JPEG:jpg", "PNG:png"}) {
        AttackedSession s;
        openSample(s, "made/exif/orientation-1.tif");
        const QString kind = QString(operation).section(':', 0, 0), name = "a." + QString(operation).section(':', 1);
        const QString line = "send saveImageAs" + kind + ": " + s.file(name);
        s->must(line);
        const QByteArray fresh = s.read(name), old = "the file that was there", before = s.picture();
        ASSERT_GT(fresh.size(), 100);
        everyFault([&](Call call, std::int64_t n) {
            SCOPED_TRACE(testing::Message() << operation << ", " << nameOf(call) << " " << n);
            s.write(name, old);
            const auto outcome = s.attack(line, call, n);
            EXPECT_TRUE(outcome.lives);
            if (!outcome.lives) {
                s.restart();
                openSample(s, "made/exif/orientation-1.tif");
                return outcome.struck;
            }
            const QByteArray now = s.read(name);
            EXPECT_TRUE(now == old || now == fresh) << now.size() << " bytes";
            if (now == old) {
                EXPECT_EQ(outcome.sentences.size(), 1) << told(outcome.sentences);
            }
            EXPECT_EQ(s.leftovers(), QStringList());
            EXPECT_EQ(s.picture(), before);
            return outcome.struck;
        });
    }
}

TEST(Faults, OfOpeningLeaveAPictureOrSayWhy)
{
    AttackedSession s;
    for (const char* const name :
         {"made/valid/base.tif", "made/valid/base.jpg", "made/valid/base.png", "made/gif/no-trailer.gif"}) {
        const QString line = "open " + QString::fromStdString(sample(name));
        s->must(line);
        s.answerAll();
        const QByteArray wanted = s.picture();
        ASSERT_NE(wanted, "none") << name;
        everyFault([&](Call call, std::int64_t n) {
            SCOPED_TRACE(testing::Message() << name << ", " << nameOf(call) << " " << n);
            const auto outcome = s.attack(line, call, n);
            EXPECT_TRUE(outcome.lives);
            if (!outcome.lives) return s.restart(), outcome.struck;
            if (s.picture() != wanted) {
                EXPECT_EQ(outcome.sentences.size(), 1) << told(outcome.sentences);
            }
            return outcome.struck;
        });
    }
}

TEST(Faults, OfSavingASelectionLeaveTheOldOneOrTheNewOne)
{
    AttackedSession s;
    openSample(s);
    s->must("menu selectAll:");
    const QString name = "selection", line = "send saveSelection: " + s.file(name);
    s->must(line);
    const QByteArray fresh = s.read(name), old = "the selection that was there";
    ASSERT_GT(fresh.size(), 10);
    everyFault([&](Call call, std::int64_t n) {
        SCOPED_TRACE(testing::Message() << nameOf(call) << " " << n);
        s.write(name, old);
        const auto outcome = s.attack(line, call, n);
        EXPECT_TRUE(outcome.lives);
        if (!outcome.lives) {
            s.restart();
            openSample(s);
            s->must("menu selectAll:");
            return outcome.struck;
        }
        const QByteArray now = s.read(name);
        EXPECT_TRUE(now == old || now == fresh) << now.toStdString();
        if (now == old) {
            EXPECT_EQ(outcome.sentences.size(), 1) << told(outcome.sentences);
        }
        EXPECT_EQ(s.leftovers(), QStringList());
        return outcome.struck;
    });
}

/// What is set before the attack is there after it, whatever became of the change under attack.
TEST(Faults, LeaveThePreferencesThatWereThere)
{
    AttackedSession s;
    const QString file = ".config/zelpane/zelpane.conf";
    s->must("menu prefs:");
    s->must("set mUnitPopUp #1");
    s->must("set mPageField https://example.org/mine");
    s->must("key Return");
    s->must("sleep 0.2");
    const auto isWhole = [&] {
        const QByteArray now = s.read(file);
        return now.contains("unit=") && now.contains("example.org/mine");
    };
    ASSERT_TRUE(isWhole()) << s.read(file).toStdString();
    int unit = 0;
    everyFault([&](Call call, std::int64_t n) {
        SCOPED_TRACE(testing::Message() << nameOf(call) << " " << n);
        s.control().arm(call, n);
        s->send(QString("set mUnitPopUp #%1").arg(unit++ % 4));
        bool lives = s->takeAnswer();
        s->send("sleep 0.03"); // settings are written from the event loop
        lives = lives && s->takeAnswer();
        const bool struck = s.control().disarm();
        EXPECT_TRUE(lives);
        EXPECT_TRUE(isWhole()) << s.read(file).toStdString();
        if (!lives) s.restart(), s->must("menu prefs:");
        s.answerAll();
        return struck;
    });
    // A program that cannot read its settings does not write them anew.
    for (const Call call : {Call::Open, Call::Map})
        for (int n = 1; n < 400; n += 1 + n / 8) {
            SCOPED_TRACE(testing::Message() << "at the start: " << nameOf(call) << " " << n);
            s.control().arm(call, n);
            Session started({"--no-start-choice"}, s.file(""), s.control().variables(s.file("")));
            started.send("menu prefs:");
            started.takeAnswer();
            const bool struck = s.control().disarm();
            started.send("set mUnitPopUp #2");
            started.takeAnswer();
            started.process().closeWriteChannel();
            EXPECT_TRUE(started.finishes());
            EXPECT_EQ(started.process().exitStatus(), QProcess::NormalExit);
            EXPECT_TRUE(isWhole()) << s.read(file).toStdString();
            if (!struck) break;
        }
}

TEST(Faults, OfABatchLeaveWholeResultsAndAnHonestStatus)
{
    QTemporaryDir home;
    const QString in = home.filePath("in"), out = home.filePath("out"), right = home.filePath("right");
    for (const QString& folder : {in, out, right}) QDir().mkpath(folder);
    QFile::copy(QString::fromStdString(sample("made/exif/orientation-1.tif")), in + "/a.tiff");
    QFile::copy(QString::fromStdString(sample("made/exif/orientation-6.jpg")), in + "/b.jpg");
    QFile::copy(QString::fromStdString(sample("made/valid/base.jpg")), in + "/c.jpg");
    FaultControl control;
    const auto run = [&](const QString& to, QByteArray& errors) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("ZELPANE_TMP", home.path());
        for (const auto& [name, value] : control.variables(home.path())) environment.insert(name, value);
        process.setProcessEnvironment(environment);
        process.start(ZP_PROGRAM, {"--batch", in, to, "--tiff", "--jpeg", "--fit", "100x100", "--jobs", "2"});
        EXPECT_TRUE(process.waitForFinished(60'000));
        errors = process.readAllStandardError();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << errors.toStdString();
        return process.exitCode();
    };
    QByteArray errors;
    ASSERT_EQ(run(right, errors), 0) << errors.toStdString();
    const auto contents = [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    everyFault(
        [&](Call call, std::int64_t n) {
            SCOPED_TRACE(testing::Message() << nameOf(call) << " " << n);
            for (const QString& name : QDir(out).entryList(QDir::Files | QDir::Hidden)) QFile::remove(out + "/" + name);
            control.arm(call, n);
            const int status = run(out, errors);
            const bool struck = control.disarm();
            const QStringList made = QDir(out).entryList(QDir::Files | QDir::Hidden);
            for (const QString& name : made)
                EXPECT_EQ(contents(out + "/" + name), contents(right + "/" + name)) << name.toStdString();
            EXPECT_EQ(status, made.size() == 6 ? 0 : 1) << errors.toStdString();
            if (status == 1) {
                EXPECT_FALSE(errors.isEmpty());
            }
            return struck;
        },
        4);
}

/// Each row of the menus, with memory and threads running out: the picture is as before or as it was to become, and a
/// command that could not be done says a sentence.
TEST(Faults, OfEachCommandLeaveThePictureAsBeforeOrAfter)
{
    // A picture's worth of memory: the toolkit's own painting does not live through small pieces that are refused.
    constexpr std::uint64_t kLeast = 700 << 10;
    // Those that leave the program, and the rooms whose own tests are elsewhere.
    const std::set<QString> without = {"terminate:", "help:", "undo:", "redo:", "openWithPreview:", "runPageLayout:"};
    AttackedSession s;
    const QString photograph = s.file("photograph.jpg"); // a copy of its own: it will be saved over
    const auto prepare = [&] {
        QFile::remove(photograph);
        ASSERT_TRUE(QFile::copy(QString::fromStdString(sample("photos/seeding-600-cmyk.jpg")), photograph));
        s->must("open " + photograph);
        s->must("send setColor:atPoint: 0xff0000ff 3 3");
        s->must("menu selectAll:");
        s.answerAll();
    };
    prepare();
    s->must("menu copy:");
    int struck = 0;
    const QJsonArray items = s->must("menus")["items"].toArray();
    ASSERT_GT(items.size(), 20);
    for (const QJsonValue& value : items) {
        const QString action = value.toObject()["action"].toString();
        if (action.isEmpty() || without.count(action)) continue;
        const QString line = "menu " + action;
        prepare();
        const QByteArray before = s.picture();
        if (!s->ask(line)["ok"].toBool()) continue; // cannot be chosen now
        s.answerAll();
        s->must("wait");
        const QByteArray after = s.picture();
        for (const Call call : {Call::Map, Call::Allocate, Call::Thread}) {
            std::int64_t n = 1;
            const bool all = qEnvironmentVariableIsSet("ZP_LONG");
            for (int tried = 0; tried < (all ? 200 : 4); ++tried, n += all ? 1 : 1 + tried) {
                SCOPED_TRACE(testing::Message() << action.toStdString() << ", " << nameOf(call) << " " << n);
                prepare();
                const auto outcome = s.attack(line, call, n, kLeast);
                EXPECT_TRUE(outcome.lives);
                if (!outcome.lives) {
                    s.restart();
                    continue;
                }
                s->must("wait");
                const QByteArray now = s.picture();
                EXPECT_TRUE(now == before || now == after);
                if (now == before && before != after) {
                    EXPECT_FALSE(outcome.sentences.empty() && outcome.struck) << "nothing was said";
                }
                if (!outcome.struck) break;
                ++struck;
            }
        }
    }
    EXPECT_GT(struck, 0) << "the injector reached nothing";
    std::printf("%d calls failed\n", struck);
}

} // namespace
