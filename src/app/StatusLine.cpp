// SPDX-License-Identifier: GPL-3.0-or-later
/// The status line's labels and words.
#include "app/StatusLine.h"
#include "app/ZPPrefs.h"
#include "canvas/ToolTable.h"
#include "desktop/ElidedLabel.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Pasteboard.h"
#include "desktop/QtColor.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/Files.h"
#include "selection/FloatingImage.h"
#include <QApplication>
#include <QCoreApplication>
#include <QDrag>
#include <QLabel>
#include <QLocale>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QRegularExpression>
#include <QStatusBar>
#include <algorithm>
#include <cmath>

using namespace zp;

namespace
{

/// Of a picture that states no resolution.
constexpr double kUsualDpi = 72;
/// Side of the swatch, in screen points.
constexpr int kSwatch = 12;
constexpr QSize kBusySize(40, 8);

/// Shows the selection's words, and hands its picture to other programs when it is dragged.
class SelectionField : public QLabel
{
public:
    SelectionField(QWidget* parent, const Document& document) : QLabel(parent), mDocument(document) {}

protected:
    void mousePressEvent(QMouseEvent* event) override { mPressed = event->position().toPoint(); }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        const int moved = (event->position().toPoint() - mPressed).manhattanLength();
        if (!(event->buttons() & Qt::LeftButton) || moved < QApplication::startDragDistance()) return;
        if (mDocument.selection().isNil() || !mDocument.picture().isLoaded()) return;
        const std::shared_ptr<const BitmapRep> picture = selectedPicture(mDocument);
        if (!picture) return;
        auto* drag = new QDrag(this);
        drag->setMimeData(dataForDrag(picture).release());
        drag->exec(Qt::CopyAction);
    }

private:
    const Document& mDocument;
    QPoint mPressed;
};

QString number(double value) { return QLocale().toString(value, 'f', 2); }

struct Unit {
    const char* name;
    double perInch; ///< 0: pixels
    double perPixel(double dpi) const { return perInch / (dpi > 0 ? dpi : kUsualDpi); }
};

const Unit& unitInForce()
{
    static constexpr Unit kUnits[] = {{"px", 0}, {"cm", 2.54}, {"in", 1}, {"pt", 72}};
    return kUnits[ZPPrefs::unit()];
}

QColor plainColor(const std::array<std::uint8_t, 4>& pixel)
{
    const int alpha = pixel[0];
    const auto plain = [alpha](int c) { return alpha ? std::min(255, (c * 255 + alpha / 2) / alpha) : 0; };
    return QColor(plain(pixel[1]), plain(pixel[2]), plain(pixel[3]), alpha);
}

} // namespace

QString extentInWords(Size pixels, double xDpi, double yDpi)
{
    const Unit& unit = unitInForce();
    if (unit.perInch == 0) return QString("%1 × %2 px").arg(int(pixels.width)).arg(int(pixels.height));
    return QString("%1 × %2 %3")
        .arg(number(pixels.width * unit.perPixel(xDpi)), number(pixels.height * unit.perPixel(yDpi)), unit.name);
}

QString sizeInWords(Rect pixels, double xDpi, double yDpi)
{
    const Unit& unit = unitInForce();
    const QString corner = unit.perInch == 0 ? QString("%1, %2").arg(int(pixels.minX())).arg(int(pixels.minY()))
                                             : QString("%1, %2").arg(number(pixels.minX() * unit.perPixel(xDpi)),
                                                                     number(pixels.minY() * unit.perPixel(yDpi)));
    return QString("%1 · %2").arg(corner, extentInWords(pixels.size, xDpi, yDpi));
}

QString zoomInWords(float zoom)
{
    const double percent = double(zoom) * 100;
    return QString("%L1 %").arg(percent, 0, 'g', percent >= 1000 ? 4 : 3);
}

StatusLine::StatusLine(QStatusBar& bar, Document& document) : QObject(&bar), mDocument(document)
{
    const auto add = [&bar](QLabel* label, const char* name, const QString& tip, const char* widest, int stretch) {
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setToolTip(tip);
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widest));
        label->setContentsMargins(6, 0, 6, 0);
        bar.addWidget(label, stretch);
        return label;
    };
    // The selection's box as scripts know it. What people read is the label behind it.
    mInfoField = add(new QLabel, "mInfoField", tr("Box of the selection"), "", 0);
    mInfoField->hide();
    mSelectionField = add(new SelectionField(&bar, document), "mSelectionField",
                          tr("The selection: its corner and its size. Drag this to another program to hand it over as "
                             "a PNG image."),
                          "00000, 00000 · 00000 × 00000 px", 0);
    mMiddle = new ElidedLabel;
    add(mMiddle, "mMessageField", {}, "", 1);
    addBusyIndicator(bar);
    mSwatch = add(new QLabel, "mSwatch", tr("Colour under the pointer"), "", 0);
    mSwatch->setContentsMargins(0, 0, 0, 0);
    mSwatch->setAccessibleName(mSwatch->toolTip());
    mPointerField =
        add(new QLabel, "mPointerField", tr("Position and colour under the pointer"), "00000, 00000   #000000 00 %", 0);
    mImageField = add(new QLabel, "mImageField", tr("Size of the image and zoom"), "00000 × 00000 · 100 %", 0);
    show();
}

void StatusLine::addBusyIndicator(QStatusBar& bar)
{
    auto* busy = new QProgressBar;
    busy->setObjectName("mBusyIndicator");
    busy->setAccessibleName(tr("Busy"));
    busy->setRange(0, 0);
    busy->setTextVisible(false);
    busy->setFixedSize(kBusySize);
    // Its place stays: it comes and goes with every step, and nothing may move for that.
    QSizePolicy place = busy->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    busy->setSizePolicy(place);
    bar.addWidget(busy);
    busy->hide();
    connect(&mDocument, &Document::stepsChanged, busy,
            [this, busy] { busy->setVisible(mDocument.history().isBusy()); });
}

void StatusLine::setPassingHint(const QString& text)
{
    mPassingHint = text;
    showMiddle();
}

void StatusLine::setKeyNames(std::function<QString(const QString& action)> keyNameOfCommand)
{
    mKeyNameOfCommand = std::move(keyNameOfCommand);
    showMiddle();
}

QString StatusLine::withKeys(QString hint) const
{
    static const QRegularExpression kCommandInBraces("\\{(\\w+:)\\}");
    for (auto found = kCommandInBraces.match(hint); found.hasMatch(); found = kCommandInBraces.match(hint)) {
        const QString action = found.captured(1);
        const Command* command = mDocument.menuCommand(action.toStdString());
        QString name = mKeyNameOfCommand ? mKeyNameOfCommand(action) : QString(command ? command->shortcut : "");
        // Without a key the menu's title says what to look for.
        if (name.isEmpty() && command) name = QCoreApplication::translate("Menu", command->title);
        hint.replace(found.captured(0), name);
    }
    return hint;
}

QString StatusLine::hint() const
{
    const Selection& selection = mDocument.selection();
    const ToolRow& row = rowOf(mDocument.gesture());
    if (!mDocument.picture().isLoaded()) return tr("Open an image, make a new one, or drop a file on the window");
    if (mDocument.gesture().polygonIsOpen())
        return tr("Click the next corner · Return closes the shape, Escape gives it up");
    if (selection.floating() && row.actions.moves)
        return mDocument.view().freesCorners()
                   ? tr("Drag a corner's handle: it goes alone, %1: along a side, %2: all scale · Return anchors, "
                        "Escape "
                        "drops")
                         .arg(keyNameOf(kShiftKey), keyNameOf(kControlKey))
                   : tr("Drag to move · the handles scale and turn, %1: steps of 15°, %2: one corner alone · Return "
                        "anchors, Escape drops")
                         .arg(keyNameOf(kShiftKey), keyNameOf(kControlKey));
    if (row.options & options::Explain && mDocument.view().explainsWand())
        return tr("Rest: what a click takes · drag right: more tolerance, left: less · %1 adds, %2 subtracts")
            .arg(keyNameOf(kShiftKey), keyNameOf(kOptionKey));
    return withKeys(hintOf(row));
}

void StatusLine::showMiddle()
{
    const QString& message = mDocument.message();
    if (message != mSaid && !message.isEmpty()) mPassingHint.clear();
    mSaid = message;
    mMiddle->setText(!mPassingHint.isEmpty() ? mPassingHint : !message.isEmpty() ? message : hint());
}

QString StatusLine::selectionInWords() const
{
    const Picture& picture = mDocument.picture();
    const Selection& selection = mDocument.selection();
    if (selection.isNil() || !picture.isLoaded()) return {};
    if (selection.outline()->elementCount() == 0) return {}; // a text that is not written yet
    const auto& properties = picture.bitmap()->properties;
    // Only pixels of the picture are selected, however far the outline reaches; what floats may lie outside.
    const Rect box = integralRect(selection.bounds());
    QString words = sizeInWords(selection.floating() ? box : intersectionRect(box, picture.bounds()), properties.xDpi,
                                properties.yDpi);
    const _ZPTransform& record = selection.record();
    if (selection.floating() && record.scale != 1) words += QString(" · %1").arg(zoomInWords(record.scale));
    if (selection.floating() && record.rotate != 0)
        words +=
            QString(" · %1°").arg(double(record.rotate), 0, 'f', record.rotate == std::round(record.rotate) ? 0 : 1);
    if (selection.floating() && hasPulledCorners(record)) words += " · " + tr("in perspective");
    return words;
}

void StatusLine::show()
{
    mInfoField->setText(QString::fromStdString(mDocument.infoText()));
    const Picture& picture = mDocument.picture();
    mSelectionField->setText(selectionInWords());
    showMiddle();
    showPointer();
    if (picture.isLoaded())
        mImageField->setText(QString("%1 × %2 · %3")
                                 .arg(picture.width())
                                 .arg(picture.height())
                                 .arg(zoomInWords(mDocument.view().zoom())));
    else
        mImageField->clear();
}

void StatusLine::showPointer()
{
    const Picture& picture = mDocument.picture();
    if (!picture.isLoaded()) {
        mPointerField->clear();
        mSwatch->clear();
        return;
    }
    const Point p = mDocument.view().pointer();
    const int x = int(std::floor(p.x)), y = int(std::floor(p.y));
    QString text = QString("%1, %2").arg(x).arg(y);
    QColor color;
    if (picture.box().contains(x, y)) {
        color = plainColor(picture.pixel(x, y));
        text += "   " + color.name();
        if (color.alpha() < 255) text += QString(" %1 %").arg(qRound(color.alpha() / 2.55));
    }
    mPointerField->setText(text);
    const qreal ratio = mSwatch->devicePixelRatioF();
    QPixmap swatch(qRound(kSwatch * ratio), qRound(kSwatch * ratio));
    swatch.setDevicePixelRatio(ratio);
    swatch.fill(Qt::transparent);
    if (color.isValid()) {
        QPainter painter(&swatch);
        painter.setPen(mSwatch->palette().color(QPalette::Mid));
        painter.setBrush(toQt(mLook(fromQt(color))));
        painter.drawRect(QRectF(0.5, 0.5, kSwatch - 1, kSwatch - 1));
    }
    mSwatch->setPixmap(swatch);
}
