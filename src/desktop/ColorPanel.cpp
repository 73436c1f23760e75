// SPDX-License-Identifier: GPL-3.0-or-later
/// What the program adds to the toolkit's colour dialog.
#include "desktop/ColorPanel.h"
#include "desktop/ScreenColorPicker.h"
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr int kSwatchHeight = 28;

/// The chosen colour as it lies over what is below it.
class Swatch : public QWidget
{
public:
    explicit Swatch(QColorDialog& panel) : QWidget(&panel), mPanel(panel)
    {
        setObjectName("mColorSwatch");
        setAccessibleName(ColorPanel::tr("The colour with its opacity"));
        setToolTip(accessibleName());
        setMinimumHeight(kSwatchHeight);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(&panel, &QColorDialog::currentColorChanged, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintColor(painter, rect(), mPanel.currentColor());
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    const QColorDialog& mPanel;
};

} // namespace

void paintColor(QPainter& painter, const QRect& rect, const QColor& color)
{
    if (color.alpha() == 255) return painter.fillRect(rect, color);
    constexpr int kCell = 6;
    const QColor dark(190, 190, 190);
    for (int y = 0; y < rect.height(); y += kCell)
        for (int x = 0; x < rect.width(); x += kCell)
            painter.fillRect(QRect(rect.x() + x, rect.y() + y, kCell, kCell).intersected(rect),
                             ((x + y) / kCell) % 2 ? dark : QColor(Qt::white));
    painter.fillRect(rect, color);
    QColor opaque = color;
    opaque.setAlpha(255);
    const QPointF corner = rect.topLeft();
    const int side = rect.height();
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(opaque);
    painter.drawPolygon(QPolygonF({corner, corner + QPointF(side, 0), corner + QPointF(0, side)}));
    painter.restore();
}

ColorPanel::ColorPanel(QWidget* parent) : QColorDialog(parent)
{
    setOptions(NoButtons | DontUseNativeDialog); // desktops' own dialogs have no opacity, or no number
    setWindowTitle(tr("Colours"));
    setObjectName("Colors");
    if (auto* column = qobject_cast<QVBoxLayout*>(layout())) column->addWidget(new Swatch(*this));
    addEyedropper();
}

void ColorPanel::addEyedropper()
{
    if (!QGuiApplication::platformName().startsWith("wayland")) return; // the toolkit has one
    auto* column = qobject_cast<QVBoxLayout*>(layout());
    auto* picker = new zp::ScreenColorPicker(QDBusConnection::sessionBus(), this);
    if (!column || !picker->isAvailable()) return;
    auto* button = new QPushButton(tr("&Pick Screen Colour"), this);
    button->setObjectName("mPickScreenColor");
    button->setAutoDefault(false);
    column->addWidget(button, 0, Qt::AlignLeft);
    connect(button, &QPushButton::clicked, picker, &zp::ScreenColorPicker::pick);
    connect(picker, &zp::ScreenColorPicker::picked, this, [this](const QColor& color) {
        QColor withOpacity = color;
        withOpacity.setAlpha(currentColor().alpha());
        setCurrentColor(withOpacity);
    });
}
