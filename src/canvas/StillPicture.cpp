// SPDX-License-Identifier: GPL-3.0-or-later
/// Tiles of screen words that are rendered once.
#include "canvas/StillPicture.h"
#include "document/Picture.h"
#include "drawing/ScreenRenderer.h"
#include <algorithm>
#include <new>

namespace zp
{

bool StillPicture::begin(const Picture& picture, const Scene& scene)
{
    const void* const pixels = picture.pixels().data;
    if (!mWords.empty() && scene == mScene && pixels == mPixels && picture.writes() == mWrites) return true;
    mScene = scene;
    mPixels = pixels;
    mWrites = picture.writes();
    const int width = scene.visible.width(), height = scene.visible.height();
    mAcross = (width + kTile - 1) / kTile;
    try {
        mThere.assign(std::size_t(mAcross) * std::size_t((height + kTile - 1) / kTile), false);
        mWords.resize(std::size_t(width) * std::size_t(height));
    } catch (const std::bad_alloc&) {
        forget();
    }
    return !mWords.empty();
}

void StillPicture::forget()
{
    mWords = {};
    mThere = {};
}

void StillPicture::fill(const Picture& picture, int row, int left, int right)
{
    const auto there = mThere.begin() + std::ptrdiff_t(row) * mAcross;
    while (left < right && there[left]) ++left;
    while (left < right && there[right - 1]) --right;
    if (left == right) return;
    const PixelBox& all = mScene.visible;
    const PixelBox box =
        PixelBox{all.x0 + left * kTile, all.y0 + row * kTile, all.x0 + right * kTile, all.y0 + (row + 1) * kTile}
            .intersected(all);
    const std::ptrdiff_t stride = all.width();
    renderToScreen(picture.pixels(), mWords.data() + stride * (box.y0 - all.y0) + (box.x0 - all.x0), stride, box,
                   mScene.scale, mScene.outside);
    std::fill(there + left, there + right, true); // now, since there may have been no memory for rendering
}

bool StillPicture::prepare(const Picture& picture, const Scene& scene)
{
    if (!begin(picture, scene)) return false;
    const auto missing = std::find(mThere.begin(), mThere.end(), false);
    if (missing == mThere.end()) return false;
    fill(picture, int((missing - mThere.begin()) / mAcross), 0, mAcross);
    return true;
}

void StillPicture::draw(const ScreenTarget& target, const Picture& picture, const Scene& scene)
{
    const PixelBox &box = target.box, &all = scene.visible;
    if (box.isEmpty()) return;
    if (box.intersected(all) != box || !begin(picture, scene)) {
        renderToScreen(picture.pixels(), target.pixels, target.stride, box, scene.scale, scene.outside);
        return;
    }
    const int left = (box.x0 - all.x0) / kTile, right = (box.x1 - all.x0 + kTile - 1) / kTile;
    for (int row = (box.y0 - all.y0) / kTile; row * kTile < box.y1 - all.y0; ++row) fill(picture, row, left, right);
    const std::uint32_t* from = mWords.data() + std::ptrdiff_t{all.width()} * (box.y0 - all.y0) + (box.x0 - all.x0);
    for (int y = 0; y < box.height(); ++y, from += all.width())
        std::copy_n(from, box.width(), target.pixels + target.stride * y);
}

} // namespace zp
