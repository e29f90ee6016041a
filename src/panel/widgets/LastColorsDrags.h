#pragma once

#include "host/HostColor.h"

#include <QDragEnterEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPoint>
#include <QPointF>

#include <cstddef>
#include <optional>

namespace vantorel {

class LastColors;

/// The presses, clicks and drags of a row of last colours: a click chooses a colour, a drag takes
/// it to another program or moves it among the pinned ones. Owned by the row.
class LastColorsDrags final : public QObject {
    Q_OBJECT

public:
    explicit LastColorsDrags(LastColors& row);

    /// The index that the dragged colour gets among the pinned ones when it is dropped now.
    [[nodiscard]] std::optional<std::size_t> dropPlace() const { return _dropPlace; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void drop(QDropEvent& event);
    [[nodiscard]] std::optional<std::size_t> placeAt(QPointF point) const;
    void setDropPlace(std::optional<std::size_t> place);

    LastColors& _row;
    int _pressed = -1;
    QPoint _pressedAt;
    /// The colour of the drag that began here.
    std::optional<HostColor> _dragged;
    std::optional<std::size_t> _dropPlace;
};

}  // namespace vantorel
