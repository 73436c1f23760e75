// SPDX-License-Identifier: GPL-3.0-or-later
/// Bringing back what a program that ended without quitting was working on.
///
/// The launch sequence: `if (auto work = zp::findRecoverableWork())` offer it; on yes recover() it (and no new history
/// afterwards: the steps come back with the picture), on no discardRecoverableWork(). Asking may come before or after
/// the history's first reset, which moves a crashed program's folder aside before it empties anything.
#pragma once
#include "document/Command.h"
#include "undo/SnapshotStore.h"

namespace zp
{

class Document;

/// Makes @p work the document's picture: its pixels, its path and both numbers, with the steps as they were, so that
/// undo and redo go on from there. Refused when the steps are gone meanwhile: the document is as it was. Main thread.
Outcome recover(Document& document, const RecoverableWork& work);

} // namespace zp
