// SPDX-License-Identifier: GPL-3.0-or-later
/// A modal window with a bar that only says that something goes on.
#include "desktop/ReadingWait.h"
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

class ReadingWait : public codec::DecodingWait
{
public:
    ReadingWait() { mClock.start(); }

    bool goOn() override
    {
        if (!qApp || QThread::currentThread() != qApp->thread()) return true;
        if (!mDialog && mClock.elapsed() < kUnnoticedMilliseconds) return true;
        if (!mDialog) {
            mDialog = std::make_unique<QProgressDialog>(QCoreApplication::translate("Files", "Reading the image…"),
                                                        QCoreApplication::translate("Files", "Cancel"), 0, 0,
                                                        QApplication::activeWindow());
            mDialog->setWindowModality(Qt::ApplicationModal);
            mDialog->show();
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, kEventMilliseconds);
        return !mDialog->wasCanceled();
    }

private:
    QElapsedTimer mClock;
    std::unique_ptr<QProgressDialog> mDialog;
};

} // namespace

std::unique_ptr<codec::DecodingWait> readingWait() { return std::make_unique<ReadingWait>(); }

} // namespace zp
