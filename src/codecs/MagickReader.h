// SPDX-License-Identifier: GPL-3.0-or-later
/// The kinds of picture that ImageMagick reads for us, each by the reader we name.
#pragma once
#include "codecs/Codec.h"
#include "codecs/DecoderMessage.h"

namespace zp::codec
{

/// Where a picture's rows go.
class RowTarget
{
public:
    virtual ~RowTarget() = default;
    /// Once, before the rows, when the size is known and has been checked. @return false when there is no memory for it
    virtual bool begin(int width, int height) = 0;
    /// Row @p y, zeroed, with BitmapRep::rowBytesForWidth() bytes, valid until the next is asked for. Each is asked for
    /// once, from the top on.
    virtual std::uint8_t* row(int y) = 0;
};

/// Gets the library ready, which takes longer than a small picture. Otherwise done with the first picture.
void prepareMagick();
/// The first frame or the merged picture, under limits of size and memory, in this very process. @p format is one that
/// sniffFormat() found; only bytes are handed over, never a name, so that nothing but these bytes can be read. Any
/// thread; may throw bad_alloc.
DecodedRest readByMagick(Bytes bytes, Format format, bool properties, RowTarget& target);
/// How that reader calls the kind: "GIF"; null for a kind that is not on the list.
const char* magickName(Format format);

} // namespace zp::codec
