// SPDX-License-Identifier: GPL-3.0-or-later
/// The chip's words and buttons.
#include "app/SelectionChip.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Selection.h"
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <utility>

using namespace zp;

SelectionChip::SelectionChip(QWidget* parent) : QFrame(parent)
{
    setObjectName("mSelectionChip");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 2, 0);
    row->setSpacing(2);
    // The colour of the handles of what floats.
    setStyleSheet("#mSelectionChip { border: 1px solid palette(highlight); border-radius: 4px; }");
    hide();
}

void SelectionChip::show(const Document& document)
{
    const Selection& selection = document.selection();
    Kind kind = Kind::None;
    if (selection.floating() && !selection.isNil())
        kind = Kind::Floating;
    else if (document.gesture().tool() == Tool::Text && !selection.isNil() && !document.gesture().isMouseDown())
        kind = Kind::Text;
    if (kind == mKind) return;
    fill(kind);
    setVisible(kind != Kind::None);
}

void SelectionChip::fill(Kind kind)
{
    mKind = kind;
    while (QLayoutItem* old = layout()->takeAt(0)) {
        old->widget()->hide();
        old->widget()->deleteLater(); // its own click may have brought us here
        delete old;
    }
    QWidget* last = mBefore;
    const auto button = [this, &last](const QString& title, const char* action) {
        auto* b = new QToolButton(this);
        b->setText(title);
        b->setAutoRaise(true);
        b->setFocusPolicy(Qt::TabFocus);
        b->setObjectName(QString("mChip_%1").arg(QString(action).remove(':')));
        connect(b, &QToolButton::clicked, this, [this, action] { emit chosen(action); });
        layout()->addWidget(b);
        setTabOrder(std::exchange(last, b), b);
    };
    if (kind == Kind::None) return;
    layout()->addWidget(new QLabel(kind == Kind::Floating ? tr("Floating") : tr("Text"), this));
    if (kind == Kind::Floating) {
        button(tr("Anchor ⏎"), "anchorSelection:");
        button(tr("Drop Esc"), "selectNone:");
    } else {
        button(tr("Fill"), "fill:");
        button(tr("Stroke"), "stroke:");
        button(tr("Float"), "anchorSelection:");
    }
}
