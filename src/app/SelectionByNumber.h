// SPDX-License-Identifier: GPL-3.0-or-later
/// The dialog that selects a rectangle by number, and says what marquees keep to.
#pragma once

class QWidget;
namespace zp
{
class Document;
}

/// Runs until it is closed. A picture must be there.
void runSelectionByNumber(zp::Document& document, QWidget* parent);
