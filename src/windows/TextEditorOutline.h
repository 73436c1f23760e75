// SPDX-License-Identifier: GPL-3.0-or-later
/// Text as an outline: shaped by the platform, so that ligatures, marks and right-to-left text come out
/// right.
#pragma once
#include "base/BezierPath.h"
#include <QFont>
#include <QString>

namespace zp
{

struct TextOutline {
    BezierPath path;          ///< even-odd, line width 1; contours do not overlap one another
    bool outlineless = false; ///< some characters have no outline (colour or bitmap pictures) and were left out
};

/// @param text  its line breaks, if any, become spaces
/// @param font  its pixel size is the size in the path's units
/// @param start the left end of the base line; y grows upwards from there, as in a glyph's own coordinates
/// Main thread. Costs some 20 microseconds a glyph.
TextOutline outlineOfText(const QString& text, const QFont& font, Point start);

/// Lines, parted by line feeds, below each other at the font's own distance.
/// @param start      the left end of the first base line, as above
/// @param alignment  of the lines among themselves, within the widest; justified is left
TextOutline outlineOfLines(const QString& text, const QFont& font, Point start, Qt::Alignment alignment);

/// Whether the family's letters have outlines at all.
bool hasOutlines(const QFont& font);

} // namespace zp
