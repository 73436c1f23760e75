// SPDX-License-Identifier: GPL-3.0-or-later
/// The image library's commands.
#include "windows/ZPFileManager.h"
#include "base/NotificationCenter.h"
#include "base/Translation.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "desktop/WindowPlaces.h"
#include "library/LibraryListing.h"
#include "ui_FileManager.h"
#include "ui_Rename.h"
#include "windows/LibraryDelegate.h"
#include "windows/LibraryHealth.h"
#include "windows/LibraryModel.h"
#include <QCoreApplication>
#include <QDialog>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QProxyStyle>
#include <QShortcut>
#include <algorithm>

using namespace zp;

namespace
{

ZPFileManager* shared = nullptr;
/// What the columns but the first and the last have room for.
constexpr const char* kWidestTexts[] = {"", "TIFF", "00000 KB", "00000 x 00000", "00:00 - 00/00/00"};
constexpr int kNameWidth = 200;

/// Titles begin and end where the texts below them do.
class HeaderMargins : public QProxyStyle
{
public:
    explicit HeaderMargins(QObject* parent) { setParent(parent); }
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        return metric == PM_HeaderMargin ? LibraryDelegate::kMargin : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

ZPFileManager* ZPFileManager::sharedFileManager()
{
    if (!shared) {
        shared = new ZPFileManager;
        // A window must go before the application object does.
        static bool once = (qAddPostRoutine([] { delete shared; }), true);
        (void)once;
    }
    return shared;
}

ZPFileManager::ZPFileManager() : mUi(std::make_unique<Ui::FileManager>()), mRenameUi(std::make_unique<Ui::Rename>())
{
    mUi->setupUi(this);
    mTableView = mUi->mTableView;
    mModel = new LibraryModel(this);
    mTableView->setModel(mModel);
    QHeaderView* header = mTableView->horizontalHeader();
    for (int i = 1; i < int(std::size(kWidestTexts)); ++i) {
        const int text = mTableView->fontMetrics().horizontalAdvance(QString::fromLatin1(kWidestTexts[i]));
        header->resizeSection(i, std::max(text + 3 * LibraryDelegate::kMargin, header->sectionSizeHint(i)));
    }
    header->resizeSection(0, kNameWidth);
    header->setStyle(new HeaderMargins(header));
    mTableView->setItemDelegate(new LibraryDelegate(int(kLibraryColumns.size()) - 1, this));
    header->setStretchLastSection(true);
    header->setHighlightSections(false);
    mTableView->verticalHeader()->hide();
    mTableView->verticalHeader()->setDefaultSectionSize(mTableView->fontMetrics().height() + 8);
    mTableView->setAcceptDrops(true);
    mTableView->viewport()->setAcceptDrops(true);
    mTableView->viewport()->installEventFilter(this);
    mTableView->installEventFilter(this);
    mUi->mSplitter->setStretchFactor(0, 1);
    mUi->mSplitter->setStretchFactor(1, 0);

    connect(mTableView, &QTableView::doubleClicked, this, &ZPFileManager::doubleClick);
    connect(mTableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ZPFileManager::selectionChanged);
    connect(mUi->mAddButton, &QPushButton::clicked, this, &ZPFileManager::add);
    connect(mUi->mOpenButton, &QPushButton::clicked, this, &ZPFileManager::open);
    connect(mUi->mDeleteButton, &QPushButton::clicked, this, &ZPFileManager::deleteSelected);
    connect(mUi->mRenameButton, &QPushButton::clicked, this, &ZPFileManager::renameSelected);
    connect(mUi->mDuplicatesButton, &QPushButton::toggled, this, &ZPFileManager::showDuplicates);
    connect(mUi->mRelinkButton, &QPushButton::clicked, this, &ZPFileManager::relinkSelected);
    connect(mUi->mRelinkAllButton, &QPushButton::clicked, this, &ZPFileManager::relinkAll);
    mHealth = new LibraryHealth(this);
    connect(mHealth, &LibraryHealth::searched, this, &ZPFileManager::showFound);
    connect(mHealth, &LibraryHealth::progressed, this, &ZPFileManager::showCount);
    connect(mHealth, &LibraryHealth::compared, this, &ZPFileManager::showCompared);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);

    mRename_Window = new QDialog(this);
    mRenameUi->setupUi(mRename_Window);
    mRename_Name_Field = mRenameUi->mRename_Name_Field;
    connect(mRenameUi->mRename_OKButton, &QPushButton::clicked, this, &ZPFileManager::rename_ok);
    connect(mRenameUi->mRename_CancelButton, &QPushButton::clicked, this, &ZPFileManager::rename_cancel);

    NotificationCenter::defaultCenter().addObserver(this, "ReloadTableDataNotif",
                                                    [this](const Notification&) { reload(); });
    if (!setFrameAutosaveName(this, "FileManager")) centerWindow(this);
    keepFolderStore(libraryFolder());
    reload();
}

ZPFileManager::~ZPFileManager()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    if (shared == this) shared = nullptr;
}

void ZPFileManager::showWindow()
{
    keepFolderStore(libraryFolder());
    reload();
    if (isVisible()) examine();
    bringToFront(this);
    mTableView->setFocus();
}

void ZPFileManager::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    examine();
    selectionChanged(); // the preview knows its size from here on
}

void ZPFileManager::hideEvent(QHideEvent* event)
{
    mHealth->stop();
    QWidget::hideEvent(event);
}

void ZPFileManager::reload()
{
    const int row = selectedRow();
    const std::string name = row >= 0 ? mModel->names()[std::size_t(row)] : std::string();
    const bool changed = mModel->reload();
    if (!name.empty()) selectName(name);
    if (changed && isVisible()) examine();
    showCount();
    selectionChanged();
}

QStringList ZPFileManager::columns() const
{
    QStringList identifiers;
    for (int i = 0; i < mModel->columnCount(); ++i)
        identifiers << mModel->headerData(i, Qt::Horizontal, Qt::UserRole).toString();
    return identifiers;
}

QList<QStringList> ZPFileManager::rows()
{
    reload();
    QList<QStringList> all;
    all.reserve(mModel->rowCount());
    for (int row = 0; row < mModel->rowCount(); ++row) all << mModel->values(row);
    return all;
}

int ZPFileManager::selectedRow() const
{
    const QModelIndexList chosen = mTableView->selectionModel()->selectedRows();
    return chosen.isEmpty() ? -1 : chosen.constFirst().row();
}

void ZPFileManager::selectRow(int row)
{
    reload();
    if (row < 0 || row >= mModel->rowCount()) {
        mTableView->clearSelection();
        mTableView->setCurrentIndex({});
    } else {
        mTableView->selectRow(row);
        mTableView->scrollTo(mModel->index(row, 0));
    }
}

void ZPFileManager::selectName(const std::string& name)
{
    const auto& names = mModel->names();
    const auto found = std::find(names.begin(), names.end(), name);
    const int row = found == names.end() ? -1 : int(found - names.begin());
    if (row == selectedRow()) return;
    if (row >= 0)
        mTableView->selectRow(row);
    else
        mTableView->clearSelection();
}

std::optional<std::string> ZPFileManager::selectedName()
{
    reload();
    const int row = selectedRow();
    if (row < 0) return std::nullopt;
    return mModel->names()[std::size_t(row)];
}

void ZPFileManager::selectionChanged()
{
    const int row = selectedRow();
    mUi->mOpenButton->setEnabled(row >= 0);
    mUi->mDeleteButton->setEnabled(row >= 0);
    if (!isVisible()) return;
    showFound();
    if (row < 0) return mUi->mPreview->showText(mModel->rowCount() ? tr("No image selected") : tr("Drop images here"));
    const LibraryItem item = mModel->item(row);
    if (item.broken)
        mUi->mPreview->showText(tr("The file that this link leads to is gone."));
    else
        mUi->mPreview->showFile(item.file());
    if (!item.broken && mRemembered != item.file()) mHealth->remember(mModel->names()[std::size_t(row)]);
    mRemembered = item.file();
}

void ZPFileManager::add()
{
    PanelRequest request;
    request.title = tr("Add to Image Library");
    request.prompt = tr("Add");
    request.types = {"tiff", "jpg", "png", "psd"};
    if (const auto file = runOpenPanel(request)) makeAliases({*file});
    reload();
}

bool ZPFileManager::dropFiles(const std::vector<std::string>& files)
{
    const std::vector<std::string> accepted = acceptedDrop(files);
    makeAliases(accepted);
    reload();
    return !accepted.empty();
}

void ZPFileManager::makeAliases(const std::vector<std::string>& files)
{
    for (const std::string& file : files)
        if (fileExists(file)) makeAlias(file, libraryFolder(), lastPathComponent(file));
    keepFolderStore(libraryFolder());
}

void ZPFileManager::open() { doubleClick(); }

void ZPFileManager::doubleClick()
{
    const auto name = selectedName();
    if (!name) return beep();
    NotificationCenter::defaultCenter().post("OpenFileNotif", libraryItem(libraryFolder(), *name).file());
}

void ZPFileManager::deleteSelected()
{
    if (!selectedName()) return beep();
    if (runAlert(tr("Do you wish to delete the selected file?"), "", {tr("Delete"), tr("Cancel")}) != 0) return;
    const int row = selectedRow();
    if (const auto name = selectedName()) removeItem(pathByAppending(libraryFolder(), *name));
    reload();
    // The next entry takes its place, so that a row of them can be deleted from the keyboard.
    if (mModel->rowCount() > 0 && row >= 0) mTableView->selectRow(std::min(row, mModel->rowCount() - 1));
}

void ZPFileManager::renameSelected()
{
    const auto name = selectedName();
    if (!name) {
        runAlert(tr("Select a file to rename."), "", {tr("OK")});
        return;
    }
    mRenamed = *name;
    mProposed = textFromPath(*name);
    mRename_Name_Field->setText(mProposed);
    mRename_Name_Field->selectAll();
    mRename_Name_Field->setFocus();
    centerWindow(mRename_Window, isVisible() ? this : nullptr);
    mRename_Window->exec();
}

void ZPFileManager::rename_ok()
{
    const QString typed = mRename_Name_Field->text();
    if (typed.isEmpty() || typed.contains('/')) {
        runAlert(tr("Enter a valid new name."), "", {tr("OK")});
        return;
    }
    const std::string path = renamedPath(libraryFolder(), pathFromText(typed), mRenamed);
    // A name left as it was is no change; where it has bytes that are no text, its shown form must not replace it.
    const bool moved = typed != mProposed && moveItem(pathByAppending(libraryFolder(), mRenamed), path);
    mRename_Window->accept();
    reload();
    if (moved) selectName(lastPathComponent(path));
}

void ZPFileManager::rename_cancel() { mRename_Window->reject(); }

bool ZPFileManager::event(QEvent* event)
{
    // Back from the file manager, maybe, where something was moved.
    if (event->type() == QEvent::WindowActivate && isVisible()) mHealth->findMoved(mModel->listing());
    return QWidget::event(event);
}

bool ZPFileManager::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == mTableView->viewport() && handleDrag(event)) return true;
    if (watched == mTableView && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            open();
            return true;
        case Qt::Key_F2:
            renameSelected();
            return true;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            deleteSelected();
            return true;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool ZPFileManager::handleDrag(QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove && event->type() != QEvent::Drop)
        return false;
    auto* drag = static_cast<QDropEvent*>(event);
    if (!hasPaths(drag->mimeData())) {
        drag->ignore();
        return true;
    }
    // Only links are made: whatever was proposed, the program that gives the files must not think them moved away.
    const Qt::DropActions possible = drag->possibleActions();
    drag->setDropAction(possible & Qt::LinkAction   ? Qt::LinkAction
                        : possible & Qt::CopyAction ? Qt::CopyAction
                                                    : drag->proposedAction());
    drag->accept();
    if (event->type() == QEvent::Drop && !dropFiles(pathsFromMimeData(drag->mimeData()))) drag->ignore();
    return true;
}
