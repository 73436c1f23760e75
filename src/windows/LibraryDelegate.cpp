// SPDX-License-Identifier: GPL-3.0-or-later
/// Painting of the library's cells.
#include "windows/LibraryDelegate.h"
#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <utility>

QString elidedPath(const QString& path, const QFontMetrics& font, int width)
{
    const auto fits = [&](const QString& text) { return font.horizontalAdvance(text) <= width; };
    if (fits(path)) return path;
    const QStringList parts = path.split('/');
    // From the one that leaves out a single folder to "…/folder/name".
    for (qsizetype head = parts.size() - 3; head >= 1; --head) {
        const QString text = parts.first(head).join('/') + "/…/" + parts.last(2).join('/');
        if (fits(text)) return text;
    }
    if (parts.size() < 2) return font.elidedText(path, Qt::ElideMiddle, width);
    const QString folder = "…/" + parts[parts.size() - 2] + '/';
    if (fits(folder + parts.last())) return folder + parts.last();
    const int left = width - font.horizontalAdvance(folder);
    const QString name = font.elidedText(parts.last(), Qt::ElideMiddle, left);
    return name.size() > 2 ? folder + name : font.elidedText(folder + parts.last(), Qt::ElideMiddle, width);
}

void LibraryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString text = std::exchange(cell.text, QString());
    const QStyle& style = *(cell.widget ? cell.widget->style() : QApplication::style());
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    const QRect room = cell.rect.adjusted(kMargin, 0, -kMargin, 0);
    const QString shown = index.column() == mPathColumn
                              ? elidedPath(text, cell.fontMetrics, room.width())
                              : cell.fontMetrics.elidedText(text, cell.textElideMode, room.width());
    const bool selected = cell.state & QStyle::State_Selected;
    if (!(cell.state & QStyle::State_Active)) cell.palette.setCurrentColorGroup(QPalette::Inactive);
    painter->save();
    painter->setFont(cell.font);
    style.drawItemText(painter, room, int(cell.displayAlignment), cell.palette, true, shown,
                       selected ? QPalette::HighlightedText : QPalette::Text);
    painter->restore();
}

QSize LibraryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * kMargin, 0);
}
