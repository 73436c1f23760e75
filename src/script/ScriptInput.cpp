// SPDX-License-Identifier: GPL-3.0-or-later
/// Commands that act on the canvas: mouse, keys, files, operations; and those that wait.
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "canvas/ZPCanvas.h"
#include "desktop/KeyModifiers.h"
#include "script/ScriptDriver.h"
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <filesystem>

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

} // namespace

void ScriptDriver::sendMouse(int type, const Words& w)
{
    if (w.size() != 3) throw Failure{text(w[0]) + " X Y"};
    bool okX = false, okY = false;
    const double x = text(w[1]).toDouble(&okX), y = text(w[2]).toDouble(&okY);
    if (!okX || !okY) throw Failure{"not a number"};
    const double z = mCanvas.effectiveZoom();
    const QPointF local(x * z, y * z);
    const QPointF global = QPointF(mCanvas.mapToGlobal(QPoint(0, 0))) + local;
    const auto kind = QEvent::Type(type);
    const Qt::MouseButton button = kind == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const bool held = kind == QEvent::MouseButtonPress || (kind == QEvent::MouseMove && w[0] == "drag");
    QMouseEvent event(kind, local, local, global, button, held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&mCanvas, &event);
}

void ScriptDriver::sendKey(const std::string& key)
{
    struct Named {
        const char* name;
        int key;
        const char* text;
    };
    static const Named kNamed[] = {
        {"Return", Qt::Key_Return, "\r"}, {"Escape", Qt::Key_Escape, "\x1b"}, {"Up", Qt::Key_Up, ""},
        {"Down", Qt::Key_Down, ""},       {"Left", Qt::Key_Left, ""},         {"Right", Qt::Key_Right, ""},
        {"Tab", Qt::Key_Tab, "\t"},       {"Space", Qt::Key_Space, " "},      {"Delete", Qt::Key_Delete, "\x7f"},
    };
    int code = 0;
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
    }
    QWidget* window = QApplication::activeModalWidget();
    if (!window) window = QApplication::activeWindow();
    QWidget* target = window ? window->focusWidget() : nullptr;
    if (!target) target = window && window->isModal() ? window : &mCanvas;
    const std::uint32_t bits = currentKeyModifiers();
    Qt::KeyboardModifiers held;
    if (bits & kShiftKey) held |= Qt::ShiftModifier;
    const QPointer<QWidget> alive(target);
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
        mController.application(absolutePath(w[1]));
        return QJsonObject{};
    });
    addWork("send", [this](const Words& w) {
        if (w.size() < 2) throw Failure{"send OPERATION [ARG…]"};
        const auto operation = mOperations.find(w[1]);
        if (operation == mOperations.end()) throw Failure{"no such operation"};
        return operation->second(Words(w.begin() + 2, w.end()));
    });
    mCommands["wait"] = [this](const Words& w) {
        const double seconds = w.size() > 1 ? text(w[1]).toDouble() : 60;
        auto quiet = std::make_shared<int>(0);
        waitUntil(
            [this, quiet] {
                const bool busy =
                    mCanvas.anyWorkerRunning() || mCanvas.snapshotTimerPending() || mCanvas.mSmartFillRunning;
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

void ScriptDriver::addOperations()
{
    const auto number = [](const Words& w, std::size_t i) {
        bool ok = false;
        const double value = i < w.size() ? text(w[i]).toDouble(&ok) : 0;
        if (!ok) throw Failure{QString("argument %1 is not a number").arg(i + 1)};
        return value;
    };
    const auto path = [](const Words& w, std::size_t i) {
        if (i >= w.size()) throw Failure{"a path is missing"};
        return w[i].starts_with("~") ? w[i] : absolutePath(w[i]);
    };
    const auto plain = [this](const char* name, void (ZPCanvas::*f)()) {
        mOperations[name] = [&canvas = mCanvas, f](const Words&) {
            (canvas.*f)();
            return QJsonObject{};
        };
    };
    const auto withPath = [this, path](const char* name, void (ZPCanvas::*f)(const std::string&)) {
        mOperations[name] = [&canvas = mCanvas, f, path](const Words& w) {
            (canvas.*f)(path(w, 0));
            return QJsonObject{};
        };
    };
    const auto withPoint = [this, number](const char* name, void (ZPCanvas::*f)(Point)) {
        mOperations[name] = [&canvas = mCanvas, f, number](const Words& w) {
            (canvas.*f)({float(number(w, 0)), float(number(w, 1))});
            return QJsonObject{};
        };
    };
    const auto withSize = [this, number](const char* name, void (ZPCanvas::*f)(Size)) {
        mOperations[name] = [&canvas = mCanvas, f, number](const Words& w) {
            (canvas.*f)({float(number(w, 0)), float(number(w, 1))});
            return QJsonObject{};
        };
    };
    withSize("newImageForMeWithSize:", &ZPCanvas::newImageForMeWithSize);
    withSize("newImageWithSize:", &ZPCanvas::newImageWithSize);
    mOperations["setImageSize:scale:"] = [this, number](const Words& w) {
        mCanvas.setImageSize({float(number(w, 0)), float(number(w, 1))}, number(w, 2) != 0);
        return QJsonObject{};
    };
    withPath("setImagePath:", &ZPCanvas::setImagePath);
    withPath("saveImageToPath:", &ZPCanvas::saveImageToPath);
    withPath("saveImageAsTIFF:", &ZPCanvas::saveImageAsTIFF);
    withPath("saveImageAsJPEG:", &ZPCanvas::saveImageAsJPEG);
    withPath("saveImageAsPNG:", &ZPCanvas::saveImageAsPNG);
    withPath("quickSave:", &ZPCanvas::quickSave);
    withPath("saveSelection:", &ZPCanvas::saveSelection);
    withPath("loadSelection:", &ZPCanvas::loadSelection);
    withPath("writeAlphaRLEToFile:", &ZPCanvas::writeAlphaRLEToFile);
    withPath("readAlphaRLEFile:", &ZPCanvas::readAlphaRLEFile);
    plain("makeBGBlack", &ZPCanvas::makeBGBlack);
    plain("magentaClear", &ZPCanvas::magentaClear);
    plain("makeSelection", &ZPCanvas::makeSelection);
    plain("inverseMask", &ZPCanvas::inverseMask);
    plain("clearSelectionMask", &ZPCanvas::clearSelectionMask);
    plain("clearSelectionMaskINVERT", &ZPCanvas::clearSelectionMaskINVERT);
    plain("selectionPathToMask", &ZPCanvas::selectionPathToMask);
    plain("selectionPathToMaskINVERT", &ZPCanvas::selectionPathToMaskINVERT);
    plain("floatSelection", &ZPCanvas::floatSelection);
    plain("anchorSelection", &ZPCanvas::anchorSelection);
    plain("clearSelection", &ZPCanvas::clearSelection);
    plain("takeSnapshot", &ZPCanvas::takeSnapshot);
    plain("dontTakeSnapshot", &ZPCanvas::dontTakeSnapshot);
    plain("takeSnapshotAgain", &ZPCanvas::takeSnapshotAgain);
    mOperations["transform_set:"] = [this, number](const Words& w) {
        mCanvas.transform_set(float(number(w, 0)), float(number(w, 1)));
        return QJsonObject{};
    };
    mOperations["adjust_set:"] = [this, number](const Words& w) {
        mCanvas.adjust_set(
            {int(number(w, 0)), int(number(w, 1)), int(number(w, 2)), int(number(w, 3)), int(number(w, 4))});
        return QJsonObject{};
    };
    mOperations["restoreSnapshot:"] = [this, number](const Words& w) {
        mCanvas.restoreSnapshot(int(number(w, 0)));
        return QJsonObject{};
    };
    mOperations["placeWatermark:atPoint:alpha:"] = [this, number](const Words& w) {
        if (w.empty()) throw Failure{"a path is missing"};
        mCanvas.placeWatermark(w[0].empty() ? w[0] : absolutePath(w[0]), {float(number(w, 1)), float(number(w, 2))},
                               float(number(w, 3)));
        return QJsonObject{};
    };
    withPoint("magicWand:", &ZPCanvas::magicWand);
    withPoint("floodFillScanlineStackFast:", &ZPCanvas::floodFillScanlineStackFast);
    mOperations["setColor:atPoint:"] = [this, number](const Words& w) {
        if (w.empty()) throw Failure{"a word is missing"};
        bool ok = false;
        const std::uint32_t word = text(w[0]).toUInt(&ok, 0); // decimal, or with 0x
        if (!ok) throw Failure{"not a pixel word"};
        mCanvas.setColor(word, {float(number(w, 1)), float(number(w, 2))});
        mCanvas.setNeedsDisplay();
        return QJsonObject{};
    };
}
