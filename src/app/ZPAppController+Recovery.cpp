// SPDX-License-Identifier: GPL-3.0-or-later
/// After a crash: offers the last snapshot of the picture that was being edited.
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "operations/Recovery.h"

using namespace zp;

bool ZPAppController::offerRecovery()
{
    const std::optional<RecoverableWork> work = findRecoverableWork();
    if (!work) return false;
    const QString name = work->imagePath.empty()
                             ? tr("An image that was never saved")
                             : QString::fromStdString(displayName(lastPathComponent(work->imagePath)));
    const int answer = runAlert(
        tr("Zelpane ended unexpectedly. Do you want to recover your last image?"),
        tr("%1, %2 × %3 pixels, as it was after the last change.").arg(name).arg(work->width).arg(work->height),
        {tr("Recover"), tr("Discard")});
    if (answer != 0) {
        discardRecoverableWork();
        return false;
    }
    return bool(recover(*mDocument, *work));
}
