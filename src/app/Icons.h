// SPDX-License-Identifier: GPL-3.0-or-later
/// The application's drawn icons, in the colour of the text they stand beside.
#pragma once
#include <QIcon>
#include <QString>

class QPalette;

/// The icon of that name among the program's resources ("Brush", "zoom-in"); line icons take the palette's text colour,
/// crisp at every screen scale. Null when there is none. Drawn when first shown.
QIcon applicationImage(const QString& name, const QPalette& palette);
