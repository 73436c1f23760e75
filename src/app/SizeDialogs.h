// SPDX-License-Identifier: GPL-3.0-or-later
/// The new-image, resize and save-name dialogs. Each runs modally and acts after it has closed.
#pragma once
#include <functional>

class QWidget;
namespace zp
{
class Document;
}

/// Proposes the size of an image on the pasteboard, makes a new image and leaves it without a file.
/// @param beforeActing brings the canvas's window to the front
void runNewDialog(zp::Document& document, QWidget* parent, const std::function<void()>& beforeActing);
void runResizeDialog(zp::Document& document, QWidget* parent);
/// Asks for a name in the image library and saves there.
/// @param afterSaving shows the library and makes its table reload
void runNameDialog(zp::Document& document, QWidget* parent, const std::function<void()>& afterSaving);
