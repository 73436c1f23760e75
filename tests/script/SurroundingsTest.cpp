// SPDX-License-Identifier: GPL-3.0-or-later
/// What the system around the program may do: signals, several starts at once, things in place of its files.
#include "support/ProcessLook.h"
#include "support/Samples.h"
#include "support/Session.h"
#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using zp::test::Session;

namespace
{

/// The program as a person starts it, without a screen.
class Started
{
public:
    Started(const QString& home, QStringList arguments = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home);
        environment.insert("ZELPANE_TMP", home);
        environment.insert("XDG_RUNTIME_DIR", home + "/runtime");
        for (const char* unwanted : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            environment.remove(unwanted);
        mProcess.setProcessEnvironment(environment);
        mProcess.start(ZP_PROGRAM, QStringList{"--offscreen", "--no-start-choice"} + arguments);
        EXPECT_TRUE(mProcess.waitForStarted());
    }
    ~Started()
    {
        mProcess.kill();
        mProcess.waitForFinished();
    }
    bool isRunning() { return !mProcess.waitForFinished(0) && mProcess.state() == QProcess::Running; }
    bool endedWell(int milliseconds = 30'000)
    {
        return (!isRunning() || mProcess.waitForFinished(milliseconds)) &&
               mProcess.exitStatus() == QProcess::NormalExit && mProcess.exitCode() == 0;
    }
    qint64 process() const { return mProcess.processId(); }
    void signal(int number) { ::kill(pid_t(mProcess.processId()), number); }

private:
    QProcess mProcess;
};

QString makeHome(QTemporaryDir& folder)
{
    QDir().mkpath(folder.path() + "/runtime");
    QFile::setPermissions(folder.path() + "/runtime", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder.path();
}

QStringList sockets(const QString& home)
{
    return QDir(home + "/runtime").entryList({"zelpane-*"}, QDir::System | QDir::NoDotAndDotDot);
}

bool eventually(const std::function<bool()>& holds)
{
    for (int i = 0; i < 600; ++i) {
        if (holds()) return true;
        usleep(50'000);
    }
    return false;
}

TEST(Surroundings, ASignalEndsTheProgramInOrderAndTheWorkIsOfferedAtTheNextStart)
{
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        SCOPED_TRACE(number);
        QTemporaryDir home;
        std::vector<int> painted;
        {
            Session s({"--no-start-choice"}, home.path());
            s.newImage(40, 30);
            s.play({"set mColorWell #c04020", "menu selectAll:", "menu fill:", "wait"});
            painted = s.pixel(20, 15);
            if (number == SIGINT) s.must("menu prefs:");
            if (number == SIGHUP) s.must("menu resize:"); // a dialog stands in the way
            ::kill(pid_t(s.process().processId()), number);
            EXPECT_TRUE(s.ended());
        }
        Session next({"--no-start-choice", "--offer-recovery"}, home.path());
        EXPECT_TRUE(next.must("alert")["alert"].toObject()["title"].toString().contains("recover"))
            << "nothing is offered";
        next.must("answer Recover");
        next.must("wait");
        EXPECT_EQ(next.pixel(20, 15), painted);
    }
}

TEST(Surroundings, TheSocketGoesWithTheProgram)
{
    QTemporaryDir folder;
    const QString home = makeHome(folder);
    Started program(home);
    ASSERT_TRUE(eventually([&] { return !sockets(home).isEmpty(); }));
    program.signal(SIGTERM);
    EXPECT_TRUE(program.endedWell());
    EXPECT_EQ(sockets(home), QStringList());
}

TEST(Surroundings, EightStartsAtOnceGiveOneProgram)
{
    QTemporaryDir folder;
    const QString home = makeHome(folder);
    std::vector<std::unique_ptr<Started>> starts;
    for (int i = 0; i < 8; ++i) starts.push_back(std::make_unique<Started>(home));
    const auto running = [&] {
        return std::count_if(starts.begin(), starts.end(), [](const auto& start) { return start->isRunning(); });
    };
    EXPECT_TRUE(eventually([&] { return running() == 1; })) << running() << " run";
    for (auto& start : starts)
        if (!start->isRunning()) {
            EXPECT_TRUE(start->endedWell());
        }
    EXPECT_EQ(sockets(home).size(), 1);
}

TEST(Surroundings, ADecoderWaitsForAPictureThatComesUnannounced)
{
    QTemporaryDir folder;
    Started program(makeHome(folder));
    QList<pid_t> decoders;
    ASSERT_TRUE(eventually([&] { return !(decoders = zp::test::decodersOf(program.process())).isEmpty(); }));
    EXPECT_EQ(decoders.size(), 1);
    program.signal(SIGTERM);
    EXPECT_TRUE(program.endedWell());
    EXPECT_TRUE(eventually([&] { return ::kill(decoders[0], 0) != 0; })) << "it outlives the program";
}

TEST(Surroundings, ThingsInPlaceOfItsFilesHangNeitherStartNorEnd)
{
    const QStringList places = {".config/zelpane/zelpane.conf",
                                ".config/zelpane/zelpane.conf.lock",
                                ".local/share/zelpane/Contents/Resources/2xRetina.txt",
                                "Library/Application Support/Zelpane",
                                "runtime/zelpane-x",
                                ".local/share/recently-used.xbel",
                                "Zelpane Undo Support",
                                ".cache/thumbnails",
                                "Pictures/Zelpane Image Library"};
    struct Thing {
        const char* name;
        std::function<void(const QByteArray&)> put;
    };
    const std::vector<Thing> things = {
        {"a pipe", [](const QByteArray& path) { ::mkfifo(path, 0600); }},
        {"a folder", [](const QByteArray& path) { ::mkdir(path, 0700); }},
        {"a link to a device", [](const QByteArray& path) { (void)!::symlink("/dev/full", path); }},
        {"a link round in a circle", [](const QByteArray& path) { (void)!::symlink(path, path); }},
        {"a file without rights", [](const QByteArray& path) { ::close(::open(path, O_CREAT | O_WRONLY, 0)); }},
        {"another user's file", // where the test may make one; else a file of one's own
         [](const QByteArray& path) {
             ::close(::open(path, O_CREAT | O_WRONLY, 0600));
             (void)!::chown(path, 65534, 65534);
         }},
    };
    const bool all = qEnvironmentVariableIsSet("ZP_LONG");
    for (const QString& place : places)
        for (const Thing& thing : things) {
            if (!all && &thing != &things.front()) continue; // the pipe, which waits for ever
            SCOPED_TRACE(place.toStdString() + ": " + thing.name);
            QTemporaryDir home;
            if (place.contains("2xRetina")) { // the folder must have been made
                Session first({"--no-start-choice"}, home.path());
                EXPECT_EQ(first.end(), 0);
                QFile::remove(home.filePath(place));
            }
            QDir().mkpath(QFileInfo(home.filePath(place)).path());
            thing.put(QFile::encodeName(home.filePath(place)));
            Session s({"--no-start-choice"}, home.path());
            s.must("menu prefs:");
            s.must("set mUnitPopUp #1");
            s.must("open " + QString::fromStdString(zp::test::sample("made/valid/base.png")));
            s.play({"menu rotateCW:", "wait", "menu undo:", "menu fileManager:", "sleep 0.01"});
            EXPECT_EQ(s.end(), 0);
        }
}

/// What a script leaves in a home folder: by name, the bytes.
std::map<QString, QByteArray> whatAScriptWrites(const std::map<QString, QString>& variables)
{
    QTemporaryDir home;
    const QString in = home.filePath("in"), out = home.filePath("out");
    QDir().mkpath(in);
    QDir().mkpath(out);
    QFile::copy(QString::fromStdString(zp::test::sample("photos/seeding-600-grey.jpg")), in + "/title.jpg");
    {
        Session s({"--no-start-choice"}, home.path(), variables);
        s.must("open " + in + "/title.jpg");
        s.play({"menu prefs:", "set mUnitPopUp #2", "menu resize:", "set mResize_Width_P 37.5",
                "click resize_ok:", "wait", "menu selectAll:"});
        s.must("send saveSelection: " + out + "/chosen");
        s.must("send saveImageAsTIFF: " + out + "/a.tiff");
        s.must("send saveImageAsPNG: " + out + "/a.png");
        EXPECT_EQ(s.end(), 0);
    }
    QProcess batch;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : variables) environment.insert(name, value);
    batch.setProcessEnvironment(environment);
    batch.start(ZP_PROGRAM, {"--batch", in, out, "--tiff", "--fit", "100x100"});
    EXPECT_TRUE(batch.waitForFinished(60'000));
    EXPECT_EQ(batch.exitCode(), 0) << batch.readAllStandardError().toStdString();
    std::map<QString, QByteArray> all;
    for (const QString& name : {QString("a.tiff"), QString("a.png"), QString("chosen"), QString("title.tiff"),
                                QString("../.config/zelpane/zelpane.conf")}) {
        QFile file(out + "/" + name);
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << name.toStdString();
        all[name] = file.readAll().replace(home.path().toUtf8(), "HOME");
        EXPECT_FALSE(all[name].isEmpty()) << name.toStdString();
    }
    return all;
}

TEST(Surroundings, CommaAndDotlessIInTheLocaleChangeNoFile)
{
    // Made here, since most machines have only a few: one with a decimal comma, one whose small I has no dot.
    QTemporaryDir locales;
    for (const QString& name : {QString("de_DE"), QString("tr_TR")}) {
        QProcess make;
        make.start("localedef", {"-i", name, "-f", "UTF-8", locales.filePath(name + ".UTF-8")});
        if (!make.waitForStarted()) GTEST_SKIP() << "localedef is not here";
        ASSERT_TRUE(make.waitForFinished(120'000));
        if (make.exitCode() != 0) GTEST_SKIP() << "the locales' sources are not here";
    }
    const auto plain = whatAScriptWrites({{"LC_ALL", "C.UTF-8"}});
    for (const char* name : {"de_DE.UTF-8", "tr_TR.UTF-8"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(whatAScriptWrites({{"LC_ALL", name}, {"LOCPATH", locales.path()}}), plain);
    }
}

TEST(Surroundings, NamesAreShownAsTheyAre)
{
    Session s;
    const QString name = "<b>%s & %n<img src=x>.png";
    QFile::copy(QString::fromStdString(zp::test::sample("made/valid/base.png")), s.file(name));
    s.must("open \"" + s.file(name) + "\"");
    s.must("wait");
    s.must("open \"" + s.file("no <i>such & file.png") + "\"");
    EXPECT_EQ(s.must("alert")["alert"].toObject()["message"].toString().toStdString(),
              "no <i>such & file.png: The file does not exist.");
    s.must("answer OK");
    EXPECT_EQ(s.end(), 0);
}

} // namespace
