// SPDX-License-Identifier: GPL-3.0-or-later
/// Reads lines, runs them one after the other, answers each.
#include "script/ScriptDriver.h"
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "base/ScriptWords.h"
#include "canvas/ZPCanvas.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Panels.h"
#include "desktop/PanelsState.h"
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QJsonDocument>
#include <QThread>
#include <QTimer>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

using namespace zp;

namespace
{

constexpr int kPollMilliseconds = 2;
constexpr const char* kNoMemory = "There is not enough memory.";
/// How long a closed modal window's loop may take to unwind before the next command goes on without it.
constexpr int kUnwindMilliseconds = 5000;

} // namespace

ScriptDriver::ScriptDriver(ZPAppController& controller, std::string script, Ended ended)
    : mController(controller),
      mCanvas(controller.canvas()),
      mDocument(controller.document()),
      mScript(std::move(script)),
      mGuestEnded(std::move(ended)),
      mPanelsBefore(panelsAutomated()),
      mKeysBefore(scriptedKeyModifiers())
{
    addMenuCommands();
    addInputCommands();
    addLookCommands();
    addStatusCommands();
    setPanelsAutomated(true);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible()) mFront.emplace_back(window);
    qApp->installEventFilter(this);
}

ScriptDriver::~ScriptDriver()
{
    // The reader of standard input may be blocked in a read for ever; it owns nothing but its own copy of the queue's
    // address, which ends with the process.
    if (mReader.joinable()) mReader.detach();
}

bool ScriptDriver::isReadable(const std::string& script)
{
    if (script == "-") return true;
    struct stat status {
    };
    return ::stat(script.c_str(), &status) == 0 && !S_ISDIR(status.st_mode) && ::access(script.c_str(), R_OK) == 0;
}

void ScriptDriver::start()
{
    if (mScript == "-") {
        try {
            mReader = std::thread([this] {
                std::string line;
                while (std::getline(std::cin, line)) addLine(line);
                const std::lock_guard lock(mLinesLock);
                mEnded = true;
            });
        } catch (const std::system_error& error) { // nobody would ever hear a command
            std::fprintf(stderr, "zelpane: there is not enough memory (%s)\n", error.what());
            return QCoreApplication::exit(1);
        }
    } else {
        std::ifstream file(mScript, std::ios::binary);
        std::string line;
        while (std::getline(file, line)) mLines.push_back(line);
        mEnded = true;
    }
    goOn();
}

void ScriptDriver::addLine(std::string line)
{
    const std::lock_guard lock(mLinesLock);
    mLines.push_back(std::move(line));
}

void ScriptDriver::goOn()
{
    // Two rounds of the event loop, so that what the last command caused has been handled.
    QTimer::singleShot(0, this, [this] { QTimer::singleShot(0, this, &ScriptDriver::runNext); });
}

void ScriptDriver::runNext()
{
    if (mBusy || mFinished) return;
    std::string line;
    {
        const std::lock_guard lock(mLinesLock);
        if (mLines.empty()) {
            if (!mEnded) {
                QTimer::singleShot(kPollMilliseconds, this, &ScriptDriver::runNext);
                return;
            }
        } else {
            line = std::move(mLines.front());
            mLines.pop_front();
            ++mLineNumber;
            mBusy = true;
        }
    }
    if (mBusy) {
        execute(line);
    } else {
        finish();
    }
}

void ScriptDriver::execute(const std::string& text)
{
    std::string line = text;
    mMayFail = !line.empty() && line[0] == '-';
    if (mMayFail) line.erase(0, 1);
    const auto words = splitScriptLine(line);
    if (!words) return fail("unbalanced quotes");
    if (words->empty()) {
        mBusy = false;
        return goOn();
    }
    ++mCommandNumber;
    const auto command = mCommands.find(words->front());
    if (command == mCommands.end())
        return fail(QString("unknown command %1").arg(QString::fromStdString(words->front())));
    try {
        command->second(*words);
    } catch (const Failure& failure) {
        fail(failure.error);
    } catch (const std::bad_alloc&) {
        fail(kNoMemory);
    }
}

void ScriptDriver::answer(const QJsonObject& fields)
{
    QByteArray json = QJsonDocument(fields).toJson(QJsonDocument::Compact);
    json = fields.isEmpty() ? QByteArray("{\"ok\":true}") : "{\"ok\":true," + json.mid(1);
    json += '\n';
    print(json);
    mBusy = false;
    goOn();
}

void ScriptDriver::print(const QByteArray& line) const
{
    if (mGuestEnded) return;
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stdout);
    std::fflush(stdout);
}

void ScriptDriver::fail(const QString& error)
{
    const QByteArray reason = QJsonDocument(QJsonObject{{"error", error}}).toJson(QJsonDocument::Compact);
    const QByteArray json = "{\"ok\":false," + reason.mid(1) + '\n';
    print(json);
    mBusy = false;
    if (mScript != "-" && !mMayFail) {
        mError = error;
        if (!mGuestEnded) std::fprintf(stderr, "%s:%d: %s\n", mScript.c_str(), mLineNumber, qUtf8Printable(error));
        mStatus = 1;
        return finish();
    }
    goOn();
}

void ScriptDriver::finish()
{
    if (std::exchange(mFinished, true)) return;
    // Modal loops that are still open end first, the innermost one at once, the others as it unwinds.
    for (QWidget* window : windowsInFront())
        if (window->isModal()) window->close();
    QTimer::singleShot(0, this, [this] {
        if (!mGuestEnded) return QCoreApplication::exit(0);
        qApp->removeEventFilter(this);
        setPanelsAutomated(mPanelsBefore);
        setScriptedKeyModifiers(mKeysBefore);
        deleteLater();
        mGuestEnded(mLineNumber, mError);
    });
}

int ScriptDriver::visibleModals() const
{
    int count = 0;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isModal()) ++count;
    return count;
}

void ScriptDriver::startWork(std::function<QJsonObject()> work)
{
    mWorkResult.reset();
    mWorkError.reset();
    const int before = visibleModals();
    const std::uint64_t number = mCommandNumber;
    QTimer::singleShot(0, this, [this, work = std::move(work), number] {
        std::optional<QJsonObject> result;
        std::optional<QString> error;
        try {
            result = work();
        } catch (const Failure& failure) {
            error = failure.error;
        } catch (const std::exception&) { // the program's own boundary says so to people
            if (number == mCommandNumber) mWorkError = kNoMemory;
            throw;
        }
        // A command that stood in a modal loop was answered long ago.
        if (number != mCommandNumber) return;
        mWorkResult = result;
        mWorkError = error;
    });
    QTimer::singleShot(0, this, [this, before] { watchWork(before); });
}

void ScriptDriver::poll(const std::shared_ptr<std::function<bool()>>& look)
{
    try {
        if ((*look)()) return;
    } catch (const std::bad_alloc&) { // looked at again: a command has its answer whatever runs out meanwhile
    }
    QTimer::singleShot(kPollMilliseconds, this, [this, look] { poll(look); });
}

void ScriptDriver::watchWork(int modalsBefore)
{
    QElapsedTimer clock;
    clock.start();
    poll(std::make_shared<std::function<bool()>>([this, modalsBefore, clock, quietRounds = 0]() mutable {
        const int modals = visibleModals();
        // A modal window that has closed but whose loop still stands higher up: its command goes on when that unwinds.
        if (QThread::currentThread()->loopLevel() > 1 + modals && clock.elapsed() < kUnwindMilliseconds) return false;
        if (mWorkResult || mWorkError) {
            const auto result = std::exchange(mWorkResult, std::nullopt);
            const auto error = std::exchange(mWorkError, std::nullopt);
            if (error) {
                fail(*error);
            } else {
                answer(result.value_or(QJsonObject{}));
            }
            return true;
        }
        if (modals <= modalsBefore || ++quietRounds < 2) return false;
        ++mCommandNumber; // what the command returns later is nobody's answer
        answer({});
        return true;
    }));
}

void ScriptDriver::waitUntil(std::function<bool()> done, double seconds, bool failAtEnd)
{
    QElapsedTimer clock;
    clock.start();
    poll(std::make_shared<std::function<bool()>>([this, done = std::move(done), seconds, failAtEnd, clock] {
        const bool isDone = done();
        if (!isDone && double(clock.elapsed()) <= seconds * 1000) return false;
        if (isDone || !failAtEnd) {
            answer({});
        } else {
            fail("timed out");
        }
        return true;
    }));
}

void ScriptDriver::addImmediate(const char* name, Command command)
{
    mCommands[name] = [this, command = std::move(command)](const Words& words) { answer(command(words)); };
}

void ScriptDriver::addWork(const char* name, Command command)
{
    mCommands[name] = [this, command = std::move(command)](const Words& words) {
        startWork([command, words] { return command(words); });
    };
}

bool ScriptDriver::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget && widget->isWindow()) {
            std::erase_if(mFront, [widget](const QPointer<QWidget>& w) { return !w || w == widget; });
            mFront.insert(mFront.begin(), widget);
        }
    }
    return QObject::eventFilter(watched, event);
}

std::vector<QWidget*> ScriptDriver::windowsInFront() const
{
    std::vector<QWidget*> windows;
    for (const bool modal : {true, false})
        for (const QPointer<QWidget>& window : mFront)
            if (window && window->isVisible() && window->isModal() == modal && !window->objectName().isEmpty() &&
                window->windowType() != Qt::ToolTip && window->windowType() != Qt::Popup)
                windows.push_back(window);
    return windows;
}

std::vector<QWidget*> ScriptDriver::reachableWindows() const
{
    std::vector<QWidget*> windows = windowsInFront();
    // A modal window keeps the others from the user's hands.
    if (!windows.empty() && windows.front()->isModal()) windows.resize(1);
    return windows;
}
