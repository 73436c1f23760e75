// SPDX-License-Identifier: GPL-3.0-or-later
/// The colour panel shows opacity, and picks from the screen through a portal.
#include "desktop/ColorPanel.h"
#include "desktop/Portal.h"
#include "desktop/ScreenColorPicker.h"
#include "support/MessageBus.h"
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <optional>
#include <set>

namespace
{

/// What a desktop's portal does when it is asked for a colour.
class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")

public:
    uint answer = 0; ///< 0: a colour, 1: the person gave up
    bool refuses = false;

public slots:
    QDBusObjectPath PickColor(const QString&, const QVariantMap& options) // NOLINT: the bus's name
    {
        if (refuses) {
            sendErrorReply(QDBusError::Failed, "no picking here");
            return QDBusObjectPath("/");
        }
        const QString sender = message().service().mid(1).replace('.', '_');
        const QString request = QString("/org/freedesktop/portal/desktop/request/%1/%2")
                                    .arg(sender, options.value("handle_token").toString());
        QDBusMessage response = QDBusMessage::createSignal(request, "org.freedesktop.portal.Request", "Response");
        response << answer
                 << (answer == 0 ? QVariantMap{{"color", zp::test::portalColorValue(1, 0.5, 0)}} : QVariantMap());
        connection().send(response);
        return QDBusObjectPath(request);
    }
};

class ScreenColor : public zp::test::MessageBus
{
protected:
    void startPortal()
    {
        ASSERT_TRUE(mPortalSide->registerObject(zp::kPortalObject, &portal, QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(mPortalSide->registerService(zp::kPortalName));
    }
    void SetUp() override
    {
        MessageBus::SetUp();
        if (!IsSkipped() && !HasFatalFailure()) mPortalSide = connection(), mProgramSide = connection();
    }

    Portal portal;
    std::optional<QDBusConnection> mPortalSide, mProgramSide;
};

} // namespace

TEST_F(ScreenColor, IsPickedByThePortal)
{
    zp::ScreenColorPicker picker(*mProgramSide);
    EXPECT_FALSE(picker.isAvailable());
    startPortal();
    EXPECT_TRUE(picker.isAvailable());
    QSignalSpy picked(&picker, &zp::ScreenColorPicker::picked);
    for (int times = 1; times <= 2; ++times) {
        picker.pick();
        ASSERT_TRUE(picked.wait());
        EXPECT_EQ(picked.last().at(0).value<QColor>().name(), "#ff8000");
    }
}

TEST_F(ScreenColor, LeavesTheColourWhenThePersonOrThePortalGivesUp)
{
    startPortal();
    zp::ScreenColorPicker picker(*mProgramSide);
    QSignalSpy picked(&picker, &zp::ScreenColorPicker::picked), gaveUp(&picker, &zp::ScreenColorPicker::gaveUp);
    portal.answer = 1;
    picker.pick();
    ASSERT_TRUE(gaveUp.wait());
    portal.refuses = true;
    picker.pick();
    ASSERT_TRUE(gaveUp.wait());
    EXPECT_TRUE(picked.isEmpty());
    portal.refuses = false, portal.answer = 0;
    picker.pick();
    EXPECT_TRUE(picked.wait()) << "the next request is answered as ever";
}

TEST(ColorPanelTest, ShowsOpacityOverAChequerboard)
{
    ColorPanel panel;
    panel.setOption(QColorDialog::ShowAlphaChannel);
    panel.show();
    auto* swatch = panel.findChild<QWidget*>("mColorSwatch");
    ASSERT_TRUE(swatch);
    const auto colors = [swatch] {
        const QImage image = swatch->grab().toImage();
        std::set<QRgb> seen;
        for (int x = image.width() / 2; x < image.width() / 2 + 24; ++x)
            seen.insert(image.pixel(x, image.height() / 2));
        return seen;
    };
    panel.setCurrentColor(QColor(255, 0, 0));
    EXPECT_EQ(colors(), std::set<QRgb>{qRgb(255, 0, 0)});
    panel.setCurrentColor(QColor(255, 0, 0, 128));
    EXPECT_EQ(colors().size(), 2u) << "light and dark fields shine through";
    const QImage image = swatch->grab().toImage();
    EXPECT_EQ(image.pixel(3, 3), qRgb(255, 0, 0)) << "the opaque colour stands in a corner";
}

TEST(ColorPanelTest, HasAFieldForTheHexadecimalNumber)
{
    ColorPanel panel;
    panel.show();
    bool found = false;
    panel.setCurrentColor(QColor(0x12, 0xab, 0xef));
    for (const QLineEdit* field : panel.findChildren<QLineEdit*>()) found |= field->text().toLower() == "#12abef";
    EXPECT_TRUE(found);
}

#include "ColorPanelTest.moc"
