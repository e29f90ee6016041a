#include "panel/palettes/PaletteKeys.h"

namespace vantorel {

PaletteKeys::PaletteKeys(QWidget& page, const PaletteCommands& commands, PaletteFilter& filter)
    : QObject(&page), _page(page), _commands(commands), _filter(filter)
{
    page.installEventFilter(this);
    for (QWidget* control : page.findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus) control->installEventFilter(this);
    }
}

bool PaletteKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &_page) {
        if (event->type() != QEvent::ShortcutOverride) return false;
        // Claims the page's keys ahead of the panel's commands.
        const auto& key = *static_cast<QKeyEvent*>(event);
        const bool inField = qobject_cast<QLineEdit*>(_page.focusWidget()) != nullptr;
        if (_commands.actionFor(key, inField) == nullptr) return false;
        event->accept();
        return true;
    }
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (watched == &_filter && _filter.performKey(key)) return true;
    return perform(key, editsText(watched));
}

bool PaletteKeys::perform(const QKeyEvent& event, bool inField) const
{
    QAction* action = _commands.actionFor(event, inField);
    if (action == nullptr) return false;
    if (action->isEnabled()) action->trigger();
    return true;
}

bool PaletteKeys::editsText(const QObject* control) const
{
    const auto* field = qobject_cast<const QLineEdit*>(control);
    if (field == nullptr) return false;
    // In a filter without typed text, the key undoes a step of the page.
    return field != &_filter || field->isUndoAvailable() || field->isRedoAvailable() ||
           !field->text().isEmpty();
}

}  // namespace vantorel
