// SPDX-License-Identifier: GPL-3.0-or-later
/// The portal's side of picking a colour.
#include "desktop/ScreenColorPicker.h"
#include "base/Log.h"
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <algorithm>

namespace zp
{

namespace
{

const QString kService = "org.freedesktop.portal.Desktop", kDesktop = "/org/freedesktop/portal/desktop",
              kRequestInterface = "org.freedesktop.portal.Request";

} // namespace

ScreenColorPicker::ScreenColorPicker(const QDBusConnection& bus, QObject* parent) : QObject(parent), mBus(bus) {}

bool ScreenColorPicker::isAvailable() const
{
    if (!mBus.isConnected() || !mBus.interface()) return false;
    if (mBus.interface()->isServiceRegistered(kService)) return true;
    const QDBusReply<QStringList> startable = mBus.interface()->activatableServiceNames();
    return startable.isValid() && startable.value().contains(kService);
}

void ScreenColorPicker::listen(bool on)
{
    const char* slot = SLOT(takeResponse(uint, QVariantMap));
    if (on)
        mBus.connect(kService, mRequest, kRequestInterface, "Response", this, slot);
    else
        mBus.disconnect(kService, mRequest, kRequestInterface, "Response", this, slot);
}

void ScreenColorPicker::pick()
{
    if (!mRequest.isEmpty()) return;
    // The answer may come before the call returns: its address is agreed on beforehand.
    const QString token = QString("zelpane%1_%2").arg(QCoreApplication::applicationPid()).arg(++mRequests);
    const QString sender = mBus.baseService().mid(1).replace('.', '_');
    mRequest = QString("%1/request/%2/%3").arg(kDesktop, sender, token);
    listen(true);
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kDesktop, "org.freedesktop.portal.Screenshot", "PickColor");
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
    const QVariant stated = results.value("color");
    if (response != 0 || !stated.canConvert<QDBusArgument>()) {
        emit gaveUp();
        return;
    }
    double red = 0, green = 0, blue = 0;
    const auto structure = stated.value<QDBusArgument>();
    structure.beginStructure();
    structure >> red >> green >> blue;
    structure.endStructure();
    const auto bounded = [](double c) { return float(std::clamp(c, 0.0, 1.0)); };
    emit picked(QColor::fromRgbF(bounded(red), bounded(green), bounded(blue)));
}

} // namespace zp
