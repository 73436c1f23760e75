// SPDX-License-Identifier: GPL-3.0-or-later
/// Between the picture's colours and Qt's: the same numbers, nothing converted.
#pragma once
#include "base/Color.h"
#include <QColor>

namespace zp
{

inline QColor toQt(const Color& c) { return QColor::fromRgbF(c.red, c.green, c.blue, c.alpha); }

inline Color fromQt(const QColor& c)
{
    return {float(c.redF()), float(c.greenF()), float(c.blueF()), float(c.alphaF())};
}

} // namespace zp
