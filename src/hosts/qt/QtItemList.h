#pragma once

#include "host/HostMenu.h"
#include "hosts/common/PopUpList.h"

#include <QFrame>
#include <QListView>

namespace vantorel {

/// The items of a pop-up as a scrolling list that opens next to it. Tens of thousands of items open
/// as fast as ten, because only the visible rows are laid out and painted.
///
/// Keyboard: arrows, page keys, Home and End move; letters go to the next item with this prefix;
/// Return, Enter or Space select; Escape closes. Mouse: a click selects, as does a release after
/// the press that opened the list. The list deletes itself when it closes.
class QtItemList final : public QFrame {
    Q_OBJECT

public:
    /// The pixmap of an item that has an image.
    static constexpr int pictureRole = Qt::UserRole;

    /// No item may have a submenu. `selected` is marked; -1 for none.
    QtItemList(const HostMenu& items, int selected, QWidget& parent);

    /// Opens below a rectangle of the screen, or above it if there is more room.
    void openBeside(const QRect& button);

signals:
    /// The user has chosen the item at `index`; the list has closed.
    void chosen(const vantorel::HostMenuItem& item, int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Model;
    class RowPainter;

    [[nodiscard]] int wantedWidth() const;
    void choose(const QModelIndex& row);
    bool handleKey(int key);
    bool handleMouse(QEvent* event);

    Model* _model;
    QListView* _view;
    ReleaseRule _release;
};

}  // namespace vantorel
