// SPDX-License-Identifier: GPL-3.0-or-later
/// The About box: what the program is, its version and licence, and the way to its page.
#pragma once
#include <QObject>
#include <memory>

class QDialog;
namespace Ui
{
class AboutBox;
}

/// One instance, made on first use, on the main thread.
class ZPAboutBox : public QObject
{
    Q_OBJECT

public:
    /// Shows the box and waits until it is closed. While it is open a second call does nothing.
    static void show();
    ~ZPAboutBox() override;

private:
    ZPAboutBox();
    void run();
    void close();
    /// Opens the project's page in the browser; only web and file addresses are opened.
    void showURL();

    std::unique_ptr<QDialog> mWindow;
    std::unique_ptr<Ui::AboutBox> mUi;
};
