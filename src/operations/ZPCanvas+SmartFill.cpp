// SPDX-License-Identifier: GPL-3.0-or-later
/// The command that opens the smart fill window on the selection.
#include "document/Document.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/Commands.h"
#include "operations/SmartFillHook.h"
#include <new>
#include <utility>

namespace zp
{

namespace
{
SmartFillHook registeredHook;
} // namespace

void setSmartFillHook(SmartFillHook hook) { registeredHook = std::move(hook); }

const SmartFillHook& smartFillHook() { return registeredHook; }

void operations::smartFill(Edit& edit, const Arguments&)
{
    Selection& selection = edit.selection();
    if (!edit.picture().bitmap() || !registeredHook) return edit.refuse();
    selection.setEvenOdd();
    SelectionMask& mask = selection.rawMask();
    mask.clearInverted();
    mask.renderInverted(*selection.outline());
    const ConstMaskView inverted = mask.bytes();
    if (inverted.isEmpty()) throw std::bad_alloc();
    registeredHook(edit.document(), {.mask = inverted, .maskOrigin = {}, .bounds = selection.bounds()});
}

} // namespace zp
