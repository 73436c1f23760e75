// SPDX-License-Identifier: GPL-3.0-or-later
/// Open, save and folder panels: the desktop's own for people, a queue of answers for scripts.
#include "base/Folders.h"
#include "codecs/FileNames.h"
#include "codecs/ForeignDecoder.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/PanelsState.h"
#include "desktop/Portal.h"
#include "desktop/Settings.h"
#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
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
    // The toolkit names its own panels alone; those of a desktop would have no title.
    dialog.setWindowTitle(!request.title.isEmpty()   ? request.title
                          : request.kind == "save"   ? QCoreApplication::translate("Panels", "Save Image")
                          : request.kind == "folder" ? QCoreApplication::translate("Panels", "Choose Folder")
                                                     : QCoreApplication::translate("Panels", "Open Image"));
    if (!request.prompt.isEmpty()) dialog.setLabelText(QFileDialog::Accept, request.prompt);
    // Where the user was last with this kind of panel, unless the caller knows better.
    QString folder = settings().value("panels/" + request.kind).toString();
    if (!request.directory.empty()) folder = textFromPath(request.directory);
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) folder = textFromPath(homeFolder());
    dialog.setDirectory(folder);
    if (QGuiApplication::platformName() == "offscreen" || !desktopHasFilePanels())
        dialog.setOption(QFileDialog::DontUseNativeDialog);
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

/// The name that will be written for a typed one.
std::string requiredName(const std::string& typed, const PanelRequest& request)
{
    const SaveFormat format = formatOfExtension(request.extension);
    return format == SaveFormat::None ? typed : nameToWrite(typed, format);
}

/// A save panel that turns the typed name into the one that will be written before it asks whether to overwrite.
class SavePanel : public QFileDialog
{
public:
    SavePanel(QWidget* parent, const PanelRequest& request) : QFileDialog(parent), mRequest(request)
    {
        if (request.quality > 0) addQuality(request.quality);
    }
    int quality() const { return mQuality ? mQuality->value() : 0; }

    void accept() override
    {
        // The desktop's own panels have no such field: their answer is looked at when it is here.
        auto* field = findChild<QLineEdit*>("fileNameEdit");
        if (field && !field->text().isEmpty() && !QFileInfo(directory().filePath(field->text())).isDir())
            field->setText(textFromPath(requiredName(pathFromText(field->text()), mRequest)));
        QFileDialog::accept();
    }

private:
    void addQuality(int value)
    {
        // The desktop's own panels cannot be given a row.
        setOption(DontUseNativeDialog);
        auto* grid = qobject_cast<QGridLayout*>(layout());
        if (!grid) return;
        mQuality = new QSpinBox(this);
        mQuality->setObjectName("mJPEGQuality");
        auto* slider = new QSlider(Qt::Horizontal, this);
        slider->setRange(1, 100);
        mQuality->setRange(1, 100);
        mQuality->setAccessibleName(QCoreApplication::translate("Panels", "Quality"));
        connect(slider, &QSlider::valueChanged, mQuality, &QSpinBox::setValue);
        connect(mQuality, &QSpinBox::valueChanged, slider, &QSlider::setValue);
        mQuality->setValue(value);
        auto* row = new QHBoxLayout;
        row->addWidget(slider, 1);
        row->addWidget(mQuality);
        const int line = grid->rowCount();
        grid->addWidget(new QLabel(QCoreApplication::translate("Panels", "Quality:"), this), line, 0);
        grid->addLayout(row, line, 1);
    }

    PanelRequest mRequest;
    QSpinBox* mQuality = nullptr;
};

/// One round of the panel. @param typed  the name as it was answered, before it was made right
std::optional<SaveAnswer> askForName(const PanelRequest& request, QWidget* parent, std::string& typed)
{
    if (automated) {
        const std::optional<std::string> choice = nextChoice();
        if (!choice) return std::nullopt;
        typed = *choice;
        return SaveAnswer{requiredName(typed, request), request.quality};
    }
    SavePanel dialog(parent, request);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    prepare(dialog, request);
    if (const QStringList filters = nameFilters(request.types); !filters.isEmpty()) dialog.setNameFilters(filters);
    if (!request.types.isEmpty()) dialog.setDefaultSuffix(request.types.constFirst());
    if (!request.name.empty()) dialog.selectFile(textFromPath(request.name));
    const std::optional<std::string> path = run(dialog, request);
    if (!path) return std::nullopt;
    typed = *path;
    return SaveAnswer{requiredName(typed, request), dialog.quality()};
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
    codec::readyForeignDecoder();
    QFileDialog dialog(parentForPanel());
    dialog.setFileMode(QFileDialog::ExistingFile);
    prepare(dialog, request);
    if (const QStringList filters = nameFilters(request.types); !filters.isEmpty()) dialog.setNameFilters(filters);
    return run(dialog, request);
}

std::optional<SaveAnswer> runSavePanel(PanelRequest request)
{
    request.kind = "save";
    QWidget* const parent = parentForPanel();
    for (;;) {
        last = request;
        std::string typed;
        const std::optional<SaveAnswer> answer = askForName(request, parent, typed);
        if (!answer || answer->path == typed || !fileExists(answer->path) || askToOverwrite()) return answer;
        request.directory = folderOfPath(answer->path);
        request.name = lastPathComponent(answer->path);
        request.quality = answer->quality;
    }
}

bool askToOverwrite()
{
    return runAlert(QCoreApplication::translate("Panels", "File already exists"),
                    QCoreApplication::translate("Panels", "Do you want to overwrite the existing file?"),
                    {QCoreApplication::translate("Panels", "Yes"), QCoreApplication::translate("Panels", "No")}) == 0;
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
