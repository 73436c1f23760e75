// SPDX-License-Identifier: GPL-3.0-or-later
/// The program under attack: a call of it is chosen, a command given, and what it did looked at.
#pragma once
#include "base/Folders.h"
#include "faults/injector.h"
#include "support/Samples.h"
#include "support/Session.h"
#include <QTemporaryDir>
#include <fcntl.h>
#include <functional>
#include <sys/mman.h>
#include <unistd.h>

namespace zp::test
{

/// The page that the injector looks at. Programs started with its variables are under attack.
class FaultControl
{
public:
    FaultControl()
    {
        const std::string path = mFolder.filePath("control").toStdString();
        const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        EXPECT_EQ(::ftruncate(fd, 4096), 0);
        mPage = ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
        ::close(fd);
        mControl = new (mPage) faults::Control;
    }
    ~FaultControl() { ::munmap(mPage, 4096); }
    FaultControl(const FaultControl&) = delete;
    FaultControl& operator=(const FaultControl&) = delete;

    std::map<QString, QString> variables(const QString& folder) const
    {
        return {{"LD_PRELOAD", ZP_INJECTOR},
                {faults::kControlVariable, mFolder.filePath("control")},
                {faults::kFolderVariable, folder}};
    }
    /// From here on the @p n -th such call fails.
    void arm(faults::Call call, std::int64_t n, std::uint64_t least = 32 << 10)
    {
        count(least);
        mControl->countdown = n;
        mControl->call = call;
    }
    /// @return whether a call failed
    bool disarm()
    {
        mControl->call = faults::Call::None;
        return mControl->countdown <= 0;
    }
    /// From here on calls are counted, those of memory from @p least bytes on.
    void count(std::uint64_t least)
    {
        mControl->least = least;
        for (auto& met : mControl->met) met = 0;
    }
    /// How many calls of that kind there were.
    std::int64_t met(faults::Call call) const { return mControl->met[std::size_t(call)]; }
    bool isAttached() const { return mControl->attached > 0; }

private:
    QTemporaryDir mFolder;
    void* mPage = nullptr;
    faults::Control* mControl = nullptr;
};

/// A session of the real program whose calls can be made to fail; started again when it has died.
class AttackedSession
{
public:
    AttackedSession() { restart(); }

    Session& operator*() { return *mSession; }
    Session* operator->() { return mSession.get(); }
    FaultControl& control() { return mControl; }
    QString file(const QString& name) const { return mHome.filePath(name); }
    void restart(const QStringList& more = {})
    {
        mSession.reset();
        mSession = std::make_unique<Session>(QStringList{"--no-start-choice"} + more, mHome.path(),
                                             mControl.variables(mHome.path()));
        mSession->must("wait");
        EXPECT_TRUE(mControl.isAttached()) << "the injector was not loaded";
    }

    struct Outcome {
        bool struck = false;   ///< the call was reached, and failed
        bool lives = false;    ///< the program answers
        QStringList sentences; ///< the titles of the alerts that came, all answered
        QString notice;        ///< what the bar over the picture says
    };
    /// One command with the n-th call failing, there or in the writing of its step.
    Outcome attack(const QString& line, faults::Call call, std::int64_t n, std::uint64_t least = 32 << 10)
    {
        Outcome outcome;
        mControl.arm(call, n, least);
        mSession->send(line);
        outcome.lives = mSession->takeAnswer() && mSession->settles();
        outcome.struck = mControl.disarm();
        if (!outcome.lives) return outcome;
        mSession->ask("wait 5"); // what the news of a failed step needs to arrive
        outcome.sentences = answerAll();
        outcome.notice = mSession->must("notice")["notice"].toObject()["text"].toString();
        return outcome;
    }
    bool saysSomething(const Outcome& outcome) const
    {
        return !outcome.sentences.isEmpty() || !outcome.notice.isEmpty();
    }
    /// Closes the bars over the picture, so that what is said next is news.
    void closeNotices()
    {
        for (int i = 0; i < 20; ++i) {
            const QJsonObject notice = mSession->must("notice")["notice"].toObject();
            if (notice.isEmpty()) return;
            mSession->must("click-notice \"" + notice["buttons"].toArray().last().toString() + "\"");
        }
    }
    /// Answers the alerts that are up and closes the dialogs. @return the alerts' titles
    QStringList answerAll()
    {
        QStringList titles;
        for (int i = 0; i < 20; ++i) {
            const QJsonObject alert = mSession->must("alert")["alert"].toObject();
            if (!alert.isEmpty()) {
                titles << alert["title"].toString();
                const QJsonArray buttons = alert["buttons"].toArray();
                mSession->must("answer \"" + buttons[buttons.size() - 1].toString() + "\"");
                continue;
            }
            const QJsonArray windows = mSession->must("windows")["windows"].toArray();
            if (windows.isEmpty() || !windows[0].toObject()["modal"].toBool()) break;
            mSession->ask("key Escape");
        }
        return titles;
    }
    QByteArray read(const QString& name) const
    {
        QFile file(mHome.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(mHome.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// The picture's bytes.
    QByteArray picture()
    {
        if (!mSession->must("image")["loaded"].toBool()) return "none";
        mSession->must("write-bitmap " + file("picture.pam"));
        return read("picture.pam");
    }
    /// Files that an interrupted writing leaves beside others.
    QStringList leftovers(const QString& below = {}) const
    {
        return QDir(mHome.filePath(below)).entryList({".zelpane-*", "*.part"}, QDir::Files | QDir::Hidden);
    }

private:
    QTemporaryDir mHome;
    FaultControl mControl;
    std::unique_ptr<Session> mSession;
};

/// All calls, every one of their places: @p attempt is asked with n from 1 on until it says that the call was not
/// reached. In the short form places far apart are tried, in the long form all.
inline void everyFault(const std::function<bool(faults::Call, std::int64_t)>& attempt, int places = 8)
{
    const bool all = qEnvironmentVariableIsSet("ZP_LONG");
    int struck = 0;
    for (const faults::Call call : faults::kCalls) {
        std::int64_t n = 1;
        for (int tried = 0; attempt(call, n) && !testing::Test::HasFatalFailure(); ++tried, ++struck)
            n += all ? 1 : 1 + tried * tried / places;
    }
    EXPECT_GT(struck, 0) << "the injector reached nothing";
    std::printf("%d calls failed\n", struck);
}

inline std::string nameOf(faults::Call call) { return faults::kCallNames[std::size_t(call)]; }

} // namespace zp::test
