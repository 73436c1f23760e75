// SPDX-License-Identifier: GPL-3.0-or-later
/// The line below the picture, in words for people: selection, hint or message, pointer, picture and zoom.
#pragma once
#include "base/Color.h"
#include "base/Geometry.h"
#include <QObject>
#include <functional>

class ElidedLabel;
class QLabel;
class QStatusBar;
namespace zp
{
class Document;
}

/// "10, 20 · 300 × 200 px" of a box of @p pixels in the unit that the preferences say, by a resolution.
QString sizeInWords(zp::Rect pixels, double xDpi, double yDpi);
/// "300 × 200 px", the same of a size alone.
QString extentInWords(zp::Size pixels, double xDpi, double yDpi);
/// A zoom factor: "17.6 %".
QString zoomInWords(float zoom);

/// All that it shows is computed from the document. Main thread.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    StatusLine(QStatusBar& bar, zp::Document& document);
    /// How the picture's colours look on the screen; as they are without it.
    void setLook(std::function<zp::Color(zp::Color)> look) { mLook = std::move(look); }
    void show();
    void showPointer();
    /// What the pointer rests on explains itself before all else, until it leaves or a command says what it did; empty:
    /// that again, or the tool's hint.
    void setPassingHint(const QString& text);
    /// Where the keys are known that a person gave to the menu commands: as text, empty for none.
    void setKeyNames(std::function<QString(const QString& action)> keyNameOfCommand);
    /// Empty without a selection.
    QString selectionInWords() const;
    /// What can be done now and with which keys.
    QString hint() const;

private:
    void addBusyIndicator(QStatusBar& bar);
    void showMiddle();
    QString withKeys(QString hint) const;

    zp::Document& mDocument;
    QLabel *mInfoField, *mSelectionField, *mSwatch, *mPointerField, *mImageField;
    ElidedLabel* mMiddle;
    QString mPassingHint, mSaid;
    std::function<zp::Color(zp::Color)> mLook = [](zp::Color color) { return color; };
    std::function<QString(const QString&)> mKeyNameOfCommand;
};
