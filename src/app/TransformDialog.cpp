// SPDX-License-Identifier: GPL-3.0-or-later
/// Controller of the transform dialog.
#include "app/TransformDialog.h"
#include "app/PairedControls.h"
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
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
    TransformDialog(ZPCanvas& canvas, QWidget* parent) : QDialog(parent), mCanvas(canvas)
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
        const ZPCanvas::TransformValues now = mCanvas.transform();
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
        mCanvas.transform_set(scale, rotate);
        logLine("rotate = %f", double(rotate));
    }

    Ui::Transform mUi;
    PairedControls mScale, mRotate;
    ZPCanvas& mCanvas;
};

} // namespace

void runTransformDialog(ZPCanvas& canvas, QWidget* parent)
{
    if (canvas.selectionNil()) return beep();
    TransformDialog dialog(canvas, parent);
    placeBesidePicture(dialog);
    dialog.begin();
    // Closing the window is cancelling.
    if (dialog.exec() == QDialog::Accepted)
        canvas.applyTransform();
    else
        canvas.dontApplyTransform();
}
