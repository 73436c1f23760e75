// SPDX-License-Identifier: GPL-3.0-or-later
/// Every dialog by the keyboard alone: Tab goes through all of it, in the order in which it is read, and Escape leaves
/// it.
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "document/Document.h"
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <set>

using namespace zp;

namespace
{

/// Screen points by which the middles of controls of one line differ at most.
constexpr int kOneLine = 12;

QString nameOf(const QWidget* widget)
{
    const QString own =
        widget->objectName().isEmpty() ? QString(widget->metaObject()->className()) : widget->objectName();
    return widget->parentWidget() && widget->parentWidget() != widget->window()
               ? widget->parentWidget()->objectName() + "/" + own
               : own;
}

QPoint middleOf(const QWidget* widget) { return widget->mapTo(widget->window(), widget->rect().center()); }

/// What a person would expect to reach: a control that shows and can be used. Of a group of radio buttons the arrow
/// keys reach the others.
std::set<const QWidget*> controlsOf(const QWidget* window)
{
    std::set<const QWidget*> all;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled() || widget->window() != window) continue;
        if (!(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy()) continue;
        if (qobject_cast<const QAbstractSpinBox*>(widget->parentWidget())) continue; // its text is part of it
        if (const auto* combo = qobject_cast<const QComboBox*>(widget->parentWidget()); combo && combo->isEditable())
            continue;
        if (const auto* radio = qobject_cast<const QRadioButton*>(widget); radio && !radio->isChecked()) continue;
        all.insert(widget);
    }
    return all;
}

/// Once around by Tab, from what has the focus.
std::vector<const QWidget*> tabRound(QWidget* window)
{
    std::vector<const QWidget*> round;
    for (int i = 0; i < 100; ++i) {
        const QWidget* now = window->focusWidget();
        if (!now || (!round.empty() && now == round.front())) break;
        round.push_back(now);
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    return round;
}

void expectRound(QWidget* window, const std::string& opened)
{
    ASSERT_TRUE(window->focusWidget()) << opened << ": nothing has the focus";
    const std::vector<const QWidget*> round = tabRound(window);
    std::set<const QWidget*> missed = controlsOf(window);
    EXPECT_GT(missed.size(), 1u) << opened;
    int ups = 0;
    for (std::size_t i = 0; i < round.size(); ++i) {
        missed.erase(round[i]);
        const QPoint here = middleOf(round[i]), next = middleOf(round[(i + 1) % round.size()]);
        const bool sameLine = std::abs(next.y() - here.y()) <= kOneLine;
        if (!(sameLine ? next.x() > here.x() : next.y() > here.y())) {
            ++ups;
            if (ups > 1)
                ADD_FAILURE() << opened << ": back from " << qUtf8Printable(nameOf(round[i])) << " to "
                              << qUtf8Printable(nameOf(round[(i + 1) % round.size()]));
        }
    }
    for (const QWidget* widget : missed)
        ADD_FAILURE() << opened << ": " << qUtf8Printable(nameOf(widget)) << " is not reached";
}

struct Opened {
    const char* action;
    bool isWindow; ///< stays like a main window: the keys for closing close it, Escape does not
};

class DialogKeyboard : public testing::TestWithParam<Opened>
{
};

TEST_P(DialogKeyboard, TabReachesEverythingInReadingOrderAndEscapeCloses)
{
    ZPAppController controller;
    controller.document().perform("newImageWithSize:", {{400, 300}, {}});
    controller.document().perform("selectRectangle:", {{10, 10, 200, 100}, {}});
    controller.window().show();
    QCoreApplication::processEvents();
    bool looked = false;
    const auto look = [&] {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (looked || !window->isVisible() || window == &controller.window() || !window->isWindow()) continue;
            if (window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip) continue;
            looked = true;
            window->activateWindow();
            QCoreApplication::processEvents();
            expectRound(window, GetParam().action);
            QWidget* const focus = window->focusWidget() ? window->focusWidget() : window;
            GetParam().isWindow ? QTest::keyClick(focus, Qt::Key_W, Qt::ControlModifier)
                                : QTest::keyClick(focus, Qt::Key_Escape);
            QCoreApplication::processEvents();
            EXPECT_FALSE(window->isVisible())
                << "it was left at "
                << (window->focusWidget() ? qUtf8Printable(nameOf(window->focusWidget())) : "nothing");
            if (auto* dialog = qobject_cast<QDialog*>(window); dialog && window->isVisible()) dialog->reject();
        }
    };
    QTimer often; // until it shows, however slow the machine
    QObject::connect(&often, &QTimer::timeout, &controller, look);
    often.start(20);
    EXPECT_EQ(controller.menu().choose(GetParam().action), "");
    for (int i = 0; i < 1000 && !looked; ++i) QTest::qWait(10);
    EXPECT_TRUE(looked);
}

std::vector<Opened> all()
{
    std::vector<Opened> list{{"fileManager:", true}};
    for (const char* dialog :
         {"newDocument:", "resize:", "prefs:", "quickSave:", "transform:", "adjust:", "saveSelection:",
          "selectByNumber:", "keyboardShortcuts:", "smartFill:", "saveForSize:", "showScript:"})
        list.push_back({dialog, false});
    return list;
}
INSTANTIATE_TEST_SUITE_P(Of, DialogKeyboard, testing::ValuesIn(all()),
                         [](const auto& test) { return QString(test.param.action).remove(':').toStdString(); });

} // namespace
