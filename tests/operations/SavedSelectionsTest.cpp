// SPDX-License-Identifier: GPL-3.0-or-later
/// Saving and loading selections.
#include "support/AlertWatch.h"
#include "support/SavedSelectionFixture.h"
#include <gmock/gmock.h>

using namespace zp;
using testing::ElementsAre;
using testing::IsEmpty;

class SavedSelections : public zp::test::SavedSelectionsTest
{
};

TEST_F(SavedSelections, WhatIsSavedIsLoadedIntoAnyImage)
{
    BezierPath saved = BezierPath::withOvalInRect(makeRect(3.25f, 4, 500, 600)); // beyond the image
    saved.setWindingRule(WindingRule::EvenOdd);
    select(saved);
    const std::string path = folder() + "/My Great Default Selection"; // the folder is made
    performPath("saveSelection:", path);
    EXPECT_TRUE(fileExists(path));
    makeImage(10, 10);
    performPath("loadSelection:", path);
    ASSERT_TRUE(outline());
    EXPECT_TRUE(outline()->hasSameElements(saved));
    EXPECT_EQ(outline()->windingRule(), WindingRule::EvenOdd);
    EXPECT_TRUE(selection().antsMarch());
    EXPECT_EQ(mask(9, 9), 255); // not rendered at this point
    // Parts outside the image select nothing, and harm nothing.
    perform("selectionPathToMask");
    EXPECT_THAT(takeSounds(), IsEmpty());
}

TEST_F(SavedSelections, LoadingDropsWhatWasThere)
{
    put("good", rectText(2));
    select(makeRect(1, 1, 3, 3));
    renderMask();
    placePiece(makeRect(1, 1, 2, 2), true);
    ASSERT_TRUE(selection().pasteInto());
    performPath("loadSelection:", folder() + "/good");
    EXPECT_EQ(outlineBounds(), makeRect(2, 1, 5, 6));
    EXPECT_FALSE(floating());
    EXPECT_FALSE(selection().pasteInto());
    renderMask();
    EXPECT_EQ(countMask(0), 30u) << "only the new region";
}

TEST_F(SavedSelections, AnythingElseGivesNoSelection)
{
    put("letter", "Dear aunt,\n");
    createFolder(folder() + "/inner");
    for (const char* name : {"/letter", "/inner", "/missing", "/letter/below"}) {
        select(makeRect(1, 1, 3, 3));
        performPath("loadSelection:", folder() + name);
        EXPECT_FALSE(outline()) << name;
        EXPECT_FALSE(selection().antsMarch()) << name;
    }
    EXPECT_THAT(takeSounds(), IsEmpty());
}

TEST_F(SavedSelections, NothingToSaveOrNowhereToSaveBeeps)
{
    performPath("saveSelection:", folder() + "/x"); // no selection
    EXPECT_FALSE(fileExists(folder() + "/x"));
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    select(makeRect(1, 1, 3, 3));
    performPath("saveSelection:", "");
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    performPath("loadSelection:", "");
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    EXPECT_EQ(outlineBounds(), makeRect(1, 1, 3, 3)); // kept
}

TEST_F(SavedSelections, ASaveThatCouldNotBeWrittenSaysSo)
{
    select(makeRect(1, 1, 3, 3));
    const zp::test::AlertWatch watch;
    EXPECT_FALSE(performPath("saveSelection:", "/proc/no such folder/x"));
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "The selection could not be saved.");
    EXPECT_TRUE(watch.seen[0].message.startsWith("x: "));
    EXPECT_THAT(takeSounds(), IsEmpty());
}
