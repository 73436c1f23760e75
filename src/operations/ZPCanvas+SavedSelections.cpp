// SPDX-License-Identifier: GPL-3.0-or-later
/// Selections kept in files, to be used again in any image.
#include "base/Folders.h"
#include "base/Log.h"
#include "document/Gesture.h"
#include "document/Selection.h"
#include "operations/Commands.h"
#include "selection/SelectionFile.h"
#include <QCoreApplication>

namespace zp
{

namespace
{

/// Outlines of millions of corners stay below this; nothing larger in the folder is one of ours.
constexpr std::uint64_t kLargestFile = std::uint64_t{512} << 20;

bool namesAFile(const std::string& path) { return !path.empty() && path.back() != '/'; }

} // namespace

void operations::saveSelection(Edit& edit, const Arguments& to)
{
    if (!namesAFile(to.path) || edit.selection().isNil()) return edit.refuse();
    const std::string text = selectionFileText(*edit.selection().outline());
    createFolder(folderOfPath(to.path)); // of the default selection, or of a name with a slash in it
    std::string error;
    if (writeFileSafely(to.path, text.data(), text.size(), &error)) return;
    logLine("saveSelection: %s: %s", displayName(to.path).c_str(), error.c_str());
    edit.refuse(QCoreApplication::translate("SavedSelections", "The selection could not be saved."),
                QString::fromStdString(displayName(lastPathComponent(to.path)) + ": " + error));
}

void operations::loadSelection(Edit& edit, const Arguments& from)
{
    if (!namesAFile(from.path)) return edit.refuse();
    std::optional<BezierPath> loaded;
    if (!isFolder(from.path))
        if (const std::optional<std::string> text = readWholeFile(from.path, kLargestFile))
            loaded = pathFromSelectionFile(*text);
    edit.selection().drop();
    edit.gesture().openPolygon(false);
    if (loaded) edit.selection().select(std::move(*loaded));
    edit.redraw();
}

} // namespace zp
