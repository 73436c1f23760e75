// SPDX-License-Identifier: GPL-3.0-or-later
/// Undo and redo, steps on demand, and the picture that a crash left.
#include "base/Log.h"
#include "codecs/FileNames.h"
#include "document/Document.h"
#include "operations/Commands.h"
#include "operations/Recovery.h"

namespace zp
{

namespace
{

void restore(Edit& edit, std::int32_t number)
{
    edit.history().restore(number, edit.picture(), [&edit](int width, int height) {
        const std::shared_ptr<const BitmapRep> old = edit.picture().bitmap();
        auto rep = BitmapRep::create(width, height);
        if (rep && old) rep->properties = old->properties;
        edit.replacePicture(std::move(rep), kInternalPicture);
    });
    edit.redraw();
}

} // namespace

void operations::undo(Edit& edit, const Arguments&)
{
    const auto number = edit.history().stepBack();
    if (!number) return edit.refuse();
    restore(edit, *number);
    edit.history().notePosition(edit.picture());
}

void operations::redo(Edit& edit, const Arguments&)
{
    const auto number = edit.history().stepOn();
    if (!number) return edit.refuse();
    restore(edit, *number);
    edit.history().notePosition(edit.picture());
}

void operations::restoreSnapshot(Edit& edit, const Arguments& arguments) { restore(edit, int(arguments.number(0))); }

void operations::takeSnapshot(Edit& edit, const Arguments&) { edit.history().record(edit.picture(), nullptr); }

void operations::dontTakeSnapshot(Edit& edit, const Arguments&) { edit.history().suppress(true); }

void operations::takeSnapshotAgain(Edit& edit, const Arguments&) { edit.history().suppress(false); }

Outcome recover(Document& document, const RecoverableWork& work)
{
    static constexpr Command kRecover{.action = "recover", .effect = Effect::Replace};
    bool adopted = false;
    const Outcome outcome = document.perform(kRecover, [&](Edit& edit) {
        adopted = edit.history().adopt(work);
        if (!adopted) return;
        edit.replacePicture(BitmapRep::create(work.width, work.height), kInternalPicture);
        edit.picture().setPath(work.imagePath);
        restore(edit, work.number);
        if (const auto rep = edit.picture().writableBitmap()) rep->properties.userComment = kEditedComment;
        // The number may be lower than the record's: say so for the case of another crash.
        edit.history().notePosition(edit.picture());
        edit.wantStep(false);
    });
    return adopted ? outcome : Outcome{Outcome::Refused, {}};
}

} // namespace zp
