// SPDX-License-Identifier: GPL-3.0-or-later
/// Writing and strict reading of saved selections.
#include "selection/SelectionFile.h"
#include <charconv>
#include <cmath>
#include <span>

namespace zp
{

namespace
{

constexpr std::string_view kHeading = "Zelpane selection 1";
constexpr std::string_view kEvenOdd = "winding even-odd", kNonZero = "winding non-zero";
constexpr std::string_view kElements = "elements ", kEnd = "end";

void appendNumber(std::string& text, float value)
{
    char digits[48];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, std::isfinite(value) ? value : 0.0f);
    text += ' ';
    text.append(digits, end.ptr);
}

void appendPoint(std::string& text, Point p)
{
    appendNumber(text, p.x);
    appendNumber(text, p.y);
}

/// Takes text apart line by line and number by number; once anything is wrong, everything after is.
class Reader
{
public:
    explicit Reader(std::string_view text) : mRest(text) {}

    std::optional<std::string_view> line()
    {
        const std::size_t end = mRest.find('\n');
        if (end == std::string_view::npos) return std::nullopt;
        const std::string_view line = mRest.substr(0, end);
        mRest.remove_prefix(end + 1);
        return line;
    }
    bool atEnd() const { return mRest.empty(); }

    /// @p line is the word and then exactly as many points as @p points, single spaces between.
    static bool parse(std::string_view line, std::string_view word, std::span<Point> points)
    {
        if (!line.starts_with(word)) return false;
        const char* at = line.data() + word.size();
        const char* const end = line.data() + line.size();
        const auto number = [&](float& value) {
            if (at == end || *at != ' ') return false;
            const std::from_chars_result result = std::from_chars(at + 1, end, value);
            at = result.ptr;
            return result.ec == std::errc{} && std::isfinite(value);
        };
        for (Point& p : points)
            if (!number(p.x) || !number(p.y)) return false;
        return at == end;
    }

private:
    std::string_view mRest;
};

bool readElement(std::string_view line, BezierPath& path)
{
    Point p[3];
    if (Reader::parse(line, "move", {p, 1})) {
        path.moveTo(p[0]);
        return true;
    }
    if (path.isEmpty()) return false; // nothing can come before the first move
    if (Reader::parse(line, "line", {p, 1})) {
        path.lineTo(p[0]);
        return true;
    }
    if (Reader::parse(line, "curve", {p, 3})) {
        path.curveTo(p[2], p[0], p[1]);
        return true;
    }
    if (line != "close") return false;
    path.closePath();
    return true;
}

} // namespace

std::string selectionFileText(const BezierPath& path)
{
    std::string text;
    text.reserve(100 + std::size_t(path.elementCount()) * 24);
    text += kHeading;
    text += '\n';
    text += path.windingRule() == WindingRule::EvenOdd ? kEvenOdd : kNonZero;
    text += '\n';
    text += kElements;
    text += std::to_string(path.elementCount());
    text += '\n';
    path.forEach([&](PathElement kind, const Point* p) {
        switch (kind) {
        case PathElement::MoveTo:
            text += "move";
            break;
        case PathElement::LineTo:
            text += "line";
            break;
        case PathElement::CurveTo:
            text += "curve";
            appendPoint(text, p[0]);
            appendPoint(text, p[1]);
            p += 2;
            break;
        case PathElement::ClosePath:
            text += "close\n";
            return;
        }
        appendPoint(text, *p);
        text += '\n';
    });
    text += kEnd;
    text += '\n';
    return text;
}

std::optional<BezierPath> pathFromSelectionFile(std::string_view text)
{
    Reader reader(text);
    if (reader.line() != kHeading) return std::nullopt;
    BezierPath path;
    const std::optional<std::string_view> winding = reader.line();
    if (winding == kEvenOdd)
        path.setWindingRule(WindingRule::EvenOdd);
    else if (winding == kNonZero)
        path.setWindingRule(WindingRule::NonZero);
    else
        return std::nullopt;

    const std::optional<std::string_view> elements = reader.line();
    if (!elements || !elements->starts_with(kElements)) return std::nullopt;
    int count = -1;
    const char* const end = elements->data() + elements->size();
    const std::from_chars_result parsed = std::from_chars(elements->data() + kElements.size(), end, count);
    if (parsed.ec != std::errc{} || parsed.ptr != end || count < 0) return std::nullopt;

    for (int i = 0; i < count; ++i) {
        const std::optional<std::string_view> line = reader.line();
        if (!line || !readElement(*line, path)) return std::nullopt;
    }
    // Two moves or closes in a row fold into one, a line after a close starts anew: no path of ours was written so.
    if (path.elementCount() != count || reader.line() != kEnd || !reader.atEnd()) return std::nullopt;
    return path;
}

} // namespace zp
