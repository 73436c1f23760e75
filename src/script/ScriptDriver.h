// SPDX-License-Identifier: GPL-3.0-or-later
/// Plays automation commands: one line in, one JSON answer out, on the main thread from the event loop.
#pragma once
#include "document/Command.h"
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

class QWidget;
class ZPAppController;
class ZPCanvas;

namespace zp
{
class Document;
/// A word of a script as a text of the user interface.
inline QString text(const std::string& bytes) { return QString::fromStdString(bytes); }
} // namespace zp

/// The window's title as the platform shows it, with the mark of a picture that is not saved.
QString shownTitle(const QWidget& window);

/// Commands go on inside a modal window's own loop: whatever may open one is started from a timer of its own, and
/// answered when it has ended or when the window is up.
class ScriptDriver : public QObject
{
    Q_OBJECT

public:
    /// How a guest ended: what was wrong and in which line of its script; empty when nothing was.
    using Ended = std::function<void(int line, const QString& error)>;

    /// @param script a file's path, or "-" for standard input
    /// @param ended  given: a guest in a session that a person has open. Its answers go nowhere, the first failure ends
    ///               it, keys and panels are the person's again afterwards, and the program goes on.
    ScriptDriver(ZPAppController& controller, std::string script, Ended ended = {});
    ~ScriptDriver() override;
    static bool isReadable(const std::string& script);
    void start();
    /// A guest ends before its next command. Safe when it has ended already.
    void stop() { finish(); }
    /// 0 done, 1 a command failed.
    int exitStatus() const { return mStatus; }

    using Words = std::vector<std::string>;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Failure {
        QString error;
    };
    using Command = std::function<QJsonObject(const Words&)>;

    // sequencing (ScriptDriver.cpp)
    void addLine(std::string line);
    void runNext();
    void execute(const std::string& line);
    void answer(const QJsonObject& fields);
    void print(const QByteArray& line) const;
    void fail(const QString& error);
    void goOn();
    void finish();
    /// Runs @p work from a timer of its own; the command is answered when it ended or a modal window came up.
    void startWork(std::function<QJsonObject()> work);
    void watchWork(int modalsBefore);
    /// Calls @p look every few milliseconds until it answers true; goes on inside modal loops.
    void poll(const std::shared_ptr<std::function<bool()>>& look);
    /// Polls until @p done or the time is over.
    void waitUntil(std::function<bool()> done, double seconds, bool failAtEnd);

    // what commands do; each throws Failure
    void addMenuCommands();
    void addInputCommands();
    void addLookCommands();
    void addStatusCommands();
    void addImmediate(const char* name, Command command);
    void addWork(const char* name, Command command);

    std::vector<QWidget*> windowsInFront() const;
    std::vector<QWidget*> reachableWindows() const;
    QWidget* outlet(const std::string& name) const;
    int visibleModals() const;
    void sendMouse(int type, const Words& words);
    void sendKey(const std::string& written);
    /// What the operation is given, from the words behind its name.
    zp::Arguments argumentsOf(const zp::Command& operation, const Words& words) const;

    ZPAppController& mController;
    ZPCanvas& mCanvas;
    zp::Document& mDocument;
    std::string mScript;
    Ended mGuestEnded;
    bool mPanelsBefore = false; ///< automated already
    std::optional<std::uint32_t> mKeysBefore;
    QString mError;
    std::map<std::string, std::function<void(const Words&)>> mCommands;
    mutable std::vector<QPointer<QWidget>> mFront; ///< top-level windows, the one shown or activated last first

    std::mutex mLinesLock; ///< guards the two below
    std::deque<std::string> mLines;
    bool mEnded = false;
    std::thread mReader;

    int mLineNumber = 0;
    bool mMayFail = false, mBusy = false, mFinished = false;
    int mStatus = 0;
    std::uint64_t mCommandNumber = 0;
    std::optional<QJsonObject> mWorkResult;
    std::optional<QString> mWorkError;
};
