// SPDX-License-Identifier: GPL-3.0-or-later
/// Commands that act on the canvas: mouse, keys, files, operations; and those that wait.
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "canvas/WandExplainer.h"
#include "canvas/ZPCanvas.h"
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "document/View.h"
#include "script/ScriptDriver.h"
#include "windows/ZPSmartFill.h"
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <string_view>
#include <utility>

// The way that Qt's own test library takes to the table of shortcuts.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, ulong timestamp, int key, Qt::KeyboardModifiers held,
                                               const QString& text = QString(), bool repeated = false,
                                               ushort count = 1);
QT_END_NAMESPACE

using namespace zp;

namespace
{

/// Folder and name of a path as the platform would hand it over: absolute.
std::string absolutePath(const std::string& path)
{
    std::error_code failed;
    const auto whole = std::filesystem::absolute(path, failed);
    return failed || path.empty() ? path : whole.string();
}

/// "Ctrl+Shift+S" is S with two keys held; "+" and "Ctrl++" are the key "+".
std::string withoutModifiers(std::string key, Qt::KeyboardModifiers& held)
{
    constexpr std::pair<std::string_view, Qt::KeyboardModifier> kNames[] = {{"Ctrl+", Qt::ControlModifier},
                                                                            {"Shift+", Qt::ShiftModifier},
                                                                            {"Alt+", Qt::AltModifier},
                                                                            {"Meta+", Qt::MetaModifier}};
    for (bool again = true; std::exchange(again, false);)
        for (const auto& [name, modifier] : kNames)
            if (key.starts_with(name) && key.size() > name.size()) {
                key.erase(0, name.size());
                held |= modifier;
                again = true;
            }
    return key;
}

/// F1 to F12; 0 for any other key.
int functionKey(const std::string& key)
{
    int number = 0;
    if (key.size() < 2 || key[0] != 'F') return 0;
    const auto [end, fault] = std::from_chars(key.data() + 1, key.data() + key.size(), number);
    return fault == std::errc() && end == key.data() + key.size() && number >= 1 && number <= 12
               ? Qt::Key_F1 + number - 1
               : 0;
}

/// Coordinates that arithmetic on whole numbers can bear at every zoom; no picture reaches anywhere near.
bool isFarEnoughInside(double coordinate) { return std::abs(coordinate) <= 1e7; }

} // namespace

void ScriptDriver::sendMouse(int type, const Words& w)
{
    if (w.size() != 3) throw Failure{text(w[0]) + " X Y"};
    bool okX = false, okY = false;
    const double x = text(w[1]).toDouble(&okX), y = text(w[2]).toDouble(&okY);
    if (!okX || !okY || !isFarEnoughInside(x) || !isFarEnoughInside(y)) throw Failure{"not a number"};
    const double z = mDocument.view().effectiveZoom();
    const QPointF local(x * z, y * z);
    mCanvas.setExactPointer({float(x), float(y)});
    const QPointF global = QPointF(mCanvas.mapToGlobal(QPoint(0, 0))) + local;
    const auto kind = QEvent::Type(type);
    const Qt::MouseButton button = kind == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const bool held = kind == QEvent::MouseButtonPress || (kind == QEvent::MouseMove && w[0] == "drag");
    QMouseEvent event(kind, local, local, global, button, held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&mCanvas, &event);
}

void ScriptDriver::sendKey(const std::string& written)
{
    struct Named {
        const char* name;
        int key;
        const char* text;
    };
    static const Named kNamed[] = {
        {"Return", Qt::Key_Return, "\r"},
        {"Escape", Qt::Key_Escape, "\x1b"},
        {"Up", Qt::Key_Up, ""},
        {"Down", Qt::Key_Down, ""},
        {"Left", Qt::Key_Left, ""},
        {"Right", Qt::Key_Right, ""},
        {"Tab", Qt::Key_Tab, "\t"},
        {"Space", Qt::Key_Space, " "},
        {"Delete", Qt::Key_Delete, "\x7f"},
        {"Backspace", Qt::Key_Backspace, "\b"},
        {"Home", Qt::Key_Home, ""},
        {"End", Qt::Key_End, ""},
        {"PageUp", Qt::Key_PageUp, ""},
        {"PageDown", Qt::Key_PageDown, ""},
    };
    Qt::KeyboardModifiers held;
    const std::string key = withoutModifiers(written, held);
    int code = functionKey(key);
    QString typed;
    for (const Named& named : kNamed)
        if (key == named.name) {
            code = named.key;
            typed = named.text;
        }
    if (!code) {
        typed = text(key);
        if (typed.size() != 1) throw Failure{"unknown key"};
        code = typed[0].toUpper().unicode();
        if (held & Qt::ShiftModifier) typed = typed.toUpper();
    }
    if (held & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) typed.clear(); // a chord types nothing
    QWidget* window = QApplication::activePopupWidget();                 // an opened menu has the keys
    if (!window) window = QApplication::activeModalWidget();
    if (!window) window = QApplication::activeWindow();
    // Without a window manager none is active again once a dialog is closed: the front one is the person's.
    if (const std::vector<QWidget*> front = windowsInFront(); !window && !front.empty()) window = front.front();
    QWidget* target = window ? window->focusWidget() : nullptr;
    if (!target) target = window && (window->isModal() || window->windowType() == Qt::Popup) ? window : &mCanvas;
    if (currentKeyModifiers() & kShiftKey) held |= Qt::ShiftModifier;
    const QPointer<QWidget> alive(target);
    // A shortcut comes before the key, unless the widget that has the focus needs the key for itself.
    QKeyEvent claim(QEvent::ShortcutOverride, code, held, typed);
    claim.ignore();
    QApplication::sendEvent(target, &claim);
    if (!claim.isAccepted() && window == &mController.window())
        if (QAction* item = mController.menu().itemOfKeys(QKeySequence(QKeyCombination(held, Qt::Key(code))))) {
            mController.menu().choose(item->property("action").toString());
            QKeyEvent up(QEvent::KeyRelease, code, held, typed);
            if (alive) QApplication::sendEvent(target, &up);
            return;
        }
    // The letters of menus, buttons and labels, and shortcuts of other windows.
    if (held & Qt::AltModifier && qt_sendShortcutOverrideEvent(target, 0, code, held, typed)) return;
    QKeyEvent press(QEvent::KeyPress, code, held, typed);
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, code, held, typed);
    if (alive) QApplication::sendEvent(target, &release);
}

void ScriptDriver::addInputCommands()
{
    addImmediate("modifiers", [](const Words& w) {
        std::uint32_t bits = 0;
        for (std::size_t i = 1; i < w.size(); ++i) {
            if (w[i] == "shift") {
                bits |= kShiftKey;
            } else if (w[i] == "option") {
                bits |= kOptionKey;
            } else if (w[i] == "command") {
                bits |= kCommandKey;
            } else if (w[i] == "control") {
                bits |= kControlKey;
            } else {
                throw Failure{"unknown modifier " + text(w[i])};
            }
        }
        setScriptedKeyModifiers(bits);
        return QJsonObject{};
    });
    const auto mouse = [this](const char* name, QEvent::Type type) {
        addWork(name, [this, type](const Words& w) {
            sendMouse(type, w);
            return QJsonObject{};
        });
    };
    mouse("press", QEvent::MouseButtonPress);
    mouse("drag", QEvent::MouseMove);
    mouse("move", QEvent::MouseMove);
    mouse("release", QEvent::MouseButtonRelease);
    addWork("key", [this](const Words& w) {
        if (w.size() != 2) throw Failure{"key KEY"};
        sendKey(w[1]);
        return QJsonObject{};
    });
    addWork("open", [this](const Words& w) {
        if (w.size() != 2) throw Failure{"open PATH"};
        return mController.application(absolutePath(w[1])) ? QJsonObject{} : QJsonObject{{"queued", true}};
    });
    addWork("send", [this](const Words& w) {
        if (w.size() < 2) throw Failure{"send OPERATION [ARG…]"};
        const zp::Command* operation = mDocument.operation(w[1]);
        if (!operation) throw Failure{"no such operation"};
        mDocument.perform(*operation, argumentsOf(*operation, Words(w.begin() + 2, w.end())));
        return QJsonObject{};
    });
    addImmediate("seed", [](const Words& w) {
        bool ok = false;
        const std::uint64_t seed = w.size() == 2 ? text(w[1]).toULongLong(&ok) : 0;
        if (!ok) throw Failure{"seed N"};
        ZPSmartFill::sharedSmartFill()->setSeed(seed);
        return QJsonObject{};
    });
    addImmediate("pressure", [this](const Words& w) {
        bool ok = false;
        const float pressure = w.size() == 2 ? text(w[1]).toFloat(&ok) : 0;
        if (!ok || !(pressure >= 0 && pressure <= 1)) throw Failure{"pressure P"};
        mDocument.setPressure(pressure);
        return QJsonObject{};
    });
    addWork("history-go", [this](const Words& w) {
        bool isNumber = w.size() == 2;
        const int number = isNumber ? text(w[1]).toInt(&isNumber) : 0;
        if (!isNumber) throw Failure{"history-go N"};
        if (!mDocument.perform("goToStep", {{double(number)}, {}})) throw Failure{"there is no such step"};
        return QJsonObject{};
    });
    mCommands["wait"] = [this](const Words& w) {
        const double seconds = w.size() > 1 ? text(w[1]).toDouble() : 60;
        auto quiet = std::make_shared<int>(0);
        waitUntil(
            [this, quiet] {
                const bool busy = mDocument.anyWorkerRunning() || mDocument.firstStepPending() ||
                                  mDocument.isComputing() || mDocument.requestsWait() ||
                                  mCanvas.wandExplainer().isPending();
                // Quiet for a few rounds of the event loop: the end of one worker may be the start of the next.
                *quiet = busy ? 0 : *quiet + 1;
                return *quiet > 3;
            },
            seconds, true);
    };
    mCommands["sleep"] = [this](const Words& w) {
        if (w.size() != 2) throw Failure{"sleep SECONDS"};
        waitUntil([] { return false; }, text(w[1]).toDouble(), false);
    };
}

Arguments ScriptDriver::argumentsOf(const zp::Command& operation, const Words& words) const
{
    Arguments arguments;
    std::size_t next = 0;
    const auto number = [&] {
        bool ok = false;
        const double value = next < words.size() ? text(words[next]).toDouble(&ok) : 0;
        ++next;
        if (!ok || !std::isfinite(float(value))) throw Failure{QString("argument %1 is not a number").arg(next)};
        return value;
    };
    const Picture& picture = mDocument.picture();
    for (QString kind : QString(operation.parameters).split(' ', Qt::SkipEmptyParts)) {
        if (kind.startsWith('[')) {
            if (next >= words.size()) break;
            kind = kind.mid(1, kind.size() - 2);
        }
        if (kind == "text") {
            if (next >= words.size()) throw Failure{"a text is missing"};
            arguments.path = words[next++];
        } else if (kind == "path") {
            if (next >= words.size()) throw Failure{"a path is missing"};
            const std::string& path = words[next++];
            arguments.path = path.empty() || path.starts_with("~") ? path : absolutePath(path);
        } else if (kind == "word") {
            if (next >= words.size()) throw Failure{"a word is missing"};
            bool ok = false;
            arguments.numbers.push_back(text(words[next++]).toUInt(&ok, 0)); // decimal, or with 0x
            if (!ok) throw Failure{"not a pixel word"};
        } else if (kind == "number") {
            arguments.numbers.push_back(number());
        } else {
            // A point that the operation would look up in the picture: "pixel" cuts its coordinates, "nearest" rounds.
            const double x = number(), y = number(), low = kind == "nearest" ? -0.5 : 0;
            const bool inside = kind == "nearest" ? x > low && y > low : x >= low && y >= low;
            if (!inside || x >= picture.width() || y >= picture.height()) throw Failure{"outside the image"};
            arguments.numbers.insert(arguments.numbers.end(), {x, y});
        }
    }
    return arguments;
}
