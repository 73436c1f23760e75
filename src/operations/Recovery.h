// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures that make room for another one and come back, also after a crash.
#pragma once
#include "document/Command.h"
#include "undo/LeftWork.h"

namespace zp
{

class Document;
class Edit;

/// The picture there is, with its steps, makes room for another: it can be brought back until the program quits.
/// Nothing for the empty picture. The caller replaces the bitmap afterwards.
void shelvePicture(Edit& edit);
/// Makes what another run of the program left the document's picture: its pixels, its path and both numbers, with the
/// steps as they were, so that undo and redo go on from there. Refused with a sentence when that cannot be: the
/// document is as it was, and what is still there is left for the next start. Main thread.
Outcome recover(Document& document, const LeftPicture& left);

} // namespace zp
