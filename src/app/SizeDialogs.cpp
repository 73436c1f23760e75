// SPDX-License-Identifier: GPL-3.0-or-later
/// Controllers of the new-image, resize and save-name dialogs.
#include "app/SizeDialogs.h"
#include "app/SizeArithmetic.h"
#include "app/StatusLine.h"
#include "app/ZPPrefs.h"
#include "base/Folders.h"
#include "codecs/FileNames.h"
#include "codecs/ImageImporter.h"
#include "desktop/Panels.h"
#include "desktop/Pasteboard.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "operations/Files.h"
#include "ui_Name.h"
#include "ui_New.h"
#include "ui_Resize.h"
#include <QDialog>
#include <QDoubleValidator>
#include <QFile>
#include <QLocale>
#include <QSignalBlocker>

using namespace zp;

namespace
{

/// A float as its field shows it: no more digits than single precision has.
QString percentText(float value) { return QLocale().toString(double(value), 'g', 7); }

class NewDialog : public QDialog
{
public:
    explicit NewDialog(QWidget* parent) : QDialog(parent)
    {
        ui.setupUi(this);
        for (QSpinBox* field : {ui.mNew_Width, ui.mNew_Height, ui.mNew_Resolution})
            connect(field, &QSpinBox::valueChanged, this, [this] { updateFileSize(); });
        ui.mNew_InUnit->setVisible(ZPPrefs::unit() != ZPPrefs::Pixels);
        connect(ui.mNew_NewButton, &QPushButton::clicked, this, [this] {
            // Refused, it stays open with its numbers.
            if (make({float(ui.mNew_Width->value()), float(ui.mNew_Height->value())})) accept();
        });
        connect(ui.mNew_CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    }
    void updateFileSize()
    {
        ui.mNew_FileSize->setText(
            QString::fromStdString(fileSizeEstimate(ui.mNew_Width->value(), ui.mNew_Height->value())));
        const double dpi = ui.mNew_Resolution->value();
        ui.mNew_InUnit->setText(
            extentInWords({float(ui.mNew_Width->value()), float(ui.mNew_Height->value())}, dpi, dpi));
    }
    Ui::New ui;
    std::function<bool(Size)> make; ///< @return whether the picture was made
};

class ResizeDialog : public QDialog
{
public:
    ResizeDialog(QWidget* parent, const Document& document) : QDialog(parent), mOriginal(document.picture().size())
    {
        if (const auto bitmap = document.picture().bitmap())
            mXDpi = bitmap->properties.xDpi, mYDpi = bitmap->properties.yDpi;
        ui.setupUi(this);
        for (QLineEdit* field : {ui.mResize_Width_P, ui.mResize_Height_P}) {
            field->setValidator(new QDoubleValidator(field));
            connect(field, &QLineEdit::textEdited, this, [this, field] { resizeSet(field->property("tag").toInt()); });
        }
        for (QSpinBox* field : {ui.mResize_Width, ui.mResize_Height})
            connect(field, &QSpinBox::valueChanged, this, [this, field] { resizeSet(field->property("tag").toInt()); });
        const auto follow = [this] {
            ui.mResize_Place->setEnabled(!ui.mResize_ScaleImage->isChecked());
            ui.mResize_SharpPixels->setEnabled(ui.mResize_ScaleImage->isChecked());
        };
        connect(ui.mResize_ScaleImage, &QCheckBox::toggled, this, follow);
        follow();
        connect(ui.mResize_OKButton, &QPushButton::clicked, this, &QDialog::accept);
        connect(ui.mResize_CancelButton, &QPushButton::clicked, this, &QDialog::reject);
        show(ResizeFields{int(mOriginal.width), int(mOriginal.height), 100, 100}, 0);
    }

    Ui::Resize ui;

private:
    void resizeSet(int tag)
    {
        const ResizeFields now{ui.mResize_Width->value(), ui.mResize_Height->value(),
                               QLocale().toFloat(ui.mResize_Width_P->text()),
                               QLocale().toFloat(ui.mResize_Height_P->text())};
        show(linkedResizeFields(now, tag, mOriginal.width, mOriginal.height, ui.mResize_KeepAspectRatio->isChecked()),
             tag);
    }
    void show(const ResizeFields& f, int changed)
    {
        const QSignalBlocker quietWidth(ui.mResize_Width), quietHeight(ui.mResize_Height);
        // The field under the user's hands keeps its text as typed.
        if (changed != int(ResizeTag::Width)) ui.mResize_Width->setValue(f.width);
        if (changed != int(ResizeTag::Height)) ui.mResize_Height->setValue(f.height);
        if (changed != int(ResizeTag::WidthPercent)) ui.mResize_Width_P->setText(percentText(f.widthPercent));
        if (changed != int(ResizeTag::HeightPercent)) ui.mResize_Height_P->setText(percentText(f.heightPercent));
        ui.mResize_FileSize->setText(
            QString::fromStdString(fileSizeEstimate(ui.mResize_Width->value(), ui.mResize_Height->value())));
        ui.mResize_InUnit->setText(
            extentInWords({float(ui.mResize_Width->value()), float(ui.mResize_Height->value())}, mXDpi, mYDpi));
        ui.mResize_InUnit->setVisible(ZPPrefs::unit() != ZPPrefs::Pixels);
    }
    Size mOriginal;
    double mXDpi = 0, mYDpi = 0;
};

class NameDialog : public QDialog
{
    Q_DECLARE_TR_FUNCTIONS(NameDialog)

public:
    explicit NameDialog(QWidget* parent) : QDialog(parent)
    {
        ui.setupUi(this);
        connect(ui.mName_SaveButton, &QPushButton::clicked, this, &NameDialog::save);
        connect(ui.mName_CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    }
    std::string typedPath() const
    {
        return pathByAppending(libraryFolder(), QFile::encodeName(ui.mName_Name_Field->text()).toStdString());
    }
    /// What will be written.
    std::string targetPath() const { return nameToWrite(typedPath(), SaveFormat::TIFF); }
    Ui::Name ui;

private:
    void save()
    {
        const QString name = ui.mName_Name_Field->text();
        // A name, not a way to another folder.
        if (name.isEmpty() || name.contains('/') || name == "." || name == "..") {
            runAlert(tr("Please enter a proper file name."), tr("File extension must be .tiff."), {tr("OK")});
            return;
        }
        if ((fileExists(typedPath()) || fileExists(targetPath())) && !askToOverwrite()) return;
        accept();
    }
};

} // namespace

void runNewDialog(Document& document, QWidget* parent, const std::function<void()>& beforeActing)
{
    NewDialog dialog(parent);
    static QSize last(640, 480); // the dialog opens with what was asked for last
    dialog.ui.mNew_Width->setValue(last.width());
    dialog.ui.mNew_Height->setValue(last.height());
    if (Pasteboard::general().hasImageData()) {
        const std::vector<std::uint8_t> data = Pasteboard::general().imageData();
        if (const ImportedImage pasted = importImage(data); pasted.bitmap) {
            dialog.ui.mNew_Width->setValue(pasted.bitmap->pixelsWide());
            dialog.ui.mNew_Height->setValue(pasted.bitmap->pixelsHigh());
        }
    }
    dialog.updateFileSize();
    dialog.ui.mNew_Width->selectAll();
    centerWindow(&dialog, parent);
    dialog.make = [&](Size size) {
        last = QSize(int(size.width), int(size.height));
        beforeActing();
        return bool(newPicture(document, size));
    };
    dialog.exec();
}

void runResizeDialog(Document& document, QWidget* parent)
{
    ResizeDialog dialog(parent, document);
    dialog.ui.mResize_Width->selectAll();
    centerWindow(&dialog, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    document.perform(
        "setImageSize:scale:",
        {{double(dialog.ui.mResize_Width->value()), double(dialog.ui.mResize_Height->value()),
          dialog.ui.mResize_ScaleImage->isChecked() ? 1.0 : 0.0, double(dialog.ui.mResize_Place->currentIndex()),
          dialog.ui.mResize_SharpPixels->isChecked() ? 1.0 : 0.0},
         {}});
}

void runNameDialog(Document& document, QWidget* parent, const std::function<void()>& afterSaving)
{
    NameDialog dialog(parent);
    dialog.ui.mName_Name_Field->setText(
        QFile::decodeName(QByteArray::fromStdString(proposedQuickSaveName(libraryFolder()))));
    dialog.ui.mName_Name_Field->selectAll();
    centerWindow(&dialog, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    if (document.perform("quickSave:", {{}, dialog.targetPath()})) afterSaving();
}
