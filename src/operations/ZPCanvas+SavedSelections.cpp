// SPDX-License-Identifier: GPL-3.0-or-later
/// Selections kept in files, to be used again in any image.
#include "base/Folders.h"
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "selection/SelectionFile.h"

using namespace zp;

namespace
{
/// Outlines of millions of corners stay below this; nothing larger in the folder is one of ours.
constexpr std::uint64_t kLargestFile = std::uint64_t{512} << 20;

bool namesAFile(const std::string& path) { return !path.empty() && path.back() != '/'; }
} // namespace

void ZPCanvas::saveSelection(const std::string& path)
{
    if (!namesAFile(path) || !mSelectionPath) return beep();
    const std::string text = selectionFileText(*mSelectionPath);
    createFolder(folderOfPath(path)); // of the default selection, or of a name with a slash in it
    std::string error;
    if (writeFileSafely(path, text.data(), text.size(), &error)) return;
    logLine("saveSelection: %s: %s", displayName(path).c_str(), error.c_str());
    beep();
}

void ZPCanvas::loadSelection(const std::string& path)
{
    if (!namesAFile(path)) return beep();
    std::optional<BezierPath> loaded;
    if (!isFolder(path))
        if (const std::optional<std::string> text = readWholeFile(path, kLargestFile))
            loaded = pathFromSelectionFile(*text);
    selectNone();
    mSelectionPath = std::move(loaded);
    ++mSelectionPathVersion;
    if (mSelectionPath) restartSelectionTimer();
    setNeedsDisplay();
}
