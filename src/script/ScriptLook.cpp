// SPDX-License-Identifier: GPL-3.0-or-later
/// Commands that look: image, mask, fields, paths, files of pixels, the library's table, log and sounds.
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Pasteboard.h"
#include "desktop/Sounds.h"
#include "imageops/Adjustment.h"
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

QJsonValue pathFields(const std::optional<BezierPath>& path)
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

QJsonObject stateFields(ZPCanvas& c)
{
    const _ZPTransform& t = c.mTransformRecord;
    const QJsonObject record{{"position", pair(t.position)},
                             {"scale", double(t.scale)},
                             {"rotate", double(t.rotate)},
                             {"oldPos", pair(t.oldPos)},
                             {"oldSize", pair(t.oldSize)}};
    QJsonValue floatingSize = QJsonValue::Null;
    if (c.mSelectionImage) floatingSize = pair(c.mSelectionImage->size());
    return QJsonObject{
        {"mTool", c.mTool},
        {"mSize", double(c.mSize)},
        {"mColor",
         QJsonArray{double(c.mColor.red), double(c.mColor.green), double(c.mColor.blue), double(c.mColor.alpha)}},
        {"mZoom", double(c.mZoom)},
        {"m2xRetina", c.m2xRetina},
        {"mImagePath", text(displayName(c.mImagePath))},
        {"mIsMouseDown", int(c.mIsMouseDown)},
        {"mDrawFinishedFlag", int(c.mDrawFinishedFlag)},
        {"_ptIndex", qint64(c._ptIndex)},
        {"mPt1", pair(c.mPt1)},
        {"mPt2", pair(c.mPt2)},
        {"mCloneStampRefPt", pair(c.mCloneStampRefPt)},
        {"mMove", c.mMove},
        {"mPolygonLasso", c.mPolygonLasso},
        {"mSelectionMaskClear", c.mSelectionMaskClear},
        {"mSelectionPhase", double(c.mSelectionPhase)},
        {"mUndoIndex", c.mUndoIndex},
        {"mUndoRedoIndex", c.mUndoRedoIndex},
        {"mUndoThreadRunning", bool(c.mUndoThreadRunning)},
        {"mDontTakeSnapshot", c.mDontTakeSnapshot},
        {"mUndoRect", QJsonArray{c.mUndoRect.top, c.mUndoRect.left, c.mUndoRect.bottom, c.mUndoRect.right}},
        {"mTransform", c.mTransform},
        {"mTransformMode", c.mTransformMode},
        {"mTransformRecord", record},
        {"mUndoStackCount", int(c.mUndoStack.size())},
        {"selection", c.mSelectionPath.has_value()},
        {"aux", c.mAuxSelectionPath.has_value()},
        {"pasteInto", c.mPasteIntoSelectionPath.has_value()},
        {"floating", c.mSelectionImage != nullptr},
        {"floatingSize", floatingSize},
        {"floatingReps", c.mSelectionImage ? int(c.mSelectionImage->representations().size()) : 0},
        {"selectionTimer", c.mSelectionTimer != nullptr},
    };
}

} // namespace

void ScriptDriver::addLookCommands()
{
    const auto pixelPosition = [this](const Words& w) {
        if (w.size() != 3) throw Failure{text(w[0]) + " X Y"};
        const int x = int(std::floor(text(w[1]).toDouble())), y = int(std::floor(text(w[2]).toDouble()));
        if (!mCanvas.mBitmapRep || x < 0 || y < 0 || x >= mCanvas.mBitmapRep->pixelsWide() ||
            y >= mCanvas.mBitmapRep->pixelsHigh())
            throw Failure{"outside the image"};
        return PixelPoint{x, y};
    };
    addImmediate("image", [this](const Words&) {
        const BitmapRep* rep = mCanvas.mBitmapRep.get();
        return QJsonObject{{"loaded", mCanvas.imageLoaded()},
                           {"width", rep ? rep->pixelsWide() : 0},
                           {"height", rep ? rep->pixelsHigh() : 0},
                           {"rowBytes", rep ? qint64(rep->bytesPerRow()) : 0},
                           {"path", text(displayName(mCanvas.mImagePath))},
                           {"gworld", mCanvas.mGWorld.has_value()},
                           {"cacheMode", mCanvas.mImage ? int(mCanvas.mImage->cacheMode()) : 0}};
    });
    addImmediate("pixel", [this, pixelPosition](const Words& w) {
        const PixelPoint p = pixelPosition(w);
        const std::uint8_t* b = std::as_const(*mCanvas.mBitmapRep).view().pixel(p.x, p.y);
        return QJsonObject{{"argb", QJsonArray{b[0], b[1], b[2], b[3]}}};
    });
    addImmediate("mask", [this, pixelPosition](const Words& w) {
        const PixelPoint p = pixelPosition(w);
        if (!mCanvas.mSelectionMask) throw Failure{"no mask"};
        return QJsonObject{{"mask", mCanvas.mSelectionMask->row(p.y)[p.x]}};
    });
    addImmediate("state", [this](const Words&) { return stateFields(mCanvas); });
    addImmediate("path", [this](const Words& w) {
        const std::string which = w.size() > 1 ? w[1] : "selection";
        if (which == "selection") return QJsonObject{{"path", pathFields(mCanvas.mSelectionPath)}};
        if (which == "aux") return QJsonObject{{"path", pathFields(mCanvas.mAuxSelectionPath)}};
        if (which == "pasteInto") return QJsonObject{{"path", pathFields(mCanvas.mPasteIntoSelectionPath)}};
        if (which == "pencil") return QJsonObject{{"path", pathFields(mCanvas.mPencilPath)}};
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
        if (!mCanvas.mBitmapRep) throw Failure{"no image"};
        const std::lock_guard lock(mCanvas.mPixelLock);
        return written(writeBitmap(file(w, 1), std::as_const(*mCanvas.mBitmapRep).view()));
    });
    addImmediate("write-mask", [this, file, written](const Words& w) {
        if (!mCanvas.mSelectionMask) throw Failure{"no mask"};
        const ConstMaskView m = *mCanvas.mSelectionMask;
        const std::string head = "P5\n" + std::to_string(m.width) + " " + std::to_string(m.height) + "\n255\n";
        return written(writePixels(file(w, 1), head, m.data, m.width, m.height, m.stride));
    });
    addImmediate("write-floating", [this, file, written](const Words& w) {
        finishPendingAdjustment(mCanvas);
        const BitmapRep* rep = mCanvas.mSelectionImage ? mCanvas.mSelectionImage->drawn() : nullptr;
        if (!rep) throw Failure{"nothing floats"};
        return written(writeBitmap(file(w, 1), rep->view()));
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
                           {"selected", library->selectedRow()}};
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
