// SPDX-License-Identifier: GPL-3.0-or-later
/// The local socket between a running editor and later starts.
#include "desktop/SingleInstance.h"
#include "base/Folders.h"
#include <QLocalSocket>
#include <unistd.h>

namespace
{

constexpr int kPatience = 500; ///< milliseconds that the other side gets
constexpr qsizetype kLongestMessage = 1 << 20;

} // namespace

SingleInstance::SingleInstance()
{
    // With the user's number in it: the fallback folder is shared by all users. A home folder of its own is a user of
    // its own, so that tests and sandboxes do not meet.
    const QString home = QString::number(qHash(QByteArray::fromStdString(zp::homeFolder())), 16);
    const QString name = QString("zelpane-%1-%2").arg(getuid()).arg(home);
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    mName = runtime.isEmpty() ? name : runtime + "/" + name;
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&mServer, &QLocalServer::newConnection, this, &SingleInstance::take);
}

bool SingleInstance::handOver(const std::vector<std::string>& files)
{
    QLocalSocket socket;
    socket.connectToServer(mName);
    if (!socket.waitForConnected(kPatience)) return false;
    QByteArray message;
    for (const std::string& file : files) message += QByteArray::fromStdString(file) + '\0';
    message += '\0';
    socket.write(message);
    if (!socket.waitForBytesWritten(kPatience)) return false;
    // The other side answers when it has read all, so that files are never lost between two programs.
    return socket.waitForReadyRead(4 * kPatience) && socket.readAll() == "ok";
}

void SingleInstance::listen(std::function<void(const std::vector<std::string>&)> open)
{
    mOpen = std::move(open);
    if (mServer.listen(mName)) return;
    QLocalServer::removeServer(mName);
    mServer.listen(mName);
}

void SingleInstance::take()
{
    while (QLocalSocket* socket = mServer.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        auto received = std::make_shared<QByteArray>();
        connect(socket, &QLocalSocket::readyRead, this, [this, socket, received] {
            *received += socket->readAll();
            if (received->size() > kLongestMessage) return socket->abort();
            const bool complete = *received == QByteArray(1, '\0') || received->endsWith(QByteArray(2, '\0'));
            if (!complete) return;
            std::vector<std::string> files;
            for (const QByteArray& file : received->split('\0'))
                if (!file.isEmpty()) files.push_back(file.toStdString());
            received->clear();
            socket->write("ok");
            socket->flush();
            QMetaObject::invokeMethod(
                this, [this, files] { mOpen(files); }, Qt::QueuedConnection);
        });
    }
}
