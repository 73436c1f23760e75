// SPDX-License-Identifier: GPL-3.0-or-later
/// The image library's window: a table over a folder of links to favourite pictures.
#pragma once
#include <QStringList>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

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

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

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

    std::unique_ptr<Ui::FileManager> mUi;
    std::unique_ptr<Ui::Rename> mRenameUi;
    QTableView* mTableView = nullptr;
    QDialog* mRename_Window = nullptr;
    QLineEdit* mRename_Name_Field = nullptr;
    LibraryModel* mModel = nullptr;
    std::string mRenamed; ///< the entry that the rename window is about
    QString mProposed;    ///< what its field held at first
};
