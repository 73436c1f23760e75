// SPDX-License-Identifier: GPL-3.0-or-later
/// One row a tool; no other list of tools exists.
#pragma once
#include "base/BitmapView.h"
#include "document/Tool.h"
#include <QString>
#include <span>

namespace zp
{

class Document;
class Gesture;

/// What of the options bar a tool shows; several may be or-ed.
namespace options
{
enum Bits : unsigned {
    Nothing = 0,
    Size = 1,
    BrushShape = 2,
    Tolerance = 4,
    Square = 8,
    Oval = 16,
    Polygon = 32,
    Add = 64,
    Subtract = 128,
    Float = 256,
    Straight = 512,
    SetSource = 1024,
    Explain = 2048,
};
}

struct ToolRow {
    Tool tool;
    const char* title; ///< also the name of its icon, which its cursor shows too; to be translated
    const char* tip;   ///< one sentence
    char key;          ///< that chooses it on the canvas
    /// What it does with which key held, {Shift}, {Option}, {Control} and {Command} standing for the keys that have
    /// these roles now, and a menu command's action in braces for its key.
    const char* hint;
    unsigned options = options::Nothing;
    ToolActions actions;
    /// What the open gesture would leave if the button were let go now, drawn into a part of the picture whose corner
    /// is the picture's pixel (x, y); and the pixels it may touch. Null: nothing is shown before it is there.
    void (*preview)(const Document&, BitmapView pixels, int x, int y) = nullptr;
    PixelBox (*previewBox)(const Document&) = nullptr;
    bool outline = false; ///< a ring of the tool's size follows the pointer
};

/// In the order of the tool numbers.
std::span<const ToolRow> toolTable();
const ToolRow& rowOf(Tool tool);
/// The row of what the hand holds: the chosen tool's, or that of the brush that removes.
const ToolRow& rowOf(const Gesture& gesture);
/// The tool's hint for the person, with the role's keys that are in force.
QString hintOf(const ToolRow& row);

} // namespace zp
