// SPDX-License-Identifier: GPL-3.0-or-later
/// The editor's window: tools and their options around the canvas, zoom, status line.
#pragma once
#include <QMainWindow>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class MainMenu;
class QLabel;
class QToolButton;
class ScrollView;
class ZPCanvas;
namespace Ui
{
class Main;
}

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;
    ZPCanvas* canvas() const { return mCanvas; }
    /// Sets every item of the tool pop-up and of the strip to the image named like it.
    void setToolImages();
    void zoomIn();
    void zoomOut();
    void actualSize();
    void fitToWindow();
    /// The pop-up shows the level nearest to the canvas's zoom.
    void showZoom();
    void showTitle();

    std::function<bool()> mayClose; ///< asked before the window closes
    std::function<void(const std::string&)> openDroppedFile;

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setUpToolOptions();
    void setUpSwitches();
    void setUpStatusLine();
    void showToolOptions(int tool);
    void showPointer(QPointF imagePoint);
    void giveFocusBack();

    std::unique_ptr<Ui::Main> mUi;
    ZPCanvas* mCanvas;
    QLabel* mInfoField;
    QLabel* mPointerLabel;
    QLabel* mImageLabel;
    std::vector<QToolButton*> mToolButtons;
    struct Switch {
        QToolButton* button;
        unsigned keyBit;
        std::vector<int> tools;
    };
    std::vector<Switch> mSwitches;
};
