// SPDX-License-Identifier: GPL-3.0-or-later
/// The text editor's settings and its modal run.
#include "windows/ZPTextEditor.h"
#include "base/NotificationCenter.h"
#include "desktop/Desktop.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Panels.h"
#include "desktop/QtColor.h"
#include "ui_TextEditor.h"
#include "windows/TextEditorOutline.h"
#include <QCoreApplication>
#include <QEventLoop>
#include <QFontDatabase>
#include <QFontInfo>
#include <QIntValidator>
#include <algorithm>

using namespace zp;

namespace
{

ZPTextEditor* shared = nullptr;
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
    fillFamilies();

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

void ZPTextEditor::setFontSize(int size)
{
    mFontSize = std::clamp(size, 1, kLargestSize);
    mUi->sizeField->setText(QString::number(mFontSize));
}

void ZPTextEditor::showWindow()
{
    setFontSize(mFontSize);
    centerWindow(this);
    show();
    raise();
    activateWindow();
    mUi->textEditor->setFocus();
    mUi->textEditor->selectAll();
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
    mUi->textView->setPlainText(mUi->textEditor->text());
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
    view->setPlainText(mUi->textEditor->text());
    view->selectAll();
    view->setCurrentFont(font);
    const Color color = mUi->fontColor->color();
    view->setTextColor(toQt(color));
    Qt::Alignment alignment = Qt::AlignLeft;
    if (mUi->alignCenter->isChecked()) alignment = Qt::AlignHCenter;
    if (mUi->alignRight->isChecked()) alignment = Qt::AlignRight;
    if (mUi->alignJustify->isChecked()) alignment = Qt::AlignJustify;
    view->setAlignment(alignment);
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
    return outlineOfText(mUi->textView->toPlainText(), chosenFont(), point).path;
}
