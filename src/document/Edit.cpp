// SPDX-License-Identifier: GPL-3.0-or-later
/// What a running command may do, and what is noted of it.
#include "document/Edit.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/Shelf.h"
#include "document/View.h"
#include "undo/TileJournal.h"

namespace zp
{

Edit::Edit(Document& document)
    : mDocument(document),
      mPicture(document.mPicture),
      mSelection(document.mSelection),
      mGesture(document.mGesture),
      mPaint(document.mPaint),
      mHistory(document.mHistory),
      mView(document.mView),
      mShelf(document.mShelf)
{
}

BitmapView Edit::write(PixelBox box)
{
    const BitmapView pixels = mayWrite(box);
    wrote(box);
    return pixels;
}

BitmapView Edit::writeAll() { return write(mPicture.box()); }

BitmapView Edit::mayWrite(PixelBox box)
{
    mHistory.beforeWrite(box);
    return mPicture.writablePixels();
}

void Edit::wrote(PixelBox box)
{
    mWrote = true;
    mHistory.noteChanged(box);
    redraw(box.rect().inset(-1));
}

bool Edit::keepBefore(PixelBox box)
{
    TileJournal& journal = mGesture.journal();
    if (journal.isEmpty()) journal = TileJournal(mPicture.pixels());
    return journal.keep(mPicture.pixels(), box);
}

void Edit::replacePicture(std::shared_ptr<BitmapRep> rep, const Replacement& how)
{
    mPicture.replace(std::move(rep), how);
    mHistory.pictureReplaced(mPicture.width(), mPicture.height());
    mSelection.pictureReplaced(mPicture.width(), mPicture.height());
    mWrote = true;
    mReplaced = true;
    if (how.begins)
        mView.begin(mPicture.size());
    else
        mView.refit(mPicture.size());
    redraw();
}

Settled Edit::settleFloat()
{
    const Floating* floating = mSelection.floating();
    const Rect box = mSelection.bounds();
    const bool writes = floating && floating->isChanged();
    const PixelBox pixels = pixelBoxOf(box.inset(-1), mPicture.width(), mPicture.height());
    const Settled settled = mSelection.settle(writes ? write(pixels) : mPicture.writablePixels(), mPaint.opacity());
    if (settled != Settled::Nothing) redraw();
    return settled;
}

void Edit::refuse()
{
    beep();
    mRefused = true;
}

void Edit::refuse(const QString& title, const QString& why)
{
    mWhy = why;
    mRefused = true;
    alert(title, why);
}

} // namespace zp
