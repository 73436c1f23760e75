// SPDX-License-Identifier: GPL-3.0-or-later
/// The one document view: it owns the image being edited and every piece of editing state.
#pragma once
#include "base/BezierPath.h"
#include "base/BitmapRep.h"
#include "base/Color.h"
#include "base/GWorld.h"
#include "base/Image.h"
#include "desktop/KeyModifiers.h"
#include "imageops/Adjustment.h"
#include "selection/TransformRecord.h"
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

class QAction;
class QComboBox;
class QLabel;
class QSlider;
class QSpinBox;
class QProgressBar;
class ColorWell;
class QPainter;
namespace zp
{
class PointerFeed;
class BrushTip;
struct ScreenTarget;
class SnapshotEncoder;
} // namespace zp

/// A point of a stroke as the capture thread stores it. Without initialisers, so that the array of millions of them
/// inside the canvas costs no memory until a stroke is drawn.
struct StrokePoint {
    float x, y;
};

/// Work rectangle of the stroke: four 16-bit numbers.
struct UndoRect {
    std::int16_t top = 0, left = 0, bottom = 0, right = 0;
};

/// A view with y growing downwards whose frame and bounds equal the image size. The enclosing ScrollView applies the
/// zoom: the widget is image size times effectiveZoom() large, and every public point is in image coordinates.
///
/// Fields stand in the order of the product, grouped by the room that owns them; they are public to the rooms'
/// operations, to the automation driver and to tests, and written by nobody else. Everything runs on the main thread
/// unless its comment says otherwise. The object is large by design (a 25.6 MB point array inside it): allocate it
/// on the heap.
class ZPCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit ZPCanvas(QWidget* parent = nullptr); ///< the product's initWithFrame:
    ~ZPCanvas() override;                         ///< the product's dealloc
    void awakeFromNib();                          ///< once all outlets are set

    // ---- canvas: state and buffers (ZPCanvas.cpp) --------------------------------------------------------------
    bool imageLoaded() const;
    zp::Size imageSize() const;
    /// Whether the image has no file. A path whose file is gone is emptied first.
    bool imagePathNil();
    bool isFlipped() const { return true; }
    bool isOpaque() const { return true; }
    /// (0, 0, image width, image height), what the product calls the view's bounds.
    zp::Rect bounds() const;
    void tool(QComboBox* sender);          ///< shows and hides the tool options; does not store the tool
    void toleranceSlider(QSlider* sender); ///< copies the slider's value into the field
    void selectionTimerFired();
    /// mZoom, halved in 2x retina mode.
    float effectiveZoom() const { return m2xRetina ? mZoom * 0.5f : mZoom; }
    /// Installs a new bitmap as the image: image object, GWorld (unless @p makeGWorld is false), mBitmap (when
    /// @p storeBitmapPointer), view geometry; asks for redisplay. Stops nothing and resets no selection.
    void installBitmap(std::shared_ptr<zp::BitmapRep> rep, zp::ImageCacheMode cacheMode, bool makeGWorld,
                       bool storeBitmapPointer, bool imageHasSize = true);
    /// Blocks until no stroke, snapshot or fill works on the buffers, so that they may be replaced.
    void waitForWorkers();
    bool anyWorkerRunning() const;
    /// Frame and bounds after a buffer or zoom change: widget size = image size * effective zoom.
    void updateViewGeometry();

    // ---- canvas: drawing (ZPCanvas+Drawing.cpp) -----------------------------------------------------------------
    void setNeedsDisplay(bool flag = true);         ///< any thread
    void setNeedsDisplayInRect(zp::Rect imageRect); ///< any thread
    void displayNow();                              ///< redraws at once
    void zoom(QComboBox* sender);
    /// Zoom to a factor with the image point @p anchor staying where it is on screen.
    void setZoom(float factor, std::optional<zp::Point> anchor = std::nullopt);
    zp::Rect visibleRect() const;        ///< the part of the image on screen
    void selectionOutlineNeedsDisplay(); ///< dirties what the marching ants cover
    /// The visible picture with its overlays into @p painter's device, whose canvas origin is at device pixel @p
    /// origin.
    void drawRect(QPainter& painter, const QRect& deviceRect, QPoint origin, double deviceScale);

    // ---- canvas: files (ZPCanvas+Files.cpp) and resize (ZPCanvas+Resize.cpp) ------------------------------------
    void newImageWithSize(zp::Size size);
    void newImageForMeWithSize(zp::Size size);
    void setImagePath(const std::string& path);
    void openIt(const std::string& path);
    void saveImage();
    void saveImageAsTIFF();
    void saveImageAsJPEG();
    void saveImageAsPNG();
    void saveImageAsTIFF(const std::string& path);
    void saveImageAsJPEG(const std::string& path);
    void saveImageAsPNG(const std::string& path);
    void saveImageToPath(const std::string& path);
    void quickSave(const std::string& path);
    void openWithPreview();
    void setImageSize(zp::Size size, bool scale);
    /// Why the last open or save failed, in a sentence; empty when it did not.
    const std::string& lastFileError() const { return mLastFileError; }

    // ---- tools (src/tools) ---------------------------------------------------------------------------------------
    void mouseDown(zp::Point point);
    void mouseDragged(zp::Point point);
    void mouseUp(zp::Point point);
    /// @param character the first character of the key's text, or the platform's arrow code points 0xF700 to 0xF703
    void keyDown(char32_t character);
    /// Ends a brush stroke in progress, as if the button were let go: returns when all its points are painted and its
    /// snapshot is asked for. Without one does nothing.
    void finishStroke();
    void pollThread(); ///< body of the capture thread
    void drawThread(); ///< body of the drawing thread
    std::uint32_t colorAtPoint(zp::Point point) const;
    std::uint32_t colorAtPoint(zp::Point point, bool overlay) const;
    void setColor(std::uint32_t word, zp::Point point);
    void setColor(std::uint32_t word, zp::Point point, bool overlay);
    int tol2(bool refresh);
    bool compareColor(std::uint32_t a, std::uint32_t b);
    std::uint8_t maskPixelAtPoint(zp::Point point) const;
    void setMaskPixel(zp::Point point);
    void inverseMask();
    void floodFillScanlineStackFast(zp::Point point);
    void floodFillScanlineStack(zp::Point point);
    void floodFill4Stack(zp::Point point);
    void magicWandFast(zp::Point point);
    void magicWand(zp::Point point);
    void magicWandOver(zp::Point point);
    void textEditorNotif();
    void stroke();
    void fill();
    /// The paint colour, as the colour well sets it.
    void setPaintColor(zp::Color color);
    void setBrushSize(float size);
    void setTool(int index); ///< pop-up, mTool and tool: together

    // ---- selections (src/selection) -------------------------------------------------------------------------------
    void createSelectionMask();
    void releaseSelectionMask();
    void clearSelectionMask();
    void clearSelectionMaskINVERT();
    void selectionPathToMask();
    void selectionPathToMaskINVERT();
    void selectAll();           ///< selectAll:
    void selectNone();          ///< without the sound
    void selectNoneWithSound(); ///< selectNone:
    void selectInverse();       ///< selectInverse:
    /// Restarts the marching ants' clock (0.2 s); stopSelectionTimer drops it.
    void restartSelectionTimer();
    void stopSelectionTimer();
    bool selectionNil() const { return !mSelectionPath; }
    bool selectionImageNil() const { return !mSelectionImage; }
    void makeSelection();
    void copyGWorld(const zp::GWorld& source, zp::GWorld& destination);
    /// Shows the integral bounds of the selection in the info field; @p none is shown without a selection.
    void showSelectionInfo(const char* none = "");
    void saveSelection(const std::string& path);
    void loadSelection(const std::string& path);
    /// Shift or Option at release: mSelectionPath becomes the union or difference with the parked outline.
    void combineWithAuxSelection();

    // ---- floating selection, clipboard (src/selection) --------------------------------------------------------------
    void floatSelection();
    void anchorSelection();
    void anchorOrFloatSelection(); ///< the menu action anchorSelection:
    struct TransformValues {
        float scale, rotate;
    };
    TransformValues transform();
    void transform_set(float scale, float rotate);
    void applyTransform();
    void dontApplyTransform();
    void applyTransform_2();
    void copy();
    void cut();
    void paste();
    void pasteInto();
    void deleteSelection(); ///< delete:
    void clearSelection();
    void cropToSelection();
    void makeBGBlack();
    void magentaClear();
    void placeWatermark(const std::string& path, zp::Point point, float alpha);
    /// Image space to where the floating image's own pixels land: centred on the record's position, scaled, turned.
    zp::AffineTransform floatingPlacement() const;

    // ---- undo (src/undo) --------------------------------------------------------------------------------------------
    void takeSnapshot();
    void takeSnapshotT();
    void dontTakeSnapshot() { mDontTakeSnapshot = true; }
    void takeSnapshotAgain() { mDontTakeSnapshot = false; }
    void takeSnapshotThreadLeopard();
    void takeSnapshotThread();
    void restoreSnapshot(std::int32_t number);
    void undo();
    void redo();
    int getc(bool reset);
    void putc(int value);
    void writeAlphaRLEToFile(const std::string& path);
    void readAlphaRLEFile(const std::string& path);
    /// Folder emptied and made again (private, 0700), both numbers -1.
    void resetUndo();
    /// The one-shot timer of 0.3 s after an open.
    void scheduleFirstSnapshot();
    bool snapshotTimerPending() const;

    // ---- image operations (src/imageops) and smart fill -------------------------------------------------------------
    void rotateCCW();
    void rotateCW();
    void flipH();
    void flipV();
    void retina(QAction* sender);
    void adjust();
    void adjust_set(_ZPFilters filters);
    void smartFill();

    /// Enabled state (and, for anchorSelection:, the title) of a menu item by its action's name.
    bool validateMenuItem(const QString& action, QString* title = nullptr);

    // ---- fields, in the product's order ----------------------------------------------------------------------------
    zp::Color mColor = zp::kBlack;
    std::int32_t mTool = 0;
    float mSize = 20;
    float mZoom = 1;
    std::string mImagePath;
    std::shared_ptr<zp::Image> mImage;
    zp::BezierPath mPath;
    std::string mOpenedPath; ///< the copy of the opened file's path that takes mPath's place
    std::atomic<std::uint8_t> mIsMouseDown{0};
    std::atomic<std::uint8_t> mDrawFinishedFlag{1};
    static constexpr std::uint32_t kStrokeCapacity = 3'200'000;
    StrokePoint _ptArray[kStrokeCapacity + 1]; ///< slots 1 to _ptIndex; slot 0 is never written
    std::atomic<std::uint32_t> _ptIndex{0};
    std::shared_ptr<zp::BrushTip> mBrushImage; ///< the tinted brush tip (src/tools)
    zp::Point mPt1, mPt2;
    zp::Point mCloneStampRefPt;
    bool mMove = false;
    bool mPolygonLasso = false;
    zp::Point mPolygonLassoLastPoint;
    std::optional<zp::BezierPath> mAuxSelectionPath;
    std::optional<zp::BezierPath> mSelectionPath;
    zp::PixelMemory mSelectionMaskData;
    std::optional<zp::ConstMaskView> mSelectionMask; ///< reads mSelectionMaskData in place
    std::int32_t mSelectionMaskSize = 0;
    bool mSelectionMaskClear = true;
    float mSelectionPhase = 0;
    std::unique_ptr<QTimer> mSelectionTimer;
    std::shared_ptr<zp::Image> mSelectionImage;
    std::optional<zp::BezierPath> mPencilPath;
    // outlets, set by the main window before awakeFromNib; any may be null in tests
    QPointer<QComboBox> mToolPopUp;
    QPointer<ColorWell> mColorWell;
    QPointer<QComboBox> mZoomPopUp;
    QPointer<QComboBox> mBrushPopUp;
    QPointer<QSlider> mToleranceSlider;
    QPointer<QSpinBox> mToleranceField;
    QPointer<QProgressBar> mBusyIndicator;
    QPointer<QLabel> mInfoField;
    QPointer<QAction> mRetinaMenuItem;
    std::shared_ptr<zp::BitmapRep> mBitmapRep;
    std::uint8_t* mBitmap = nullptr;
    std::optional<zp::GWorld> mGWorld;
    std::vector<int> mUndoStack;
    UndoRect mUndoRect;
    std::int32_t mUndoIndex = -1, mUndoRedoIndex = -1;
    std::atomic<bool> mCopy2HDThreadRunning{false}, mUndoThreadRunning{false};
    zp::Color mOldColor, mNewColor;
    bool mTransform = false;
    std::int32_t mTransformMode = -1;
    _ZPTransform mTransformRecord;
    zp::Rect mDirtyRect, mDirtyRectPREV;
    zp::Rect mDirtyRects[100];
    std::int32_t mDirtyRectsIndex = 0;
    zp::Rect mRect1, mRect2, mRect3, mRect4, mRect5, mRect6, mRect7, mRect8, mRect9;
    std::unique_ptr<QTimer> mDrawTimer;
    bool mDo = false;
    std::optional<zp::BezierPath> mPasteIntoSelectionPath;
    bool mDontTakeSnapshot = false;
    bool m2xRetina = false;

    // ---- beside the product's fields: what this platform needs -----------------------------------------------------
    std::string mLastFileError;
    std::shared_ptr<zp::PointerFeed> mPointerFeed; ///< lock-free: mouse events in, capture thread out (src/tools)
    std::shared_ptr<zp::SnapshotEncoder> mSnapshotEncoder; ///< keeps the last snapshot's strips (src/undo)
    std::thread mPollWorker, mDrawWorker, mSnapshotWorker;
    std::unique_ptr<QTimer> mFirstSnapshotTimer;
    QTimer mPoolTimer; ///< gives pooled pixel memory back when nothing needs it
    std::atomic<bool> mSmartFillRunning{false};
    zp::Point mLastPointer;      ///< image coordinates of the last mouse event
    bool mPointerInside = false; ///< the pointer is over the canvas
    /// Held while pixels are written off the main thread (a stamp, a segment), and by the main thread while it draws
    /// from them during a stroke. Never held across a wait.
    std::mutex mPixelLock;
    _ZPFilters mAdjustFilters;               ///< the last settings sent by the adjust dialog
    std::uint64_t mSelectionPathVersion = 0; ///< counts up when the outline is known to have changed
    /// Rooms keep what they must remember beside the fields here, one slot a room, made on first use.
    std::shared_ptr<void> mDrawingState, mToolState, mSelectionState, mUndoState, mAdjustState;

signals:
    void imageReplaced(); ///< after another bitmap was installed
    void zoomChanged();
    void pointerMoved(QPointF imagePoint); ///< image coordinates; also outside the image
    void paintColorChanged();
    void brushSizeChanged(float size);
    void toolOptionsChanged(int toolIndex); ///< the options of this tool are on show
    void busyChanged(bool busy);            ///< a snapshot is being written

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend struct ZPToolActions;      ///< what the mouse does, tool by tool (src/tools)
    void startFollowingPointer();     ///< the brush outline and the polygon's open edge follow the pointer
    void autoscroll(zp::Point point); ///< scrolls the point into view
    void updateGestureOutlines();     ///< the marquee and the polygon's open edge, from where the pointer is
    zp::PixelBox overlayBox() const;  ///< image pixels that the stroke being drawn and the floating image may cover
    bool composeOverlays(zp::PixelBox box); ///< the picture's part with those drawn over it, into the scratch bitmap
    void drawOverlays(const zp::ScreenTarget& target, double deviceScale);
    void drawOutlines(const zp::ScreenTarget& target, double deviceScale);
};
