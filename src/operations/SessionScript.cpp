// SPDX-License-Identifier: GPL-3.0-or-later
/// Commands, gestures and settings written down.
#include "operations/SessionScript.h"
#include "base/Folders.h"
#include "base/PathText.h"
#include "base/ScriptWords.h"
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/FloatHandles.h"
#include <algorithm>
#include <utility>

namespace zp
{

namespace
{

/// An hour of fast drawing is about 60 MB. Beyond it the script ends with a line that says so.
constexpr std::size_t kMostBytes = 256u << 20;

/// Settings of sliders, each of which replaces the one before it: colours are made from the pixels that were lifted.
/// Scale and turn are not among them, for each goes on from the outline that the one before it left.
constexpr std::string_view kSlider = "send adjust_set: ";

/// The words with blanks between them.
std::string lineOf(std::initializer_list<std::string_view> words)
{
    std::string line;
    for (const std::string_view word : words) {
        if (!line.empty()) line += ' ';
        line += word;
    }
    return line;
}

std::string pointLine(const char* word, Point point)
{
    return lineOf({word, scriptNumber(point.x), scriptNumber(point.y)});
}

/// "set OUTLET #N".
std::string itemLine(const char* outlet, int item)
{
    std::string word(1, '#');
    word += scriptNumber(double(item));
    return lineOf({"set", outlet, word});
}

constexpr std::string_view kToleranceSlider = "set mToleranceSlider";

std::string toleranceLine(int setting) { return lineOf({kToleranceSlider, scriptNumber(double(setting))}); }

std::string outlineLine(const Selection& selection)
{
    const BezierPath* const outline = selection.outline();
    return lineOf({"send selectOutline:", scriptWord(outline ? textOfPath(*outline) : std::string())});
}

std::string commandLine(const Command& command, const Arguments& arguments)
{
    if (command.menu && command.run) return lineOf({"menu", command.action});
    std::string line = lineOf({"send", command.action});
    const std::string_view kinds = command.parameters ? command.parameters : "";
    if (kinds.starts_with("path") || kinds.starts_with("text")) line = lineOf({line, scriptWord(arguments.path)});
    for (const double number : arguments.numbers) line = lineOf({line, scriptNumber(number)});
    return line;
}

bool isOneLine(const std::string& text) { return text.find_first_of("\r\n") == std::string::npos; }

/// A comment that names a file, whatever bytes its name has.
std::string comment(std::string text)
{
    text = displayName(text);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, '?');
    return lineOf({"#", text});
}

} // namespace

SessionScript::SessionScript(const Document& document, QObject* parent) : QObject(parent), mDocument(document)
{
    connect(&document, &Document::performed, this, &SessionScript::performed);
    connect(&document, &Document::handMoved, this, &SessionScript::handMoved);
    connect(&document, &Document::penPressed, this, [this](float pressure) { mPressure = pressure; });
    connect(&document, &Document::noted, this, &SessionScript::noted);
    // In the middle of a gesture another tool ends it: it must not wait for the next press.
    connect(&document, &Document::toolChosen, this, [this] {
        if (mDragging) chooseTool();
    });
}

std::string SessionScript::text() const
{
    std::string all;
    all.reserve(mBytes);
    for (const std::string& line : mLines) all += line + '\n';
    return all;
}

std::vector<std::string> SessionScript::lastLines(std::size_t count) const
{
    return {mLines.end() - std::ptrdiff_t(std::min(count, mLines.size())), mLines.end()};
}

// ---- lines ----------------------------------------------------------------------------------------------------------

void SessionScript::add(const std::string& line)
{
    if (mFull) return;
    mFull = mBytes + line.size() + 1 > kMostBytes;
    mLines.push_back(mFull ? "# What was done afterwards is not here: the script has become too long." : line);
    mBytes += mLines.back().size() + 1;
    emit grown();
}

void SessionScript::replaceLast(const std::string& line)
{
    if (mFull) return;
    mBytes -= mLines.back().size() + 1;
    mLines.pop_back();
    add(line);
}

void SessionScript::pressWithTolerance(int setting)
{
    if (mFull) return;
    const std::string line = toleranceLine(setting);
    const auto at = mLines.begin() + std::ptrdiff_t(std::min(mBefore.toleranceAt, mLines.size()));
    mBytes += line.size() + 1;
    if (at != mLines.end() && at->starts_with(kToleranceSlider)) {
        mBytes -= at->size() + 1;
        *at = line;
    } else {
        mLines.insert(at, line);
        ++mGesture;
    }
}

void SessionScript::forgetPress()
{
    mGesture = mBefore.lines;
    mKnown = mBefore.known;
    mKeys = mBefore.keys;
    if (mFull) return;
    for (std::size_t i = mGesture; i < mLines.size(); ++i) mBytes -= mLines[i].size() + 1;
    mLines.resize(std::min(mGesture, mLines.size()));
    mDragging = false;
    emit grown();
}

// ---- settings -------------------------------------------------------------------------------------------------------

void SessionScript::chooseTool()
{
    const Gesture& gesture = mDocument.gesture();
    if (mKnown.tool == gesture.tool() && mKnown.removes == gesture.removes()) return;
    mKnown.tool = gesture.tool();
    mKnown.removes = gesture.removes();
    add(gesture.removes() ? std::string("menu removeBrush:") : itemLine("mToolPopUp", int(gesture.tool())));
}

template <class Value>
void SessionScript::keep(std::optional<Value>& known, const Value& now, const std::string& line)
{
    if (known == now) return;
    known = now;
    add(line);
}

void SessionScript::settleTolerance()
{
    const int setting = mDocument.paint().toleranceSetting();
    mBefore.toleranceAt = mLines.size();
    keep(mKnown.tolerance, setting, toleranceLine(setting));
}

void SessionScript::settle(bool forGesture)
{
    const Paint& paint = mDocument.paint();
    if (forGesture) chooseTool();
    const Tool tool = mDocument.gesture().tool();
    const bool selects = tool == Tool::Rectangle || tool == Tool::Lasso || tool == Tool::Wand;
    // What selects paints with nothing, unless its press makes what floats part of the picture.
    if (!forGesture || mFloats || (!selects && tool != Tool::Eyedropper)) {
        keep(mKnown.color, paint.color(), lineOf({"set mColorWell", scriptColor(paint.color())}));
        keep(mKnown.size, paint.size(), lineOf({"set mSizeField", scriptNumber(paint.size())}));
    }
    if (!forGesture) return;
    if (tool == Tool::Wand || tool == Tool::Bucket) settleTolerance();
    if (tool == Tool::Brush) {
        keep(mKnown.shape, paint.brushShape(), itemLine("mBrushPopUp", paint.brushShape()));
        keep(mKnown.penPressure, paint.penPressure(), itemLine("mPressurePopUp", int(paint.penPressure())));
    }
    settlePressure();
    const MarqueeRule& rule = mDocument.gesture().marqueeRule();
    if (rule.kind == mKnown.rule.kind &&
        (rule.kind == MarqueeRule::Free || (rule.width == mKnown.rule.width && rule.height == mKnown.rule.height)))
        return;
    mKnown.rule = rule;
    add(lineOf(
        {"send marqueeRule:", scriptNumber(double(rule.kind)), scriptNumber(rule.width), scriptNumber(rule.height)}));
}

void SessionScript::settlePressure()
{
    if (mDocument.paint().penPressure() != PenPressure::Nothing)
        keep(mKnown.pressure, mPressure, lineOf({"pressure", scriptNumber(mPressure)}));
}

void SessionScript::hold(std::uint32_t keys)
{
    if (keys == mKeys) return;
    mKeys = keys;
    std::string line = "modifiers";
    constexpr struct {
        std::uint32_t bit;
        const char* word;
    } kWords[] = {{kShiftKey, " shift"}, {kOptionKey, " option"}, {kCommandKey, " command"}, {kControlKey, " control"}};
    for (const auto& [bit, word] : kWords)
        if (keys & bit) line += word;
    add(line);
}

// ---- what happens ---------------------------------------------------------------------------------------------------

void SessionScript::begin(const Command& command, const Arguments* arguments)
{
    mLines.clear();
    mBytes = 0;
    mKnown = {};
    mKeys = 0;
    mBefore = {};
    mGesture = 0;
    mDragging = mTextPlaced = mFull = mFloats = mStroke = false;
    const Picture& picture = mDocument.picture();
    const std::string width = scriptNumber(double(picture.width())), height = scriptNumber(double(picture.height()));
    if (std::string_view(command.action).starts_with("newImage"))
        add(lineOf({"send", command.action, width, height}));
    else if (arguments && command.parameters)
        add(comment(commandLine(command, *arguments)));
    else
        add(comment(lineOf({picture.path().empty() ? std::string_view("an image without a file") : picture.path(),
                            width, "×", height})));
}

void SessionScript::performed(const Command& command, const Arguments* arguments)
{
    if (command.begins) return begin(command, arguments);
    keepGrip(Grip::None); // it has ended the gesture
    const std::string_view action = command.action;
    if (action == "placeText") {
        // The press opened the editor; a script needs neither it nor its font.
        forgetPress();
        mTextPlaced = true;
        return add(outlineLine(mDocument.selection()));
    }
    if (!arguments || command.effect == Effect::View || command.effect == Effect::Window) return;
    if (action == "goToStep")
        return add(lineOf({"history-go", scriptNumber(arguments->numbers.empty() ? 0 : arguments->numbers[0])}));
    std::string line = commandLine(command, *arguments);
    const bool writesFile =
        command.effect == Effect::Read && (!arguments->path.empty() || !command.parameters) && action != "copy:";
    if (writesFile || !isOneLine(line)) return add(comment(line));
    // The colour's opacity is that of what floated and is part of the picture now.
    const bool floated = std::exchange(mFloats, mDocument.selection().floating() != nullptr);
    if (command.effect == Effect::Paint || floated) settle(false);
    // A look at a pixel and its like.
    if (command.parameters && std::string_view(command.parameters) == "nearest") {
        settle(false);
        settleTolerance();
    }
    // Shift keeps what was anchored selected.
    hold(action.starts_with("anchorSelection") ? currentKeyModifiers() & kShiftKey : 0);
    const bool again = line.starts_with(kSlider) && !mLines.empty() && mLines.back().starts_with(kSlider);
    again ? replaceLast(line) : add(line);
}

void SessionScript::keepGrip(Grip another)
{
    const _ZPTransform& record = mDocument.selection().record();
    if (mGrip == Grip::Pulls) {
        std::string line = "send transform_corners:";
        for (const Point p : record.corners) line += ' ' + scriptNumber(p.x) + ' ' + scriptNumber(p.y);
        add(line);
    } else if (mGrip == Grip::Scales) {
        add(lineOf({"send transform_set:", scriptNumber(record.scale), scriptNumber(record.rotate)}));
    }
    mGrip = another;
}

void SessionScript::handMoved(Hand what, Point point, const ToolActions* actions)
{
    switch (what) {
    case Hand::Press:
        mTextPlaced = false;
        mBefore = {mLines.size(), mKnown, mKeys};
        if (actions && actions->refusesOpenStroke) {
            // Refused while the last stroke is still painted, which is over sooner or later on another machine.
            if (mDocument.gesture().stroke().isOpen()) {
                mDragging = false;
                return;
            }
            if (mStroke) add("wait");
        }
        mStroke = actions && mDocument.gesture().tool() == Tool::Brush && !mDocument.gesture().removes();
        settle(true);
        hold(currentKeyModifiers());
        mGesture = mLines.size();
        mDragging = true;
        mGripped = actions == &floatHandleActions();
        mGrip = Grip::None;
        return mGripped ? void() : add(pointLine("press", point));
    case Hand::Drag:
    case Hand::Move:
        if (!mDragging && what == Hand::Drag) return;
        if (mGripped)
            return keepGrip(FloatHandle(mDocument.selection().transformMode()) >= FloatHandle::PullTopLeft
                                ? Grip::Pulls
                                : Grip::Scales);
        // Drags of the wand that move nothing: what tolerance came of them is written down at the end.
        if (what == Hand::Drag && mDocument.gesture().tool() == Tool::Wand && !mDocument.gesture().isMoving()) return;
        settlePressure();
        hold(currentKeyModifiers());
        return add(pointLine(what == Hand::Drag ? "drag" : "move", point));
    case Hand::Release:
        if (mTextPlaced) { // joined with what was selected before only now
            mTextPlaced = false;
            return replaceLast(outlineLine(mDocument.selection()));
        }
        if (!mDragging) return;
        hold(currentKeyModifiers());
        mDragging = false;
        mFloats = mDocument.selection().floating() != nullptr;
        if (mDocument.gesture().tool() == Tool::Eyedropper)
            mKnown.color = mDocument.paint().color(); // it brings it along
        if (const auto& press = mDocument.gesture().wandPress(); press && press->setting != mKnown.tolerance) {
            mKnown.tolerance = press->setting;
            pressWithTolerance(press->setting);
        }
        return mGripped ? keepGrip(Grip::None) : add(pointLine("release", point));
    case Hand::TakenBack: // and what it was to be done with
        return forgetPress();
    }
}

void SessionScript::noted(const QStringList& lines, const QStringList& before)
{
    if (mFull) return;
    const auto gesture = mLines.begin() + std::ptrdiff_t(std::min(mGesture, mLines.size()));
    std::vector<std::string> first;
    for (const QString& line : before) mBytes += first.emplace_back(line.toStdString()).size() + 1;
    mLines.insert(gesture, first.begin(), first.end());
    for (const QString& line : lines) add(line.toStdString());
}

} // namespace zp
