// SPDX-License-Identifier: GPL-3.0-or-later
/// The kinds of picture that ImageMagick reads for us, each by the reader we name.
#pragma once
#include "codecs/Codec.h"

namespace zp::codec
{

/// The first frame or the merged picture, under limits of size and memory. @p format is one that sniffFormat() found;
/// only bytes are handed over, never a name, so that nothing but these bytes can be read. Any thread; may throw
/// bad_alloc.
Decoded decodeByMagick(Bytes bytes, Format format, const ImportOptions& options);

} // namespace zp::codec
