// SPDX-License-Identifier: GPL-3.0-or-later
/// The library folder as a table model: names at once, everything else when it is shown.
#pragma once
#include "library/LibraryExamination.h"
#include "library/LibraryListing.h"
#include <QAbstractTableModel>
#include <QStringList>
#include <unordered_map>

/// Main thread only. Rows are those of the last reload; a row's values are looked up on the disk when first asked for.
class LibraryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit LibraryModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}
    /// Reads the folder afresh. Views are reset only when something changed. @return whether something did
    bool reload();
    /// The rows' entries.
    const std::vector<std::string>& names() const { return mNames; }
    /// All entries, those that are no rows just now too.
    const std::vector<std::string>& listing() const { return mListing; }
    /// Shows these entries alone, group by group, with a column that says what makes them one; nothing: all entries, as
    /// the folder has them. Entries that are gone by now are left out, and groups of which one is left.
    void showDuplicates(std::optional<zp::DuplicateGroups> groups);
    bool showsDuplicates() const { return mGroups.has_value(); }
    int groupCount() const { return mRowGroups.empty() ? 0 : mRowGroups.back().first + 1; }
    zp::LibraryItem item(int row) const;
    QStringList values(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const zp::LibraryItem& shown(int row) const;
    QString likenessText(int row) const;
    /// The rows that the listing and the groups make.
    void arrange();
    std::vector<std::string> mListing, mNames;
    std::optional<zp::DuplicateGroups> mGroups;
    std::vector<std::pair<int, zp::DuplicateKind>> mRowGroups; ///< of each row, while duplicates are shown
    mutable std::unordered_map<int, zp::LibraryItem> mShown;
    mutable zp::DimensionsMemory mDimensions;
};
