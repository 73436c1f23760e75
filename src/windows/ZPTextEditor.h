// SPDX-License-Identifier: GPL-3.0-or-later
/// The text tool's window: a typed line becomes an outline for the canvas to take as its selection.
#pragma once
#include "base/BezierPath.h"
#include <QDialog>
#include <memory>
#include <optional>

class QEventLoop;
class QFont;
namespace Ui
{
class TextEditor;
}

/// One instance, made on first use, on the main thread. Posts "TextEditorNotif" with nothing in it at every change, so
/// that the canvas can show the text while it is typed; takes the size of "FontSizeNotif" (its "fontSize").
class ZPTextEditor : public QDialog
{
    Q_OBJECT

public:
    static ZPTextEditor* sharedInstance();
    /// The family that the last text was set in stands first in the pop-up, at the next start too when it is given
    /// back.
    static QString lastFamily();
    static void setLastFamily(const QString& family);
    ~ZPTextEditor() override;

    /// Pixels; at least 1.
    void setFontSize(int size);
    int fontSize() const { return mFontSize; }
    /// Shows and centres the window and previews what it holds.
    /// @param keepClear  a point of the screen; where the window would cover it, it stands beside it
    void showWindow(std::optional<QPoint> keepClear = std::nullopt);
    /// Modal until OK or Cancel. The window is shown if it is not yet.
    void run();
    /// Whether the last run ended with OK.
    bool isValid() const { return mValid; }
    /// The text's outline with the left end of its base line at @p point and y upwards: a letter stands at larger y
    /// than the point, a descender at smaller. For a view whose y grows downwards mirror it about the point's height.
    /// Several lines stand below each other, aligned as chosen. Even-odd, line width 1; the empty path for an empty
    /// text. Always a path: the optional is the canvas's.
    std::optional<zp::BezierPath> textPathAtPoint(zp::Point point) const;

public slots:
    void ok();
    void cancel();
    void reject() override { cancel(); }

private:
    ZPTextEditor();
    void fillFamilies();
    void putLastFamilyFirst();
    QString typedText() const;
    void takeSeveralLines(bool several);
    Qt::Alignment chosenAlignment() const;
    /// @param tag of the sender; 100 and 101 step the size
    void set(int tag = 0);
    QFont chosenFont() const;
    void stop(bool valid);

    std::unique_ptr<Ui::TextEditor> mUi;
    QEventLoop* mLoop = nullptr; ///< the run's own, while it lasts
    int mFontSize;
    bool mValid = false;
};
