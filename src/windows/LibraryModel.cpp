// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of the library table for Qt's views.
#include "windows/LibraryModel.h"
#include "desktop/Desktop.h"
#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

using namespace zp;

bool LibraryModel::reload()
{
    std::vector<std::string> names = libraryRows(contentsOfFolder(libraryFolder()));
    if (names == mNames) {
        // The same entries, but a file behind one may have changed.
        mShown.clear();
        if (!mNames.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return false;
    }
    beginResetModel();
    mNames = std::move(names);
    mShown.clear();
    endResetModel();
    return true;
}

LibraryItem LibraryModel::item(int row) const { return libraryItem(libraryFolder(), mNames.at(std::size_t(row))); }

const LibraryItem& LibraryModel::shown(int row) const
{
    const auto known = mShown.find(row);
    return known != mShown.end() ? known->second : mShown.emplace(row, item(row)).first->second;
}

QStringList LibraryModel::values(int row) const
{
    QStringList texts;
    for (const char* column : kLibraryColumns) texts << textFromPath(libraryValue(shown(row), column, mDimensions));
    return texts;
}

int LibraryModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(mNames.size()); }

int LibraryModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(kLibraryColumns.size());
}

QVariant LibraryModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const char* column = kLibraryColumns[std::size_t(index.column())];
    const bool number = qstrcmp(column, "SIZE") == 0 || qstrcmp(column, "DIMENSIONS") == 0;
    switch (role) {
    case Qt::DisplayRole:
        return textFromPath(libraryValue(shown(index.row()), column, mDimensions));
    case Qt::TextAlignmentRole:
        return int((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (shown(index.row()).broken) return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        return {};
    case Qt::FontRole:
        if (index.column() == 0 && shown(index.row()).broken) {
            QFont font;
            font.setStrikeOut(true);
            return font;
        }
        return {};
    case Qt::ToolTipRole: {
        const LibraryItem& item = shown(index.row());
        if (item.broken) return tr("The file that this link leads to is gone. The link can be deleted.");
        return QString("<span>%1</span>").arg(textFromPath(item.file()).toHtmlEscaped()); // markup in names is text
    }
    default:
        return {};
    }
}

QVariant LibraryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    if (role == Qt::UserRole) return QString::fromLatin1(kLibraryColumns[std::size_t(section)]);
    if (role == Qt::TextAlignmentRole)
        return int((section == 2 || section == 3 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    const QStringList titles{tr("Name"), tr("Kind"), tr("Size"), tr("Dimensions"), tr("Modified"), tr("Path")};
    return titles.at(section);
}
