// SPDX-License-Identifier: GPL-3.0-or-later
/// After a crash: offers the pictures that were being edited; at the end: names what was never saved.
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "document/Shelf.h"
#include "operations/Recovery.h"
#include <QDateTime>
#include <QLocale>

using namespace zp;

static QString nameOf(const std::string& path)
{
    return path.empty() ? ZPAppController::tr("An image that was never saved")
                        : QString::fromStdString(displayName(lastPathComponent(path)));
}

bool ZPAppController::offerRecovery()
{
    std::vector<LeftPicture> wanted;
    for (const LeftPicture& left : leftPictures()) {
        const QString when =
            left.work.time ? QLocale().toString(QDateTime::fromMSecsSinceEpoch(left.work.time), QLocale::ShortFormat)
                           : QString();
        QString message = tr("%1, %2 × %3 pixels, as it was after the last change.")
                              .arg(nameOf(left.work.imagePath))
                              .arg(left.work.width)
                              .arg(left.work.height);
        if (!when.isEmpty()) message += "\n" + when;
        switch (runAlert(tr("Zelpane ended unexpectedly. Do you want to recover your last image?"), message,
                         {tr("Recover"), tr("Discard"), tr("Later")})) {
        case 0:
            wanted.push_back(left);
            break;
        case 1:
            discard(left);
            break;
        default: // it is asked about again by the next start
            break;
        }
    }
    // The newest is on screen in the end, the others are the pictures before it.
    bool recovered = false;
    for (auto left = wanted.rbegin(); left != wanted.rend(); ++left) recovered |= bool(recover(*mDocument, *left));
    return recovered;
}

QString ZPAppController::neverSaved() const
{
    QStringList names;
    for (const ShelvedPicture& picture : mDocument->shelf().pictures())
        if (picture.changed) names.prepend(nameOf(picture.path));
    return names.isEmpty() ? QString() : tr("Changed and never saved: %1.").arg(names.join(", "));
}
