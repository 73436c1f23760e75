// SPDX-License-Identifier: GPL-3.0-or-later
/// Alerts as a person at the keyboard and as a driver meet them; file panels answered from a queue.
#include "desktop/Panels.h"
#include "desktop/WindowPlaces.h"
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
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

TEST(Alert, EscapeRefusesInEveryLanguage)
{
    EXPECT_EQ(alertWith({"Beenden", "Abbrechen"}, [](QDialog* a) { QTest::keyClick(a, Qt::Key_Escape); }), 1);
    EXPECT_EQ(alertWith({"復元", "破棄", "後で"}, [](QDialog* a) { a->close(); }), 2);
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
    EXPECT_FALSE(runSavePanel(request));
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
    std::optional<SaveAnswer> saved = runSavePanel(request);
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->path, folder.filePath("new.tiff").toStdString());
    QTimer::singleShot(0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    EXPECT_EQ(runFolderPanel({}), std::nullopt);
}

/// Types a name into the save panel and presses its button.
void typeAndSave(const QString& name)
{
    auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(panel);
    panel->findChild<QLineEdit*>("fileNameEdit")->setText(name);
    panel->findChild<QDialogButtonBox*>()->buttons().constFirst()->click();
}

TEST(FilePanels, ForPeopleMakeTheNameThatWillBeWritten)
{
    setPanelsAutomated(false);
    QTemporaryDir folder;
    PanelRequest request;
    request.directory = folder.path().toStdString();
    request.types = {"jpg"};
    request.extension = "jpg";
    request.quality = 70;
    for (const auto& [typed, written] : {std::pair{"photo.jpeg", "photo.jpg"},
                                         {"keep.tiff", "keep.jpg"},
                                         {"Version 2.5", "Version 2.5.jpg"},
                                         {"plain", "plain.jpg"}}) {
        QTimer::singleShot(0, qApp, [typed] {
            auto* quality = QApplication::activeModalWidget()->findChild<QSpinBox*>("mJPEGQuality");
            ASSERT_TRUE(quality);
            EXPECT_EQ(quality->value(), 70);
            quality->setValue(92);
            typeAndSave(typed);
        });
        const std::optional<SaveAnswer> answer = runSavePanel(request);
        ASSERT_TRUE(answer) << typed;
        EXPECT_EQ(answer->path, folder.filePath(written).toStdString());
        EXPECT_EQ(answer->quality, 92);
    }
}

TEST(FilePanels, ForPeopleAskAboutTheNameThatWillBeWritten)
{
    setPanelsAutomated(false);
    QTemporaryDir folder;
    QFile there(folder.filePath("photo.jpg"));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    there.close();
    PanelRequest request;
    request.directory = folder.path().toStdString();
    request.types = {"jpg"};
    request.extension = "jpg";
    QStringList asked;
    QTimer::singleShot(0, qApp, [&asked] {
        QTimer::singleShot(0, qApp, [&asked] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(question) << "the panel's own question";
            asked << question->text();
            question->button(QMessageBox::Yes)->click();
        });
        typeAndSave("photo.jpeg"); // no such file: it is photo.jpg that will be written
    });
    const std::optional<SaveAnswer> answer = runSavePanel(request);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->path, folder.filePath("photo.jpg").toStdString());
    ASSERT_EQ(asked.size(), 1);
    EXPECT_TRUE(asked[0].contains("photo.jpg")) << asked[0].toStdString();
}

TEST(FilePanels, OfADriverAskAboutTheNameTheyMade)
{
    QTemporaryDir folder;
    QFile there(folder.filePath("photo.jpg"));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    there.close();
    setPanelsAutomated(true);
    PanelRequest request;
    request.extension = "jpg";
    const auto answered = [&](const char* typed, const QString& word) {
        queuePanelChoice(folder.filePath(typed).toStdString());
        bool asked = false;
        QTimer::singleShot(0, qApp, [&asked, word] {
            if (!currentAlert()) return;
            asked = currentAlert()->title == "File already exists";
            answerAlert(word);
        });
        const bool given = runSavePanel(request).has_value();
        QApplication::processEvents();
        return std::pair{asked, given};
    };
    EXPECT_EQ(answered("photo.jpeg", "No"), (std::pair{true, false})) << "the panel comes again, with nothing queued";
    EXPECT_EQ(answered("photo.jpeg", "Yes"), (std::pair{true, true}));
    EXPECT_EQ(answered("photo.jpg", "No"), (std::pair{false, true})) << "that very name is yes to the panel's question";
    EXPECT_EQ(answered("other.jpeg", "No"), (std::pair{false, true}));
    setPanelsAutomated(false);
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

TEST(Alert, IsNeverWiderThanAScreenWhateverItSays)
{
    const QString name = QString("Summer").repeated(50) + ".jpg"; // no blank to break it at
    struct Case {
        QString title, message, button;
    };
    for (const Case& c : {Case{"Title", name, "OK"},
                          {"The file " + name + " could not be saved.", {}, "OK"},
                          {"Title", QString("word ").repeated(2000), "OK"},
                          {"Title", "Message", name},
                          {"Title", QString(name + "\n").repeated(40), "OK"}}) {
        QTimer::singleShot(0, qApp, [&c] {
            auto* alert = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(alert);
            EXPECT_LE(alert->width(), 800) << c.title.left(30).toStdString();
            EXPECT_LE(alert->height(), 600) << c.title.left(30).toStdString();
            for (const QWidget* part : alert->findChildren<QWidget*>())
                if (part->isVisibleTo(alert) && part->parentWidget() == alert) {
                    EXPECT_TRUE(alert->rect().contains(part->geometry()));
                }
            EXPECT_EQ(currentAlert()->message, c.message) << "drivers read all of it";
            EXPECT_TRUE(answerAlert(c.button));
        });
        EXPECT_EQ(runAlert(c.title, c.message, {c.button}), 0);
    }
}

TEST(Alert, ReadsNamesAsNamesAndNotAsMarkup)
{
    QTimer::singleShot(0, qApp, [] {
        auto* alert = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(alert);
        for (const QLabel* label : alert->findChildren<QLabel*>())
            if (!label->text().isEmpty()) {
                EXPECT_EQ(label->textFormat(), Qt::PlainText);
            }
        answerAlert("OK");
    });
    runAlert("<b>bold</b>.jpg", "<img src=x>", {"OK"});
}

TEST(Windows, StandClearOfAPointOnlyWhenTheyWouldCoverIt)
{
    const QRect room(0, 0, 1000, 800);
    struct Case {
        QRect frame;
        QPoint point;
        bool moves;
    };
    for (const Case& c : {Case{{200, 200, 400, 300}, {50, 50}, false},
                          {{200, 200, 400, 300}, {700, 700}, false},
                          {{200, 200, 400, 300}, {400, 350}, true},
                          {{200, 200, 400, 300}, {210, 480}, true},
                          {{0, 0, 1000, 700}, {400, 350}, false}}) { // nowhere to go
        const QPoint corner = cornerClearOf(c.frame, c.point, room);
        EXPECT_EQ(corner != c.frame.topLeft(), c.moves) << c.point.x();
        if (!c.moves) continue;
        EXPECT_FALSE(QRect(corner, c.frame.size()).contains(c.point));
        EXPECT_TRUE(room.contains(QRect(corner, c.frame.size())));
    }
}
