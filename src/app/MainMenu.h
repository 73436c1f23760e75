// SPDX-License-Identifier: GPL-3.0-or-later
/// The menu bar: every command by its action's name, with the shortcut Linux users expect.
#pragma once
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <functional>

class QAction;
class QMenu;
class QMenuBar;
namespace zp
{
struct Command;
}

/// Builds the menus and keeps their items validated. Items carry their action's name as the dynamic property "action".
class MainMenu : public QObject
{
    Q_OBJECT

public:
    /// Answers whether the command can be chosen now, and may give the item another title.
    using Validator = std::function<bool(const QString& action, QString* title)>;
    using Performer = std::function<void(const QString& action)>;
    /// @param prepare  before a chosen command is validated: what is in progress ends first
    MainMenu(QMenuBar* bar, Validator validate, Performer prepare, Performer perform);

    QAction* item(const QString& action) const { return mItems.value(action); }
    /// The first of its keys as text; empty for none.
    QString keyNameOf(const QString& action) const;
    /// The item that has that shortcut; null for none.
    QAction* itemOfKeys(const QKeySequence& keys) const;
    const QList<QAction*>& items() const { return mOrder; }
    QMenu* menu(const QString& title) const { return mMenus.value(title); }
    QString menuTitleOf(const QAction* item) const;
    /// The table's own title, whatever the item says at the moment ("Undo", not "Undo Fill").
    static QString givenTitleOf(const QAction* item);
    /// Enabled states and titles as they are now.
    void validate();
    /// Chooses the item if it is enabled. @return an error in a word or two, empty when chosen
    QString choose(const QString& action);
    /// Gives an item a check mark that says what @p isOn answers whenever the menus are validated.
    void setState(const QString& action, std::function<bool()> isOn);
    /// Why the item cannot be chosen now, in a sentence; empty when it can.
    using Reason = std::function<QString(const QString& action)>;
    void setReason(Reason why) { mWhyNot = std::move(why); }
    /// Other keys than the table's, kept in the settings.
    void setKeys(const QString& action, const QList<QKeySequence>& keys);
    /// The table's keys again. What another item has taken of them stays there.
    void giveKeysBack(const QString& action);
    void giveAllKeysBack();
    /// Adds the items that also stand in other menus than their own, at the ends of these.
    void addElsewhere();
    /// The commands of the table that belong over the picture, validated. The caller shows and deletes it.
    QMenu* makePictureMenu(QWidget* parent);
    QMenu* recentMenu() const { return mRecent; }

signals:
    void keysChanged();

private:
    void validate(QAction* item);
    void addRow(QMenu& menu, const zp::Command& row);
    /// Letters for what stands together in one menu, or in the bar.
    void giveMnemonics(const QList<QAction*>& actions);
    void settleWhenHidden(QMenu* menu);
    void choose(QAction* item);
    void applyKeys(QAction* item);
    Validator mValidate;
    Performer mPrepare, mPerform;
    Reason mWhyNot;
    QHash<QString, QAction*> mItems;
    QHash<QString, QMenu*> mMenus;
    QHash<QString, std::function<bool()>> mStates;
    QList<QAction*> mOrder;
    QMenu* mRecent = nullptr;
};

/// Removes what a desktop appended behind "Adjust…": looks at the last item twice and removes it when it is another.
void cleanUpEditMenu(QMenu* menu);
