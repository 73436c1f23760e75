// SPDX-License-Identifier: GPL-3.0-or-later
/// WebP files from A, R, G, B rows, and such files of ours read back.
#pragma once
#include "codecs/LossyWriter.h"

namespace zp::codec
{

/// Alpha is kept. @param error  a side above 16,383 pixels, or memory. May throw bad_alloc.
std::unique_ptr<LossyWriter> makeWebPWriter(ConstBitmapView pixels, const ImageProperties& properties,
                                            std::string& error);

} // namespace zp::codec
