// SPDX-License-Identifier: GPL-3.0-or-later
/// Wires the main window's controls to the canvas.
#include "app/MainWindow.h"
#include "app/AccessibleWidgets.h"
#include "app/EmptyView.h"
#include "app/Icons.h"
#include "app/SelectionChip.h"
#include "app/StatusLine.h"
#include "base/Folders.h"
#include "base/NotificationCenter.h"
#include "canvas/HandlesOverlay.h"
#include "canvas/ToolTable.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ForeignDecoder.h"
#include "codecs/ImageImporter.h"
#include "desktop/ColorWell.h"
#include "desktop/Desktop.h"
#include "desktop/KeyModifiers.h"
#include "desktop/KeyRoles.h"
#include "desktop/NoticeBar.h"
#include "desktop/ScreenProfile.h"
#include "desktop/ScrollView.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/View.h"
#include "ui_Main.h"
#include "windows/HistoryPanel.h"
#include <QButtonGroup>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QDragEnterEvent>
#include <QFile>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMimeData>
#include <QMoveEvent>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QToolButton>
#include <QUrl>

using namespace zp;

namespace
{

constexpr QSize kWindowSize{1180, 780};
constexpr const char* kZoomTitles[] = {"6.25%", "12.5%", "25%", "50%", "100%", "200%", "400%", "800%", "1600%"};
static_assert(std::size(kZoomTitles) == kZoomLevels.size());

/// What the notice's button about a key does; no menu has these.
const QString kControlForOption = "controlForOption:", kControlForCommand = "controlForCommand:";

/// A pop-up of words still says which they are, in pixels.
constexpr int kNarrowPopUp = 72;
/// A slider can still be dragged, in pixels.
constexpr int kNarrowSlider = 32;
/// Share of the room that a slider has before the gap behind all options: up to its own greatest width it takes all.
constexpr int kBeforeThePush = 1000;

/// A switch that is on is seen in the dark colours too.
void showWhetherOn(QToolButton& button, const QPalette& window)
{
    QPalette colours; // none of its own
    if (button.isChecked()) {
        colours.setColor(QPalette::Button, window.color(QPalette::Highlight));
        colours.setColor(QPalette::ButtonText, window.color(QPalette::HighlightedText));
    }
    button.setPalette(colours);
}

QString tool(const char* text) { return QCoreApplication::translate("Tools", text); }

} // namespace

MainWindow::MainWindow(Document& document)
    : mUi((installAccessibleWidgets(), std::make_unique<Ui::Main>())),
      mDocument(document),
      mCanvas(new ZPCanvas(document))
{
    mUi->setupUi(this);
    for (const auto& [bar, name] :
         {std::pair<QWidget*, QString>(mUi->optionsBar, tr("Tool options")), {mUi->toolStrip, tr("Tools")}}) {
        makeAccessibleToolBar(*bar);
        bar->setAccessibleName(name);
    }
    mUi->mScrollView->setWidget(mCanvas);
    new HandlesOverlay(*mCanvas, mUi->mScrollView->viewport());
    mUi->mScrollView->viewport()->setCursor(Qt::CrossCursor);
    mEmpty = new EmptyView(mDocument, mUi->mScrollView->viewport());
    connect(mEmpty, &EmptyView::commandChosen, this, [this](const QString& action) {
        if (performAction) performAction(action);
    });
    connect(mEmpty, &EmptyView::fileChosen, this, [this](const std::string& path) {
        if (openDroppedFile) openDroppedFile(path);
    });
    setUpTools();
    setUpToolOptions();
    setUpZoom();
    setUpSwitches();
    mChip = new SelectionChip(mUi->optionsBar);
    mUi->options->insertWidget(mUi->options->indexOf(mUi->switches) + 1, mChip);
    mChip->setTabAfter(mUi->switches->more());
    connect(mChip, &SelectionChip::chosen, this, [this](const QString& action) {
        giveFocusBack();
        if (performAction) performAction(action);
    });
    mStatus = new StatusLine(*statusBar(), mDocument);
    mStatus->setLook([this](Color color) { return mCanvas->asShown(color); });
    // One height for every tool: the picture must not jump when the brush's tips come.
    mUi->mBrushPopUp->setMaximumHeight(mUi->mZoomPopUp->sizeHint().height());
    mUi->optionsBar->setFixedHeight(mUi->mZoomPopUp->sizeHint().height() + 13);
    auto* menuKey = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(menuKey, &QShortcut::activated, this,
            [this] { menuBar()->setActiveAction(menuBar()->actions().constFirst()); });
    showKeys({}, [](const QKeySequence&) { return false; });
    setUpNotices();

    connect(&mDocument, &Document::toolChosen, this, &MainWindow::showTool);
    connect(&mDocument, &Document::paintChanged, this, &MainWindow::showPaint);
    connect(&mDocument, &Document::zoomChanged, this, &MainWindow::showZoom);
    connect(&mDocument, &Document::changed, this, &MainWindow::showStatus);
    connect(&mDocument, &Document::pointerMoved, mStatus, &StatusLine::showPointer);
    showTool();
    showPaint();
    showZoom();
    showStatus();
    // Tool, colour, size, its options, zoom, picture.
    QWidgetList order{mUi->mToolPopUp,  mUi->mColorWell,     mUi->mSizeSlider,      mUi->mSizeField,
                      mUi->mBrushPopUp, mUi->mPressurePopUp, mUi->mToleranceSlider, mUi->mToleranceField};
    order << mUi->switches->buttons() << mUi->mZoomPopUp << mCanvas;
    for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
    resize(sizeOnScreen(this, kWindowSize));
    setUpHistory();
    mCanvas->setFocus(); // single keys are commands of the canvas
}

MainWindow::~MainWindow() { NotificationCenter::defaultCenter().removeObserver(this); }

void MainWindow::setUpHistory()
{
    mHistoryPanel = new HistoryPanel(mDocument, this);
    mHistoryPanel->setLook([this](QImage image) { return mCanvas->asShown(std::move(image)); });
    addDockWidget(Qt::RightDockWidgetArea, mHistoryPanel);
    mHistoryPanel->hide();
}

void MainWindow::showHistory(bool on)
{
    mHistoryPanel->setVisible(on);
    giveFocusBack();
}

bool MainWindow::historyIsShown() const { return !mHistoryPanel->isHidden(); }

void MainWindow::setUpTools()
{
    auto* group = new QButtonGroup(this);
    for (const ToolRow& row : toolTable()) {
        const QString title = tool(row.title);
        mUi->mToolPopUp->addItem(title);
        auto* button = new QToolButton(mUi->toolStrip);
        button->setCheckable(true);
        button->setAutoExclusive(true); // one of several, a screen reader says
        button->setAutoRaise(true);
        button->setIconSize({22, 22});
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(title);
        group->addButton(button, int(row.tool));
        mUi->toolColumn->addWidget(button);
        mToolButtons.push_back(button);
    }
    mUi->toolColumn->addStretch();
    mUi->mToolPopUp->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    mUi->mToolPopUp->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); // the sliders give way, not the name
    const auto choose = [this](int index) {
        mCanvas->setTool(index);
        giveFocusBack();
    };
    connect(group, &QButtonGroup::idClicked, this, choose);
    connect(mUi->mToolPopUp, &QComboBox::activated, this, choose);
}

void MainWindow::setUpToolOptions()
{
    mUi->mColorWell->setLook([this](Color color) { return mCanvas->asShown(color); });
    connect(&mDocument, &Document::pictureReplaced, mUi->mColorWell, qOverload<>(&QWidget::update));
    connect(mUi->mColorWell, &ColorWell::colorChosen, this, [this](Color c, bool goesOn) {
        if (goesOn)
            mDocument.movePaintColor(c);
        else
            mDocument.setPaintColor(c);
    });

    // What they repeat the fields say: they go down to their least before a switch goes into the menu.
    for (QSlider* slider : {mUi->mSizeSlider, mUi->mToleranceSlider}) {
        slider->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        slider->setMinimumWidth(kNarrowSlider);
        mUi->options->setStretchFactor(slider, kBeforeThePush);
    }
    for (int i = 0; i < mUi->options->count(); ++i)
        if (mUi->options->itemAt(i)->spacerItem()) mUi->options->setStretch(i, 1); // it takes what they leave

    const auto setSize = [this](int size) { mDocument.setBrushSize(float(size)); };
    connect(mUi->mSizeSlider, &QSlider::valueChanged, this, setSize);
    connect(mUi->mSizeField, &QSpinBox::valueChanged, this, setSize);
    connect(mUi->mSizeSlider, &QSlider::sliderReleased, this, &MainWindow::giveFocusBack);

    for (int i = 1; fileExists(shippedResourcesFolder() + "/B" + std::to_string(i) + ".png"); ++i) {
        mUi->mBrushPopUp->addItem(tr("Brush %1").arg(i));
    }
    mUi->mBrushPopUp->setIconSize({20, 20});
    connect(mUi->mBrushPopUp, &QComboBox::currentIndexChanged, this,
            [this](int index) { mDocument.setBrushShape(std::max(0, index)); });
    connect(mUi->mBrushPopUp, &QComboBox::activated, this, &MainWindow::giveFocusBack);

    mUi->mPressurePopUp->setMinimumWidth(kNarrowPopUp); // then it is cut with dots
    // In the order of PenPressure.
    mUi->mPressurePopUp->addItems({tr("Even pressure"), tr("Pressure: size"), tr("Pressure: opacity")});
    connect(mUi->mPressurePopUp, &QComboBox::currentIndexChanged, this,
            [this](int index) { mDocument.setPenPressure(PenPressure(index)); });
    connect(mUi->mPressurePopUp, &QComboBox::activated, this, &MainWindow::giveFocusBack);

    connect(mUi->mToleranceSlider, &QSlider::valueChanged, this, [this](int value) {
        mUi->mToleranceField->setValue(value);
        mDocument.setToleranceSetting(value);
    });
    mDocument.setToleranceSetting(mUi->mToleranceSlider->value());
    connect(mUi->mToleranceSlider, &QSlider::sliderReleased, this, &MainWindow::giveFocusBack);
    connect(mUi->mToleranceField, &QSpinBox::valueChanged, mUi->mToleranceSlider, &QSlider::setValue);
    for (QSpinBox* field : {mUi->mSizeField, mUi->mToleranceField})
        connect(field, &QSpinBox::editingFinished, this, [this] { giveFocusBack(); });
}

void MainWindow::setUpZoom()
{
    for (const char* title : kZoomTitles) mUi->mZoomPopUp->addItem(title);
    connect(mUi->mZoomPopUp, &QComboBox::activated, this, [this](int index) {
        mCanvas->zoom(double(kZoomLevels[std::size_t(index)]) * 100);
        giveFocusBack();
    });
    mUi->mZoomPopUp->setWidestFace(tr("Fit · %1").arg(zoomInWords(0.0888f)));
    const auto inPicture = [this](QPointF p) {
        const double z = mDocument.view().effectiveZoom();
        return Point{float(p.x() / z), float(p.y() / z)};
    };
    connect(mUi->mScrollView, &ScrollView::roomChanged, this, [this](QSize room) {
        mDocument.setRoom({float(room.width()), float(room.height())});
    });
    connect(mUi->mScrollView, &ScrollView::scaleRequested, this,
            [this, inPicture](double factor, QPointF p) { mCanvas->scaleZoom(factor, inPicture(p)); });
    connect(mUi->mScrollView, &ScrollView::zoomRequested, this, [this, inPicture](int steps, QPointF p) {
        const Point anchor = inPicture(p);
        for (int i = std::abs(steps); i > 0; --i) mCanvas->stepZoom(steps > 0 ? 1 : -1, anchor);
    });
    for (const QScrollBar* bar : {mUi->mScrollView->horizontalScrollBar(), mUi->mScrollView->verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, mCanvas, &ZPCanvas::pictureMovedUnderPointer);
    // Once the view has taken its new place.
    for (const auto moved : {&Document::zoomChanged, &Document::pictureReplaced})
        connect(&mDocument, moved, mCanvas, &ZPCanvas::pictureMovedUnderPointer, Qt::QueuedConnection);
}

void MainWindow::setUpSwitches()
{
    // Window managers take some modifier keys away: each role also has a switch here, beside the tools that use it.
    struct Role {
        const char *title, *tip;
        unsigned bit, option;
    };
    const Role roles[] = {
        {QT_TR_NOOP("Square"), QT_TR_NOOP("The marquee becomes a square"), kCommandKey, options::Square},
        {QT_TR_NOOP("Oval"), QT_TR_NOOP("The marquee becomes an oval"), kControlKey, options::Oval},
        {QT_TR_NOOP("Polygon"), QT_TR_NOOP("Click corners, Return ends"), kControlKey, options::Polygon},
        {QT_TR_NOOP("Add"), QT_TR_NOOP("The new shape joins the selection"), kShiftKey, options::Add},
        {QT_TR_NOOP("Subtract"), QT_TR_NOOP("The new shape is cut from the selection"), kOptionKey, options::Subtract},
        {QT_TR_NOOP("Float"), QT_TR_NOOP("Dragging the selection lifts its pixels"), kCommandKey, options::Float},
        {QT_TR_NOOP("Straight"), QT_TR_NOOP("One straight line from press to release"), kShiftKey, options::Straight},
        {QT_TR_NOOP("Set source"), QT_TR_NOOP("The click sets where pixels come from"), kOptionKey, options::SetSource},
    };
    mExplain = new QToolButton(mUi->switches);
    mExplain->setObjectName("mExplain");
    mExplain->setText(tr("Explain"));
    mExplain->setToolTip(
        tr("Where the pointer rests, what a click takes; a drag after the press changes the tolerance"));
    mExplain->setCheckable(true);
    mExplain->setFocusPolicy(Qt::TabFocus);
    mUi->switches->add(mExplain); // beside the tolerance
    connect(mExplain, &QToolButton::toggled, this, [this](bool on) {
        mDocument.setExplainsWand(on);
        showSwitches();
    });
    connect(mExplain, &QToolButton::clicked, this, &MainWindow::giveFocusBack);
    for (const Role& role : roles) {
        auto* button = new QToolButton(mUi->switches);
        button->setText(tr(role.title));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setObjectName(QString("mSwitch_%1").arg(QString(role.title).remove(' ')));
        mUi->switches->add(button);
        mSwitches.push_back({button, role.tip, role.bit, role.option});
        connect(button, &QToolButton::toggled, this, [this] {
            unsigned bits = 0;
            for (const Switch& s : mSwitches)
                if (s.button->isChecked()) bits |= s.keyBit;
            setSwitchedKeyModifiers(bits);
            showSwitches();
        });
        connect(button, &QToolButton::clicked, this, &MainWindow::giveFocusBack);
    }
    connect(mUi->switches->more(), &QToolButton::toggled, this, &MainWindow::showSwitches);
    NotificationCenter::defaultCenter().addObserver(this, "KeyRolesNotif",
                                                    [this](const Notification&) { showKeysOfRoles(); });
    showKeysOfRoles();
}

void MainWindow::showSwitches()
{
    for (const Switch& s : mSwitches) showWhetherOn(*s.button, palette());
    if (!mExplain) return; // being made
    for (QToolButton* button : {mExplain, mUi->switches->more()}) showWhetherOn(*button, palette());
}

void MainWindow::showKeysOfRoles()
{
    for (const Switch& s : mSwitches)
        s.button->setToolTip(tr("%1 (as if %2 were held)").arg(tr(s.tip), keyNameOf(s.keyBit)));
    if (mStatus) mStatus->show();
}

void MainWindow::showKeys(std::function<QString(const QString& action)> keyNameOfCommand,
                          const std::function<bool(const QKeySequence&)>& belongsToCommand)
{
    mStatus->setKeyNames(std::move(keyNameOfCommand));
    for (const ToolRow& row : toolTable()) {
        const QString title = tool(row.title), tip = tool(row.tip), key(row.key);
        const QString inBrackets = belongsToCommand(QKeySequence(key)) ? QString() : QString(" (%1)").arg(key);
        QToolButton* button = mToolButtons[std::size_t(row.tool)];
        mUi->mToolPopUp->setItemData(int(row.tool), tip + inBrackets, Qt::ToolTipRole);
        button->setToolTip(QString("<b>%1</b>%2<br>%3").arg(title, inBrackets, tip));
        button->setAccessibleDescription(tip + inBrackets); // the tool tip's markup is for the eye
    }
}

void MainWindow::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    if (mTakenKeySaid || !isActiveWindow() || scriptedKeyModifiers()) return;
    // A press that the program saw is a drag of its own, whatever moves the window meanwhile.
    if (QGuiApplication::mouseButtons() != Qt::NoButton || mDocument.gesture().isMouseDown()) return;
    const QWidget* view = mUi->mScrollView->viewport();
    if (!view->rect().contains(view->mapFromGlobal(QCursor::pos()))) return;
    const std::uint32_t held = currentKeyModifiers() & ~switchedKeyModifiers();
    for (const std::uint32_t role : {kOptionKey, kCommandKey, kControlKey})
        if (held == role) noteTakenKey(role);
}

void MainWindow::noteTakenKey(std::uint32_t role)
{
    mTakenKeySaid = true;
    const QString key = keyNameOf(role);
    QString sentence = tr("The window manager moves windows with %1 and the mouse, so %1 never reaches the image. The "
                          "switches above do the same.")
                           .arg(key);
    // Control's shapes have switches of their own, so that its key can be spared; it has none to spare for itself.
    if (role == kControlKey) return mDocument.notice(sentence);
    mDocument.notice({.text = sentence,
                      .button = tr("Use %1 instead").arg(keyNameOf(kControlKey)),
                      .action = role == kOptionKey ? kControlForOption : kControlForCommand});
}

void MainWindow::setUpNotices()
{
    mNoticeBar = new NoticeBar(mUi->mScrollView);
    connect(&mDocument, &Document::noticed, this, &MainWindow::showNotice);
    connect(mNoticeBar, &NoticeBar::closed, this, [this] {
        mDocument.closeNotice();
        giveFocusBack();
    });
    connect(mNoticeBar, &NoticeBar::chosen, this, [this] {
        const QString action = mDocument.notices().front()->action;
        mDocument.closeNotice();
        giveFocusBack();
        if (action == kControlForOption || action == kControlForCommand)
            exchangeKeyRoles(kControlKey, action == kControlForOption ? kOptionKey : kCommandKey);
        else if (performAction)
            performAction(action);
    });
}

void MainWindow::showNotice()
{
    const Notice* notice = mDocument.notices().front();
    mNoticeBar->display(notice ? notice->text : QString(), notice ? notice->button : QString());
}

void MainWindow::setToolImages()
{
    QApplication::setWindowIcon(applicationImage("zelpane", palette()));
    for (const ToolRow& row : toolTable()) {
        const QIcon icon = applicationImage(row.title, palette());
        mUi->mToolPopUp->setItemIcon(int(row.tool), icon);
        mToolButtons[std::size_t(row.tool)]->setIcon(icon);
    }
    for (int i = 0; i < mUi->mBrushPopUp->count(); ++i) {
        const std::string name = QString("B%1.png").arg(i + 1).toStdString();
        const auto read = importImageFile(readableResourcePath(name), {.properties = false}).bitmap;
        if (!read) continue;
        QImage tip(read->pixelsWide(), read->pixelsHigh(), QImage::Format_ARGB32_Premultiplied);
        if (tip.isNull()) continue;
        // Only the shape counts: its alpha in the colour of the text.
        for (int y = 0; y < tip.height(); ++y)
            for (int x = 0; x < tip.width(); ++x)
                reinterpret_cast<QRgb*>(tip.scanLine(y))[x] = QRgb(read->view().pixel(x, y)[0]) << 24;
        tip = tip.scaled(60, 60, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&tip);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(tip.rect(), palette().color(QPalette::WindowText));
        painter.end();
        mUi->mBrushPopUp->setItemIcon(i, QIcon(QPixmap::fromImage(tip)));
    }
}

void MainWindow::showTool()
{
    const ToolRow& row = rowOf(mDocument.gesture());
    const auto has = [&row](unsigned option) { return (row.options & option) != 0; };
    for (QWidget* w : std::initializer_list<QWidget*>{mUi->toleranceLabel, mUi->mToleranceSlider, mUi->mToleranceField})
        w->setVisible(has(options::Tolerance));
    for (QWidget* w : std::initializer_list<QWidget*>{mUi->sizeLabel, mUi->mSizeSlider, mUi->mSizeField})
        w->setVisible(has(options::Size));
    for (QWidget* w : {mUi->mBrushPopUp, mUi->mPressurePopUp}) w->setVisible(has(options::BrushShape));
    for (const Switch& s : mSwitches) {
        mUi->switches->offer(s.button, has(s.option));
        if (!has(s.option)) s.button->setChecked(false);
    }
    mUi->switches->offer(mExplain, has(options::Explain));
    mExplain->setChecked(mDocument.view().explainsWand());
    mToolButtons[std::size_t(row.tool)]->setChecked(true);
    const QSignalBlocker quiet(mUi->mToolPopUp); // what follows a choice by hand has been done
    mUi->mToolPopUp->setCurrentIndex(int(row.tool));
}

void MainWindow::showPaint()
{
    mUi->mColorWell->setColor(mDocument.paint().color());
    const int size = int(std::lround(mDocument.paint().size()));
    const QSignalBlocker quietSlider(mUi->mSizeSlider), quietField(mUi->mSizeField);
    mUi->mSizeSlider->setValue(size);
    mUi->mSizeField->setValue(size);
    const int tolerance = mDocument.paint().toleranceSetting();
    const QSignalBlocker quietTolerance(mUi->mToleranceSlider), quietPercent(mUi->mToleranceField);
    mUi->mToleranceSlider->setValue(tolerance);
    mUi->mToleranceField->setValue(tolerance);
    const QSignalBlocker quietPressure(mUi->mPressurePopUp);
    mUi->mPressurePopUp->setCurrentIndex(int(mDocument.paint().penPressure()));
}

void MainWindow::showZoom()
{
    const QSignalBlocker quiet(mUi->mZoomPopUp);
    const View& view = mDocument.view();
    mUi->mZoomPopUp->setCurrentIndex(view.nearestLevel());
    const bool isLevel = kZoomLevels[std::size_t(view.nearestLevel())] == view.zoom();
    if (view.fit() != Fit::No)
        mUi->mZoomPopUp->setFace(tr("Fit · %1").arg(zoomInWords(view.zoom())));
    else
        mUi->mZoomPopUp->setFace(isLevel ? QString() : zoomInWords(view.zoom()));
}

void MainWindow::giveFocusBack() { mCanvas->setFocus(); }

void MainWindow::showStatus()
{
    mStatus->show();
    announceValue(*mCanvas);
    announceMessage(*mCanvas);
    mChip->show(mDocument);
    const Picture& picture = mDocument.picture();
    if (!picture.isLoaded()) {
        setWindowTitle("Zelpane");
        setWindowModified(false);
        return;
    }
    // "[*]" is where the platform puts the mark; a name may hold those very characters.
    const QString name =
        QString::fromStdString(displayName(lastPathComponent(picture.path()))).replace("[*]", "[*][*]");
    setWindowTitle(name.isEmpty() ? tr("Untitled[*] — Zelpane") : name + "[*] — Zelpane");
    setWindowModified(mDocument.isModified());
}

void MainWindow::chooseBrush(int shape, int tolerance)
{
    if (shape >= 0 && shape < mUi->mBrushPopUp->count()) mUi->mBrushPopUp->setCurrentIndex(shape);
    if (tolerance >= 0) mUi->mToleranceSlider->setValue(tolerance);
}

void MainWindow::refreshInvitation() { mEmpty->refresh(); }

void MainWindow::toggleFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (mayClose && !mayClose()) event->ignore();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasUrls()) return;
    event->acceptProposedAction();
    codec::readyForeignDecoder();
    mEmpty->setHovered(true);
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent*) { mEmpty->setHovered(false); }

void MainWindow::dropEvent(QDropEvent* event)
{
    mEmpty->setHovered(false);
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile() && openDroppedFile) {
            event->acceptProposedAction();
            openDroppedFile(QFile::encodeName(url.toLocalFile()).toStdString());
            return;
        }
}

bool MainWindow::event(QEvent* event)
{
    if (event->type() != QEvent::StatusTip) return QMainWindow::event(event);
    mStatus->setPassingHint(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    // A profile is set up in another program: this window comes back to the front afterwards, or goes to another
    // screen.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        mCanvas->setScreenProfile(screenProfile(*this));
        // A dialog that came up from a menu bar still waiting for a letter would leave the keys with the bar.
        if (menuBar()->hasFocus()) giveFocusBack();
    }
    if (event->type() != QEvent::PaletteChange || mToolButtons.empty()) return;
    if (!mToolButtons[0]->icon().isNull()) setToolImages();
    showSwitches();
}
