// SPDX-License-Identifier: GPL-3.0-or-later
/// The text editor's settings and its modal run.
#include "windows/ZPTextEditor.h"
#include "base/NotificationCenter.h"
#include "desktop/Desktop.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Panels.h"
#include "desktop/QtColor.h"
#include "desktop/WindowPlaces.h"
#include "ui_TextEditor.h"
#include "windows/TextEditorOutline.h"
#include <QApplication>
#include <QEventLoop>
#include <QFontDatabase>
#include <QFontInfo>
#include <QIntValidator>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>

using namespace zp;

namespace
{

ZPTextEditor* shared = nullptr;
QString familyUsedLast; ///< of a text that was placed; the main thread's
constexpr int kFirstSize = 36, kLargestSize = 10000;
constexpr int kTagPlus = 100, kTagMinus = 101;

} // namespace

ZPTextEditor* ZPTextEditor::sharedInstance()
{
    if (!shared) {
        shared = new ZPTextEditor;
        static bool once = (qAddPostRoutine([] { delete shared; }), true); // before the application object goes
        (void)once;
    }
    return shared;
}

ZPTextEditor::ZPTextEditor() : mUi(std::make_unique<Ui::TextEditor>()), mFontSize(kFirstSize)
{
    mUi->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    mUi->sizeField->setValidator(new QIntValidator(1, kLargestSize, mUi->sizeField));
    mUi->fontColor->setColor(kBlack);
    mUi->mNotice->hide();
    // Paper, whatever the desktop's colours: the preview's own colour is chosen against it.
    QPalette paper = mUi->textView->palette();
    paper.setColor(QPalette::Base, Qt::white);
    mUi->textView->setPalette(paper);
    mUi->textLines->hide();
    fillFamilies();

    connect(mUi->severalLines, &QCheckBox::toggled, this, &ZPTextEditor::takeSeveralLines);
    connect(mUi->textLines, &QPlainTextEdit::textChanged, this, [this] { set(); });
    connect(mUi->textEditor, &QLineEdit::textChanged, this, [this] { set(); });
    connect(mUi->fontPopUp, &QComboBox::currentIndexChanged, this, [this] { set(); });
    for (QPushButton* step : {mUi->sizePlus, mUi->sizeMinus})
        connect(step, &QPushButton::clicked, this, [this, step] { set(step->property("tag").toInt()); });
    for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{
             mUi->bold, mUi->italic, mUi->alignLeft, mUi->alignCenter, mUi->alignRight, mUi->alignJustify})
        connect(button, &QAbstractButton::clicked, this, [this] { set(); });
    connect(mUi->fontColor, &ColorWell::colorChosen, this, [this] { set(); });
    connect(mUi->sizeField, &QLineEdit::editingFinished, this, [this] {
        bool number = false;
        const int size = mUi->sizeField->text().toInt(&number);
        if (number && size == mFontSize) return;
        setFontSize(number ? size : mFontSize);
        set();
    });
    connect(mUi->okButton, &QPushButton::clicked, this, &ZPTextEditor::ok);
    // Return belongs to the text where there are several lines of it.
    for (const int key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(key)), this), &QShortcut::activated, this,
                &ZPTextEditor::ok);
    connect(mUi->cancelButton, &QPushButton::clicked, this, &ZPTextEditor::cancel);
    setFrameAutosaveName(this, "TextEditor");

    NotificationCenter::defaultCenter().addObserver(this, "FontSizeNotif", [this](const Notification& notification) {
        const auto size = notification.userInfo.find("fontSize");
        if (size != notification.userInfo.end()) setFontSize(std::atoi(size->second.c_str()));
    });
}

ZPTextEditor::~ZPTextEditor()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    if (mLoop) mLoop->exit();
    if (shared == this) shared = nullptr;
}

void ZPTextEditor::fillFamilies()
{
    QStringList families = QFontDatabase::families();
    families.removeIf([](const QString& family) { return QFontDatabase::isPrivateFamily(family); });
    std::sort(families.begin(), families.end(),
              [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    mUi->fontPopUp->addItems(families);
    // The serif that the desktop would choose stands in where neither Garamond is installed.
    QFont serif;
    serif.setStyleHint(QFont::Serif);
    serif.setFamily("serif");
    for (const QString& family : {QString("Garamond"), QString("EB Garamond"), QFontInfo(serif).family()}) {
        const int index = mUi->fontPopUp->findText(family);
        if (index < 0) continue;
        mUi->fontPopUp->setCurrentIndex(index);
        break;
    }
}

QString ZPTextEditor::lastFamily() { return familyUsedLast; }
void ZPTextEditor::setLastFamily(const QString& family) { familyUsedLast = family; }

void ZPTextEditor::putLastFamilyFirst()
{
    QComboBox& families = *mUi->fontPopUp;
    const QString chosen = families.currentText();
    const bool hasFirst = families.itemData(0).toBool();
    if (familyUsedLast.isEmpty() || (hasFirst && families.itemText(0) == familyUsedLast)) return;
    const QSignalBlocker quiet(families);
    for (int rows = hasFirst ? 2 : 0; rows > 0; --rows) families.removeItem(0); // the row and its line
    if (families.findText(familyUsedLast) < 0) return;                          // not installed any more
    families.insertItem(0, familyUsedLast, true);
    families.insertSeparator(1);
    families.setCurrentIndex(families.findText(chosen));
}

QString ZPTextEditor::typedText() const
{
    return mUi->severalLines->isChecked() ? mUi->textLines->toPlainText() : mUi->textEditor->text();
}

void ZPTextEditor::takeSeveralLines(bool several)
{
    {
        const QSignalBlocker quietLine(mUi->textEditor), quietLines(mUi->textLines);
        if (several)
            mUi->textLines->setPlainText(mUi->textEditor->text());
        else
            mUi->textEditor->setText(mUi->textLines->toPlainText().simplified());
    }
    mUi->textEditor->setVisible(!several);
    mUi->textLines->setVisible(several);
    mUi->textLabel->setBuddy(several ? static_cast<QWidget*>(mUi->textLines) : mUi->textEditor);
    mUi->textLabel->buddy()->setFocus();
    set();
}

Qt::Alignment ZPTextEditor::chosenAlignment() const
{
    Qt::Alignment alignment = Qt::AlignLeft;
    if (mUi->alignCenter->isChecked()) alignment = Qt::AlignHCenter;
    if (mUi->alignRight->isChecked()) alignment = Qt::AlignRight;
    if (mUi->alignJustify->isChecked()) alignment = Qt::AlignJustify;
    return alignment;
}

void ZPTextEditor::setFontSize(int size)
{
    mFontSize = std::clamp(size, 1, kLargestSize);
    mUi->sizeField->setText(QString::number(mFontSize));
}

void ZPTextEditor::showWindow(std::optional<QPoint> keepClear)
{
    setFontSize(mFontSize);
    putLastFamilyFirst();
    centerWindow(this);
    if (keepClear && screen()) {
        // What the window manager puts around it is known only once it is shown; of the window in front it is known
        // now.
        const QWidget* front = QApplication::activeWindow();
        const QRect frame(pos(), size() + (front ? front->frameSize() - front->size() : QSize(0, 0)));
        const QPoint corner = cornerClearOf(frame, *keepClear, screen()->availableGeometry());
        if (corner != frame.topLeft()) move(corner);
    }
    bringToFront(this);
    if (mUi->severalLines->isChecked()) {
        mUi->textLines->setFocus();
        mUi->textLines->selectAll();
    } else {
        mUi->textEditor->setFocus();
        mUi->textEditor->selectAll();
    }
    set();
}

void ZPTextEditor::run()
{
    if (mLoop) return;
    mValid = false; // unless OK says otherwise, also when the program ends meanwhile
    if (!isVisible()) showWindow();
    QEventLoop loop;
    mLoop = &loop;
    loop.exec();
    mLoop = nullptr;
}

void ZPTextEditor::stop(bool valid)
{
    mValid = valid;
    hide();
    if (mLoop) mLoop->exit();
}

void ZPTextEditor::ok()
{
    mUi->textView->setPlainText(typedText());
    familyUsedLast = mUi->fontPopUp->currentText();
    stop(true);
}

void ZPTextEditor::cancel() { stop(false); }

QFont ZPTextEditor::chosenFont() const
{
    QFont font(mUi->fontPopUp->currentText());
    font.setPixelSize(mFontSize);
    font.setBold(mUi->bold->isChecked());
    font.setItalic(mUi->italic->isChecked());
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void ZPTextEditor::set(int tag)
{
    if (tag == kTagPlus || tag == kTagMinus) {
        const int step = currentKeyModifiers() & kShiftKey ? 10 : 1;
        setFontSize(tag == kTagPlus ? mFontSize + step : mFontSize - step);
    }
    const QFont font = chosenFont();
    QTextEdit* view = mUi->textView;
    view->setPlainText(typedText());
    view->selectAll();
    view->setCurrentFont(font);
    const Color color = mUi->fontColor->color();
    view->setTextColor(toQt(color));
    view->setAlignment(chosenAlignment());
    QTextCursor start = view->textCursor();
    start.clearSelection();
    view->setTextCursor(start);

    QString notice;
    if (!hasOutlines(font))
        notice = tr("The letters of this family are pictures without outlines. Please choose another family.");
    else if (outlineOfText(view->toPlainText(), font, {}).outlineless)
        notice = tr("Some characters are pictures without an outline and are left out.");
    mUi->mNotice->setText(notice);
    mUi->mNotice->setVisible(!notice.isEmpty());
    NotificationCenter::defaultCenter().post("TextEditorNotif");
}

std::optional<BezierPath> ZPTextEditor::textPathAtPoint(Point point) const
{
    const QString text = mUi->textView->toPlainText();
    return mUi->severalLines->isChecked() ? outlineOfLines(text, chosenFont(), point, chosenAlignment()).path
                                          : outlineOfText(text, chosenFont(), point).path;
}
