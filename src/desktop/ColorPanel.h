// SPDX-License-Identifier: GPL-3.0-or-later
/// The colour panel: the toolkit's own, with the colour as its opacity lets it look, and an eyedropper for the screen
/// where the toolkit has none.
#pragma once
#include <QColorDialog>

namespace zp
{
class ScreenColorPicker;
}

/// Fields, hexadecimal number, recent colours and the eyedropper of a screen that may be read are the toolkit's. Where
/// none may be read (Wayland) the desktop's portal picks the colour.
class ColorPanel : public QColorDialog
{
    Q_OBJECT

public:
    explicit ColorPanel(QWidget* parent = nullptr);

private:
    void addEyedropper();
};

/// A colour over a chequerboard, its opaque part in one corner.
void paintColor(QPainter& painter, const QRect& rect, const QColor& color);
