// SPDX-License-Identifier: GPL-3.0-or-later
/// The preferences' controls and the settings behind them.
#include "app/ZPPrefs.h"
#include "app/CommandLine.h"
#include "desktop/Desktop.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Panels.h"
#include "desktop/Settings.h"
#include "desktop/Sounds.h"
#include "ui_Prefs.h"
#include <QCoreApplication>
#include <QSignalBlocker>
#include <QUrl>
#include <algorithm>
#include <array>

using namespace zp;

namespace
{

ZPPrefs* shared = nullptr;

constexpr const char* kUnitSetting = "unit";
constexpr const char* kSchemeSetting = "colorScheme";
constexpr const char* kSoundsSetting = "sounds";
constexpr const char* kPageSetting = "projectPage";
constexpr const char* kDefaultPage = "https://orvanta.example/zelpane";

const QStringList kUnits{"pixels", "centimeters", "inches", "points"};
const QStringList kSchemes{"auto", "light", "dark"};
// In the order of the roles' tags: Option, Control, Command.
const QStringList kRoleSettings{"keys/option", "keys/control", "keys/command"};
const QStringList kKeys{"alt", "ctrl", "meta"};

std::array<int, 3> keysOfRoles()
{
    std::array<int, 3> keys{};
    for (int role = 0; role < 3; ++role) {
        const int key = int(kKeys.indexOf(settings().value(kRoleSettings[role], kKeys[role]).toString()));
        keys[std::size_t(role)] = key < 0 ? role : key;
    }
    return keys;
}

} // namespace

ZPPrefs* ZPPrefs::sharedPrefs()
{
    if (!shared) {
        shared = new ZPPrefs;
        static bool once = (qAddPostRoutine([] { delete shared; }), true); // before the application object goes
        (void)once;
    }
    return shared;
}

ZPPrefs::ZPPrefs() : mUi(std::make_unique<Ui::Prefs>())
{
    mUi->setupUi(this);
    mUnitPopUp = mUi->mUnitPopUp;
    for (QComboBox* box : {mUi->mOptionKeyPopUp, mUi->mControlKeyPopUp, mUi->mCommandKeyPopUp}) {
        box->addItems({tr("Alt"), tr("Ctrl"), tr("Super")});
        connect(box, &QComboBox::currentIndexChanged, this,
                [this, box](int key) { chooseKey(box->property("tag").toInt(), key); });
    }
    showStored();

    connect(mUnitPopUp, &QComboBox::currentIndexChanged, this, [this](int unit) {
        settings().setValue(kUnitSetting, kUnits.value(unit));
        emit unitChanged();
    });
    connect(mUi->mSchemePopUp, &QComboBox::currentIndexChanged, this, [](int scheme) {
        settings().setValue(kSchemeSetting, kSchemes.value(scheme));
        applyColorScheme();
    });
    connect(mUi->mSoundsCheck, &QCheckBox::toggled, this, [](bool on) {
        settings().setValue(kSoundsSetting, on);
        setSoundsAudible(on);
    });
    connect(mUi->mPageField, &QLineEdit::editingFinished, this, [this] {
        const QString page = mUi->mPageField->text().trimmed();
        if (page.isEmpty() || page == kDefaultPage)
            settings().remove(kPageSetting);
        else
            settings().setValue(kPageSetting, page);
        mUi->mPageField->setText(projectPage());
    });
    connect(mUi->mKeepWindowsCheck, &QCheckBox::toggled, this, [](bool on) { setWindowsKept(on); });
    connect(mUi->mShortcutsButton, &QPushButton::clicked, this, &ZPPrefs::shortcutsWanted);
    connect(mUi->mCloseButton, &QPushButton::clicked, this, &QWidget::close);
    if (!setFrameAutosaveName(this, "Prefs")) centerWindow(this);
}

ZPPrefs::~ZPPrefs()
{
    if (shared == this) shared = nullptr;
}

void ZPPrefs::showWindow()
{
    showStored();
    bringToFront(this);
}

void ZPPrefs::showStored()
{
    const auto choose = [](QComboBox* box, int index) {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(std::max(index, 0));
    };
    choose(mUnitPopUp, int(unit()));
    choose(mUi->mSchemePopUp, int(kSchemes.indexOf(settings().value(kSchemeSetting, "auto").toString())));
    const auto keys = keysOfRoles();
    choose(mUi->mOptionKeyPopUp, keys[0]);
    choose(mUi->mControlKeyPopUp, keys[1]);
    choose(mUi->mCommandKeyPopUp, keys[2]);
    const QSignalBlocker quiet(mUi->mSoundsCheck), quietWindows(mUi->mKeepWindowsCheck);
    mUi->mKeepWindowsCheck->setChecked(windowsAreKept());
    mUi->mSoundsCheck->setChecked(settings().value(kSoundsSetting, true).toBool());
    mUi->mPageField->setText(projectPage());
}

void ZPPrefs::chooseKey(int role, int key)
{
    // The role that had this key takes the one that becomes free: no key is without a role.
    std::array<int, 3> keys = keysOfRoles();
    const int old = keys[std::size_t(role)];
    for (int& other : keys)
        if (other == key) other = old;
    keys[std::size_t(role)] = key;
    const auto name = [&](std::size_t i) { return kKeys[keys[i]].toLatin1(); };
    setKeyRoles(name(0).constData(), name(1).constData(), name(2).constData());
    showStored();
}

ZPPrefs::Unit ZPPrefs::unit()
{
    return Unit(std::max<qsizetype>(kUnits.indexOf(settings().value(kUnitSetting).toString()), 0));
}

QString ZPPrefs::projectPage() { return settings().value(kPageSetting, kDefaultPage).toString(); }

void ZPPrefs::applyStored() { setSoundsAudible(settings().value(kSoundsSetting, true).toBool()); }
