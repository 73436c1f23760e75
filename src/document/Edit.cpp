// SPDX-License-Identifier: GPL-3.0-or-later
/// What a running command may do, and what is noted of it.
#include "document/Edit.h"
#include "desktop/Sounds.h"
#include "document/Document.h"

namespace zp
{

Edit::Edit(Document& document)
    : mDocument(document),
      mPicture(document.mPicture),
      mSelection(document.mSelection),
      mGesture(document.mGesture),
      mPaint(document.mPaint),
      mHistory(document.mHistory),
      mView(document.mView)
{
}

BitmapView Edit::write(PixelBox box)
{
    mWrote = true;
    redraw(box.rect().inset(-1));
    return mPicture.writablePixels();
}

BitmapView Edit::writeAll()
{
    redraw();
    return write(mPicture.box());
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
    const Settled settled = mSelection.settle(mPicture.writablePixels(), mPaint.opacity());
    if (writes) write(pixelBoxOf(box.inset(-1), mPicture.width(), mPicture.height()));
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
