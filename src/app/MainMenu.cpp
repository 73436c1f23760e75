// SPDX-License-Identifier: GPL-3.0-or-later
/// One row a command; no other list of commands exists.
#include "app/MainMenu.h"
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace
{

/// An action without a name is a separator; one that ends in a bar opens the menu of recent files.
struct Row {
    const char *menu, *title, *action, *shortcut, *tip;
};

const Row kRows[] = {
    {"Zelpane", "About Zelpane", "about:", "", "Version and licence"},
    {"Zelpane", "", "", "", ""},
    {"Zelpane", "Preferences…", "prefs:", "Ctrl+,", "Units, keys and other settings"},
    {"Zelpane", "", "", "", ""},
    {"Zelpane", "Quit Zelpane", "terminate:", "Ctrl+Q", "Ends the program"},

    {"File", "New…", "newDocument:", "Ctrl+N", "Makes a blank image"},
    {"File", "Open…", "openDocument:", "Ctrl+O", "Opens an image file"},
    {"File", "Open Recent", "|", "", ""},
    {"File", "", "", "", ""},
    {"File", "Save", "save:", "Ctrl+S", "Writes the image into its file"},
    {"File", "Save as TIFF…", "saveAsTIFF:", "Ctrl+Shift+S", "Writes a TIFF file; transparency is kept"},
    {"File", "Save as JPEG…", "saveAsJPEG:", "Ctrl+Alt+S", "Writes a JPEG file; transparent areas become white"},
    {"File", "Save as PNG…", "saveAsPNG:", "Ctrl+Alt+Shift+S", "Writes a PNG file; transparency is kept"},
    {"File", "Quick Save…", "quickSave:", "Ctrl+Shift+D", "Saves into the image library"},
    {"File", "", "", "", ""},
    {"File", "Open with Preview", "openWithPreview:", "", "Shows the file in the desktop's image viewer"},
    {"File", "Page Setup…", "runPageLayout:", "Ctrl+Shift+P", "Paper size and orientation"},

    {"Edit", "Undo", "undo:", "Ctrl+Z", "Takes the last change back"},
    {"Edit", "Redo", "redo:", "Ctrl+Shift+Z", "Brings the change back that was undone"},
    {"Edit", "", "", "", ""},
    {"Edit", "Cut", "cut:", "Ctrl+X", "Moves the selected pixels to the clipboard"},
    {"Edit", "Copy", "copy:", "Ctrl+C", "Copies the selected pixels to the clipboard"},
    {"Edit", "Paste", "paste:", "Ctrl+V", "Places the clipboard's image as a floating selection"},
    {"Edit", "Paste Into", "pasteInto:", "Ctrl+Shift+V", "Places the clipboard's image inside the selection"},
    {"Edit", "Delete", "delete:", "Del", "Makes the selected pixels transparent"},
    {"Edit", "", "", "", ""},
    {"Edit", "Fill", "fill:", "Ctrl+F", "Fills the selection with the paint colour"},
    {"Edit", "Stroke", "stroke:", "Ctrl+Shift+F", "Draws the selection's outline in the paint colour"},
    {"Edit", "Smart Fill…", "smartFill:", "Ctrl+Alt+F", "Fills the selection from its surroundings"},
    {"Edit", "", "", "", ""},
    {"Edit", "Transform…", "transform:", "Ctrl+T", "Scales and rotates the selected pixels"},
    {"Edit", "Adjust…", "adjust:", "Ctrl+U", "Hue, saturation, brightness, contrast and sharpness of the selection"},

    {"Image", "Resize…", "resize:", "Ctrl+Alt+I", "Changes the size of the image"},
    {"Image", "Crop to Selection", "cropToSelection:", "Ctrl+Shift+X", "Cuts the image to the selection's box"},
    {"Image", "", "", "", ""},
    {"Image", "Rotate Clockwise", "rotateCW:", "Ctrl+]", "Turns the image by 90° to the right"},
    {"Image", "Rotate Counter-Clockwise", "rotateCCW:", "Ctrl+[", "Turns the image by 90° to the left"},
    {"Image", "Flip Horizontally", "flipH:", "Ctrl+Shift+H", "Exchanges left and right"},
    {"Image", "Flip Vertically", "flipV:", "Ctrl+Alt+H", "Exchanges top and bottom"},
    {"Image", "", "", "", ""},
    {"Image", "2x Retina Display Mode", "retina:", "", "One image pixel on one pixel of a double-density screen"},

    {"Selection", "Select All", "selectAll:", "Ctrl+A", "Selects the whole image"},
    {"Selection", "Select None", "selectNone:", "Ctrl+D", "Drops the selection"},
    {"Selection", "Select Inverse", "selectInverse:", "Ctrl+Shift+I", "Selects what is not selected"},
    {"Selection", "", "", "", ""},
    {"Selection", "Float Selection", "anchorSelection:", "Ctrl+L",
     "Lifts the selected pixels, or puts them back (Return)"},
    {"Selection", "", "", "", ""},
    {"Selection", "Save Selection…", "saveSelection:", "", "Keeps the outline under a name (key s: the default name)"},
    {"Selection", "Load Selection…", "loadSelection:", "", "Brings a kept outline back"},

    {"View", "Zoom In", "zoomIn:", "Ctrl++", "One zoom level in (+)"},
    {"View", "Zoom Out", "zoomOut:", "Ctrl+-", "One zoom level out (−)"},
    {"View", "Actual Size", "actualSize:", "Ctrl+1", "One image pixel on one pixel of the screen"},
    {"View", "Fit to Window", "fitToWindow:", "Ctrl+0", "The whole image in the window"},

    {"Window", "Image Editor", "imageEditor:", "Ctrl+E", "Brings the main window to the front"},
    {"Window", "Image Library", "fileManager:", "Ctrl+Shift+L", "Your favourite images"},
    {"Window", "Show Windows", "showWindows:", "", "Main window and image library"},
    {"Window", "", "", "", ""},
    {"Window", "Image Processor…", "imageProcessor:", "Ctrl+Shift+B", "Resizes and watermarks a folder of images"},

    {"Help", "Zelpane Help", "help:", "F1", "Where to find the User's Guide"},
};

} // namespace

MainMenu::MainMenu(QMenuBar* bar, Validator validate, Performer perform)
    : QObject(bar), mValidate(std::move(validate)), mPerform(std::move(perform))
{
    for (const Row& row : kRows) {
        const QString name = row.menu;
        QMenu*& menu = mMenus[name];
        if (!menu) {
            menu = bar->addMenu(tr(row.menu));
            menu->setToolTipsVisible(true);
            connect(menu, &QMenu::aboutToShow, this, &MainMenu::validate);
            // Shortcuts of a closed menu must not depend on how things were when it was last open.
            connect(menu, &QMenu::aboutToHide, this, [this] {
                QTimer::singleShot(0, this, [this] {
                    for (QAction* item : mOrder) item->setEnabled(true);
                });
            });
        }
        if (!*row.action) {
            menu->addSeparator();
            continue;
        }
        if (*row.action == '|') {
            mRecent = menu->addMenu(tr(row.title));
            continue;
        }
        QAction* item = menu->addAction(tr(row.title));
        item->setProperty("action", row.action);
        item->setProperty("menu", row.menu);
        item->setToolTip(tr(row.tip));
        if (*row.shortcut) item->setShortcut(QKeySequence(row.shortcut));
        if (qstrcmp(row.action, "redo:") == 0)
            item->setShortcuts({QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")});
        if (qstrcmp(row.action, "zoomIn:") == 0) item->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
        if (qstrcmp(row.action, "terminate:") == 0) item->setMenuRole(QAction::QuitRole);
        mItems.insert(row.action, item);
        mOrder.append(item);
        connect(item, &QAction::triggered, this, [this, item] { choose(item); });
    }
}

QString MainMenu::menuTitleOf(QAction* item) const { return item->property("menu").toString(); }

void MainMenu::validate()
{
    for (QAction* item : mOrder) {
        QString title;
        item->setEnabled(mValidate(item->property("action").toString(), &title));
        if (!title.isEmpty()) item->setText(title);
    }
}

void MainMenu::choose(QAction* item)
{
    // The command itself decides a check mark; Qt has already turned it over.
    if (item->isCheckable()) item->setChecked(!item->isChecked());
    if (mValidate(item->property("action").toString(), nullptr)) mPerform(item);
}

QString MainMenu::choose(const QString& action)
{
    QAction* item = mItems.value(action);
    if (!item) return "no such item";
    if (!mValidate(action, nullptr)) return "disabled";
    mPerform(item);
    return {};
}

void cleanUpEditMenu(QMenu* menu)
{
    for (int look = 0; look < 2; ++look) {
        const QList<QAction*> actions = menu->actions();
        if (!actions.isEmpty() && actions.last()->text() != QString("Adjust…")) menu->removeAction(actions.last());
    }
}
