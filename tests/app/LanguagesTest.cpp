// SPDX-License-Identifier: GPL-3.0-or-later
/// The windows in other languages: menus by the keyboard, room for longer texts, numbers as they are written there.
#include "desktop/Languages.h"
#include "app/CommandTable.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "canvas/ToolTable.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Desktop.h"
#include "desktop/ElidedLabel.h"
#include "document/Document.h"
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSlider>
#include <QTimer>
#include <QTranslator>
#include <QXmlStreamReader>
#include <gtest/gtest.h>
#include <map>
#include <string_view>

using namespace zp;

namespace
{

QString letterOf(const QString& text)
{
    static const QRegularExpression marked("&([^&\\s])");
    return marked.match(text).captured(1).toUpper();
}

/// Every menu item and menu has a letter, and none that another of the same menu has.
void expectLetters(const QString& where, const QList<QAction*>& actions)
{
    std::map<QString, QString> taken;
    for (const QAction* action : actions) {
        if (action->isSeparator() || !action->isVisible()) continue;
        const QString letter = letterOf(action->text());
        EXPECT_FALSE(letter.isEmpty()) << qUtf8Printable(where + ": " + action->text());
        const auto [other, isNew] = taken.try_emplace(letter, action->text());
        EXPECT_TRUE(isNew) << qUtf8Printable(where + ": " + action->text() + ", " + other->second);
    }
}

class LanguageTest : public testing::TestWithParam<const char*>
{
protected:
    LanguageTest() { EXPECT_TRUE(speakLanguage(GetParam())); }
    ~LanguageTest() override { speakLanguage({}); }
};

TEST_P(LanguageTest, MenusAreUsedByLettersThatDoNotClash)
{
    ZPAppController controller;
    controller.document().perform("newImageWithSize:", {{60, 40}, {}});
    auto* bar = controller.window().findChild<QMenuBar*>();
    expectLetters("bar", bar->actions());
    ASSERT_EQ(bar->actions().size(), qsizetype(std::size(kMenus)));
    for (const char* name : kMenus) {
        QMenu* menu = controller.menu().menu(name);
        emit menu->aboutToShow();
        expectLetters(name, menu->actions());
        emit menu->aboutToHide();
    }
    QCoreApplication::processEvents();
    for (const QAction* item : controller.menu().items())
        EXPECT_EQ(letterOf(item->text()), "") << qUtf8Printable(item->text());
    const std::unique_ptr<QMenu> overPicture(controller.menu().makePictureMenu(nullptr));
    emit overPicture->aboutToShow();
    expectLetters("over the picture", overPicture->actions());
}

TEST_P(LanguageTest, CommandsAreNamedInIt)
{
    if (!*GetParam()) GTEST_SKIP() << "English is what the sources say";
    int equal = 0, named = 0;
    for (const Command& row : commandTable()) {
        if (!row.menu || !row.title || !*row.title) continue;
        ++named;
        equal += QCoreApplication::translate("Menu", row.title) == row.title;
        EXPECT_TRUE(!*row.tip || QCoreApplication::translate("Menu", row.tip) != row.tip) << row.tip;
    }
    EXPECT_GT(named, 50);
    EXPECT_LE(equal, 2); // "Zoom" is one in several languages
}

/// Each form is a context of its own; what the program puts into a window beside its form is among the forms'
/// neighbours.
TEST_P(LanguageTest, LettersOfADialogDoNotClash)
{
    if (!*GetParam()) GTEST_SKIP() << "the forms themselves are in English";
    QFile file(QString(ZP_SOURCE "/translations/zelpane_%1.ts").arg(GetParam()));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    QXmlStreamReader xml(&file);
    QString context, source;
    std::map<QString, QString> taken;
    int letters = 0;
    while (!xml.atEnd()) {
        if (!(xml.readNext() == QXmlStreamReader::StartElement)) continue;
        if (xml.name() == u"name") {
            context = xml.readElementText();
            taken.clear();
        } else if (xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.name() == u"translation" && !letterOf(source).isEmpty()) {
            const QString text = xml.readElementText(), letter = letterOf(text);
            EXPECT_FALSE(letter.isEmpty()) << qUtf8Printable(context + ": " + text);
            const auto [other, isNew] = taken.try_emplace(letter, text);
            EXPECT_TRUE(isNew) << qUtf8Printable(context + ": " + text + ", " + other->second);
            ++letters;
        }
    }
    EXPECT_FALSE(xml.hasError());
    EXPECT_GT(letters, 60);
}

TEST_P(LanguageTest, FieldsShowNumbersAsTheyAreWrittenThere)
{
    QLocale::setDefault(QLocale(*GetParam() ? GetParam() : "C"));
    const QString half = QLocale().toString(50.5, 'g', 7);
    {
        ZPAppController controller;
        controller.document().perform("newImageWithSize:", {{200, 100}, {}});
        controller.window().show();
        QString percent, width;
        QTimer::singleShot(50, &controller, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            auto* field = dialog->findChild<QLineEdit*>("mResize_Width_P");
            field->setText(half);
            emit field->textEdited(half);
            width = dialog->findChild<QWidget*>("mResize_Width")->property("value").toString();
            percent = dialog->findChild<QLineEdit*>("mResize_Height_P")->text();
            qobject_cast<QDialog*>(dialog)->reject();
        });
        controller.menu().choose("resize:");
        while (percent.isEmpty() && !HasFailure()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        EXPECT_EQ(width, "101");
        EXPECT_FALSE(percent.isEmpty());
        EXPECT_TRUE(QLocale().decimalPoint() != "," || !percent.contains(u'.')) << qUtf8Printable(percent);
    }
    QLocale::setDefault(QLocale::c());
}

std::string nameOf(const testing::TestParamInfo<const char*>& info) { return *info.param ? info.param : "en"; }
INSTANTIATE_TEST_SUITE_P(Six, LanguageTest, testing::Values("", "de", "es", "fr", "ja", "pt_BR", "zh_CN"), nameOf);

// ---- a language that needs more room -------------------------------------------------------------------------------

/// Every text with 40 % more letters: what no language of ours needs, and the next one might.
class LongLanguage : public QTranslator
{
public:
    LongLanguage() { QCoreApplication::installTranslator(this); }
    ~LongLanguage() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        const QString text = QString::fromUtf8(source);
        const int more = (int(text.size()) * 4 + 9) / 10;
        QString filler;
        for (int i = 0; i < more; ++i) filler += i % 8 == 7 ? ' ' : 'n';
        return text + filler;
    }
};

/// Whether the widget shows its text whole.
QString cutText(const QWidget* widget)
{
    const QSize needs = widget->sizeHint();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        if (dynamic_cast<const ElidedLabel*>(label) || label->text().isEmpty()) return {}; // cuts with dots, by intent
        const bool wraps = label->wordWrap();
        if (wraps ? label->heightForWidth(label->width()) > label->height() : needs.width() > label->width())
            return label->text();
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        if (!button->text().isEmpty() && needs.width() > button->width()) return button->text();
    } else if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        if (box->sizeAdjustPolicy() == QComboBox::AdjustToContents && needs.width() > box->width())
            return box->currentText();
    }
    return {};
}

/// Of every window that is open.
int expectWholeTexts(const char* opened)
{
    int looked = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        // Of a small laptop's screen; the list of steps stands beside the main window's content, or is pulled out.
        const int most = std::string_view(opened) == "history:" ? 1280 + 200 : 1280;
        EXPECT_LE(window->minimumSizeHint().width(), most) << opened;
        EXPECT_LE(window->minimumSizeHint().height(), 720) << opened;
        for (const QWidget* widget : window->findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != window) continue;
            const QString cut = cutText(widget);
            EXPECT_TRUE(cut.isEmpty()) << opened << ": " << qUtf8Printable(widget->objectName() + " " + cut);
            ++looked;
        }
    }
    return looked;
}

TEST(LongTexts, AreCutInNoWindow)
{
    const LongLanguage longer;
    ZPAppController controller;
    controller.document().perform("newImageWithSize:", {{400, 300}, {}});
    controller.document().perform("selectRectangle:", {{10, 10, 200, 100}, {}});
    controller.window().show();
    QCoreApplication::processEvents();
    EXPECT_GT(expectWholeTexts("the main window"), 30);
    controller.document().perform("floatSelection");
    QCoreApplication::processEvents();
    EXPECT_GT(expectWholeTexts("what floats"), 30);
    controller.document().perform("anchorSelection:");
    controller.document().perform("selectRectangle:", {{10, 10, 200, 100}, {}});
    for (const char* action :
         {"newDocument:", "resize:", "prefs:", "about:", "quickSave:", "transform:", "adjust:", "saveSelection:",
          "selectByNumber:", "fileManager:", "keyboardShortcuts:", "smartFill:", "history:"}) {
        int looked = 0;
        QTimer::singleShot(50, &controller, [&looked, action] {
            looked = expectWholeTexts(action);
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->reject();
        });
        EXPECT_EQ(controller.menu().choose(action), "") << action;
        while (looked == 0) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        EXPECT_GT(looked, 30) << action;
    }
}

TEST_P(LanguageTest, TheWindowWithWhatFloatsIsWholeOnASmallScreen)
{
    ZPAppController controller;
    controller.document().perform("newImageWithSize:", {{400, 300}, {}});
    controller.window().show();
    controller.document().perform("selectAll:");
    controller.document().perform("floatSelection");
    QCoreApplication::processEvents();
    EXPECT_GT(expectWholeTexts("what floats"), 30);
}

/// With every tool, with nothing selected, with what floats, and with what the text tool offers.
TEST_P(LanguageTest, TheMainWindowFitsTheSmallestScreen)
{
    constexpr int kSmallestScreen = 1024;
    ZPAppController controller;
    Document& document = controller.document();
    document.perform("newImageWithSize:", {{400, 300}, {}});
    MainWindow& window = controller.window();
    window.show();
    auto* options = window.findChild<QWidget*>("optionsBar");
    const auto expectRoom = [&](const std::string& state) {
        QCoreApplication::processEvents();
        EXPECT_LE(window.minimumSizeHint().width(), kSmallestScreen) << state;
        window.resize(kSmallestScreen, 700);
        QCoreApplication::processEvents();
        EXPECT_EQ(window.width(), kSmallestScreen) << state;
        for (const QWidget* widget : options->findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != &window) continue;
            EXPECT_TRUE(options->rect().contains({widget->mapTo(options, QPoint()), widget->size()}))
                << state << ": " << qUtf8Printable(widget->objectName());
            const QString cut = cutText(widget);
            EXPECT_TRUE(cut.isEmpty()) << state << ": " << qUtf8Printable(cut);
            const int least = qobject_cast<const QSlider*>(widget) ? 32 : 0; // it can still be dragged
            EXPECT_GE(widget->width(), least) << state << ": " << qUtf8Printable(widget->objectName());
        }
    };
    const auto expectWholeSliders = [&](const std::string& state) {
        window.resize(1800, 700);
        QCoreApplication::processEvents();
        for (const QSlider* slider : options->findChildren<QSlider*>()) {
            if (!slider->isVisible()) continue;
            EXPECT_EQ(slider->width(), slider->maximumWidth()) << state;
        }
    };
    for (const ToolRow& row : toolTable()) {
        document.perform("selectNone");
        window.canvas()->setTool(int(row.tool));
        expectRoom(row.title);
        document.perform("selectRectangle:", {{10, 10, 200, 100}, {}});
        expectRoom(std::string(row.title) + ", selected");
        document.perform("floatSelection");
        expectRoom(std::string(row.title) + ", floating");
        expectWholeSliders(row.title);
        EXPECT_TRUE(window.findChild<QWidget*>("mSelectionChip")->isVisible());
        document.perform("anchorSelection:");
    }
}

TEST(RightToLeft, TheWindowIsMirroredAndThePictureIsNot)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    {
        ZPAppController controller;
        Document& document = controller.document();
        document.perform("newImageWithSize:", {{100, 100}, {}});
        document.setPaintColor({1, 0, 0, 1});
        document.perform("selectRectangle:", {{0, 0, 50, 100}, {}});
        document.perform("fill:");
        document.perform("selectNone:");
        controller.window().show();
        QCoreApplication::processEvents();
        const auto x = [&controller](const char* name) {
            const auto* widget = controller.window().findChild<QWidget*>(name);
            return widget ? widget->mapTo(&controller.window(), QPoint(widget->width() / 2, 0)).x() : -1;
        };
        EXPECT_GT(x("toolStrip"), x("mScrollView"));
        EXPECT_GT(x("mToolPopUp"), x("mSizeField"));
        EXPECT_GT(x("mSizeField"), x("mZoomPopUp"));
        const QImage canvas = controller.canvas().grab().toImage();
        const int width = canvas.width(), middle = canvas.height() / 2;
        EXPECT_EQ(canvas.pixelColor(width / 4, middle).name(), "#ff0000");
        EXPECT_NE(canvas.pixelColor(3 * width / 4, middle).name(), "#ff0000");
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace
