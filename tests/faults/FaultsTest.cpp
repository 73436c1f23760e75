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

/// A command with what goes before it, lines each; HOME stands for the home folder.
struct Attacked {
    QStringList before;
    QString line;
};

/// What no item of a menu reaches: operations sent to the canvas, the dialogs' buttons, gestures.
std::vector<Attacked> commandsBeyondTheMenus()
{
    std::vector<Attacked> all;
    for (const char* const sent : {"newImageForMeWithSize: 500 400",
                                   "setImageSize:scale: 300 200 1",
                                   "setImageSize:scale: 700 800 0",
                                   "quickSave: HOME/quick.tiff",
                                   "saveImageToPath: HOME/saved.png",
                                   "saveSelection: HOME/chosen",
                                   "loadSelection: HOME/chosen",
                                   "makeBGBlack",
                                   "magentaClear",
                                   "makeSelection",
                                   "inverseMask",
                                   "clearSelectionMask",
                                   "clearSelectionMaskINVERT",
                                   "selectionPathToMask",
                                   "selectionPathToMaskINVERT",
                                   "clearSelection",
                                   "restoreSnapshot: 0",
                                   "takeSnapshot",
                                   "writeAlphaRLEToFile: HOME/alpha.rle",
                                   "readAlphaRLEFile: HOME/alpha.rle",
                                   "placeWatermark:atPoint:alpha: HOME/mark.png 10 10 0.5",
                                   "magicWand: 20 20",
                                   "magicWandOver: 20 20",
                                   "floodFillScanlineStackFast: 20 20",
                                   "floodFillScanlineStack: 20 20",
                                   "floodFill4Stack: 20 20",
                                   "setColor:atPoint: 0xff00ff00 5 5"})
        all.push_back({{}, QString("send ") + sent});
    for (const char* const floating : {"transform_set: 150 30", "adjust_set: 40 120 0.1 1.1 0.5", "anchorSelection"})
        all.push_back({{"menu anchorSelection:"}, QString("send ") + floating});
    for (const auto& [dialog, change, button] :
         {std::tuple("menu transform:", "set mTransform_Rotate_Slider 30", "click transform_apply:"),
          std::tuple("menu adjust:", "set mAdjust_HueSlider 40", "click adjust_apply:"),
          std::tuple("menu resize:", "set mResize_Width 300", "click resize_ok:"),
          std::tuple("menu saveSelection:", "set mSaveSelection_NameField one", "click saveSelection_save:")}) {
        all.push_back({{dialog}, change});
        all.push_back({{dialog, change}, button});
    }
    return all;
}

/// Each command, with memory and threads running out, in the long form whatever else can be refused: the picture is as
/// before or as it was to become, and a command that could not be done says a sentence.
TEST(Faults, OfEachCommandLeaveThePictureAsBeforeOrAfter)
{
    // A picture's worth of memory: the toolkit's own painting does not live through small pieces that are refused.
    constexpr std::uint64_t kLeast = 700 << 10;
    const bool all = qEnvironmentVariableIsSet("ZP_LONG");
    // Those that leave the program, and what has a test of its own.
    const std::set<QString> without = {"terminate:", "help:", "undo:", "redo:", "openWithPreview:", "runPageLayout:"};
    AttackedSession s;
    const QString photograph = s.file("photograph.jpg"); // a copy of its own: it will be saved over
    QFile::copy(QString::fromStdString(sample("made/valid/base.png")), s.file("mark.png"));
    const auto prepare = [&](const QStringList& lines) {
        QFile::remove(photograph);
        ASSERT_TRUE(QFile::copy(QString::fromStdString(sample("photos/seeding-600-cmyk.jpg")), photograph));
        s->must("open " + photograph);
        s->must("send setColor:atPoint: 0xff0000ff 3 3");
        s->must("menu selectAll:");
        s.answerAll();
        s.closeNotices();
        for (const QString& line : lines) s->must(line);
    };
    prepare({});
    s->must("menu copy:");
    s->must("send writeAlphaRLEToFile: " + s.file("alpha.rle"));
    s->must("send saveSelection: " + s.file("chosen"));
    std::vector<Attacked> commands;
    for (const QJsonValue& item : s->must("menus")["items"].toArray())
        if (const QString action = item.toObject()["action"].toString(); !action.isEmpty() && !without.count(action))
            commands.push_back({{}, "menu " + action});
    ASSERT_GT(commands.size(), 20u);
    for (const Attacked& one : commandsBeyondTheMenus()) commands.push_back(one);
    std::vector<Call> calls = {Call::Map, Call::Allocate, Call::Thread};
    if (all) calls.assign(std::begin(zp::faults::kCalls), std::end(zp::faults::kCalls));
    int struck = 0, chosen = 0;
    for (const auto& [lines, command] : commands) {
        const QString line = QString(command).replace("HOME", s.file(""));
        prepare(lines);
        // A step by its number: of its two halves, what is not there is passed over.
        const bool isSilent = line.startsWith("send restoreSnapshot:");
        const QByteArray before = s.picture();
        s.control().count(kLeast);
        if (!s->ask(line)["ok"].toBool()) continue; // cannot be chosen now
        ++chosen;
        s->must("wait");
        std::map<Call, std::int64_t> met;
        for (const Call call : calls) met[call] = s.control().met(call);
        s.answerAll();
        s->must("wait");
        const QByteArray after = s.picture();
        for (const Call call : calls) {
            std::int64_t n = 1;
            for (int tried = 0; tried < (all ? 200 : 3) && n <= met[call]; ++tried, n += all ? 1 : 1 + tried) {
                SCOPED_TRACE(testing::Message() << line.toStdString() << ", " << nameOf(call) << " " << n);
                prepare(lines);
                const auto outcome = s.attack(line, call, n, kLeast);
                EXPECT_TRUE(outcome.lives);
                if (!outcome.lives) {
                    s.restart();
                    continue;
                }
                s->must("wait");
                const QByteArray now = s.picture();
                // Colours may be off by a little where that is said.
                EXPECT_TRUE(now == before || now == after || outcome.notice.contains("comes from its JPEG copy"));
                if (now == before && before != after && !isSilent) {
                    EXPECT_TRUE(s.saysSomething(outcome) || !outcome.struck) << "nothing was said";
                }
                if (!outcome.struck) break;
                ++struck;
            }
        }
    }
    EXPECT_GT(chosen, 60) << "most commands can be chosen";
    EXPECT_GT(struck, 0) << "the injector reached nothing";
    std::printf("%d commands, %d calls failed\n", chosen, struck);
}

} // namespace
