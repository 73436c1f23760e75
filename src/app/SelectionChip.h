// SPDX-License-Identifier: GPL-3.0-or-later
/// In the options bar: what the selection is now, and what is mostly done with it next.
#pragma once
#include <QFrame>

class QLabel;
namespace zp
{
class Document;
}

/// "Floating · Anchor ⏎ · Drop Esc" while something floats; "Text · Fill · Stroke · Float" after text was placed.
class SelectionChip : public QFrame
{
    Q_OBJECT

public:
    explicit SelectionChip(QWidget* parent = nullptr);
    /// Shows what fits the document now, or hides.
    void show(const zp::Document& document);
    /// What Tab leaves for the chip's buttons.
    void setTabAfter(QWidget* before) { mBefore = before; }

signals:
    void chosen(const QString& action); ///< of the menu command
private:
    QWidget* mBefore = this;
    enum class Kind { None, Floating, Text };
    void fill(Kind kind);
    Kind mKind = Kind::None;
};
