#include "hosts/qt/QtAccessiblePopUpButton.h"

#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/QtColors.h"

#include <algorithm>

namespace vantorel {

QtAccessiblePopUpButton::QtAccessiblePopUpButton(QWidget* widget, QtPopUpButton& popUp)
    : QAccessibleWidget(widget, QAccessible::ComboBox), _popUp(popUp)
{
}

QString QtAccessiblePopUpButton::shownText(const QtPopUpButton& popUp)
{
    return shownTitleOfSelectedItem(popUp);
}

void* QtAccessiblePopUpButton::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State QtAccessiblePopUpButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    return state;
}

QString QtAccessiblePopUpButton::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? shownText(_popUp) : QAccessibleWidget::text(kind);
}

QStringList QtAccessiblePopUpButton::actionNames() const
{
    if (!widget()->isEnabled()) return {};
    return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
}

void QtAccessiblePopUpButton::doAction(const QString& action)
{
    if (!widget()->isEnabled()) return;
    if (action == showMenuAction()) {
        // Later, because the caller waits for the answer and may then query the menu.
        QMetaObject::invokeMethod(
            widget(), [&popUp = _popUp] { popUp.openMenu(); }, Qt::QueuedConnection);
    } else {
        QAccessibleWidget::doAction(action);
    }
}

QStringList QtAccessiblePopUpButton::keyBindingsForAction(const QString& action) const
{
    if (action == showMenuAction()) return {QStringLiteral("Space")};
    return QAccessibleWidget::keyBindingsForAction(action);
}

void QtAccessiblePopUpButton::selection(int, int* start, int* end) const
{
    *start = 0;
    *end = 0;
}

QString QtAccessiblePopUpButton::text(int start, int end) const
{
    const int length = characterCount();
    const int first = std::clamp(start, 0, length);
    return shownText(_popUp).mid(first, std::clamp(end, first, length) - first);
}

int QtAccessiblePopUpButton::characterCount() const
{
    return static_cast<int>(shownText(_popUp).size());
}

QRect QtAccessiblePopUpButton::characterRect(int) const
{
    // The text is one unit: nobody points at single letters of a title.
    return rect();
}

int QtAccessiblePopUpButton::offsetAtPoint(const QPoint& point) const
{
    return rect().contains(point) ? 0 : -1;
}

QString QtAccessiblePopUpButton::attributes(int, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

}  // namespace vantorel
