// SPDX-License-Identifier: GPL-3.0-or-later
/// What the window shows without a picture: where to begin.
#pragma once
#include <QTimer>
#include <QWidget>
#include <deque>
#include <string>

class QHBoxLayout;
class QLabel;
class QToolButton;
namespace zp
{
class Document;
}

/// Lies over the view while there is no picture: the files opened last and the sample as thumbnails, and the two
/// commands that begin. Thumbnails are decoded one a turn of the event loop. Main thread.
class EmptyView : public QWidget
{
    Q_OBJECT

public:
    /// @param viewport  whose child this becomes
    EmptyView(const zp::Document& document, QWidget* viewport);
    /// Other files were opened, or others are on disk.
    void refresh();
    /// A file hovers over the window: the place to drop it is marked.
    void setHovered(bool hovered);
    /// A name cut in its middle, so that its end stays.
    static QString shortName(const std::string& path, const QFontMetrics& font);

signals:
    void fileChosen(const std::string& path);
    void commandChosen(const QString& action);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    void fill();
    void showNextThumbnail();

    const zp::Document& mDocument;
    QHBoxLayout* mThumbnails;
    struct Waiting {
        QToolButton* button;
        std::string path;
    };
    std::deque<Waiting> mWaiting;
    QTimer mTurn;
    bool mHovered = false;
};
