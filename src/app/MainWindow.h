// SPDX-License-Identifier: GPL-3.0-or-later
/// The editor's window: tools and their options around the canvas, zoom, status line.
#pragma once
#include <QMainWindow>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class EmptyView;
class QKeySequence;
class HistoryPanel;
class QToolButton;
class NoticeBar;
class ScrollView;
class SelectionChip;
class StatusLine;
class ZPCanvas;
namespace zp
{
class Document;
}
namespace Ui
{
class Main;
}

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param document  must outlive the window
    explicit MainWindow(zp::Document& document);
    ~MainWindow() override;
    ZPCanvas* canvas() const { return mCanvas; }
    StatusLine& statusLine() const { return *mStatus; }
    /// Sets every item of the tool pop-up and of the strip to the image named like it.
    void setToolImages();
    void toggleFullScreen();
    /// The empty window looks again which files it can offer.
    void refreshInvitation();
    /// Shape of the brush tip and tolerance, as choosing them does; a negative tolerance leaves it.
    void chooseBrush(int shape, int tolerance);
    /// The dock with the steps.
    void showHistory(bool on);
    bool historyIsShown() const;

    std::function<bool()> mayClose; ///< asked before the window closes
    std::function<void(const std::string&)> openDroppedFile;
    std::function<void(const QString&)> performAction; ///< a menu command, by its action
    /// The keys that the menu commands have now: tips and hints name them. Called again whenever they change.
    void showKeys(std::function<QString(const QString& action)> keyNameOfCommand,
                  const std::function<bool(const QKeySequence&)>& belongsToCommand);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void setUpHistory();
    void setUpTools();
    void setUpToolOptions();
    void setUpZoom();
    void setUpSwitches();
    void setUpNotices();
    void showTool();   ///< the chosen tool and the options that its row puts on show
    void showPaint();  ///< colour and size
    void showZoom();   ///< the level nearest to the zoom, and on the closed pop-up the zoom itself
    void showStatus(); ///< status line and title, all of it from the document
    void showNotice();
    void showSwitches();    ///< which of them are on
    void showKeysOfRoles(); ///< in the tips of the switches, and in the hint
    void giveFocusBack();
    /// The window moves while a key is held over the picture: the window manager has taken key and drag for itself.
    void noteTakenKey(std::uint32_t role);

    std::unique_ptr<Ui::Main> mUi;
    zp::Document& mDocument;
    ZPCanvas* mCanvas;
    SelectionChip* mChip;
    EmptyView* mEmpty;
    StatusLine* mStatus = nullptr;
    HistoryPanel* mHistoryPanel;
    NoticeBar* mNoticeBar;
    std::vector<QToolButton*> mToolButtons;
    struct Switch {
        QToolButton* button;
        const char* tip; ///< what it does, to be translated
        unsigned keyBit;
        unsigned option; ///< the bit of a tool's row that shows it
    };
    std::vector<Switch> mSwitches;
    QToolButton* mExplain = nullptr; ///< holds no key, and stays as it is with another tool
    bool mTakenKeySaid = false;
};
