// SPDX-License-Identifier: GPL-3.0-or-later
/// Small pictures of steps, made in the background.
#pragma once
#include "desktop/MainThreadWake.h"
#include <QImage>
#include <QObject>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

/// Reads the files of steps, never the picture itself. Main thread; one worker.
class StepThumbnails : public QObject
{
    Q_OBJECT

public:
    /// @param side  the most that width or height of a small picture has, in pixels of the screen
    explicit StepThumbnails(int side, QObject* parent = nullptr);
    ~StepThumbnails() override;
    /// The small picture of step @p number as of @p time; null until it is made. What is not there yet is begun.
    QImage of(std::int32_t number, std::int64_t time);
    /// Nothing is being made.
    bool isIdle() const;
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
    void work(const std::stop_token& stop);

    const int mSide;
    mutable std::mutex mMutex; ///< of all that follows
    std::condition_variable_any mWake;
    std::map<Wish, QImage> mMade; ///< null: it could not be made
    std::vector<Wish> mWishes;    ///< the latest last, which is made first
    bool mWorking = false;
    zp::MainThreadWake mReady;
    std::jthread mWorker; ///< after all that it uses
};
