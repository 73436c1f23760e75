// SPDX-License-Identifier: GPL-3.0-or-later
/// OpenCV as a peer: on our pixels, with as many threads as we have.
#pragma once
#include "base/BitmapRep.h"
#include "base/WorkPool.h"
#include <opencv2/core.hpp>

namespace zp::bench
{

/// The picture's own memory as OpenCV sees it. Every benchmark that calls OpenCV starts with one, for its number of
/// threads is the whole process's and another may have changed it.
inline cv::Mat matOf(BitmapRep& rep)
{
    cv::setNumThreads(workerCount());
    return {rep.pixelsHigh(), rep.pixelsWide(), CV_8UC4, rep.bitmapData(), std::size_t(rep.bytesPerRow())};
}

} // namespace zp::bench
