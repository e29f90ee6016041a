#include "panel/widgets/ColorBandHalf.h"

#include "hosts/qt/PlainText.h"
#include "panel/widgets/CodeWithOpacity.h"
#include "panel/widgets/Swatch.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace vantorel {
namespace {

/// A picture that can be pressed like a button.
class AccessibleHalf final : public QAccessibleWidget {
public:
    explicit AccessibleHalf(ColorBandHalf& half)
        : QAccessibleWidget(&half, QAccessible::Graphic), _half(half)
    {
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override
    {
        if (action == pressAction()) {
            _half.choose();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& action) const override
    {
        if (action == pressAction()) return {QStringLiteral("Return")};
        return QAccessibleWidget::keyBindingsForAction(action);
    }

private:
    ColorBandHalf& _half;
};

QAccessibleInterface* halfInterface(const QString&, QObject* object)
{
    auto* half = qobject_cast<ColorBandHalf*>(object);
    return half != nullptr ? new AccessibleHalf(*half) : nullptr;
}

}  // namespace

ColorBandHalf::ColorBandHalf(const QString& name, QWidget* parent) : QWidget(parent)
{
    // Before the name: Qt keeps the interface that it gives to a widget with one.
    static const bool installed = (QAccessible::installFactory(halfInterface), true);
    static_cast<void>(installed);
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setAcceptDrops(true);
    setColor(_color);
}

void ColorBandHalf::setColor(const HostColor& color, const QString& details)
{
    _color = color;
    QString text = codeWithOpacity(color);
    if (!details.isEmpty()) text += u'\n' + details;
    setToolTip(plainToolTip(accessibleName() + QStringLiteral(": ") + text));
    setAccessibleDescription(text);
    update();
}

bool ColorBandHalf::event(QEvent* event)
{
    // Claims the key ahead of the panel's command, which copies the edited colour.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void ColorBandHalf::keyPressEvent(QKeyEvent* event)
{
    _focus.keyPressed();
    update();
    if (event->matches(QKeySequence::Copy)) {
        emit copyRequested();
        return;
    }
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            emit chosen();
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

void ColorBandHalf::focusInEvent(QFocusEvent* event)
{
    _focus.focusIn(event->reason());
    QWidget::focusInEvent(event);
}

void ColorBandHalf::focusOutEvent(QFocusEvent* event)
{
    _focus.focusOut();
    QWidget::focusOutEvent(event);
}

void ColorBandHalf::mousePressEvent(QMouseEvent* event)
{
    _isPressed = event->button() == Qt::LeftButton;
    _pressedAt = event->position().toPoint();
}

void ColorBandHalf::mouseMoveEvent(QMouseEvent* event)
{
    const int distance = (event->position().toPoint() - _pressedAt).manhattanLength();
    if (!_isPressed || distance < QApplication::startDragDistance()) return;
    _isPressed = false;
    dragColor(*this, _color);
}

void ColorBandHalf::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !_isPressed) return;
    _isPressed = false;
    if (rect().contains(event->position().toPoint())) emit chosen();
}

void ColorBandHalf::setDropIsNear(bool flag)
{
    _dropIsNear = flag;
    update();
}

void ColorBandHalf::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->source() == this || !mayHoldColor(*event->mimeData())) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setDropIsNear(true);
}

void ColorBandHalf::dragLeaveEvent(QDragLeaveEvent*)
{
    setDropIsNear(false);
}

void ColorBandHalf::dropEvent(QDropEvent* event)
{
    setDropIsNear(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit dropped(colorFromMimeData(*event->mimeData()));
}

}  // namespace vantorel
