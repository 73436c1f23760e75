// SPDX-License-Identifier: GPL-3.0-or-later
/// The portal's settings of the space "appearance".
#include "desktop/AppearanceFollower.h"
#include "desktop/Portal.h"
#include <QCoreApplication>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QMap>
#include <algorithm>

namespace zp
{

namespace
{

const QString kSettings = "org.freedesktop.portal.Settings", kSpace = "org.freedesktop.appearance";

Appearance current;

using Spaces = QMap<QString, QVariantMap>;

/// Parts beyond 0 to 1 mean that there is none.
std::optional<QColor> accentFrom(const QVariant& value)
{
    const auto c = portalColor(value);
    if (!c || !std::ranges::all_of(*c, [](double part) { return part >= 0 && part <= 1; })) return {};
    return QColor::fromRgbF(float((*c)[0]), float((*c)[1]), float((*c)[2]));
}

} // namespace

const Appearance& desktopAppearance() { return current; }

void followDesktopAppearance(std::function<void()> changed)
{
    static AppearanceFollower* const follower =
        new AppearanceFollower(QDBusConnection::sessionBus(), std::move(changed));
    follower->setParent(QCoreApplication::instance());
}

AppearanceFollower::AppearanceFollower(QDBusConnection bus, std::function<void()> changed)
    : mChanged(std::move(changed))
{
    if (!bus.isConnected()) return;
    qDBusRegisterMetaType<Spaces>();
    bus.connect(kPortalName, kPortalObject, kSettings, "SettingChanged", this, SLOT(settingChanged(QDBusMessage)));
    QDBusMessage call = QDBusMessage::createMethodCall(kPortalName, kPortalObject, kSettings, "ReadAll");
    call << QStringList{kSpace};
    auto* waiting = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(waiting, &QDBusPendingCallWatcher::finished, this, [this, waiting] {
        waiting->deleteLater();
        const QDBusPendingReply<Spaces> answer = *waiting;
        if (answer.isError()) return;
        const QVariantMap values = answer.value().value(kSpace);
        for (auto v = values.cbegin(); v != values.cend(); ++v) take(v.key(), v.value());
    });
}

void AppearanceFollower::settingChanged(const QDBusMessage& signal)
{
    // Of space, key and value as they came: a slot of three words hears nothing where the toolkit has not met them yet.
    const QVariantList words = signal.arguments();
    if (words.size() == 3 && words[0].toString() == kSpace) take(words[1].toString(), words[2]);
}

void AppearanceFollower::take(const QString& key, QVariant value)
{
    if (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant(); // some portals wrap it twice
    Appearance next = current;
    if (key == "color-scheme") {
        const uint scheme = value.toUInt(); // 1: dark, 2: light
        next.dark = scheme == 1 ? std::optional(true) : scheme == 2 ? std::optional(false) : std::nullopt;
    } else if (key == "accent-color") {
        next.accent = accentFrom(value);
    }
    if (next == current) return;
    current = next;
    mChanged();
}

} // namespace zp
