#include "hosts/qt/QtCustomView.h"

#include "hosts/common/FocusMarks.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtEvents.h"
#include "hosts/qt/QtVersions.h"

#include <QApplication>
#include <QDropEvent>
#include <QEventLoop>
#include <QMimeData>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <optional>

namespace vantorel {
namespace {

/// An event loop of Qt.
class QtMouseWait final : public MouseWait {
public:
    /// The widget can be destroyed before its view, with its window.
    explicit QtMouseWait(const QWidget& widget)
    {
        QObject::connect(&widget, &QObject::destroyed, &_loop, &QEventLoop::quit);
    }
    void run() override { _loop.exec(); }
    void end() override { _loop.quit(); }

private:
    QEventLoop _loop;
};

/// What can be dropped on a view, or `std::nullopt`. Files are not texts.
std::optional<HostPasteboardItem> droppedItem(const QMimeData& data)
{
    constexpr qsizetype longestText = 4096;
    const auto color = qvariant_cast<QColor>(data.colorData());
    if (color.isValid()) return hostColorFrom(color);
    if (data.hasUrls() || !data.hasText()) return std::nullopt;
    return data.text().left(longestText).toStdString();
}

FocusOrigin originOf(Qt::FocusReason reason)
{
    switch (reason) {
        case Qt::MouseFocusReason:
            return FocusOrigin::mouse;
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
            return FocusOrigin::returned;
        default:
            return FocusOrigin::keys;
    }
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
        const bool showsFocus = _marks.areShown() && hasFocus();
        _owner->paint(painter, showsFocus);
        if (!showsFocus) return;
        constexpr qreal ringWidth = 2;
        painter.setPen(QPen(palette().color(QPalette::Highlight), ringWidth));
        painter.drawRect(
            QRectF(rect()).adjusted(ringWidth / 2, ringWidth / 2, -ringWidth / 2, -ringWidth / 2));
    }

    void focusInEvent(QFocusEvent* event) override
    {
        _marks.focusCame(originOf(event->reason()));
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
        const auto key = hostKeyEvent(*event, _owner->_content.takesControlKeys());
        const bool isTaken = key && _marks.offers(*key) && _owner->_content.takesKeys() &&
                             _owner->_content.keyDown(*key);
        if (!isTaken) {
            QWidget::keyPressEvent(event);
            return;
        }
        _marks.keyWasUsed();
        update();
    }

    void wheelEvent(QWheelEvent* event) override
    {
        const HostPoint at = viewPoint(event->position(), _owner->bounds());
        const int steps = wheelSteps(_wheelSteps, *event);
        const HostScrollEvent scroll{at, steps, modifierFlags(event->modifiers())};
        if (steps == 0 || !_owner->_content.scrollWheel(scroll)) event->ignore();
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton) {
            if (_marks.areShown()) update();
            _marks.buttonWasPressed();
            _owner->_turn.press(hostEvent(HostEventType::leftMouseDown, *event));
        }
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if ((event->buttons() & Qt::LeftButton) != 0) {
            _owner->_turn.proceed(hostEvent(HostEventType::leftMouseDragged, *event));
        } else {
            _owner->_tracking.move(hostEvent(HostEventType::mouseMoved, *event));
        }
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton) {
            _owner->_turn.proceed(hostEvent(HostEventType::leftMouseUp, *event));
        }
    }

    void dragEnterEvent(QDragEnterEvent* event) override
    {
        if (!droppedItem(*event->mimeData())) return;
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }

    void dragMoveEvent(QDragMoveEvent* event) override
    {
        event->setDropAction(Qt::CopyAction);
        event->setAccepted(takesDrop(*event));
    }

    void dropEvent(QDropEvent* event) override
    {
        const auto item = droppedItem(*event->mimeData());
        if (!item || !takesDrop(*event)) {
            event->ignore();
            return;
        }
        event->setDropAction(Qt::CopyAction);
        event->accept();
        _owner->_drops->takeDrop(*item, viewPoint(positionOf(*event), _owner->bounds()));
    }

    void enterEvent(QtEnterEvent* event) override
    {
        _owner->_tracking.move({HostEventType::mouseMoved,
                                viewPoint(positionOf(*event), _owner->bounds()),
                                modifierFlags(modifiersOf(*event))});
    }

    bool event(QEvent* event) override
    {
        switch (event->type()) {
            case QEvent::ApplicationPaletteChange:
                if (_owner != nullptr) setPalette(paletteOnGround(_owner->groundColor()));
                break;
            case QEvent::Leave:
                if (_owner != nullptr) _owner->_tracking.leave({HostEventType::mouseExited, {}, 0});
                break;
            case QEvent::UngrabMouse:
            case QEvent::Hide:
                // The widget that grabbed the mouse gets the release.
                if (_owner != nullptr) _owner->_turn.breakOff();
                break;
            default:
                break;
        }
        return QWidget::event(event);
    }

private:
    [[nodiscard]] bool takesDrop(const QDropEvent& event) const
    {
        return _owner->_drops != nullptr &&
               _owner->_drops->takesDropAt(viewPoint(positionOf(event), _owner->bounds()));
    }

    [[nodiscard]] HostEvent hostEvent(HostEventType type, const QMouseEvent& event) const
    {
        return {type, viewPoint(positionOf(event), _owner->bounds()),
                modifierFlags(event.modifiers())};
    }

    QtCustomView* _owner = nullptr;
    FocusMarks _marks;
    WheelSteps _wheelSteps;
};

QtCustomView::QtCustomView(const HostControlDescription& description, HostViewContent& content)
    : QtMirrored(description.frame, new Widget),
      _content(content),
      _drops(dynamic_cast<HostDropTarget*>(&content)),
      _tracking(content),
      _turn(content)
{
    static_cast<Widget*>(widget())->setOwner(this);
    widget()->setMouseTracking(true);
    widget()->setAcceptDrops(_drops != nullptr);
    if (content.takesKeys()) widget()->setFocusPolicy(Qt::StrongFocus);
    widget()->setAccessibleName(qStringFrom(description.accessibleName));
}

void QtCustomView::paint(QPainter& painter, bool showsFocus)
{
    QtCanvas canvas(painter, bounds(), widget()->palette());
    _content.drawRect(canvas);
    if (showsFocus) strokeOnAnyColor(canvas, _content.keyOutline());
    setNeedsDisplay(false);
}

void QtCustomView::groundColorDidChange()
{
    if (QWidget* painted = widget()) painted->setPalette(paletteOnGround(groundColor()));
}

HostEvent QtCustomView::nextMouseEvent(std::uint32_t mask)
{
    if (widget() == nullptr) return {HostEventType::leftMouseUp, {}, 0};
    QtMouseWait wait(*widget());
    return _turn.nextEvent(mask, wait);
}

}  // namespace vantorel
