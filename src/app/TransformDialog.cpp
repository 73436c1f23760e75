// SPDX-License-Identifier: GPL-3.0-or-later
/// Controller of the transform dialog.
#include "app/TransformDialog.h"
#include "app/PairedControls.h"
#include "base/Log.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Selection.h"
#include "ui_Transform.h"
#include <QDialog>
#include <cmath>

using namespace zp;

namespace
{

/// What a sender without a tag of its own, such as the menu item, stands for: it keeps no pair in step.
constexpr int kNoTag = 0;

class TransformDialog : public QDialog
{
public:
    TransformDialog(Document& document, QWidget* parent) : QDialog(parent), mDocument(document)
    {
        mUi.setupUi(this);
        mScale = {mUi.mTransform_Scale_Field, mUi.mTransform_Scale_Slider};
        mRotate = {mUi.mTransform_Rotate_Field, mUi.mTransform_Rotate_Slider};
        for (const PairedControls& pair : {mScale, mRotate}) {
            connect(pair.field, &QSpinBox::valueChanged, this, [this, pair] { transformSet(tagOf(pair.field)); });
            connect(pair.slider, &QSlider::valueChanged, this, [this, pair] { transformSet(tagOf(pair.slider)); });
        }
        connect(mUi.mTransform_ResetButton, &QPushButton::clicked, this, [this] {
            resetControls();
            transformSet(kNoTag);
        });
        connect(mUi.mTransform_ApplyButton, &QPushButton::clicked, this, &QDialog::accept);
        connect(mUi.mTransform_CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    }

    /// The canvas's present transform; the selection floats from here on.
    void begin()
    {
        resetControls();
        mDocument.perform("transform");
        const _ZPTransform now = mDocument.selection().record();
        if (now.scale != 1.0f || now.rotate != 0.0f) {
            mScale.show(int(std::lround(now.scale * 100.0f)));
            mRotate.show(int(std::lround(now.rotate)));
        }
        transformSet(kNoTag);
        mUi.mTransform_Scale_Field->setFocus();
        mUi.mTransform_Scale_Field->selectAll();
    }

private:
    void resetControls()
    {
        mScale.show(100);
        mRotate.show(0);
    }
    void transformSet(int tag)
    {
        mScale.synchronise(tag);
        mRotate.synchronise(tag);
        const float scale = float(mScale.field->value()) / 100.0f, rotate = float(mRotate.field->value());
        mDocument.perform("transform_set:", {{scale, rotate}, {}});
        logLine("rotate = %f", double(rotate));
        // A scale of 0 was refused: the field goes back to what holds.
        if (scale == 0) mScale.show(int(std::lround(mDocument.selection().record().scale * 100.0f)));
    }

    Ui::Transform mUi;
    PairedControls mScale, mRotate;
    Document& mDocument;
};

} // namespace

void runTransformDialog(Document& document, QWidget* parent)
{
    if (document.selection().isNil()) return beep();
    TransformDialog dialog(document, parent);
    placeBesidePicture(dialog);
    dialog.begin();
    // However it is closed, the piece floats on as it was last shown; anchoring or dropping it is another command.
    dialog.exec();
}
