// SPDX-License-Identifier: GPL-3.0-or-later
/// The image library's window: a table over a folder of links to favourite pictures.
#pragma once
#include "library/LibraryExamination.h"
#include <QStringList>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

class LibraryHealth;
class LibraryModel;
class QDialog;
class QLineEdit;
class QTableView;
namespace Ui
{
class FileManager;
class Rename;
} // namespace Ui

/// One instance, made on first use, on the main thread. Opens a picture by posting "OpenFileNotif" with its path (a
/// std::string); reloads its table on "ReloadTableDataNotif".
class ZPFileManager : public QWidget
{
    Q_OBJECT

public:
    static ZPFileManager* sharedFileManager();
    ~ZPFileManager() override;

    void showWindow();
    /// Reads the folder afresh; the selection stays with its entry.
    void reload();

    /// The columns' identifiers.
    QStringList columns() const;
    /// All rows as they are now, a text for each column.
    QList<QStringList> rows();
    /// Whether broken links' pictures or duplicates are being looked for.
    bool isBusy() const;
    /// -1 when none is selected.
    int selectedRow() const;
    /// A number that is no row clears the selection.
    void selectRow(int row);
    /// What a drop of these files on the table does. @return whether any was taken
    bool dropFiles(const std::vector<std::string>& files);

public slots:
    void add();
    void open();
    void deleteSelected();
    void renameSelected();
    /// The list is all entries, or, where @p on, only those that are there more than once.
    void showDuplicates(bool on);
    /// Lets the selected link lead to the picture that was found for it.
    void relinkSelected();
    /// All of those found by content, after a question.
    void relinkAll();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    ZPFileManager();
    void rename_ok();
    void rename_cancel();
    void doubleClick();
    void makeAliases(const std::vector<std::string>& files);
    /// The selected entry's name after a fresh look at the folder; nothing when none is selected any more.
    std::optional<std::string> selectedName();
    void selectName(const std::string& name);
    void selectionChanged();
    bool handleDrag(QEvent* event);
    /// Whatever is to be known about the entries, afresh.
    void examine();
    void showFound();
    void showCompared();
    void arrange(std::optional<zp::DuplicateGroups> groups);
    void relinkEntries(const std::vector<std::string>& names);
    void showCount();
    std::vector<std::string> relinkable() const;

    std::unique_ptr<Ui::FileManager> mUi;
    std::unique_ptr<Ui::Rename> mRenameUi;
    QTableView* mTableView = nullptr;
    QDialog* mRename_Window = nullptr;
    QLineEdit* mRename_Name_Field = nullptr;
    LibraryModel* mModel = nullptr;
    LibraryHealth* mHealth = nullptr;
    std::string mRenamed;    ///< the entry that the rename window is about
    QString mProposed;       ///< what its field held at first
    std::string mRemembered; ///< the file that was last asked to be remembered
};
