// SPDX-License-Identifier: GPL-3.0-or-later
/// A quiet bar over the top of a scroll area: a sentence, maybe a button, a cross to close it.
#pragma once
#include <QFrame>
#include <QStringList>

class QAbstractScrollArea;
class QLabel;
class QPushButton;
class QToolButton;

/// It lies over the view and moves nothing in it: a picture that shifts under a hand that paints would be worse than
/// the few rows it hides until it is closed.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QAbstractScrollArea* over);
    /// @param text    empty: the bar goes away
    /// @param button  empty: none but the cross
    void display(const QString& text, const QString& button);
    QString text() const;
    /// The titles of what can be pressed, the cross as "Close" last.
    QStringList buttons() const;
    /// @return false when there is no such button
    bool press(const QString& button);

signals:
    void chosen(); ///< the button
    void closed(); ///< the cross

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place(); ///< at the top of the view, as wide as its sentence needs and the view allows

    QAbstractScrollArea* mOver;
    QLabel* mText;
    QPushButton* mButton;
    QToolButton* mCross;
};
