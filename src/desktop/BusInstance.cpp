// SPDX-License-Identifier: GPL-3.0-or-later
/// Two interfaces at one object: the desktop's for applications, and that between starts of the program.
#include "desktop/BusInstance.h"
#include "base/Log.h"
#include "desktop/Desktop.h"
#include <QDBusAbstractAdaptor>
#include <QDBusMetaType>
#include <QUrl>

namespace zp
{

namespace
{

const QString kObjectPath = "/com/orvanta/zelpane";
/// Milliseconds for an answer: the other side may have been started a moment ago, and answers when its window is up.
constexpr int kPatience = 10'000;
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";

/// As every application's that a desktop starts by the bus; the names of the actions are those of the menu entry.
class DesktopAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit DesktopAdaptor(BusInstance* instance) : QDBusAbstractAdaptor(instance), mInstance(*instance) {}

public slots:
    void Activate(const QVariantMap& platformData) { mInstance.take({}, platformData); }
    void Open(const QStringList& uris, const QVariantMap& platformData)
    {
        BusInstance::Requests files;
        for (const QString& uri : uris)
            if (const std::string path = pathFromUrl(QUrl(uri)); !path.empty()) files.push_back(path);
        mInstance.take(files, platformData);
    }
    void ActivateAction(const QString& action, const QVariantList&, const QVariantMap& platformData)
    {
        static const QMap<QString, std::string> words{
            {"new-image", "--new"}, {"open-image", "--open"}, {"image-processor", "--image-processor"}};
        if (words.contains(action)) mInstance.take({words[action]}, platformData);
    }

private:
    BusInstance& mInstance;
};

class StartsAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.orvanta.zelpane")

public:
    explicit StartsAdaptor(BusInstance* instance) : QDBusAbstractAdaptor(instance), mInstance(*instance) {}

public slots:
    bool HandOver(const QByteArray& home, const QByteArrayList& requests, const QString& token)
    {
        return mInstance.takeFrom(home, requests, token);
    }

private:
    BusInstance& mInstance;
};

} // namespace

BusInstance::BusInstance(const QDBusConnection& bus, std::string home) : mBus(bus), mHome(std::move(home))
{
    qDBusRegisterMetaType<QByteArrayList>();
    new DesktopAdaptor(this);
    new StartsAdaptor(this);
}

bool BusInstance::handOver(const Requests& requests)
{
    if (!mBus.isConnected()) return false;
    QByteArrayList words;
    for (const std::string& request : requests) words << QByteArray::fromStdString(request);
    QDBusMessage call = QDBusMessage::createMethodCall(kDesktopName, kObjectPath, kDesktopName, "HandOver");
    call.setAutoStartService(false); // who is started already needs no other
    call << QByteArray::fromStdString(mHome) << QVariant::fromValue(words) << qEnvironmentVariable(kTokenVariable);
    const QDBusMessage answer = mBus.call(call, QDBus::Block, kPatience);
    return answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toBool();
}

bool BusInstance::claim()
{
    if (!mBus.isConnected()) return false;
    // The object first: a call may follow the name at once.
    const bool there = mBus.registerObject(kObjectPath, this) && mBus.registerService(kDesktopName);
    if (!there) logLine("the desktop's bus knows another editor");
    return there;
}

void BusInstance::listen(std::function<void(const Requests&)> open)
{
    mOpen = std::move(open);
    for (const Waiting& waiting : std::exchange(mWaiting, {})) {
        this->open(waiting.requests, waiting.token);
        if (waiting.asked) mBus.send(waiting.asked->createReply(true));
    }
}

bool BusInstance::takeFrom(const QByteArray& home, const QByteArrayList& requests, const QString& token)
{
    if (home.toStdString() != mHome) return false;
    Waiting waiting{{}, token, {}};
    for (const QByteArray& request : requests) waiting.requests.push_back(request.toStdString());
    if (mOpen) {
        open(waiting.requests, token);
    } else {
        setDelayedReply(true);
        waiting.asked = message();
        mWaiting.push_back(std::move(waiting));
    }
    return true;
}

void BusInstance::take(const Requests& requests, const QVariantMap& platformData)
{
    const QString token = platformData.value("activation-token").toString();
    if (mOpen) return open(requests, token);
    mWaiting.push_back({requests, token, {}});
}

void BusInstance::open(const Requests& requests, const QString& token)
{
    // The window that is raised next may come to the front by it.
    if (!token.isEmpty()) qputenv(kTokenVariable, token.toUtf8());
    // Who asked is answered first: a request may run an alert.
    QMetaObject::invokeMethod(
        this, [this, requests] { mOpen(requests); }, Qt::QueuedConnection);
}

} // namespace zp

#include "BusInstance.moc"
