#include "hosts/qt/QtCustomView.h"

#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtEvents.h"
#include "hosts/qt/QtVersions.h"
#include "hosts/qt/WheelSteps.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace vantorel {
namespace {

/// Strokes a path of the core so that it is seen on every colour.
void strokeOnAnyColor(QtCanvas& canvas, HostBezierPath path)
{
    path.setLineWidth(3.5);
    canvas.stroke(path, HostColor::blackColor());
    path.setLineWidth(1.5);
    canvas.stroke(path, HostColor::whiteColor());
}

}  // namespace

class QtCustomView::Widget final : public QWidget {
public:
    /// Set once the view is complete, before any event arrives.
    void setOwner(QtCustomView* owner) { _owner = owner; }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.setClipRegion(event->region());
        if (_owner == nullptr) return;
        const bool showsFocus = _showsFocus && hasFocus();
        _owner->paint(painter, showsFocus);
        if (!showsFocus) return;
        constexpr qreal ringWidth = 2;
        painter.setPen(QPen(palette().color(QPalette::Highlight), ringWidth));
        painter.drawRect(
            QRectF(rect()).adjusted(ringWidth / 2, ringWidth / 2, -ringWidth / 2, -ringWidth / 2));
    }

    void focusInEvent(QFocusEvent* event) override
    {
        const Qt::FocusReason reason = event->reason();
        // After a click the user knows where the focus is; the marks would only hide colours. When
        // the window or a menu gives the focus back, they are as before.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            _showsFocus = reason != Qt::MouseFocusReason;
        }
        _owner->_content.keyFocusDidChange(true);
        update();
    }

    void focusOutEvent(QFocusEvent*) override
    {
        if (_owner != nullptr) _owner->_content.keyFocusDidChange(false);
        update();
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const auto key = hostKeyEvent(*event);
        // After a click no cell is marked. Return then ends the dialogue that the page is in.
        const bool isTaken = key && (key->key != HostKey::pick || _showsFocus) &&
                             _owner->_content.takesKeys() && _owner->_content.keyDown(*key);
        if (!isTaken) {
            QWidget::keyPressEvent(event);
            return;
        }
        setShowsFocus(true);
    }

    void wheelEvent(QWheelEvent* event) override
    {
        const HostPoint at = viewPoint(event->position(), _owner->bounds());
        const int steps = _wheelSteps.stepsOf(*event);
        const HostScrollEvent scroll{at, steps, modifierFlags(event->modifiers())};
        if (steps == 0 || !_owner->_content.scrollWheel(scroll)) event->ignore();
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton) {
            setShowsFocus(false);
            _owner->press(hostEvent(HostEventType::leftMouseDown, *event));
        }
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if ((event->buttons() & Qt::LeftButton) != 0) {
            _owner->continuePress(hostEvent(HostEventType::leftMouseDragged, *event));
        } else {
            _owner->moveFreely(hostEvent(HostEventType::mouseMoved, *event));
        }
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton) {
            _owner->continuePress(hostEvent(HostEventType::leftMouseUp, *event));
        }
    }

    void enterEvent(QtEnterEvent* event) override
    {
        _owner->moveFreely({HostEventType::mouseMoved,
                            viewPoint(positionOf(*event), _owner->bounds()),
                            modifierFlags(modifiersOf(*event))});
    }

    bool event(QEvent* event) override
    {
        switch (event->type()) {
            case QEvent::ApplicationPaletteChange:
                setPalette(paletteOnLightGround());
                break;
            case QEvent::Leave:
                if (_owner != nullptr) _owner->leave({HostEventType::mouseExited, {}, 0});
                break;
            case QEvent::UngrabMouse:
            case QEvent::Hide:
                // The widget that grabbed the mouse gets the release.
                if (_owner != nullptr && _owner->_buttonIsDown) {
                    _owner->continuePress(_owner->releaseAtLastPoint());
                }
                break;
            default:
                break;
        }
        return QWidget::event(event);
    }

private:
    [[nodiscard]] HostEvent hostEvent(HostEventType type, const QMouseEvent& event) const
    {
        return {type, viewPoint(positionOf(event), _owner->bounds()),
                modifierFlags(event.modifiers())};
    }

    void setShowsFocus(bool flag)
    {
        if (flag == _showsFocus) return;
        _showsFocus = flag;
        update();
    }

    QtCustomView* _owner = nullptr;
    bool _showsFocus = false;
    WheelSteps _wheelSteps;
};

QtCustomView::QtCustomView(const HostControlDescription& description, HostViewContent& content)
    : QtMirrored(description.frame, new Widget), _content(content)
{
    static_cast<Widget*>(widget())->setOwner(this);
    widget()->setMouseTracking(true);
    if (content.takesKeys()) widget()->setFocusPolicy(Qt::StrongFocus);
    widget()->setPalette(paletteOnLightGround());
    widget()->setAccessibleName(qStringFrom(description.accessibleName));
}

void QtCustomView::paint(QPainter& painter, bool showsFocus)
{
    QtCanvas canvas(painter, bounds());
    _content.drawRect(canvas);
    if (showsFocus) strokeOnAnyColor(canvas, _content.keyOutline());
    setNeedsDisplay(false);
}

void QtCustomView::press(const HostEvent& event)
{
    if (_pressIsBeingHandled) return;
    const QPointer<QWidget> alive = widget();
    _buttonIsDown = true;
    _lastPoint = event.location;
    _waitingEvents.clear();
    _pressIsBeingHandled = true;
    _content.mouseDown(event);
    if (!alive) return;
    _pressIsBeingHandled = false;
}

void QtCustomView::continuePress(const HostEvent& event)
{
    _lastPoint = event.location;
    const bool released = event.type == HostEventType::leftMouseUp;
    if (released) _buttonIsDown = false;
    if (_pressIsBeingHandled) {
        // The current position of the pointer matters more than its path.
        if (!released && !_waitingEvents.empty() && _waitingEvents.back().type == event.type) {
            _waitingEvents.back() = event;
        } else {
            _waitingEvents.push_back(event);
        }
        if (_waitingLoop) _waitingLoop->quit();
    } else if (!released && _buttonIsDown) {
        _content.mouseDragged(event);
    }
}

void QtCustomView::moveFreely(const HostEvent& event)
{
    if (!_tracking) return;
    const bool wasInside = _tracking->inside;
    const bool inside = _tracking->rect.contains(event.location);
    _tracking->inside = inside;
    if (inside && !wasInside) _content.mouseEntered(event);
    if (!inside && wasInside) _content.mouseExited(event);
    if (inside && _acceptsMouseMoved) _content.mouseMoved(event);
}

void QtCustomView::leave(const HostEvent& event)
{
    if (!_tracking || !_tracking->inside) return;
    _tracking->inside = false;
    _content.mouseExited(event);
}

std::intptr_t QtCustomView::addTrackingRect(HostRect rect, bool assumeInside)
{
    _tracking = Tracking{++_lastTag, rect, assumeInside};
    return _lastTag;
}

void QtCustomView::removeTrackingRect(std::intptr_t tag)
{
    if (_tracking && _tracking->tag == tag) _tracking.reset();
}

HostEvent QtCustomView::releaseAtLastPoint() const
{
    return {HostEventType::leftMouseUp, _lastPoint, 0};
}

HostEvent QtCustomView::nextMouseEvent(std::uint32_t mask)
{
    const HostPoint lastPoint = _lastPoint;
    const QPointer<QWidget> alive = widget();
    while (true) {
        while (!_waitingEvents.empty()) {
            const HostEvent event = _waitingEvents.front();
            _waitingEvents.pop_front();
            if ((maskOfEventType(event.type) & mask) != 0) return event;
        }
        if (!_buttonIsDown) return releaseAtLastPoint();
        QEventLoop loop;
        _waitingLoop = &loop;
        QObject::connect(widget(), &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
        if (!alive) return {HostEventType::leftMouseUp, lastPoint, 0};
        // The loop was ended from elsewhere, because the program is about to exit.
        if (_waitingEvents.empty()) return releaseAtLastPoint();
    }
}

void QtCustomView::forgetButton()
{
    _buttonIsDown = false;
    _waitingEvents.clear();
}

}  // namespace vantorel
