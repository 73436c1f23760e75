// SPDX-License-Identifier: GPL-3.0-or-later
/// The dialogs that keep a selection under a name and bring one back.
#pragma once

class QWidget;
namespace zp
{
class Document;
}

/// Asks for a name, modally, and has the canvas write its selection into the folder of saved selections, which is made
/// when missing. The name is used as typed: a slash in it leads into a subfolder, a name that is taken is written over.
void runSaveSelectionDialog(zp::Document& document, QWidget* parent);

/// Offers the entries of that folder, modally; the chosen one becomes the canvas's selection. Entries may be deleted
/// while the dialog stands.
void runLoadSelectionDialog(zp::Document& document, QWidget* parent);
