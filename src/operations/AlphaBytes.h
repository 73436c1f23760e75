// SPDX-License-Identifier: GPL-3.0-or-later
/// The alpha plane a byte at a time, through two cursors that the whole process shares.
#pragma once
#include "document/Edit.h"

namespace zp
{

/// @param reset  captures the picture, before its first pixel. @return the next pixel's alpha; -1 after the last, and
/// for a reset
int getc(Edit& edit, bool reset);
/// Stores the low 8 bits as the next pixel's alpha; -10 captures the picture. Behind the last pixel it is dropped.
void putc(Edit& edit, int value);

} // namespace zp
