// SPDX-License-Identifier: GPL-3.0-or-later
/// The empty window's invitation.
#include "app/EmptyView.h"
#include "app/RecentFiles.h"
#include "base/Folders.h"
#include "desktop/Desktop.h"
#include "desktop/Thumbnails.h"
#include "document/Document.h"
#include "document/Picture.h"
#include <QEvent>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

using namespace zp;

namespace
{

constexpr std::size_t kThumbnails = 5;
/// Screen points: the side of a thumbnail, and the place to drop a file.
constexpr int kThumbnailSide = 96, kMargin = 28;
/// Bytes of a file beyond which its thumbnail would keep the window waiting.
constexpr std::uintmax_t kLargestThumbnailed = std::uintmax_t{40} << 20;
constexpr const char* kSample = "Hibiskus.jpg";

} // namespace

EmptyView::EmptyView(const Document& document, QWidget* viewport) : QWidget(viewport), mDocument(document)
{
    setObjectName("EmptyView");
    auto* column = new QVBoxLayout(this);
    column->setSpacing(14);
    column->addStretch(1);
    auto* title = new QLabel(tr("Drop an image here"), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.7);
    title->setFont(large);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addStretch(1);
    for (const auto& [text, action] : {std::pair(tr("&New…"), "newDocument:"), {tr("&Open…"), "openDocument:"}}) {
        auto* button = new QPushButton(text, this);
        button->setObjectName(QString("mEmpty_%1").arg(QString(action).remove(':')));
        button->setMinimumWidth(96);
        connect(button, &QPushButton::clicked, this, [this, action = QString(action)] { emit commandChosen(action); });
        row->addWidget(button);
    }
    row->addStretch(1);
    mThumbnails = new QHBoxLayout;
    mThumbnails->setSpacing(8);
    column->addWidget(title, 0, Qt::AlignHCenter);
    column->addLayout(row);
    column->addSpacing(12);
    column->addLayout(mThumbnails);
    column->addStretch(1);
    mTurn.setInterval(0);
    connect(&mTurn, &QTimer::timeout, this, &EmptyView::showNextThumbnail);
    connect(&document, &Document::pictureReplaced, this, &EmptyView::follow);
    viewport->installEventFilter(this);
    setGeometry(viewport->rect());
    follow();
}

void EmptyView::follow()
{
    const bool wanted = !mDocument.picture().isLoaded();
    if (wanted == !isHidden() && mThumbnails->count() > 0) return;
    if (wanted) fill();
    if (!wanted) mTurn.stop();
    setVisible(wanted);
    if (wanted) raise();
}

void EmptyView::refresh()
{
    if (!isHidden()) fill();
}

QString EmptyView::shortName(const std::string& path, const QFontMetrics& font)
{
    const QString name = textFromPath(lastPathComponent(path));
    return font.elidedText(name, Qt::ElideMiddle, kThumbnailSide + 8).replace("&", "&&");
}

void EmptyView::fill()
{
    while (QLayoutItem* old = mThumbnails->takeAt(0)) {
        if (QWidget* button = old->widget()) {
            button->hide(); // it is not deleted before a question that is open now is answered
            button->deleteLater();
        }
        delete old;
    }
    mWaiting.clear();
    std::vector<std::string> files = recentFiles();
    std::erase_if(files, [](const std::string& path) { return !fileExists(path); });
    const std::string sample = pathByAppending(libraryFolder(), kSample);
    if (std::ranges::find(files, sample) == files.end() && fileExists(sample)) {
        if (files.size() >= kThumbnails) files.resize(kThumbnails - 1);
        files.push_back(sample);
    }
    if (files.size() > kThumbnails) files.resize(kThumbnails);
    mThumbnails->addStretch(1);
    for (const std::string& path : files) {
        auto* button = new QToolButton(this);
        button->setAutoRaise(true);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIconSize({kThumbnailSide, kThumbnailSide});
        button->setText(shortName(path, button->fontMetrics()));
        button->setToolTip(
            QString("<span>%1</span>").arg(textFromPath(path).toHtmlEscaped())); // markup in names is text
        button->setAccessibleName(textFromPath(lastPathComponent(path)));
        QPixmap blank(kThumbnailSide, kThumbnailSide);
        blank.fill(Qt::transparent);
        button->setIcon(blank);
        connect(button, &QToolButton::clicked, this, [this, path] { emit fileChosen(path); });
        mThumbnails->addWidget(button);
        mWaiting.push_back({button, path});
    }
    mThumbnails->addStretch(1);
    mTurn.start();
}

void EmptyView::showNextThumbnail()
{
    if (mWaiting.empty() || !isVisible()) return mTurn.stop();
    const Waiting next = mWaiting.front();
    mWaiting.pop_front();
    const qreal ratio = devicePixelRatioF();
    const int side = qRound(kThumbnailSide * ratio);
    const QImage whole = thumbnailOf(next.path, side, kLargestThumbnailed).image;
    if (whole.isNull()) return;
    QImage image = whole.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    next.button->setIcon(QPixmap::fromImage(image));
}

void EmptyView::setHovered(bool hovered)
{
    mHovered = hovered;
    update();
}

bool EmptyView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void EmptyView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const QColor line = palette().color(mHovered ? QPalette::Highlight : QPalette::PlaceholderText);
    painter.setPen(QPen(line, mHovered ? 3 : 1.5, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin), 10, 10);
}
