// SPDX-License-Identifier: GPL-3.0-or-later
/// Small pictures of steps, made in the background.
#pragma once
#include "desktop/LatestWish.h"
#include <QImage>
#include <QObject>
#include <cstdint>
#include <map>
#include <vector>

/// Reads the files of steps, never the picture itself. Main thread; one worker.
class StepThumbnails : public QObject
{
    Q_OBJECT

public:
    /// @param side  the most that width or height of a small picture has, in pixels of the screen
    explicit StepThumbnails(int side, QObject* parent = nullptr);
    /// The small picture of step @p number as of @p time; null until it is made. What is not there yet is begun.
    QImage of(std::int32_t number, std::int64_t time);
    /// Nothing is being made.
    bool isIdle() const { return mWorker.isIdle(); }
    /// Another picture's steps come.
    void clear();

signals:
    void made();

private:
    struct Wish {
        std::int32_t number;
        std::int64_t time;
        auto operator<=>(const Wish&) const = default;
    };
    void next();
    void keep(QImage image);

    std::map<Wish, QImage> mMade; ///< null: it could not be made
    std::vector<Wish> mWishes;    ///< the latest last, which is made first
    Wish mMaking{};
    zp::LatestWish<Wish, QImage> mWorker;
};
