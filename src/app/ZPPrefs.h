// SPDX-License-Identifier: GPL-3.0-or-later
/// The preferences window: units, appearance, sounds, and which key plays which role.
#pragma once
#include "desktop/WindowPlaces.h"
#include <memory>

class QComboBox;
namespace Ui
{
class Prefs;
}

/// One instance, made on first use, on the main thread. What is chosen holds at once and is kept in the settings.
class ZPPrefs : public zp::SideWindow
{
    Q_OBJECT

public:
    enum Unit { Pixels, Centimeters, Inches, Points };

    static ZPPrefs* sharedPrefs();
    ~ZPPrefs() override;
    void showWindow();

    /// The unit chosen; pixels until another was.
    static Unit unit();
    /// The page that the About box opens.
    static QString projectPage();
    /// Makes what is kept in the settings hold: once, at start.
    static void applyStored();

signals:
    void unitChanged();
    void shortcutsWanted();

private:
    ZPPrefs();
    void showStored();
    void chooseKey(int role, int key);

    std::unique_ptr<Ui::Prefs> mUi;
    QComboBox* mUnitPopUp = nullptr;
};
