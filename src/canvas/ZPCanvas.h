// SPDX-License-Identifier: GPL-3.0-or-later
/// The one document view: shows the document and turns the person's events into gestures and commands.
#pragma once
#include "base/Color.h"
#include "base/Geometry.h"
#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

class QPainter;
class QImage;
namespace zp
{
class Document;
class OutlineDrawing;
class ScreenColours;
class WandExplainer;
struct ScreenTarget;
struct ToolRow;
} // namespace zp

/// A view with y growing downwards whose frame and bounds equal the image size. The enclosing ScrollView applies the
/// zoom: the widget is image size times the effective zoom large. Main thread.
class ZPCanvas : public QWidget
{
    Q_OBJECT

public:
    /// @param document  must outlive the canvas
    explicit ZPCanvas(zp::Document& document, QWidget* parent = nullptr);
    ~ZPCanvas() override;

    zp::Document& document() const { return mDocument; }
    /// The mouse's position in image coordinates, exactly and whatever the zoom, for the next event only: what a script
    /// says arrives as it was said.
    void setExactPointer(zp::Point point) { mExactPointer = point; }
    bool awaitsExactPointer() const { return mExactPointer.has_value(); }

    /// What the wand says of itself where the pointer rests.
    const zp::WandExplainer& wandExplainer() const { return *mWandExplainer; }

    // ---- looking (ZPCanvas+Drawing.cpp) ----------------------------------------------------------------------------
    void setNeedsDisplay() { setNeedsDisplayInRect(bounds().inset(-4)); }
    void setNeedsDisplayInRect(zp::Rect imageRect);
    zp::Rect bounds() const;      ///< (0, 0, image width, image height)
    zp::Rect visibleRect() const; ///< the part of the image on screen
    /// The visible picture with its overlays into @p painter's device, whose canvas origin is at device pixel @p
    /// origin.
    void drawRect(QPainter& painter, const QRect& deviceRect, QPoint origin, double deviceScale);

    // ---- colours (ZPCanvas+Colours.cpp) ----------------------------------------------------------------------------
    /// The profile of the screen that shows the canvas; empty: sRGB.
    void setScreenProfile(std::vector<std::uint8_t> profile);
    /// A colour of the picture as it looks on that screen, in the screen's own numbers.
    zp::Color asShown(zp::Color color);
    /// A small picture of the picture, likewise.
    QImage asShown(QImage image);

    // ---- zoom (ZPCanvas.cpp) --------------------------------------------------------------------------------------
    /// As the zoom pop-up asks for it: @p percent as the title of its item says.
    void zoom(double percent);
    /// Zoom to a factor with the image point @p anchor staying where it is on screen; the middle of what is visible by
    /// default.
    void setZoom(float factor, std::optional<zp::Point> anchor = std::nullopt);
    /// One level in (+1) or out (-1).
    void stepZoom(int step, std::optional<zp::Point> anchor = std::nullopt);
    /// Larger by @p factor, within the zoom levels; a picture fitted below the smallest may stay there.
    void scaleZoom(double factor, zp::Point anchor);
    /// Scrolls as little as shows that part, or its near corner when it is larger than the view.
    void reveal(zp::Rect imageRect);

    /// The view was scrolled: another point of the picture lies under a pointer that rests.
    void pictureMovedUnderPointer();

    // ---- keys (ZPCanvas+Keyboard.cpp) -----------------------------------------------------------------------------
    /// @param character the first character of the key's text, or the arrow code points 0xF700 to 0xF703
    void keyDown(char32_t character);
    void setTool(int index);

    // ---- the pointer moved by keys (ZPCanvas+KeyboardPointer.cpp)
    // -----------------------------------------------------
    bool hasKeyboardPointer() const { return mKeyboardPointer; }
    /// A crosshair that keys move, press and release, so that every tool works without a mouse.
    void setKeyboardPointer(bool on);

signals:
    /// The right button or the menu key: the commands for what is here, at a point of the screen.
    void menuRequested(QPoint globalPosition);

protected:
    void paintEvent(QPaintEvent* event) override;
    void paintRegion(QPainter& painter, const QRegion& region);
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    struct DrawingState;

    void updateViewGeometry(); ///< widget size = image size * effective zoom
    void antsNeedDisplay();    ///< dirties what the marching ants cover
    void ringNeedsDisplay();   ///< and what the outline of the tool covers, before and now
    zp::Point imagePoint(QPointF position);
    void showCursor();
    void autoscroll(zp::Point point); ///< scrolls the point into view
    void repeatDrag();
    void repeatWhileResting(QPointF pointer);
    void escape();
    void modifierChanged();
    bool keyboardPointerKey(QKeyEvent* event); ///< whether it was one
    void moveKeyboardPointer(double dx, double dy, bool goesOn);
    void pressKeyboardPointer();

    zp::PixelBox visibleDeviceBox() const; ///< of the device pixels on screen, counted from the canvas's corner
    zp::PixelBox overlayBox() const; ///< image pixels that the stroke being drawn and the floating image may cover
    bool composeOverlays(zp::PixelBox box); ///< the picture's part with those drawn over it, into the scratch bitmap
    bool makeScratch(zp::PixelBox box);     ///< at least that large
    bool showsPieceAlone() const;           ///< of all that changes pixels
    void logPiece() const;
    bool drawPieceReduced(const zp::ScreenTarget& target, zp::PixelBox part, double deviceScale);
    std::uint32_t outside() const; ///< the screen word beside the picture
    void drawPicture(const zp::ScreenTarget& target, double deviceScale, bool strokeOpen);
    double smallestDeviceScale() const;
    zp::PixelBox smallBox() const; ///< the device pixels of the whole picture at the lowest zoom, if they are kept
    void smallIsOld();
    void prepareSmall();                ///< a part of them at a time, when nothing else is to be done
    const zp::ScreenColours* colours(); ///< null where the picture's are the screen's
    void showThroughProfile(const zp::ScreenTarget& target, double deviceScale);
    void drawOverlays(const zp::ScreenTarget& target, double deviceScale);
    void drawSplit(QPainter& painter, const QRect& deviceRect, QPoint origin, double deviceScale) const;
    double pixelsPerPoint(double deviceScale) const; ///< device pixels to a screen point
    void drawOutlines(const zp::ScreenTarget& target, double deviceScale);
    const zp::ToolRow& row() const;

    zp::Document& mDocument;
    std::unique_ptr<DrawingState> mDrawing;
    std::unique_ptr<zp::WandExplainer> mWandExplainer;
    std::optional<zp::Point> mExactPointer;
    bool mKeyboardPointer = false;
    bool mButtonDown = false; ///< the platform said the button is down, whatever the document made of it
    QTimer mCursorTimer;      ///< gathers what may change the cursor until the events are through
    QTimer mSmallTimer;       ///< runs until a very large picture has been quiet for a while
    QTimer mRestTimer;        ///< runs while a drag that scrolls the view rests beyond its edge
    QPointF mRestingPointer;  ///< where on the screen that is
};
