// SPDX-License-Identifier: GPL-3.0-or-later
/// Every dialog is left by the keyboard alone.
#include "support/Session.h"

using namespace zp::test;

namespace
{

QStringList shownWindows(Session& session)
{
    QStringList names;
    for (const QJsonValue& window : session.must("windows")["windows"].toArray())
        names << (window.isObject() ? window.toObject()["name"].toString() : window.toString());
    return names;
}

TEST(Dialogs, EscapeClosesEachOfThem)
{
    Session session;
    session.newImage(64, 48);
    session.must("menu selectAll:");
    const QStringList before = shownWindows(session);
    struct Case {
        const char* action;
        const char* window;
    };
    for (const Case& c : {Case{"newDocument:", "New"},
                          {"prefs:", "Prefs"},
                          {"keyboardShortcuts:", "Shortcuts"},
                          {"about:", "AboutBox"},
                          {"resize:", "Resize"},
                          {"selectByNumber:", "SelectByNumber"},
                          {"saveSelection:", "SaveSelection"},
                          {"loadSelection:", "LoadSelection"},
                          {"quickSave:", "Name"},
                          {"help:", "Alert"},
                          {"smartFill:", "SmartFill"},
                          {"transform:", "Transform"},
                          {"adjust:", "Adjust"}}) {
        session.must(QString("menu selectAll:"));
        session.must(QString("menu %1").arg(c.action));
        EXPECT_TRUE(shownWindows(session).contains(c.window))
            << c.action << ": " << shownWindows(session).join(", ").toStdString();
        session.must("key Escape");
        session.must("wait");
        EXPECT_EQ(shownWindows(session), before) << c.action;
    }
}

TEST(Dialogs, EscapeClosesTheTextEditorAndTheImageProcessor)
{
    Session session;
    session.newImage(64, 48);
    const QStringList before = shownWindows(session);
    session.must("menu imageProcessor:");
    session.must("answer Yes");
    EXPECT_NE(shownWindows(session), before);
    session.must("key Escape");
    EXPECT_EQ(shownWindows(session), before);
    session.must("key 9");
    session.must("press 10 30");
    EXPECT_NE(shownWindows(session), before);
    session.must("key Escape");
    EXPECT_EQ(shownWindows(session), before);
}

TEST(Dialogs, KeysReachTheLibrarysTable)
{
    Session session;
    session.newImage(20, 20);
    session.must("menu fileManager:");
    const int rows = int(session.must("table")["rows"].toArray().size());
    ASSERT_GE(rows, 1) << "the sample";
    session.must("select-row 0");
    session.must("key Delete");
    session.must("answer Cancel");
    session.must("key F2");
    EXPECT_TRUE(shownWindows(session).contains("Rename")) << shownWindows(session).join(", ").toStdString();
    session.must("key Escape");
    EXPECT_FALSE(shownWindows(session).contains("Rename"));
    session.must("key Delete");
    session.must("answer Delete");
    EXPECT_EQ(session.must("table")["rows"].toArray().size(), rows - 1);
}

TEST(Dialogs, WhatACommandDidIsWhatStatusSays)
{
    Session session;
    session.newImage(20, 20);
    const auto message = [&session] { return session.must("status")["message"].toString(); };
    struct Case {
        const char* action;
        const char* words;
    };
    for (const Case& c : {Case{"selectAll:", "Done: Select All"},
                          {"fill:", "Done: Fill"},
                          {"copy:", "Done: Copy"},
                          {"undo:", "Done: Undo Fill"},
                          {"rotateCW:", "Done: Rotate Clockwise"},
                          {"smartFill:", ""}}) {
        session.must(QString("menu selectAll:"));
        session.must(QString("menu %1").arg(c.action));
        session.must("wait");
        EXPECT_EQ(message(), c.words) << c.action;
    }
}

} // namespace
