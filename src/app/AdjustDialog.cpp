// SPDX-License-Identifier: GPL-3.0-or-later
/// Controller of the adjust dialog.
#include "app/AdjustDialog.h"
#include "app/PairedControls.h"
#include "desktop/NeutralSlider.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Selection.h"
#include "operations/Comparison.h"
#include "ui_Adjust.h"
#include <QDialog>
#include <array>
#include <cmath>
#include <numbers>

using namespace zp;

namespace
{

class AdjustDialog : public QDialog
{
    Q_DECLARE_TR_FUNCTIONS(AdjustDialog)

public:
    AdjustDialog(Document& document, QWidget* parent) : QDialog(parent), mDocument(document)
    {
        mUi.setupUi(this);
        showDegrees(-180); // the widest: the dialog keeps its size while the hue turns
        mUi.mAdjust_HueField->setMinimumWidth(mUi.mAdjust_HueField->sizeHint().width());
        mPairs = {{{mUi.mAdjust_HueField, mUi.mAdjust_HueSlider},
                   {mUi.mAdjust_SaturationField, mUi.mAdjust_SaturationSlider},
                   {mUi.mAdjust_BrightnessField, mUi.mAdjust_BrightnessSlider},
                   {mUi.mAdjust_ContrastField, mUi.mAdjust_ContrastSlider},
                   {mUi.mAdjust_SharpnessField, mUi.mAdjust_SharpnessSlider}}};
        for (const PairedControls& pair : mPairs) {
            connect(pair.field, &QSpinBox::valueChanged, this, [this, pair] { adjustSet(tagOf(pair.field)); });
            connect(pair.slider, &QSlider::valueChanged, this, [this, pair] { adjustSet(tagOf(pair.slider)); });
        }
        const std::array<int, 5> neutral = neutralValues();
        for (std::size_t i = 0; i < mPairs.size(); ++i)
            static_cast<NeutralSlider*>(mPairs[i].slider)->setNeutral(neutral[i]);
        connect(mUi.mAdjust_CompareButton, &QPushButton::pressed, this,
                [this] { startComparison(mDocument, CompareTo::Step); });
        connect(mUi.mAdjust_CompareButton, &QPushButton::released, this, [this] { endComparison(mDocument); });
        connect(mUi.mAdjust_ResetButton, &QPushButton::clicked, this, [this] { adjustReset(); });
        connect(mUi.mAdjust_ApplyButton, &QPushButton::clicked, this, &QDialog::accept);
        connect(mUi.mAdjust_CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    }

    /// The selection floats from here on, unfiltered at first.
    void begin()
    {
        mDocument.perform("adjust");
        adjustReset();
        mUi.mAdjust_HueSlider->setFocus();
    }

private:
    void adjustReset()
    {
        const std::array<int, 5> values = neutralValues();
        for (std::size_t i = 0; i < mPairs.size(); ++i) mPairs[i].show(values[i]);
        send();
    }
    void adjustSet(int tag)
    {
        for (const PairedControls& pair : mPairs) pair.synchronise(tag);
        send();
    }
    void showDegrees(long degrees) { mUi.mAdjust_HueField->setSuffix(tr(" · %1°").arg(degrees)); }
    /// What leaves the picture as it is.
    static std::array<int, 5> neutralValues()
    {
        constexpr _ZPFilters neutral;
        return {neutral.hue, neutral.saturation, neutral.brightness, neutral.contrast, neutral.sharpness};
    }
    void send()
    {
        // The field counts hundredths of a radian; beside it stands what people know.
        showDegrees(std::lround(mUi.mAdjust_HueField->value() / 100.0 * 180 / std::numbers::pi));
        Arguments settings;
        for (const PairedControls& pair : mPairs) settings.numbers.push_back(pair.field->value());
        mDocument.perform("adjust_set:", settings);
    }

    Ui::Adjust mUi;
    std::array<PairedControls, 5> mPairs;
    Document& mDocument;
};

} // namespace

void runAdjustDialog(Document& document, QWidget* parent)
{
    if (document.selection().isNil()) return beep();
    AdjustDialog dialog(document, parent);
    placeBesidePicture(dialog);
    dialog.begin();
    // However it is closed, what is shown stays: taking it back is left to undo.
    dialog.exec();
}
