// SPDX-License-Identifier: GPL-3.0-or-later
/// What is done to the picture, as it is written down; and scripts played on it.
#pragma once
#include "desktop/WindowPlaces.h"
#include <QTimer>
#include <functional>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class ZPAppController;

/// Follows the session's script while it is on screen; costs nothing while it is not.
class ScriptWindow : public zp::SideWindow
{
    Q_OBJECT

public:
    /// @param controller  must outlive the window
    explicit ScriptWindow(ZPAppController& controller);
    void showWindow();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showLines();
    void save();
    void play();
    void ended(int line, const QString& error);
    void say(const QString& sentence);
    void enableButtons();

    ZPAppController& mController;
    QPlainTextEdit* mText;
    QLabel* mStatus;
    QPushButton *mCopyButton, *mSaveButton, *mPlayButton, *mStopButton;
    QTimer mSoon;                ///< many lines are shown at once
    std::function<void()> mStop; ///< ends the script that is played; empty when none is
};
