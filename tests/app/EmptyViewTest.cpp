// SPDX-License-Identifier: GPL-3.0-or-later
/// The empty window invites.
#include "app/EmptyView.h"
#include "app/MainWindow.h"
#include "app/RecentFiles.h"
#include "base/Folders.h"
#include "support/DocumentFixture.h"
#include "support/TemporaryFolder.h"
#include <QImage>
#include <QPushButton>
#include <QToolButton>

using namespace zp;
using namespace zp::test;

namespace
{

class EmptyViewTest : public DocumentTest
{
protected:
    EmptyViewTest() { clearRecentFiles(); }
    std::string save(const char* name)
    {
        const std::string path = (folder.path() / name).string();
        QImage picture(40, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(QString::fromStdString(path), "PNG");
        return path;
    }
    EmptyView& view() { return *window.findChild<EmptyView*>(); }
    QList<QToolButton*> thumbnails()
    {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return view().findChildren<QToolButton*>();
    }

    const TemporaryFolder folder;
    MainWindow window{*document};
};

TEST_F(EmptyViewTest, StandsThereWithoutAPictureOnly)
{
    EXPECT_FALSE(view().isHidden());
    makeImage(20, 20);
    EXPECT_TRUE(view().isHidden());
    performNumbers("newImageForMeWithSize:", {0, 0});
    EXPECT_FALSE(view().isHidden()) << "an image of nothing is none";
}

TEST_F(EmptyViewTest, ThumbnailsOfBeforeAreGoneAtOnce)
{
    noteRecentFile(save("one.png"));
    window.show();
    view().refresh();
    ASSERT_EQ(thumbnails().size(), 1);
    QApplication::processEvents();
    const QList<QToolButton*> before = view().findChildren<QToolButton*>();
    ASSERT_EQ(before.size(), 1);
    EXPECT_TRUE(before[0]->isVisible());
    view().refresh(); // while a question is open, what is to be deleted waits for its answer
    EXPECT_FALSE(before[0]->isVisible());
}

TEST_F(EmptyViewTest, OffersTheFilesOpenedLastAsThumbnails)
{
    const std::string path = save("a & b <i>.png");
    noteRecentFile(path);
    noteRecentFile("/gone.png");
    window.show();
    view().refresh();
    ASSERT_EQ(thumbnails().size(), 1) << "one that is gone is not offered";
    QToolButton& button = *thumbnails()[0];
    EXPECT_EQ(button.text(), "a && b <i>.png") << "a name is no mnemonic and no markup";
    EXPECT_FALSE(button.toolTip().contains("<i>"));
    ASSERT_TRUE(eventually([&] {
        const QImage shown = button.icon().pixmap(96, 96).toImage();
        return !shown.isNull() && shown.pixelColor(shown.width() / 2, shown.height() / 2) == QColor(Qt::red);
    }));
    std::string opened;
    window.openDroppedFile = [&opened](const std::string& p) { opened = p; };
    button.click();
    EXPECT_EQ(opened, path);
}

TEST_F(EmptyViewTest, BeginsByTheTwoCommands)
{
    QStringList asked;
    window.performAction = [&asked](const QString& action) { asked << action; };
    view().findChild<QPushButton*>("mEmpty_newDocument")->click();
    view().findChild<QPushButton*>("mEmpty_openDocument")->click();
    EXPECT_EQ(asked, (QStringList{"newDocument:", "openDocument:"}));
}

} // namespace
