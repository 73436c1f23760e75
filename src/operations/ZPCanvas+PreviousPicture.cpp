// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures that make room for another one, and come back.
#include "codecs/FileNames.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Picture.h"
#include "document/Shelf.h"
#include "operations/Commands.h"
#include "operations/Recovery.h"
#include <QCoreApplication>
#include <new>

namespace zp
{

namespace
{

constexpr const char* kAnchorSelection = QT_TRANSLATE_NOOP("Steps", "Anchor Selection");

/// A shelved picture becomes the current one; nothing may be there to be lost.
bool show(Edit& edit, ShelvedPicture shelved)
try {
    const std::int32_t position = shelved.steps.position;
    const bool hasSteps = edit.history().bringBack(std::move(shelved.steps));
    std::shared_ptr<BitmapRep> first = std::move(shelved.pixels);
    const auto install = [&](std::shared_ptr<BitmapRep> rep) {
        rep->properties.userComment = kEditedComment;
        edit.replacePicture(std::move(rep), kOpenedPicture);
    };
    edit.replacePicture(nullptr, kInternalPicture);
    if (first)
        install(std::move(first));
    else if (!hasSteps || !edit.history().goTo(position, edit.picture(), install))
        return false;
    edit.picture().setPath(std::move(shelved.path));
    edit.picture().setFiles(std::move(shelved.files));
    edit.document().dropNoticesOfFile();
    edit.gesture().openPolygon(false);
    edit.history().notePosition(edit.picture());
    edit.redraw();
    edit.wantStep(false);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

} // namespace

void shelvePicture(Edit& edit)
{
    const Picture& picture = edit.picture();
    if (!picture.bitmap()) return edit.history().reset();
    edit.settleFloat();
    edit.history().recordOwed(picture, kAnchorSelection);
    ShelvedPicture shelved;
    shelved.path = picture.path();
    shelved.files = picture.files();
    shelved.changed = edit.history().isModified();
    // A step that could be kept nowhere stays as it is.
    edit.history().waitForWriter();
    const History::Kept kept = edit.history().kept(edit.history().position());
    shelved.steps = edit.history().putAside();
    const bool inFolder = shelved.steps.folder || kept == History::Kept::Exact;
    if (kept == History::Kept::Nowhere || !inFolder) shelved.pixels = edit.picture().writableBitmap();
    edit.shelf().put(std::move(shelved));
}

void operations::previousPicture(Edit& edit, const Arguments&)
{
    auto previous = edit.shelf().takePrevious();
    if (!previous) return edit.refuse();
    const std::uint64_t order = edit.shelf().order(), orderOfPrevious = previous->order;
    const bool isThere = History::isThere(previous->steps) || previous->pixels;
    if (isThere) {
        shelvePicture(edit);
        edit.shelf().broughtBack(orderOfPrevious);
        if (show(edit, std::move(*previous))) return;
        edit.shelf().broughtBack(order);
        if (auto current = edit.shelf().take(order)) show(edit, std::move(*current));
    }
    edit.refuse(QCoreApplication::translate("Files", "The picture could not be brought back."),
                QCoreApplication::translate("Files", "Its steps are gone from the folder of temporary files."));
}

Outcome recover(Document& document, const LeftPicture& left)
{
    static constexpr Command kRecover{.action = "recover", .effect = Effect::Replace, .onFloat = OnFloat::Settle};
    bool recovered = false;
    const Outcome outcome = document.perform(kRecover, [&](Edit& edit) {
        const auto number = takeOver(SnapshotStore::shared(), left);
        if (!number) return;
        ShelvedPicture shelved;
        shelved.path = left.work.imagePath;
        shelved.steps = History::readAside(*number, left.work);
        shelvePicture(edit);
        edit.shelf().opened();
        recovered = show(edit, std::move(shelved));
        if (!recovered)
            edit.alert(QCoreApplication::translate("Files", "The picture could not be brought back."),
                       QCoreApplication::translate("Files", "Its steps could not be read."));
    });
    return recovered ? outcome : Outcome{Outcome::Refused, {}};
}

} // namespace zp
