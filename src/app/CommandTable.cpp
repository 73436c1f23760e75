// SPDX-License-Identifier: GPL-3.0-or-later
/// The commands: what each needs, what it does with a floating piece, which step it leaves, and how it is reached.
#include "app/CommandTable.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/Commands.h"

namespace zp
{

namespace
{

using namespace operations;

// Short names for the columns of the table.
constexpr unsigned Nothing = needs::Nothing, PictureThere = needs::Picture, Selected = needs::Selection,
                   ClipboardPicture = needs::ClipboardPicture, File = needs::File, UndoStep = needs::UndoStep,
                   RedoStep = needs::RedoStep, DroppedSelection = needs::DroppedSelection,
                   EditorWindow = needs::EditorWindow, ShelvedPicture = needs::ShelvedPicture;

/// Opens a window, or is carried out by the application itself.
constexpr Command shell(const char* action, unsigned needed = Nothing, Effect effect = Effect::Window)
{
    return {.action = action, .needs = needed, .effect = effect};
}

constexpr Command looks(const char* action, unsigned needed = Nothing) { return shell(action, needed, Effect::View); }

constexpr Command reads(const char* action, unsigned needed, Operation* run)
{
    return {.action = action, .needs = needed, .effect = Effect::Read, .run = run};
}

constexpr Command selects(const char* action, unsigned needed, Operation* run)
{
    return {.action = action, .needs = needed, .effect = Effect::Select, .run = run};
}

/// What floats, and what it would lose, becomes part of the picture first; a step only then.
constexpr Command settlesAndSelects(const char* action, Operation* run)
{
    return {.action = action,
            .name = ZP_TEXT("Steps", "Anchor Selection"),
            .needs = Selected,
            .effect = Effect::Select,
            .onFloat = OnFloat::Settle,
            .step = StepRule::IfChanged,
            .run = run};
}

constexpr Command paints(const char* action, const char* name, unsigned needed, OnFloat onFloat, Operation* run)
{
    return {.action = action,
            .name = name,
            .needs = needed,
            .effect = Effect::Paint,
            .onFloat = onFloat,
            .step = StepRule::Always,
            .run = run};
}

constexpr Command replaces(const char* action, const char* name, unsigned needed, Operation* run)
{
    return {.action = action,
            .name = name,
            .needs = needed,
            .effect = Effect::Replace,
            .onFloat = OnFloat::Settle,
            .step = StepRule::Always,
            .run = run};
}

/// Brings another step of the history into the picture.
constexpr Command stepsTo(const char* action, unsigned needed, Operation* run)
{
    return {.action = action, .needs = needed, .effect = Effect::Replace, .run = run};
}

/// A row that a menu reaches.
constexpr Command item(const char* menu, const char* title, const char* shortcut, const char* tip, Command command)
{
    command.menu = menu;
    command.title = title;
    command.shortcut = shortcut;
    command.tip = tip;
    return command;
}

/// The same row, to be found at the end of another menu as well.
constexpr Command alsoIn(const char* menu, Command command)
{
    command.alsoIn = menu;
    return command;
}

/// The same row, and in the menu over the picture.
constexpr Command onPicture(Command command)
{
    command.onPicture = true;
    return command;
}

constexpr Command line(const char* menu) { return {.action = kSeparator, .menu = menu}; }

/// A row that a script reaches by "send".
constexpr Command sent(const char* parameters, Command command)
{
    command.parameters = parameters;
    return command;
}

/// An operation that scripts ask for by itself: it leaves no step.
constexpr Command plain(const char* action, const char* parameters, Effect effect, Operation* run)
{
    return {.action = action, .effect = effect, .run = run, .parameters = parameters};
}

/// Another picture is there from then on.
constexpr Command begins(Command command)
{
    command.begins = true;
    return command;
}

constexpr OnFloat kKeep = OnFloat::Keep, kSettle = OnFloat::Settle;
constexpr Effect kRead = Effect::Read, kSelect = Effect::Select, kPaint = Effect::Paint, kReplace = Effect::Replace;

constexpr Command anchorsOrFloats = {.action = "anchorSelection:",
                                     .name = ZP_TEXT("Steps", "Anchor Selection"),
                                     .needs = Selected,
                                     .effect = Effect::Paint,
                                     .step = StepRule::IfChanged,
                                     .run = anchorOrFloatSelection};
constexpr Command makesNew = {.action = "newImageWithSize:",
                              .name = ZP_TEXT("Steps", "New"),
                              .effect = Effect::Replace,
                              .step = StepRule::Always,
                              .run = newImageWithSize,
                              .begins = true};

// clang-format off: a table is read by its rows
constexpr Command kCommands[] = {
    alsoIn("Help", item("Zelpane", ZP_TEXT("Menu", "About Zelpane"), "", ZP_TEXT("Menu", "Version and licence"),
                        shell("about:"))),
    line("Zelpane"),
    alsoIn("Edit", item("Zelpane", ZP_TEXT("Menu", "Preferences…"), "Ctrl+,",
                        ZP_TEXT("Menu", "Units, keys and other settings"), shell("prefs:"))),
    line("Zelpane"),
    alsoIn("File", item("Zelpane", ZP_TEXT("Menu", "Quit Zelpane"), "Ctrl+Q", ZP_TEXT("Menu", "Ends the program"),
                        shell("terminate:"))),

    item("File", ZP_TEXT("Menu", "New…"), "Ctrl+N", ZP_TEXT("Menu", "Makes a blank image"), shell("newDocument:")),
    item("File", ZP_TEXT("Menu", "Open…"), "Ctrl+O", ZP_TEXT("Menu", "Opens an image file"), shell("openDocument:")),
    item("File", ZP_TEXT("Menu", "Open Recent"), "", "", shell(kRecentMenu)),
    item("File", ZP_TEXT("Menu", "Previous Image"), "Ctrl+Tab",
         ZP_TEXT("Menu", "Shows the image again that was open before this one"),
         begins(stepsTo("previousPicture:", ShelvedPicture, previousPicture))),
    line("File"),
    item("File", ZP_TEXT("Menu", "Save"), "Ctrl+S", ZP_TEXT("Menu", "Writes the image into its file"),
         reads("save:", File, saveImage)),
    item("File", ZP_TEXT("Menu", "Save as TIFF…"), "Ctrl+Shift+S",
         ZP_TEXT("Menu", "Writes a TIFF file; transparency is kept"), shell("saveAsTIFF:", PictureThere)),
    item("File", ZP_TEXT("Menu", "Save as JPEG…"), "Ctrl+Alt+S",
         ZP_TEXT("Menu", "Writes a JPEG file; transparent areas become white"), shell("saveAsJPEG:", PictureThere)),
    item("File", ZP_TEXT("Menu", "Save as PNG…"), "Ctrl+Alt+Shift+S",
         ZP_TEXT("Menu", "Writes a PNG file; transparency is kept"), shell("saveAsPNG:", PictureThere)),
    item("File", ZP_TEXT("Menu", "Save without Private Data…"), "",
         ZP_TEXT("Menu", "Writes a copy that says nothing of place, device and people"),
         shell("saveWithoutPrivateData:", PictureThere)),
    item("File", ZP_TEXT("Menu", "Save for a Size…"), "",
         ZP_TEXT("Menu", "Writes a copy that is as large as it may be, or as small as looks the same"),
         shell("saveForSize:", PictureThere)),
    item("File", ZP_TEXT("Menu", "Quick Save…"), "Ctrl+Shift+D", ZP_TEXT("Menu", "Saves into the image library"),
         shell("quickSave:")),
    line("File"),
    item("File", ZP_TEXT("Menu", "Open with Preview"), "",
         ZP_TEXT("Menu", "Shows the file in the desktop's image viewer"), shell("openWithPreview:", File)),
    item("File", ZP_TEXT("Menu", "Page Setup…"), "Ctrl+Shift+P", ZP_TEXT("Menu", "Paper size and orientation"),
         shell("runPageLayout:")),
    item("File", ZP_TEXT("Menu", "Print…"), "Ctrl+P", ZP_TEXT("Menu", "Prints the image on the paper of Page Setup"),
         shell("print:", PictureThere)),

    item("Edit", ZP_TEXT("Menu", "Undo"), "Ctrl+Z", ZP_TEXT("Menu", "Takes the last change back"),
         stepsTo("undo:", UndoStep, undo)),
    item("Edit", ZP_TEXT("Menu", "Redo"), "Ctrl+Shift+Z Ctrl+Y",
         ZP_TEXT("Menu", "Brings the change back that was undone"), stepsTo("redo:", RedoStep, redo)),
    line("Edit"),
    onPicture(item("Edit", ZP_TEXT("Menu", "Cut"), "Ctrl+X",
                   ZP_TEXT("Menu", "Moves the selected pixels to the clipboard"),
                   paints("cut:", ZP_TEXT("Steps", "Cut"), Selected, kKeep, cut))),
    onPicture(item("Edit", ZP_TEXT("Menu", "Copy"), "Ctrl+C",
                   ZP_TEXT("Menu", "Copies the selected pixels, or the whole image, to the clipboard"),
                   reads("copy:", PictureThere, copy))),
    onPicture(item("Edit", ZP_TEXT("Menu", "Paste"), "Ctrl+V",
                   ZP_TEXT("Menu", "Places the clipboard's image as a floating selection"),
                   selects("paste:", ClipboardPicture, paste))),
    onPicture(item("Edit", ZP_TEXT("Menu", "Paste Into"), "Ctrl+Shift+V",
                   ZP_TEXT("Menu", "Places the clipboard's image inside the selection"),
                   selects("pasteInto:", ClipboardPicture | Selected, pasteInto))),
    onPicture(item("Edit", ZP_TEXT("Menu", "Delete"), "Del", ZP_TEXT("Menu", "Makes the selected pixels transparent"),
                   paints("delete:", ZP_TEXT("Steps", "Delete"), Selected, kKeep, deleteSelection))),
    line("Edit"),
    onPicture(item("Edit", ZP_TEXT("Menu", "Fill"), "Ctrl+F",
                   ZP_TEXT("Menu", "Fills the selection with the paint colour"),
                   paints("fill:", ZP_TEXT("Steps", "Fill"), Selected, kSettle, fill))),
    onPicture(item("Edit", ZP_TEXT("Menu", "Stroke"), "Ctrl+Shift+F",
                   ZP_TEXT("Menu", "Draws the selection's outline in the paint colour"),
                   paints("stroke:", ZP_TEXT("Steps", "Stroke"), Selected, kSettle, stroke))),
    item("Edit", ZP_TEXT("Menu", "Smart Fill…"), "Ctrl+Alt+F",
         ZP_TEXT("Menu", "Fills the selection from its surroundings"), selects("smartFill:", Selected, smartFill)),
    item("Edit", ZP_TEXT("Menu", "Remove Brush"), "Ctrl+Alt+R",
         ZP_TEXT("Menu", "Paint over a thing and let go: it is filled from its surroundings"),
         looks("removeBrush:", PictureThere)),
    line("Edit"),
    onPicture(item("Edit", ZP_TEXT("Menu", "Transform…"), "Ctrl+T",
                   ZP_TEXT("Menu", "Scales and rotates the selected pixels"),
                   shell("transform:", PictureThere | Selected))),
    onPicture(item("Edit", ZP_TEXT("Menu", "Free Corners"), "",
                   ZP_TEXT("Menu", "The handles at the corners of what floats pull their corner alone: perspective"),
                   looks("freeCorners:", PictureThere))),
    item("Edit", ZP_TEXT("Menu", "Straighten Corners"), "",
         ZP_TEXT("Menu", "What a selection of four corners holds becomes upright, as if seen from straight ahead"),
         selects("straightenCorners:", PictureThere | Selected, straightenCorners)),
    item("Edit", ZP_TEXT("Menu", "Put Corners Back"), "",
         ZP_TEXT("Menu", "The corners of what floats go back to where they were before they were pulled"),
         selects("resetCorners:", PictureThere | Selected, resetCorners)),
    item("Edit", ZP_TEXT("Menu", "Copy as Script"), "",
         ZP_TEXT("Menu", "What was done since the image was opened, as a script that does it again"),
         shell("copyAsScript:", PictureThere)),
    onPicture(item("Edit", ZP_TEXT("Menu", "Adjust…"), "Ctrl+U",
                   ZP_TEXT("Menu", "Hue, saturation, brightness, contrast and sharpness of the selection"),
                   shell("adjust:", PictureThere | Selected))),

    item("Image", ZP_TEXT("Menu", "Resize…"), "Ctrl+Alt+I", ZP_TEXT("Menu", "Changes the size of the image"),
         shell("resize:", PictureThere | EditorWindow)),
    onPicture(item("Image", ZP_TEXT("Menu", "Crop to Selection"), "Ctrl+Shift+X",
                   ZP_TEXT("Menu", "Cuts the image to the selection's box"),
                   replaces("cropToSelection:", ZP_TEXT("Steps", "Crop"), Selected, cropToSelection))),
    line("Image"),
    item("Image", ZP_TEXT("Menu", "Rotate Clockwise"), "Ctrl+]", ZP_TEXT("Menu", "Turns the image by 90° to the right"),
         replaces("rotateCW:", ZP_TEXT("Steps", "Rotate Clockwise"), Nothing, rotateCW)),
    item("Image", ZP_TEXT("Menu", "Rotate Counter-Clockwise"), "Ctrl+[",
         ZP_TEXT("Menu", "Turns the image by 90° to the left"),
         replaces("rotateCCW:", ZP_TEXT("Steps", "Rotate Counter-Clockwise"), Nothing, rotateCCW)),
    item("Image", ZP_TEXT("Menu", "Flip Horizontally"), "Ctrl+Shift+H", ZP_TEXT("Menu", "Exchanges left and right"),
         replaces("flipH:", ZP_TEXT("Steps", "Flip Horizontally"), Nothing, flipH)),
    item("Image", ZP_TEXT("Menu", "Flip Vertically"), "Ctrl+Alt+H", ZP_TEXT("Menu", "Exchanges top and bottom"),
         replaces("flipV:", ZP_TEXT("Steps", "Flip Vertically"), Nothing, flipV)),
    line("Image"),
    item("Image", ZP_TEXT("Menu", "2x Retina Display Mode"), "",
         ZP_TEXT("Menu", "One image pixel on one pixel of a double-density screen"), shell("retina:")),

    onPicture(item("Selection", ZP_TEXT("Menu", "Select All"), "Ctrl+A", ZP_TEXT("Menu", "Selects the whole image"),
                   selects("selectAll:", Nothing, selectAll))),
    onPicture(item("Selection", ZP_TEXT("Menu", "Select None"), "Ctrl+D", ZP_TEXT("Menu", "Drops the selection"),
                   selects("selectNone:", Selected, selectNoneWithSound))),
    onPicture(item("Selection", ZP_TEXT("Menu", "Select Inverse"), "Ctrl+Shift+I",
                   ZP_TEXT("Menu", "Selects what is not selected"),
                   settlesAndSelects("selectInverse:", selectInverse))),
    item("Selection", ZP_TEXT("Menu", "Position and Size…"), "Ctrl+Shift+T",
         ZP_TEXT("Menu", "A rectangle by number, and what new marquees keep to"),
         shell("selectByNumber:", PictureThere)),
    item("Selection", ZP_TEXT("Menu", "Reselect"), "Ctrl+Shift+R",
         ZP_TEXT("Menu", "Brings the last dropped selection back"), selects("reselect:", DroppedSelection, reselect)),
    line("Selection"),
    onPicture(item("Selection", ZP_TEXT("Menu", "Float Selection"), "Ctrl+L",
                   ZP_TEXT("Menu", "Lifts the selected pixels, or puts them back (Return)"), anchorsOrFloats)),
    line("Selection"),
    item("Selection", ZP_TEXT("Menu", "Save Selection…"), "",
         ZP_TEXT("Menu", "Keeps the outline under a name (key s: the default name)"),
         shell("saveSelection:", PictureThere | Selected)),
    item("Selection", ZP_TEXT("Menu", "Load Selection…"), "", ZP_TEXT("Menu", "Brings a kept outline back"),
         shell("loadSelection:", PictureThere)),

    item("View", ZP_TEXT("Menu", "Zoom In"), "Ctrl++ Ctrl+=", ZP_TEXT("Menu", "One zoom level in (+)"),
         looks("zoomIn:")),
    item("View", ZP_TEXT("Menu", "Zoom Out"), "Ctrl+-", ZP_TEXT("Menu", "One zoom level out (−)"), looks("zoomOut:")),
    item("View", ZP_TEXT("Menu", "Actual Size"), "Ctrl+1",
         ZP_TEXT("Menu", "One image pixel on one pixel of the screen"), looks("actualSize:")),
    item("View", ZP_TEXT("Menu", "Fit to Window"), "Ctrl+0",
         ZP_TEXT("Menu", "The whole image in the window, whatever becomes of the window"),
         looks("fitToWindow:", PictureThere)),
    line("View"),
    item("View", ZP_TEXT("Menu", "Transparency as Chequerboard"), "",
         ZP_TEXT("Menu", "Transparent parts show a chequerboard instead of grey"), looks("chequerboard:")),
    item("View", ZP_TEXT("Menu", "Pixel Grid"), "", ZP_TEXT("Menu", "Lines between the pixels, from 800 % on"),
         looks("pixelGrid:")),
    item("View", ZP_TEXT("Menu", "Explain the Wand"), "",
         ZP_TEXT("Menu", "Where the pointer rests, what a click of the magic wand takes; and why it left a pixel out"),
         looks("explainWand:")),
    line("View"),
    item("View", ZP_TEXT("Menu", "Compare"), "C",
         ZP_TEXT("Menu", "While the key is held: an earlier state of the image left of the pointer"),
         looks("compare:", PictureThere)),
    item("View", ZP_TEXT("Menu", "Compare as Opened"), "", ZP_TEXT("Menu", "Compare shows the image as it was opened"),
         looks("compareOpened:")),
    item("View", ZP_TEXT("Menu", "Compare as Last Saved"), "",
         ZP_TEXT("Menu", "Compare shows the image as it was last saved"), looks("compareSaved:")),
    item("View", ZP_TEXT("Menu", "Compare before Last Step"), "",
         ZP_TEXT("Menu", "Compare shows the image without the last step"), looks("compareStep:")),
    line("View"),
    item("View", ZP_TEXT("Menu", "Keyboard Pointer"), "",
         ZP_TEXT("Menu",
                 "A crosshair that the numeric pad or Ctrl+arrows move; Ctrl+Space presses the button and lets it go"),
         looks("keyboardPointer:")),
    line("View"),
    item("View", ZP_TEXT("Menu", "History"), "Ctrl+Shift+Y", ZP_TEXT("Menu", "The steps of the image, to go back to"),
         looks("history:")),
    item("View", ZP_TEXT("Menu", "Full Screen"), "F11", ZP_TEXT("Menu", "The window on the whole screen, and back"),
         looks("fullScreen:")),

    item("Tools", ZP_TEXT("Menu", "Larger Brush"), "]",
         ZP_TEXT("Menu", "The size of brush, pencil, eraser, text and strokes: a tenth more"), looks("largerBrush:")),
    item("Tools", ZP_TEXT("Menu", "Smaller Brush"), "[",
         ZP_TEXT("Menu", "The size of brush, pencil, eraser, text and strokes: a tenth less"), looks("smallerBrush:")),
    line("Tools"),
    item("Tools", ZP_TEXT("Menu", "Swap Colours"), "X",
         ZP_TEXT("Menu", "Back to the colour that was chosen before this one, and again"), looks("swapColours:")),

    item("Window", ZP_TEXT("Menu", "Image Editor"), "Ctrl+E", ZP_TEXT("Menu", "Brings the main window to the front"),
         shell("imageEditor:")),
    item("Window", ZP_TEXT("Menu", "Image Library"), "Ctrl+Shift+L", ZP_TEXT("Menu", "Your favourite images"),
         shell("fileManager:")),
    item("Window", ZP_TEXT("Menu", "Script"), "",
         ZP_TEXT("Menu", "What is done to the image, written down as a script; plays scripts on it"),
         shell("showScript:")),
    item("Window", ZP_TEXT("Menu", "Show Windows"), "", ZP_TEXT("Menu", "Main window and image library"),
         shell("showWindows:")),
    line("Window"),
    item("Window", ZP_TEXT("Menu", "Image Processor…"), "Ctrl+Shift+B",
         ZP_TEXT("Menu", "Resizes and watermarks a folder of images"), shell("imageProcessor:")),

    item("Help", ZP_TEXT("Menu", "Zelpane Help"), "F1", ZP_TEXT("Menu", "Where to find the User's Guide"),
         shell("help:")),
    item("Help", ZP_TEXT("Menu", "User's Guide"), "", ZP_TEXT("Menu", "Opens the guide in the browser"),
         shell("usersGuide:")),
    item("Help", ZP_TEXT("Menu", "Keyboard Shortcuts"), "Ctrl+F1",
         ZP_TEXT("Menu", "All commands and tools with their keys, which can be changed there"),
         shell("keyboardShortcuts:")),

    // What scripts reach by name, and the program by itself.
    sent("number number", makesNew),
    begins(plain("newImageForMeWithSize:", "number number", kReplace, newImageForMeWithSize)),
    sent("number number number [number] [number]",
         replaces("setImageSize:scale:", ZP_TEXT("Steps", "Resize"), Nothing, setImageSize)),
    begins(plain("setImagePath:", "path", kReplace, setImagePath)),
    plain("saveImageAsAsked", nullptr, kRead, saveImageAsAsked),
    plain("saveWithoutPrivateData", nullptr, kRead, saveWithoutPrivateData),
    plain("saveImageToPath:", "path", kRead, saveImageToPath),
    plain("saveImageAsTIFF:", "path", kRead, saveImageAsTIFF),
    plain("saveImageAsJPEG:", "path [number]", kRead, saveImageAsJPEG),
    plain("saveImageAsPNG:", "path", kRead, saveImageAsPNG),
    plain("saveImage:atMost:", "path number", kRead, saveImageAtMost),
    plain("saveImageLooksSame:", "path", kRead, saveImageLookingTheSame),
    plain("quickSave:", "path", kRead, quickSave),
    plain("saveSelection:", "path", kRead, saveSelection),
    plain("loadSelection:", "path", kSelect, loadSelection),
    plain("makeBGBlack", "", kPaint, makeBGBlack),
    plain("magentaClear", "", kPaint, magentaClear),
    plain("makeSelection", "", kPaint, makeSelection),
    plain("selectRectangle:", "number number number number", kSelect, selectRectangle),
    plain("selectOutline:", "text", kSelect, selectOutline),
    plain("marqueeRule:", "number number number", Effect::View, marqueeRule),
    plain("inverseMask", "", kSelect, inverseMask),
    plain("clearSelectionMask", "", kSelect, clearSelectionMask),
    plain("clearSelectionMaskINVERT", "", kSelect, clearSelectionMaskINVERT),
    plain("selectionPathToMask", "", kSelect, selectionPathToMask),
    plain("selectionPathToMaskINVERT", "", kSelect, selectionPathToMaskINVERT),
    plain("floatSelection", "", kRead, floatSelection),
    sent("", paints("anchorSelection", ZP_TEXT("Steps", "Anchor Selection"), Nothing, kKeep, anchorSelection)),
    plain("clearSelection", "", kPaint, clearSelection),
    plain("transform_set:", "number number", kSelect, transform_set),
    plain("transform_corners:", "number number number number number number number number", kSelect, transform_corners),
    plain("adjust_set:", "number number number number number", kSelect, adjust_set),
    plain("restoreSnapshot:", "number", kReplace, restoreSnapshot),
    plain("goToStep", nullptr, kReplace, goToStep),
    plain("takeSnapshot", "", kSelect, takeSnapshot),
    plain("dontTakeSnapshot", "", kSelect, dontTakeSnapshot),
    plain("takeSnapshotAgain", "", kSelect, takeSnapshotAgain),
    plain("writeAlphaRLEToFile:", "path", kRead, writeAlphaRLEToFile),
    plain("readAlphaRLEFile:", "path", kPaint, readAlphaRLEFile),
    plain("placeWatermark:atPoint:alpha:", "path number number number", kPaint, placeWatermark),
    plain("magicWand:", "nearest", kSelect, magicWand),
    plain("magicWandOver:", "nearest", kPaint, magicWandOver),
    plain("floodFillScanlineStackFast:", "nearest", kPaint, floodFillScanlineStackFast),
    plain("floodFillScanlineStack:", "nearest", kPaint, floodFillScanlineStack),
    plain("floodFill4Stack:", "nearest", kPaint, floodFill4Stack),
    plain("setColor:atPoint:", "word pixel", kPaint, setColorAtPoint),
    plain("selectNone", "", kSelect, selectNoneWithSound),
    plain("nudge", "number number", kSelect, nudge),
    plain("endPolygon", "", kSelect, endPolygon),
    plain("dropPolygon", "", kSelect, dropPolygon),
    plain("transform", "", kRead, transform),
    plain("adjust", "", kRead, adjust),
};
// clang-format on

} // namespace

std::span<const Command> commandTable() { return kCommands; }

} // namespace zp
