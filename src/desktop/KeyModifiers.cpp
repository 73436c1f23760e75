// SPDX-License-Identifier: GPL-3.0-or-later
/// The held modifier keys: from the keyboard, from a script, or from switches on screen.
#include "desktop/KeyModifiers.h"
#include "base/NotificationCenter.h"
#include "desktop/Desktop.h"
#include "desktop/KeyRoles.h"
#include "desktop/Settings.h"
#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputEvent>
#include <QKeyEvent>
#include <QThread>
#include <array>
#include <atomic>
#include <cstring>

namespace zp
{

namespace
{

struct Role {
    const char* setting;
    const char* fallback;
    std::uint32_t bit;
};
constexpr std::array<Role, 3> kRoles{
    {{"keys/option", "alt", kOptionKey}, {"keys/control", "ctrl", kControlKey}, {"keys/command", "meta", kCommandKey}}};

// All but the last are the main thread's own.
std::array<Qt::KeyboardModifiers, 3> roleKeys;
bool rolesRead = false;
std::optional<std::uint32_t> scripted;
std::uint32_t switched = 0;
std::atomic<std::uint32_t> lastSeen{0};

Qt::KeyboardModifiers keyNamed(const QString& name)
{
    if (name == "alt") return Qt::AltModifier;
    if (name == "ctrl") return Qt::ControlModifier;
    if (name == "meta") return Qt::MetaModifier;
    return Qt::NoModifier;
}

const char* settingOf(Qt::KeyboardModifiers key)
{
    return key == Qt::AltModifier ? "alt" : key == Qt::ControlModifier ? "ctrl" : "meta";
}

void readRoles()
{
    for (std::size_t i = 0; i < kRoles.size(); ++i) {
        roleKeys[i] = keyNamed(settings().value(kRoles[i].setting, kRoles[i].fallback).toString());
        if (roleKeys[i] == Qt::NoModifier) roleKeys[i] = keyNamed(kRoles[i].fallback);
    }
    rolesRead = true;
}

/// Remembers what the main thread finds for the threads that may not ask the keyboard.
std::uint32_t seen(std::uint32_t keyboard)
{
    const std::uint32_t held = scripted.value_or(keyboard) | switched;
    lastSeen.store(held, std::memory_order_relaxed);
    return held;
}

bool onMainThread() { return qApp && QThread::currentThread() == qApp->thread(); }

std::uint32_t keyboardNow()
{
    // A platform without a real keyboard (tests, drivers) only knows the events that were sent; the others are asked,
    // so that a key let go while an event was waiting counts as let go.
    static const bool real =
        QGuiApplication::platformName() == "xcb" || QGuiApplication::platformName().startsWith("wayland");
    const Qt::KeyboardModifiers held =
        real ? QGuiApplication::queryKeyboardModifiers() : QGuiApplication::keyboardModifiers();
    return keyModifiersFromQt(held.toInt());
}

class Watch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease: {
            // The event of a modifier key itself tells of the others as they were before it.
            const auto* key = static_cast<const QKeyEvent*>(event);
            Qt::KeyboardModifiers held = key->modifiers();
            const Qt::KeyboardModifiers own = key->key() == Qt::Key_Shift     ? Qt::ShiftModifier
                                              : key->key() == Qt::Key_Control ? Qt::ControlModifier
                                              : key->key() == Qt::Key_Alt     ? Qt::AltModifier
                                              : key->key() == Qt::Key_Meta    ? Qt::MetaModifier
                                                                              : Qt::NoModifier;
            held = event->type() == QEvent::KeyPress ? held | own : held & ~own;
            seen(keyModifiersFromQt(held.toInt()));
            break;
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
            seen(keyModifiersFromQt(static_cast<const QInputEvent*>(event)->modifiers().toInt()));
            break;
        case QEvent::ApplicationStateChange:
            currentKeyModifiers();
            break;
        default:
            break;
        }
        return false;
    }
};

} // namespace

std::uint32_t currentKeyModifiers()
{
    if (!onMainThread()) return lastSeen.load(std::memory_order_relaxed);
    return seen(scripted ? 0 : keyboardNow());
}

void setScriptedKeyModifiers(std::optional<std::uint32_t> bits)
{
    scripted = bits;
    currentKeyModifiers();
}

std::optional<std::uint32_t> scriptedKeyModifiers() { return scripted; }

void setSwitchedKeyModifiers(std::uint32_t bits)
{
    switched = bits;
    currentKeyModifiers();
}

std::uint32_t switchedKeyModifiers() { return switched; }

std::uint32_t keyModifiersFromQt(int qtModifiers)
{
    if (!rolesRead) readRoles();
    const auto held = Qt::KeyboardModifiers::fromInt(qtModifiers);
    std::uint32_t bits = held.testFlag(Qt::ShiftModifier) ? kShiftKey : 0;
    for (std::size_t i = 0; i < kRoles.size(); ++i)
        if (held & roleKeys[i]) bits |= kRoles[i].bit;
    return bits;
}

void setKeyRoles(const char* option, const char* control, const char* command)
{
    const std::array<const char*, 3> names{option, control, command};
    for (std::size_t i = 0; i < kRoles.size(); ++i)
        if (keyNamed(names[i]) != Qt::NoModifier) settings().setValue(kRoles[i].setting, QString::fromLatin1(names[i]));
    readRoles();
    currentKeyModifiers();
    NotificationCenter::defaultCenter().post("KeyRolesNotif");
}

void exchangeKeyRoles(std::uint32_t one, std::uint32_t other)
{
    if (!rolesRead) readRoles();
    std::array<const char*, 3> names{};
    for (std::size_t i = 0; i < kRoles.size(); ++i) {
        const std::uint32_t takenFrom = kRoles[i].bit == one ? other : kRoles[i].bit == other ? one : kRoles[i].bit;
        for (std::size_t j = 0; j < kRoles.size(); ++j)
            if (kRoles[j].bit == takenFrom) names[i] = settingOf(roleKeys[j]);
    }
    setKeyRoles(names[0], names[1], names[2]);
}

QString keyNameOf(std::uint32_t bit)
{
    if (!rolesRead) readRoles();
    for (std::size_t i = 0; i < kRoles.size(); ++i)
        if (kRoles[i].bit == bit)
            return roleKeys[i] == Qt::AltModifier       ? QCoreApplication::translate("Keys", "Alt")
                   : roleKeys[i] == Qt::ControlModifier ? QCoreApplication::translate("Keys", "Ctrl")
                                                        : QCoreApplication::translate("Keys", "Super");
    return QCoreApplication::translate("Keys", "Shift");
}

void installKeyModifierWatch()
{
    static bool installed = false;
    if (installed || !qApp) return;
    installed = true;
    qApp->installEventFilter(new Watch(qApp));
}

} // namespace zp
