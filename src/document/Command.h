// SPDX-License-Identifier: GPL-3.0-or-later
/// One row a command: what the gate, menus, keys and scripts need to know of it before it runs.
#pragma once
#include "document/Tool.h"
#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace zp
{

class Edit;

/// What must be there for a command to be chosen; several may be or-ed.
namespace needs
{
enum Bits : unsigned {
    Nothing = 0,
    Picture = 1,
    Selection = 2,
    ClipboardPicture = 4,
    File = 8, ///< the picture's file exists on disk
    UndoStep = 16,
    RedoStep = 32,
    DroppedSelection = 64,
    EditorWindow = 128, ///< the main window is there to be worked in
    ShelvedPicture = 256,
};
}

/// How deep a command reaches. All but the first end an open gesture as its release would.
enum class Effect {
    View,    ///< how the document is looked at
    Window,  ///< opens a window or shows something; the document stays
    Read,    ///< reads pixels: copies, saves
    Select,  ///< outline, mask, what floats
    Paint,   ///< writes pixels
    Replace, ///< another bitmap, another size, pixels in other places, a step of the history
};

enum class StepRule {
    Never,
    IfChanged, ///< when pixels were written
    Always,    ///< unless the command refused
};

/// What a command is given beside the document: numbers and one path, in the order of its parameters.
struct Arguments {
    std::vector<double> numbers;
    std::string path; ///< the file system's own bytes; or a text
    float number(std::size_t i) const { return i < numbers.size() ? float(numbers[i]) : 0; }
};

using Operation = void(Edit&, const Arguments&);

struct Command {
    const char* action;         ///< "fill:", the name in scripts and in menu items
    const char* name = nullptr; ///< what Undo shows, to be translated; null: leaves no step
    unsigned needs = needs::Nothing;
    Effect effect = Effect::Window;
    OnFloat onFloat = OnFloat::Keep;
    StepRule step = StepRule::Never;
    Operation* run = nullptr; ///< null: the application opens a window for it

    const char* menu = nullptr; ///< null: no menu reaches it
    const char* title = "";
    const char* shortcut = ""; ///< several are separated by blanks
    const char* tip = "";
    const char* alsoIn = nullptr; ///< another menu where people look for it
    bool onPicture = false;       ///< in the menu that the right button opens over the picture
    bool begins = false;          ///< another picture is there from then on: what was done to the one before is over
    /// For scripts, several separated by blanks: "path"; "number"; "word", a pixel that may be written 0x…; "pixel" and
    /// "nearest", two numbers that must name a place inside the picture when they are cut or rounded; "text". In
    /// brackets: may be left out, with all behind it.
    const char* parameters = nullptr; ///< null: scripts reach it through its menu item only
};

/// How a command ended.
struct Outcome {
    enum Kind {
        Done,
        Refused, ///< it could not act; nothing has changed
        Failed,  ///< memory, threads or the disk ran out, or the person's patience; nothing has changed
    } kind = Done;
    QString why; ///< one sentence for the person; empty when a beep says enough
    explicit operator bool() const { return kind == Done; }
};

} // namespace zp
