// SPDX-License-Identifier: GPL-3.0-or-later
/// When the mask's bytes are made, cleared and rendered.
#include "document/SelectionMask.h"
#include "selection/MaskOps.h"

namespace zp
{

void SelectionMask::setSize(int width, int height)
{
    mMaskWidth = width;
    mMaskHeight = height;
    mSelectionMask.reset();
    mSelectionMaskData.reset();
    mSelectionMaskClear = true;
    mMaskStale = false;
    mNotClear = {};
    mShownOutline.reset();
}

std::uint8_t SelectionMask::at(int x, int y) const
{
    return mSelectionMask && !mMaskStale ? mSelectionMask->row(y)[x] : kNotSelected;
}

bool SelectionMask::ready()
{
    if (!exists()) return false;
    if (!mSelectionMaskData) {
        mSelectionMaskData = allocatePixelsUninitialized(std::size_t(mMaskWidth) * std::size_t(mMaskHeight));
        if (!mSelectionMaskData) return false;
        mSelectionMask = ConstMaskView{mSelectionMaskData.get(), mMaskWidth, mMaskHeight, mMaskWidth};
        mNotClear = {0, 0, mMaskWidth, mMaskHeight};
        mMaskStale = true;
    }
    if (mMaskStale) clear();
    return true;
}

ConstMaskView SelectionMask::bytes() { return ready() ? *mSelectionMask : ConstMaskView{}; }

MaskView SelectionMask::writable()
{
    if (!ready()) return {};
    mNotClear = {0, 0, mMaskWidth, mMaskHeight};
    mSelectionMaskClear = false;
    return {mSelectionMaskData.get(), mMaskWidth, mMaskHeight, mMaskWidth};
}

PixelBox SelectionMask::boxOf(const BezierPath& path) const
{
    return pixelBoxOf(path.bounds().inset(-1), mMaskWidth, mMaskHeight);
}

void SelectionMask::clear()
{
    if (mSelectionMaskData && !mNotClear.isEmpty())
        fillMask({mSelectionMaskData.get() + std::ptrdiff_t{mMaskWidth} * mNotClear.y0 + mNotClear.x0,
                  mNotClear.width(), mNotClear.height(), mMaskWidth},
                 kNotSelected);
    mNotClear = {};
    mSelectionMaskClear = true;
    mMaskStale = false;
    mShownOutline.reset();
}

void SelectionMask::clearInverted()
{
    const MaskView all = writable();
    if (all.isEmpty()) return;
    fillMask(all, kSelected);
    mSelectionMaskClear = true; // it holds one value only, though the other one
    mShownOutline.reset();
}

void SelectionMask::render(const BezierPath& path)
{
    if (!ready()) return;
    renderPathInMask({mSelectionMaskData.get(), mMaskWidth, mMaskHeight, mMaskWidth}, path, kSelected);
    mNotClear = mNotClear.united(boxOf(path));
    mSelectionMaskClear = false;
    mShownOutline.reset();
}

void SelectionMask::renderInverted(const BezierPath& path)
{
    if (!ready()) return;
    renderPathInMask({mSelectionMaskData.get(), mMaskWidth, mMaskHeight, mMaskWidth}, path, kNotSelected);
    mSelectionMaskClear = false;
    mShownOutline.reset();
}

void SelectionMask::invert()
{
    const MaskView all = writable();
    const std::size_t count = std::size_t(mMaskWidth) * std::size_t(mMaskHeight);
    if (all.isEmpty()) return;
    for (std::size_t i = 0; i < count; ++i) all.data[i] = all.data[i] ? kSelected : kNotSelected;
    mShownOutline.reset();
}

void SelectionMask::select(int x, int y)
{
    if (!ready()) return;
    mSelectionMaskData[std::size_t(y) * std::size_t(mMaskWidth) + std::size_t(x)] = kSelected;
    mNotClear.include(x, y);
    mSelectionMaskClear = false;
    mShownOutline.reset();
}

void SelectionMask::outlineChanged(std::uint64_t outlineVersion)
{
    if (mShownOutline != outlineVersion) mMaskStale = !mSelectionMaskClear || !mNotClear.isEmpty();
}

} // namespace zp
