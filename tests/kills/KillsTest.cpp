// SPDX-License-Identifier: GPL-3.0-or-later
/// Whatever is being written when the program is killed is there as it was, or as it was to become.
#include "codecs/ImageImporter.h"
#include "support/Samples.h"
#include "support/Session.h"
#include <QDirIterator>
#include <random>
#include <set>
#include <unistd.h>

using zp::test::sample;
using zp::test::Session;

namespace
{

int rounds() { return qEnvironmentVariableIsSet("ZP_LONG") ? 500 : 25; }

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The moments differ from run to run; the seed stands in the log of a run that failed.
std::mt19937& chance()
{
    static const unsigned seed = std::random_device{}();
    static std::mt19937 numbers(seed);
    testing::Test::RecordProperty("seed", int(seed));
    return numbers;
}

int upTo(int most) { return int(chance()() % unsigned(most + 1)); }

struct Writing {
    const char* name;
    const char* file;         ///< what is written, below the home folder
    const char* first;        ///< a line that writes it one way,
    const char* other;        ///< and one that writes it the other way, each after its preparation
    const char* prepareFirst; ///< lines, semicolons between them
    const char* prepareOther;
    const char* begin = "open HOME/a.jpg;menu selectAll:"; ///< after each start
};

QStringList linesOf(const QString& lines, const QString& home)
{
    return QString(lines).replace("HOME", home).split(';', Qt::SkipEmptyParts);
}

/// What an interrupted writing leaves beside a file, below @p folder.
QStringList leftovers(const QString& folder)
{
    QStringList found;
    QDirIterator every(folder, {".zelpane-*", "*.part"}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (every.hasNext()) found << every.next();
    return found;
}

/// For the message of a failure: settings are text, and say themselves what is wrong with them.
std::string beginOf(const QByteArray& file)
{
    return file.contains('\0') ? std::string() : "\n" + file.left(1000).toStdString();
}

/// Two contents are written in turn, over each other, until the kill; then the file must be one of the two.
class Kills : public testing::TestWithParam<Writing>
{
};

TEST_P(Kills, LeaveOneOfTheTwoFiles)
{
    const Writing& w = GetParam();
    QTemporaryDir home;
    QFile::copy(QString::fromStdString(sample("photos/seeding-600-cmyk.jpg")), home.filePath("a.jpg"));
    const QString file = home.filePath(w.file);
    std::set<QByteArray> right;
    const auto start = [&] {
        auto session = std::make_unique<Session>(QStringList{"--no-start-choice"}, home.path());
        if (!session->must("alert")["alert"].isNull()) session->must("answer Discard");
        for (const QString& line : linesOf(w.begin, home.path())) session->must(line);
        return session;
    };
    const auto write = [&](Session& s, bool other, bool wait) {
        const QString lines = QString(other ? w.prepareOther : w.prepareFirst) + ";" + (other ? w.other : w.first);
        for (const QString& line : linesOf(lines, home.path())) wait ? void(s.must(line)) : s.send(line);
    };
    EXPECT_EQ(start()->end(), 0); // settings hold the windows' frames from the first end on
    {
        const auto s = start();
        for (const bool other : {false, true}) {
            write(*s, other, true);
            s->must("sleep 0.05");
            right.insert(contents(file));
        }
        ASSERT_EQ(right.size(), 2u);
        ASSERT_FALSE(right.count(QByteArray())) << file.toStdString();
        EXPECT_EQ(s->end(), 0);
    }
    std::set<QByteArray> met;
    for (int round = 0; round < rounds(); ++round) {
        const auto s = start();
        for (int i = 0; i < 40; ++i) write(*s, i % 2, false);
        // In the midst of any of them, however slow the machine: answers are what tells how far it came.
        for (int i = upTo(60); i > 0; --i) s->takeAnswer();
        usleep(useconds_t(upTo(5'000)));
        s->kill();
        const QByteArray now = contents(file);
        EXPECT_TRUE(right.count(now)) << "round " << round << ": " << now.size() << " bytes" << beginOf(now);
        met.insert(now);
        if (HasFailure()) break;
    }
    EXPECT_GE(met.size(), 2u) << "the moments are all the same";
    // What the kills left beside the file goes when the next program writes there.
    const auto s = start();
    for (const bool other : {false, true}) write(*s, other, true); // one of them is a change
    s->must("sleep 0.05");
    EXPECT_EQ(s->end(), 0);
    EXPECT_EQ(QFileInfo(file).dir().entryList({".zelpane-*"}, QDir::Files | QDir::Hidden), QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    OfWriting, Kills,
    testing::Values(Writing{"TIFF", "b.tiff", "send saveImageAsTIFF: HOME/b.tiff", "send saveImageAsTIFF: HOME/b.tiff",
                            "menu rotateCW:", "menu rotateCCW:"},
                    Writing{"JPEG", "b.jpg", "send saveImageAsJPEG: HOME/b.jpg", "send saveImageAsJPEG: HOME/b.jpg",
                            "menu rotateCW:", "menu rotateCCW:"},
                    Writing{"PNG", "b.png", "send saveImageAsPNG: HOME/b.png", "send saveImageAsPNG: HOME/b.png",
                            "menu rotateCW:", "menu rotateCCW:"},
                    Writing{"Selection", "chosen", "send saveSelection: HOME/chosen", "send saveSelection: HOME/chosen",
                            "menu selectAll:", "press 10 10;drag 200 150;release 200 150"},
                    Writing{"QuickSave", "b.tiff", "send quickSave: HOME/b.tiff", "send quickSave: HOME/b.tiff",
                            "menu rotateCW:", "menu rotateCCW:"},
                    Writing{"Preferences", ".config/zelpane/zelpane.conf", "sleep 0.001", "sleep 0.001",
                            "set mUnitPopUp #1", "set mUnitPopUp #2",
                            "menu prefs:;set mPageField https://example.org/kept;key Return"}),
    [](const auto& one) { return std::string(one.param.name); });

/// The picture is filled with one colour after the other, each a step, until the kill; the next start offers one of
/// those pictures, with the steps before it.
TEST(KillsOfSnapshots, LeaveAWholePictureWithItsSteps)
{
    QTemporaryDir home;
    const QStringList offering{"--no-start-choice", "--offer-recovery"};
    const std::vector<std::vector<int>> colours = {{255, 255, 0, 0}, {255, 0, 0, 255}, {255, 0, 255, 0}};
    const char* const names[] = {"#ff0000", "#0000ff", "#00ff00"};
    const auto isOneColour = [&](Session& s, const std::vector<int>& colour) {
        return s.pixel(3, 3) == colour && s.pixel(150, 110) == colour && s.pixel(297, 217) == colour;
    };
    std::set<int> stepsMet;
    for (int round = 0; round < rounds(); ++round) {
        SCOPED_TRACE(round);
        {
            Session s({"--no-start-choice"}, home.path());
            s.newImage(300, 220);
            s.play({"menu selectAll:", "set mColorWell #ffffff", "menu fill:", "wait"}); // that much is there
            for (int i = 0; i < 12; ++i) {
                s.send(QString("set mColorWell ") + names[i % 3]);
                s.send("menu fill:");
                if (i % 4 == 3) s.send("menu undo:");
            }
            for (int i = upTo(26); i > 0; --i) s.takeAnswer(); // in the midst of any of them, however slow the machine
            usleep(useconds_t(upTo(5'000)));
            s.kill();
        }
        Session next(offering, home.path());
        ASSERT_TRUE(next.must("alert")["alert"].toObject()["title"].toString().contains("recover"));
        next.must("answer Recover");
        next.must("wait");
        const int step = next.must("history")["current"].toInt(-1);
        stepsMet.insert(step);
        ASSERT_GE(step, 1);
        const std::vector<int> now = next.pixel(150, 110);
        EXPECT_TRUE(isOneColour(next, now)) << "half of a step";
        EXPECT_TRUE(now == (std::vector<int>{255, 255, 255, 255}) ||
                    std::find(colours.begin(), colours.end(), now) != colours.end());
        for (int number = step; number > 1; --number) next.must("menu undo:");
        EXPECT_TRUE(isOneColour(next, {255, 255, 255, 255})) << "the steps before it";
        EXPECT_TRUE(next.must("alert")["alert"].isNull());
        EXPECT_EQ(next.end(), 0);
        EXPECT_EQ(QDir(home.path()).entryList({"Zelpane Undo*"}, QDir::Dirs | QDir::Hidden), QStringList());
        EXPECT_EQ(leftovers(home.path()), QStringList());
        if (HasFailure()) break;
    }
    EXPECT_GT(stepsMet.size(), 1u) << "the moments are all the same";
}

TEST(KillsOfABatch, LeaveWholeResultsAndTheSameFolderInTheEnd)
{
    QTemporaryDir folder;
    const QString in = folder.filePath("in"), out = folder.filePath("out"), right = folder.filePath("right");
    for (const QString& made : {in, out, right}) QDir().mkpath(made);
    for (int i = 0; i < 6; ++i)
        QFile::copy(
            QString::fromStdString(sample(i % 2 ? "photos/seeding-600-grey.jpg" : "made/exif/orientation-6.jpg")),
            in + QString("/%1.jpg").arg(i));
    const auto start = [&](const QString& to, QProcess& process) {
        process.start(ZP_PROGRAM, {"--batch", in, to, "--tiff", "--jpeg", "--fit", "300x300", "--skip-existing"});
        ASSERT_TRUE(process.waitForStarted());
    };
    QProcess whole;
    start(right, whole);
    ASSERT_TRUE(whole.waitForFinished(60'000));
    for (int round = 0; round < rounds(); ++round) {
        for (const QString& name : QDir(out).entryList(QDir::Files | QDir::Hidden)) QFile::remove(out + "/" + name);
        QProcess process;
        start(out, process);
        usleep(useconds_t(upTo(120'000)));
        process.kill();
        process.waitForFinished();
        for (const QString& name : QDir(out).entryList(QDir::Files)) // without what begins with a dot
            ASSERT_EQ(contents(out + "/" + name), contents(right + "/" + name)) << name.toStdString();
        QProcess again;
        start(out, again);
        ASSERT_TRUE(again.waitForFinished(60'000));
        EXPECT_EQ(again.exitCode(), 0);
        EXPECT_EQ(QDir(out).entryList(QDir::Files), QDir(right).entryList(QDir::Files));
    }
}

} // namespace
