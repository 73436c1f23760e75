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
            .name = "Anchor Selection",
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

constexpr OnFloat kKeep = OnFloat::Keep, kSettle = OnFloat::Settle;
constexpr Effect kRead = Effect::Read, kSelect = Effect::Select, kPaint = Effect::Paint, kReplace = Effect::Replace;

constexpr Command anchorsOrFloats = {.action = "anchorSelection:",
                                     .name = "Anchor Selection",
                                     .needs = Selected,
                                     .effect = Effect::Paint,
                                     .step = StepRule::IfChanged,
                                     .run = anchorOrFloatSelection};
constexpr Command makesNew = {.action = "newImageWithSize:",
                              .name = "New",
                              .effect = Effect::Replace,
                              .step = StepRule::Always,
                              .run = newImageWithSize};

// clang-format off: a table is read by its rows
constexpr Command kCommands[] = {
    alsoIn("Help", item("Zelpane", "About Zelpane", "", "Version and licence", shell("about:"))),
    line("Zelpane"),
    alsoIn("Edit", item("Zelpane", "Preferences…", "Ctrl+,", "Units, keys and other settings", shell("prefs:"))),
    line("Zelpane"),
    alsoIn("File", item("Zelpane", "Quit Zelpane", "Ctrl+Q", "Ends the program", shell("terminate:"))),

    item("File", "New…", "Ctrl+N", "Makes a blank image", shell("newDocument:")),
    item("File", "Open…", "Ctrl+O", "Opens an image file", shell("openDocument:")),
    item("File", "Open Recent", "", "", shell(kRecentMenu)),
    item("File", "Previous Picture", "Ctrl+Tab", "Shows the image again that was open before this one",
         stepsTo("previousPicture:", ShelvedPicture, previousPicture)),
    line("File"),
    item("File", "Save", "Ctrl+S", "Writes the image into its file", reads("save:", File, saveImage)),
    item("File", "Save as TIFF…", "Ctrl+Shift+S", "Writes a TIFF file; transparency is kept",
         shell("saveAsTIFF:", PictureThere)),
    item("File", "Save as JPEG…", "Ctrl+Alt+S", "Writes a JPEG file; transparent areas become white",
         shell("saveAsJPEG:", PictureThere)),
    item("File", "Save as PNG…", "Ctrl+Alt+Shift+S", "Writes a PNG file; transparency is kept",
         shell("saveAsPNG:", PictureThere)),
    item("File", "Save without Private Data…", "", "Writes a copy that says nothing of place, device and people",
         shell("saveWithoutPrivateData:", PictureThere)),
    item("File", "Quick Save…", "Ctrl+Shift+D", "Saves into the image library", shell("quickSave:")),
    line("File"),
    item("File", "Open with Preview", "", "Shows the file in the desktop's image viewer",
         shell("openWithPreview:", File)),
    item("File", "Page Setup…", "Ctrl+Shift+P", "Paper size and orientation", shell("runPageLayout:")),
    item("File", "Print…", "Ctrl+P", "Prints the image on the paper of Page Setup", shell("print:", PictureThere)),

    item("Edit", "Undo", "Ctrl+Z", "Takes the last change back", stepsTo("undo:", UndoStep, undo)),
    item("Edit", "Redo", "Ctrl+Shift+Z Ctrl+Y", "Brings the change back that was undone",
         stepsTo("redo:", RedoStep, redo)),
    line("Edit"),
    onPicture(item("Edit", "Cut", "Ctrl+X", "Moves the selected pixels to the clipboard",
                   paints("cut:", "Cut", Selected, kKeep, cut))),
    onPicture(item("Edit", "Copy", "Ctrl+C", "Copies the selected pixels, or the whole image, to the clipboard",
                   reads("copy:", PictureThere, copy))),
    onPicture(item("Edit", "Paste", "Ctrl+V", "Places the clipboard's image as a floating selection",
                   selects("paste:", ClipboardPicture, paste))),
    onPicture(item("Edit", "Paste Into", "Ctrl+Shift+V", "Places the clipboard's image inside the selection",
                   selects("pasteInto:", ClipboardPicture | Selected, pasteInto))),
    onPicture(item("Edit", "Delete", "Del", "Makes the selected pixels transparent",
                   paints("delete:", "Delete", Selected, kKeep, deleteSelection))),
    line("Edit"),
    onPicture(item("Edit", "Fill", "Ctrl+F", "Fills the selection with the paint colour",
                   paints("fill:", "Fill", Selected, kSettle, fill))),
    onPicture(item("Edit", "Stroke", "Ctrl+Shift+F", "Draws the selection's outline in the paint colour",
                   paints("stroke:", "Stroke", Selected, kSettle, stroke))),
    item("Edit", "Smart Fill…", "Ctrl+Alt+F", "Fills the selection from its surroundings",
         selects("smartFill:", Selected, smartFill)),
    item("Edit", "Remove Brush", "Ctrl+Alt+R", "Paint over a thing and let go: it is filled from its surroundings",
         looks("removeBrush:", PictureThere)),
    line("Edit"),
    onPicture(item("Edit", "Transform…", "Ctrl+T", "Scales and rotates the selected pixels",
                   shell("transform:", PictureThere | Selected))),
    onPicture(item("Edit", "Adjust…", "Ctrl+U", "Hue, saturation, brightness, contrast and sharpness of the selection",
                   shell("adjust:", PictureThere | Selected))),

    item("Image", "Resize…", "Ctrl+Alt+I", "Changes the size of the image",
         shell("resize:", PictureThere | EditorWindow)),
    onPicture(item("Image", "Crop to Selection", "Ctrl+Shift+X", "Cuts the image to the selection's box",
                   replaces("cropToSelection:", "Crop", Selected, cropToSelection))),
    line("Image"),
    item("Image", "Rotate Clockwise", "Ctrl+]", "Turns the image by 90° to the right",
         replaces("rotateCW:", "Rotate Clockwise", Nothing, rotateCW)),
    item("Image", "Rotate Counter-Clockwise", "Ctrl+[", "Turns the image by 90° to the left",
         replaces("rotateCCW:", "Rotate Counter-Clockwise", Nothing, rotateCCW)),
    item("Image", "Flip Horizontally", "Ctrl+Shift+H", "Exchanges left and right",
         replaces("flipH:", "Flip Horizontally", Nothing, flipH)),
    item("Image", "Flip Vertically", "Ctrl+Alt+H", "Exchanges top and bottom",
         replaces("flipV:", "Flip Vertically", Nothing, flipV)),
    line("Image"),
    item("Image", "2x Retina Display Mode", "", "One image pixel on one pixel of a double-density screen",
         shell("retina:")),

    onPicture(item("Selection", "Select All", "Ctrl+A", "Selects the whole image",
                   selects("selectAll:", Nothing, selectAll))),
    onPicture(item("Selection", "Select None", "Ctrl+D", "Drops the selection",
                   selects("selectNone:", Selected, selectNoneWithSound))),
    onPicture(item("Selection", "Select Inverse", "Ctrl+Shift+I", "Selects what is not selected",
                   settlesAndSelects("selectInverse:", selectInverse))),
    item("Selection", "Position and Size…", "Ctrl+Shift+T", "A rectangle by number, and what new marquees keep to",
         shell("selectByNumber:", PictureThere)),
    item("Selection", "Reselect", "Ctrl+Shift+R", "Brings the last dropped selection back",
         selects("reselect:", DroppedSelection, reselect)),
    line("Selection"),
    onPicture(item("Selection", "Float Selection", "Ctrl+L", "Lifts the selected pixels, or puts them back (Return)",
                   anchorsOrFloats)),
    line("Selection"),
    item("Selection", "Save Selection…", "", "Keeps the outline under a name (key s: the default name)",
         shell("saveSelection:", PictureThere | Selected)),
    item("Selection", "Load Selection…", "", "Brings a kept outline back", shell("loadSelection:", PictureThere)),

    item("View", "Zoom In", "Ctrl++ Ctrl+=", "One zoom level in (+)", looks("zoomIn:")),
    item("View", "Zoom Out", "Ctrl+-", "One zoom level out (−)", looks("zoomOut:")),
    item("View", "Actual Size", "Ctrl+1", "One image pixel on one pixel of the screen", looks("actualSize:")),
    item("View", "Fit to Window", "Ctrl+0", "The whole image in the window, whatever becomes of the window",
         looks("fitToWindow:", PictureThere)),
    line("View"),
    item("View", "Transparency as Chequerboard", "", "Transparent parts show a chequerboard instead of grey",
         looks("chequerboard:")),
    item("View", "Pixel Grid", "", "Lines between the pixels, from 800 % on", looks("pixelGrid:")),
    item("View", "Keyboard Pointer", "",
         "A crosshair that the numeric pad or Ctrl+arrows move; Ctrl+Space presses the button and lets it go",
         looks("keyboardPointer:")),
    line("View"),
    item("View", "History", "Ctrl+Shift+Y", "The steps of the image, to go back to", looks("history:")),
    item("View", "Full Screen", "F11", "The window on the whole screen, and back", looks("fullScreen:")),

    item("Tools", "Larger Brush", "]", "The size of brush, pencil, eraser, text and strokes: a tenth more",
         looks("largerBrush:")),
    item("Tools", "Smaller Brush", "[", "The size of brush, pencil, eraser, text and strokes: a tenth less",
         looks("smallerBrush:")),
    line("Tools"),
    item("Tools", "Swap Colours", "X", "Back to the colour that was chosen before this one, and again",
         looks("swapColours:")),

    item("Window", "Image Editor", "Ctrl+E", "Brings the main window to the front", shell("imageEditor:")),
    item("Window", "Image Library", "Ctrl+Shift+L", "Your favourite images", shell("fileManager:")),
    item("Window", "Show Windows", "", "Main window and image library", shell("showWindows:")),
    line("Window"),
    item("Window", "Image Processor…", "Ctrl+Shift+B", "Resizes and watermarks a folder of images",
         shell("imageProcessor:")),

    item("Help", "Zelpane Help", "F1", "Where to find the User's Guide", shell("help:")),
    item("Help", "User's Guide", "", "Opens the guide in the browser", shell("usersGuide:")),
    item("Help", "Keyboard Shortcuts", "Ctrl+F1", "All commands and tools with their keys, which can be changed there",
         shell("keyboardShortcuts:")),

    // What scripts reach by name, and the program by itself.
    sent("number number", makesNew),
    plain("newImageForMeWithSize:", "number number", kReplace, newImageForMeWithSize),
    sent("number number number", replaces("setImageSize:scale:", "Resize", Nothing, setImageSize)),
    plain("setImagePath:", "path", kReplace, setImagePath),
    plain("saveImageAsAsked", nullptr, kRead, saveImageAsAsked),
    plain("saveWithoutPrivateData", nullptr, kRead, saveWithoutPrivateData),
    plain("saveImageToPath:", "path", kRead, saveImageToPath),
    plain("saveImageAsTIFF:", "path", kRead, saveImageAsTIFF),
    plain("saveImageAsJPEG:", "path", kRead, saveImageAsJPEG),
    plain("saveImageAsPNG:", "path", kRead, saveImageAsPNG),
    plain("quickSave:", "path", kRead, quickSave),
    plain("saveSelection:", "path", kRead, saveSelection),
    plain("loadSelection:", "path", kSelect, loadSelection),
    plain("makeBGBlack", "", kPaint, makeBGBlack),
    plain("magentaClear", "", kPaint, magentaClear),
    plain("makeSelection", "", kPaint, makeSelection),
    plain("selectRectangle:", "number number number number", kSelect, selectRectangle),
    plain("inverseMask", "", kSelect, inverseMask),
    plain("clearSelectionMask", "", kSelect, clearSelectionMask),
    plain("clearSelectionMaskINVERT", "", kSelect, clearSelectionMaskINVERT),
    plain("selectionPathToMask", "", kSelect, selectionPathToMask),
    plain("selectionPathToMaskINVERT", "", kSelect, selectionPathToMaskINVERT),
    plain("floatSelection", "", kRead, floatSelection),
    sent("", paints("anchorSelection", "Anchor Selection", Nothing, kKeep, anchorSelection)),
    plain("clearSelection", "", kPaint, clearSelection),
    plain("transform_set:", "number number", kSelect, transform_set),
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
    plain("selectNone", nullptr, kSelect, selectNoneWithSound),
    plain("nudge", nullptr, kSelect, nudge),
    plain("endPolygon", nullptr, kSelect, endPolygon),
    plain("dropPolygon", nullptr, kSelect, dropPolygon),
    plain("transform", nullptr, kRead, transform),
    plain("adjust", nullptr, kRead, adjust),
};
// clang-format on

} // namespace

std::span<const Command> commandTable() { return kCommands; }

} // namespace zp
