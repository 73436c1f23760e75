// SPDX-License-Identifier: GPL-3.0-or-later
/// Letters into pixels, pixels into the watermark folder, and the dialog that asks for them.
#include "windows/WatermarkText.h"
#include "base/Folders.h"
#include "base/Translation.h"
#include "batch/Watermarks.h"
#include "codecs/ImageEncoder.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "drawing/BitmapContext.h"
#include "ui_WatermarkText.h"
#include "windows/TextEditorOutline.h"
#include <QCoreApplication>
#include <QDialog>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace zp
{
namespace
{

constexpr int kOutlineSize = 200; ///< pixels of the letters whose outline is scaled to the picture
/// Of that size: seen at a small watermark's two or three pixels, not yet a frame at a large one's.
constexpr float kEdgeWidth = 0.08f;
constexpr float kEdgeOpacity = 0.6f;
constexpr qsizetype kLongestName = 60; ///< letters of a file name, of four bytes at most each

QString sentence(const char* text) { return QCoreApplication::translate("ZPImageProcessor", text); }

float brightness(Color c) { return 0.299f * c.red + 0.587f * c.green + 0.114f * c.blue; }

Color edgeOf(Color letters)
{
    const float grey = brightness(letters) < 0.5f ? 1.0f : 0.0f;
    return {grey, grey, grey, letters.alpha * kEdgeOpacity};
}

} // namespace

std::shared_ptr<BitmapRep> pictureOfText(const WatermarkText& text)
{
    QFont font = text.font;
    font.setPixelSize(kOutlineSize);
    BezierPath path = outlineOfText(text.text, font, {0, 0}).path;
    const float edge = text.edged ? kOutlineSize * kEdgeWidth : 0;
    const Rect box = path.bounds();
    if (box.isEmpty()) return nullptr;
    // The stroke lies half outside the letters.
    const float width = box.size.width + edge, height = box.size.height + edge;
    const float scale = float(kTextWatermarkSide) / std::max(width, height);
    const auto side = [&](float length) { return std::max(1, int(std::lround(length * scale))); };
    auto picture = BitmapRep::create(side(width), side(height));
    if (!picture) return nullptr;
    AffineTransform map;
    map.scale(scale, -scale); // the outline's y grows upwards
    map.translate(edge / 2 - box.minX(), -edge / 2 - box.maxY());
    path.transform(map);
    BitmapContext context(picture->view());
    if (text.edged) {
        path.setLineWidth(edge * scale);
        path.setLineJoin(LineJoin::Round);
        context.setColor(edgeOf(text.color));
        context.stroke(path);
    }
    context.setColor(text.color);
    context.fill(path);
    return picture;
}

std::string watermarkNameForText(const QString& text, const std::vector<std::string>& taken)
{
    QString base = text.simplified().left(kLongestName);
    for (QChar& c : base)
        if (c == '/' || c.category() == QChar::Other_Control) c = '-';
    if (base.isEmpty() || base.startsWith('.')) base.prepend('_');
    for (int number = 1;; ++number) {
        const QString numbered = number == 1 ? base : QString("%1 %2").arg(base).arg(number);
        std::string name = pathFromText(numbered + ".tiff");
        if (std::find(taken.begin(), taken.end(), name) == taken.end()) return name;
    }
}

std::optional<std::string> runWatermarkTextPanel(QWidget* parent)
{
    QDialog dialog(parent);
    Ui::WatermarkText ui;
    ui.setupUi(&dialog);
    ui.mWatermarkText_Color->setColor({1, 1, 1, 1});
    ui.mWatermarkText_CreateButton->setEnabled(false);
    const auto isSomething = [&](const QString& text) {
        ui.mWatermarkText_CreateButton->setEnabled(!text.trimmed().isEmpty());
    };
    QObject::connect(ui.mWatermarkText_Field, &QLineEdit::textChanged, &dialog, isSomething);
    QObject::connect(ui.mWatermarkText_CancelButton, &QPushButton::clicked, &dialog, &QDialog::reject);
    QObject::connect(ui.mWatermarkText_CreateButton, &QPushButton::clicked, &dialog, &QDialog::accept);
    centerWindow(&dialog, parent);
    if (dialog.exec() != QDialog::Accepted) return {};

    WatermarkText text{ui.mWatermarkText_Field->text().trimmed(), ui.mWatermarkText_Font->currentFont(),
                       ui.mWatermarkText_Color->color(), ui.mWatermarkText_Edge->isChecked()};
    text.font.setBold(ui.mWatermarkText_Bold->isChecked());
    text.font.setItalic(ui.mWatermarkText_Italic->isChecked());
    const std::shared_ptr<BitmapRep> picture = pictureOfText(text);
    if (!picture) {
        runAlert(sentence(ZP_TEXT("ZPImageProcessor", "The watermark could not be made.")),
                 sentence(ZP_TEXT("ZPImageProcessor", "The letters of this text have no outlines in this font.")),
                 {sentence(ZP_TEXT("ZPImageProcessor", "OK"))});
        return {};
    }
    const std::string name = watermarkNameForText(text.text, contentsOfFolder(watermarkFolder()));
    const auto bytes = encodeTIFF(std::as_const(*picture).view(), {});
    std::string why;
    if (bytes.empty() || !writeFileSafely(pathByAppending(watermarkFolder(), name), bytes.data(), bytes.size(), &why)) {
        runAlert(sentence(ZP_TEXT("ZPImageProcessor", "The watermark could not be made.")), QString::fromStdString(why),
                 {sentence(ZP_TEXT("ZPImageProcessor", "OK"))});
        return {};
    }
    keepWatermarkLayout(name, {.relative = true});
    return name;
}

} // namespace zp
