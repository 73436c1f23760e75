// SPDX-License-Identifier: GPL-3.0-or-later
/// The main window shows what the document has, and says to it what is chosen.
#include "app/MainWindow.h"
#include "canvas/ToolTable.h"
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

TEST_F(MainWindowControls, StatusAndTitleAreTheDocuments)
{
    EXPECT_EQ(window.windowTitle(), "Zelpane");
    makeImage(40, 30);
    EXPECT_EQ(window.windowTitle(), "Untitled — Zelpane");
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

} // namespace
