// SPDX-License-Identifier: GPL-3.0-or-later
/// A crashed program's last snapshot as the picture of this canvas.
#include "canvas/ZPCanvas.h"
#include "operations/Recovery.h"

namespace zp
{

bool recoverInto(ZPCanvas& canvas, const RecoverableWork& work)
{
    canvas.waitForWorkers();
    SnapshotStore& store = SnapshotStore::shared();
    if (!store.adoptRecoverable()) return false;
    if (canvas.mFirstSnapshotTimer) canvas.mFirstSnapshotTimer->stop();
    canvas.newImageForMeWithSize({float(work.width), float(work.height)});
    canvas.mImagePath = work.imagePath;
    canvas.mUndoIndex = work.newest;
    canvas.mUndoRedoIndex = work.number;
    if (canvas.mBitmapRep)
        canvas.mBitmapRep->properties.userComment = "Edited by Zelpane -- simple, yet powerful image editing";
    canvas.restoreSnapshot(work.number);
    // The number may be lower than the record's: say so for the case of another crash.
    store.record(work);
    return true;
}

} // namespace zp
