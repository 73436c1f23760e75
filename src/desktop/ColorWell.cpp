// SPDX-License-Identifier: GPL-3.0-or-later
/// The colour well and the one colour panel that all wells share.
#include "desktop/ColorWell.h"
#include "desktop/ColorPanel.h"
#include "desktop/QtColor.h"
#include "desktop/WindowPlaces.h"
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <vector>

namespace
{

bool panelShowsAlpha = false;
/// As many as the panel has places for.
constexpr std::size_t kRecentColors = 16;
/// Milliseconds between looks whether a hand has let go.
constexpr int kHandInterval = 30;

/// The newest first, none twice. Fed by every choice, in whatever well.
std::vector<QColor>& recentColors()
{
    static std::vector<QColor> colors;
    return colors;
}

void noteRecent(const QColor& color, bool insteadOfNewest)
{
    std::vector<QColor>& colors = recentColors();
    if (insteadOfNewest && !colors.empty()) colors.erase(colors.begin());
    std::erase(colors, color);
    colors.insert(colors.begin(), color);
    if (colors.size() > kRecentColors) colors.pop_back();
}

} // namespace

ColorWell::ColorWell(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Colour"));
    connect(this, &QAbstractButton::clicked, this, &ColorWell::openPanel);
    mHandWatch.setInterval(kHandInterval);
    connect(&mHandWatch, &QTimer::timeout, this, [this] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton) mHandWatch.stop();
    });
}

void ColorWell::setPanelShowsAlpha(bool on) { panelShowsAlpha = on; }

QSize ColorWell::sizeHint() const { return {44, 24}; }

void ColorWell::setColor(zp::Color color)
{
    if (color == mColor) return;
    mColor = color;
    update();
}

void ColorWell::setLook(std::function<zp::Color(zp::Color)> look)
{
    mLook = std::move(look);
    update();
}

void ColorWell::chooseColor(zp::Color color) { choose(color, false); }

void ColorWell::choose(zp::Color color, bool goesOn)
{
    noteRecent(zp::toQt(color), goesOn);
    setColor(color);
    emit colorChosen(color, goesOn);
}

void ColorWell::openPanel()
{
    static QPointer<ColorPanel> panel;
    if (!panel) {
        panel = new ColorPanel(window());
    }
    static QMetaObject::Connection answer; // of the well that opened the panel last
    disconnect(answer);
    panel->setOption(QColorDialog::ShowAlphaChannel, panelShowsAlpha);
    panel->setCurrentColor(zp::toQt(mColor));
    answer = connect(panel, &QColorDialog::currentColorChanged, this, [this](const QColor& c) {
        if (!c.isValid()) return;
        // A drag through the panel is one choice, however many colours it passes.
        const bool goesOn = mHandWatch.isActive();
        if (QGuiApplication::mouseButtons() != Qt::NoButton) mHandWatch.start();
        choose(zp::fromQt(c), goesOn);
    });
    // The colours chosen last stand where the panel keeps a person's own.
    for (int i = 0; i < int(recentColors().size()) && i < QColorDialog::customCount(); ++i)
        QColorDialog::setCustomColor(i, recentColors()[std::size_t(i)]);
    zp::bringToFront(panel);
}

void ColorWell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(frame, 4, 4);
    painter.save();
    painter.setClipPath(outline);
    const QColor color = zp::toQt(mLook ? mLook(mColor) : mColor);
    paintColor(painter, rect(), color);
    painter.restore();
    const QColor edge = hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::PlaceholderText);
    painter.setPen(QPen(edge, hasFocus() ? 2 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
}
