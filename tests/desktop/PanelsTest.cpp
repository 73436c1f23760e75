// SPDX-License-Identifier: GPL-3.0-or-later
/// Alerts as a person at the keyboard and as a driver meet them; file panels answered from a queue.
#include "desktop/Panels.h"
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

/// Runs @p act once an alert stands, then gives its answer.
int alertWith(const QStringList& buttons, std::function<void(QDialog*)> act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* alert = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(alert);
        act(alert);
    });
    return runAlert("Title", "Message", buttons);
}

} // namespace

TEST(Alert, ShowsWhatWasAskedAndIsAnsweredByTitle)
{
    EXPECT_FALSE(currentAlert());
    EXPECT_FALSE(answerAlert("OK"));
    const int answer = alertWith({"New…", "Open…", "Cancel"}, [](QDialog* alert) {
        EXPECT_EQ(alert->objectName(), "Alert");
        EXPECT_TRUE(alert->isModal());
        const auto state = currentAlert();
        ASSERT_TRUE(state);
        EXPECT_EQ(state->title, "Title");
        EXPECT_EQ(state->message, "Message");
        EXPECT_EQ(state->buttons, (QStringList{"New…", "Open…", "Cancel"}));
        EXPECT_FALSE(answerAlert("Quit"));
        EXPECT_TRUE(answerAlert("Open…"));
    });
    EXPECT_EQ(answer, 1);
    EXPECT_FALSE(currentAlert());
}

TEST(Alert, ReturnIsTheDefaultAndEscapeTheCancelButton)
{
    EXPECT_EQ(alertWith({"Quit", "Cancel"}, [](QDialog* a) { QTest::keyClick(a->focusWidget(), Qt::Key_Return); }), 0);
    EXPECT_EQ(alertWith({"Quit", "Cancel"}, [](QDialog* a) { QTest::keyClick(a, Qt::Key_Escape); }), 1);
    EXPECT_EQ(alertWith({"New…", "Open…", "Cancel"}, [](QDialog* a) { QTest::keyClick(a, Qt::Key_Escape); }), 2);
    EXPECT_EQ(alertWith({"Yes", "No"}, [](QDialog* a) { QTest::keyClick(a, Qt::Key_Escape); }), 1);
    EXPECT_EQ(alertWith({"OK"}, [](QDialog* a) { QTest::keyClick(a, Qt::Key_Escape); }), 0);
    EXPECT_EQ(alertWith({"OK"}, [](QDialog* a) { a->close(); }), 0);
}

TEST(Alert, EscapeDoesNothingWhereNoButtonMeansCancel)
{
    EXPECT_EQ(alertWith({"One", "Two"},
                        [](QDialog* a) {
                            QTest::keyClick(a, Qt::Key_Escape);
                            EXPECT_TRUE(a->isVisible());
                            answerAlert("Two");
                        }),
              1);
}

TEST(Alert, ButtonsAreReachedByTab)
{
    EXPECT_EQ(alertWith({"New…", "Open…", "Cancel"},
                        [](QDialog* a) {
                            auto* first = qobject_cast<QPushButton*>(a->focusWidget());
                            ASSERT_TRUE(first);
                            EXPECT_EQ(first->text(), "New…");
                            EXPECT_TRUE(first->isDefault());
                            QTest::keyClick(first, Qt::Key_Tab);
                            EXPECT_NE(a->focusWidget(), first);
                            QTest::keyClick(a->focusWidget(), Qt::Key_Space);
                        }),
              2);
}

TEST(Alert, MayStandOnAnother)
{
    const int answer = alertWith({"Outer", "No"}, [](QDialog*) {
        EXPECT_EQ(alertWith({"Inner"}, [](QDialog*) { EXPECT_TRUE(answerAlert("Inner")); }), 0);
        EXPECT_EQ(currentAlert()->buttons.constFirst(), "Outer");
        EXPECT_TRUE(answerAlert("No"));
    });
    EXPECT_EQ(answer, 1);
}

TEST(Alert, IsNotShownWhileSilenced)
{
    const SilencedPanels quiet;
    EXPECT_EQ(runAlert("Title", "", {"OK", "Cancel"}), 0);
}

TEST(Alert, LongTextsWrapInsideTheScreen)
{
    QTimer::singleShot(0, qApp, [] {
        auto* alert = QApplication::activeModalWidget();
        ASSERT_TRUE(alert);
        EXPECT_LT(alert->width(), 620);
        EXPECT_GT(alert->height(), 150);
        answerAlert("OK");
    });
    runAlert(QString("A long title ").repeated(10), QString("and a longer message <b>not bold</b> ").repeated(12),
             {"OK"});
}

TEST(FilePanels, AreAnsweredFromTheQueueThenCancelled)
{
    setPanelsAutomated(true);
    queuePanelChoice("/tmp/\xFF\xFE.png");
    queuePanelChoice(std::nullopt);
    queuePanelChoice("/tmp/out");
    PanelRequest request;
    request.title = "Choose";
    request.prompt = "Open";
    request.types = {"tiff", "jpg"};
    EXPECT_EQ(runOpenPanel(request), "/tmp/\xFF\xFE.png");
    ASSERT_TRUE(lastPanel());
    EXPECT_EQ(lastPanel()->kind, "open");
    EXPECT_EQ(lastPanel()->types, (QStringList{"tiff", "jpg"}));
    request.name = "picture";
    EXPECT_EQ(runSavePanel(request), std::nullopt);
    EXPECT_EQ(lastPanel()->kind, "save");
    EXPECT_EQ(lastPanel()->name, "picture");
    EXPECT_EQ(runFolderPanel({}), "/tmp/out");
    EXPECT_EQ(lastPanel()->kind, "folder");
    EXPECT_EQ(runFolderPanel({}), std::nullopt);
    runPageLayout(); // returns at once
    setPanelsAutomated(false);
}

TEST(FilePanels, ForPeopleShowWhatWasAskedAndGiveTheirChoice)
{
    setPanelsAutomated(false);
    QTemporaryDir folder;
    const QString path = folder.filePath("a picture.tif");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    PanelRequest request;
    request.title = "Choose";
    request.prompt = "Take it";
    request.directory = folder.path().toStdString();
    request.types = {"tiff", "jpg"};
    QTimer::singleShot(0, qApp, [&] {
        auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(panel);
        EXPECT_EQ(panel->windowTitle(), "Choose");
        EXPECT_EQ(panel->labelText(QFileDialog::Accept), "Take it");
        EXPECT_EQ(panel->directory().path(), folder.path());
        EXPECT_TRUE(panel->nameFilters().constFirst().contains("*.tif "));
        panel->findChild<QLineEdit*>("fileNameEdit")->setText("a picture.tif");
        panel->findChild<QDialogButtonBox*>()->buttons().constFirst()->click();
    });
    EXPECT_EQ(runOpenPanel(request), path.toStdString());
    request.name = "new";
    QTimer::singleShot(0, qApp, [&] {
        auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(panel);
        EXPECT_EQ(panel->findChild<QLineEdit*>("fileNameEdit")->text(), "new");
        panel->findChild<QDialogButtonBox*>()->buttons().constFirst()->click();
    });
    EXPECT_EQ(runSavePanel(request), folder.filePath("new.tiff").toStdString());
    QTimer::singleShot(0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    EXPECT_EQ(runFolderPanel({}), std::nullopt);
}

TEST(CenterWindow, StaysOnTheScreen)
{
    QWidget window;
    window.resize(300, 200);
    centerWindow(&window);
    const QRect room = window.screen()->availableGeometry();
    EXPECT_NEAR(window.x() + 150, room.center().x(), 2);
    EXPECT_NEAR(window.y() + 100, room.center().y(), 2);
    QWidget corner;
    corner.setGeometry(0, 0, 40, 40);
    corner.show();
    centerWindow(&window, &corner);
    EXPECT_TRUE(room.contains(window.geometry()));
}
