// SPDX-License-Identifier: GPL-3.0-or-later
/// The menu bar, made from the command table.
#include "app/MainMenu.h"
#include "app/CommandTable.h"
#include "desktop/Mnemonics.h"
#include "desktop/Settings.h"
#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

using namespace zp;

namespace
{

const QString kKeySettings = "shortcuts/";

/// What menus say has one place among the translations, whoever shows it.
QString inMenu(const char* text) { return QCoreApplication::translate("Menu", text); }

} // namespace

MainMenu::MainMenu(QMenuBar* bar, Validator validate, Performer prepare, Performer perform)
    : QObject(bar), mValidate(std::move(validate)), mPrepare(std::move(prepare)), mPerform(std::move(perform))
{
    for (const Command& row : commandTable()) {
        if (!row.menu) continue;
        QMenu*& menu = mMenus[row.menu];
        if (!menu) {
            menu = bar->addMenu(inMenu(row.menu));
            menu->menuAction()->setProperty("english", row.menu);
            menu->setToolTipsVisible(true);
            connect(menu, &QMenu::aboutToShow, this, [this, menu] {
                this->validate();
                giveMnemonics(menu->actions());
            });
            settleWhenHidden(menu);
        }
        addRow(*menu, row);
    }
    giveMnemonics(bar->actions());
}

void MainMenu::giveMnemonics(const QList<QAction*>& actions)
{
    QStringList texts, hints;
    for (const QAction* action : actions) {
        texts << withoutMnemonic(action->text());
        hints << action->property("english").toString();
    }
    texts = withMnemonics(texts, hints);
    for (qsizetype i = 0; i < actions.size(); ++i)
        if (!actions[i]->isSeparator()) actions[i]->setText(texts[i]);
}

void MainMenu::settleWhenHidden(QMenu* menu)
{
    // Shortcuts of a closed menu must not depend on how things were when it was last open.
    connect(menu, &QMenu::aboutToHide, this, [this, menu] {
        for (QAction* item : menu->actions()) item->setText(withoutMnemonic(item->text()));
        QTimer::singleShot(0, this, [this] {
            for (const QMenu* other : mMenus)
                if (other->isVisible()) return; // the hand went on to the next menu
            for (QAction* item : mOrder) item->setEnabled(true);
        });
    });
}

void MainMenu::addRow(QMenu& menu, const Command& row)
{
    const QString action = row.action;
    if (action == kSeparator) {
        menu.addSeparator();
        return;
    }
    if (action == kRecentMenu) {
        mRecent = menu.addMenu(inMenu(row.title));
        mRecent->menuAction()->setProperty("english", row.title);
        return;
    }
    QAction* item = menu.addAction(inMenu(row.title));
    item->setProperty("action", action);
    item->setProperty("menu", inMenu(row.menu));
    item->setProperty("english", row.title);
    item->setToolTip(inMenu(row.tip));
    item->setProperty("tip", inMenu(row.tip));
    item->setStatusTip(inMenu(row.tip));
    item->setProperty("keys", QString(row.shortcut));
    applyKeys(item);
    if (action == "terminate:") item->setMenuRole(QAction::QuitRole);
    mItems.insert(action, item);
    mOrder.append(item);
    connect(item, &QAction::triggered, this, [this, item] { choose(item); });
}

QString MainMenu::keyNameOf(const QString& action) const
{
    const QAction* item = mItems.value(action);
    return item ? item->shortcut().toString(QKeySequence::NativeText) : QString();
}

QAction* MainMenu::itemOfKeys(const QKeySequence& keys) const
{
    for (QAction* item : mOrder)
        if (item->shortcuts().contains(keys)) return item;
    return nullptr;
}

QString MainMenu::menuTitleOf(const QAction* item) const { return item->property("menu").toString(); }
QString MainMenu::givenTitleOf(const QAction* item) { return inMenu(item->property("english").toByteArray()); }

void MainMenu::validate(QAction* item)
{
    QString title;
    const QString action = item->property("action").toString();
    item->setEnabled(mValidate(action, &title));
    if (!title.isEmpty() && title != withoutMnemonic(item->text())) item->setText(title);
    const QString why = item->isEnabled() || !mWhyNot ? QString() : mWhyNot(action);
    const QString tip = item->property("tip").toString();
    item->setStatusTip(why.isEmpty() ? tip : why);
    item->setToolTip(why.isEmpty() ? tip : tip + "\n" + why);
}

void MainMenu::validate()
{
    for (QAction* item : mOrder) validate(item);
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

// ---- keys -----------------------------------------------------------------------------------------------------------

void MainMenu::applyKeys(QAction* item)
{
    QString keys = item->property("keys").toString();
    const QVariant changed = settings().value(kKeySettings + item->property("action").toString());
    if (changed.isValid()) keys = changed.toString();
    QList<QKeySequence> shortcuts;
    for (const QString& chord : keys.split(' ', Qt::SkipEmptyParts))
        shortcuts << QKeySequence(chord, QKeySequence::PortableText);
    item->setShortcuts(shortcuts);
}

void MainMenu::setKeys(const QString& action, const QList<QKeySequence>& keys)
{
    QAction* item = mItems.value(action);
    if (!item) return;
    QStringList words;
    for (const QKeySequence& chord : keys) words << chord.toString(QKeySequence::PortableText);
    settings().setValue(kKeySettings + action, words.join(' '));
    applyKeys(item);
    emit keysChanged();
}

void MainMenu::giveKeysBack(const QString& action)
{
    QAction* item = mItems.value(action);
    if (!item) return;
    QStringList free;
    for (const QString& chord : item->property("keys").toString().split(' ', Qt::SkipEmptyParts)) {
        const QAction* owner = itemOfKeys(QKeySequence(chord));
        const bool given =
            owner && owner != item && !settings().value(kKeySettings + owner->property("action").toString()).isValid();
        if (!owner || owner == item || given) free << chord;
    }
    settings().remove(kKeySettings + action);
    if (free.join(' ') != item->property("keys").toString()) settings().setValue(kKeySettings + action, free.join(' '));
    applyKeys(item);
    emit keysChanged();
}

void MainMenu::giveAllKeysBack()
{
    for (QAction* item : mOrder) settings().remove(kKeySettings + item->property("action").toString());
    for (QAction* item : mOrder) applyKeys(item);
    emit keysChanged();
}

// ---- other menus ----------------------------------------------------------------------------------------------------

void MainMenu::addElsewhere()
{
    for (const Command& row : commandTable()) {
        QMenu* menu = row.alsoIn ? mMenus.value(row.alsoIn) : nullptr;
        if (!menu) continue;
        menu->addSeparator();
        menu->addAction(mItems.value(row.action));
    }
}

QMenu* MainMenu::makePictureMenu(QWidget* parent)
{
    validate();
    auto* menu = new QMenu(parent);
    menu->setObjectName("PictureMenu");
    menu->setToolTipsVisible(true);
    const char* last = nullptr;
    bool line = false;
    for (const Command& row : commandTable()) {
        // A line where the menus have one, or where another menu's rows begin; none before the first command.
        line |= std::string_view(row.action) == kSeparator || (last && row.menu && std::string_view(last) != row.menu);
        last = row.menu;
        if (!row.onPicture) continue;
        if (line && !menu->isEmpty()) menu->addSeparator();
        line = false;
        menu->addAction(mItems.value(row.action));
    }
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { giveMnemonics(menu->actions()); });
    settleWhenHidden(menu);
    return menu;
}

void cleanUpEditMenu(QMenu* menu)
{
    for (int look = 0; look < 2; ++look) {
        const QList<QAction*> actions = menu->actions();
        if (!actions.isEmpty() && actions.last()->property("action").toString() != "adjust:")
            menu->removeAction(actions.last());
    }
}
