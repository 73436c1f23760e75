// SPDX-License-Identifier: GPL-3.0-or-later
/// The bar's place over a view, and what it shows.
#include "desktop/NoticeBar.h"
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace
{

class NoticeBarOver : public testing::Test
{
protected:
    NoticeBarOver()
    {
        area.resize(600, 300);
        area.setWidget(new QWidget);
        area.widget()->resize(2000, 2000);
        area.show();
        QApplication::processEvents();
    }
    QScrollArea area;
    NoticeBar bar{&area};
};

TEST_F(NoticeBarOver, TheViewMovesNothingInIt)
{
    const QRect before = area.viewport()->geometry();
    const QPoint content = area.widget()->pos();
    bar.display("The disk is full.", {});
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(area.viewport()->geometry(), before);
    EXPECT_EQ(area.widget()->pos(), content);
    area.verticalScrollBar()->setValue(100);
    EXPECT_EQ(bar.y() - area.viewport()->y(), 10) << "it does not scroll away";
}

TEST_F(NoticeBarOver, ALongSentenceIsBrokenAndStaysInTheView)
{
    bar.display("Short.", "Use Save as JPEG…");
    const int low = bar.height();
    const QString longOne = QString("This file holds more than the picture can. ").repeated(6);
    for (const int width : {600, 380}) {
        area.resize(width, 300);
        QApplication::processEvents();
        bar.display(longOne, "Use Save as JPEG…");
        EXPECT_TRUE(area.viewport()->geometry().contains(bar.geometry())) << width;
        EXPECT_GT(bar.height(), low) << width;
    }
}

TEST_F(NoticeBarOver, ItFollowsTheViewsSize)
{
    bar.display("Short.", {});
    area.resize(900, 300);
    QApplication::processEvents();
    EXPECT_NEAR(bar.geometry().center().x(), area.viewport()->geometry().center().x(), 1);
}

TEST_F(NoticeBarOver, ItsButtonsSayWhatWasChosen)
{
    int chosen = 0, closed = 0;
    QObject::connect(&bar, &NoticeBar::chosen, [&] { ++chosen; });
    QObject::connect(&bar, &NoticeBar::closed, [&] { ++closed; });
    EXPECT_FALSE(bar.press("Close")) << "nothing is on show";
    bar.display("Sentence.", "Salt & pepper");
    EXPECT_EQ(bar.buttons(), (QStringList{"Salt & pepper", "Close"}));
    EXPECT_TRUE(bar.press("Salt & pepper"));
    EXPECT_TRUE(bar.press("Close"));
    EXPECT_FALSE(bar.press("Save"));
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(closed, 1);
    bar.display("Another.", {});
    EXPECT_EQ(bar.buttons(), QStringList{"Close"});
    bar.display({}, {});
    EXPECT_TRUE(bar.isHidden());
}

} // namespace
