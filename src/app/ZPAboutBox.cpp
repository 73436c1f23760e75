// SPDX-License-Identifier: GPL-3.0-or-later
/// The About box's texts and its two buttons.
#include "app/ZPAboutBox.h"
#include "app/ZPPrefs.h"
#include "base/Folders.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "ui_AboutBox.h"
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QIcon>
#include <QUrl>

using namespace zp;

namespace
{
ZPAboutBox* shared = nullptr;
}

void ZPAboutBox::show()
{
    if (!shared) {
        shared = new ZPAboutBox;
        static bool once = (qAddPostRoutine([] { delete shared; }), true); // before the application object goes
        (void)once;
    }
    shared->run();
}

ZPAboutBox::ZPAboutBox() : mWindow(std::make_unique<QDialog>()), mUi(std::make_unique<Ui::AboutBox>())
{
    mUi->setupUi(mWindow.get());
    QFont large = mUi->mNameText->font();
    large.setPointSizeF(large.pointSizeF() * 2.2);
    large.setWeight(QFont::DemiBold);
    mUi->mNameText->setFont(large);
    mUi->mVersionText->setText(tr("Version %1").arg(ZP_VERSION));
    mUi->mInfoText->setText(tr("Simple, yet powerful image editing: paint, select, retouch, adjust and convert images, "
                               "one at a time or by the folder."));
    mUi->mLicenseText->setText(tr("Free software under the GNU General Public License, version 3 or later. "
                                  "It comes with no warranty, to the extent that the law permits."));
    const QIcon icon(textFromPath(pathByAppending(shippedResourcesFolder(), "icons/zelpane.svg")));
    mUi->mPicture->setPixmap(icon.pixmap(QSize(128, 128), mWindow->devicePixelRatioF()));
    connect(mUi->mCloseButton, &QPushButton::clicked, this, &ZPAboutBox::close);
    connect(mUi->mPageButton, &QPushButton::clicked, this, &ZPAboutBox::showURL);
}

ZPAboutBox::~ZPAboutBox()
{
    if (shared == this) shared = nullptr;
}

void ZPAboutBox::run()
{
    if (mWindow->isVisible()) return;
    mUi->mPageButton->setToolTip(ZPPrefs::projectPage());
    centerWindow(mWindow.get());
    mWindow->exec();
}

void ZPAboutBox::close() { mWindow->accept(); }

void ZPAboutBox::showURL()
{
    const QUrl page = QUrl::fromUserInput(ZPPrefs::projectPage());
    const QString scheme = page.scheme();
    const bool opened = (scheme == "https" || scheme == "http" || scheme == "file") && QDesktopServices::openUrl(page);
    if (!opened) beep();
}
