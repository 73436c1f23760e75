// SPDX-License-Identifier: GPL-3.0-or-later
/// Alerts in a window of our own, so that a driver can read and answer them like a person.
#include "desktop/Panels.h"
#include "desktop/Desktop.h"
#include "desktop/PanelsState.h"
#include <QApplication>
#include <QDialog>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextOption>
#include <QVBoxLayout>
#include <algorithm>

namespace zp
{

namespace
{

constexpr int kIconSize = 48, kTextWidth = 380;
constexpr qsizetype kLinesWithoutScrolling = 8;
constexpr qsizetype kLettersWithoutScrolling = 1200;
constexpr QSize kLongTextSize(kTextWidth + 160, 220);

int silencers = 0;

bool hasWordBeyondLine(const QString& text, const QFontMetrics& font)
{
    for (const QString& line : text.split('\n'))
        for (const QString& word : line.split(' '))
            if (font.horizontalAdvance(word) > kTextWidth) return true;
    return false;
}

/// Of a title: a word that no line has room for (a file's name) is cut in its middle.
QString withoutWordsBeyondLine(const QString& text, const QFontMetrics& font)
{
    if (!hasWordBeyondLine(text, font)) return text;
    QStringList words = text.split(' ');
    for (QString& word : words) word = font.elidedText(word, Qt::ElideMiddle, kTextWidth);
    return words.join(' ');
}

/// The window a question belongs to.
QWidget* windowInFront()
{
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == "Main") return window;
    return nullptr;
}

class Alert : public QDialog
{
public:
    Alert(const QString& title, const QString& message, const QStringList& buttons, QWidget* over) : QDialog(over)
    {
        setObjectName("Alert");
        setWindowTitle(QGuiApplication::applicationDisplayName());
        setWindowModality(over ? Qt::WindowModal : Qt::ApplicationModal);
        setAccessibleName(title);
        setAccessibleDescription(message);
        mState = {title, message, buttons};

        auto* columns = new QHBoxLayout(this);
        columns->setContentsMargins(22, 20, 20, 18);
        columns->setSpacing(18);
        auto* picture = new QLabel(this);
        const QIcon own = QApplication::windowIcon();
        const QIcon icon = own.isNull() ? style()->standardIcon(QStyle::SP_MessageBoxQuestion) : own;
        picture->setPixmap(icon.pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
        columns->addWidget(picture, 0, Qt::AlignTop);

        auto* rows = new QVBoxLayout;
        rows->setSpacing(8);
        columns->addLayout(rows, 1);
        rows->addWidget(textLabel(title, true));
        if (message.count('\n') >= kLinesWithoutScrolling || message.size() > kLettersWithoutScrolling ||
            hasWordBeyondLine(message, fontMetrics()))
            rows->addWidget(longText(message));
        else if (!message.isEmpty())
            rows->addWidget(textLabel(message, false));
        rows->addStretch(1);
        rows->addSpacing(10);
        rows->addLayout(buttonRow());
        mButtons[0]->setFocus();
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    }

    const AlertState& state() const { return mState; }
    int answer() const { return mAnswer; }
    QPushButton* button(const QString& title) const
    {
        const qsizetype i = mState.buttons.indexOf(title);
        return i < 0 ? nullptr : mButtons[i];
    }
    /// Escape and the window's close button.
    void reject() override { choose(int(mState.buttons.size()) - 1); }

private:
    QLabel* textLabel(const QString& text, bool bold)
    {
        auto* label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        QFont font = label->font();
        font.setBold(bold);
        if (bold) font.setPointSizeF(font.pointSizeF() * 1.08);
        label->setFont(font);
        const QString shown = withoutWordsBeyondLine(text, QFontMetrics(font));
        label->setText(shown);
        if (shown != text) label->setToolTip(QString("<span>%1</span>").arg(text.toHtmlEscaped()));
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setFocusPolicy(Qt::NoFocus);
        // A fixed width, so that the height that wrapping needs is known before the window is shown.
        const int natural = QFontMetrics(font).size(0, shown).width() + 4;
        label->setFixedWidth(std::clamp(natural, 220, kTextWidth));
        return label;
    }

    /// A list or a message of any length, scrolled, to be read by keys and copied whole.
    QPlainTextEdit* longText(const QString& text)
    {
        auto* list = new QPlainTextEdit(text, this);
        list->setObjectName("AlertList");
        list->setReadOnly(true);
        list->setTabChangesFocus(true);
        // Entries of a list keep a line each; sentences are wrapped, anywhere if need be.
        if (text.count('\n') >= kLinesWithoutScrolling)
            list->setLineWrapMode(QPlainTextEdit::NoWrap);
        else
            list->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        list->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        list->setFixedSize(kLongTextSize);
        return list;
    }

    /// The default stands last, where the eye ends; the others before it.
    QHBoxLayout* buttonRow()
    {
        auto* row = new QHBoxLayout;
        row->setSpacing(8);
        row->addStretch(1);
        for (int i = 0; i < mState.buttons.size(); ++i) {
            const QString title = fontMetrics().elidedText(mState.buttons[i], Qt::ElideMiddle, kTextWidth / 2);
            auto* button = new QPushButton(QString(title).replace("&", "&&"), this);
            button->setMinimumWidth(84);
            button->setAutoDefault(true);
            button->setDefault(i == 0);
            connect(button, &QPushButton::clicked, this, [this, i] { choose(i); });
            row->insertWidget(1, button);
            mButtons.push_back(button);
        }
        for (qsizetype i = mButtons.size() - 1; i > 0; --i) setTabOrder(mButtons[i], mButtons[i - 1]);
        return row;
    }

    void choose(int index)
    {
        mAnswer = index;
        done(QDialog::Accepted);
    }

    AlertState mState;
    QList<QPushButton*> mButtons;
    int mAnswer = kNoAnswer;
};

/// Those on screen, the front one last.
QList<QPointer<Alert>>& alerts()
{
    static QList<QPointer<Alert>> shown;
    shown.removeIf([](const QPointer<Alert>& alert) { return !alert; });
    return shown;
}

Alert* frontAlert()
{
    for (qsizetype i = alerts().size(); i-- > 0;)
        if (alerts()[i]->isVisible()) return alerts()[i];
    return nullptr;
}

} // namespace

int runAlert(const QString& title, const QString& message, const QStringList& buttons)
{
    if (silencers > 0 || buttons.isEmpty()) return 0;
    const QPointer<Alert> alert = new Alert(title, message, buttons, windowInFront());
    alerts().push_back(alert);
    alert->exec();
    if (!alert) return kNoAnswer; // its window went away under it
    const int answer = alert->answer();
    alerts().removeAll(alert);
    delete alert;
    return answer;
}

std::optional<AlertState> currentAlert()
{
    if (const Alert* alert = frontAlert()) return alert->state();
    return std::nullopt;
}

bool answerAlert(const QString& button)
{
    const Alert* alert = frontAlert();
    QPushButton* found = alert ? alert->button(button) : nullptr;
    if (!found) return false;
    found->click();
    return true;
}

bool modalWindowIsUp() { return QApplication::activeModalWidget() || QApplication::activePopupWidget(); }

SilencedPanels::SilencedPanels() { ++silencers; }
SilencedPanels::~SilencedPanels() { --silencers; }

namespace
{

/// The one that page layout and printing share: what was set is there the next time.
QPrinter& sharedPrinter()
{
    static auto* const printer = new QPrinter(QPrinter::HighResolution);
    return *printer;
}

} // namespace

void runPageLayout()
{
    if (panelsAutomated()) return; // nobody could close it
    QPageSetupDialog dialog(&sharedPrinter(), windowInFront());
    dialog.setObjectName("PageLayout");
    dialog.exec();
}

bool runPrintPanel(const QString& title, const std::function<void(QPainter&, const QRectF&, double)>& draw)
{
    QPrinter& printer = sharedPrinter();
    printer.setDocName(title);
    if (panelsAutomated()) {
        const std::optional<std::string> file = nextPanelChoice();
        if (!file) return false;
        printer.setOutputFileName(textFromPath(*file));
    } else {
        QPrintDialog dialog(&printer, windowInFront());
        dialog.setObjectName("Print");
        dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
        if (dialog.exec() != QDialog::Accepted) return false;
    }
    QPainter painter;
    if (!painter.begin(&printer)) {
        runAlert(QCoreApplication::translate("Panels", "The image could not be printed."),
                 QCoreApplication::translate("Panels", "The printer did not take it."),
                 {QCoreApplication::translate("Panels", "OK")});
        return false;
    }
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    draw(painter, QRectF(QPointF(0, 0), page.size()), printer.resolution());
    return painter.end();
}

void centerWindow(QWidget* window, const QWidget* over)
{
    if (!window) return;
    window->ensurePolished();
    if (window->isMaximized() || window->isFullScreen() || placeWhereKept(window)) return;
    if (!window->testAttribute(Qt::WA_WState_Created) && !window->testAttribute(Qt::WA_Resized)) {
        window->adjustSize();
        // The toolkit takes two thirds of the screen at most and would squeeze what is in it.
        if (const QLayout* layout = window->layout(); layout && window->screen())
            window->resize(
                window->size().expandedTo(layout->totalSizeHint()).boundedTo(window->screen()->availableSize()));
    }
    const QWidget* main = over ? over->window() : nullptr;
    if (!main) {
        for (const QWidget* other : QApplication::topLevelWidgets())
            if (other != window && other->isVisible() && other->objectName() == "Main") main = other;
    }
    const QScreen* screen = main ? main->screen() : window->screen();
    const QRect room = screen ? screen->availableGeometry() : QRect(0, 0, 800, 600);
    const QRect about = over ? main->frameGeometry() : room;
    const QSize size = window->isVisible() ? window->frameGeometry().size() : window->size();
    QPoint corner = about.center() - QPoint(size.width() / 2, size.height() / 2);
    corner.setX(std::max(room.left(), std::min(corner.x(), room.right() - size.width())));
    corner.setY(std::max(room.top(), std::min(corner.y(), room.bottom() - size.height())));
    window->move(corner);
}

} // namespace zp
