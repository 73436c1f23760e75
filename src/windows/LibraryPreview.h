// SPDX-License-Identifier: GPL-3.0-or-later
/// A small view of one picture file, decoded on a thread of its own so that the table stays quick under the fingers.
#pragma once
#include "desktop/LatestWish.h"
#include "desktop/Thumbnails.h"
#include <QWidget>

/// Main thread only. Only the latest file asked for is decoded.
class LibraryPreview : public QWidget
{
    Q_OBJECT

public:
    explicit LibraryPreview(QWidget* parent = nullptr);
    /// @param path empty for nothing
    void showFile(const std::string& path);
    /// What is shown in the picture's stead when there is none.
    void showText(const QString& text);
    const QImage& picture() const { return mPicture; }
    QSize sizeHint() const override { return {240, 240}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Wanted {
        std::string path;
        int side = 0; ///< device pixels
    };
    void show(const zp::Thumbnail& made);

    QImage mPicture;
    QString mText;
    zp::LatestWish<Wanted, zp::Thumbnail> mWorker;
};
