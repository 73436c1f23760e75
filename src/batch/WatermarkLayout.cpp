// SPDX-License-Identifier: GPL-3.0-or-later
/// Percents into pixels, one place into many, and the lines of a kept layout.
#include "batch/WatermarkLayout.h"
#include <cmath>
#include <numbers>
#include <sstream>

namespace zp
{
namespace
{

/// Tiled marks of a few pixels are dust that nobody asks for, but costs a stamp each.
constexpr double kLeastStep = 8;
/// Places beyond this, in pixels, are as good as there: no picture is near, and numbers stay whole ones.
constexpr double kFarAway = 1e8;
/// A side that is whole but for the last digits of a cosine is whole.
constexpr double kSlip = 1e-6;

double wholeSide(double side) { return std::max(1.0, std::round(side)); }

Size upright(const WatermarkLayout& layout, Size mark, double shorter)
{
    const double longer = std::max(double(mark.width), double(mark.height));
    if (longer <= 0) return {1, 1};
    const double scale = layout.relative ? shorter * layout.size / 100 / longer : 1;
    return {float(wholeSide(mark.width * scale)), float(wholeSide(mark.height * scale))};
}

/// The directions of a row and from row to row, y downwards.
struct Axes {
    double cosine, sine;
    explicit Axes(int degrees) : cosine(std::cos(radians(degrees))), sine(std::sin(radians(degrees))) {}
    static double radians(int degrees) { return degrees * std::numbers::pi / 180; }
    double along(double x, double y) const { return x * cosine - y * sine; }
    double across(double x, double y) const { return x * sine + y * cosine; }
};

Size turnedBox(Size size, const Axes& axes)
{
    const double c = std::abs(axes.cosine), s = std::abs(axes.sine);
    const auto side = [](double length) { return float(std::ceil(length - kSlip)); };
    return {side(size.width * c + size.height * s), side(size.width * s + size.height * c)};
}

void tile(WatermarkPlan& plan, const WatermarkLayout& layout, const Axes& axes, Size picture)
{
    const PixelPoint first = plan.places.front();
    plan.places.clear();
    const double gap = std::round(double(std::max(plan.size.width, plan.size.height)) * layout.gap / 100);
    const double step = std::max(plan.size.width + gap, kLeastStep), row = std::max(plan.size.height + gap, kLeastStep);

    // Every corner from which a box touches the picture, seen from the first one along the rows and across them.
    const double left = 1 - double(plan.box.width) - first.x, right = double(picture.width) - 1 - first.x;
    const double top = 1 - double(plan.box.height) - first.y, bottom = double(picture.height) - 1 - first.y;
    double alongLeast = axes.along(left, top), alongMost = alongLeast;
    double acrossLeast = axes.across(left, top), acrossMost = acrossLeast;
    for (const auto& [x, y] : {std::pair(right, top), std::pair(left, bottom), std::pair(right, bottom)}) {
        alongLeast = std::min(alongLeast, axes.along(x, y));
        alongMost = std::max(alongMost, axes.along(x, y));
        acrossLeast = std::min(acrossLeast, axes.across(x, y));
        acrossMost = std::max(acrossMost, axes.across(x, y));
    }
    // One more on every side: places are rounded to whole pixels.
    for (double j = std::floor(acrossLeast / row) - 1; j <= std::ceil(acrossMost / row) + 1; ++j) {
        const double shift = std::fmod(j, 2) == 0 ? 0 : 0.5, down = j * row;
        for (double i = std::floor(alongLeast / step - shift) - 1; i <= std::ceil(alongMost / step - shift) + 1; ++i) {
            const double far = (i + shift) * step;
            const double x = std::floor(far * axes.cosine + down * axes.sine + 0.5);
            const double y = std::floor(down * axes.cosine - far * axes.sine + 0.5);
            if (x >= left && x <= right && y >= top && y <= bottom)
                plan.places.push_back({first.x + int(x), first.y + int(y)});
        }
    }
}

/// One number of a layout under its name in the file.
struct Entry {
    const char* name;
    int WatermarkLayout::*number;
    bool WatermarkLayout::*flag;
    int least, most;
};
constexpr Entry kEntries[] = {
    {"relative", nullptr, &WatermarkLayout::relative, 0, 1},
    {"size", &WatermarkLayout::size, nullptr, 1, kLargestWatermark},
    {"margin", &WatermarkLayout::margin, nullptr, 0, 100},
    {"tiled", nullptr, &WatermarkLayout::tiled, 0, 1},
    {"gap", &WatermarkLayout::gap, nullptr, 0, kLargestWatermarkGap},
    {"turn", &WatermarkLayout::turn, nullptr, -kLargestWatermarkTurn, kLargestWatermarkTurn},
};

} // namespace

WatermarkPlan planWatermark(const WatermarkLayout& layout, Size mark, Size picture, WatermarkPlace place, Point point,
                            int margin)
{
    const double shorter = std::min(double(picture.width), double(picture.height));
    const auto pixels = [&](double percents) { return std::round(percents * shorter / 100); };
    const Axes axes(layout.turn);
    WatermarkPlan plan{.size = upright(layout, mark, shorter), .turn = layout.turn, .box = {}, .places = {}};
    plan.box = turnedBox(plan.size, axes);
    if (layout.relative) {
        margin = int(pixels(layout.margin));
        point = {float(pixels(point.x)), float(pixels(point.y))};
    }
    if (place != WatermarkPlace::Custom) point = watermarkPosition(place, picture, plan.box, margin);
    const auto whole = [](double side) { return int(std::clamp(std::floor(side), -kFarAway, kFarAway)); };
    plan.places.push_back({whole(point.x), whole(double(picture.height) - double(point.y) - double(plan.box.height))});
    if (layout.tiled) tile(plan, layout, axes, picture);
    return plan;
}

std::string textOfLayout(const WatermarkLayout& layout)
{
    std::string text;
    for (const Entry& entry : kEntries)
        text += std::string(entry.name) + " " +
                std::to_string(entry.flag ? int(layout.*entry.flag) : layout.*entry.number) + "\n";
    return text;
}

WatermarkLayout layoutOfText(const std::string& text)
{
    WatermarkLayout layout;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name, more;
        int number = 0;
        if (!(words >> name >> number) || words >> more) continue;
        for (const Entry& entry : kEntries) {
            if (name != entry.name || number < entry.least || number > entry.most) continue;
            if (entry.flag)
                layout.*entry.flag = number != 0;
            else
                layout.*entry.number = number;
        }
    }
    return layout;
}

} // namespace zp
