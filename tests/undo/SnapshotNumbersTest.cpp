// SPDX-License-Identifier: GPL-3.0-or-later
/// The stories of the two undo numbers.
#include "undo/SnapshotNumbers.h"
#include <gtest/gtest.h>

using zp::SnapshotNumbers;

namespace
{

struct History : testing::Test {
    std::int32_t newest = -1, position = -1;
    SnapshotNumbers numbers{newest, position};
    void expect(std::int32_t wantedPosition, std::int32_t wantedNewest)
    {
        EXPECT_EQ(position, wantedPosition);
        EXPECT_EQ(newest, wantedNewest);
    }
};

TEST_F(History, TheFirstSnapshotIsZeroAndTheFloor)
{
    EXPECT_EQ(numbers.advance(), 0);
    expect(0, 0);
    EXPECT_EQ(numbers.undo(), std::nullopt);
    expect(0, 0);
}

TEST_F(History, UndoBeforeTheFirstSnapshotMovesToZeroSoThatTheNextIsOne)
{
    EXPECT_EQ(numbers.undo(), std::nullopt);
    expect(0, -1);
    EXPECT_EQ(numbers.advance(), 1);
    expect(1, 1);
}

TEST_F(History, RedoBeforeTheFirstSnapshotStaysAtNone)
{
    EXPECT_EQ(numbers.redo(), std::nullopt);
    expect(-1, -1);
}

TEST_F(History, StepsBackAndForthLeaveTheNewestAlone)
{
    for (int i = 0; i < 4; ++i) EXPECT_EQ(numbers.advance(), i);
    EXPECT_EQ(numbers.undo(), 2);
    EXPECT_EQ(numbers.undo(), 1);
    expect(1, 3);
    EXPECT_EQ(numbers.redo(), 2);
    EXPECT_EQ(numbers.redo(), 3);
    EXPECT_EQ(numbers.redo(), std::nullopt);
    expect(3, 3);
}

TEST_F(History, AChangeAfterUndosEndsTheRedoRange)
{
    for (int i = 0; i < 4; ++i) numbers.advance();
    numbers.undo();
    numbers.undo();
    EXPECT_EQ(numbers.advance(), 2);
    expect(2, 2);
    EXPECT_EQ(numbers.redo(), std::nullopt);
    expect(2, 2);
}

TEST_F(History, RedoBeyondANewestBelowThePositionFallsBackToIt)
{
    newest = 1;
    position = 5;
    EXPECT_EQ(numbers.redo(), std::nullopt);
    expect(1, 1);
}

TEST_F(History, ResetForgetsBoth)
{
    numbers.advance();
    numbers.reset();
    expect(-1, -1);
}

} // namespace
