// SPDX-License-Identifier: GPL-3.0-or-later
/// The menu bar, made from the command table.
#include "app/MainMenu.h"
#include "app/CommandTable.h"
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

using namespace zp;

MainMenu::MainMenu(QMenuBar* bar, Validator validate, Performer prepare, Performer perform)
    : QObject(bar), mValidate(std::move(validate)), mPrepare(std::move(prepare)), mPerform(std::move(perform))
{
    for (const Command& row : commandTable()) {
        if (!row.menu) continue;
        QMenu*& menu = mMenus[row.menu];
        if (!menu) {
            menu = bar->addMenu(tr(row.menu));
            menu->setToolTipsVisible(true);
            connect(menu, &QMenu::aboutToShow, this, &MainMenu::validate);
            // Shortcuts of a closed menu must not depend on how things were when it was last open.
            connect(menu, &QMenu::aboutToHide, this, [this] {
                QTimer::singleShot(0, this, [this] {
                    for (QAction* item : mOrder) item->setEnabled(true);
                });
            });
        }
        addRow(*menu, row);
    }
}

void MainMenu::addRow(QMenu& menu, const Command& row)
{
    const QString action = row.action;
    if (action == kSeparator) {
        menu.addSeparator();
        return;
    }
    if (action == kRecentMenu) {
        mRecent = menu.addMenu(tr(row.title));
        return;
    }
    QAction* item = menu.addAction(tr(row.title));
    item->setProperty("action", action);
    item->setProperty("menu", row.menu);
    item->setToolTip(tr(row.tip));
    QList<QKeySequence> shortcuts;
    for (const QString& keys : QString(row.shortcut).split(' ', Qt::SkipEmptyParts)) shortcuts << QKeySequence(keys);
    item->setShortcuts(shortcuts);
    if (action == "terminate:") item->setMenuRole(QAction::QuitRole);
    mItems.insert(action, item);
    mOrder.append(item);
    connect(item, &QAction::triggered, this, [this, item] { choose(item); });
}

QAction* MainMenu::itemOfKeys(const QKeySequence& keys) const
{
    for (QAction* item : mOrder)
        if (item->shortcuts().contains(keys)) return item;
    return nullptr;
}

QString MainMenu::menuTitleOf(QAction* item) const { return item->property("menu").toString(); }

void MainMenu::validate()
{
    for (QAction* item : mOrder) {
        QString title;
        item->setEnabled(mValidate(item->property("action").toString(), &title));
        if (!title.isEmpty()) item->setText(title);
    }
    for (auto state = mStates.cbegin(); state != mStates.cend(); ++state)
        item(state.key())->setChecked(state.value()());
}

void MainMenu::setState(const QString& action, std::function<bool()> isOn)
{
    item(action)->setCheckable(true);
    mStates.insert(action, std::move(isOn));
}

void MainMenu::choose(QAction* item)
{
    // The command itself decides a check mark; Qt has already turned it over.
    if (item->isCheckable()) item->setChecked(!item->isChecked());
    const QString action = item->property("action").toString();
    mPrepare(action);
    if (mValidate(action, nullptr)) mPerform(action);
}

QString MainMenu::choose(const QString& action)
{
    QAction* item = mItems.value(action);
    if (!item) return "no such item";
    mPrepare(action);
    if (!mValidate(action, nullptr)) return "disabled";
    mPerform(action);
    return {};
}

void cleanUpEditMenu(QMenu* menu)
{
    for (int look = 0; look < 2; ++look) {
        const QList<QAction*> actions = menu->actions();
        if (!actions.isEmpty() && actions.last()->text() != QString("Adjust…")) menu->removeAction(actions.last());
    }
}
