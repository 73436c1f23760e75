// SPDX-License-Identifier: GPL-3.0-or-later
/// The commands that the application carries out itself, and the titles of the menu.
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Desktop.h"
#include "desktop/Settings.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/View.h"
#include "support/AlertWatch.h"
#include "support/Samples.h"
#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QTextBrowser>
#include <QUrl>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

class AppController : public testing::Test
{
protected:
    Document& document() { return application.document(); }
    MainMenu& menu() { return application.menu(); }
    void makeImage(int width, int height)
    {
        document().perform("newImageWithSize:", {{double(width), double(height)}, {}});
        document().waitForWorkers();
    }
    ZPAppController application;
};

TEST_F(AppController, TheViewerIsAskedForImagesWithAFileOnly)
{
    QTextBrowser viewer; // any object with a slot for an address
    QDesktopServices::setUrlHandler("file", &viewer, "setSource");
    makeImage(10, 10);
    EXPECT_EQ(menu().choose("openWithPreview:"), "disabled");
    EXPECT_TRUE(viewer.source().isEmpty());
    const std::string path = temporaryFolder() + "/viewed.png";
    ASSERT_TRUE(copyItem(zp::test::sample("made/valid/base.png"), path));
    document().perform("setImagePath:", {{}, path});
    EXPECT_EQ(menu().choose("openWithPreview:"), "");
    EXPECT_EQ(viewer.source().toLocalFile().toStdString(), path);
    QDesktopServices::unsetUrlHandler("file");
}

TEST_F(AppController, RetinaFollowsTheMenuItemAndSaysSo)
{
    makeImage(20, 10);
    document().setZoom(2);
    QAction* const item = menu().item("retina:");
    const zp::test::AlertWatch watch;
    menu().choose("retina:");
    EXPECT_TRUE(item->isChecked());
    EXPECT_TRUE(document().view().isRetina());
    EXPECT_EQ(application.canvas().size(), QSize(20, 10)) << "zoom 2, halved";
    menu().choose("retina:");
    EXPECT_FALSE(item->isChecked());
    EXPECT_FALSE(document().view().isRetina());
    EXPECT_EQ(application.canvas().size(), QSize(40, 20));
    ASSERT_EQ(watch.seen.size(), 2u);
    EXPECT_EQ(watch.seen[0].title, "You have enabled 2x retina display mode.");
    EXPECT_EQ(watch.seen[1].title, "You have disabled 2x retina display mode.");
    EXPECT_EQ(watch.seen[0].message, "");
    EXPECT_EQ(watch.seen[0].buttons, QStringList{"OK"});
}

TEST_F(AppController, AnchorItemNamesWhatItWouldDo)
{
    QString title;
    const auto allowed = [&] { return application.validateMenuItem("anchorSelection:", &title); };
    makeImage(10, 10);
    EXPECT_FALSE(allowed());
    EXPECT_EQ(title, "Float Selection");
    document().perform("selectAll:");
    document().perform("floatSelection");
    EXPECT_TRUE(allowed());
    EXPECT_EQ(title, "Anchor Selection");
    document().perform("anchorSelection:");
    document().perform("selectAll:");
    EXPECT_TRUE(allowed());
    EXPECT_EQ(title, "Float Selection");
}

TEST_F(AppController, AnUnknownActionIsNoItem)
{
    EXPECT_EQ(menu().choose("somethingElse:"), "no such item");
    EXPECT_FALSE(application.validateMenuItem("somethingElse:", nullptr));
    EXPECT_FALSE(application.carriesOut("somethingElse:"));
}

TEST(RetinaFlag, IsTheWholeFile)
{
    const std::string path = resourcePath("2xRetina.txt");
    const auto expectAtStart = [](bool on) {
        const ZPAppController fresh;
        EXPECT_EQ(fresh.document().view().isRetina(), on);
        EXPECT_EQ(fresh.menu().item("retina:")->isChecked(), on);
        EXPECT_EQ(fresh.document().view().effectiveZoom(), on ? 0.5f : 1.0f);
    };
    for (const auto& [contents, on] :
         {std::pair<std::string, bool>{"YES", true}, {"YES\n", false}, {"NO", false}, {"", false}}) {
        SCOPED_TRACE(contents);
        ASSERT_TRUE(writeFileSafely(path, contents.data(), contents.size()));
        expectAtStart(on);
    }
    removeItem(path);
    expectAtStart(false);
}

TEST(RememberedChoices, ComeBackAtTheNextStart)
{
    settings().remove("last/tool");
    const Color colour{0.25f, 0.5f, 0.75f, 0.5f};
    {
        ZPAppController first;
        first.rememberChoices(true);
        first.document().setBrushSize(63);
        first.document().setPaintColor(colour);
        first.document().setChequered(true);
        first.document().setGrid(true);
        EXPECT_FALSE(first.document().view().explainsWand()) << "off as given";
        first.document().setExplainsWand(true);
        first.window().chooseBrush(2, 41);
        first.document().setPenPressure(PenPressure::Opacity);
        first.canvas().setTool(int(Tool::CloneStamp));
        first.applicationWillTerminate();
    }
    struct Case {
        bool remembers;
    };
    for (const Case& c : {Case{true}, {false}}) {
        ZPAppController next;
        next.rememberChoices(c.remembers);
        next.applicationWillFinishLaunching(false);
        next.applicationDidFinishLaunching(false);
        const Paint& paint = next.document().paint();
        EXPECT_EQ(next.document().gesture().tool() == Tool::CloneStamp, c.remembers);
        EXPECT_EQ(paint.size() == 63, c.remembers);
        EXPECT_EQ(paint.brushShape() == 2, c.remembers);
        EXPECT_EQ(paint.toleranceSetting() == 41, c.remembers);
        EXPECT_EQ(paint.penPressure() == PenPressure::Opacity, c.remembers);
        EXPECT_EQ(next.document().view().isChequered(), c.remembers);
        EXPECT_EQ(next.document().view().hasGrid(), c.remembers);
        EXPECT_EQ(next.document().view().explainsWand(), c.remembers);
        EXPECT_EQ(std::abs(paint.color().blue - colour.blue) < 0.01f &&
                      std::abs(paint.color().alpha - colour.alpha) < 0.01f,
                  c.remembers);
    }
    for (const char* key : {"tool", "size", "brush", "tolerance", "pressure", "color", "otherColor", "chequered",
                            "grid", "explainsWand", "font", "docks"})
        settings().remove(QString("last/%1").arg(key));
}

TEST(RememberedWindows, AreCentredUntilAPersonWantsThemKept)
{
    for (const bool kept : {false, true}) {
        setWindowsKept(kept);
        QPoint put;
        {
            ZPAppController first;
            first.window().show();
            first.window().move(37, 41);
            QApplication::processEvents();
            put = first.window().pos();
            first.window().hide();
        }
        ZPAppController next;
        next.window().show();
        next.imageEditor(); // which centres it as given
        QApplication::processEvents();
        EXPECT_EQ(next.window().pos() == put, kept) << kept;
    }
    setWindowsKept(false);
}

} // namespace
