// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture on paper.
#pragma once

namespace zp
{

class Document;

/// Asks for the printer and prints the picture once, on the paper of Page Setup: in the size that its resolution says,
/// smaller where the paper is too small for that, in the middle. Transparent parts stay white.
void printPicture(Document& document);

} // namespace zp
