// SPDX-License-Identifier: GPL-3.0-or-later
/// Commands for menus, windows, controls and panels.
#include "app/MainMenu.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "base/ScriptWords.h"
#include "desktop/ColorWell.h"
#include "desktop/Panels.h"
#include "script/ScriptDriver.h"
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDial>
#include <QDoubleSpinBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTextEdit>

using namespace zp;

namespace
{

QString colourText(Color c)
{
    QString name = QString::asprintf("#%02x%02x%02x", colorByte(c.red), colorByte(c.green), colorByte(c.blue));
    if (c.alpha < 1) name += QString::asprintf("%02x", colorByte(c.alpha));
    return name;
}

QJsonValue valueOf(const QWidget* widget, QJsonObject& answer)
{
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        QJsonArray items;
        for (int i = 0; i < box->count(); ++i) items.append(box->itemText(i));
        answer["items"] = items;
        answer["index"] = box->currentIndex();
        return box->currentText();
    }
    if (const auto* bar = qobject_cast<const QProgressBar*>(widget)) {
        answer["min"] = bar->minimum();
        answer["max"] = bar->maximum();
        return bar->value();
    }
    if (const auto* slider = qobject_cast<const QAbstractSlider*>(widget)) {
        answer["min"] = slider->minimum();
        answer["max"] = slider->maximum();
        return slider->value();
    }
    if (const auto* spin = qobject_cast<const QSpinBox*>(widget)) return spin->value();
    if (const auto* number = qobject_cast<const QDoubleSpinBox*>(widget)) return number->value();
    if (const auto* line = qobject_cast<const QLineEdit*>(widget)) {
        bool isNumber = false;
        const double value = line->text().toDouble(&isNumber);
        if (line->property("numeric").toBool() && isNumber) return value;
        return line->text();
    }
    if (const auto* edit = qobject_cast<const QTextEdit*>(widget)) return edit->toPlainText();
    if (const auto* plain = qobject_cast<const QPlainTextEdit*>(widget)) return plain->toPlainText();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
    if (const auto* well = qobject_cast<const ColorWell*>(widget)) return colourText(well->color());
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->isCheckable() ? QJsonValue(button->isChecked() ? 1 : 0) : QJsonValue(button->text());
    return QJsonValue();
}

/// @return an error, empty when done
QString setValue(QWidget* widget, const std::string& word)
{
    bool isNumber = false;
    const double number = text(word).toDouble(&isNumber);
    if (auto* box = qobject_cast<QComboBox*>(widget)) {
        const int index =
            !word.empty() && word[0] == '#' ? text(word.substr(1)).toInt(&isNumber) : box->findText(text(word));
        if (index < 0 || index >= box->count()) return QString("no item %1").arg(text(word));
        box->setCurrentIndex(index);
        emit box->activated(index);
        return {};
    }
    if (auto* well = qobject_cast<ColorWell*>(widget)) {
        const std::optional<Color> colour = colorOfScriptWord(word);
        if (!colour) return "not a colour";
        well->chooseColor(*colour);
        return {};
    }
    if (auto* slider = qobject_cast<QAbstractSlider*>(widget)) {
        if (!isNumber) return "not a number";
        slider->setValue(int(std::lround(number)));
        emit slider->sliderReleased();
        return {};
    }
    if (auto* spin = qobject_cast<QSpinBox*>(widget)) {
        if (!isNumber) return "not a number";
        spin->setValue(int(std::clamp(number, -2e9, 2e9)));
        emit spin->editingFinished();
        return {};
    }
    if (auto* spin = qobject_cast<QDoubleSpinBox*>(widget)) {
        if (!isNumber) return "not a number";
        spin->setValue(number);
        emit spin->editingFinished();
        return {};
    }
    if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        if (line->isReadOnly()) return "read only";
        line->setText(text(word));
        emit line->textEdited(line->text());
        emit line->editingFinished();
        return {};
    }
    if (auto* edit = qobject_cast<QTextEdit*>(widget)) {
        edit->setPlainText(text(word));
        return {};
    }
    if (auto* plain = qobject_cast<QPlainTextEdit*>(widget)) {
        plain->setPlainText(text(word));
        return {};
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget); button && button->isCheckable()) {
        if (!isNumber) return "0 or 1";
        if (button->isChecked() != (number != 0)) button->click();
        return {};
    }
    return "not a control that can be set";
}

} // namespace

QWidget* ScriptDriver::outlet(const std::string& name) const
{
    // The tool pop-up is an outlet of two owners.
    const QString wanted = name == "mToolsPopUp" ? QString("mToolPopUp") : text(name);
    for (QWidget* window : windowsInFront())
        if (auto* found = window->findChild<QWidget*>(wanted)) return found;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = window->findChild<QWidget*>(wanted)) return found;
    throw Failure{QString("no outlet %1").arg(text(name))};
}

void ScriptDriver::addMenuCommands()
{
    addWork("menu", [this](const Words& w) {
        if (w.size() != 2) throw Failure{"menu ACTION"};
        if (visibleModals() > 0) throw Failure{"disabled"};
        const QString error = mController.menu().choose(text(w[1]));
        if (!error.isEmpty()) throw Failure{error};
        return QJsonObject{};
    });
    addImmediate("menus", [this](const Words&) {
        MainMenu& menu = mController.menu();
        menu.validate();
        QJsonArray items;
        for (QAction* item : menu.items()) {
            items.append(QJsonObject{{"menu", menu.menuTitleOf(item)},
                                     {"action", item->property("action").toString()},
                                     {"title", item->text()},
                                     {"enabled", item->isEnabled() && visibleModals() == 0},
                                     {"checked", item->isChecked()},
                                     {"shortcut", item->shortcut().toString()}});
            item->setEnabled(true); // as after a menu has closed
        }
        return QJsonObject{{"items", items}};
    });
    addImmediate("windows", [this](const Words&) {
        QJsonArray windows;
        for (QWidget* window : windowsInFront())
            windows.append(QJsonObject{{"name", window->objectName()},
                                       {"title", shownTitle(*window)},
                                       {"modal", window->isModal()},
                                       {"key", window->isActiveWindow()}});
        return QJsonObject{{"windows", windows}};
    });
    addWork("click", [this](const Words& w) {
        if (w.size() != 2) throw Failure{"click NAME"};
        const QString name = text(w[1]);
        bool found = false;
        for (QWidget* window : reachableWindows())
            for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
                if (button->objectName() != name && button->property("action").toString() != name) continue;
                found = true;
                if (!button->isVisible() || !button->isEnabled()) continue;
                button->click();
                return QJsonObject{};
            }
        throw Failure{found ? "disabled" : "no such button"};
    });
    addWork("set", [this](const Words& w) {
        if (w.size() != 3) throw Failure{"set OUTLET VALUE"};
        QWidget* widget = outlet(w[1]);
        if (!widget->isEnabled()) throw Failure{"disabled"};
        const QString error = setValue(widget, w[2]);
        if (!error.isEmpty()) throw Failure{error};
        return QJsonObject{};
    });
    addImmediate("get", [this](const Words& w) {
        if (w.size() != 2) throw Failure{"get OUTLET"};
        const QWidget* widget = outlet(w[1]);
        QJsonObject fields;
        const QJsonValue value = valueOf(widget, fields);
        fields["value"] = value;
        fields["enabled"] = widget->isEnabled();
        fields["visible"] = widget->isVisible();
        return fields;
    });
    addImmediate("alert", [](const Words&) {
        const std::optional<AlertState> alert = currentAlert();
        if (!alert) return QJsonObject{{"alert", QJsonValue::Null}};
        return QJsonObject{{"alert", QJsonObject{{"title", alert->title},
                                                 {"message", alert->message},
                                                 {"buttons", QJsonArray::fromStringList(alert->buttons)}}}};
    });
    addWork("answer", [](const Words& w) {
        if (w.size() != 2) throw Failure{"answer BUTTON"};
        if (!currentAlert()) throw Failure{"no alert"};
        if (!answerAlert(text(w[1]))) throw Failure{"no such button"};
        return QJsonObject{};
    });
    addImmediate("choose", [](const Words& w) {
        if (w.size() > 2) throw Failure{"choose PATH"};
        queuePanelChoice(w.size() == 2 ? std::optional(w[1]) : std::nullopt);
        return QJsonObject{};
    });
    addImmediate("panel", [](const Words&) {
        const std::optional<PanelRequest> panel = lastPanel();
        if (!panel) return QJsonObject{{"panel", QJsonValue::Null}};
        return QJsonObject{{"panel", QJsonObject{{"kind", panel->kind},
                                                 {"title", panel->title},
                                                 {"prompt", panel->prompt},
                                                 {"directory", text(displayName(panel->directory))},
                                                 {"name", text(displayName(panel->name))},
                                                 {"types", QJsonArray::fromStringList(panel->types)}}}};
    });
}
