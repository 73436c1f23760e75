// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of the library table for Qt's views.
#include "windows/LibraryModel.h"
#include "desktop/Desktop.h"
#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

using namespace zp;

namespace
{

/// Behind the columns of the table.
constexpr int kLikenessColumn = int(kLibraryColumns.size());

} // namespace

bool LibraryModel::reload()
{
    std::vector<std::string> names = libraryRows(contentsOfFolder(libraryFolder()));
    if (names == mListing) {
        // The same entries, but a file behind one may have changed.
        mShown.clear();
        if (!mNames.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return false;
    }
    beginResetModel();
    mListing = std::move(names);
    arrange();
    endResetModel();
    return true;
}

void LibraryModel::showDuplicates(std::optional<DuplicateGroups> groups)
{
    if (!groups && !mGroups) return;
    beginResetModel();
    mGroups = std::move(groups);
    arrange();
    endResetModel();
}

void LibraryModel::arrange()
{
    mShown.clear();
    mRowGroups.clear();
    mNames = mListing;
    if (!mGroups) return;
    mNames.clear();
    const std::set<std::string> there(mListing.begin(), mListing.end());
    int number = 0;
    for (std::vector<DuplicateEntry> group : *mGroups) {
        std::erase_if(group, [&](const DuplicateEntry& each) { return !there.contains(each.name); });
        if (group.size() < 2) continue;
        for (const DuplicateEntry& each : group) {
            mNames.push_back(each.name);
            mRowGroups.emplace_back(number, each.why);
        }
        ++number;
    }
}

QString LibraryModel::likenessText(int row) const
{
    const auto [group, why] = mRowGroups.at(std::size_t(row));
    const QString words[] = {tr("looks the same"), tr("same content"), tr("same file")};
    return QString("%1 · %2").arg(group + 1).arg(words[int(why)]);
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
    if (mGroups) texts << likenessText(row);
    return texts;
}

int LibraryModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(mNames.size()); }

int LibraryModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kLikenessColumn + (mGroups ? 1 : 0);
}

QVariant LibraryModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) return {};
    // Groups take turns, as rows do otherwise.
    if (role == Qt::BackgroundRole && mGroups && mRowGroups.at(std::size_t(index.row())).first % 2 == 1)
        return QGuiApplication::palette().brush(QPalette::AlternateBase);
    if (index.column() == kLikenessColumn && role == Qt::DisplayRole) return likenessText(index.row());
    const char* column = index.column() == kLikenessColumn ? "" : kLibraryColumns[std::size_t(index.column())];
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
    if (role == Qt::UserRole)
        return section == kLikenessColumn ? QString("LIKENESS")
                                          : QString::fromLatin1(kLibraryColumns[std::size_t(section)]);
    if (role == Qt::TextAlignmentRole)
        return int((section == 2 || section == 3 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    const QStringList titles{tr("Name"),     tr("Kind"), tr("Size"),    tr("Dimensions"),
                             tr("Modified"), tr("Path"), tr("Likeness")};
    return titles.at(section);
}
