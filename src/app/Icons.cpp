// SPDX-License-Identifier: GPL-3.0-or-later
/// SVG line icons recoloured for light and dark schemes.
#include "app/Icons.h"
#include "base/Folders.h"
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace
{

/// Renders the drawing at the size and scale asked for; the drawing uses currentColor for its lines.
class LineIconEngine : public QIconEngine
{
public:
    LineIconEngine(QByteArray drawing, QColor normal, QColor disabled)
        : mDrawing(std::move(drawing)), mNormal(normal), mDisabled(disabled)
    {
    }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QByteArray drawing = mDrawing;
        drawing.replace("currentColor", (mode == QIcon::Disabled ? mDisabled : mNormal).name().toLatin1());
        QSvgRenderer(drawing).render(painter, rect);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        if (picture.isNull()) return picture; // no memory
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new LineIconEngine(*this); }

private:
    QByteArray mDrawing;
    QColor mNormal, mDisabled;
};

} // namespace

QIcon applicationImage(const QString& name, const QPalette& palette)
{
    QFile file(QFile::decodeName(zp::shippedResourcesFolder().c_str()) + "/icons/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new LineIconEngine(file.readAll(), palette.color(QPalette::Active, QPalette::WindowText),
                                    palette.color(QPalette::Disabled, QPalette::WindowText)));
}
