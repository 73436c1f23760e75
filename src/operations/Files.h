// SPDX-License-Identifier: GPL-3.0-or-later
/// What opening and saving share: panels, the picture as the screen shows it, sentences.
#pragma once
#include "base/BitmapRep.h"
#include "base/Geometry.h"
#include "codecs/FileNames.h"
#include "codecs/ImageImporter.h"
#include "document/Command.h"
#include <QString>
#include <memory>
#include <optional>
#include <string>

namespace zp
{

class Document;
class Edit;

/// A blank picture that has no file yet. Refused with a word when there is no memory for it or it would be too large.
Outcome newPicture(Document& document, Size size);
/// A decoded file, or what is known of its failure, becomes the picture; a failure is told and gives the empty picture.
void installOpened(Edit& edit, const std::string& path, ImportedImage imported);
/// "name: why", for an alert; the path goes into the log.
QString whyNotOpened(const std::string& path, const std::string& error);

/// Asks for a file and saves there. Runs events.
Outcome saveThroughPanel(Document& document, SaveFormat format);
/// The one save panel, with the name that the picture's file proposes. Runs events.
std::optional<std::string> askWhereToSave(const Document& document, SaveFormat format);

/// The picture with the floating piece in its place; the picture itself when nothing floats. Null without a picture.
/// @throws std::bad_alloc
std::shared_ptr<const BitmapRep> pictureAsShown(const Document& document);
/// What Copy would hand over: the selected pixels, or the whole picture without a selection; nothing is lifted for it.
/// Null when there is nothing.
std::shared_ptr<const BitmapRep> selectedPicture(const Document& document);
/// Draws the floating piece into @p pixels, whose corner is the picture's pixel (x, y), as anchoring would.
void drawFloatingPiece(const Document& document, BitmapView pixels, int x, int y);

} // namespace zp
