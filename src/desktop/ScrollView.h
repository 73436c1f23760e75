// SPDX-License-Identifier: GPL-3.0-or-later
/// A scroll area for one document view: centred when smaller, panned by hand, zoomed about the pointer.
#pragma once
#include <QScrollArea>

/// The document decides what a zoom step means: the view only asks for it.
class ScrollView : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollView(QWidget* parent = nullptr);
    /// The document's part on screen, in the document widget's own coordinates.
    QRect documentVisibleRect() const;
    /// Scrolls so that the document's @p documentPoint lies at the viewport's @p viewportPoint, as far as possible.
    void placeDocumentPoint(QPointF documentPoint, QPointF viewportPoint);
    /// Whether Space is held: the next drag pans.
    bool isPanning() const { return mPanning; }

signals:
    /// The view has another size: that much room for a document without scroll bars.
    void roomChanged(QSize room);
    /// A pinch of two fingers: larger by @p factor, about a point of the document.
    void scaleRequested(double factor, QPointF documentPoint);
    /// Ctrl+wheel: one step in (+1) or out (-1), about a point of the document.
    void zoomRequested(int steps, QPointF documentPoint);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    bool handlePan(QEvent* event);
    void holdSpace(bool held);
    void pinch(double factor, QPointF globalPoint);
    void scrollBy(QPoint distance);
    bool mPanning = false, mSpaceHeld = false;
    QPoint mPanStart, mScrollStart;
    int mWheelRest = 0; ///< of notches, for zooming
    QPoint mNotchRest;  ///< and for scrolling, times the pixels of a notch
};
