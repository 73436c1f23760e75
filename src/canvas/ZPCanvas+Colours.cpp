// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture through its profile, on a screen with one of its own.
#include "base/WorkPool.h"
#include "canvas/DrawingState.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ScreenColours.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "drawing/AntsPainter.h"
#include "drawing/ColourRows.h"
#include <algorithm>
#include <cmath>

using namespace zp;

namespace
{

/// Rows that a worker converts in one go: enough that handing them over costs nothing beside them.
constexpr int kRows = 32;

void convert(const ScreenColours& colours, std::uint32_t* words, std::ptrdiff_t stride, int width, int height)
{
    parallelFor((height + kRows - 1) / kRows, [&](int band) {
        const int last = std::min(height, (band + 1) * kRows);
        for (int y = band * kRows; y < last; ++y)
            if (const ColourTables* tables = colours.tables())
                convertColours(*tables, words + stride * y, width);
            else
                colours.convertRow(words + stride * y, width);
    });
}

} // namespace

const ScreenColours* ZPCanvas::colours()
{
    const Picture& picture = mDocument.picture();
    DrawingState& state = *mDrawing;
    const std::shared_ptr<const BitmapRep> bitmap = picture.bitmap();
    if (!bitmap) return nullptr;
    // The profile comes with the bitmap and stays with it; most bitmaps that follow have the same.
    if (state.coloursOf.lock() != bitmap) {
        state.coloursOf = bitmap;
        if (!state.coloursKnown || state.pictureProfile != bitmap->properties.iccProfile) {
            state.pictureProfile = bitmap->properties.iccProfile;
            state.colours = ScreenColours::between(state.pictureProfile, state.screenProfile);
            state.coloursKnown = true;
        }
    }
    return state.colours.get();
}

void ZPCanvas::setScreenProfile(std::vector<std::uint8_t> profile)
{
    if (profile == mDrawing->screenProfile) return;
    mDrawing->screenProfile = std::move(profile);
    mDrawing->coloursOf.reset();
    mDrawing->coloursKnown = false;
    update();
}

void ZPCanvas::showThroughProfile(const ScreenTarget& target, double deviceScale)
{
    const ScreenColours* const conversion = colours();
    if (!conversion) return;
    const Picture& picture = mDocument.picture();
    const PixelBox shown =
        PixelBox{0, 0, int(std::ceil(picture.width() * deviceScale)), int(std::ceil(picture.height() * deviceScale))}
            .intersected(target.box);
    if (shown.isEmpty()) return;
    convert(*conversion, target.pixels + target.stride * (shown.y0 - target.box.y0) + (shown.x0 - target.box.x0),
            target.stride, shown.width(), shown.height());
}

Color ZPCanvas::asShown(Color color)
{
    const ScreenColours* const conversion = colours();
    if (!conversion) return color;
    std::uint32_t word = 0xFF000000u | std::uint32_t(colorByte(color.red)) << 16 |
                         std::uint32_t(colorByte(color.green)) << 8 | colorByte(color.blue);
    convert(*conversion, &word, 1, 1, 1);
    const auto part = [word](unsigned shift) { return float(word >> shift & 255u) / 255; };
    return {part(16), part(8), part(0), color.alpha};
}

QImage ZPCanvas::asShown(QImage image)
{
    const ScreenColours* const conversion = colours();
    if (!conversion || image.isNull()) return image;
    const QImage alpha = image.hasAlphaChannel() ? image.convertToFormat(QImage::Format_Alpha8) : QImage();
    image = image.convertToFormat(QImage::Format_RGB32); // its words are those of the screen
    if (image.isNull()) return image;
    convert(*conversion, reinterpret_cast<std::uint32_t*>(image.bits()), image.bytesPerLine() / 4, image.width(),
            image.height());
    if (!alpha.isNull()) image.setAlphaChannel(alpha);
    return image;
}
