// SPDX-License-Identifier: GPL-3.0-or-later
/// Files of saved selections: what is understood is written again so that it is understood the same.
#include "Fuzz.h"
#include "selection/SelectionFile.h"

ZP_FUZZ(SavedSelection, "", bytes)
{
    using namespace zp;
    const std::string text(bytes.begin(), bytes.end());
    const auto path = pathFromSelectionFile(text);
    if (!path) return;
    const std::string written = selectionFileText(*path);
    const auto again = pathFromSelectionFile(written);
    fuzz::require(again.has_value(), "a selection that was written can be read");
    fuzz::require(selectionFileText(*again) == written, "and is written again as it is");
}
