// SPDX-License-Identifier: GPL-3.0-or-later
/// Lays the picture out on a page.
#include "app/PicturePrinting.h"
#include "base/Folders.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "operations/Files.h"
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QtEndian>

namespace zp
{

namespace
{

/// Of a picture that states none.
constexpr double kUsualDpi = 72;

/// Copies the picture. Null without memory.
QImage copyForPainter(ConstBitmapView pixels)
{
    QImage copy(pixels.width, pixels.height, QImage::Format_ARGB32_Premultiplied);
    if (!copy.isNull())
        for (int y = 0; y < pixels.height; ++y)
            qFromBigEndian<quint32>(pixels.data + pixels.rowBytes * y, pixels.width, copy.scanLine(y));
    return copy;
}

} // namespace

void printPicture(Document& document)
{
    const Picture& picture = document.picture();
    if (!picture.isLoaded()) return;
    const QImage image = copyForPainter(pictureAsShown(document)->view());
    if (image.isNull()) {
        runAlert(QCoreApplication::translate("Printing", "There is not enough memory."), {},
                 {QCoreApplication::translate("Printing", "OK")});
        return;
    }
    const auto& properties = picture.bitmap()->properties;
    const double xDpi = properties.xDpi > 0 ? properties.xDpi : kUsualDpi,
                 yDpi = properties.yDpi > 0 ? properties.yDpi : kUsualDpi;
    const QString title = QString::fromStdString(displayName(lastPathComponent(picture.path())));
    runPrintPanel(title, [&](QPainter& painter, const QRectF& page, double dotsPerInch) {
        QSizeF size(image.width() * dotsPerInch / xDpi, image.height() * dotsPerInch / yDpi);
        if (size.width() > page.width() || size.height() > page.height()) size.scale(page.size(), Qt::KeepAspectRatio);
        QRectF place(QPointF(0, 0), size);
        place.moveCenter(page.center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, image);
    });
}

} // namespace zp
