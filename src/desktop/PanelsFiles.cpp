// SPDX-License-Identifier: GPL-3.0-or-later
/// Open, save and folder panels: the desktop's own for people, a queue of answers for scripts.
#include "base/Folders.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/PanelsState.h"
#include "desktop/Settings.h"
#include <QApplication>
#include <QFileDialog>
#include <QUrl>
#include <deque>

namespace zp
{

namespace
{

bool automated = false;
std::deque<std::optional<std::string>> choices;
std::optional<PanelRequest> last;

/// Answered without a window: the next queued choice, or cancelled.
std::optional<std::string> nextChoice()
{
    if (choices.empty()) return std::nullopt;
    const std::optional<std::string> choice = choices.front();
    choices.pop_front();
    return choice;
}

/// "Pictures (*.tiff *.tif …)": each type with the other spelling that its files go by.
QStringList nameFilters(const QStringList& types)
{
    if (types.isEmpty()) return {};
    QStringList patterns;
    for (const QString& type : types) {
        patterns << "*." + type;
        if (type == "tiff") patterns << "*.tif";
        if (type == "jpg") patterns << "*.jpeg";
    }
    return {QCoreApplication::translate("Panels", "Pictures") + " (" + patterns.join(' ') + ")",
            QCoreApplication::translate("Panels", "All files") + " (*)"};
}

void prepare(QFileDialog& dialog, const PanelRequest& request)
{
    dialog.setObjectName("FilePanel");
    if (!request.title.isEmpty()) dialog.setWindowTitle(request.title);
    if (!request.prompt.isEmpty()) dialog.setLabelText(QFileDialog::Accept, request.prompt);
    // Where the user was last with this kind of panel, unless the caller knows better.
    QString folder = settings().value("panels/" + request.kind).toString();
    if (!request.directory.empty()) folder = textFromPath(request.directory);
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) folder = textFromPath(homeFolder());
    dialog.setDirectory(folder);
    if (QGuiApplication::platformName() == "offscreen") dialog.setOption(QFileDialog::DontUseNativeDialog);
}

std::optional<std::string> run(QFileDialog& dialog, const PanelRequest& request)
{
    dialog.setWindowModality(dialog.parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedUrls().isEmpty()) return std::nullopt;
    std::string path = pathFromUrl(dialog.selectedUrls().constFirst());
    if (path.empty()) return std::nullopt;
    settings().setValue("panels/" + request.kind, textFromPath(request.kind == "folder" ? path : folderOfPath(path)));
    return path;
}

QWidget* parentForPanel()
{
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return QApplication::activeWindow();
}

} // namespace

bool panelsAutomated() { return automated; }

std::optional<std::string> nextPanelChoice() { return nextChoice(); }

std::optional<std::string> runOpenPanel(PanelRequest request)
{
    request.kind = "open";
    last = request;
    if (automated) return nextChoice();
    QFileDialog dialog(parentForPanel());
    dialog.setFileMode(QFileDialog::ExistingFile);
    prepare(dialog, request);
    if (const QStringList filters = nameFilters(request.types); !filters.isEmpty()) dialog.setNameFilters(filters);
    return run(dialog, request);
}

std::optional<std::string> runSavePanel(PanelRequest request)
{
    request.kind = "save";
    last = request;
    if (automated) return nextChoice();
    QFileDialog dialog(parentForPanel());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    prepare(dialog, request);
    if (const QStringList filters = nameFilters(request.types); !filters.isEmpty()) dialog.setNameFilters(filters);
    if (!request.types.isEmpty()) dialog.setDefaultSuffix(request.types.constFirst());
    if (!request.name.empty()) dialog.selectFile(textFromPath(request.name));
    return run(dialog, request);
}

std::optional<std::string> runFolderPanel(PanelRequest request)
{
    request.kind = "folder";
    last = request;
    if (automated) return nextChoice();
    QFileDialog dialog(parentForPanel());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    prepare(dialog, request);
    return run(dialog, request);
}

void setPanelsAutomated(bool on)
{
    automated = on;
    if (!on) choices.clear();
}

void queuePanelChoice(std::optional<std::string> path)
{
    automated = true;
    choices.push_back(std::move(path));
}

std::optional<PanelRequest> lastPanel() { return last; }

} // namespace zp
