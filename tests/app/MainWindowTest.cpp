// SPDX-License-Identifier: GPL-3.0-or-later
/// The main window shows what the document has, and says to it what is chosen.
#include "app/MainWindow.h"
#include "base/Folders.h"
#include "canvas/ToolTable.h"
#include "desktop/ColorWell.h"
#include "desktop/FacePopUp.h"
#include "desktop/NoticeBar.h"
#include "desktop/Pasteboard.h"
#include "desktop/ScrollView.h"
#include "support/DocumentFixture.h"
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

using namespace zp;
using namespace zp::test;

namespace
{

class MainWindowControls : public DocumentTest
{
protected:
    template <class W>
    W& find(const char* name)
    {
        return *window.findChild<W*>(name);
    }
    static void pick(QComboBox& box, int index)
    {
        box.setCurrentIndex(index);
        emit box.activated(index);
    }
    QString info() { return find<QLabel>("mInfoField").text(); }

    MainWindow window{*document};
};

TEST_F(MainWindowControls, TheOptionsAreThoseOfTheToolsRow)
{
    struct Control {
        const char* name;
        unsigned option;
    };
    for (const ToolRow& row : toolTable()) {
        canvas->setTool(int(row.tool));
        EXPECT_EQ(find<QComboBox>("mToolPopUp").currentIndex(), int(row.tool));
        for (const Control& c : {Control{"mToleranceSlider", options::Tolerance},
                                 {"mToleranceField", options::Tolerance},
                                 {"mSizeSlider", options::Size},
                                 {"mSizeField", options::Size},
                                 {"mBrushPopUp", options::BrushShape},
                                 {"mPressurePopUp", options::BrushShape},
                                 {"mSwitch_Square", options::Square},
                                 {"mSwitch_Polygon", options::Polygon},
                                 {"mSwitch_Setsource", options::SetSource}})
            EXPECT_EQ(find<QWidget>(c.name).isVisibleTo(&window), (row.options & c.option) != 0)
                << row.title << ": " << c.name;
    }
    const auto shows = [](Tool tool, unsigned option) { return (rowOf(tool).options & option) != 0; };
    for (int i = 0; i < kToolCount; ++i) {
        EXPECT_EQ(shows(Tool(i), options::BrushShape), Tool(i) == Tool::Brush);
        EXPECT_EQ(shows(Tool(i), options::Tolerance), Tool(i) == Tool::Wand || Tool(i) == Tool::Bucket);
    }
}

TEST_F(MainWindowControls, TheToolPopUpChoosesTheTool)
{
    pick(find<QComboBox>("mToolPopUp"), int(Tool::Bucket));
    EXPECT_EQ(gesture().tool(), Tool::Bucket);
}

TEST_F(MainWindowControls, ToleranceSliderAndFieldAreOneSetting)
{
    auto& slider = find<QSlider>("mToleranceSlider");
    auto& field = find<QSpinBox>("mToleranceField");
    EXPECT_EQ(paint().toleranceSetting(), slider.value());
    slider.setValue(37);
    EXPECT_EQ(field.value(), 37);
    EXPECT_EQ(paint().toleranceSetting(), 37);
    field.setValue(5);
    EXPECT_EQ(slider.value(), 5);
    EXPECT_EQ(paint().toleranceSetting(), 5);
}

TEST_F(MainWindowControls, SizeIsTheSameEverywhere)
{
    find<QSlider>("mSizeSlider").setValue(44);
    EXPECT_EQ(paint().size(), 44);
    EXPECT_EQ(find<QSpinBox>("mSizeField").value(), 44);
    find<QSpinBox>("mSizeField").setValue(7);
    EXPECT_EQ(paint().size(), 7);
    EXPECT_EQ(find<QSlider>("mSizeSlider").value(), 7);
    document->setBrushSize(12.6f);
    EXPECT_EQ(find<QSlider>("mSizeSlider").value(), 13);
    EXPECT_EQ(paint().size(), 12.6f) << "what is shown rounded stays as it is";
}

TEST_F(MainWindowControls, TheZoomPopUpHasTheLevelsAndFollows)
{
    auto& zooms = find<QComboBox>("mZoomPopUp");
    ASSERT_EQ(zooms.count(), int(kZoomLevels.size()));
    for (int i = 0; i < zooms.count(); ++i) {
        EXPECT_EQ(zooms.itemText(i).chopped(1).toDouble(), double(kZoomLevels[std::size_t(i)]) * 100);
        EXPECT_TRUE(zooms.itemText(i).endsWith('%'));
        pick(zooms, i);
        EXPECT_EQ(document->view().zoom(), kZoomLevels[std::size_t(i)]);
    }
    window.canvas()->stepZoom(-1);
    EXPECT_EQ(zooms.currentText(), "800%");
    document->setZoom(0.3f);
    EXPECT_EQ(zooms.currentText(), "25%");
}

TEST_F(MainWindowControls, TheClosedZoomPopUpSaysTheTrueZoomAndItsItemsStay)
{
    auto& zooms = find<FacePopUp>("mZoomPopUp");
    document->setRoom({800, 600});
    makeImage(4000, 100);
    EXPECT_EQ(zooms.face(), "Fit · 20 %");
    EXPECT_EQ(zooms.currentText(), "25%");
    document->setZoom(0.3f);
    EXPECT_EQ(zooms.face(), "30 %");
    document->setZoom(0.5f);
    EXPECT_EQ(zooms.face(), "50%");
    document->fitPicture();
    window.canvas()->stepZoom(1);
    EXPECT_EQ(zooms.face(), "25%") << "the next item, and no longer fitted";
    document->setRoom({400, 300});
    EXPECT_EQ(zooms.face(), "25%");
    document->setZoom(0.01f);
    window.canvas()->stepZoom(-1);
    EXPECT_EQ(document->view().zoom(), 0.01f) << "out is never in";
}

TEST_F(MainWindowControls, WhatIsPastedComesIntoView)
{
    window.resize(500, 400);
    window.show();
    makeImage(3000, 2000);
    window.canvas()->zoom(100);
    Pasteboard::general().clear();
    performNumbers("newImageForMeWithSize:", {60, 40});
    perform("copy:");
    makeImage(3000, 2000);
    window.canvas()->zoom(100);
    auto& view = find<ScrollView>("mScrollView");
    view.placeDocumentPoint({2000, 1500}, {0, 0});
    ASSERT_GT(view.documentVisibleRect().left(), 1000);
    perform("paste:");
    EXPECT_TRUE(view.documentVisibleRect().contains(QRect(0, 0, 60, 40)));
    edit([](Edit& e) { e.reveal(makeRect(2500, 100, 50, 1900)); });
    EXPECT_TRUE(view.documentVisibleRect().contains(QRect(2500, 100, 50, 50))) << "its near corner, it is too tall";
}

TEST_F(MainWindowControls, TheTwoLastColoursAreSwapped)
{
    auto& well = find<ColorWell>("mColorWell");
    well.chooseColor({1, 0, 0, 1});
    well.chooseColor({0, 0, 1, 1});
    emit well.colorChosen({0, 0.5f, 1, 1}, true); // the hand goes on
    document->swapPaintColors();
    EXPECT_EQ(paint().color(), (Color{1, 0, 0, 1}));
    document->swapPaintColors();
    EXPECT_EQ(paint().color(), (Color{0, 0.5f, 1, 1}));
}

TEST_F(MainWindowControls, TheBrushGrowsAndShrinksByATenthAndAtLeastAPixel)
{
    struct Case {
        float from;
        int step;
        float to;
    };
    for (const Case& c : std::initializer_list<Case>{
             {20, 1, 22}, {20, -1, 18}, {3, 1, 4}, {2, -1, 1}, {1, -1, 1}, {200, 1, 220}, {1990, 1, 2000}}) {
        document->setBrushSize(c.from);
        document->stepBrushSize(c.step);
        EXPECT_EQ(paint().size(), c.to) << c.from;
    }
}

TEST_F(MainWindowControls, StatusAndTitleAreTheDocuments)
{
    EXPECT_EQ(window.windowTitle(), "Zelpane");
    makeImage(40, 30);
    EXPECT_EQ(window.windowTitle(), "Untitled[*] — Zelpane");
    EXPECT_EQ(info(), "");
    perform("selectAll:");
    EXPECT_EQ(info(), "{{0, 0}, {40, 30}}");
    performNumbers("nudge", {5, 6});
    EXPECT_EQ(info(), "{{5, 6}, {40, 30}}");
    perform("cropToSelection:");
    EXPECT_EQ(info(), "");
    perform("undo:");
    EXPECT_EQ(info(), "");
}

TEST_F(MainWindowControls, TheTitleIsMarkedFromTheFirstChangeToTheSaving)
{
    EXPECT_FALSE(window.isWindowModified());
    makeImage(40, 30);
    EXPECT_FALSE(window.isWindowModified()) << "nothing would be lost yet";
    perform("flipH:");
    EXPECT_TRUE(window.isWindowModified());
    perform("undo:");
    EXPECT_FALSE(window.isWindowModified());
    perform("redo:");
    EXPECT_TRUE(window.isWindowModified());
    const std::string file = temporaryFolder() + "/title.png";
    performPath("saveImageAsPNG:", file);
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(window.windowTitle(), "title.png[*] — Zelpane");
    settle();
    perform("undo:");
    EXPECT_TRUE(window.isWindowModified()) << "the file holds the later step";
    removeItem(file);
}

TEST_F(MainWindowControls, NoticesAreShownOneAfterTheOther)
{
    auto& bar = *window.findChild<NoticeBar*>();
    const auto shown = [&bar] { return !bar.isHidden() ? bar.text() : QString(); };
    EXPECT_EQ(shown(), "");
    document->notice("First.");
    document->notice(Notice{.text = "Second.", .button = "Flip", .action = "flipH:", .ofPicture = true});
    document->notice("First.");
    EXPECT_EQ(shown(), "First.");
    EXPECT_EQ(bar.buttons(), QStringList{"Close"});
    EXPECT_FALSE(bar.press("Flip"));
    EXPECT_TRUE(bar.press("Close"));
    EXPECT_EQ(shown(), "Second.");
    QString asked;
    window.performAction = [&asked](const QString& action) { asked = action; };
    EXPECT_TRUE(bar.press("Flip"));
    EXPECT_EQ(asked, "flipH:");
    EXPECT_EQ(shown(), "") << "a sentence is not said again while it waits";
}

TEST_F(MainWindowControls, AnotherPictureTakesItsNoticesAway)
{
    const auto& bar = *window.findChild<NoticeBar*>();
    makeImage(10, 10);
    document->notice(Notice{.text = "Of the file.", .ofPicture = true});
    document->notice("Of the disk.");
    makeImage(20, 20);
    EXPECT_EQ(bar.text(), "Of the disk.");
}

} // namespace
