// SPDX-License-Identifier: GPL-3.0-or-later
/// What programs left that ended without quitting: found, taken over, or thrown away when a person says so.
#pragma once
#include "undo/RecoveryRecord.h"
#include <string>
#include <vector>

namespace zp
{

class SnapshotStore;

/// A picture with its steps.
struct LeftPicture {
    RecoverableWork work;
    std::string folder; ///< the left folder's path
    std::string name;   ///< the picture's folder in it
};

inline constexpr const char* kUndoFolderName = "Zelpane Undo Support";
/// The private folder that serves when there is no place among the temporary files; empty when the session has none.
std::string runtimeUndoParent();

/// Whether the open folder holds work that a program left.
bool hasLeftWork(int folder);
/// Moves a folder with left work out of the way of its name, the lock with it. @return false when it stays
bool moveLeftFolderAside(int parent, const std::string& name);

/// A picture's folder @p picture in the open folder @p from becomes left work in @p parent, as if its program had died:
/// the next start offers it. @return false when it stays where it is
bool leaveBehind(int parent, int from, const std::string& picture);

/// All pictures that were left, the newest first; what belongs to running programs is not among them. Main thread;
/// time: a read of each one's last step.
std::vector<LeftPicture> leftPictures();
/// The picture's steps become one of @p store's pictures that are not the current one. @return its number
std::optional<int> takeOver(SnapshotStore& store, const LeftPicture& picture);
/// A person said so.
void discard(const LeftPicture& picture);

} // namespace zp
