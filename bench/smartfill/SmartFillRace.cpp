// SPDX-License-Identifier: GPL-3.0-or-later
/// Smart fill on photos: the fast version, the plain one and two literal ones in the same run.
///
///     smartfill_race PICTURE.ppm...
///
/// Fills a hole of 200 x 150 in the middle of each picture at radius 50 % and prints milliseconds, the least of several
/// runs, and how many times as long each literal version takes. Fails if the results differ.
#include "Pnm.h"
#include "smartfill/LiteralSmartFill.h"
#include "smartfill/SmartFillPictures.h"
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <functional>

using namespace zp;

namespace
{

SmartFillPicture holeIn(const bench::Pnm& photo)
{
    if (photo.channels != 3) throw std::runtime_error("not in colour");
    testpictures::Scene scene(photo.width, photo.height);
    scene.paint([&](int x, int y) {
        const std::uint8_t* const p =
            photo.bytes.data() + 3 * (std::size_t(y) * std::size_t(photo.width) + std::size_t(x));
        return testpictures::argb(255, p[0], p[1], p[2]);
    });
    const int x = photo.width / 2, y = photo.height / 2;
    const PixelBox hole{x - 100, y - 75, x + 100, y + 75};
    scene.select(hole);
    return fetchSmartFillPicture(scene.bitmap(), scene.maskView(),
                                 smartFillArea(hole.rect(), scene.width, scene.height, 50, false));
}

double milliseconds(int runs, const std::function<void()>& work)
{
    double least = 1e9;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        least = std::min(least,
                         std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    return least;
}

bool race(const char* path)
{
    const SmartFillPicture picture = holeIn(bench::readPnm(path));
    SmartFillPicture fast, plain, literal, byRand;
    const double fastMs = milliseconds(9, [&] { fillSmartFillPicture(fast = picture, 1, {}); });
    const double plainMs =
        milliseconds(3, [&] { fillSmartFillPicture(plain = picture, 1, {}, SmartFillSpeed::Portable); });
    const double literalMs = milliseconds(2, [&] { literal::fill(literal = picture, 1, {}); });
    const double byRandMs =
        milliseconds(2, [&] { literal::fill(byRand = picture, 1, {}, literal::Draws::TheCLibrarys); });
    const bool same = fast.pixels == literal.pixels && plain.pixels == literal.pixels;
    std::printf("%s: %.1f ms, plain %.0f; literal %.0f (%.1f times), with rand() %.0f (%.1f times)%s\n", path, fastMs,
                plainMs, literalMs, literalMs / fastMs, byRandMs, byRandMs / fastMs, same ? "" : ": DIFFERENT");
    return same;
}

} // namespace

int main(int argc, char** argv)
try {
    bool same = true;
    for (int i = 1; i < argc; ++i) same &= race(argv[i]);
    return same ? 0 : 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
