// SPDX-License-Identifier: GPL-3.0-or-later
/// The dialog for hue, saturation, brightness, contrast and sharpness of the selection.
#pragma once

class QWidget;
namespace zp
{
class Document;
}

/// Floats the selection if need be and shows the five settings, modally; each change is on the canvas at once. Without
/// a selection it beeps. @param parent the main window, or null
void runAdjustDialog(zp::Document& document, QWidget* parent);
