// SPDX-License-Identifier: GPL-3.0-or-later
/// Bringing back what a program that ended without quitting was working on.
///
/// The launch sequence: `if (auto work = zp::findRecoverableWork())` offer it; on yes call recoverInto() (and not
/// resetUndo() afterwards: the history comes back with the picture), on no discardRecoverableWork(). Asking may come
/// before or after the first resetUndo(), which moves a crashed program's folder aside before it empties anything.
#pragma once
#include "undo/SnapshotStore.h"

class ZPCanvas;

namespace zp
{

/// Makes @p work the canvas's picture: its pixels, its path and both undo numbers, with the snapshots as they were, so
/// that undo and redo go on from there. Main thread; waits for the canvas's workers.
/// @return false when the snapshots are gone meanwhile: the canvas is as it was
bool recoverInto(ZPCanvas& canvas, const RecoverableWork& work);

} // namespace zp
