// SPDX-License-Identifier: GPL-3.0-or-later
/// The bar's parts, its place and its look.
#include "desktop/NoticeBar.h"
#include <QAbstractScrollArea>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

namespace
{

constexpr int kGap = 10, kSpacing = 10; ///< to the view's edges; between the parts
constexpr int kWidestText = 640;        ///< a longer sentence is broken: the eye finds back to its line
constexpr int kNarrowestText = 120;
constexpr int kButtonMargins = 28;
constexpr double kRadius = 6;

} // namespace

NoticeBar::NoticeBar(QAbstractScrollArea* over)
    : QFrame(over), mOver(over), mText(new QLabel(this)), mButton(new QPushButton(this)), mCross(new QToolButton(this))
{
    setObjectName("NoticeBar");
    setCursor(Qt::ArrowCursor);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(14, 6, 8, 6);
    row->setSpacing(kSpacing);
    mText->setTextFormat(Qt::PlainText);
    mText->setWordWrap(true);
    mText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(mText, 1);
    row->addWidget(mButton);
    mCross->setText(QStringLiteral("×"));
    mCross->setAutoRaise(true);
    mCross->setFocusPolicy(Qt::TabFocus);
    mCross->setToolTip(tr("Close"));
    mCross->setAccessibleName(tr("Close"));
    row->addWidget(mCross);
    connect(mButton, &QPushButton::clicked, this, &NoticeBar::chosen);
    connect(mCross, &QToolButton::clicked, this, &NoticeBar::closed);
    mOver->viewport()->installEventFilter(this);
    display({}, {});
}

void NoticeBar::display(const QString& text, const QString& button)
{
    mText->setText(text);
    setAccessibleName(text);
    mButton->setText(QString(button).replace('&', "&&"));
    mButton->setMinimumWidth(mButton->fontMetrics().horizontalAdvance(button) + kButtonMargins);
    mButton->setVisible(!button.isEmpty());
    mButton->setFocusPolicy(button.isEmpty() ? Qt::NoFocus : Qt::TabFocus); // without words there is nothing to go to
    setVisible(!text.isEmpty());
    if (text.isEmpty()) return;
    place();
    raise();
}

QString NoticeBar::text() const { return mText->text(); }

QStringList NoticeBar::buttons() const
{
    QStringList titles;
    if (!mButton->isHidden()) titles << mButton->text().replace("&&", "&");
    return titles << mCross->accessibleName();
}

bool NoticeBar::press(const QString& button)
{
    const qsizetype index = buttons().indexOf(button);
    if (isHidden() || index < 0) return false;
    if (index + 1 == buttons().size())
        mCross->click();
    else
        mButton->click();
    return true;
}

bool NoticeBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && !isHidden()) place();
    return QFrame::eventFilter(watched, event);
}

void NoticeBar::place()
{
    const QRect view = mOver->viewport()->geometry();
    const QMargins margins = layout()->contentsMargins();
    int others = margins.left() + margins.right() + kSpacing + mCross->sizeHint().width();
    if (!mButton->isHidden()) others += kSpacing + std::max(mButton->minimumWidth(), mButton->sizeHint().width());
    const int natural = mText->fontMetrics().size(0, mText->text()).width() + 2;
    const int room = std::max(kNarrowestText, std::min(kWidestText, view.width() - 2 * kGap - others));
    mText->setFixedWidth(std::min(natural, room));
    mText->setFixedHeight(mText->heightForWidth(mText->width()));
    adjustSize();
    move(view.x() + std::max(kGap, (view.width() - width()) / 2), view.y() + kGap);
}

void NoticeBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The ground of tool tips: what the program says by itself looks the same in both schemes.
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    const bool dark = palette().color(QPalette::ToolTipBase).lightness() < 128;
    painter.setPen(palette().color(dark ? QPalette::Shadow : QPalette::Dark));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}
