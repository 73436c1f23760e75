// SPDX-License-Identifier: GPL-3.0-or-later
/// Wires the main window's controls to the canvas.
#include "app/MainWindow.h"
#include "app/Icons.h"
#include "base/Folders.h"
#include "canvas/ToolTable.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ImageImporter.h"
#include "desktop/ColorWell.h"
#include "desktop/KeyModifiers.h"
#include "desktop/ScrollView.h"
#include "document/Document.h"
#include "ui_Main.h"
#include <QButtonGroup>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QToolButton>
#include <QUrl>

using namespace zp;

namespace
{

constexpr const char* kZoomTitles[] = {"6.25%", "12.5%", "25%", "50%", "100%", "200%", "400%", "800%", "1600%"};
static_assert(std::size(kZoomTitles) == kZoomLevels.size());

/// A zoom as people say it.
QString percent(float zoom)
{
    const double value = double(zoom) * 100;
    return QString("%1 %").arg(value, 0, 'g', value >= 1000 ? 4 : 3);
}

QString tool(const char* text) { return QCoreApplication::translate("Tools", text); }

} // namespace

MainWindow::MainWindow(Document& document)
    : mUi(std::make_unique<Ui::Main>()), mDocument(document), mCanvas(new ZPCanvas(document))
{
    mUi->setupUi(this);
    mUi->mScrollView->setWidget(mCanvas);
    mUi->mScrollView->viewport()->setCursor(Qt::CrossCursor);
    setUpTools();
    setUpToolOptions();
    setUpZoom();
    setUpSwitches();
    setUpStatusLine();
    mUi->optionsBar->setMinimumHeight(mUi->mZoomPopUp->sizeHint().height() + 13);

    connect(&mDocument, &Document::toolChosen, this, &MainWindow::showTool);
    connect(&mDocument, &Document::paintChanged, this, &MainWindow::showPaint);
    connect(&mDocument, &Document::zoomChanged, this, &MainWindow::showZoom);
    connect(&mDocument, &Document::changed, this, &MainWindow::showStatus);
    connect(&mDocument, &Document::pointerMoved, this, &MainWindow::showPointer);
    connect(&mDocument, &Document::busyChanged, mUi->mBusyIndicator, &QWidget::setVisible);
    showTool();
    showPaint();
    showZoom();
    showStatus();
    resize(1180, 780);
    mCanvas->setFocus(); // single keys are commands of the canvas
}

MainWindow::~MainWindow() = default;

void MainWindow::setUpTools()
{
    auto* group = new QButtonGroup(this);
    for (const ToolRow& row : toolTable()) {
        const QString title = tool(row.title), tip = tool(row.tip), key(row.key);
        mUi->mToolPopUp->addItem(title);
        mUi->mToolPopUp->setItemData(int(row.tool), QString("%1 (%2)").arg(tip, key), Qt::ToolTipRole);
        auto* button = new QToolButton(mUi->toolStrip);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setIconSize({22, 22});
        button->setFocusPolicy(Qt::TabFocus);
        button->setToolTip(QString("<b>%1</b> (%2)<br>%3").arg(title, key, tip));
        button->setAccessibleName(title);
        group->addButton(button, int(row.tool));
        mUi->toolColumn->addWidget(button);
        mToolButtons.push_back(button);
    }
    mUi->toolColumn->addStretch();
    mUi->mToolPopUp->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const auto choose = [this](int index) {
        mCanvas->setTool(index);
        giveFocusBack();
    };
    connect(group, &QButtonGroup::idClicked, this, choose);
    connect(mUi->mToolPopUp, &QComboBox::activated, this, choose);
}

void MainWindow::setUpToolOptions()
{
    connect(mUi->mColorWell, &ColorWell::colorChosen, this, [this](Color c, bool goesOn) {
        if (goesOn)
            mDocument.movePaintColor(c);
        else
            mDocument.setPaintColor(c);
    });

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
    mUi->mZoomPopUp->setWidestFace(tr("Fit · %1").arg(percent(0.0888f)));
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
}

void MainWindow::setUpSwitches()
{
    // Window managers take some modifier keys away: each role also has a switch here, beside the tools that use it.
    struct Role {
        const char *title, *tip;
        unsigned bit, option;
    };
    const Role roles[] = {
        {"Square", "As if Command were held: the marquee becomes a square", kCommandKey, options::Square},
        {"Oval", "As if Control were held: the marquee becomes an oval", kControlKey, options::Oval},
        {"Polygon", "As if Control were held: click corners, Return ends", kControlKey, options::Polygon},
        {"Add", "As if Shift were held: the new shape joins the selection", kShiftKey, options::Add},
        {"Subtract", "As if Option were held: the new shape is cut from the selection", kOptionKey, options::Subtract},
        {"Float", "As if Command were held: dragging the selection lifts its pixels", kCommandKey, options::Float},
        {"Straight", "As if Shift were held: one straight line from press to release", kShiftKey, options::Straight},
        {"Set source", "As if Option were held: the click sets where pixels come from", kOptionKey, options::SetSource},
    };
    for (const Role& role : roles) {
        auto* button = new QToolButton(mUi->switches);
        button->setText(tr(role.title));
        button->setToolTip(tr(role.tip));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setObjectName(QString("mSwitch_%1").arg(QString(role.title).remove(' ')));
        mUi->switchRow->addWidget(button);
        mSwitches.push_back({button, role.bit, role.option});
        connect(button, &QToolButton::toggled, this, [this] {
            unsigned bits = 0;
            for (const Switch& s : mSwitches)
                if (s.button->isChecked()) bits |= s.keyBit;
            setSwitchedKeyModifiers(bits);
        });
        connect(button, &QToolButton::clicked, this, &MainWindow::giveFocusBack);
    }
}

void MainWindow::setUpStatusLine()
{
    const auto label = [this](const char* tip, const char* widest, int stretch) {
        auto* l = new QLabel(this);
        l->setToolTip(tr(tip));
        l->setMinimumWidth(l->fontMetrics().horizontalAdvance(widest));
        l->setContentsMargins(6, 0, 6, 0);
        statusBar()->addWidget(l, stretch);
        return l;
    };
    mInfoField = label("Box of the selection", "{{00000, 00000}, {00000, 00000}}", 1);
    mInfoField->setObjectName("mInfoField");
    mPointerLabel = label("Position and colour under the pointer", "00000, 00000   #00000000", 0);
    mPointerLabel->setObjectName("mPointerField");
    mImageLabel = label("Size of the image and zoom", "00000 × 00000 · 1600 %", 0);
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
    const ToolRow& row = rowOf(mDocument.gesture().tool());
    const auto has = [&row](unsigned option) { return (row.options & option) != 0; };
    for (QWidget* w : std::initializer_list<QWidget*>{mUi->toleranceLabel, mUi->mToleranceSlider, mUi->mToleranceField})
        w->setVisible(has(options::Tolerance));
    for (QWidget* w : std::initializer_list<QWidget*>{mUi->sizeLabel, mUi->mSizeSlider, mUi->mSizeField})
        w->setVisible(has(options::Size));
    mUi->mBrushPopUp->setVisible(has(options::BrushShape));
    for (const Switch& s : mSwitches) {
        s.button->setVisible(has(s.option));
        if (!has(s.option)) s.button->setChecked(false);
    }
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
}

void MainWindow::showZoom()
{
    const QSignalBlocker quiet(mUi->mZoomPopUp);
    const View& view = mDocument.view();
    mUi->mZoomPopUp->setCurrentIndex(view.nearestLevel());
    const bool isLevel = kZoomLevels[std::size_t(view.nearestLevel())] == view.zoom();
    if (view.fit() != Fit::No)
        mUi->mZoomPopUp->setFace(tr("Fit · %1").arg(percent(view.zoom())));
    else
        mUi->mZoomPopUp->setFace(isLevel ? QString() : percent(view.zoom()));
}

void MainWindow::giveFocusBack() { mCanvas->setFocus(); }

void MainWindow::showPointer()
{
    const Point p = mDocument.view().pointer();
    const int x = int(std::floor(p.x)), y = int(std::floor(p.y));
    QString text = QString("%1, %2").arg(x).arg(y);
    const ConstBitmapView pixels = mDocument.picture().pixels();
    if (pixels.box().contains(x, y)) {
        const std::uint8_t* pixel = pixels.pixel(x, y);
        const int alpha = pixel[0];
        const auto plain = [alpha](int c) { return alpha ? std::min(255, (c * 255 + alpha / 2) / alpha) : 0; };
        text += QString("   #%1%2%3")
                    .arg(plain(pixel[1]), 2, 16, QChar('0'))
                    .arg(plain(pixel[2]), 2, 16, QChar('0'))
                    .arg(plain(pixel[3]), 2, 16, QChar('0'));
        if (alpha < 255) text += QString(" %1 %").arg(qRound(alpha / 2.55));
    }
    mPointerLabel->setText(text);
}

void MainWindow::showStatus()
{
    mInfoField->setText(QString::fromStdString(mDocument.infoText()));
    showPointer();
    const Picture& picture = mDocument.picture();
    if (!picture.isLoaded()) {
        mImageLabel->clear();
        setWindowTitle("Zelpane");
        return;
    }
    mImageLabel->setText(QString("%1 × %2 · %3 %")
                             .arg(picture.width())
                             .arg(picture.height())
                             .arg(double(mDocument.view().zoom()) * 100, 0, 'g', 4));
    const std::string name = displayName(lastPathComponent(picture.path()));
    setWindowTitle(name.empty() ? tr("Untitled — Zelpane") : QString("%1 — Zelpane").arg(QString::fromStdString(name)));
}

void MainWindow::toggleFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (mayClose && !mayClose()) event->ignore();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile() && openDroppedFile) {
            event->acceptProposedAction();
            openDroppedFile(QFile::encodeName(url.toLocalFile()).toStdString());
            return;
        }
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !mToolButtons.empty() && !mToolButtons[0]->icon().isNull())
        setToolImages();
}
