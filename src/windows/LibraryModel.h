// SPDX-License-Identifier: GPL-3.0-or-later
/// The library folder as a table model: names at once, everything else when it is shown.
#pragma once
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
    const std::vector<std::string>& names() const { return mNames; }
    zp::LibraryItem item(int row) const;
    QStringList values(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const zp::LibraryItem& shown(int row) const;
    std::vector<std::string> mNames;
    mutable std::unordered_map<int, zp::LibraryItem> mShown;
    mutable zp::DimensionsMemory mDimensions;
};
