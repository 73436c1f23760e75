// SPDX-License-Identifier: GPL-3.0-or-later
/// Cursors drawn from the tools' icons: a cross whose middle is the pixel, the icon beside it.
#include "canvas/Cursors.h"
#include "base/Folders.h"
#include "canvas/ToolTable.h"
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/FloatHandles.h"
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>
#include <cmath>
#include <functional>
#include <map>

namespace zp
{

namespace
{

/// Screen points: the whole cursor, its middle, the arms of its cross, and the icon's corner and side.
constexpr int kSide = 32, kMiddle = 9;
constexpr double kArm = 8, kGap = 2.5, kIconAt = 15, kIconSide = 16;
/// Widths of a line and of the light rim that sets it off from any picture.
constexpr double kLine = 1, kRim = 3;
/// The same for the icons, in the units of their drawings of 24 by 24.
const char* const kIconLine = "stroke-width=\"1.6\"";
const char* const kIconRim = "stroke-width=\"5\"";

void drawTwice(QPainter& painter, const QPainterPath& path)
{
    painter.strokePath(path, QPen(Qt::white, kRim, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.strokePath(path, QPen(Qt::black, kLine, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
}

void drawIcon(QPainter& painter, const QString& name)
{
    QFile file(QFile::decodeName(shippedResourcesFolder().c_str()) + "/icons/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) return;
    const QByteArray lines = file.readAll();
    QByteArray rim = lines, dark = lines;
    rim.replace(kIconLine, kIconRim).replace("currentColor", "white");
    dark.replace("currentColor", "black");
    for (const QByteArray& drawing : {rim, dark})
        QSvgRenderer(drawing).render(&painter, QRectF(kIconAt, kIconAt, kIconSide, kIconSide));
}

QCursor drawn(qreal ratio, const std::function<void(QPainter&)>& draw)
{
    QPixmap pixmap(qCeil(kSide * ratio), qCeil(kSide * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    painter.end();
    // Under X the place is counted in the pixels of the picture, elsewhere in screen points.
    const bool inPixels = QGuiApplication::platformName() == "xcb";
    const int middle = inPixels ? int(std::floor((kMiddle + 0.5) * ratio)) : kMiddle;
    return QCursor(pixmap, middle, middle);
}

QCursor toolCursor(const ToolRow& row, qreal ratio)
{
    return drawn(ratio, [&row](QPainter& painter) {
        const double m = kMiddle + 0.5; // the middle of the pixel that the cursor names
        QPainterPath cross;
        for (const auto& [dx, dy] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}}) {
            cross.moveTo(m + dx * kGap, m + dy * kGap);
            cross.lineTo(m + dx * kArm, m + dy * kArm);
        }
        drawTwice(painter, cross);
        drawIcon(painter, row.title);
    });
}

/// An arc with an arrow head at either end.
QCursor turnCursor(qreal ratio)
{
    return drawn(ratio, [](QPainter& painter) {
        constexpr double kRadius = 7, kHead = 3;
        const QRectF circle(kMiddle + 0.5 - kRadius, kMiddle + 0.5 - kRadius, 2 * kRadius, 2 * kRadius);
        QPainterPath arc;
        arc.arcMoveTo(circle, 200);
        const QPointF from = arc.currentPosition();
        arc.arcTo(circle, 200, -220);
        const QPointF to = arc.currentPosition();
        for (const auto& [tip, side] : {std::pair(from, -1), {to, 1}}) {
            arc.moveTo(tip + QPointF(side * kHead, -kHead));
            arc.lineTo(tip);
            arc.lineTo(tip + QPointF(-side * kHead, -kHead));
        }
        drawTwice(painter, arc);
    });
}

const QCursor& kept(int which, qreal ratio)
{
    static std::map<std::pair<int, qreal>, QCursor> cursors;
    const auto [place, isNew] = cursors.try_emplace({which, ratio});
    if (isNew) place->second = which < kToolCount ? toolCursor(rowOf(Tool(which)), ratio) : turnCursor(ratio);
    return place->second;
}

QCursor handleCursor(const Selection& selection, FloatHandle handle, qreal ratio)
{
    if (handle == FloatHandle::Turn) return kept(kToolCount, ratio);
    if (handle >= FloatHandle::PullTopLeft) return Qt::SizeAllCursor;
    // Arrows along the line from the piece's middle, of which four directions can be had.
    constexpr std::array<Qt::CursorShape, 4> kArrows{Qt::SizeHorCursor, Qt::SizeFDiagCursor, Qt::SizeVerCursor,
                                                     Qt::SizeBDiagCursor};
    const bool falls = handle == FloatHandle::TopLeft || handle == FloatHandle::BottomRight;
    const float degrees = (falls ? 45.0f : 135.0f) + selection.record().rotate;
    const int eighth = int(std::lround(degrees / 45)) % 4;
    return kArrows[std::size_t((eighth + 4) % 4)];
}

} // namespace

QCursor cursorAt(const Document& document, Point point, qreal ratio)
{
    const Selection& selection = document.selection();
    const Gesture& gesture = document.gesture();
    const ToolRow& row = rowOf(gesture);
    if (gesture.actions() && gesture.isMoving()) {
        const auto held = FloatHandle(selection.transformMode());
        return held == FloatHandle::None ? QCursor(Qt::SizeAllCursor) : handleCursor(selection, held, ratio);
    }
    if (!gesture.isMouseDown() && showsFloatHandles(document, row.actions)) {
        const FloatHandle handle = floatHandleAt(selection, document.view().effectiveZoom(), point);
        if (handle != FloatHandle::None) return handleCursor(selection, handle, ratio);
    }
    const bool combines = row.actions.combines && currentKeyModifiers() & (kShiftKey | kOptionKey);
    const bool free = !gesture.isMouseDown() && !gesture.polygonIsOpen() && !combines;
    if (free && row.actions.moves && selection.contains(point)) return Qt::SizeAllCursor;
    return kept(int(row.tool), ratio);
}

} // namespace zp
