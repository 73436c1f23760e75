// SPDX-License-Identifier: GPL-3.0-or-later
/// Shows the lines, and hands files to whoever plays them.
#include "app/ScriptWindow.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "operations/SessionScript.h"
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace zp;

namespace
{

constexpr QSize kWindowSize{520, 420};
/// Lines that are shown; a copy has them all.
constexpr std::size_t kShownLines = 2000;
/// Milliseconds in which what is written down is gathered before it is shown.
constexpr int kGathering = 100;

} // namespace

ScriptWindow::ScriptWindow(ZPAppController& controller) : mController(controller)
{
    setObjectName("Script");
    setWindowTitle(tr("Script"));
    resize(kWindowSize);
    auto* column = new QVBoxLayout(this);
    mText = new QPlainTextEdit(this);
    mText->setObjectName("mScriptText");
    mText->setAccessibleName(tr("What was done since the image was opened"));
    mText->setPlaceholderText(tr("What is done to the image is written down here."));
    mText->setReadOnly(true);
    mText->setLineWrapMode(QPlainTextEdit::NoWrap);
    mText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    mText->setTabChangesFocus(true);
    column->addWidget(mText, 1);
    mStatus = new QLabel(this);
    mStatus->setObjectName("mScriptStatus");
    mStatus->setTextFormat(Qt::PlainText);
    mStatus->setWordWrap(true);
    column->addWidget(mStatus);
    auto* row = new QHBoxLayout;
    const auto button = [this, row](const QString& title, const char* name, const QString& tip, auto&& act) {
        auto* b = new QPushButton(title, this);
        b->setObjectName(name);
        b->setToolTip(tip);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, act);
        row->addWidget(b);
        return b;
    };
    mCopyButton = button(tr("&Copy"), "mScriptCopyButton", tr("The whole script on the clipboard"),
                         [this] { mController.copyAsScript(); });
    mSaveButton = button(tr("&Save…"), "mScriptSaveButton", tr("The whole script as a file"), [this] { save(); });
    row->addStretch(1);
    mPlayButton =
        button(tr("&Play…"), "mScriptPlayButton", tr("Plays a script's file on the image"), [this] { play(); });
    mStopButton = button(tr("S&top"), "mScriptStopButton", tr("Ends the script before its next command"), [this] {
        if (mStop) mStop();
    });
    column->addLayout(row);
    mSoon.setSingleShot(true);
    mSoon.setInterval(kGathering);
    connect(&mSoon, &QTimer::timeout, this, &ScriptWindow::showLines);
    connect(&mController.sessionScript(), &SessionScript::grown, this, [this] {
        if (isVisible() && !mSoon.isActive()) mSoon.start();
    });
    enableButtons();
}

void ScriptWindow::showWindow() { bringToFront(this, true); }

void ScriptWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showLines();
}

void ScriptWindow::showLines()
{
    QString text;
    for (const std::string& line : mController.sessionScript().lastLines(kShownLines))
        text += QString::fromStdString(line) + '\n';
    QScrollBar* const bar = mText->verticalScrollBar();
    const bool follows = bar->value() == bar->maximum();
    const int at = bar->value();
    mText->setPlainText(text);
    bar->setValue(follows ? bar->maximum() : at);
    enableButtons();
}

void ScriptWindow::enableButtons()
{
    const bool any = !mController.sessionScript().isEmpty(), playing = bool(mStop);
    mCopyButton->setEnabled(any);
    mSaveButton->setEnabled(any);
    mPlayButton->setEnabled(!playing && mController.scriptPlayer() && mController.document().picture().isLoaded());
    mStopButton->setEnabled(playing);
}

void ScriptWindow::say(const QString& sentence)
{
    mStatus->setText(sentence);
    mController.document().say(sentence);
}

void ScriptWindow::save()
{
    PanelRequest request;
    request.title = tr("Save Script");
    request.directory = homeFolder();
    request.name = "script.zps";
    const std::optional<SaveAnswer> answer = runSavePanel(request);
    if (!answer) return;
    const std::string text = mController.sessionScript().text();
    std::string error;
    if (writeFileSafely(answer->path, text.data(), text.size(), &error))
        say(tr("Saved %1.").arg(QString::fromStdString(displayName(lastPathComponent(answer->path)))));
    else
        runAlert(tr("The script could not be saved."), QString::fromStdString(error), {tr("OK")});
}

void ScriptWindow::play()
{
    PanelRequest request;
    request.title = tr("Play a Script");
    request.directory = homeFolder();
    const std::optional<std::string> path = runOpenPanel(request);
    if (!path || !mController.scriptPlayer()) return;
    mStatus->setText(tr("Playing %1…").arg(QString::fromStdString(displayName(lastPathComponent(*path)))));
    mStop = mController.scriptPlayer()(*path, [this](int line, const QString& error) { ended(line, error); });
    enableButtons();
}

void ScriptWindow::ended(int line, const QString& error)
{
    mStop = {};
    say(error.isEmpty() ? tr("The script is done.") : tr("Line %1 of the script: %2.").arg(line).arg(error));
    showLines();
}
