// SPDX-License-Identifier: GPL-3.0-or-later
/// The new-image, resize and save-name dialogs. Each runs modally and acts after it has closed.
#pragma once
#include <functional>

class QWidget;
class ZPCanvas;

/// Proposes the size of an image on the pasteboard, makes a new image and leaves it without a file.
/// @param beforeActing brings the canvas's window to the front
void runNewDialog(ZPCanvas& canvas, QWidget* parent, const std::function<void()>& beforeActing);
void runResizeDialog(ZPCanvas& canvas, QWidget* parent);
/// Asks for a name in the image library and saves there.
/// @param afterSaving shows the library and makes its table reload
void runNameDialog(ZPCanvas& canvas, QWidget* parent, const std::function<void()>& afterSaving);
