// SPDX-License-Identifier: GPL-3.0-or-later
/// The index on the disk: a line with version, count and digest, then a line for each picture.
#include "base/Folders.h"
#include "library/Digest.h"
#include "library/PictureMark.h"
#include <charconv>
#include <string_view>

namespace zp
{

namespace
{

constexpr std::string_view kTitle = "zelpane library index 1 ";
constexpr std::size_t kMostMarks = 100000;
/// Room for as many marks with paths of a kilobyte each.
constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 27;
constexpr std::string_view kUnknown = "?", kNone = "-";

std::string hexadecimal(std::uint64_t value)
{
    char room[16];
    const auto end = std::to_chars(room, room + sizeof room, value, 16).ptr;
    return {room, end};
}

/// A path on one line, without spaces.
std::string escaped(const std::string& path)
{
    std::string text;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte > ' ' && c != '%') {
            text += c;
            continue;
        }
        text += '%';
        if (byte < 16) text += '0';
        text += hexadecimal(byte);
    }
    return text;
}

template <class Number>
bool parse(std::string_view text, Number& value, int base = 10)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    return error == std::errc() && end == text.data() + text.size();
}

bool unescape(std::string_view text, std::string& path)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            path += text[i];
            continue;
        }
        unsigned byte = 0;
        if (i + 2 >= text.size() || !parse(text.substr(i + 1, 2), byte, 16)) return false;
        path += char(byte);
        i += 2;
    }
    return path.starts_with('/');
}

/// What stands before the next @p end, which is taken with it.
std::string_view taken(std::string_view& text, char end)
{
    const std::size_t at = text.find(end);
    const std::string_view part = text.substr(0, at);
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
    return part;
}

std::string lookText(const PictureMark& mark)
{
    if (!mark.looked) return std::string(kUnknown);
    if (!mark.look) return std::string(kNone);
    return hexadecimal(mark.look->waves) + "," + std::to_string(mark.look->shape);
}

bool parseLook(std::string_view text, PictureMark& mark)
{
    mark.looked = text != kUnknown;
    if (!mark.looked || text == kNone) return true;
    PictureLook look;
    if (!parse(taken(text, ','), look.waves, 16) || !parse(text, look.shape)) return false;
    mark.look = look;
    return true;
}

bool parseLine(std::string_view line, PictureMarks& marks)
{
    PictureMark mark;
    if (!parse(taken(line, ' '), mark.size) || !parse(taken(line, ' '), mark.modified) ||
        !parse(taken(line, ' '), mark.samples, 16))
        return false;
    const std::string_view whole = taken(line, ' ');
    if (whole != kNone && !parse(whole, mark.whole.emplace(), 16)) return false;
    std::string path;
    return parseLook(taken(line, ' '), mark) && unescape(line, path) && marks.emplace(path, mark).second;
}

} // namespace

std::string libraryIndexPath() { return pathByAppending(applicationSupportFolder(), ".library-index"); }

PictureMarks readLibraryIndex(const std::string& path)
{
    const auto bytes = readWholeFile(path, kMostBytes);
    if (!bytes) return {};
    std::string_view text = *bytes;
    std::string_view head = taken(text, '\n');
    std::size_t count = 0;
    std::uint64_t stated = 0;
    if (!head.starts_with(kTitle)) return {};
    head.remove_prefix(kTitle.size());
    if (!parse(taken(head, ' '), count) || !parse(head, stated, 16) || count > kMostMarks) return {};
    Digest digest;
    digest.add(text.data(), text.size());
    if (digest.value() != stated) return {};
    PictureMarks marks;
    while (!text.empty())
        if (!parseLine(taken(text, '\n'), marks)) return {};
    return marks.size() == count ? marks : PictureMarks{};
}

bool writeLibraryIndex(const std::string& path, const PictureMarks& marks)
{
    std::string lines;
    std::size_t count = 0;
    for (const auto& [file, mark] : marks) {
        if (count == kMostMarks) break;
        const std::string line = std::to_string(mark.size) + " " + std::to_string(mark.modified) + " " +
                                 hexadecimal(mark.samples) + " " +
                                 (mark.whole ? hexadecimal(*mark.whole) : std::string(kNone)) + " " + lookText(mark) +
                                 " " + escaped(file) + "\n";
        if (lines.size() + line.size() + 100 > kMostBytes) break;
        lines += line;
        ++count;
    }
    Digest digest;
    digest.add(lines.data(), lines.size());
    const std::string text =
        std::string(kTitle) + std::to_string(count) + " " + hexadecimal(digest.value()) + "\n" + lines;
    return createFolder(folderOfPath(path)) && writeFileSafely(path, text.data(), text.size());
}

} // namespace zp
