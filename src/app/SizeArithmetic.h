// SPDX-License-Identifier: GPL-3.0-or-later
/// The sums of the size dialogs: file size estimates and fields that keep each other in step.
#pragma once
#include <string>

namespace zp
{

/// Kilobytes of 8-bit RGBA, as text: "%i KB", above 2000 KB "%i MB", rounded.
std::string fileSizeEstimate(int width, int height);

struct ResizeFields {
    int width = 0, height = 0;
    float widthPercent = 100, heightPercent = 100;
    friend bool operator==(const ResizeFields&, const ResizeFields&) = default;
};

/// Which field the user changed; the dialog's controls carry these as their tags.
enum class ResizeTag : int { Width = 100, Height = 101, WidthPercent = 102, HeightPercent = 103 };

/// The other fields after one was changed. @p originalWidth and height: the current image's. A tag that is none of the
/// four changes nothing. Percentages are not rounded.
ResizeFields linkedResizeFields(ResizeFields fields, int tag, float originalWidth, float originalHeight,
                                bool keepAspect);

} // namespace zp
