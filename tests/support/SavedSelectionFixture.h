// SPDX-License-Identifier: GPL-3.0-or-later
/// A canvas with an image and an empty folder of saved selections.
#pragma once
#include "base/Folders.h"
#include "desktop/Sounds.h"
#include "selection/SelectionFile.h"
#include "support/CanvasFixture.h"

namespace zp::test
{

class SavedSelectionsTest : public CanvasTest
{
protected:
    void SetUp() override
    {
        removeItem(folder());
        makeImage(40, 30);
        takeSounds();
    }
    void TearDown() override { settle(); }

    static std::string folder() { return applicationSupportFolder() + "/Selections"; }
    void selectRect(float x, float y, float w, float h)
    {
        canvas->mSelectionPath = BezierPath::withRect(makeRect(x, y, w, h));
    }
    static void put(const std::string& name, const std::string& text)
    {
        createFolder(folder());
        ASSERT_TRUE(writeFileSafely(folder() + "/" + name, text.data(), text.size()));
    }
    static std::string rectText(float x) { return selectionFileText(BezierPath::withRect(makeRect(x, 1, 5, 6))); }
};

} // namespace zp::test
