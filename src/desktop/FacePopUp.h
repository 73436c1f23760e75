// SPDX-License-Identifier: GPL-3.0-or-later
/// A pop-up whose closed face may say more than the title of its chosen item.
#pragma once
#include <QComboBox>

class FacePopUp : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;
    /// What the closed pop-up shows; empty: the title of the chosen item.
    void setFace(const QString& text);
    QString face() const { return mFace.isEmpty() ? currentText() : mFace; }
    /// The longest face there will be: the pop-up keeps room for it.
    void setWidestFace(const QString& text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString mFace, mWidest;
};
