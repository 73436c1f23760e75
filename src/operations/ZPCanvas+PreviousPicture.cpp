// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures that make room for another one, and come back.
#include "base/Folders.h"
#include "codecs/FileNames.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Picture.h"
#include "document/Shelf.h"
#include "operations/Commands.h"
#include "operations/Recovery.h"
#include "undo/ExactSteps.h"
#include <QCoreApplication>
#include <new>

namespace zp
{

namespace
{

constexpr const char* kAnchorSelection = QT_TRANSLATE_NOOP("Steps", "Anchor Selection");

QString couldNotBeBroughtBack() { return QCoreApplication::translate("Files", "The image could not be brought back."); }
QString stepsAreGone()
{
    return QCoreApplication::translate("Files", "Its steps are gone from the folder of temporary files.");
}
QString offeredAgain() { return QCoreApplication::translate("Files", "It will be offered again at the next start."); }

/// A shelved picture becomes the current one; nothing may be there to be lost. @return false when its pixels cannot be
/// had: its steps may have become the current ones all the same
bool install(Edit& edit, ShelvedPicture& shelved)
try {
    const bool hasSteps = edit.history().bringBack(shelved.steps);
    std::shared_ptr<BitmapRep> first = shelved.pixels;
    const auto put = [&](std::shared_ptr<BitmapRep> rep) {
        rep->properties.userComment = kEditedComment;
        edit.replacePicture(std::move(rep), kOpenedPicture);
    };
    edit.replacePicture(nullptr, kInternalPicture);
    edit.document().dropNoticesOfFile(); // before there is something to be said of this one
    if (first)
        put(std::move(first));
    else if (!hasSteps || !edit.history().goTo(shelved.steps.position, edit.picture(), put))
        return false;
    edit.picture().setPath(shelved.path);
    edit.picture().setFiles(shelved.files);
    edit.gesture().openPolygon(false);
    edit.history().notePosition(edit.picture());
    edit.redraw();
    edit.wantStep(false);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

/// The same, all or nothing: what cannot be shown is aside again.
bool show(Edit& edit, ShelvedPicture& shelved)
{
    if (install(edit, shelved)) return true;
    edit.replacePicture(nullptr, kInternalPicture);
    if (edit.history().newest() >= 0) shelved.steps = edit.history().putAside();
    return false;
}

/// The picture that made room for one that cannot be shown is there again.
void showAgain(Edit& edit, std::uint64_t order)
{
    edit.shelf().broughtBack(order);
    if (auto before = edit.shelf().take(order)) show(edit, *before);
}

/// Nothing is thrown away because it could not be read once: memory may have been short.
void refuseToShow(Edit& edit, const ShelvedPicture& shelved)
{
    const QString why = QCoreApplication::translate("Files", "Its steps could not be read.");
    edit.refuse(couldNotBeBroughtBack(), History::leaveBehind(shelved.steps) ? why + ' ' + offeredAgain() : why);
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
    // Files that could not be moved went with the old picture's place; what was kept in memory is still there.
    const bool isThere = shelved.steps.folder || shelved.steps.exact->isThere(shelved.steps.position);
    if (kept == History::Kept::Nowhere || !isThere) shelved.pixels = edit.picture().writableBitmap();
    edit.shelf().put(std::move(shelved));
}

void operations::previousPicture(Edit& edit, const Arguments&)
{
    auto previous = edit.shelf().takePrevious();
    if (!previous) return edit.refuse();
    const std::uint64_t order = edit.shelf().order(), orderOfPrevious = previous->order;
    if (!History::isThere(previous->steps) && !previous->pixels)
        return edit.refuse(couldNotBeBroughtBack(), stepsAreGone());
    shelvePicture(edit);
    edit.shelf().broughtBack(orderOfPrevious);
    if (show(edit, *previous)) return;
    if (previous->pixels) { // nothing but memory can be missing for these
        edit.shelf().put(std::move(*previous));
        showAgain(edit, order);
        return edit.refuse(QCoreApplication::translate("Document", "There is not enough memory."), {});
    }
    showAgain(edit, order);
    refuseToShow(edit, *previous);
}

Outcome recover(Document& document, const LeftPicture& left)
{
    static constexpr Command kRecover{
        .action = "recover", .effect = Effect::Replace, .onFloat = OnFloat::Settle, .begins = true};
    return document.perform(kRecover, [&](Edit& edit) {
        const auto number = takeOver(SnapshotStore::shared(), left);
        if (!number)
            return edit.refuse(couldNotBeBroughtBack(),
                               isFolder(pathByAppending(left.folder, left.name)) ? offeredAgain() : stepsAreGone());
        ShelvedPicture shelved;
        const std::uint64_t order = edit.shelf().order();
        try {
            shelved.path = left.work.imagePath;
            shelved.steps = History::readAside(*number, left.work);
            shelvePicture(edit);
        } catch (const std::bad_alloc&) {
            SnapshotStore::shared().leaveBehind(*number);
            throw;
        }
        edit.shelf().opened();
        if (show(edit, shelved)) return;
        showAgain(edit, order);
        refuseToShow(edit, shelved);
    });
}

} // namespace zp
