// SPDX-License-Identifier: GPL-3.0-or-later
/// Wires the main window's controls to the canvas.
#include "app/MainWindow.h"
#include "app/Icons.h"
#include "base/Folders.h"
#include "canvas/ZPCanvas.h"
#include "desktop/ColorWell.h"
#include "desktop/KeyModifiers.h"
#include "desktop/ScrollView.h"
#include "ui_Main.h"
#include <QButtonGroup>
#include <QCloseEvent>
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

struct ToolTitle {
    const char *title, *tip;
};
/// In the order of the tool numbers.
const ToolTitle kTools[] = {
    {"Rectangle Selection", "Selects a rectangle; square and oval by switch or key"},
    {"Lasso", "Selects by a drawn outline; polygon by switch or key, ended with Return"},
    {"Magic Wand", "Selects the area of similar colour"},
    {"Brush", "Paints with a brush tip"},
    {"Pencil", "Draws a line; straight with Shift"},
    {"Eraser", "Makes pixels transparent; straight with Shift"},
    {"Paint Bucket", "Fills the area of similar colour"},
    {"Eyedropper", "Picks the colour under the pointer"},
    {"Text", "Places text as a selection"},
    {"Clone Stamp", "Paints with pixels from elsewhere; Option-click sets the source"},
};

/// Nine levels, powers of two, so that picture pixels and screen pixels always meet evenly.
const char* const kZoomTitles[] = {"6.25%", "12.5%", "25%", "50%", "100%", "200%", "400%", "800%", "1600%"};
constexpr int kActualSizeIndex = 4;

double zoomOfTitle(const char* title) { return QByteArray(title).chopped(1).toDouble() / 100; }

} // namespace

MainWindow::MainWindow() : mUi(std::make_unique<Ui::Main>()), mCanvas(new ZPCanvas)
{
    mUi->setupUi(this);
    mUi->mScrollView->setWidget(mCanvas);
    mUi->mScrollView->viewport()->setCursor(Qt::CrossCursor);
    setUpToolOptions();
    setUpSwitches();
    setUpStatusLine();
    mUi->optionsBar->setMinimumHeight(mUi->mZoomPopUp->sizeHint().height() + 13);

    connect(mUi->mScrollView, &ScrollView::zoomRequested, this, [this](int steps, QPointF p) {
        const float z = mCanvas->effectiveZoom();
        const Point anchor{float(p.x() / z), float(p.y() / z)};
        const int index = std::clamp(mUi->mZoomPopUp->currentIndex() + steps, 0, mUi->mZoomPopUp->count() - 1);
        mCanvas->setZoom(float(zoomOfTitle(kZoomTitles[index])), anchor);
    });
    connect(mCanvas, &ZPCanvas::zoomChanged, this, &MainWindow::showZoom);
    connect(mCanvas, &ZPCanvas::imageReplaced, this, &MainWindow::showTitle);
    connect(mCanvas, &ZPCanvas::pointerMoved, this, &MainWindow::showPointer);
    connect(mCanvas, &ZPCanvas::busyChanged, mUi->mBusyIndicator, &QWidget::setVisible);
    resize(1180, 780);
    mCanvas->setFocus(); // single keys are commands of the canvas
}

MainWindow::~MainWindow() = default;

void MainWindow::setUpToolOptions()
{
    auto* group = new QButtonGroup(this);
    for (int i = 0; i < int(std::size(kTools)); ++i) {
        const QString title = tr(kTools[i].title), key = QString::number((i + 1) % 10);
        mUi->mToolPopUp->addItem(title);
        mUi->mToolPopUp->setItemData(i, QString("%1 (%2)").arg(tr(kTools[i].tip), key), Qt::ToolTipRole);
        auto* button = new QToolButton(mUi->toolStrip);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setIconSize({22, 22});
        button->setFocusPolicy(Qt::TabFocus);
        button->setToolTip(QString("<b>%1</b> (%2)<br>%3").arg(title, key, tr(kTools[i].tip)));
        button->setAccessibleName(title);
        group->addButton(button, i);
        mUi->toolColumn->addWidget(button);
        mToolButtons.push_back(button);
    }
    mUi->toolColumn->addStretch();
    mUi->mToolPopUp->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    mToolButtons[0]->setChecked(true);
    const auto choose = [this](int index) {
        mCanvas->setTool(index);
        giveFocusBack();
    };
    connect(group, &QButtonGroup::idClicked, this, choose);
    connect(mUi->mToolPopUp, &QComboBox::activated, this, choose);
    connect(mCanvas, &ZPCanvas::toolOptionsChanged, this, &MainWindow::showToolOptions);

    for (const char* title : kZoomTitles) mUi->mZoomPopUp->addItem(title);
    mUi->mZoomPopUp->setCurrentIndex(kActualSizeIndex);
    connect(mUi->mZoomPopUp, &QComboBox::activated, this, [this] {
        mCanvas->zoom(mUi->mZoomPopUp);
        giveFocusBack();
    });

    connect(mUi->mColorWell, &ColorWell::colorChosen, this, [this](Color c) { mCanvas->setPaintColor(c); });
    connect(mCanvas, &ZPCanvas::paintColorChanged, this, [this] { mUi->mColorWell->setColor(mCanvas->mColor); });

    const auto setSize = [this](int size) {
        const QSignalBlocker quietSlider(mUi->mSizeSlider), quietField(mUi->mSizeField);
        mUi->mSizeSlider->setValue(size);
        mUi->mSizeField->setValue(size);
        mCanvas->setBrushSize(float(size));
    };
    connect(mUi->mSizeSlider, &QSlider::valueChanged, this, setSize);
    connect(mUi->mSizeField, &QSpinBox::valueChanged, this, setSize);
    connect(mUi->mSizeSlider, &QSlider::sliderReleased, this, &MainWindow::giveFocusBack);

    for (int i = 1; fileExists(shippedResourcesFolder() + "/B" + std::to_string(i) + ".png"); ++i) {
        mUi->mBrushPopUp->addItem(tr("Brush %1").arg(i));
    }
    mUi->mBrushPopUp->setIconSize({20, 20});
    connect(mUi->mBrushPopUp, &QComboBox::activated, this, &MainWindow::giveFocusBack);

    connect(mUi->mToleranceSlider, &QSlider::valueChanged, this,
            [this] { mCanvas->toleranceSlider(mUi->mToleranceSlider); });
    connect(mUi->mToleranceSlider, &QSlider::sliderReleased, this, &MainWindow::giveFocusBack);
    connect(mUi->mToleranceField, &QSpinBox::valueChanged, mUi->mToleranceSlider, &QSlider::setValue);
    for (QSpinBox* field : {mUi->mSizeField, mUi->mToleranceField})
        connect(field, &QSpinBox::editingFinished, this, [this] { giveFocusBack(); });

    mCanvas->mToolPopUp = mUi->mToolPopUp;
    mCanvas->mColorWell = mUi->mColorWell;
    mCanvas->mZoomPopUp = mUi->mZoomPopUp;
    mCanvas->mBrushPopUp = mUi->mBrushPopUp;
    mCanvas->mToleranceSlider = mUi->mToleranceSlider;
    mCanvas->mToleranceField = mUi->mToleranceField;
    mCanvas->mBusyIndicator = mUi->mBusyIndicator;
    mCanvas->tool(mUi->mToolPopUp);
}

void MainWindow::setUpSwitches()
{
    // Window managers take some modifier keys away: each role also has a switch here, beside the tools that use it.
    struct Role {
        const char *title, *tip;
        unsigned bit;
        std::vector<int> tools;
    };
    const Role roles[] = {
        {"Square", "As if Command were held: the marquee becomes a square", kCommandKey, {0}},
        {"Oval", "As if Control were held: the marquee becomes an oval", kControlKey, {0}},
        {"Polygon", "As if Control were held: click corners, Return ends", kControlKey, {1}},
        {"Add", "As if Shift were held: the new shape joins the selection", kShiftKey, {0, 1, 2}},
        {"Subtract", "As if Option were held: the new shape is cut from the selection", kOptionKey, {0, 1, 2}},
        {"Float", "As if Command were held: dragging the selection lifts its pixels", kCommandKey, {1, 2, 8}},
        {"Straight", "As if Shift were held: one straight line from press to release", kShiftKey, {4, 5}},
        {"Set source", "As if Option were held: the click sets where pixels come from", kOptionKey, {9}},
    };
    for (const Role& role : roles) {
        auto* button = new QToolButton(mUi->switches);
        button->setText(tr(role.title));
        button->setToolTip(tr(role.tip));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setObjectName(QString("mSwitch_%1").arg(QString(role.title).remove(' ')));
        mUi->switchRow->addWidget(button);
        mSwitches.push_back({button, role.bit, role.tools});
        connect(button, &QToolButton::toggled, this, [this] {
            unsigned bits = 0;
            for (const Switch& s : mSwitches)
                if (s.button->isChecked()) bits |= s.keyBit;
            setSwitchedKeyModifiers(bits);
        });
        connect(button, &QToolButton::clicked, this, &MainWindow::giveFocusBack);
    }
    showToolOptions(0);
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
    mCanvas->mInfoField = mInfoField;
}

void MainWindow::setToolImages()
{
    QApplication::setWindowIcon(applicationImage("zelpane", palette()));
    for (int i = 0; i < int(std::size(kTools)); ++i) {
        const QIcon icon = applicationImage(kTools[i].title, palette());
        mUi->mToolPopUp->setItemIcon(i, icon);
        mToolButtons[std::size_t(i)]->setIcon(icon);
    }
    for (int i = 0; i < mUi->mBrushPopUp->count(); ++i) {
        QImage tip(QFile::decodeName(shippedResourcesFolder().c_str()) + QString("/B%1.png").arg(i + 1));
        if (tip.isNull()) continue;
        // Only the shape counts: its alpha in the colour of the text.
        tip = tip.scaled(60, 60, Qt::KeepAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_ARGB32);
        QPainter painter(&tip);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(tip.rect(), palette().color(QPalette::WindowText));
        painter.end();
        mUi->mBrushPopUp->setItemIcon(i, QIcon(QPixmap::fromImage(tip)));
    }
}

void MainWindow::showToolOptions(int tool)
{
    const bool tolerance = tool == 2 || tool == 6;
    mUi->toleranceLabel->setVisible(tolerance);
    const bool sized = tool == 3 || tool == 4 || tool == 5 || tool == 8 || tool == 9;
    // The size is also the width of the Stroke command, so it stays reachable with every selection tool.
    const bool showSize = sized || tool == 0 || tool == 1;
    for (QWidget* w : std::initializer_list<QWidget*>{mUi->sizeLabel, mUi->mSizeSlider, mUi->mSizeField})
        w->setVisible(showSize);
    for (const Switch& s : mSwitches) {
        const bool used = std::find(s.tools.begin(), s.tools.end(), tool) != s.tools.end();
        s.button->setVisible(used);
        if (!used) s.button->setChecked(false);
    }
    if (tool >= 0 && tool < int(mToolButtons.size())) mToolButtons[std::size_t(tool)]->setChecked(true);
}

void MainWindow::giveFocusBack() { mCanvas->setFocus(); }

void MainWindow::showPointer(QPointF p)
{
    const int x = int(std::floor(p.x())), y = int(std::floor(p.y()));
    QString text = QString("%1, %2").arg(x).arg(y);
    const Rect bounds = mCanvas->bounds();
    if (bounds.contains({float(p.x()), float(p.y())}) && mCanvas->mBitmapRep) {
        const std::uint8_t* pixel = std::as_const(*mCanvas->mBitmapRep).view().pixel(x, y);
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

void MainWindow::showZoom()
{
    int nearest = 0;
    const double wanted = std::log(double(mCanvas->mZoom));
    for (int i = 1; i < int(std::size(kZoomTitles)); ++i)
        if (std::abs(std::log(zoomOfTitle(kZoomTitles[i])) - wanted) <
            std::abs(std::log(zoomOfTitle(kZoomTitles[nearest])) - wanted))
            nearest = i;
    const QSignalBlocker quiet(mUi->mZoomPopUp);
    mUi->mZoomPopUp->setCurrentIndex(nearest);
    showTitle();
}

void MainWindow::showTitle()
{
    const Size size = mCanvas->imageSize();
    if (!mCanvas->imageLoaded()) {
        mImageLabel->clear();
        setWindowTitle("Zelpane");
        return;
    }
    mImageLabel->setText(QString("%1 × %2 · %3 %")
                             .arg(int(size.width))
                             .arg(int(size.height))
                             .arg(double(mCanvas->mZoom) * 100, 0, 'g', 4));
    const std::string& path = mCanvas->mImagePath;
    setWindowTitle(path.empty()
                       ? tr("Untitled — Zelpane")
                       : QString("%1 — Zelpane").arg(QString::fromStdString(displayName(lastPathComponent(path)))));
}

void MainWindow::zoomIn()
{
    mUi->mZoomPopUp->setCurrentIndex(std::min(mUi->mZoomPopUp->currentIndex() + 1, mUi->mZoomPopUp->count() - 1));
    mCanvas->zoom(mUi->mZoomPopUp);
}

void MainWindow::zoomOut()
{
    mUi->mZoomPopUp->setCurrentIndex(std::max(mUi->mZoomPopUp->currentIndex() - 1, 0));
    mCanvas->zoom(mUi->mZoomPopUp);
}

void MainWindow::actualSize()
{
    mUi->mZoomPopUp->setCurrentIndex(kActualSizeIndex);
    mCanvas->zoom(mUi->mZoomPopUp);
}

void MainWindow::fitToWindow()
{
    const Size size = mCanvas->imageSize();
    if (!mCanvas->imageLoaded()) return;
    // The viewport without scroll bars, whether they show now or not.
    const QSize room = mUi->mScrollView->size();
    // Half a pixel less, so that rounding up never brings a scroll bar.
    const float scale =
        std::min((float(room.width()) - 0.5f) / size.width, (float(room.height()) - 0.5f) / size.height);
    mCanvas->setZoom(mCanvas->m2xRetina ? scale * 2 : scale);
}

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
