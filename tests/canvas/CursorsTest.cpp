// SPDX-License-Identifier: GPL-3.0-or-later
/// The pointer says what a press would do.
#include "canvas/Cursors.h"
#include "canvas/ToolTable.h"
#include "operations/FloatHandles.h"
#include "support/DocumentFixture.h"
#include <QPixmap>
#include <set>

using namespace zp;
using namespace zp::test;

namespace
{

class CursorsTest : public DocumentTest
{
protected:
    CursorsTest() { makeImage(200, 200); }
    Qt::CursorShape shapeAt(Point p) const { return cursorAt(*document, p, 1).shape(); }
    static constexpr Point kInside{50, 50}, kOutside{150, 150};
};

TEST_F(CursorsTest, EveryToolHasItsOwn)
{
    std::set<qint64> pictures;
    for (const ToolRow& row : toolTable()) {
        canvas->setTool(int(row.tool));
        const QCursor cursor = cursorAt(*document, kOutside, 1);
        ASSERT_EQ(cursor.shape(), Qt::BitmapCursor) << row.title;
        pictures.insert(cursor.pixmap().cacheKey());
        EXPECT_TRUE(cursor.pixmap().toImage().pixelColor(cursor.hotSpot()).alpha() < 255)
            << "the pixel that is meant shows through: " << row.title;
    }
    EXPECT_EQ(pictures.size(), std::size_t(kToolCount));
}

TEST_F(CursorsTest, AreAsSharpAsTheScreen)
{
    const QPixmap twice = cursorAt(*document, kOutside, 2).pixmap(), once = cursorAt(*document, kOutside, 1).pixmap();
    EXPECT_EQ(twice.width(), 2 * once.width());
    EXPECT_EQ(twice.devicePixelRatio(), 2);
}

TEST_F(CursorsTest, AMoveCrossStandsWhereAPressMoves)
{
    edit([](Edit& e) { e.selection().select(BezierPath::withRect(makeRect(20, 20, 60, 60))); });
    for (const ToolRow& row : toolTable()) {
        canvas->setTool(int(row.tool));
        EXPECT_EQ(shapeAt(kInside) == Qt::SizeAllCursor, row.actions.moves) << row.title;
        EXPECT_NE(shapeAt(kOutside), Qt::SizeAllCursor) << row.title;
    }
    canvas->setTool(int(Tool::Rectangle));
    for (const std::uint32_t key : {kShiftKey, kOptionKey}) {
        hold(key);
        EXPECT_NE(shapeAt(kInside), Qt::SizeAllCursor) << "it combines";
        hold(0);
    }
}

TEST_F(CursorsTest, ArrowsOnTheHandlesTurnWithThePiece)
{
    edit([](Edit& e) { e.selection().select(BezierPath::withRect(makeRect(60, 60, 60, 60))); });
    perform("floatSelection");
    struct Case {
        float rotate;
        Qt::CursorShape topLeft, topRight;
    };
    for (const Case& c : {Case{0, Qt::SizeFDiagCursor, Qt::SizeBDiagCursor},
                          {45, Qt::SizeVerCursor, Qt::SizeHorCursor},
                          {90, Qt::SizeBDiagCursor, Qt::SizeFDiagCursor},
                          {-45, Qt::SizeHorCursor, Qt::SizeVerCursor}}) {
        performNumbers("transform_set:", {1, double(c.rotate)});
        const auto at = [this](FloatHandle h) {
            return shapeAt(floatHandlePlaces(selection(), 1)[std::size_t(h)].center);
        };
        EXPECT_EQ(at(FloatHandle::TopLeft), c.topLeft) << c.rotate;
        EXPECT_EQ(at(FloatHandle::BottomRight), c.topLeft) << c.rotate;
        EXPECT_EQ(at(FloatHandle::TopRight), c.topRight) << c.rotate;
        EXPECT_EQ(at(FloatHandle::Turn), Qt::BitmapCursor) << c.rotate;
    }
}

} // namespace
