// SPDX-License-Identifier: GPL-3.0-or-later
/// A line of text made into a watermark: a picture among the others of the watermark folder.
#pragma once
#include "base/BitmapRep.h"
#include "base/Color.h"
#include <QFont>
#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace zp
{

struct WatermarkText {
    QString text; ///< one line
    QFont font;   ///< family and style; the size follows from the picture's
    Color color;
    bool edged = true; ///< a half-clear edge, light about dark letters and dark about light ones
};

/// Pixels of such a watermark's longer side: sharp at 40 percent of a picture of 24 megapixels, whose shorter side has
/// 4,000, and few enough that a file of it has some ten thousand bytes.
inline constexpr int kTextWatermarkSide = 1600;

/// The text over nothing, cut close. Main thread.
/// @return null when no letter of it has an outline, or there is no memory
std::shared_ptr<BitmapRep> pictureOfText(const WatermarkText& text);

/// A file name for it that is a watermark's, is not hidden and is none of @p taken.
std::string watermarkNameForText(const QString& text, const std::vector<std::string>& taken);

/// Asks for a text and makes it a watermark, relative from the start: at its own size it would be as wide as a screen.
/// What went wrong is said. @return its file name in the watermark folder; nothing when there is none
std::optional<std::string> runWatermarkTextPanel(QWidget* parent);

} // namespace zp
