// SPDX-License-Identifier: GPL-3.0-or-later
/// How a gesture begins, goes on and ends.
#include "document/Gesture.h"

namespace zp
{

void Gesture::begin(const ToolActions* actions, Point point, std::shared_ptr<Selection::Memento> before)
{
    mIsMouseDown = 1;
    mActions = actions;
    if (actions) mStepName = actions->name;
    mPointsBefore = {mPt1, mPt2, mCloneStampRefPt, mPolygonLasso};
    mLastPoint = point;
    mBefore = std::move(before);
    mJournal = {};
    mLiftedHole = false;
    mWandPress.reset();
}

std::optional<int> Gesture::toleranceBefore() const
{
    return mActions && mWandPress ? std::optional(mWandPress->settingBefore) : std::nullopt;
}

void Gesture::takeBack()
{
    mWandPress.reset();
    mPt1 = mPointsBefore.pt1;
    mPt2 = mPointsBefore.pt2;
    mCloneStampRefPt = mPointsBefore.reference;
    mPolygonLasso = mPointsBefore.polygon;
    end();
}

void Gesture::moveTo(Point point)
{
    mLastPoint = point;
    mPreviousPt2 = std::exchange(mPt2, point);
}

void Gesture::release(Point point)
{
    mPt2 = point;
    mIsMouseDown = 0;
    mStroke->close();
}

void Gesture::end()
{
    mActions = nullptr;
    mIsMouseDown = 0;
    mMove = false;
    mLiftedHole = false;
    mPencilPath.reset();
    mBefore.reset();
    mJournal = {};
}

void Gesture::startPencil(float width, Point point)
{
    mPencilPath.emplace();
    mPencilPath->setLineWidth(width);
    mPencilPath->setLineJoin(LineJoin::Round);
    mPencilPath->setLineCap(LineCap::Round);
    mPencilPath->moveTo(point);
}

void Gesture::extendPencil(Point point)
{
    if (mPencilPath) mPencilPath->lineTo(point);
}

} // namespace zp
