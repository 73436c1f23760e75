// SPDX-License-Identifier: GPL-3.0-or-later
/// What was done to the picture since it was opened, as a script that does it again.
#pragma once
#include "document/Command.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include <QObject>
#include <QStringList>
#include <optional>
#include <string>
#include <vector>

namespace zp
{

class Document;
enum class Hand;

/// Listens to a document and writes down commands, gestures and the settings that they are done with, in the words of
/// the automation language: what is played on the same picture gives the same bytes. Kept are:
///
/// - commands as menu items or operations, with their numbers; of a dialog's sliders what they ended with;
/// - gestures as press, drags and release, point by point; what Escape took back is not there;
/// - tool, colour, size, shape, tolerance and marquee as they were when something was done with them;
/// - a text as its outline, a handle that was dragged as the numbers that came of it;
/// - what was written to files as comments: a script that is played on a hundred pictures is not to write over one.
///
/// Another picture begins another script. Nothing here changes the document. Main thread.
class SessionScript : public QObject
{
    Q_OBJECT

public:
    /// @param document  must outlive it
    explicit SessionScript(const Document& document, QObject* parent = nullptr);

    /// Lines, each ended by a line break. O(1) but for the copy.
    std::string text() const;
    /// The last @p count lines, oldest first.
    std::vector<std::string> lastLines(std::size_t count) const;
    bool isEmpty() const { return mLines.empty(); }

signals:
    void grown(); ///< something was written down, or another script has begun

private:
    struct Settings {
        std::optional<Tool> tool;
        bool removes = false;
        std::optional<Color> color;
        std::optional<float> size;
        std::optional<int> shape, tolerance;
        std::optional<PenPressure> penPressure;
        std::optional<float> pressure = 1;
        MarqueeRule rule;
    };

    void begin(const Command& command, const Arguments* arguments);
    void performed(const Command& command, const Arguments* arguments);
    void handMoved(Hand what, Point point, const ToolActions* actions);
    void noted(const QStringList& lines, const QStringList& before);
    void chooseTool();
    /// What a command or a gesture is about to be done with, as far as it is not as the script left it.
    void settle(bool forGesture);
    void settleTolerance();
    template <class Value>
    void keep(std::optional<Value>& known, const Value& now, const std::string& line);
    void settlePressure(); ///< as hard as the pen does
    void hold(std::uint32_t keys);
    /// What the last position of a handle made, now that it was acted on. @param another  whether one follows
    /// What the handle that is held does.
    enum class Grip { None, Scales, Pulls };
    void keepGrip(Grip another);
    void add(const std::string& line);
    void replaceLast(const std::string& line);
    void pressWithTolerance(int setting); ///< the last press was done with that one, it turned out
    /// The gesture's lines from its press on go away, and with them the settings that it was done with.
    void forgetPress();

    const Document& mDocument;
    std::vector<std::string> mLines;
    std::size_t mBytes = 0;
    Settings mKnown;         ///< as the script has left them so far
    std::uint32_t mKeys = 0; ///< held, as the script has it
    struct {
        std::size_t lines = 0;
        Settings known;
        std::uint32_t keys = 0;
        std::size_t toleranceAt = 0; ///< where the tolerance's line is, or would be
    } mBefore;                       ///< the last press, and what it is done with
    float mPressure = 1;             ///< of the pen
    std::size_t mGesture = 0;        ///< where the last gesture's lines begin
    bool mDragging = false;          ///< between a press and its release
    bool mGripped = false;           ///< by a handle of what floats: they lie where the zoom puts them
    Grip mGrip = Grip::None;         ///< a position of that handle is not written down yet
    bool mTextPlaced = false;        ///< the last press was the text tool's, and its line is the outline
    bool mStroke = false;            ///< the last gesture was the brush's, and may still be painted
    bool mFloats = false;            ///< something did when the last command or gesture had ended
    bool mFull = false;
};

} // namespace zp
