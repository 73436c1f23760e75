// SPDX-License-Identifier: GPL-3.0-or-later
/// The list of steps beside the picture.
#pragma once
#include <QDockWidget>
#include <QImage>
#include <functional>
#include <memory>

class QListView;

namespace zp
{
class Document;
}

/// A dock that shows the picture's steps with name, time and a small picture; a click goes to a step. Steps that were
/// undone are pale, the one on screen is marked; a sign says when a step can be brought back only as its files hold it.
/// While it is hidden nothing is read or drawn for it. Main thread; the small pictures are made on a thread of its own.
class HistoryPanel : public QDockWidget
{
    Q_OBJECT

public:
    /// @param document  must outlive the panel
    explicit HistoryPanel(zp::Document& document, QWidget* parent = nullptr);
    ~HistoryPanel() override;
    /// How small pictures look on the screen; as they are without it.
    void setLook(std::function<QImage(QImage)> look);
    /// Whether no small picture is still to be made.
    bool isComplete() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    class Model;
    class Delegate;
    void refresh();

    zp::Document& mDocument;
    std::unique_ptr<Model> mModel;
    std::unique_ptr<Delegate> mDelegate;
    QListView* mList;
};
