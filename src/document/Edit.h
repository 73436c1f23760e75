// SPDX-License-Identifier: GPL-3.0-or-later
/// The right to change the document, handed to a command or a gesture while the gate is open for it.
#pragma once
#include "base/BitmapView.h"
#include "base/Geometry.h"
#include "document/Command.h"
#include <functional>
#include <memory>
#include <vector>

namespace zp
{

class BitmapRep;
class Document;
class Gesture;
class History;
class Paint;
class Picture;
class Selection;
class Shelf;
class View;
enum class Settled;
struct Replacement;

/// Only the gate makes one. What is changed is noted here, so that the gate knows what to redisplay, whether a step is
/// due, and what to tell the person; nothing that runs events of its own may be called while it is open.
class Edit
{
public:
    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;

    Picture& picture() { return mPicture; }
    Selection& selection() { return mSelection; }
    Gesture& gesture() { return mGesture; }
    Paint& paint() { return mPaint; }
    History& history() { return mHistory; }
    View& view() { return mView; }
    Shelf& shelf() { return mShelf; }
    Document& document() { return mDocument; }

    /// The picture's bytes, of which those of @p box are about to be written. Empty without a picture.
    BitmapView write(PixelBox box);
    BitmapView writeAll();
    /// The same in two halves, for work that knows only afterwards what it wrote inside @p box.
    BitmapView mayWrite(PixelBox box);
    void wrote(PixelBox box);
    /// Before a gesture writes pixels of @p box: Escape will bring them back. @return false without memory for it
    bool keepBefore(PixelBox box);
    /// Another bitmap becomes the picture; nothing is selected any more.
    void replacePicture(std::shared_ptr<BitmapRep> rep, const Replacement& how);
    /// A floating piece is part of the picture from here on, or let go; see Selection::settle.
    Settled settleFloat();
    void redraw(Rect imageRect) { mDirty = unionRect(mDirty, imageRect); }
    void redraw() { mRedrawAll = true; }
    /// The person is to see that part of the picture: the view goes there.
    void reveal(Rect imageRect) { mRevealed = imageRect; }

    /// The command cannot act: a beep, and no step unless something was changed before.
    void refuse();
    /// The same, with a sentence instead of the beep.
    void refuse(const QString& title, const QString& why);
    bool refused() const { return mRefused; }
    /// Said when the gate has closed.
    void alert(const QString& title, const QString& message) { mAlerts.push_back({title, message}); }
    /// Run when the gate has closed: whatever opens a window.
    void afterwards(std::function<void()> work) { mAfterwards.push_back(std::move(work)); }
    /// A step is due although nothing was written, or none although something was.
    void wantStep(bool wanted) { mStepWanted = wanted, mStepDecided = true; }

private:
    friend class Document;
    explicit Edit(Document& document);

    struct Alert {
        QString title, message;
    };
    Document& mDocument;
    Picture& mPicture;
    Selection& mSelection;
    Gesture& mGesture;
    Paint& mPaint;
    History& mHistory;
    View& mView;
    Shelf& mShelf;
    Rect mDirty, mRevealed;
    bool mRedrawAll = false, mWrote = false, mReplaced = false, mRefused = false;
    bool mStepWanted = false, mStepDecided = false;
    QString mWhy;
    std::vector<Alert> mAlerts;
    std::vector<std::function<void()>> mAfterwards;
};

} // namespace zp
