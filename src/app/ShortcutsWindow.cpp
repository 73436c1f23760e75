// SPDX-License-Identifier: GPL-3.0-or-later
/// Lists the keys and changes them.
#include "app/ShortcutsWindow.h"
#include "app/MainMenu.h"
#include "canvas/ToolTable.h"
#include <QAction>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace zp;

namespace
{

constexpr int kActionRole = Qt::UserRole;
constexpr QSize kWindowSize{560, 640};
constexpr int kFieldFrame = 24; ///< around the words in a field

/// One chord: a second one would never be waited for.
QKeySequence firstChord(const QKeySequence& keys) { return keys.isEmpty() ? QKeySequence() : QKeySequence(keys[0]); }

QString toolWithKey(const QKeySequence& keys)
{
    for (const ToolRow& row : toolTable())
        if (keys == QKeySequence(QString(QChar(row.key)))) return QCoreApplication::translate("Tools", row.title);
    return {};
}

} // namespace

ShortcutsWindow::ShortcutsWindow(MainMenu& menu, QWidget* parent) : SideWindow(parent), mMenu(menu)
{
    setObjectName("Shortcuts");
    setWindowTitle(tr("Keyboard Shortcuts"));
    resize(kWindowSize);
    auto* column = new QVBoxLayout(this);
    mFilter = new QLineEdit(this);
    mFilter->setObjectName("mShortcutFilter");
    mFilter->setPlaceholderText(tr("Find a command or a key"));
    mFilter->setAccessibleName(mFilter->placeholderText());
    mFilter->setClearButtonEnabled(true);
    mTree = new QTreeWidget(this);
    mTree->setObjectName("mShortcutTable");
    mTree->setAccessibleName(tr("Commands and their keys"));
    mTree->setColumnCount(2);
    mTree->setHeaderLabels({tr("Command"), tr("Keys")});
    mTree->setAlternatingRowColors(true);
    mTree->setUniformRowHeights(true);
    mTree->header()->setStretchLastSection(true);
    mConflict = new QLabel(this);
    mConflict->setObjectName("mShortcutConflict");
    mConflict->setTextFormat(Qt::PlainText);
    mConflict->setWordWrap(true);
    mConflict->setMinimumHeight(2 * mConflict->fontMetrics().height());
    mConflict->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* row = new QHBoxLayout;
    auto* label = new QLabel(tr("New &keys:"), this);
    mKeys = new QKeySequenceEdit(this);
    mKeys->setObjectName("mShortcutKeys");
    mKeys->setAccessibleName(tr("New keys"));
    label->setBuddy(mKeys);
    if (const auto* field = mKeys->findChild<QLineEdit*>()) // as wide as what the toolkit says in it
        mKeys->setMinimumWidth(field->fontMetrics().horizontalAdvance(field->placeholderText()) + kFieldFrame);
    const auto button = [this, row](const QString& title, const char* name, const QString& tip) {
        auto* b = new QPushButton(title, this);
        b->setObjectName(name);
        b->setToolTip(tip);
        b->setAutoDefault(false);
        row->addWidget(b);
        return b;
    };
    row->addWidget(label);
    row->addWidget(mKeys, 1);
    mSetButton = button(tr("&Set"), "mShortcutSet", tr("The chosen command gets these keys; without keys it has none"));
    mGivenButton = button(tr("As &Given"), "mShortcutGiven", tr("The chosen command gets its own keys back"));
    mAllGivenButton = button(tr("&All as Given"), "mShortcutAllGiven", tr("Every command gets its own keys back"));
    column->addWidget(mFilter);
    column->addWidget(mTree, 1);
    column->addLayout(row);
    column->addWidget(mConflict);
    connect(mFilter, &QLineEdit::textChanged, this, &ShortcutsWindow::filter);
    connect(mTree, &QTreeWidget::currentItemChanged, this, &ShortcutsWindow::showChosen);
    connect(mKeys, &QKeySequenceEdit::keySequenceChanged, this, &ShortcutsWindow::showConflict);
    connect(mSetButton, &QPushButton::clicked, this, [this] { change(firstChord(mKeys->keySequence())); });
    connect(mGivenButton, &QPushButton::clicked, this, [this] {
        mMenu.giveKeysBack(chosenAction());
        fill();
    });
    connect(mAllGivenButton, &QPushButton::clicked, this, [this] {
        mMenu.giveAllKeysBack();
        fill();
    });
}

void ShortcutsWindow::showWindow()
{
    fill();
    bringToFront(this, true);
    mFilter->setFocus();
}

void ShortcutsWindow::fill()
{
    const QString chosen = chosenAction();
    mTree->clear();
    QTreeWidgetItem* group = nullptr;
    QTreeWidgetItem* again = nullptr;
    const auto begin = [&](const QString& title) {
        group = new QTreeWidgetItem(mTree, {title});
        QFont bold = group->font(0);
        bold.setBold(true);
        group->setFont(0, bold);
        group->setFlags(Qt::ItemIsEnabled);
        group->setExpanded(true);
    };
    for (const QAction* item : mMenu.items()) {
        if (!group || group->text(0) != mMenu.menuTitleOf(item)) begin(mMenu.menuTitleOf(item));
        QStringList keys;
        for (const QKeySequence& k : item->shortcuts()) keys << k.toString(QKeySequence::NativeText);
        auto* line = new QTreeWidgetItem(group, {MainMenu::givenTitleOf(item), keys.join(", ")});
        line->setData(0, kActionRole, item->property("action"));
        line->setToolTip(0, item->property("tip").toString());
        if (item->property("action").toString() == chosen) again = line;
    }
    begin(tr("Tools, over the image"));
    for (const ToolRow& row : toolTable())
        new QTreeWidgetItem(group, {QCoreApplication::translate("Tools", row.title), QString(QChar(row.key))});
    mTree->resizeColumnToContents(0);
    filter(mFilter->text());
    if (again) mTree->setCurrentItem(again);
    showChosen();
}

void ShortcutsWindow::filter(const QString& text)
{
    for (int g = 0; g < mTree->topLevelItemCount(); ++g) {
        QTreeWidgetItem* group = mTree->topLevelItem(g);
        bool any = false;
        for (int i = 0; i < group->childCount(); ++i) {
            QTreeWidgetItem* line = group->child(i);
            const bool fits =
                line->text(0).contains(text, Qt::CaseInsensitive) || line->text(1).contains(text, Qt::CaseInsensitive);
            line->setHidden(!fits);
            any |= fits;
        }
        group->setHidden(!any);
    }
}

QString ShortcutsWindow::chosenAction() const
{
    const QTreeWidgetItem* line = mTree->currentItem();
    return line ? line->data(0, kActionRole).toString() : QString();
}

void ShortcutsWindow::showChosen()
{
    const QAction* item = mMenu.item(chosenAction());
    for (QWidget* w : std::initializer_list<QWidget*>{mKeys, mSetButton, mGivenButton}) w->setEnabled(item);
    mKeys->setKeySequence(item ? item->shortcut() : QKeySequence());
    showConflict();
}

void ShortcutsWindow::showConflict()
{
    const QKeySequence keys = firstChord(mKeys->keySequence());
    const QAction* other = keys.isEmpty() ? nullptr : mMenu.itemOfKeys(keys);
    const QString tool = toolWithKey(keys), written = keys.toString(QKeySequence::NativeText);
    QString text;
    if (other && other->property("action").toString() != chosenAction())
        text = tr("%1 belongs to %2 now, which would lose it.").arg(written, MainMenu::givenTitleOf(other));
    else if (!tool.isEmpty())
        text = tr("%1 chooses the tool %2, which would not hear it any more.").arg(written, tool);
    mConflict->setText(text);
}

void ShortcutsWindow::change(const QKeySequence& keys)
{
    const QString action = chosenAction();
    QAction* other = keys.isEmpty() ? nullptr : mMenu.itemOfKeys(keys);
    if (other && other->property("action").toString() != action) {
        QList<QKeySequence> left = other->shortcuts();
        left.removeAll(keys);
        mMenu.setKeys(other->property("action").toString(), left);
    }
    mMenu.setKeys(action, keys.isEmpty() ? QList<QKeySequence>() : QList<QKeySequence>{keys});
    fill();
}
