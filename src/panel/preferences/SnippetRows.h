#pragma once

#include "settings/SnippetMerge.h"

#include <QListWidget>

namespace vantorel {

/// The list of snippets, each with its line for the panel's colour. Rows can be dragged.
class SnippetRows final : public QListWidget {
    Q_OBJECT

public:
    explicit SnippetRows(QWidget* parent);

    /// Shows a list with its lines. The current row stays that of the same name, if there is one.
    void setSnippets(const SnippetList& snippets, const QStringList& lines);

signals:
    /// The user has dragged a row from one place to another one, both places in the list as it was.
    /// The row is to be put before the one at `before`; that is the number of rows at the end.
    void moveRequested(int row, int before);

protected:
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int gapAt(QPoint place) const;
    void setGap(int gap);

    /// The row that is dragged, and the row before which it would be dropped; -1 if there is none.
    int _dragged = -1;
    int _gap = -1;
};

}  // namespace vantorel
