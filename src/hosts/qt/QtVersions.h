#pragma once

#include <QDropEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPixmap>
#include <QWidget>

/// Where Qt 5 and Qt 6 differ. The folder is compiled for both: programs made with Qt 5 can show
/// the page in their colour dialogs.
namespace vantorel {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

/// The parameter of `QWidget::enterEvent`.
using QtEnterEvent = QEnterEvent;
/// The number of characters of a string.
using QtLength = qsizetype;
/// A channel of a colour.
using QtFraction = float;

/// In device-independent pixels of the widget that gets the event.
template <class Event>
[[nodiscard]] QPointF positionOf(const Event& event)
{
    return event.position();
}

[[nodiscard]] inline Qt::KeyboardModifiers modifiersOf(const QEnterEvent& event)
{
    return event.modifiers();
}

[[nodiscard]] inline QPointF mapFromScreen(const QWidget& widget, QPoint point)
{
    return widget.mapFromGlobal(QPointF(point));
}

[[nodiscard]] inline QSizeF sizeInPixels(const QPixmap& pixmap)
{
    return pixmap.deviceIndependentSize();
}

#else

using QtEnterEvent = QEvent;
using QtLength = int;
using QtFraction = qreal;

[[nodiscard]] inline QPointF positionOf(const QMouseEvent& event)
{
    return event.localPos();
}

[[nodiscard]] inline QPointF positionOf(const QDropEvent& event)
{
    return event.posF();
}

[[nodiscard]] inline QPointF positionOf(const QEvent& enterEvent)
{
    return static_cast<const QEnterEvent&>(enterEvent).localPos();
}

[[nodiscard]] inline Qt::KeyboardModifiers modifiersOf(const QEvent&)
{
    return QGuiApplication::keyboardModifiers();
}

[[nodiscard]] inline QPointF mapFromScreen(const QWidget& widget, QPoint point)
{
    return widget.mapFromGlobal(point);
}

[[nodiscard]] inline QSizeF sizeInPixels(const QPixmap& pixmap)
{
    return QSizeF(pixmap.size()) / pixmap.devicePixelRatioF();
}

#endif

}  // namespace vantorel
