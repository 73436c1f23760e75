// SPDX-License-Identifier: GPL-3.0-or-later
/// Which buttons of a row are seen, and that the others can still be reached.
#include "desktop/OverflowRow.h"
#include <QApplication>
#include <QMenu>
#include <QToolButton>
#include <gtest/gtest.h>

namespace
{

class ButtonsInARow : public testing::Test
{
protected:
    ButtonsInARow()
    {
        for (const char* text : {"Square", "Oval", "Add", "Subtract"}) {
            auto* button = new QToolButton;
            button->setText(text);
            button->setCheckable(true);
            row.add(button);
            buttons.push_back(button);
        }
        row.show();
        resize(row.sizeHint().width());
    }
    void resize(int width)
    {
        row.resize(width, row.sizeHint().height());
        QApplication::processEvents();
    }
    QStringList seen() const
    {
        QStringList texts;
        for (const QWidget* widget : row.buttons())
            if (widget->isVisible()) texts << static_cast<const QToolButton*>(widget)->text();
        return texts;
    }
    QStringList inMenu()
    {
        emit row.more()->menu()->aboutToShow();
        QStringList texts;
        for (const QAction* item : row.more()->menu()->actions()) texts << item->text();
        return texts;
    }

    OverflowRow row;
    std::vector<QToolButton*> buttons;
};

TEST_F(ButtonsInARow, AllAreSeenWhereThereIsRoom) { EXPECT_EQ(seen().join(' '), "Square Oval Add Subtract"); }

TEST_F(ButtonsInARow, TheLastGoIntoTheMenuFirst)
{
    const int whole = row.sizeHint().width();
    resize(whole - 1);
    EXPECT_EQ(seen().first(), "Square");
    EXPECT_EQ(seen().last(), "»");
    EXPECT_EQ(inMenu().last(), "Subtract");
    EXPECT_EQ((seen().mid(0, seen().size() - 1) + inMenu()).join(' '), "Square Oval Add Subtract");
    resize(row.minimumSizeHint().width());
    EXPECT_EQ(seen().join(' '), "»");
    EXPECT_EQ(inMenu().join(' '), "Square Oval Add Subtract");
    resize(whole);
    EXPECT_EQ(seen().join(' '), "Square Oval Add Subtract");
}

TEST_F(ButtonsInARow, AnItemOfTheMenuIsAClickOfItsButton)
{
    resize(row.minimumSizeHint().width());
    inMenu();
    row.more()->menu()->actions()[1]->trigger();
    EXPECT_TRUE(buttons[1]->isChecked());
    inMenu();
    EXPECT_TRUE(row.more()->menu()->actions()[1]->isChecked());
    EXPECT_TRUE(row.more()->isChecked()) << "what is on is seen to be on";
    resize(row.sizeHint().width());
    EXPECT_FALSE(row.more()->isChecked());
    EXPECT_TRUE(buttons[1]->isChecked());
}

TEST_F(ButtonsInARow, WhatIsNotOfferedTakesNoRoom)
{
    const int whole = row.sizeHint().width();
    row.offer(buttons[0], false);
    row.offer(buttons[3], false);
    EXPECT_LT(row.sizeHint().width(), whole);
    EXPECT_EQ(seen().join(' '), "Oval Add");
    resize(row.minimumSizeHint().width());
    EXPECT_EQ(inMenu().join(' '), "Oval Add");
    for (QToolButton* button : buttons) row.offer(button, false);
    EXPECT_EQ(row.minimumSizeHint().width(), 0);
    EXPECT_EQ(seen().join(' '), "");
}

TEST_F(ButtonsInARow, TheRowIsMirroredWhereOneReadsFromTheRight)
{
    row.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_EQ(buttons[0]->geometry().right(), row.width() - 1);
    EXPECT_GT(buttons[0]->x(), buttons[1]->x());
}

} // namespace
