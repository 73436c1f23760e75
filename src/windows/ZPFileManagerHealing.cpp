// SPDX-License-Identifier: GPL-3.0-or-later
/// What the library's window says of moved pictures and of duplicates, and what it does about them when it is told to.
#include "base/Translation.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "ui_FileManager.h"
#include "windows/LibraryDelegate.h"
#include "windows/LibraryHealth.h"
#include "windows/LibraryModel.h"
#include "windows/ZPFileManager.h"
#include <QHeaderView>
#include <algorithm>

using namespace zp;

void ZPFileManager::examine()
{
    mHealth->findMoved(mModel->listing());
    if (mUi->mDuplicatesButton->isChecked()) mHealth->findDuplicates(mModel->listing());
}

void ZPFileManager::showDuplicates(bool on)
{
    mUi->mDuplicatesButton->setChecked(on);
    if (on) {
        mHealth->findDuplicates(mModel->listing());
    } else {
        mHealth->endDuplicates();
        arrange(std::nullopt);
    }
    showCount();
}

void ZPFileManager::showCompared() { arrange(mHealth->duplicates()); }

void ZPFileManager::arrange(std::optional<DuplicateGroups> groups)
{
    const int row = selectedRow();
    const std::string name = row >= 0 ? mModel->names()[std::size_t(row)] : std::string();
    const bool had = mModel->showsDuplicates(), has = groups.has_value();
    const int likeness = int(kLibraryColumns.size());
    QHeaderView* header = mTableView->horizontalHeader();
    // A column that goes away from between others would leave its width to its neighbour.
    if (had && !has) header->moveSection(header->visualIndex(likeness), likeness);
    mModel->showDuplicates(std::move(groups));
    mTableView->setAlternatingRowColors(!has);
    if (has && !had) {
        // Right of the name: what makes the rows belong together stands where the eye goes down the list.
        header->moveSection(likeness, 1);
        const int text = mTableView->fontMetrics().horizontalAdvance("00 · " + tr("looks the same"));
        header->resizeSection(likeness,
                              std::max(text + 3 * LibraryDelegate::kMargin, header->sectionSizeHint(likeness)));
    }
    if (!name.empty()) selectName(name);
    showCount();
    selectionChanged();
}

bool ZPFileManager::isBusy() const { return mHealth->isSearching() || mHealth->isComparing(); }

std::vector<std::string> ZPFileManager::relinkable() const
{
    std::vector<std::string> names;
    for (const auto& [name, picture] : mHealth->moved())
        if (picture.found && picture.found->sameContent && libraryItem(libraryFolder(), name).broken)
            names.push_back(name);
    return names;
}

void ZPFileManager::showFound()
{
    const int row = selectedRow();
    const auto& moved = mHealth->moved();
    const bool broken = row >= 0 && mModel->item(row).broken;
    const auto picture = broken ? moved.find(mModel->names()[std::size_t(row)]) : moved.end();
    const std::size_t all = relinkable().size();
    const bool offered = picture != moved.end() && picture->second.found;
    QString text;
    if (offered) {
        const FoundPicture& found = *picture->second.found;
        text = (found.sameContent ? tr("Found again: “%1” in %2")
                                  : tr("An image of the same name, maybe another one: “%1” in %2"))
                   .arg(textFromPath(lastPathComponent(found.path)), textFromPath(folderOfPath(found.path)));
    } else if (picture != moved.end()) {
        text = tr("Not found again in its old folder, below it or beside it.");
    } else if (broken) {
        text = tr("Looking for the image of this link…");
        if (!mHealth->isSearching()) mHealth->findMoved(mModel->listing()); // it broke while the window was open
    } else if (all > 0) {
        text = QString::fromStdString(
            translated("ZPFileManager", "Found again: the images of %n broken link(s).", nullptr, int(all)));
    }
    mUi->mHealLabel->setText(text);
    mUi->mRelinkButton->setVisible(offered);
    mUi->mRelinkAllButton->setVisible(all > (offered ? 1u : 0u));
    mUi->mHealBar->setVisible(!text.isEmpty());
}

void ZPFileManager::relinkSelected()
{
    const auto name = selectedName();
    const auto picture = name ? mHealth->moved().find(*name) : mHealth->moved().end();
    if (picture == mHealth->moved().end() || !picture->second.found) return beep();
    relinkEntries({*name});
}

void ZPFileManager::relinkAll()
{
    const std::vector<std::string> names = relinkable();
    if (names.empty()) return beep();
    constexpr std::size_t kMostShown = 5;
    QStringList lines;
    for (std::size_t i = 0; i < std::min(names.size(), kMostShown); ++i)
        lines << textFromPath(names[i]) + " → " + textFromPath(mHealth->moved().at(names[i]).found->path);
    if (names.size() > kMostShown) lines << "…";
    const QString question = QString::fromStdString(
        translated("ZPFileManager", "Do you wish to relink %n image(s)?", nullptr, int(names.size())));
    if (runAlert(question, lines.join('\n'), {tr("Relink"), tr("Cancel")}) == 0) relinkEntries(names);
}

void ZPFileManager::relinkEntries(const std::vector<std::string>& names)
{
    bool all = true;
    for (const std::string& name : names) {
        const MovedPicture picture = mHealth->moved().at(name);
        all &= relink(libraryFolder(), name, picture.oldPath, picture.found->path);
    }
    reload();
    examine(); // what is broken now is another list
    showFound();
    if (!all) runAlert(tr("A link could not be changed."), "", {tr("OK")});
}

void ZPFileManager::showCount()
{
    const auto [done, all] = mHealth->progress();
    if (mHealth->isComparing() && all > 0)
        mUi->mCountLabel->setText(tr("Comparing %1 of %2").arg(done + 1).arg(all));
    else if (!mModel->showsDuplicates())
        mUi->mCountLabel->setText(
            QString::fromStdString(translated("ZPFileManager", "%n image(s)", nullptr, mModel->rowCount())));
    else if (mModel->rowCount() == 0)
        mUi->mCountLabel->setText(tr("No duplicates"));
    else
        mUi->mCountLabel->setText(QString::fromStdString(
            translated("ZPFileManager", "%n image(s) more than once", nullptr, mModel->groupCount())));
}
