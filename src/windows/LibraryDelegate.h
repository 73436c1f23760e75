// SPDX-License-Identifier: GPL-3.0-or-later
/// Cells of the library's table: room on both sides, and paths cut where the eye can spare it.
#pragma once
#include <QStyledItemDelegate>

/// As much of a path as @p width has room for, in screen points: what goes is folders of its middle, one after the
/// other; its own folder and its name stay, and only what is left of these may be cut.
QString elidedPath(const QString& path, const QFontMetrics& font, int width);

class LibraryDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// @param pathColumn  whose texts are paths
    LibraryDelegate(int pathColumn, QObject* parent) : QStyledItemDelegate(parent), mPathColumn(pathColumn) {}
    /// Room between a text and the edge of its cell, screen points: neighbours never touch.
    static constexpr int kMargin = 8;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    int mPathColumn;
};
