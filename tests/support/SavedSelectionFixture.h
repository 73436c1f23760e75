// SPDX-License-Identifier: GPL-3.0-or-later
/// A document with an image and an empty folder of saved selections.
#pragma once
#include "base/Folders.h"
#include "selection/SelectionFile.h"
#include "support/DocumentFixture.h"

namespace zp::test
{

class SavedSelectionsTest : public DocumentTest
{
protected:
    void SetUp() override
    {
        removeItem(folder());
        makeImage(40, 30);
        takeSounds();
    }

    static std::string folder() { return applicationSupportFolder() + "/Selections"; }
    static void put(const std::string& name, const std::string& text)
    {
        createFolder(folder());
        ASSERT_TRUE(writeFileSafely(folder() + "/" + name, text.data(), text.size()));
    }
    static std::string rectText(float x) { return selectionFileText(BezierPath::withRect(makeRect(x, 1, 5, 6))); }
};

} // namespace zp::test
