// SPDX-License-Identifier: GPL-3.0-or-later
/// The status line speaks a person's words, and of the keys that are in force.
#include "app/StatusLine.h"
#include "app/MainWindow.h"
#include "app/SelectionChip.h"
#include "app/ZPAppController.h"
#include "app/ZPPrefs.h"
#include "canvas/ToolTable.h"
#include "desktop/KeyRoles.h"
#include "desktop/NoticeBar.h"
#include "desktop/Settings.h"
#include "support/DocumentFixture.h"
#include <QCursor>
#include <QKeySequence>
#include <QLabel>
#include <QStatusTipEvent>
#include <QTest>
#include <QToolButton>

using namespace zp;
using namespace zp::test;

namespace
{

class StatusLineTest : public DocumentTest
{
protected:
    ~StatusLineTest() override
    {
        settings().remove("unit");
        setKeyRoles("alt", "ctrl", "meta");
    }
    QString text(const char* field) { return window.findChild<QLabel*>(field)->text(); }
    void select(Rect box)
    {
        edit([box](Edit& e) { e.selection().select(BezierPath::withRect(box)); });
    }

    MainWindow window{*document};
};

TEST_F(StatusLineTest, TheSelectionIsSaidInPixelsAndItsFieldKeepsItsText)
{
    makeImage(400, 300);
    EXPECT_EQ(text("mSelectionField"), "");
    select(makeRect(10, 20, 300, 200));
    EXPECT_EQ(text("mSelectionField"), "10, 20 · 300 × 200 px");
    EXPECT_EQ(text("mInfoField"), "{{10, 20}, {300, 200}}");
    select(makeRect(-50, 20, 500, 900));
    EXPECT_EQ(text("mSelectionField"), "0, 20 · 400 × 280 px") << "only pixels of the picture are selected";
    perform("selectAll:");
    EXPECT_EQ(text("mSelectionField"), "0, 0 · 400 × 300 px");
    edit([](Edit& e) { e.selection().select({}); });
    EXPECT_EQ(text("mSelectionField"), "") << "a text without letters";
    perform("selectNone:");
    EXPECT_EQ(text("mSelectionField"), "");
}

TEST_F(StatusLineTest, NothingMovesWhenItIsBusy)
{
    makeImage(400, 300);
    window.show();
    QCoreApplication::processEvents();
    auto* busy = window.findChild<QWidget*>("mBusyIndicator");
    const auto places = [this] {
        std::vector<QRect> all;
        for (const QWidget* widget : window.findChildren<QWidget*>())
            if (widget->objectName() != "mBusyIndicator" && !widget->inherits("QFocusFrame"))
                all.emplace_back(widget->mapTo(&window, QPoint()), widget->size());
        return all;
    };
    busy->hide();
    QCoreApplication::processEvents();
    const auto before = places();
    const int width = window.minimumSizeHint().width();
    busy->show();
    QCoreApplication::processEvents();
    EXPECT_EQ(places(), before);
    EXPECT_EQ(window.minimumSizeHint().width(), width);
}

TEST_F(StatusLineTest, WhatFloatsTellsItsScaleAndTurn)
{
    makeImage(400, 300);
    select(makeRect(100, 100, 40, 40));
    perform("floatSelection");
    performNumbers("transform_set:", {1.5, 0});
    EXPECT_EQ(text("mSelectionField"), "90, 90 · 60 × 60 px · 150 %");
    performNumbers("transform_set:", {1, 90});
    EXPECT_EQ(text("mSelectionField"), "100, 100 · 40 × 40 px · 90°");
}

TEST_F(StatusLineTest, TheUnitOfThePreferencesIsUsed)
{
    struct Case {
        const char* unit;
        double dpi;
        const char* words;
    };
    for (const Case& c : {Case{"pixels", 300, "300, 600 · 150 × 75 px"},
                          {"inches", 300, "1.00, 2.00 · 0.50 × 0.25 in"},
                          {"centimeters", 300, "2.54, 5.08 · 1.27 × 0.64 cm"},
                          {"points", 0, "300.00, 600.00 · 150.00 × 75.00 pt"}}) {
        settings().setValue("unit", c.unit);
        EXPECT_EQ(sizeInWords(makeRect(300, 600, 150, 75), c.dpi, c.dpi), c.words);
    }
}

TEST_F(StatusLineTest, PointerAndPictureAreSaid)
{
    makeImage(40, 30);
    edit([](Edit& e) { e.writeAll().row(7)[5] = kRedWord; });
    document->setPointer({5.5f, 7.2f}, true);
    EXPECT_EQ(text("mPointerField"), "5, 7   #ff0000");
    EXPECT_FALSE(window.findChild<QLabel*>("mSwatch")->pixmap().isNull());
    document->setPointer({1, 1}, true);
    EXPECT_EQ(text("mPointerField"), "1, 1   #000000 0 %");
    document->setPointer({-3, 99}, true);
    EXPECT_EQ(text("mPointerField"), "-3, 99");
    document->setZoom(0.176f);
    EXPECT_EQ(text("mImageField"), "40 × 30 · 17.6 %");
}

TEST_F(StatusLineTest, HintsNameTheKeysThatAreInForce)
{
    EXPECT_TRUE(window.statusLine().hint().startsWith("Open an image"));
    makeImage(40, 30);
    EXPECT_TRUE(window.statusLine().hint().contains("Shift adds, Alt subtracts · Super: square, Ctrl: oval"))
        << window.statusLine().hint().toStdString();
    setKeyRoles("meta", "ctrl", "alt");
    EXPECT_TRUE(window.statusLine().hint().contains("Super subtracts · Alt: square"));
    for (const ToolRow& row : toolTable()) {
        canvas->setTool(int(row.tool));
        EXPECT_FALSE(window.statusLine().hint().isEmpty()) << row.title;
        EXPECT_FALSE(window.statusLine().hint().contains('{')) << row.title;
    }
}

TEST_F(StatusLineTest, WhatThePointerRestsOnExplainsItself)
{
    makeImage(40, 30);
    const QString hint = text("mMessageField");
    QStatusTipEvent rests("Needs a selection.");
    QApplication::sendEvent(&window, &rests);
    EXPECT_EQ(text("mMessageField"), "Needs a selection.");
    QStatusTipEvent leaves("");
    QApplication::sendEvent(&window, &leaves);
    EXPECT_EQ(text("mMessageField"), hint);
}

TEST_F(StatusLineTest, WhatThePointerRestsOnComesBeforeWhatWasDoneUntilTheNextCommand)
{
    makeImage(40, 30);
    perform("selectAll:");
    QStatusTipEvent rests("Needs a selection.");
    QApplication::sendEvent(&window, &rests);
    EXPECT_EQ(text("mMessageField"), "Needs a selection.");
    document->say("Turned clockwise");
    EXPECT_EQ(text("mMessageField"), "Turned clockwise");
}

TEST_F(StatusLineTest, WhatWasDoneIsOverWithTheNextPressOrAnotherTool)
{
    makeImage(40, 30);
    document->say("Turned clockwise");
    QTest::mousePress(window.canvas(), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(text("mMessageField"), window.statusLine().hint());
    QTest::mouseRelease(window.canvas(), Qt::LeftButton, {}, {20, 20});
    document->say("Turned clockwise");
    canvas->setTool(int(Tool::Brush));
    EXPECT_EQ(text("mMessageField"), window.statusLine().hint());
}

TEST_F(StatusLineTest, HintsNameTheKeysThatCommandsHaveNow)
{
    makeImage(40, 30);
    canvas->setTool(int(Tool::Brush));
    EXPECT_TRUE(window.statusLine().hint().contains("[ and ] change the size, X the colour"));
    window.statusLine().setKeyNames([](const QString& action) {
        return action == "swapColours:" ? QString("F7") : action == "largerBrush:" ? QString() : QString("Ctrl+J");
    });
    EXPECT_TRUE(window.statusLine().hint().contains("Ctrl+J and Larger Brush change the size, F7 the colour"))
        << window.statusLine().hint().toStdString();
}

TEST_F(StatusLineTest, SwitchesNameTheKeyThatWorksNow)
{
    const auto tip = [this](const char* name) { return window.findChild<QToolButton*>(name)->toolTip(); };
    EXPECT_EQ(tip("mSwitch_Subtract"), "The new shape is cut from the selection (as if Alt were held)");
    EXPECT_EQ(tip("mSwitch_Oval"), "The marquee becomes an oval (as if Ctrl were held)");
    exchangeKeyRoles(kControlKey, kOptionKey);
    EXPECT_EQ(tip("mSwitch_Subtract"), "The new shape is cut from the selection (as if Ctrl were held)");
    EXPECT_EQ(tip("mSwitch_Oval"), "The marquee becomes an oval (as if Alt were held)");
    EXPECT_EQ(tip("mSwitch_Square"), "The marquee becomes a square (as if Super were held)");
    EXPECT_EQ(keyModifiersFromQt(Qt::ControlModifier), kOptionKey);
}

TEST_F(StatusLineTest, ToolTipsLeaveOutAKeyThatACommandHasTaken)
{
    const auto tip = [this] {
        return window.findChild<QWidget*>("toolStrip")->findChildren<QToolButton*>().at(3)->toolTip();
    };
    EXPECT_TRUE(tip().startsWith("<b>Brush</b> (4)<br>")) << tip().toStdString();
    window.showKeys({}, [](const QKeySequence& keys) { return keys == QKeySequence("4"); });
    EXPECT_TRUE(tip().startsWith("<b>Brush</b><br>")) << tip().toStdString();
}

TEST_F(StatusLineTest, AWindowThatMovesUnderAHeldKeyProposesAnother)
{
    struct Case {
        Qt::KeyboardModifier key;
        bool overPicture;
        const char* button; ///< null: nothing is said
    };
    for (const Case& c : {Case{Qt::AltModifier, true, "Use Ctrl instead"},
                          {Qt::MetaModifier, true, "Use Ctrl instead"},
                          {Qt::NoModifier, true, nullptr},
                          {Qt::AltModifier, false, nullptr}}) {
        setScriptedKeyModifiers(std::nullopt);
        MainWindow moved(*document);
        moved.show();
        moved.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&moved));
        const QWidget* view = moved.canvas()->parentWidget();
        QCursor::setPos(c.overPicture ? view->mapToGlobal(view->rect().center()) : QPoint(0, 0));
        QTest::keyPress(&moved, Qt::Key_Alt, c.key); // the platform without a keyboard knows what was sent
        moved.move(moved.pos() + QPoint(40, 20));
        QApplication::processEvents();
        const Notice* notice = document->notices().front();
        ASSERT_EQ(notice != nullptr, c.button != nullptr) << int(c.key);
        if (notice) {
            EXPECT_EQ(notice->button, c.button);
            moved.findChild<NoticeBar*>()->press(notice->button);
            EXPECT_EQ(keyModifiersFromQt(Qt::ControlModifier), c.key == Qt::AltModifier ? kOptionKey : kCommandKey);
        }
        setKeyRoles("alt", "ctrl", "meta");
        QTest::keyRelease(&moved, Qt::Key_Alt, Qt::NoModifier);
    }
}

TEST_F(StatusLineTest, TheChipSaysWhatFloatsAndWhatToDo)
{
    makeImage(400, 300);
    auto& chip = *window.findChild<SelectionChip*>();
    QStringList asked;
    window.performAction = [&asked](const QString& action) { asked << action; };
    const auto buttons = [&chip] {
        QStringList titles;
        for (const QToolButton* b : chip.findChildren<QToolButton*>())
            if (!b->isHidden()) titles << b->text();
        return titles;
    };
    EXPECT_TRUE(chip.isHidden());
    select(makeRect(10, 10, 50, 50));
    EXPECT_TRUE(chip.isHidden());
    perform("floatSelection");
    EXPECT_FALSE(chip.isHidden());
    EXPECT_EQ(buttons(), (QStringList{"Anchor ⏎", "Drop Esc"}));
    chip.findChild<QToolButton*>("mChip_selectNone")->click();
    EXPECT_EQ(asked, QStringList{"selectNone:"});
    perform("anchorSelection");
    EXPECT_TRUE(chip.isHidden());
    canvas->setTool(int(Tool::Text));
    select(makeRect(10, 10, 50, 50));
    EXPECT_EQ(buttons(), (QStringList{"Fill", "Stroke", "Float"}));
}

TEST_F(StatusLineTest, TheOptionsBarHasOneHeightForEveryTool)
{
    window.setToolImages();
    window.show();
    std::set<int> heights;
    for (const ToolRow& row : toolTable()) {
        canvas->setTool(int(row.tool));
        QApplication::processEvents();
        heights.insert(window.findChild<QWidget*>("optionsBar")->height());
    }
    EXPECT_EQ(heights.size(), 1u);
}

} // namespace
