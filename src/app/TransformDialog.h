// SPDX-License-Identifier: GPL-3.0-or-later
/// The dialog that scales and turns the floating selection by numbers.
#pragma once

class QWidget;
namespace zp
{
class Document;
}

/// Floats the selection if need be and shows scale and turn, modally; each change is on the canvas at once. Without a
/// selection it beeps. @param parent the main window, or null
void runTransformDialog(zp::Document& document, QWidget* parent);
