#include "hosts/qt/QtEvents.h"

namespace vantorel {
namespace {

std::optional<HostKey> hostKey(int key)
{
    switch (key) {
        case Qt::Key_Left:
            return HostKey::left;
        case Qt::Key_Right:
            return HostKey::right;
        case Qt::Key_Up:
            return HostKey::up;
        case Qt::Key_Down:
            return HostKey::down;
        case Qt::Key_Home:
            return HostKey::home;
        case Qt::Key_End:
            return HostKey::end;
        case Qt::Key_PageUp:
            return HostKey::pageUp;
        case Qt::Key_PageDown:
            return HostKey::pageDown;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return HostKey::pick;
        default:
            return std::nullopt;
    }
}

}  // namespace

std::uint64_t modifierFlags(Qt::KeyboardModifiers modifiers)
{
    std::uint64_t flags = 0;
    if ((modifiers & Qt::ShiftModifier) != 0) flags |= shiftModifierFlag;
    if ((modifiers & Qt::ControlModifier) != 0) flags |= controlModifierFlag;
    if ((modifiers & Qt::AltModifier) != 0) flags |= alternateModifierFlag;
    if ((modifiers & Qt::MetaModifier) != 0) flags |= commandModifierFlag;
    return flags;
}

int wheelSteps(WheelSteps& wheel, const QWheelEvent& event)
{
    constexpr double eighthsOfADegree = QWheelEvent::DefaultDeltasPerStep;
    return wheel.stepsOf(event.angleDelta().y() / eighthsOfADegree);
}

std::optional<HostKeyEvent> hostKeyEvent(const QKeyEvent& event, bool withControl)
{
    const auto key = hostKey(event.key());
    Qt::KeyboardModifiers ofShortcuts = Qt::AltModifier | Qt::MetaModifier;
    ofShortcuts.setFlag(Qt::ControlModifier, !withControl);
    if (!key || (event.modifiers() & ofShortcuts) != 0) return std::nullopt;
    return HostKeyEvent{*key, modifierFlags(event.modifiers())};
}

}  // namespace vantorel
