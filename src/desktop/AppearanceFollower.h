// SPDX-License-Identifier: GPL-3.0-or-later
/// Hears of the desktop's settings over the bus.
#pragma once
#include "desktop/Appearance.h"
#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace zp
{

/// Asks the desktop's portal for its settings and hears of changes. Nothing waits: where there is no portal, nothing is
/// heard.
class AppearanceFollower : public QObject
{
    Q_OBJECT

public:
    /// @param changed  after desktopAppearance() became another
    AppearanceFollower(QDBusConnection bus, std::function<void()> changed);

private slots:
    void settingChanged(const QDBusMessage& signal);

private:
    void take(const QString& key, QVariant value);
    std::function<void()> mChanged;
};

} // namespace zp
