// SPDX-License-Identifier: GPL-3.0-or-later
/// The dialog for a copy of a wanted size: it seeks what is chosen, shows it, and writes that very file.
#include "app/SizeSaveDialog.h"
#include "base/Folders.h"
#include "codecs/ImageImporter.h"
#include "desktop/Panels.h"
#include "desktop/Settings.h"
#include "support/DocumentFixture.h"
#include "support/ModalDialog.h"
#include "support/Samples.h"
#include "support/TemporaryFolder.h"
#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

using namespace zp;
using namespace zp::test;

namespace
{

class SizeSave : public DocumentTest
{
protected:
    void SetUp() override
    {
        DocumentTest::SetUp();
        settings().remove("sizedCopy.goal");
        settings().remove("sizedCopy.kind");
        document->perform("setImagePath:", {{}, sample("photos/tahoe-gps.jpg")});
        ASSERT_TRUE(document->picture().isLoaded());
    }
    template <class Work>
    void inDialog(Work work)
    {
        inModalDialog(
            canvas.get(), "SizeSave", [&] { runSizeSaveDialog(*document, nullptr); }, work);
    }
    static QAbstractButton& button(const QDialog& d, const char* name) { return *d.findChild<QAbstractButton*>(name); }
    static std::string after(const QDialog& d) { return d.findChild<QLabel*>("mSize_After")->text().toStdString(); }
    static bool isFound(const QDialog& d)
    {
        return QTest::qWaitFor([&] { return button(d, "mSize_SaveButton").isEnabled(); }, 60'000);
    }
    TemporaryFolder folder;
};

TEST_F(SizeSave, WritesTheFileThatItShows)
{
    const std::string copy = (folder.path() / "copy.jpg").string(), own = document->picture().path();
    std::uint64_t size = 0;
    inDialog([&](QDialog& d) {
        EXPECT_TRUE(button(d, "mSize_LooksSame").isChecked()) << "as given";
        EXPECT_FALSE(button(d, "mSize_SaveButton").isEnabled()) << "nothing is found yet";
        button(d, "mSize_AtMost").click();
        d.findChild<QSpinBox*>("mSize_Kilobytes")->setValue(200);
        ASSERT_TRUE(isFound(d)) << after(d);
        EXPECT_TRUE(after(d).starts_with("After: JPEG ")) << after(d);
        queuePanelChoice(copy);
        button(d, "mSize_SaveButton").click();
        EXPECT_FALSE(d.isVisible());
        const auto bytes = readWholeFile(copy);
        ASSERT_TRUE(bytes);
        size = bytes->size();
        EXPECT_NE(after(d).find(" · " + std::to_string((size + 512) / 1024) + " KB"), std::string::npos) << after(d);
    });
    EXPECT_LE(size, 200u * 1024);
    EXPECT_GT(size, 180u * 1024);
    EXPECT_EQ(document->picture().path(), own);
    EXPECT_EQ(lastPanel()->name, "tahoe-gps (small).jpg");
    EXPECT_TRUE(document->message().startsWith("Saved copy.jpg · JPEG ")) << document->message().toStdString();
    inDialog([&](QDialog& d) {
        EXPECT_TRUE(button(d, "mSize_AtMost").isChecked()) << "as chosen last";
        EXPECT_EQ(d.findChild<QSpinBox*>("mSize_Kilobytes")->value(), 200);
    });
}

TEST_F(SizeSave, SeeksAgainWhatIsChosenAgain)
{
    const std::string copy = (folder.path() / "copy.webp").string();
    inDialog([&](QDialog& d) {
        ASSERT_TRUE(isFound(d)) << after(d);
        const std::string first = after(d);
        EXPECT_TRUE(first.starts_with("After: JPEG ")) << first;
        d.findChild<QComboBox*>("mSize_Kind")->setCurrentIndex(1);
        EXPECT_FALSE(button(d, "mSize_SaveButton").isEnabled());
        ASSERT_TRUE(isFound(d)) << after(d);
        EXPECT_TRUE(after(d).starts_with("After: WebP ")) << after(d);
        queuePanelChoice(copy);
        button(d, "mSize_SaveButton").click();
    });
    const ImportedImage opened = importImageFile(copy);
    ASSERT_TRUE(opened.bitmap) << opened.error;
    EXPECT_EQ(opened.bitmap->pixelsWide(), 2048);
}

TEST_F(SizeSave, SaysThatNoFileIsSmallEnough)
{
    inDialog([&](QDialog& d) {
        d.findChild<QSpinBox*>("mSize_Kilobytes")->setValue(1);
        button(d, "mSize_AtMost").click();
        ASSERT_TRUE(QTest::qWaitFor([&] { return after(d).starts_with("Even at the lowest quality"); }, 60'000))
            << after(d);
        EXPECT_FALSE(button(d, "mSize_SaveButton").isEnabled());
    });
}

TEST_F(SizeSave, ClosesWhileItSeeks)
{
    inDialog([&](QDialog& d) {
        d.findChild<QComboBox*>("mSize_Kind")->setCurrentIndex(1);
        QTest::qWait(300);
        QTest::keyClick(&d, Qt::Key_Escape);
        EXPECT_FALSE(d.isVisible());
    });
    EXPECT_TRUE(document->picture().isLoaded());
}

} // namespace
