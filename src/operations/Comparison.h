// SPDX-License-Identifier: GPL-3.0-or-later
/// An earlier state of the picture beside the present one.
#pragma once

namespace zp
{

class Document;

/// What the picture is held against.
enum class CompareTo {
    Opened,
    Saved,    ///< when it was last in a file; as opened, if it never was since
    LastStep, ///< before it
    Step,     ///< as the last step left it: without what floats
};

/// Shows that state left of the pointer until the comparison ends, and says so in the status line. Blocks until the
/// steps are written and this one is read, about 0.1 s at 24 megapixels. Main thread.
/// @return false, with a sentence there, when it cannot be had or was of another size
bool startComparison(Document& document, CompareTo to);
void endComparison(Document& document);

} // namespace zp
