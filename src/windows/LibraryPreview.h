// SPDX-License-Identifier: GPL-3.0-or-later
/// A small view of one picture file, decoded on a thread of its own so that the table stays quick under the fingers.
#pragma once
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

/// Main thread only; the worker leaves its picture under a lock, where a timer finds it. Only the latest file asked for
/// is decoded.
class LibraryPreview : public QWidget
{
    Q_OBJECT

public:
    explicit LibraryPreview(QWidget* parent = nullptr);
    ~LibraryPreview() override;
    /// @param path empty for nothing
    void showFile(const std::string& path);
    /// What is shown in the picture's stead when there is none.
    void showText(const QString& text);
    const QImage& picture() const { return mPicture; }
    QSize sizeHint() const override { return {240, 240}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void work(const std::stop_token& stop);
    void take();

    QImage mPicture;
    QString mText;
    quint64 mRequest = 0;

    std::mutex mGuard;
    std::condition_variable_any mWake;
    struct Wanted {
        std::string path;
        quint64 request = 0;
        int side = 0; ///< device pixels
    };
    struct Done {
        quint64 request = 0;
        QImage picture;
        std::string error;
    };
    std::optional<Wanted> mWanted; ///< under mGuard
    std::optional<Done> mDone;     ///< under mGuard
    QTimer mPoll;
    std::jthread mWorker; ///< last: started after, and joined before, what it uses
};
