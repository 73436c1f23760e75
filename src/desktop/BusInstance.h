// SPDX-License-Identifier: GPL-3.0-or-later
/// The running editor on the session's bus: where the desktop starts it, and later starts find it.
#pragma once
#include "desktop/SingleInstance.h"
#include <QByteArrayList>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zp
{

/// Main thread. What is asked before listen() waits for it.
class BusInstance : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    /// Files and words of the command line.
    using Requests = std::vector<std::string>;
    /// @param home  what tells users apart that share a session, as tests and sandboxes do
    BusInstance(const QDBusConnection& bus, std::string home);
    /// Hands the requests to the program that has the name on the bus. Blocks until that one is up.
    /// @return whether it took them: there is one, and it works in the same home
    bool handOver(const Requests& requests);
    /// Becomes the program of that name. @return false when there is one already, or no bus
    bool claim();
    void listen(std::function<void(const Requests&)> open);

    /// A request of another start. @param token  what lets its window come to the front
    bool takeFrom(const QByteArray& home, const QByteArrayList& requests, const QString& token);
    /// Requests of the desktop itself.
    void take(const Requests& requests, const QVariantMap& platformData);

private:
    void open(const Requests& requests, const QString& token);
    struct Waiting {
        Requests requests;
        QString token;
        std::optional<QDBusMessage> asked; ///< answered when the requests are taken
    };
    QDBusConnection mBus;
    std::string mHome;
    std::function<void(const Requests&)> mOpen;
    std::vector<Waiting> mWaiting;
};

} // namespace zp
