// SPDX-License-Identifier: GPL-3.0-or-later
/// Paths across the border to Qt, remembered frames, sounds, held keys and the pasteboard.
#include "desktop/Desktop.h"
#include "base/BitmapRep.h"
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Pasteboard.h"
#include "desktop/Settings.h"
#include "desktop/Sounds.h"
#include "support/TemporaryFolder.h"
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QThread>
#include <QUrl>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

using namespace zp;
using namespace zp::test;

TEST(DesktopPaths, KeepTheirBytesThroughAddresses)
{
    for (const std::string path : {"/a/b.jpg", "/a b/ü%20#?.png", "/x/\xFF\xFE\n.jpg", "/\"'"}) {
        EXPECT_EQ(pathFromUrl(urlFromPath(path)), path);
        QMimeData data;
        data.setData("text/uri-list", urlFromPath(path).toEncoded() + "\r\n");
        EXPECT_TRUE(hasPaths(&data));
        EXPECT_EQ(pathsFromMimeData(&data), std::vector{path});
    }
    QMimeData mixed;
    mixed.setData("text/uri-list", "# a comment\r\nhttp://example.org/a.jpg\r\nfile:///tmp/%FF.jpg\r\nfile:///b\r\n");
    EXPECT_EQ(pathsFromMimeData(&mixed), (std::vector<std::string>{"/tmp/\xFF.jpg", "/b"}));
    QMimeData none;
    none.setText("/tmp/a");
    EXPECT_FALSE(hasPaths(&none));
    EXPECT_FALSE(hasPaths(nullptr));
    EXPECT_EQ(pathFromUrl(QUrl("http://example.org/a")), "");
}

TEST(DesktopFrames, AreRememberedUnderTheirName)
{
    {
        QWidget window;
        EXPECT_FALSE(setFrameAutosaveName(&window, "Test"));
        window.setGeometry(50, 60, 321, 234);
        window.show();
        window.close();
    }
    QWidget again;
    EXPECT_TRUE(setFrameAutosaveName(&again, "Test"));
    EXPECT_EQ(again.size(), QSize(321, 234));
    settings().setValue("frames/Broken", QByteArray("nonsense"));
    QWidget broken;
    EXPECT_FALSE(setFrameAutosaveName(&broken, "Broken"));
}

TEST(SettingsFile, KeepsTextsListsAndBytes)
{
    const std::string path = temporaryFolder() + "/settings/a.conf";
    const QByteArray bytes("\0\1\xFF=,\n%", 7);
    const QStringList list{"a, b", "", "50 %", "\u00fc\n"};
    {
        Settings settings(path);
        EXPECT_EQ(settings.value("none", 7), 7);
        settings.setValue("text", "a=b\n[c] %41 \u00fc");
        settings.setValue("list", list);
        settings.setValue("one", QStringList{"alone"});
        settings.setValue("bytes", bytes);
        settings.setValue("on", true);
        settings.setValue("off", false);
        settings.setValue("gone", 1);
        settings.remove("gone");
    }
    const Settings again(path);
    EXPECT_EQ(again.value("text").toString(), "a=b\n[c] %41 \u00fc");
    EXPECT_EQ(again.value("list").toStringList(), list);
    EXPECT_EQ(again.value("one").toStringList(), QStringList{"alone"});
    EXPECT_EQ(again.value("bytes").toByteArray(), bytes);
    EXPECT_TRUE(again.value("on").toBool());
    EXPECT_FALSE(again.value("off", true).toBool());
    EXPECT_FALSE(again.value("gone").isValid());
}

TEST(SettingsFile, KeepsNamesOfEveryKind)
{
    const std::string path = temporaryFolder() + "/settings/names.conf";
    for (const char* name : {"plain", "a/b", "[heading]", "a=b", "a\nb", "50 %41", "\u00fc", "#"}) {
        SCOPED_TRACE(name);
        removeItem(path);
        {
            Settings settings(path);
            settings.setValue(QString::fromUtf8(name), 7);
        }
        EXPECT_EQ(Settings(path).value(QString::fromUtf8(name)), "7");
    }
}

TEST(SettingsFile, OfTheFirstVersionIsRead)
{
    const std::string path = temporaryFolder() + "/old.conf";
    const std::string text = "[General]\nunit=inches\nrecentFiles=/a%20b, /c\n\n[keys]\noption=meta\n";
    ASSERT_TRUE(writeFileSafely(path, text.data(), text.size()));
    Settings settings(path);
    EXPECT_EQ(settings.value("unit").toString(), "inches");
    EXPECT_EQ(settings.value("recentFiles").toStringList(), (QStringList{"/a%20b", "/c"}));
    EXPECT_EQ(settings.value("keys/option").toString(), "meta");
}

TEST(SettingsFile, ThatCannotBeReadIsNotWrittenOver)
{
    const std::string path = temporaryFolder() + "/large.conf";
    const std::string text(5 << 20, 'x');
    ASSERT_TRUE(writeFileSafely(path, text.data(), text.size()));
    {
        Settings settings(path);
        settings.setValue("unit", "inches");
        EXPECT_EQ(settings.value("unit").toString(), "inches");
    }
    EXPECT_EQ(readWholeFile(path), text);
}

TEST(Sounds, AreRememberedAndNeverWaitedFor)
{
    takeSounds();
    playSound("Frog");
    beep();
    playSound("no such sound");
    playSound("../../etc/passwd");
    EXPECT_EQ(takeSounds(), (std::vector<std::string>{"Frog", "beep", "no such sound", "../../etc/passwd"}));
    EXPECT_TRUE(takeSounds().empty());
    std::thread other([] { playSound("Pop"); });
    other.join();
    for (int i = 0; i < 10001; ++i) playSound("Ping");
    const auto all = takeSounds();
    EXPECT_EQ(all.size(), 10000u);
    EXPECT_EQ(all.front(), "Ping");
}

TEST(KeyModifiers, OfAScriptAndOfSwitchesCount)
{
    installKeyModifierWatch();
    setScriptedKeyModifiers(kShiftKey | kControlKey);
    EXPECT_EQ(currentKeyModifiers(), kShiftKey | kControlKey);
    std::uint32_t seen = 0;
    std::thread([&] { seen = currentKeyModifiers(); }).join();
    EXPECT_EQ(seen, kShiftKey | kControlKey);
    setSwitchedKeyModifiers(kOptionKey);
    EXPECT_EQ(switchedKeyModifiers(), kOptionKey);
    EXPECT_EQ(currentKeyModifiers(), kShiftKey | kControlKey | kOptionKey);
    setScriptedKeyModifiers(0u);
    EXPECT_EQ(currentKeyModifiers(), kOptionKey);
    setSwitchedKeyModifiers(0);
    EXPECT_EQ(currentKeyModifiers(), 0u);
    setScriptedKeyModifiers(std::nullopt);
}

TEST(KeyModifiers, OfEventsReachOtherThreads)
{
    installKeyModifierWatch();
    QLineEdit field;
    field.show();
    QTest::keyPress(&field, Qt::Key_A, Qt::ShiftModifier | Qt::AltModifier);
    EXPECT_EQ(currentKeyModifiers(), kShiftKey | kOptionKey);
    std::uint32_t seen = 0;
    std::thread([&] { seen = currentKeyModifiers(); }).join();
    EXPECT_EQ(seen, kShiftKey | kOptionKey);
    QTest::keyRelease(&field, Qt::Key_A);
    EXPECT_EQ(currentKeyModifiers(), 0u);
}

TEST(KeyModifiers, PlayTheRolesOfThePreferences)
{
    EXPECT_EQ(keyModifiersFromQt(int(Qt::AltModifier)), kOptionKey);
    EXPECT_EQ(keyModifiersFromQt(int(Qt::ControlModifier)), kControlKey);
    EXPECT_EQ(keyModifiersFromQt(int(Qt::MetaModifier)), kCommandKey);
    EXPECT_EQ(keyModifiersFromQt(int(Qt::ShiftModifier)), kShiftKey);
    setKeyRoles("meta", "ctrl", "alt");
    EXPECT_EQ(keyModifiersFromQt(int(Qt::AltModifier)), kCommandKey);
    EXPECT_EQ(keyModifiersFromQt(int(Qt::MetaModifier)), kOptionKey);
    EXPECT_EQ(settings().value("keys/option").toString(), "meta");
    setKeyRoles("nonsense", "ctrl", "alt"); // an unknown key changes nothing
    EXPECT_EQ(keyModifiersFromQt(int(Qt::MetaModifier)), kOptionKey);
    setKeyRoles("alt", "ctrl", "meta");
}

TEST(Pasteboard, OffersTIFFAndMakesPNGFromItWhenAsked)
{
    auto picture = BitmapRep::create(5, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) {
            std::uint8_t* p = picture->bitmapData() + y * picture->bytesPerRow() + 4 * x;
            p[0] = x == 4 ? 0 : 255, p[1] = x == 4 ? 0 : std::uint8_t(50 * x), p[2] = 0, p[3] = 0;
        }
    const auto tiff = encodeTIFF(picture->view(), {});
    ASSERT_FALSE(tiff.empty());
    Pasteboard& board = Pasteboard::general();
    board.setTIFF(tiff);
    EXPECT_TRUE(board.hasImageData());
    EXPECT_EQ(board.types(), (QStringList{"image/tiff", "image/png"}));
    EXPECT_EQ(board.imageData(), tiff);
    const QByteArray png = QApplication::clipboard()->mimeData()->data("image/png");
    const QImage seen = QImage::fromData(png, "PNG");
    ASSERT_EQ(seen.size(), QSize(5, 3));
    EXPECT_EQ(seen.pixelColor(2, 1), QColor(100, 0, 0));
    EXPECT_EQ(seen.pixelColor(4, 1).alpha(), 0);
    board.clear();
    EXPECT_FALSE(board.hasImageData());
    EXPECT_TRUE(board.imageData().empty());
}

TEST(Pasteboard, TakesWhatOtherProgramsOffer)
{
    QImage image(4, 2, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QApplication::clipboard()->setImage(image);
    EXPECT_TRUE(Pasteboard::general().hasImageData());
    const auto bytes = Pasteboard::general().imageData();
    EXPECT_EQ(QImage::fromData(bytes.data(), int(bytes.size())).size(), QSize(4, 2));
    auto* bmp = new QMimeData;
    bmp->setData("image/bmp", "BM...");
    bmp->setText("text beside it");
    QApplication::clipboard()->setMimeData(bmp);
    EXPECT_TRUE(Pasteboard::general().hasImageData());
    EXPECT_EQ(Pasteboard::general().imageData().size(), 5u);
    QApplication::clipboard()->setText("only text");
    EXPECT_FALSE(Pasteboard::general().hasImageData());
}

/// An owner of the clipboard that offers much and gives nothing, after a time or at once.
class Liar : public QMimeData
{
public:
    Liar(int milliseconds, int& asked) : mMilliseconds(milliseconds), mAsked(asked) {}
    QStringList formats() const override
    {
        return {"image/tiff", "image/png", "image/bmp", "image/webp", "image/jpeg"};
    }
    bool hasFormat(const QString& type) const override { return formats().contains(type); }

protected:
    QVariant retrieveData(const QString&, QMetaType) const override
    {
        ++mAsked;
        QThread::msleep(unsigned(mMilliseconds));
        return {};
    }

private:
    int mMilliseconds;
    int& mAsked;
};

TEST(Pasteboard, AsksAnOwnerThatDoesNotAnswerOnlyOnce)
{
    int asked = 0;
    QApplication::clipboard()->setMimeData(new Liar(2100, asked));
    EXPECT_TRUE(Pasteboard::general().imageData().empty());
    EXPECT_EQ(asked, 1);
    asked = 0;
    QApplication::clipboard()->setMimeData(new Liar(0, asked));
    EXPECT_TRUE(Pasteboard::general().imageData().empty());
    EXPECT_GE(asked, 5) << "one that answers may have another kind";
    QApplication::clipboard()->clear();
}

TEST(Pasteboard, TakesTheFirstPictureAmongFilesThatAFileManagerCopied)
{
    const TemporaryFolder folder;
    const auto path = [&folder](const char* name) { return (folder.path() / name).string(); };
    QImage image(6, 3, QImage::Format_RGB32);
    image.fill(Qt::green);
    ASSERT_TRUE(image.save(QString::fromStdString(path("picture")), "PNG"));
    std::ofstream(path("words.png")) << "no picture";
    const auto copyFiles = [&](const std::vector<const char*>& names) {
        auto* data = new QMimeData;
        QList<QUrl> urls;
        for (const char* name : names) urls << urlFromPath(path(name));
        data->setUrls(urls);
        QApplication::clipboard()->setMimeData(data);
    };
    Pasteboard& board = Pasteboard::general();
    copyFiles({"words.png", "picture"});
    EXPECT_TRUE(board.hasImageData());
    const auto bytes = board.imageData();
    EXPECT_EQ(QImage::fromData(bytes.data(), int(bytes.size())).size(), QSize(6, 3));
    copyFiles({"words.png", "missing.png"});
    EXPECT_FALSE(board.hasImageData());
    EXPECT_TRUE(board.imageData().empty());
}
