// SPDX-License-Identifier: GPL-3.0-or-later
/// The program among others on a bus of the test's own: who is the one that runs, and what the desktop says to it.
#include "desktop/AppearanceFollower.h"
#include "desktop/BusInstance.h"
#include "desktop/Portal.h"
#include "support/MessageBus.h"
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>

using namespace zp;
using test::portalColorValue;
using Requests = BusInstance::Requests;

namespace
{

class Bus : public zp::test::MessageBus
{
protected:
    /// From a thread of its own, while events run here, as two programs do it.
    template <class Call>
    bool meanwhile(Call call)
    {
        std::atomic<int> answer = -1;
        std::thread other([&] { answer = call(); });
        EXPECT_TRUE(QTest::qWaitFor([&] { return answer >= 0; }, 20'000));
        other.join();
        QCoreApplication::processEvents();
        return answer == 1;
    }
    bool handOver(const std::string& home, const Requests& requests)
    {
        const QDBusConnection bus = connection();
        return meanwhile([&] { return BusInstance(bus, home).handOver(requests); });
    }
    bool send(const QString& method, const QVariantList& arguments)
    {
        QDBusMessage call =
            QDBusMessage::createMethodCall(kDesktopName, "/com/orvanta/zelpane", "org.freedesktop.Application", method);
        call.setArguments(arguments);
        QDBusConnection bus = connection();
        return meanwhile([&] { return bus.call(call).type() == QDBusMessage::ReplyMessage; });
    }

    std::vector<Requests> heard;
};

TEST_F(Bus, ASecondStartHandsOverToTheFirstOfItsHome)
{
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "the toolkit's bus thread takes its first event here by means that the thread checker cannot see";
#endif
    EXPECT_FALSE(handOver("/home/a", {"/x.png"})) << "there is nobody yet";
    BusInstance first(connection(), "/home/a");
    ASSERT_TRUE(first.claim());
    first.listen([this](const Requests& r) { heard.push_back(r); });
    BusInstance second(connection(), "/home/a");
    EXPECT_FALSE(second.claim());

    EXPECT_TRUE(handOver("/home/a", {"/x.png", "/b\xFF.png", "--new"}));
    EXPECT_FALSE(handOver("/home/b", {"/y.png"}));
    EXPECT_TRUE(handOver("/home/a", {}));
    EXPECT_EQ(heard, (std::vector<Requests>{{"/x.png", "/b\xFF.png", "--new"}, {}}));
}

TEST_F(Bus, WhatComesBeforeTheWindowIsUpWaitsForIt)
{
    BusInstance first(connection(), "/home/a");
    ASSERT_TRUE(first.claim());
    EXPECT_TRUE(send("Activate", {QVariantMap()}));
    QTimer::singleShot(200, &first, [&] { first.listen([this](const Requests& r) { heard.push_back(r); }); });
    EXPECT_TRUE(handOver("/home/a", {"/x.png"}));
    EXPECT_EQ(heard, (std::vector<Requests>{{}, {"/x.png"}}));
}

TEST_F(Bus, TheDesktopActivatesOpensAndChoosesActions)
{
    BusInstance first(connection(), "/home/a");
    ASSERT_TRUE(first.claim());
    first.listen([this](const Requests& r) { heard.push_back(r); });
    const QVariantMap data{{"activation-token", "front-7"}};
    EXPECT_TRUE(send("Activate", {data}));
    EXPECT_EQ(qEnvironmentVariable("XDG_ACTIVATION_TOKEN"), "front-7");
    EXPECT_TRUE(send("Open", {QStringList{"file:///a%20b.png", "http://elsewhere/c.png"}, data}));
    EXPECT_TRUE(send("ActivateAction", {"open-image", QVariantList(), data}));
    EXPECT_TRUE(send("ActivateAction", {"unknown", QVariantList(), data}));
    EXPECT_EQ(heard, (std::vector<Requests>{{}, {"/a b.png"}, {"--open"}}));
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

// ---- the desktop's settings -----------------------------------------------------------------------------------------

using Spaces = QMap<QString, QVariantMap>;

/// Answers as the portal of a desktop does.
class Portal : public QDBusVirtualObject
{
public:
    explicit Portal(const QDBusConnection& bus) : mBus(bus)
    {
        qDBusRegisterMetaType<Spaces>();
        EXPECT_TRUE(mBus.registerVirtualObject(kPortalObject, this, QDBusConnection::SingleNode));
        EXPECT_TRUE(mBus.registerService(kPortalName));
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        const QVariantList words = message.arguments();
        if (message.member() == "ReadAll")
            return mBus.send(message.createReply(QVariant::fromValue(Spaces{{"org.freedesktop.appearance", values}})));
        if (message.member() == "Get" && hasFilePanels && words.value(0) == "org.freedesktop.portal.FileChooser")
            return mBus.send(message.createReply(QVariant::fromValue(QDBusVariant(3u))));
        return false; // an error to who asked
    }
    void change(const QString& space, const QString& key, const QVariant& value)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(kPortalObject, "org.freedesktop.portal.Settings", "SettingChanged");
        signal << space << key << QVariant::fromValue(QDBusVariant(value));
        mBus.send(signal);
    }
    QVariantMap values;
    bool hasFilePanels = true;

private:
    QDBusConnection mBus;
};

TEST_F(Bus, TheDesktopsSchemeAndAccentAreFollowed)
{
    Portal portal(connection());
    portal.values = {{"color-scheme", 1u}, {"accent-color", portalColorValue(1, 0.5, 0)}};
    int changes = 0;
    const AppearanceFollower follower(connection(), [&changes] { ++changes; });
    const auto becomes = [](Appearance wanted) {
        return QTest::qWaitFor([&] { return desktopAppearance() == wanted; });
    };
    const QColor orange = QColor::fromRgbF(1, 0.5, 0), blue = QColor::fromRgbF(0, 0, 1);
    EXPECT_TRUE(becomes({true, orange}));
    const QString appearance = "org.freedesktop.appearance";
    portal.change(appearance, "color-scheme", 2u);
    EXPECT_TRUE(becomes({false, orange}));
    portal.change(appearance, "accent-color", portalColorValue(0, 0, 1));
    EXPECT_TRUE(becomes({false, blue}));
    const int before = changes;
    portal.change("org.example", "color-scheme", 1u);
    portal.change(appearance, "contrast", 1u);
    portal.change(appearance, "accent-color", portalColorValue(-1, -1, -1)); // none
    EXPECT_TRUE(becomes({false, {}}));
    EXPECT_EQ(changes, before + 1);
    portal.change(appearance, "color-scheme", 0u);
    EXPECT_TRUE(becomes({}));
}

TEST_F(Bus, FilePanelsAreThePortalsOnlyWhereItHasSome)
{
    struct Case {
        bool portal, panels;
    };
    EXPECT_TRUE(desktopHasFilePanels()) << "nobody asked: the desktop is taken at its word";
    for (const Case c : {Case{true, true}, {true, false}, {false, false}}) {
        std::optional<Portal> portal;
        if (c.portal) portal.emplace(connection()).hasFilePanels = c.panels;
        askForPortalPanels(connection());
        EXPECT_EQ(meanwhile([] { return desktopHasFilePanels(); }), c.panels) << c.portal;
        TearDown(), SetUp();
    }
}

} // namespace
