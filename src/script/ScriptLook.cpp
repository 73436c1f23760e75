// SPDX-License-Identifier: GPL-3.0-or-later
/// Commands that look: image, mask, fields, paths, files of pixels, the library's table, log and sounds.
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Pasteboard.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/SessionScript.h"
#include "script/ScriptDriver.h"
#include "windows/ZPFileManager.h"
#include <QFile>
#include <QJsonArray>
#include <QPixmap>
#include <fstream>

using namespace zp;

namespace
{

QJsonArray pair(float a, float b) { return {double(a), double(b)}; }
QJsonArray pair(Point p) { return pair(p.x, p.y); }
QJsonArray pair(Size s) { return pair(s.width, s.height); }

/// The bytes as stored, row by row without the padding.
bool writePixels(const std::string& path, const std::string& head, const std::uint8_t* data, int rowLength, int rows,
                 std::ptrdiff_t stride)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << head;
    for (int y = 0; y < rows; ++y) file.write(reinterpret_cast<const char*>(data + stride * y), rowLength);
    file.close();
    return bool(file);
}

bool writeBitmap(const std::string& path, ConstBitmapView v)
{
    const std::string head = "P7\nWIDTH " + std::to_string(v.width) + "\nHEIGHT " + std::to_string(v.height) +
                             "\nDEPTH 4\nMAXVAL 255\nTUPLTYPE ARGB_PREMULTIPLIED\nENDHDR\n";
    return writePixels(path, head, v.data, v.width * 4, v.height, v.rowBytes);
}

QJsonValue pathFields(const BezierPath* path)
{
    if (!path) return QJsonValue::Null;
    QJsonArray elements;
    path->forEach([&](PathElement kind, const Point* p) {
        switch (kind) {
        case PathElement::MoveTo:
            elements.append(QJsonArray{"M", double(p->x), double(p->y)});
            break;
        case PathElement::LineTo:
            elements.append(QJsonArray{"L", double(p->x), double(p->y)});
            break;
        case PathElement::CurveTo:
            elements.append(QJsonArray{"C", double(p[0].x), double(p[0].y), double(p[1].x), double(p[1].y),
                                       double(p[2].x), double(p[2].y)});
            break;
        case PathElement::ClosePath:
            elements.append(QJsonArray{"Z"});
            break;
        }
    });
    const Rect b = path->bounds();
    return QJsonObject{
        {"elements", elements},
        {"bounds", QJsonArray{double(b.origin.x), double(b.origin.y), double(b.size.width), double(b.size.height)}},
        {"winding", path->windingRule() == WindingRule::EvenOdd ? "evenodd" : "nonzero"},
        {"flatness", double(path->flatness())},
        {"lineWidth", double(path->lineWidth())}};
}

QJsonObject recordFields(const _ZPTransform& record)
{
    QJsonArray corners;
    for (const Point pull : record.corners) corners.append(pair(pull));
    return {{"position", pair(record.position)}, {"scale", double(record.scale)},   {"rotate", double(record.rotate)},
            {"oldPos", pair(record.oldPos)},     {"oldSize", pair(record.oldSize)}, {"corners", corners}};
}

QJsonObject stateFields(const Document& document)
{
    const Picture& picture = document.picture();
    const Selection& selection = document.selection();
    const Gesture& gesture = document.gesture();
    const History& history = document.history();
    const Paint& paint = document.paint();
    const Floating* floating = selection.floating();
    const Color color = paint.color();
    const UndoRect& area = gesture.stroke().undoRect();
    return QJsonObject{
        {"mTool", int(gesture.tool())},
        {"mSize", double(paint.size())},
        {"mColor", QJsonArray{double(color.red), double(color.green), double(color.blue), double(color.alpha)}},
        {"mZoom", double(document.view().zoom())},
        {"m2xRetina", document.view().isRetina()},
        {"mImagePath", text(displayName(picture.path()))},
        {"mIsMouseDown", int(gesture.isMouseDown())},
        {"mDrawFinishedFlag", int(gesture.stroke().isDrawn())},
        {"_ptIndex", qint64(gesture.stroke().pointCount())},
        {"mPt1", pair(gesture.pt1())},
        {"mPt2", pair(gesture.pt2())},
        {"mCloneStampRefPt", pair(gesture.cloneReference())},
        {"mMove", gesture.isMoving()},
        {"mPolygonLasso", gesture.polygonIsOpen()},
        {"mSelectionMaskClear", selection.mask().isClear()},
        {"mSelectionPhase", double(selection.phase())},
        {"mUndoIndex", history.newest()},
        {"mUndoRedoIndex", history.position()},
        {"mUndoThreadRunning", history.isWriting()},
        {"mDontTakeSnapshot", history.isSuppressed()},
        {"mUndoRect", QJsonArray{area.top, area.left, area.bottom, area.right}},
        {"mTransform", selection.isTransforming()},
        {"mTransformMode", selection.transformMode()},
        {"mTransformRecord", recordFields(selection.record())},
        {"mUndoStackCount", int(document.unusedFields().mUndoStack.size())},
        {"selection", !selection.isNil()},
        {"aux", selection.parked() != nullptr},
        {"pasteInto", selection.pasteInto() != nullptr},
        {"floating", floating != nullptr},
        {"floatingSize", floating ? QJsonValue(pair(floating->size())) : QJsonValue(QJsonValue::Null)},
        {"floatingReps", floating ? floating->representations() : 0},
        {"selectionTimer", selection.antsMarch()},
    };
}

} // namespace

void ScriptDriver::addLookCommands()
{
    const auto pixelPosition = [this](const Words& w) {
        if (w.size() != 3) throw Failure{text(w[0]) + " X Y"};
        const int x = int(std::floor(text(w[1]).toDouble())), y = int(std::floor(text(w[2]).toDouble()));
        if (!mDocument.picture().box().contains(x, y)) throw Failure{"outside the image"};
        return PixelPoint{x, y};
    };
    addImmediate("history", [this](const Words&) {
        QJsonArray steps;
        for (const History::Step& step : mDocument.history().steps())
            steps.append(QJsonObject{{"name", QString::fromStdString(step.name)}, {"number", step.number}});
        return QJsonObject{{"steps", steps}, {"current", mDocument.history().position()}};
    });
    addImmediate("image", [this](const Words&) {
        const Picture& picture = mDocument.picture();
        return QJsonObject{{"loaded", picture.isLoaded()},
                           {"width", picture.width()},
                           {"height", picture.height()},
                           {"rowBytes", picture.bitmap() ? qint64(picture.bitmap()->bytesPerRow()) : 0},
                           {"path", text(displayName(picture.path()))},
                           {"gworld", picture.gworld().has_value()},
                           {"cacheMode", int(picture.image().cacheMode())}};
    });
    addImmediate("pixel", [this, pixelPosition](const Words& w) {
        const PixelPoint p = pixelPosition(w);
        const auto b = mDocument.picture().pixel(p.x, p.y);
        return QJsonObject{{"argb", QJsonArray{b[0], b[1], b[2], b[3]}}};
    });
    addImmediate("mask", [this, pixelPosition](const Words& w) {
        const PixelPoint p = pixelPosition(w);
        return QJsonObject{{"mask", mDocument.selection().mask().at(p.x, p.y)}};
    });
    addImmediate("state", [this](const Words&) { return stateFields(mDocument); });
    addImmediate("path", [this](const Words& w) {
        const std::string which = w.size() > 1 ? w[1] : "selection";
        if (which == "selection") return QJsonObject{{"path", pathFields(mDocument.selection().outline())}};
        if (which == "aux") return QJsonObject{{"path", pathFields(mDocument.selection().parked())}};
        if (which == "pasteInto") return QJsonObject{{"path", pathFields(mDocument.selection().pasteInto())}};
        if (which == "pencil") return QJsonObject{{"path", pathFields(mDocument.gesture().pencilPath())}};
        throw Failure{"selection, aux, pasteInto or pencil"};
    });
    const auto file = [](const Words& w, std::size_t i) {
        if (i >= w.size()) throw Failure{"a file is missing"};
        return w[i];
    };
    const auto written = [](bool ok) {
        if (!ok) throw Failure{"cannot write the file"};
        return QJsonObject{};
    };
    addImmediate("write-bitmap", [this, file, written](const Words& w) {
        const Picture& picture = mDocument.picture();
        if (!picture.bitmap()) throw Failure{"no image"};
        const std::lock_guard lock(picture.pixelLock());
        return written(writeBitmap(file(w, 1), picture.pixels()));
    });
    addImmediate("write-script", [this, file, written](const Words& w) {
        const std::string text = mController.sessionScript().text();
        return written(writeFileSafely(file(w, 1), text.data(), text.size()));
    });
    addImmediate("write-mask", [this, file, written](const Words& w) {
        const SelectionMask& mask = mDocument.selection().mask();
        if (!mask.exists()) throw Failure{"no mask"};
        std::vector<std::uint8_t> bytes(std::size_t(mask.width()) * std::size_t(mask.height()));
        for (int y = 0; y < mask.height(); ++y)
            for (int x = 0; x < mask.width(); ++x)
                bytes[std::size_t(y) * std::size_t(mask.width()) + std::size_t(x)] = mask.at(x, y);
        const std::string head =
            "P5\n" + std::to_string(mask.width()) + " " + std::to_string(mask.height()) + "\n255\n";
        return written(writePixels(file(w, 1), head, bytes.data(), mask.width(), mask.height(), mask.width()));
    });
    addImmediate("write-floating", [this, file, written](const Words& w) {
        Floating* floating = mDocument.selection().floating();
        if (!floating) throw Failure{"nothing floats"};
        floating->finishAdjustment();
        const std::shared_ptr<const BitmapRep> rep = floating->image().drawn();
        if (!rep) throw Failure{"nothing floats"};
        return written(writeBitmap(file(w, 1), std::as_const(*rep).view()));
    });
    addImmediate("grab", [this, file](const Words& w) {
        const std::string name = w.size() > 2 ? w[2] : "Main";
        QPixmap picture;
        if (name == "canvas") {
            picture = mCanvas.grab(mCanvas.visibleRegion().boundingRect());
        } else {
            QWidget* window = nullptr;
            for (QWidget* candidate : windowsInFront())
                if (!window && candidate->objectName() == text(name)) window = candidate;
            if (!window) throw Failure{"no such window"};
            picture = window->grab();
        }
        if (picture.isNull() || !picture.save(QFile::decodeName(file(w, 1).c_str()), "PNG"))
            throw Failure{"cannot write the file"};
        return QJsonObject{};
    });
    addImmediate("pasteboard", [file, written](const Words& w) {
        Pasteboard& board = Pasteboard::general();
        const std::string what = w.size() > 1 ? w[1] : "";
        if (what == "types") return QJsonObject{{"types", QJsonArray::fromStringList(board.types())}};
        if (what == "clear") {
            board.clear();
            return QJsonObject{};
        }
        if (what == "get") {
            const std::vector<std::uint8_t> data = board.imageData();
            if (data.empty()) throw Failure{"no image on the pasteboard"};
            std::ofstream out(file(w, 2), std::ios::binary | std::ios::trunc);
            out.write(reinterpret_cast<const char*>(data.data()), std::streamsize(data.size()));
            out.close();
            return written(bool(out));
        }
        if (what == "put") {
            const std::optional<std::string> data = readWholeFile(file(w, 2));
            if (!data) throw Failure{"cannot read the file"};
            board.setTIFF({data->begin(), data->end()});
            return QJsonObject{};
        }
        throw Failure{"pasteboard get, put, clear or types"};
    });
    addImmediate("table", [](const Words&) {
        ZPFileManager* library = ZPFileManager::sharedFileManager();
        QJsonArray rows;
        for (const QStringList& row : library->rows()) rows.append(QJsonArray::fromStringList(row));
        return QJsonObject{{"columns", QJsonArray::fromStringList(library->columns())},
                           {"rows", rows},
                           {"selected", library->selectedRow()},
                           {"busy", library->isBusy()}};
    });
    addImmediate("select-row", [](const Words& w) {
        if (w.size() != 2) throw Failure{"select-row N"};
        ZPFileManager::sharedFileManager()->selectRow(text(w[1]).toInt());
        return QJsonObject{};
    });
    addWork("drop", [](const Words& w) {
        const std::vector<std::string> files(w.begin() + 1, w.end());
        return QJsonObject{{"accepted", ZPFileManager::sharedFileManager()->dropFiles(files)}};
    });
    addImmediate("log", [](const Words&) {
        QJsonArray lines;
        for (const std::string& line : takeLogLines()) lines.append(text(line));
        return QJsonObject{{"lines", lines}};
    });
    addImmediate("sounds", [](const Words&) {
        QJsonArray names;
        for (const std::string& name : takeSounds()) names.append(text(name));
        return QJsonObject{{"sounds", names}};
    });
}
