// SPDX-License-Identifier: GPL-3.0-or-later
/// The portal's side of picking a colour.
#include "desktop/ScreenColorPicker.h"
#include "base/Log.h"
#include "desktop/Portal.h"
#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <algorithm>

namespace zp
{

namespace
{

const QString kRequestInterface = "org.freedesktop.portal.Request";

} // namespace

ScreenColorPicker::ScreenColorPicker(const QDBusConnection& bus, QObject* parent) : QObject(parent), mBus(bus) {}

bool ScreenColorPicker::isAvailable() const
{
    if (!mBus.isConnected() || !mBus.interface()) return false;
    if (mBus.interface()->isServiceRegistered(kPortalName)) return true;
    const QDBusReply<QStringList> startable = mBus.interface()->activatableServiceNames();
    return startable.isValid() && startable.value().contains(kPortalName);
}

void ScreenColorPicker::listen(bool on)
{
    const char* slot = SLOT(takeResponse(uint, QVariantMap));
    if (on)
        mBus.connect(kPortalName, mRequest, kRequestInterface, "Response", this, slot);
    else
        mBus.disconnect(kPortalName, mRequest, kRequestInterface, "Response", this, slot);
}

void ScreenColorPicker::pick()
{
    if (!mRequest.isEmpty()) return;
    // The answer may come before the call returns: its address is agreed on beforehand.
    const QString token = QString("zelpane%1_%2").arg(QCoreApplication::applicationPid()).arg(++mRequests);
    const QString sender = mBus.baseService().mid(1).replace('.', '_');
    mRequest = QString("%1/request/%2/%3").arg(kPortalObject, sender, token);
    listen(true);
    QDBusMessage call =
        QDBusMessage::createMethodCall(kPortalName, kPortalObject, "org.freedesktop.portal.Screenshot", "PickColor");
    call << QString() << QVariantMap{{"handle_token", token}};
    auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (!reply.isError() || mRequest.isEmpty()) return;
        logLine("no colour from the portal: %s", qUtf8Printable(reply.error().message()));
        takeResponse(1, {});
    });
}

void ScreenColorPicker::takeResponse(uint response, const QVariantMap& results)
{
    if (mRequest.isEmpty()) return;
    listen(false);
    mRequest.clear();
    const auto stated = portalColor(results.value("color"));
    if (response != 0 || !stated) {
        emit gaveUp();
        return;
    }
    const auto [red, green, blue] = *stated;
    const auto bounded = [](double c) { return float(std::clamp(c, 0.0, 1.0)); };
    emit picked(QColor::fromRgbF(bounded(red), bounded(green), bounded(blue)));
}

} // namespace zp
