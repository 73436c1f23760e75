// SPDX-License-Identifier: GPL-3.0-or-later
/// The preferences window and the About box.
#include "app/ZPAboutBox.h"
#include "app/ZPPrefs.h"
#include "desktop/Desktop.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Settings.h"
#include "desktop/Sounds.h"
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

class Prefs : public testing::Test
{
protected:
    void SetUp() override
    {
        // As the program names itself: both ways to the settings must lead to one file.
        QCoreApplication::setOrganizationName("zelpane");
        QCoreApplication::setApplicationName("zelpane");
        mPrefs = ZPPrefs::sharedPrefs();
        mPrefs->showWindow();
    }
    void TearDown() override
    {
        mPrefs->close();
        setKeyRoles("alt", "ctrl", "meta");
    }
    template <class W>
    W* find(const char* name) const
    {
        return mPrefs->findChild<W*>(name);
    }
    ZPPrefs* mPrefs = nullptr;
};

class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> urls;
public slots:
    void take(const QUrl& url) { urls << url; }
};

/// Runs @p act in the About box's own loop.
void inAboutBox(std::function<void(QWidget*)> act)
{
    QTimer::singleShot(0, qApp, [act] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->objectName(), "AboutBox");
        act(box);
    });
    ZPAboutBox::show();
}

} // namespace

TEST_F(Prefs, AreOneWindowThatRemembersItsUnit)
{
    EXPECT_EQ(mPrefs, ZPPrefs::sharedPrefs());
    EXPECT_EQ(mPrefs->objectName(), "Prefs");
    auto* unit = find<QComboBox>("mUnitPopUp");
    ASSERT_TRUE(unit);
    EXPECT_EQ(ZPPrefs::unit(), ZPPrefs::Pixels);
    QSignalSpy changed(mPrefs, &ZPPrefs::unitChanged);
    unit->setCurrentIndex(1);
    EXPECT_EQ(ZPPrefs::unit(), ZPPrefs::Centimeters);
    EXPECT_EQ(changed.count(), 1);
    settings().setValue("unit", "furlongs"); // an unknown one is none
    EXPECT_EQ(ZPPrefs::unit(), ZPPrefs::Pixels);
    mPrefs->showWindow();
    EXPECT_EQ(unit->currentIndex(), 0);
}

TEST_F(Prefs, KeysExchangeTheirRoles)
{
    auto *option = find<QComboBox>("mOptionKeyPopUp"), *control = find<QComboBox>("mControlKeyPopUp"),
         *command = find<QComboBox>("mCommandKeyPopUp");
    EXPECT_EQ(option->currentIndex(), 0);
    EXPECT_EQ(command->currentIndex(), 2);
    option->setCurrentIndex(2); // Super
    EXPECT_EQ(control->currentIndex(), 1);
    EXPECT_EQ(command->currentIndex(), 0); // takes Alt, which became free
    EXPECT_EQ(keyModifiersFromQt(int(Qt::MetaModifier)), kOptionKey);
    EXPECT_EQ(keyModifiersFromQt(int(Qt::AltModifier)), kCommandKey);
}

TEST_F(Prefs, SoundsCanBeTurnedOffAndAreStillTold)
{
    auto* sounds = find<QCheckBox>("mSoundsCheck");
    EXPECT_TRUE(sounds->isChecked());
    sounds->click();
    EXPECT_FALSE(settings().value("sounds").toBool());
    ZPPrefs::applyStored();
    takeSounds();
    playSound("Pop");
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"Pop"});
    sounds->click();
}

TEST_F(Prefs, AppearanceIsKeptAndHoldsAtOnce)
{
    auto* scheme = find<QComboBox>("mSchemePopUp");
    scheme->setCurrentIndex(2);
    EXPECT_EQ(settings().value("colorScheme"), "dark");
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
    scheme->setCurrentIndex(1);
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 128);
    scheme->setCurrentIndex(0);
}

TEST_F(Prefs, CloseByEscape)
{
    QTest::keyClick(mPrefs, Qt::Key_Escape);
    EXPECT_FALSE(mPrefs->isVisible());
}

TEST_F(Prefs, ThePageOfTheAboutBoxIsASetting)
{
    UrlCatcher browser;
    for (const char* scheme : {"https", "file", "javascript"})
        QDesktopServices::setUrlHandler(scheme, &browser, "take");
    const QString usual = ZPPrefs::projectPage();
    auto* page = find<QLineEdit>("mPageField");
    page->setText("https://example.org/z");
    emit page->editingFinished();
    const auto pressPage = [](QWidget* box) {
        for (auto* button : box->findChildren<QPushButton*>())
            if (button->property("action") == "showURL:") button->click();
        QTest::keyClick(box, Qt::Key_Escape);
    };
    inAboutBox(pressPage);
    EXPECT_EQ(browser.urls, QList<QUrl>{QUrl("https://example.org/z")});
    page->setText("javascript:alert(1)");
    emit page->editingFinished();
    takeSounds();
    inAboutBox(pressPage);
    EXPECT_EQ(browser.urls.size(), 1);
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"beep"});
    page->setText("");
    emit page->editingFinished();
    EXPECT_EQ(ZPPrefs::projectPage(), usual);
    for (const char* scheme : {"https", "file", "javascript"}) QDesktopServices::unsetUrlHandler(scheme);
}

TEST(AboutBox, TellsVersionAndLicenceAndCloses)
{
    bool seen = false;
    inAboutBox([&](QWidget* box) {
        seen = true;
        EXPECT_TRUE(box->isModal());
        EXPECT_TRUE(box->findChild<QLabel*>("mVersionText")->text().contains("0."));
        EXPECT_TRUE(box->findChild<QLabel*>("mLicenseText")->text().contains("General Public License"));
        EXPECT_FALSE(box->findChild<QLabel*>("mPicture")->pixmap().isNull());
        ZPAboutBox::show(); // already open
        for (auto* button : box->findChildren<QPushButton*>())
            if (button->property("action") == "close:") button->click();
        EXPECT_FALSE(box->isVisible());
    });
    EXPECT_TRUE(seen);
    inAboutBox([](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); }); // and again
}

#include "PrefsTest.moc"
