// SPDX-License-Identifier: GPL-3.0-or-later
/// A number field and a slider that show the same value, known by their tags.
#pragma once

class QDialog;
class QSlider;
class QSpinBox;
class QWidget;

/// The field has a tag that is a multiple of 100, its slider the tag behind it.
struct PairedControls {
    QSpinBox* field = nullptr;
    QSlider* slider = nullptr;

    /// Both, without telling anybody.
    void show(int value) const;
    /// If @p tag is the field's, its value goes into the slider; if the slider's, into the field; else nothing happens.
    void synchronise(int tag) const;
};

/// The control's tag from its form; 0 when it has none.
int tagOf(const QWidget* control);

/// Centred on the screen, then 350 points to the right so that the picture stays in view, but not off the screen.
void placeBesidePicture(QDialog& dialog);
