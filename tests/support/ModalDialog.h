// SPDX-License-Identifier: GPL-3.0-or-later
/// A dialog that waits for a person, worked in by a test.
#pragma once
#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <gtest/gtest.h>

namespace zp::test
{

/// Runs the dialog and does @p work in it; closes it by Escape if the work did not.
template <class Run, class Work>
void inModalDialog(QObject* context, const char* name, Run run, Work work)
{
    bool worked = false;
    QTimer::singleShot(0, context, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->objectName(), name);
        EXPECT_TRUE(dialog->isModal());
        work(*dialog);
        worked = true;
        if (dialog->isVisible()) dialog->reject();
    });
    run();
    EXPECT_TRUE(worked);
}

} // namespace zp::test
