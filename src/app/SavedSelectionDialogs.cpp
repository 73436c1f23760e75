// SPDX-License-Identifier: GPL-3.0-or-later
/// Controllers of the save- and load-selection dialogs.
#include "app/SavedSelectionDialogs.h"
#include "base/Folders.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "ui_LoadSelection.h"
#include "ui_SaveSelection.h"
#include <QDialog>
#include <QFile>

using namespace zp;

namespace
{

/// The folder of saved selections, made with all above it when missing.
std::string selectionsFolder()
{
    const std::string folder = applicationSupportFolder() + "/Selections";
    createFolder(folder);
    return folder;
}

class SaveSelectionDialog : public QDialog
{
    Q_DECLARE_TR_FUNCTIONS(SaveSelectionDialog)

public:
    explicit SaveSelectionDialog(QWidget* parent) : QDialog(parent)
    {
        mUi.setupUi(this);
        connect(mUi.mSaveSelection_SaveButton, &QPushButton::clicked, this, &SaveSelectionDialog::save);
        connect(mUi.mSaveSelection_CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    }
    /// In the file system's bytes.
    std::string name() const { return QFile::encodeName(mUi.mSaveSelection_NameField->text()).toStdString(); }

private:
    void save()
    {
        if (!mUi.mSaveSelection_NameField->text().isEmpty()) return accept();
        runAlert(tr("Please enter a valid name for the selection"), QString(), {tr("OK")});
        mUi.mSaveSelection_NameField->setFocus();
    }
    Ui::SaveSelection mUi;
};

class LoadSelectionDialog : public QDialog
{
    Q_DECLARE_TR_FUNCTIONS(LoadSelectionDialog)

public:
    explicit LoadSelectionDialog(QWidget* parent) : QDialog(parent), mFolder(selectionsFolder())
    {
        mUi.setupUi(this);
        std::vector<std::string> names = contentsOfFolder(mFolder);
        if (!names.empty() && names.front() == ".DS_Store") names.erase(names.begin());
        for (const std::string& name : names)
            mUi.mLoadSelection_PopUp->addItem(QString::fromStdString(displayName(name)),
                                              QByteArray::fromStdString(name));
        connect(mUi.mLoadSelection_LoadButton, &QPushButton::clicked, this, &QDialog::accept);
        connect(mUi.mLoadSelection_CancelButton, &QPushButton::clicked, this, &QDialog::reject);
        connect(mUi.mLoadSelection_DeleteButton, &QPushButton::clicked, this, &LoadSelectionDialog::deleteChosen);
        mUi.mLoadSelection_PopUp->setFocus();
    }
    /// Ends in a slash when nothing is chosen.
    std::string chosenPath() const
    {
        return mFolder + "/" + mUi.mLoadSelection_PopUp->currentData().toByteArray().toStdString();
    }

private:
    void deleteChosen()
    {
        const int index = mUi.mLoadSelection_PopUp->currentIndex();
        if (index < 0) return; // or the folder itself would go
        const auto attributes = fileAttributes(chosenPath());
        const bool hasContent = attributes && attributes->folder && !contentsOfFolder(chosenPath()).empty();
        if (hasContent && runAlert(tr("Do you wish to delete the folder with all that is in it?"),
                                   mUi.mLoadSelection_PopUp->currentText(), {tr("Delete"), tr("Cancel")}) != 0)
            return;
        if (attributes) removeItem(chosenPath());
        mUi.mLoadSelection_PopUp->removeItem(index);
    }
    std::string mFolder;
    Ui::LoadSelection mUi;
};

} // namespace

void runSaveSelectionDialog(Document& document, QWidget* parent)
{
    SaveSelectionDialog dialog(parent);
    centerWindow(&dialog, parent);
    const std::string folder = selectionsFolder();
    if (dialog.exec() != QDialog::Accepted) return;
    document.perform("saveSelection:", {{}, folder + "/" + dialog.name()});
}

void runLoadSelectionDialog(Document& document, QWidget* parent)
{
    LoadSelectionDialog dialog(parent);
    centerWindow(&dialog, parent);
    if (dialog.exec() == QDialog::Accepted) document.perform("loadSelection:", {{}, dialog.chosenPath()});
}
