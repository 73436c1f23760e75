// SPDX-License-Identifier: GPL-3.0-or-later
/// Saving and loading selections through the canvas.
#include "base/Folders.h"
#include "desktop/Sounds.h"
#include "selection/SelectionFile.h"
#include "support/CanvasFixture.h"
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
    canvas->mSelectionPath = BezierPath::withOvalInRect(makeRect(3.25f, 4, 500, 600)); // beyond the image
    canvas->mSelectionPath->setWindingRule(WindingRule::EvenOdd);
    const BezierPath saved = *canvas->mSelectionPath;
    const std::string path = folder() + "/My Great Default Selection"; // the folder is made
    canvas->saveSelection(path);
    EXPECT_TRUE(fileExists(path));
    makeImage(10, 10);
    canvas->loadSelection(path);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_TRUE(canvas->mSelectionPath->hasSameElements(saved));
    EXPECT_EQ(canvas->mSelectionPath->windingRule(), WindingRule::EvenOdd);
    EXPECT_TRUE(canvas->mSelectionTimer);
    EXPECT_EQ(mask(9, 9), 255); // not rendered at this point
    // Parts outside the image select nothing, and harm nothing.
    canvas->selectionPathToMask();
    EXPECT_THAT(takeSounds(), IsEmpty());
}

TEST_F(SavedSelections, LoadingDropsWhatWasThere)
{
    put("good", rectText(2));
    selectRect(1, 1, 3, 3);
    canvas->mSelectionImage = std::make_shared<Image>();
    canvas->mPasteIntoSelectionPath = *canvas->mSelectionPath;
    canvas->loadSelection(folder() + "/good");
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(2, 1, 5, 6));
    EXPECT_FALSE(canvas->mSelectionImage);
    EXPECT_FALSE(canvas->mPasteIntoSelectionPath);
}

TEST_F(SavedSelections, AnythingElseGivesNoSelection)
{
    put("letter", "Dear aunt,\n");
    createFolder(folder() + "/inner");
    for (const char* name : {"/letter", "/inner", "/missing", "/letter/below"}) {
        selectRect(1, 1, 3, 3);
        canvas->restartSelectionTimer();
        canvas->loadSelection(folder() + name);
        EXPECT_FALSE(canvas->mSelectionPath) << name;
        EXPECT_FALSE(canvas->mSelectionTimer) << name;
    }
    EXPECT_THAT(takeSounds(), IsEmpty());
}

TEST_F(SavedSelections, NothingToSaveOrNowhereToSaveBeeps)
{
    canvas->saveSelection(folder() + "/x"); // no selection
    EXPECT_FALSE(fileExists(folder() + "/x"));
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    selectRect(1, 1, 3, 3);
    canvas->saveSelection("");
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    canvas->loadSelection("");
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    EXPECT_TRUE(canvas->mSelectionPath);             // kept
    canvas->saveSelection("/proc/no such folder/x"); // cannot be written
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
}
