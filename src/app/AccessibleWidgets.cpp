// SPDX-License-Identifier: GPL-3.0-or-later
/// Accessible interfaces of the canvas and of the tool bars.
#include "app/AccessibleWidgets.h"
#include "app/MainWindow.h"
#include "app/StatusLine.h"
#include "canvas/ToolTable.h"
#include "canvas/ZPCanvas.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Picture.h"
#include "document/View.h"
#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>

using namespace zp;

namespace
{

constexpr const char* kToolBar = "accessibleToolBar";
constexpr const char* kToldMessage = "accessibleToldMessage";
constexpr const char* kToldValue = "accessibleToldValue";

class AccessibleCanvas : public QAccessibleWidget
{
public:
    explicit AccessibleCanvas(ZPCanvas* canvas) : QAccessibleWidget(canvas, QAccessible::Graphic) {}

    QString text(QAccessible::Text kind) const override
    {
        const auto* canvas = static_cast<const ZPCanvas*>(widget());
        const auto* window = qobject_cast<const MainWindow*>(canvas->window());
        const Document& document = canvas->document();
        if (kind == QAccessible::Value) return value(document, window);
        if (kind != QAccessible::Description || !window) return QAccessibleWidget::text(kind);
        // A change of the description is what screen readers speak: what was just done stands alone. Readers have no
        // way to a value that is words, so that it stands here as well.
        if (!document.message().isEmpty()) return document.message();
        return value(document, window) + ". " + window->statusLine().hint();
    }

private:
    static QString value(const Document& document, const MainWindow* window)
    {
        if (!document.picture().isLoaded()) return QCoreApplication::translate("Accessible", "No image");
        QStringList parts{QCoreApplication::translate("Accessible", "%1 by %2 pixels")
                              .arg(document.picture().width())
                              .arg(document.picture().height()),
                          QCoreApplication::translate("Accessible", "zoom %1").arg(zoomInWords(document.view().zoom())),
                          QCoreApplication::translate("Tools", rowOf(document.gesture()).title)};
        const QString selection = window ? window->statusLine().selectionInWords() : QString();
        if (!selection.isEmpty()) parts << QCoreApplication::translate("Accessible", "selected: %1").arg(selection);
        return parts.join(", ");
    }
};

/// A tool of the strip: one of several.
class AccessibleTool : public QAccessibleWidget
{
public:
    explicit AccessibleTool(QAbstractButton* button) : QAccessibleWidget(button, QAccessible::RadioButton) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button()->isChecked();
        return state;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override
    {
        if (name == pressAction())
            button()->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QAbstractButton* button() const { return static_cast<QAbstractButton*>(widget()); }
};

QAccessibleInterface* make(const QString&, QObject* object)
{
    if (auto* canvas = qobject_cast<ZPCanvas*>(object)) return new AccessibleCanvas(canvas);
    auto* button = qobject_cast<QAbstractButton*>(object);
    if (button && button->autoExclusive() && button->parentWidget() &&
        button->parentWidget()->property(kToolBar).toBool())
        return new AccessibleTool(button);
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget && widget->property(kToolBar).toBool()) return new QAccessibleWidget(widget, QAccessible::ToolBar);
    return nullptr;
}

} // namespace

void installAccessibleWidgets()
{
    static const bool once = (QAccessible::installFactory(make), true);
    (void)once;
}

void makeAccessibleToolBar(QWidget& bar) { bar.setProperty(kToolBar, true); }

void announceMessage(QWidget& canvas)
{
    if (!QAccessible::isActive()) return;
    const QString message = static_cast<ZPCanvas&>(canvas).document().message();
    if (message == canvas.property(kToldMessage).toString()) return;
    canvas.setProperty(kToldMessage, message);
    if (message.isEmpty()) return; // its end is not worth a word
    QAccessibleEvent description(&canvas, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&description);
}

void announceValue(QWidget& canvas)
{
    if (!QAccessible::isActive()) return;
    QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(&canvas);
    const QString now = picture ? picture->text(QAccessible::Value) : QString();
    if (now == canvas.property(kToldValue).toString()) return;
    canvas.setProperty(kToldValue, now);
    QAccessibleValueChangeEvent value(&canvas, now);
    QAccessible::updateAccessibility(&value);
}
