// SPDX-License-Identifier: GPL-3.0-or-later
/// A modal window with a bar that only says that something goes on.
#include "desktop/WaitWindow.h"
#include <QApplication>
#include <QElapsedTimer>
#include <QProgressDialog>
#include <QThread>

namespace zp
{

namespace
{

constexpr int kUnnoticedMilliseconds = 1000;
constexpr int kEventMilliseconds = 20;

class WaitWindow : public LongWait
{
public:
    /// @param text  of the context Files, to be translated when the window comes up
    explicit WaitWindow(const char* text) : mText(text) { mClock.start(); }

    bool goOn() override
    {
        if (!qApp || QThread::currentThread() != qApp->thread()) return true;
        if (!mDialog && mClock.elapsed() < kUnnoticedMilliseconds) return true;
        if (!mDialog) {
            mDialog = std::make_unique<QProgressDialog>(QCoreApplication::translate("Files", mText),
                                                        QCoreApplication::translate("Files", "Cancel"), 0, 0,
                                                        QApplication::activeWindow());
            mDialog->setWindowModality(Qt::ApplicationModal);
            mDialog->show();
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, kEventMilliseconds);
        return !mDialog->wasCanceled();
    }

private:
    const char* mText;
    QElapsedTimer mClock;
    std::unique_ptr<QProgressDialog> mDialog;
};

} // namespace

std::unique_ptr<LongWait> readingWait()
{
    return std::make_unique<WaitWindow>(QT_TRANSLATE_NOOP("Files", "Reading the image…"));
}

std::unique_ptr<LongWait> combiningWait()
{
    return std::make_unique<WaitWindow>(QT_TRANSLATE_NOOP("Files", "Combining the outlines…"));
}

} // namespace zp
