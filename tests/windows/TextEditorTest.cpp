// SPDX-License-Identifier: GPL-3.0-or-later
/// The text editor's settings, its modal run, and outlines of many kinds of text.
#include "base/NotificationCenter.h"
#include "desktop/KeyModifiers.h"
#include "windows/TextEditorOutline.h"
#include "windows/ZPTextEditor.h"
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRawFont>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

QFont fontOf(const char* family, int size, bool bold = false)
{
    QFont font{QString::fromLatin1(family)};
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
}

/// Back into Qt's words, y downwards, even-odd as it comes.
QPainterPath painterPath(const BezierPath& path)
{
    QPainterPath out;
    out.setFillRule(Qt::OddEvenFill);
    const auto q = [](Point p) { return QPointF(double(p.x), -double(p.y)); };
    path.forEach([&](PathElement kind, const Point* p) {
        switch (kind) {
        case PathElement::MoveTo:
            out.moveTo(q(p[0]));
            break;
        case PathElement::LineTo:
            out.lineTo(q(p[0]));
            break;
        case PathElement::CurveTo:
            out.cubicTo(q(p[0]), q(p[1]), q(p[2]));
            break;
        case PathElement::ClosePath:
            out.closeSubpath();
            break;
        }
    });
    return out;
}

QImage painted(const QPainterPath& path, QSize size, QPointF at)
{
    QImage image(size, QImage::Format_Grayscale8);
    image.fill(255);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(at);
    painter.fillPath(path, Qt::black);
    return image;
}

/// Pixels of the first that differ from the second by more than half.
int differing(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) count += std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]) > 128;
    return count;
}

class TextEditor : public testing::Test
{
protected:
    void SetUp() override
    {
        mEditor = ZPTextEditor::sharedInstance();
        mEditor->setFontSize(36);
        find<QLineEdit>("textEditor")->clear();
        NotificationCenter::defaultCenter().addObserver(this, "TextEditorNotif",
                                                        [this](const Notification&) { ++mPosted; });
        setScriptedKeyModifiers(0u);
    }
    void TearDown() override
    {
        NotificationCenter::defaultCenter().removeObserver(this);
        setScriptedKeyModifiers(std::nullopt);
        mEditor->hide();
    }
    template <class W>
    W* find(const char* name) const
    {
        return mEditor->findChild<W*>(name);
    }
    QString size() const { return find<QLineEdit>("sizeField")->text(); }

    ZPTextEditor* mEditor = nullptr;
    int mPosted = 0;
};

} // namespace

TEST_F(TextEditor, StartsWithASerifAndAllFamiliesInOrder)
{
    auto* families = find<QComboBox>("fontPopUp");
    ASSERT_GT(families->count(), 0);
    for (int i = 1; i < families->count(); ++i)
        EXPECT_LE(families->itemText(i - 1).compare(families->itemText(i), Qt::CaseInsensitive), 0);
    const QString chosen = families->currentText();
    for (const char* wanted : {"Garamond", "EB Garamond"}) {
        if (families->findText(wanted) < 0) continue;
        EXPECT_EQ(chosen, wanted);
        break;
    }
    EXPECT_EQ(mEditor->objectName(), "TextEditor");
}

TEST_F(TextEditor, SizeStepsByOneAndWithShiftByTenNeverBelowOne)
{
    auto *plus = find<QPushButton>("sizePlus"), *minus = find<QPushButton>("sizeMinus");
    EXPECT_EQ(plus->property("tag"), 100);
    EXPECT_EQ(minus->property("tag"), 101);
    EXPECT_EQ(size(), "36");
    plus->click();
    EXPECT_EQ(size(), "37");
    setScriptedKeyModifiers(kShiftKey);
    plus->click();
    EXPECT_EQ(size(), "47");
    mEditor->setFontSize(5);
    minus->click();
    EXPECT_EQ(size(), "1");
    minus->click();
    EXPECT_EQ(size(), "1");
    setScriptedKeyModifiers(0u);
    minus->click();
    EXPECT_EQ(size(), "1");
    EXPECT_EQ(mPosted, 5);
}

TEST_F(TextEditor, TakesTheSizeOfTheCanvas)
{
    NotificationCenter::defaultCenter().post("FontSizeNotif", {}, {{"fontSize", "13"}});
    EXPECT_EQ(size(), "13");
    NotificationCenter::defaultCenter().post("FontSizeNotif");
    EXPECT_EQ(mEditor->fontSize(), 13);
}

TEST_F(TextEditor, EveryChangeIsPostedAndPreviewed)
{
    mEditor->showWindow();
    EXPECT_EQ(mPosted, 1);
    QTest::keyClicks(find<QLineEdit>("textEditor"), "ab");
    EXPECT_EQ(mPosted, 3);
    auto* view = find<QTextEdit>("textView");
    EXPECT_EQ(view->toPlainText(), "ab");
    find<QRadioButton>("alignRight")->click();
    EXPECT_EQ(view->alignment(), Qt::AlignRight);
    find<QRadioButton>("alignJustify")->click();
    EXPECT_EQ(view->alignment(), Qt::AlignJustify);
    find<QRadioButton>("alignLeft")->click();
    find<QCheckBox>("bold")->click();
    EXPECT_TRUE(view->currentFont().bold());
    find<QCheckBox>("bold")->click();
    QTest::keyClicks(find<QLineEdit>("sizeField"), "");
    find<QLineEdit>("sizeField")->setText("50");
    emit find<QLineEdit>("sizeField")->editingFinished();
    EXPECT_EQ(mEditor->fontSize(), 50);
    EXPECT_EQ(mPosted, 9);
}

TEST_F(TextEditor, RunsUntilOKOrCancel)
{
    const auto runWith = [&](std::function<void()> act) {
        mEditor->showWindow();
        QTimer::singleShot(0, mEditor, act);
        mEditor->run();
        EXPECT_FALSE(mEditor->isVisible());
        return mEditor->isValid();
    };
    EXPECT_TRUE(runWith([&] {
        EXPECT_TRUE(mEditor->isModal());
        QTest::keyClicks(find<QLineEdit>("textEditor"), "Hi");
        QTest::keyClick(find<QLineEdit>("textEditor"), Qt::Key_Return);
    }));
    ASSERT_TRUE(mEditor->textPathAtPoint({}));
    EXPECT_FALSE(mEditor->textPathAtPoint({})->isEmpty());
    EXPECT_FALSE(runWith([&] { QTest::keyClick(mEditor, Qt::Key_Escape); }));
    EXPECT_FALSE(runWith([&] { mEditor->close(); }));
    EXPECT_TRUE(runWith([&] { find<QPushButton>("okButton")->click(); }));
    EXPECT_EQ(find<QLineEdit>("textEditor")->text(), "Hi"); // the next session opens with the last text
    find<QLineEdit>("textEditor")->clear();
    EXPECT_TRUE(runWith([&] { mEditor->ok(); }));
    EXPECT_TRUE(mEditor->textPathAtPoint({})->isEmpty());
}

TEST_F(TextEditor, TheFamilyOfTheLastTextStandsFirst)
{
    auto* families = find<QComboBox>("fontPopUp");
    const int before = families->count();
    const QString first = families->itemText(0), last = families->itemText(before - 1);
    ASSERT_NE(first, last);
    families->setCurrentText(last);
    mEditor->showWindow();
    EXPECT_EQ(families->itemText(0), first) << "nothing was placed yet";
    mEditor->ok();
    mEditor->showWindow();
    EXPECT_EQ(families->itemText(0), last);
    EXPECT_EQ(families->count(), before + 2) << "the row and a line below it";
    EXPECT_EQ(families->currentText(), last);
    mEditor->cancel();
    families->setCurrentText(first);
    mEditor->ok();
    mEditor->showWindow();
    EXPECT_EQ(families->itemText(0), first);
    EXPECT_EQ(families->count(), before + 2);
    EXPECT_EQ(ZPTextEditor::lastFamily(), first);
}

TEST_F(TextEditor, SeveralLinesStandBelowEachOther)
{
    auto* several = find<QCheckBox>("severalLines");
    EXPECT_FALSE(several->isChecked()) << "as given";
    find<QLineEdit>("textEditor")->setText("WWW");
    const Rect one = mEditor->textPathAtPoint({100, 200})->bounds();
    several->setChecked(true);
    auto* lines = find<QPlainTextEdit>("textLines");
    EXPECT_EQ(lines->toPlainText(), "WWW");
    EXPECT_NEAR(mEditor->textPathAtPoint({100, 200})->bounds().maxY(), one.maxY(), 0.01);
    lines->setPlainText("WWW\n\nW");
    const Rect three = mEditor->textPathAtPoint({100, 200})->bounds();
    EXPECT_NEAR(three.maxY(), one.maxY(), 0.01) << "the first stays where it was, y upwards";
    EXPECT_NEAR(three.size.width, one.size.width, 0.1);
    EXPECT_GT(three.size.height, 2.5f * one.size.height);
    several->setChecked(false);
    EXPECT_EQ(find<QLineEdit>("textEditor")->text(), "WWW W");
}

TEST(TextOutline, LinesAreAlignedWithinTheWidest)
{
    const QFont font = fontOf("DejaVu Sans", 40);
    const auto lastLine = [&](Qt::Alignment alignment) {
        Rect box{};
        bool any = false;
        outlineOfLines("WWWW\nI", font, {10, 100}, alignment).path.forEach([&](PathElement kind, const Point* p) {
            if (kind == PathElement::ClosePath || p->y >= 95) return; // of the first line
            box = any ? unionRect(box, makeRect(p->x, p->y, 0.01f, 0.01f)) : makeRect(p->x, p->y, 0.01f, 0.01f);
            any = true;
        });
        return box;
    };
    const float left = lastLine(Qt::AlignLeft).minX(), middle = lastLine(Qt::AlignHCenter).minX(),
                right = lastLine(Qt::AlignRight).minX();
    const Rect widest = outlineOfText("WWWW", font, {10, 100}).path.bounds();
    EXPECT_NEAR(middle - left, right - middle, 0.2);
    EXPECT_NEAR(lastLine(Qt::AlignRight).maxX(), widest.maxX(), 0.2);
    EXPECT_EQ(lastLine(Qt::AlignJustify), lastLine(Qt::AlignLeft));
}

TEST_F(TextEditor, PreviewsQuicklyEnoughForTyping)
{
    auto* field = find<QLineEdit>("textEditor");
    field->setText("The quick brown fox jumps over the lazy dog"); // fonts are loaded now
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 20; ++i) field->setText(field->text() + "x");
    std::printf("a keystroke in a line of 50 letters: %.2f ms\n", double(clock.nsecsElapsed()) / 20e6);
#ifndef ZP_SANITIZED
    EXPECT_LT(clock.elapsed(), 20 * 100);
#endif
}

TEST(TextOutline, StandsOnTheBaseLineWithYUpwards)
{
    const QFont font = fontOf("DejaVu Serif", 100);
    const TextOutline h = outlineOfText("H", font, {200, 300});
    EXPECT_EQ(h.path.windingRule(), WindingRule::EvenOdd);
    EXPECT_EQ(h.path.lineWidth(), 1.0f);
    EXPECT_FALSE(h.outlineless);
    const Rect box = h.path.bounds();
    EXPECT_NEAR(box.minY(), 300, 0.6);
    EXPECT_NEAR(box.size.height, 73, 3); // the height of its capitals
    EXPECT_NEAR(box.minX(), 205, 4);     // after the letter's own side bearing
    const Rect p = outlineOfText("p", font, {200, 300}).path.bounds();
    EXPECT_LT(p.minY(), 285); // the descender
    EXPECT_GT(p.maxY(), 340);
    EXPECT_TRUE(outlineOfText("", font, {}).path.isEmpty());
    EXPECT_TRUE(outlineOfText("  ", font, {}).path.isEmpty());
}

TEST(TextOutline, IsTheSameShapeAtAnySize)
{
    const Rect small = outlineOfText("Quartz fly", fontOf("DejaVu Sans", 10), {}).path.bounds();
    const Rect large = outlineOfText("Quartz fly", fontOf("DejaVu Sans", 1000), {}).path.bounds();
    EXPECT_NEAR(small.size.width * 100, large.size.width, 2);
    EXPECT_NEAR(small.size.height * 100, large.size.height, 2);
}

TEST(TextOutline, LooksAsTheToolkitPaintsIt)
{
    for (const char* text : {"Hamburgefonts 08%&@", "e\u0301o\u0308", "\u05E9\u05DC\u05D5\u05DD", "ffi fl AVATAR",
                             "\u0633\u0644\u0627\u0645", "abc \u05D0\u05D1\u05D2 def"}) {
        const QFont font = fontOf("DejaVu Sans", 64);
        const QString line = QString::fromUtf8(text);
        QFont exact = font;
        exact.setHintingPreference(QFont::PreferNoHinting);
        QPainterPath expected;
        expected.addText(0, 0, exact, line);
        expected.setFillRule(Qt::WindingFill);
        const QPainterPath got = painterPath(outlineOfText(line, font, {}).path);
        const QSize size(int(expected.boundingRect().right()) + 60, 120);
        const QImage a = painted(expected, size, {20, 80}), b = painted(got, size, {20, 80});
        EXPECT_LE(differing(a, b), 60) << text; // advances are rounded differently by a fraction of a pixel
        EXPECT_GT(got.boundingRect().width(), 20) << text;
    }
}

TEST(TextOutline, HasNoHolesWhereStrokesOverlap)
{
    // Letters that join, and every letter of the families at hand, by the even-odd and the non-zero rule.
    for (const char* family : {"DejaVu Sans", "DejaVu Serif", "EB Garamond", "DejaVu Sans Mono"}) {
        const QFont font = fontOf(family, 80);
        QString all;
        for (char16_t c = u'!'; c < u'\x7F'; ++c) all += QChar(c);
        all += QString::fromUtf8("ÄÖÜßçÅŁĄĘØøŦ§¶®©½¾\u0633\u0644\u0627\u0645\u0628\u064A\u062A");
        QPainterPath path = painterPath(outlineOfText(all, font, {}).path);
        const QSize size(int(path.boundingRect().right()) + 40, 140);
        const QImage evenOdd = painted(path, size, {20, 100});
        path.setFillRule(Qt::WindingFill);
        const QImage nonZero = painted(path.simplified(), size, {20, 100});
        EXPECT_LE(differing(evenOdd, nonZero), 4) << family;
    }
}

TEST(TextOutline, OverlappingContoursBecomeOne)
{
    // What simplifying is for: two bars across one another, as some fonts draw a plus sign.
    QPainterPath cross;
    cross.setFillRule(Qt::WindingFill);
    cross.addRect(0, 40, 100, 20);
    cross.addRect(40, 0, 20, 100);
    const QImage whole = painted(cross, {100, 100}, {});
    QPainterPath punched = cross;
    punched.setFillRule(Qt::OddEvenFill);
    EXPECT_GT(differing(whole, painted(punched, {100, 100}, {})), 300);
    QPainterPath simple = cross.simplified();
    simple.setFillRule(Qt::OddEvenFill);
    EXPECT_EQ(differing(whole, painted(simple, {100, 100}, {})), 0);
}

TEST(TextOutline, CombiningMarksSitOnTheirLetters)
{
    const QFont font = fontOf("DejaVu Sans", 100);
    const Rect plain = outlineOfText("e", font, {}).path.bounds();
    const Rect accented = outlineOfText(QString::fromUtf8("e\u0301"), font, {}).path.bounds();
    EXPECT_GT(accented.maxY(), plain.maxY() + 10);
    EXPECT_LT(accented.size.width, plain.size.width * 1.3f);
}

TEST(TextOutline, RightToLeftTextStartsAtThePointToo)
{
    const QFont font = fontOf("DejaVu Sans", 50);
    const Rect box = outlineOfText(QString::fromUtf8("\u05E9\u05DC\u05D5\u05DD"), font, {100, 0}).path.bounds();
    EXPECT_NEAR(box.minX(), 103, 5);
    EXPECT_GT(box.size.width, 60);
    EXPECT_LT(box.size.width, 200);
}

TEST(TextOutline, IsOneLineWhateverIsTyped)
{
    const QFont font = fontOf("DejaVu Sans", 40);
    const Rect box = outlineOfText("one\ntwo\u2028three", font, {}).path.bounds();
    EXPECT_LT(box.size.height, 60);
    EXPECT_GT(box.size.width, 200);
}

TEST(TextOutline, PicturesWithoutOutlineAreLeftOutAndSaidSo)
{
    const QFont font = fontOf("DejaVu Sans", 40);
    EXPECT_TRUE(hasOutlines(font));
    QString family;
    for (const QString& name : QFontDatabase::families())
        if (name.contains("Color Emoji")) family = name;
    if (family.isEmpty()) GTEST_SKIP() << "no font of coloured pictures is installed";
    EXPECT_FALSE(hasOutlines(QFont(family)));
    const TextOutline mixed = outlineOfText(QString::fromUtf8("a\U0001F33A"), font, {});
    EXPECT_FALSE(mixed.path.isEmpty());
}
