// SPDX-License-Identifier: GPL-3.0-or-later
/// How a picture that was decoded smaller than its file lies on the file's own pixels.
#pragma once

namespace zp
{

/// A decoder reduces by whole divisors and rounds up, so that the last column and row stand for pixels beyond the edge
/// (the first ones, once the picture has been turned). Taken for whole, they would shift the picture by up to a pixel.
struct Reduction {
    int divisor = 1;           ///< a pixel stands for divisor x divisor of the file's
    int left = 0, top = 0;     ///< where the file's picture begins in the first column and row, in its own pixels
    int width = 0, height = 0; ///< the size of the file's picture
};

} // namespace zp
