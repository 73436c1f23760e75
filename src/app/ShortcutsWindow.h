// SPDX-License-Identifier: GPL-3.0-or-later
/// The sheet of all commands and tools with their keys, which can be changed there.
#pragma once
#include "desktop/WindowPlaces.h"

class MainMenu;
class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// Made from the command table and the table of tools each time it is shown; what is changed holds at once.
class ShortcutsWindow : public zp::SideWindow
{
    Q_OBJECT

public:
    /// @param menu  must outlive the window
    explicit ShortcutsWindow(MainMenu& menu, QWidget* parent = nullptr);
    void showWindow();

private:
    void fill();
    void filter(const QString& text);
    void showChosen();
    void showConflict();
    void change(const QKeySequence& keys);
    QString chosenAction() const;

    MainMenu& mMenu;
    QLineEdit* mFilter;
    QTreeWidget* mTree;
    QLabel* mConflict;
    QKeySequenceEdit* mKeys;
    QPushButton *mSetButton, *mGivenButton, *mAllGivenButton;
};
