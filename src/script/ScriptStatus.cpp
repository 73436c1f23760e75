// SPDX-License-Identifier: GPL-3.0-or-later
/// Commands that read what the program says by itself: status line, title, the bar over the picture.
#include "app/MainWindow.h"
#include "app/StatusLine.h"
#include "app/ZPAppController.h"
#include "base/ScriptWords.h"
#include "desktop/NoticeBar.h"
#include "document/Document.h"
#include "script/ScriptDriver.h"
#include <QJsonArray>
#include <QLabel>

using namespace zp;

QString shownTitle(const QWidget& window)
{
    // A doubled placeholder is a name that holds those characters, as the toolkit has it.
    QString title = window.windowTitle();
    title.replace("[*][*]", QChar(QChar::Null));
    title.replace("[*]", window.isWindowModified() ? "*" : "");
    return title.replace(QChar(QChar::Null), "[*]");
}

void ScriptDriver::addStatusCommands()
{
    addImmediate("commands", [this](const Words&) {
        QJsonArray names;
        for (const auto& [name, run] : mCommands) names.append(text(name));
        return QJsonObject{{"commands", names}};
    });
    addImmediate("status", [this](const Words&) {
        const MainWindow& window = mController.window();
        const auto shown = [&window](const char* field) { return window.findChild<QLabel*>(field)->text(); };
        return QJsonObject{{"title", shownTitle(window)},
                           {"modified", mDocument.isModified()},
                           {"selection", shown("mSelectionField")},
                           {"pointer", shown("mPointerField")},
                           {"picture", shown("mImageField")},
                           {"message", mDocument.message()}, // the label cuts a long one to the room there is
                           {"hint", window.findChild<StatusLine*>()->hint()}};
    });
    addImmediate("notice", [this](const Words&) {
        const auto* bar = mController.window().findChild<NoticeBar*>();
        if (bar->isHidden()) return QJsonObject{{"notice", QJsonValue::Null}};
        return QJsonObject{
            {"notice", QJsonObject{{"text", bar->text()}, {"buttons", QJsonArray::fromStringList(bar->buttons())}}}};
    });
    addWork("click-notice", [this](const Words& w) {
        if (w.size() != 2) throw Failure{"click-notice BUTTON"};
        if (visibleModals() > 0) throw Failure{"disabled"};
        if (!mController.window().findChild<NoticeBar*>()->press(text(w[1]))) throw Failure{"no such button"};
        return QJsonObject{};
    });
}
