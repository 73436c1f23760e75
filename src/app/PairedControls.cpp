// SPDX-License-Identifier: GPL-3.0-or-later
/// A number field and a slider that show the same value, and where their dialogs stand.
#include "app/PairedControls.h"
#include "desktop/Panels.h"
#include <QDialog>
#include <QScreen>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QVariant>
#include <algorithm>

namespace
{
constexpr int kBeside = 350;
}

int tagOf(const QWidget* control) { return control->property("tag").toInt(); }

void PairedControls::show(int value) const
{
    const QSignalBlocker quietField(field), quietSlider(slider);
    field->setValue(value);
    slider->setValue(value);
}

void PairedControls::synchronise(int tag) const
{
    // Quietly, or the two would answer each other, and a slider of a narrower range would correct its field.
    if (tag == tagOf(field)) {
        const QSignalBlocker quiet(slider);
        slider->setValue(field->value());
    } else if (tag == tagOf(slider)) {
        const QSignalBlocker quiet(field);
        field->setValue(slider->value());
    }
}

void placeBesidePicture(QDialog& dialog)
{
    zp::centerWindow(&dialog);
    const QScreen* screen = dialog.screen();
    const int right = screen ? screen->availableGeometry().right() + 1 : dialog.x() + kBeside + dialog.width();
    dialog.move(std::max(dialog.x(), std::min(dialog.x() + kBeside, right - dialog.width())), dialog.y());
}
