// SPDX-License-Identifier: GPL-3.0-or-later
/// What a screen reader finds in the main window.
#include "app/MainWindow.h"
#include "canvas/ToolTable.h"
#include "support/DocumentFixture.h"
#include <QAbstractButton>
#include <QAccessible>

using namespace zp;
using namespace zp::test;

namespace
{

class Accessibility : public DocumentTest
{
protected:
    static QAccessibleInterface& interface(QWidget* widget) { return *QAccessible::queryAccessibleInterface(widget); }

    MainWindow window{*document};
};

TEST_F(Accessibility, ThePictureIsAGraphicWithAValue)
{
    QAccessibleInterface& picture = interface(window.canvas());
    EXPECT_EQ(picture.role(), QAccessible::Graphic);
    EXPECT_FALSE(picture.text(QAccessible::Name).isEmpty());
    EXPECT_EQ(picture.text(QAccessible::Value), "No image");
    makeImage(40, 30);
    EXPECT_EQ(picture.text(QAccessible::Value), "40 by 30 pixels, zoom 100 %, Rectangle Selection");
    perform("selectAll:");
    window.canvas()->setTool(int(Tool::Brush));
    EXPECT_EQ(picture.text(QAccessible::Value), "40 by 30 pixels, zoom 100 %, Brush, selected: 0, 0 · 40 × 30 px");
    EXPECT_FALSE(picture.text(QAccessible::Description).isEmpty());
}

TEST_F(Accessibility, WhatWasDoneIsThePicturesDescriptionForAWhile)
{
    makeImage(40, 30);
    EXPECT_TRUE(interface(window.canvas()).text(QAccessible::Description).startsWith("40 by 30 pixels, "));
    document->say("Filled");
    EXPECT_EQ(interface(window.canvas()).text(QAccessible::Description), "Filled");
    document->say({});
    EXPECT_TRUE(interface(window.canvas()).text(QAccessible::Description).startsWith("40 by 30 pixels, "));
}

TEST_F(Accessibility, ToolsAreRadioButtonsOfAToolBarInPlainText)
{
    auto* strip = window.findChild<QWidget*>("toolStrip");
    EXPECT_EQ(interface(strip).role(), QAccessible::ToolBar);
    EXPECT_EQ(interface(strip).text(QAccessible::Name), "Tools");
    const auto buttons = strip->findChildren<QAbstractButton*>();
    ASSERT_EQ(buttons.size(), kToolCount);
    for (QAbstractButton* button : buttons) {
        EXPECT_EQ(interface(button).role(), QAccessible::RadioButton);
        EXPECT_FALSE(interface(button).text(QAccessible::Name).isEmpty());
        EXPECT_FALSE(interface(button).text(QAccessible::Description).contains('<'));
    }
}

TEST_F(Accessibility, EverythingThatTakesTheFocusHasAName)
{
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() != &window) continue; // a pop-up's own list
        if (!(widget->focusPolicy() & Qt::TabFocus) || widget->objectName().startsWith("qt_")) continue;
        EXPECT_FALSE(interface(widget).text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
}

TEST_F(Accessibility, TabGoesFromToolToPicture)
{
    const QStringList wanted{"mToolPopUp", "mColorWell", "mSizeSlider", "mSizeField", "mZoomPopUp", "mCanvas"};
    QStringList met;
    QWidget* start = window.findChild<QWidget*>("mToolPopUp");
    QWidget* widget = start;
    do {
        if (wanted.contains(widget->objectName())) met << widget->objectName();
        widget = widget->nextInFocusChain();
    } while (widget != start);
    EXPECT_EQ(met, wanted);
}

TEST_F(Accessibility, TabGoesThroughTheOptionsAsTheyAreRead)
{
    makeImage(40, 30);
    window.show();
    auto* bar = window.findChild<QWidget*>("optionsBar");
    for (const ToolRow& row : toolTable()) {
        window.canvas()->setTool(int(row.tool));
        document->perform("selectRectangle:", {{2, 2, 20, 10}, {}});
        document->perform("floatSelection");
        QCoreApplication::processEvents();
        QWidget* const start = window.findChild<QWidget*>("mToolPopUp");
        int last = -1, stops = 0, fromPicture = 0;
        for (QWidget* widget = start;; widget = widget->nextInFocusChain()) {
            if (widget == start && stops > 0) break;
            fromPicture += widget == window.canvas();
            if (!bar->isAncestorOf(widget) || !widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus)) continue;
            if (widget->objectName().startsWith("qt_")) continue; // a number field's own
            const int x = widget->mapTo(bar, QPoint()).x();
            EXPECT_GT(x, last) << row.title << ": " << widget->objectName().toStdString();
            EXPECT_EQ(fromPicture, 0) << row.title << ": after the picture " << widget->objectName().toStdString();
            last = x;
            ++stops;
        }
        EXPECT_GE(stops, 4) << row.title;
        EXPECT_EQ(fromPicture, 1) << row.title;
        document->perform("anchorSelection:");
    }
}

} // namespace
