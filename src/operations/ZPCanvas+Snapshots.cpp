// SPDX-License-Identifier: GPL-3.0-or-later
/// Undo and redo, steps on demand.
#include "document/Document.h"
#include "document/History.h"
#include "document/Picture.h"
#include "operations/Commands.h"

namespace zp
{

namespace
{

/// What a step of another size needs: a bitmap takes the picture's place, with what is known of its file.
History::Resize replaceBitmap(Edit& edit)
{
    return [&edit](std::shared_ptr<BitmapRep> rep) {
        if (const auto old = edit.picture().bitmap()) rep->properties = old->properties;
        edit.replacePicture(std::move(rep), kInternalPicture);
    };
}

void finish(Edit& edit, bool moved)
{
    if (!moved) return edit.refuse();
    edit.redraw();
    edit.history().notePosition(edit.picture());
}

} // namespace

void operations::undo(Edit& edit, const Arguments&)
{
    finish(edit, edit.history().undo(edit.picture(), replaceBitmap(edit)));
}

void operations::redo(Edit& edit, const Arguments&)
{
    finish(edit, edit.history().redo(edit.picture(), replaceBitmap(edit)));
}

void operations::goToStep(Edit& edit, const Arguments& to)
{
    finish(edit, edit.history().goTo(std::int32_t(to.numbers.at(0)), edit.picture(), replaceBitmap(edit)));
}

void operations::restoreSnapshot(Edit& edit, const Arguments& arguments)
{
    edit.history().restorePair(std::int32_t(arguments.number(0)), edit.picture(), replaceBitmap(edit));
    edit.redraw();
}

void operations::takeSnapshot(Edit& edit, const Arguments&) { edit.history().record(edit.picture(), nullptr); }

void operations::dontTakeSnapshot(Edit& edit, const Arguments&) { edit.history().suppress(true); }

void operations::takeSnapshotAgain(Edit& edit, const Arguments&) { edit.history().suppress(false); }

} // namespace zp
