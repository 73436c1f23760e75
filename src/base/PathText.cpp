// SPDX-License-Identifier: GPL-3.0-or-later
/// Outlines written and read.
#include "base/PathText.h"
#include "base/ScriptWords.h"
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace zp
{

namespace
{

constexpr std::string_view kEvenOdd = "evenodd";

/// The next word of @p text, which loses it; empty at its end.
std::string_view takeWord(std::string_view& text)
{
    const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
    const std::size_t end = std::min(text.find(' ', first), text.size());
    const std::string_view word = text.substr(first, end - first);
    text.remove_prefix(end);
    return word;
}

bool takePoint(std::string_view& text, Point& point)
{
    for (float* const coordinate : {&point.x, &point.y}) {
        const std::string_view word = takeWord(text);
        const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), *coordinate);
        if (word.empty() || fault != std::errc() || end != word.data() + word.size() || !std::isfinite(*coordinate))
            return false;
    }
    return true;
}

} // namespace

std::string textOfPath(const BezierPath& path)
{
    std::string text;
    const auto add = [&text](std::string_view word) {
        if (!text.empty()) text += ' ';
        text += word;
    };
    if (path.windingRule() == WindingRule::EvenOdd) add(kEvenOdd);
    path.forEach([&](PathElement kind, const Point* points) {
        const bool curve = kind == PathElement::CurveTo, close = kind == PathElement::ClosePath;
        add(curve ? "C" : close ? "Z" : kind == PathElement::MoveTo ? "M" : "L");
        for (int i = 0; i < (curve ? 3 : close ? 0 : 1); ++i) {
            add(scriptNumber(points[i].x));
            add(scriptNumber(points[i].y));
        }
    });
    return text;
}

std::optional<BezierPath> pathOfText(const std::string& text)
{
    BezierPath path;
    std::string_view rest = text;
    for (std::string_view word = takeWord(rest); !word.empty(); word = takeWord(rest)) {
        std::array<Point, 3> points;
        if (word == kEvenOdd) {
            path.setWindingRule(WindingRule::EvenOdd);
        } else if (word == "Z") {
            path.closePath();
        } else if ((word == "M" || word == "L") && takePoint(rest, points[0])) {
            word == "M" ? path.moveTo(points[0]) : path.lineTo(points[0]);
        } else if (word == "C" && takePoint(rest, points[0]) && takePoint(rest, points[1]) &&
                   takePoint(rest, points[2])) {
            path.curveTo(points[2], points[0], points[1]);
        } else {
            return std::nullopt;
        }
    }
    return path;
}

} // namespace zp
