// SPDX-License-Identifier: GPL-3.0-or-later
/// The menus: keys that can be changed, the second places of commands, why an item is grey, the menu over the picture.
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/ShortcutsWindow.h"
#include "app/ZPAppController.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "document/Paint.h"
#include "support/TemporaryFolder.h"
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

using namespace zp;
using namespace zp::test;

namespace
{

class MainMenuTest : public testing::Test
{
protected:
    ~MainMenuTest() override { menu().giveAllKeysBack(); }
    MainMenu& menu() { return controller.menu(); }
    QString keys(const char* action) { return menu().item(action)->shortcut().toString(); }
    void makeImage() { controller.document().perform("newImageWithSize:", {{60, 40}, {}}); }

    ZPAppController controller;
};

TEST_F(MainMenuTest, AnItemThatIsGreySaysWhy)
{
    menu().validate();
    EXPECT_TRUE(menu().item("saveAsPNG:")->toolTip().endsWith("Needs an image: open one or make a new one."));
    EXPECT_EQ(menu().item("saveAsPNG:")->statusTip(), "Needs an image: open one or make a new one.");
    EXPECT_TRUE(menu().item("undo:")->toolTip().endsWith("There is nothing to undo."));
    makeImage();
    menu().validate();
    EXPECT_EQ(menu().item("saveAsPNG:")->toolTip(), menu().item("saveAsPNG:")->statusTip());
    EXPECT_EQ(menu().item("fill:")->statusTip(), "Needs a selection.");
    for (const QAction* item : menu().items()) {
        const QString action = item->property("action").toString();
        if (!item->isEnabled()) {
            EXPECT_FALSE(controller.whyNot(action).isEmpty()) << action.toStdString();
        }
    }
}

TEST_F(MainMenuTest, MenuTitlesHaveKeysOfTheirOwn)
{
    QString letters;
    for (const QAction* title : controller.window().menuBar()->actions()) {
        ASSERT_TRUE(title->text().startsWith('&')) << title->text().toStdString();
        EXPECT_FALSE(letters.contains(title->text()[1]));
        letters += title->text()[1];
    }
    EXPECT_EQ(letters.size(), 9);
}

TEST_F(MainMenuTest, AboutPreferencesAndQuitAlsoStandWhereLinuxUsersLook)
{
    controller.applicationDidFinishLaunching(false);
    struct Place {
        const char *menu, *action;
    };
    for (const Place& p : {Place{"Help", "about:"}, {"Edit", "prefs:"}, {"File", "terminate:"}}) {
        EXPECT_EQ(menu().menu(p.menu)->actions().constLast(), menu().item(p.action)) << p.action;
        EXPECT_TRUE(menu().menu("Zelpane")->actions().contains(menu().item(p.action))) << p.action;
    }
}

TEST_F(MainMenuTest, ChangedKeysAreKeptAndTheGivenOnesComeBack)
{
    menu().setKeys("fill:", {QKeySequence("Ctrl+Shift+9")});
    EXPECT_EQ(keys("fill:"), "Ctrl+Shift+9");
    {
        ZPAppController next;
        EXPECT_EQ(next.menu().item("fill:")->shortcut().toString(), "Ctrl+Shift+9");
    }
    menu().setKeys("fill:", {});
    EXPECT_EQ(keys("fill:"), "");
    menu().giveKeysBack("fill:");
    EXPECT_EQ(keys("fill:"), "Ctrl+F");
    menu().setKeys("zoomIn:", {QKeySequence("Ctrl+I")});
    menu().giveKeysBack("zoomIn:");
    EXPECT_EQ(menu().item("zoomIn:")->shortcuts().size(), 2) << "both of the table's";
}

TEST_F(MainMenuTest, TheSheetListsEveryCommandAndMovesAKeyThatIsTaken)
{
    menu().item("undo:")->setText("Undo Fill"); // as after a step
    ShortcutsWindow sheet(menu());
    sheet.showWindow();
    auto& tree = *sheet.findChild<QTreeWidget*>("mShortcutTable");
    int lines = 0;
    QTreeWidgetItem* stroke = nullptr;
    for (int g = 0; g < tree.topLevelItemCount(); ++g)
        for (int i = 0; i < tree.topLevelItem(g)->childCount(); ++i, ++lines) {
            QTreeWidgetItem* const row = tree.topLevelItem(g)->child(i);
            if (row->text(0) == "Stroke") stroke = row;
            EXPECT_NE(row->text(0), "Undo Fill") << "the command's own title";
        }
    EXPECT_EQ(lines, menu().items().size() + 10) << "and the tools";
    ASSERT_TRUE(stroke);
    EXPECT_EQ(stroke->text(1), "Ctrl+Shift+F");
    tree.setCurrentItem(stroke);
    const auto conflict = [&] { return sheet.findChild<QLabel*>("mShortcutConflict")->text(); };
    auto& edit = *sheet.findChild<QKeySequenceEdit*>("mShortcutKeys");
    EXPECT_EQ(conflict(), "");
    edit.setKeySequence(QKeySequence("4"));
    EXPECT_TRUE(conflict().contains("Brush"));
    edit.setKeySequence(QKeySequence("Ctrl+F"));
    EXPECT_TRUE(conflict().contains("belongs to Fill"));
    sheet.findChild<QPushButton*>("mShortcutSet")->click();
    EXPECT_EQ(keys("stroke:"), "Ctrl+F");
    EXPECT_EQ(keys("fill:"), "");
    sheet.findChild<QPushButton*>("mShortcutAllGiven")->click();
    EXPECT_EQ(keys("stroke:"), "Ctrl+Shift+F");
    EXPECT_EQ(keys("fill:"), "Ctrl+F");
}

TEST_F(MainMenuTest, TheMenuOverThePictureHasItsCommandsValidated)
{
    makeImage();
    const std::unique_ptr<QMenu> over(menu().makePictureMenu(nullptr));
    QStringList titles;
    for (const QAction* item : over->actions())
        if (!item->isSeparator()) titles << item->text();
    EXPECT_TRUE(titles.contains("Copy"));
    EXPECT_TRUE(titles.contains("Select All"));
    EXPECT_TRUE(titles.contains("Crop to Selection"));
    EXPECT_FALSE(titles.contains("Quit Zelpane"));
    EXPECT_FALSE(menu().item("fill:")->isEnabled());
    EXPECT_TRUE(menu().item("copy:")->isEnabled());
    EXPECT_FALSE(over->actions().constFirst()->isSeparator() && over->actions().constFirst()->isVisible());
}

TEST_F(MainMenuTest, AKeyThatATextFieldNeedsIsItsOwn)
{
    makeImage();
    controller.window().show();
    const float before = controller.document().paint().size();
    EXPECT_EQ(menu().itemOfKeys(QKeySequence("]"))->property("action").toString(), "largerBrush:");
    menu().choose("largerBrush:");
    EXPECT_GT(controller.document().paint().size(), before);
}

TEST_F(MainMenuTest, PrintingMakesAPageOfThePicture)
{
    const TemporaryFolder folder;
    const std::string file = (folder.path() / "page.pdf").string();
    EXPECT_EQ(menu().choose("print:"), "disabled");
    makeImage();
    queuePanelChoice(std::nullopt);
    EXPECT_EQ(menu().choose("print:"), "");
    EXPECT_FALSE(std::filesystem::exists(file));
    queuePanelChoice(file);
    EXPECT_EQ(menu().choose("print:"), "");
    setPanelsAutomated(false);
    QFile pdf(QString::fromStdString(file));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.readAll().startsWith("%PDF"));
}

} // namespace
