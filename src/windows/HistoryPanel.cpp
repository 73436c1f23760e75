// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of steps, drawn.
#include "windows/HistoryPanel.h"
#include "document/Document.h"
#include "document/History.h"
#include "windows/StepThumbnails.h"
#include <QAbstractListModel>
#include <QCoreApplication>
#include <QDateTime>
#include <QListView>
#include <QLocale>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

using namespace zp;

namespace
{

constexpr int kSide = 44;  ///< of a small picture
constexpr int kMargin = 6; ///< around it
constexpr int kMark = 3;   ///< width of the bar beside the step on screen
constexpr qreal kPale = 0.45;

enum Role { TimeRole = Qt::UserRole, UndoneRole, CurrentRole };

} // namespace

class HistoryPanel::Model : public QAbstractListModel
{
public:
    Model(const Document& document, int side) : mDocument(document), thumbnails(side)
    {
        connect(&thumbnails, &StepThumbnails::made, this, [this] {
            if (!mRows.empty()) emit dataChanged(index(0), index(int(mRows.size()) - 1), {Qt::DecorationRole});
        });
    }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : int(mRows.size()); }
    QVariant data(const QModelIndex& at, int role) const override
    {
        const History& history = mDocument.history();
        const History::Step& step = mRows[std::size_t(at.row())];
        switch (role) {
        case Qt::DisplayRole:
            return step.name.empty() ? HistoryPanel::tr("Change")
                                     : QCoreApplication::translate("Steps", step.name.c_str());
        case TimeRole: {
            const QString time = QLocale()
                                     .toString(QDateTime::fromMSecsSinceEpoch(step.time).time(), QLocale::LongFormat)
                                     .section(' ', 0, 0);
            switch (history.kept(step.number)) {
            case History::Kept::Approximately:
                return time + " ≈";
            case History::Kept::Nowhere:
                return time + " –";
            default:
                return time;
            }
        }
        case Qt::ToolTipRole:
            switch (history.kept(step.number)) {
            case History::Kept::Approximately:
                return HistoryPanel::tr("There is no room for the very pixels of this step: it comes back as its files "
                                        "hold it, nearly the same.");
            case History::Kept::Nowhere:
                return HistoryPanel::tr("This step could not be kept.");
            default:
                return HistoryPanel::tr("Go to this step");
            }
        case Qt::DecorationRole:
            return look(
                thumbnails.of(step.number, history.kept(step.number) == History::Kept::BeingWritten ? 0 : step.time));
        case Qt::AccessibleTextRole:
            return data(at, Qt::DisplayRole).toString() + ", " + data(at, TimeRole).toString();
        case UndoneRole:
            return step.number > history.position();
        case CurrentRole:
            return step.number == history.position();
        default:
            return {};
        }
    }
    std::int32_t number(int row) const { return mRows[std::size_t(row)].number; }
    int rowOf(std::int32_t number) const
    {
        const auto step =
            std::find_if(mRows.begin(), mRows.end(), [number](const History::Step& s) { return s.number == number; });
        return step == mRows.end() ? -1 : int(step - mRows.begin());
    }
    void refresh()
    {
        const std::vector<History::Step>& steps = mDocument.history().steps();
        const bool grown = steps.size() >= mRows.size() &&
                           std::equal(mRows.begin(), mRows.end(), steps.begin(), [](const auto& a, const auto& b) {
                               return a.number == b.number && a.time == b.time;
                           });
        if (!grown) {
            beginResetModel();
            if (steps.empty() || mRows.empty() || steps[0].time != mRows[0].time) thumbnails.clear();
            mRows = steps;
            endResetModel();
        } else if (steps.size() > mRows.size()) {
            beginInsertRows({}, int(mRows.size()), int(steps.size()) - 1);
            mRows = steps;
            endInsertRows();
        }
        if (!mRows.empty()) emit dataChanged(index(0), index(int(mRows.size()) - 1));
    }

private:
    const Document& mDocument;
    std::vector<History::Step> mRows; ///< as they are shown

public:
    mutable StepThumbnails thumbnails;
    std::function<QImage(QImage)> look = [](QImage image) { return image; };
};

class HistoryPanel::Delegate : public QStyledItemDelegate
{
public:
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return {120, kSide + 2 * kMargin};
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& at) const override
    {
        painter->save();
        const QPalette& palette = option.palette;
        if (option.state & QStyle::State_MouseOver) painter->fillRect(option.rect, palette.alternateBase());
        const bool current = at.data(CurrentRole).toBool();
        if (current)
            painter->fillRect(QRect(option.rect.topLeft(), QSize(kMark, option.rect.height())), palette.highlight());
        if (option.state & QStyle::State_HasFocus) {
            painter->setPen(palette.color(QPalette::Highlight));
            painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
        }
        if (at.data(UndoneRole).toBool()) painter->setOpacity(kPale);
        const QRect box(option.rect.left() + kMark + kMargin, option.rect.top() + kMargin, kSide, kSide);
        painter->fillRect(box, palette.mid());
        if (const QImage image = at.data(Qt::DecorationRole).value<QImage>(); !image.isNull()) {
            QRect to(QPoint(), image.size().scaled(box.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
            to.moveCenter(box.center());
            painter->setRenderHint(QPainter::SmoothPixmapTransform);
            painter->drawImage(to, image);
        }
        const QRect text = option.rect.adjusted(kMark + kSide + 3 * kMargin, kMargin, -kMargin, -kMargin);
        QFont font = option.font;
        font.setBold(current);
        painter->setFont(font);
        painter->setPen(palette.color(QPalette::Text));
        const QFontMetrics metrics(font);
        const QString name = metrics.elidedText(at.data(Qt::DisplayRole).toString(), Qt::ElideRight, text.width());
        const int middle = text.center().y();
        painter->drawText(QRect(text.left(), text.top(), text.width(), middle - text.top()),
                          Qt::AlignLeft | Qt::AlignBottom, name);
        painter->setFont(option.font);
        QColor pale = palette.color(QPalette::Text);
        pale.setAlphaF(pale.alphaF() * 0.7f);
        painter->setPen(pale);
        painter->drawText(QRect(text.left(), middle + 2, text.width(), text.bottom() - middle),
                          Qt::AlignLeft | Qt::AlignTop, at.data(TimeRole).toString());
        painter->restore();
    }
};

HistoryPanel::HistoryPanel(Document& document, QWidget* parent)
    : QDockWidget(tr("History"), parent),
      mDocument(document),
      mModel(std::make_unique<Model>(document, int(kSide * devicePixelRatioF()))),
      mDelegate(std::make_unique<Delegate>())
{
    setObjectName("History");
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    mList = new QListView(this);
    mList->setObjectName("mHistoryList");
    mList->setAccessibleName(tr("Steps of the image, oldest first"));
    mList->setFrameShape(QFrame::NoFrame);
    mList->setSelectionMode(QAbstractItemView::NoSelection);
    mList->setUniformItemSizes(true);
    mList->setMouseTracking(true);
    mList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mList->setMinimumWidth(180);
    mList->setItemDelegate(mDelegate.get());
    setWidget(mList);
    const auto goTo = [this](const QModelIndex& at) {
        mDocument.perform("goToStep", {{double(mModel->number(at.row()))}, {}});
    };
    connect(mList, &QListView::clicked, this, goTo);
    connect(mList, &QListView::activated, this, goTo);
    connect(&mDocument, &Document::stepsChanged, this, [this] {
        if (isVisible()) refresh();
    });
}

HistoryPanel::~HistoryPanel() { delete mList; } // before the model that it shows

void HistoryPanel::setLook(std::function<QImage(QImage)> look) { mModel->look = std::move(look); }

bool HistoryPanel::isComplete() const { return mModel->thumbnails.isIdle(); }

void HistoryPanel::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    if (!mList->model()) mList->setModel(mModel.get());
    refresh();
}

void HistoryPanel::refresh()
{
    mModel->refresh();
    if (const int row = mModel->rowOf(mDocument.history().position()); row >= 0) mList->scrollTo(mModel->index(row));
}
