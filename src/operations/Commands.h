// SPDX-License-Identifier: GPL-3.0-or-later
/// What can be done to the document, by subject: the operations behind the rows of the command table. Each runs
/// inside the gate; what it needs beforehand and what follows it says its row.
#pragma once
#include "document/Edit.h"

namespace zp::operations
{

// ---- pictures and files (ZPCanvas+NewImage, +Open, +Save, +Resize) ----
/// Width, height: a blank picture, its file still the old one's; steps begin anew.
Operation newImageWithSize;
/// Width, height: the same for the program's own use, the steps stay.
Operation newImageForMeWithSize;
/// Path: a picture from a file; what cannot be read gives the empty picture. An empty path only forgets the file.
Operation setImagePath;
/// Width, height, 0 or 1: another size, resampled or cut and extended at the right and below.
Operation setImageSize;
/// The picture into its own file, by its extension.
Operation saveImage;
/// The same, whatever is there: the person was asked.
Operation saveImageAsAsked;
/// Path: into a file of that kind, which becomes the picture's. A number before it: the quality of a JPEG file.
Operation saveImageAsTIFF, saveImageAsJPEG, saveImageAsPNG;
/// Path: as TIFF, with the time it took in the log.
Operation saveImageToPath;
/// Path: a copy in the kind of file that its extension says, without place, device and names; the picture keeps its
/// file. A number before it: the quality of a JPEG file.
Operation saveWithoutPrivateData;
/// Path: a copy, JPEG or WebP by its extension, at the best quality with which the file has at most so many kilobytes;
/// at the least with which it looks the same. The picture keeps its file.
Operation saveImageAtMost, saveImageLookingTheSame;
/// Path: as TIFF into exactly that file.
Operation quickSave;

// ---- selection (ZPCanvas+Selection, +SavedSelections) ----
Operation selectRectangle, selectAll, selectNone, selectNoneWithSound, selectInverse, reselect;
/// An outline as text (base/PathText.h).
Operation selectOutline;
/// What marquees drawn by hand keep to: 0 nothing, 1 a ratio, 2 a size; width and height of it.
Operation marqueeRule;
/// x, y: the outline and what floats by a step.
Operation nudge;
/// Return, while a polygon is drawn: it is closed, and joined with a parked outline.
Operation endPolygon;
/// Escape, while a polygon is drawn: it is given up.
Operation dropPolygon;
/// Path.
Operation saveSelection, loadSelection;
/// The mask itself.
Operation clearSelectionMask, clearSelectionMaskINVERT, selectionPathToMask, selectionPathToMaskINVERT, inverseMask;
/// Tints what is not selected.
Operation makeSelection;

// ---- what floats (ZPCanvas+Floating, +Adjust) ----
Operation floatSelection, anchorSelection, anchorOrFloatSelection;
/// Before the transform dialog opens.
Operation transform;
/// Scale, rotation in degrees; -1, -1 is neutral.
Operation transform_set;
/// The corners of what floats, upper left, upper right, lower right, lower left: for each how far it is pulled to the
/// right and down from where it was when the piece began to float, in the piece's own pixels. Refused when nothing
/// floats, and where the shape would fold over.
Operation transform_corners;
/// Floats the selection if nothing floats and makes its outline, of four corners, an upright rectangle.
Operation straightenCorners;
/// No corner is pulled any more.
Operation resetCorners;
/// Before the adjust dialog opens.
Operation adjust;
/// Hue, saturation, brightness, contrast, sharpness.
Operation adjust_set;

// ---- clipboard and crop (ZPCanvas+Clipboard, +Crop) ----
Operation copy, cut, paste, pasteInto, deleteSelection, clearSelection, cropToSelection;
/// Opens the smart fill window.
Operation smartFill;
/// Pixels that are not opaque, or that are opaque black, become 0.
Operation makeBGBlack, magentaClear;

// ---- painting (ZPCanvas+StrokeFill, +FloodFill, +MagicWand, +Pixels, +Watermark) ----
Operation fill, stroke;
/// x, y; rounded to the nearest pixel.
Operation floodFillScanlineStackFast, magicWand;
/// The same by older rules: colours instead of bytes, the brush size as the tolerance, and no selection.
Operation floodFillScanlineStack, floodFill4Stack, magicWandOver;
/// Pixel word, x, y.
Operation setColorAtPoint;
/// Path, x, y from the lower left, alpha.
Operation placeWatermark;

// ---- the picture as a whole (ZPCanvas+Geometry) ----
Operation rotateCW, rotateCCW, flipH, flipV;

// ---- steps (ZPCanvas+Snapshots) ----
Operation undo, redo;
/// Number: what the step's files hold.
Operation goToStep;
Operation previousPicture;
Operation restoreSnapshot;
Operation takeSnapshot, dontTakeSnapshot, takeSnapshotAgain;
/// Path: the alpha plane as a run-length file.
Operation writeAlphaRLEToFile, readAlphaRLEFile;

} // namespace zp::operations
