// SPDX-License-Identifier: GPL-3.0-or-later
/// The dock of steps over a real document: rows, marks, small pictures, clicks.
#include "windows/HistoryPanel.h"
#include "support/ToolFixture.h"
#include <QAbstractItemModel>
#include <QListView>
#include <QTest>

using namespace zp;
using namespace zp::test;

namespace
{

class HistoryRows : public ToolTest
{
protected:
    void fill(Color colour)
    {
        document->setPaintColor(colour);
        perform("selectAll:");
        perform("fill:");
        settle();
    }
    QListView& list() { return *panel.findChild<QListView*>("mHistoryList"); }
    QAbstractItemModel& rows() { return *list().model(); }
    QStringList names()
    {
        QStringList all;
        for (int row = 0; row < rows().rowCount(); ++row) all << rows().index(row, 0).data().toString();
        return all;
    }
    QImage small(int row) { return rows().index(row, 0).data(Qt::DecorationRole).value<QImage>(); }
    /// Every small picture is asked for, as drawing does, and made.
    void complete()
    {
        for (int row = 0; row < rows().rowCount(); ++row) small(row);
        ASSERT_TRUE(eventually([this] { return panel.isComplete(); }));
        QApplication::processEvents();
    }
    void click(int row)
    {
        const QRect place = list().visualRect(rows().index(row, 0));
        ASSERT_FALSE(place.isEmpty());
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place.center());
        settle();
    }

    HistoryPanel panel{*document};
};

TEST_F(HistoryRows, AHiddenPanelReadsNothing)
{
    fill({1, 0, 0, 1});
    EXPECT_EQ(list().model(), nullptr);
    EXPECT_TRUE(panel.isComplete());
}

TEST_F(HistoryRows, StandForTheStepsInTheirOrder)
{
    fill({1, 0, 0, 1});
    panel.show();
    ASSERT_EQ(rows().rowCount(), int(history().steps().size()));
    EXPECT_EQ(names().last(), "Fill");
    const int before = rows().rowCount();
    fill({0, 1, 0, 1});
    EXPECT_EQ(rows().rowCount(), before + 1);
    perform("undo:");
    perform("undo:");
    perform("rotateCW:");
    settle();
    EXPECT_EQ(rows().rowCount(), before);
    EXPECT_EQ(names().last(), "Rotate Clockwise");
}

TEST_F(HistoryRows, AClickGoesToItsStep)
{
    fill({1, 0, 0, 1});
    const auto red = allPixels();
    fill({0, 1, 0, 1});
    const auto green = allPixels();
    ASSERT_NE(red, green);
    panel.resize(240, 400);
    panel.show();
    const int last = rows().rowCount() - 1;
    click(last - 1);
    EXPECT_EQ(allPixels(), red);
    EXPECT_EQ(history().position(), history().steps()[std::size_t(last - 1)].number);
    click(last);
    EXPECT_EQ(allPixels(), green);
    EXPECT_EQ(rows().rowCount(), last + 1) << "going there is no step";
}

TEST_F(HistoryRows, HaveASmallPictureOfTheirStep)
{
    fill({1, 0, 0, 1});
    fill({0, 1, 0, 1});
    panel.show();
    complete();
    const int last = rows().rowCount() - 1;
    for (const auto& [row, colour] : {std::pair(last - 1, QColor(Qt::red)), std::pair(last, QColor(Qt::green))}) {
        const QImage image = small(row);
        ASSERT_FALSE(image.isNull()) << row;
        const QColor middle = image.pixelColor(image.rect().center());
        EXPECT_NEAR(middle.red(), colour.red(), 12) << row;
        EXPECT_NEAR(middle.green(), colour.green(), 12) << row;
        EXPECT_NEAR(middle.blue(), colour.blue(), 12) << row;
        EXPECT_GT(image.width(), image.height()) << "shaped like its picture";
    }
}

TEST_F(HistoryRows, AreReadOutWithNameAndTime)
{
    fill({1, 0, 0, 1});
    panel.show();
    const QModelIndex row = rows().index(rows().rowCount() - 1, 0);
    EXPECT_TRUE(row.data(Qt::AccessibleTextRole).toString().startsWith("Fill, "));
    EXPECT_EQ(row.data(Qt::ToolTipRole).toString(), "Go to this step");
    EXPECT_FALSE(list().accessibleName().isEmpty());
}

TEST_F(HistoryRows, AnotherPictureBringsItsOwn)
{
    fill({1, 0, 0, 1});
    panel.show();
    ASSERT_GT(rows().rowCount(), 1);
    newImage(30, 20);
    settle();
    EXPECT_EQ(rows().rowCount(), int(history().steps().size()));
    EXPECT_EQ(rows().rowCount(), 1);
}

} // namespace
