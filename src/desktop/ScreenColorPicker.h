// SPDX-License-Identifier: GPL-3.0-or-later
/// Picks a colour anywhere on the screen where no program may look at it: the desktop's portal asks the person.
#pragma once
#include <QColor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace zp
{

/// One request at a time. Main thread.
class ScreenColorPicker : public QObject
{
    Q_OBJECT

public:
    explicit ScreenColorPicker(const QDBusConnection& bus, QObject* parent = nullptr);
    /// Whether a portal is there or can be started. Asks the bus, some milliseconds.
    bool isAvailable() const;
    /// Asks; the answer comes by a signal. Nothing while a request is open.
    void pick();

signals:
    void picked(const QColor& color);
    void gaveUp(); ///< the person or the portal

private slots:
    void takeResponse(uint response, const QVariantMap& results);

private:
    void listen(bool on);
    QDBusConnection mBus;
    QString mRequest; ///< the object that answers; empty without a request
    int mRequests = 0;
};

} // namespace zp
