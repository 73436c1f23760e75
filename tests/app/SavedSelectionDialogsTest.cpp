// SPDX-License-Identifier: GPL-3.0-or-later
/// The dialogs that keep a selection under a name and bring one back.
#include "app/SavedSelectionDialogs.h"
#include "desktop/Panels.h"
#include "support/SavedSelectionFixture.h"
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <deque>
#include <functional>
#include <gmock/gmock.h>

using namespace zp;
using testing::ElementsAre;
using testing::IsEmpty;

class SavedSelectionDialogs : public zp::test::SavedSelectionsTest
{
protected:
    static QDialog* dialog(const char* name)
    {
        auto* front = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        return front && front->objectName() == name ? front : nullptr;
    }
    static QPushButton* button(QDialog* dialog, const QString& action)
    {
        for (QPushButton* b : dialog->findChildren<QPushButton*>())
            if (b->property("action").toString() == action) return b;
        ADD_FAILURE() << "no button for " << action.toStdString();
        return nullptr;
    }
    /// Does the steps one after the other while a modal dialog stands; a step that returns false is tried again.
    static void whileModal(std::deque<std::function<bool()>> steps)
    {
        auto* clock = new QTimer(qApp);
        auto left = std::make_shared<std::deque<std::function<bool()>>>(std::move(steps));
        auto tries = std::make_shared<int>(0);
        QObject::connect(clock, &QTimer::timeout, [clock, left, tries] {
            if (++*tries > 1000) { // never hang: close whatever stands
                ADD_FAILURE() << "a step did not come about";
                if (auto* front = qobject_cast<QDialog*>(QApplication::activeModalWidget())) front->reject();
                left->clear();
            }
            if (left->empty()) {
                clock->stop();
                clock->deleteLater();
                return;
            }
            const std::function<bool()> step = left->front();
            left->pop_front();
            // A step may open a dialog of its own: the clock must go on meanwhile.
            QTimer::singleShot(0, qApp, [step, left] {
                if (!step()) left->push_front(step);
            });
        });
        clock->start(5);
    }
};

TEST_F(SavedSelectionDialogs, TheSaveDialogTakesTheNameAsTyped)
{
    select(makeRect(1, 2, 3, 4));
    whileModal({[] { return dialog("SaveSelection") != nullptr; },
                [] {
                    QDialog* d = dialog("SaveSelection");
                    EXPECT_TRUE(d->isModal());
                    EXPECT_TRUE(isFolder(folder()));
                    button(d, "saveSelection_save:")->click(); // an empty name
                    return true;
                },
                [] { return currentAlert().has_value(); },
                [] {
                    EXPECT_EQ(currentAlert()->title, "Please enter a valid name for the selection");
                    EXPECT_EQ(currentAlert()->buttons, QStringList{"OK"});
                    return answerAlert("OK");
                },
                [] { return dialog("SaveSelection") != nullptr; }, // it stayed open
                [] {
                    QDialog* d = dialog("SaveSelection");
                    d->findChild<QLineEdit*>("mSaveSelection_NameField")->setText("sub/Größe 1.txt");
                    button(d, "saveSelection_save:")->click();
                    return true;
                }});
    runSaveSelectionDialog(*document, nullptr);
    EXPECT_THAT(contentsOfFolder(folder()), ElementsAre("sub"));
    EXPECT_THAT(contentsOfFolder(folder() + "/sub"), ElementsAre("Größe 1.txt"));
    EXPECT_THAT(takeSounds(), IsEmpty());
}

TEST_F(SavedSelectionDialogs, SavingWritesOverAndCancellingDoesNot)
{
    put("name", "old");
    const auto answer = [](const char* action) {
        whileModal({[] { return dialog("SaveSelection") != nullptr; },
                    [action] {
                        dialog("SaveSelection")->findChild<QLineEdit*>("mSaveSelection_NameField")->setText("name");
                        button(dialog("SaveSelection"), action)->click();
                        return true;
                    }});
    };
    select(makeRect(1, 1, 5, 6));
    answer("saveSelection_cancel:");
    runSaveSelectionDialog(*document, nullptr);
    EXPECT_EQ(readWholeFile(folder() + "/name"), "old");
    answer("saveSelection_save:");
    runSaveSelectionDialog(*document, nullptr);
    EXPECT_EQ(readWholeFile(folder() + "/name"), rectText(1));
    dropSelection();
    answer("saveSelection_save:");
    runSaveSelectionDialog(*document, nullptr);
    EXPECT_EQ(readWholeFile(folder() + "/name"), rectText(1));
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
}

TEST_F(SavedSelectionDialogs, TheLoadDialogListsTheFolder)
{
    put(".DS_Store", "");
    put("beta", rectText(2));
    put("Alpha", rectText(1));
    whileModal({[] { return dialog("LoadSelection") != nullptr; },
                [] {
                    QDialog* d = dialog("LoadSelection");
                    auto* popUp = d->findChild<QComboBox*>("mLoadSelection_PopUp");
                    EXPECT_EQ(popUp->count(), 2);
                    EXPECT_EQ(popUp->itemText(0), "Alpha");
                    EXPECT_EQ(popUp->itemText(1), "beta");
                    popUp->setCurrentIndex(1);
                    button(d, "loadSelection_load:")->click();
                    return true;
                }});
    runLoadSelectionDialog(*document, nullptr);
    EXPECT_EQ(outlineBounds(), makeRect(2, 1, 5, 6));
}

TEST_F(SavedSelectionDialogs, OnlyALeadingStoreEntryIsLeftOut)
{
    put(".DS_Store", "");
    put(".AAA", rectText(1)); // sorts before it
    whileModal({[] { return dialog("LoadSelection") != nullptr; },
                [] {
                    auto* popUp = dialog("LoadSelection")->findChild<QComboBox*>("mLoadSelection_PopUp");
                    EXPECT_EQ(popUp->count(), 2);
                    EXPECT_EQ(popUp->itemText(1), ".DS_Store");
                    button(dialog("LoadSelection"), "loadSelection_cancel:")->click();
                    return true;
                }});
    select(makeRect(7, 7, 2, 2));
    runLoadSelectionDialog(*document, nullptr);
    EXPECT_EQ(outlineBounds(), makeRect(7, 7, 2, 2)); // cancelled
}

TEST_F(SavedSelectionDialogs, DeletingTheLastEntryLeavesTheDialogOpen)
{
    put("only", rectText(1));
    select(makeRect(7, 7, 2, 2));
    whileModal({[] { return dialog("LoadSelection") != nullptr; },
                [] {
                    QDialog* d = dialog("LoadSelection");
                    button(d, "loadSelection_delete:")->click();
                    EXPECT_EQ(d->findChild<QComboBox*>("mLoadSelection_PopUp")->count(), 0);
                    EXPECT_TRUE(d->isVisible());
                    EXPECT_FALSE(fileExists(folder() + "/only"));
                    button(d, "loadSelection_delete:")->click(); // nothing chosen: nothing happens
                    EXPECT_TRUE(isFolder(folder()));
                    button(d, "loadSelection_load:")->click(); // an empty title
                    return true;
                }});
    runLoadSelectionDialog(*document, nullptr);
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    EXPECT_EQ(outlineBounds(), makeRect(7, 7, 2, 2)); // as it was
}

TEST_F(SavedSelectionDialogs, AFolderWithContentIsDeletedOnlyAfterAQuestion)
{
    createFolder(folder() + "/full");
    createFolder(folder() + "/void");
    put("full/inner", rectText(1));
    const auto popUp = [] { return dialog("LoadSelection")->findChild<QComboBox*>("mLoadSelection_PopUp"); };
    const auto deletes = [popUp](int index) {
        return [popUp, index] {
            popUp()->setCurrentIndex(index);
            QPushButton* press = button(dialog("LoadSelection"), "loadSelection_delete:");
            press->click();
            return true;
        };
    };
    const auto asked = [] { return currentAlert().has_value(); };
    whileModal({[] { return dialog("LoadSelection") != nullptr; }, deletes(0), asked,
                [] {
                    EXPECT_EQ(currentAlert()->title, "Do you wish to delete the folder with all that is in it?");
                    EXPECT_EQ(currentAlert()->message, "full");
                    EXPECT_EQ(currentAlert()->buttons, (QStringList{"Delete", "Cancel"}));
                    return answerAlert("Cancel");
                },
                [] { return dialog("LoadSelection") != nullptr; },
                [popUp] {
                    EXPECT_EQ(popUp()->count(), 2);
                    EXPECT_TRUE(fileExists(folder() + "/full/inner"));
                    return true;
                },
                deletes(1), // holds nothing: no question
                [popUp] {
                    EXPECT_FALSE(currentAlert());
                    EXPECT_EQ(popUp()->count(), 1);
                    EXPECT_FALSE(fileExists(folder() + "/void"));
                    return true;
                },
                deletes(0), asked, [] { return answerAlert("Delete"); },
                [] { return dialog("LoadSelection") != nullptr; },
                [popUp] {
                    EXPECT_EQ(popUp()->count(), 0);
                    EXPECT_FALSE(fileExists(folder() + "/full"));
                    dialog("LoadSelection")->reject();
                    return true;
                }});
    runLoadSelectionDialog(*document, nullptr);
}

TEST_F(SavedSelectionDialogs, ControlsExplainThemselves)
{
    const auto check = [](const char* name) {
        whileModal({[name] { return dialog(name) != nullptr; },
                    [name] {
                        QDialog* d = dialog(name);
                        EXPECT_FALSE(d->windowTitle().isEmpty());
                        for (QWidget* w : d->findChildren<QWidget*>()) {
                            const bool control = qobject_cast<QPushButton*>(w) || w->objectName().startsWith("m");
                            EXPECT_TRUE(!control || !w->toolTip().isEmpty()) << w->objectName().toStdString();
                        }
                        d->reject();
                        return true;
                    }});
    };
    check("SaveSelection");
    runSaveSelectionDialog(*document, nullptr);
    check("LoadSelection");
    runLoadSelectionDialog(*document, nullptr);
}
