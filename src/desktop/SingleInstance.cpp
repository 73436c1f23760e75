// SPDX-License-Identifier: GPL-3.0-or-later
/// The local socket between a running editor and later starts.
#include "desktop/SingleInstance.h"
#include "base/Folders.h"
#include "base/Log.h"
#include "desktop/BusInstance.h"
#include <QFile>
#include <QLocalSocket>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

constexpr int kPatience = 500; ///< milliseconds that the other side gets
/// The same for its answer: it may have been started a moment ago, and answers when its window is up.
constexpr int kPatienceWithStart = 10'000;
constexpr qsizetype kLongestMessage = 1 << 20;

/// Whether the program at the other end is the same user's: what it says is believed, and names are told to it.
bool isOwn(const QLocalSocket& socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    const int descriptor = int(socket.socketDescriptor());
    const bool known = getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
    if (known && peer.uid == getuid()) return true;
    zp::logLine("a socket of another user was refused");
    return false;
}

/// Held while a start finds out whether it is the first: two that found nobody would both listen.
class StartLock
{
public:
    explicit StartLock(const QString& path)
        : mDescriptor(open(QFile::encodeName(path), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600))
    {
        for (int waited = 0; mDescriptor >= 0 && flock(mDescriptor, LOCK_EX | LOCK_NB) != 0; ++waited) {
            if (waited == 2 * kPatience) break; // whoever holds it hangs
            usleep(1000);
        }
    }
    ~StartLock()
    {
        if (mDescriptor >= 0) close(mDescriptor);
    }
    StartLock(const StartLock&) = delete;
    StartLock& operator=(const StartLock&) = delete;

private:
    int mDescriptor;
};

} // namespace

SingleInstance::SingleInstance()
    : mBus(std::make_unique<zp::BusInstance>(QDBusConnection::sessionBus(), zp::homeFolder()))
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

SingleInstance::~SingleInstance() = default;

bool SingleInstance::handOver(const std::vector<std::string>& files)
{
    if (askRunning(files)) return true;
    const QString place = mName.startsWith('/') ? mName : "/tmp/" + mName;
    const StartLock alone(place + ".lock");
    if (askRunning(files)) return true; // another start came first
    mBus->claim();
    if (mServer.listen(mName)) return false;
    QLocalServer::removeServer(mName); // left by a program that is gone
    if (!mServer.listen(mName))
        zp::logLine("later starts will not be heard: %s", qUtf8Printable(mServer.errorString()));
    return false;
}

bool SingleInstance::askRunning(const std::vector<std::string>& files) const
{
    if (mBus->handOver(files)) return true;
    // The other may have no bus, and ours may know one of another home alone.
    QLocalSocket socket;
    socket.connectToServer(mName);
    if (!socket.waitForConnected(kPatience) || !isOwn(socket)) return false;
    QByteArray message;
    for (const std::string& file : files) message += QByteArray::fromStdString(file) + '\0';
    message += '\0';
    socket.write(message);
    if (!socket.waitForBytesWritten(kPatience)) return false;
    // The other side answers when it has read all, so that files are never lost between two programs.
    return socket.waitForReadyRead(kPatienceWithStart) && socket.readAll() == "ok";
}

void SingleInstance::listen(std::function<void(const std::vector<std::string>&)> open)
{
    mOpen = std::move(open);
    mBus->listen(mOpen);
    take();
}

void SingleInstance::take()
{
    if (!mOpen) return; // still starting: they wait
    while (QLocalSocket* socket = mServer.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        if (!isOwn(*socket)) {
            socket->abort();
            continue;
        }
        auto received = std::make_shared<QByteArray>();
        const auto read = [this, socket, received] {
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
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        if (socket->bytesAvailable() > 0) read(); // before it was listened to
    }
}
