// SPDX-License-Identifier: GPL-3.0-or-later
/// Position and size of the selection in pixels.
#include "app/SelectionByNumber.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
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
    auto* rule = new QComboBox(&dialog);
    rule->setObjectName("mSelect_Rule");
    rule->addItems({Texts::tr("Any size"), Texts::tr("This ratio of width to height"), Texts::tr("This size")});
    rule->setCurrentIndex(int(document.gesture().marqueeRule().kind));
    rule->setToolTip(Texts::tr("What a rectangle or oval keeps to while it is dragged with the mouse"));
    form->addRow(Texts::tr("New &marquees:"), rule);
    auto* buttons = new QDialogButtonBox(&dialog);
    auto* select = buttons->addButton(Texts::tr("Select"), QDialogButtonBox::AcceptRole);
    select->setObjectName("mSelect_OKButton");
    select->setDefault(true);
    buttons->addButton(Texts::tr("Cancel"), QDialogButtonBox::RejectRole)->setObjectName("mSelect_CancelButton");
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    left->selectAll();
    centerWindow(&dialog, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    document.setMarqueeRule({MarqueeRule::Kind(rule->currentIndex()), float(width->value()), float(height->value())});
    document.perform(
        "selectRectangle:",
        {{double(left->value()), double(top->value()), double(width->value()), double(height->value())}, {}});
}
