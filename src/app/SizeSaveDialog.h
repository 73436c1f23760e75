// SPDX-License-Identifier: GPL-3.0-or-later
/// The dialog that saves a copy of a wanted size, and shows before what it costs.
#pragma once

class QWidget;
namespace zp
{
class Document;
}

/// Shows the picture before and after, modally; what is chosen is sought at once, in the background. Escape gives it
/// up. Beeps without a picture. @param parent the main window, or null
void runSizeSaveDialog(zp::Document& document, QWidget* parent);
