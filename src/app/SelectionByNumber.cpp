// SPDX-License-Identifier: GPL-3.0-or-later
/// Position and size of the selection in pixels.
#include "app/SelectionByNumber.h"
#include "app/StatusLine.h"
#include "app/ZPPrefs.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

using namespace zp;

namespace
{

/// Beyond any picture's edge, so that a selection may be moved out as by hand.
constexpr int kFarthest = 99'999;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SelectionByNumber)
};

} // namespace

void runSelectionByNumber(Document& document, QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName("SelectByNumber");
    dialog.setWindowTitle(Texts::tr("Position and Size"));
    auto* form = new QFormLayout(&dialog);
    form->setContentsMargins(20, 20, 20, 16);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setHorizontalSpacing(10);
    form->setVerticalSpacing(8);
    const auto field = [&](const char* label, const char* name, int least, int value) {
        auto* box = new QSpinBox(&dialog);
        box->setObjectName(name);
        box->setRange(least, kFarthest);
        box->setValue(value);
        box->setSuffix(" px");
        box->setAlignment(Qt::AlignRight);
        form->addRow(Texts::tr(label), box);
        return box;
    };
    const Selection& selection = document.selection();
    const Rect now = integralRect(selection.isNil() ? document.picture().bounds() : selection.bounds());
    auto* left = field(QT_TRANSLATE_NOOP("SelectionByNumber", "&Left:"), "mSelect_Left", -kFarthest, int(now.minX()));
    auto* top = field(QT_TRANSLATE_NOOP("SelectionByNumber", "&Top:"), "mSelect_Top", -kFarthest, int(now.minY()));
    auto* width =
        field(QT_TRANSLATE_NOOP("SelectionByNumber", "&Width:"), "mSelect_Width", 1, std::max(1, int(now.size.width)));
    auto* height = field(QT_TRANSLATE_NOOP("SelectionByNumber", "&Height:"), "mSelect_Height", 1,
                         std::max(1, int(now.size.height)));
    auto* inUnit = new QLabel(&dialog);
    inUnit->setObjectName("mSelect_InUnit");
    inUnit->setTextFormat(Qt::PlainText);
    inUnit->setVisible(ZPPrefs::unit() != ZPPrefs::Pixels);
    const auto bitmap = document.picture().bitmap();
    const double xDpi = bitmap ? bitmap->properties.xDpi : 0, yDpi = bitmap ? bitmap->properties.yDpi : 0;
    const auto tell = [=] {
        inUnit->setText(sizeInWords(
            makeRect(float(left->value()), float(top->value()), float(width->value()), float(height->value())), xDpi,
            yDpi));
    };
    for (const QSpinBox* box : {left, top, width, height}) QObject::connect(box, &QSpinBox::valueChanged, inUnit, tell);
    tell();
    form->addRow(inUnit);
    auto* rule = new QComboBox(&dialog);
    rule->setObjectName("mSelect_Rule");
    rule->addItems({Texts::tr("Any size"), Texts::tr("This ratio of width to height"), Texts::tr("This size")});
    rule->setCurrentIndex(int(document.gesture().marqueeRule().kind));
    rule->setToolTip(Texts::tr("What a rectangle or oval keeps to while it is dragged with the mouse"));
    form->addRow(Texts::tr("New &marquees:"), rule);
    auto* buttons = new QHBoxLayout; // the default last, as in every dialog
    buttons->addStretch(1);
    auto* cancel = new QPushButton(Texts::tr("Cancel"), &dialog);
    cancel->setObjectName("mSelect_CancelButton");
    cancel->setAutoDefault(false);
    auto* select = new QPushButton(Texts::tr("Select"), &dialog);
    select->setObjectName("mSelect_OKButton");
    select->setDefault(true);
    buttons->addWidget(cancel);
    buttons->addWidget(select);
    form->addRow(buttons);
    QObject::connect(select, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    left->selectAll();
    centerWindow(&dialog, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    document.setMarqueeRule({MarqueeRule::Kind(rule->currentIndex()), float(width->value()), float(height->value())});
    document.perform(
        "selectRectangle:",
        {{double(left->value()), double(top->value()), double(width->value()), double(height->value())}, {}});
}
