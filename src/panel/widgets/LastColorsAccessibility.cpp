#include "panel/widgets/LastColorsAccessibility.h"

#include "panel/widgets/CodeWithOpacity.h"
#include "panel/widgets/LastColors.h"

#include <QAccessibleActionInterface>
#include <QAccessibleWidget>
#include <QPointer>

#include <vector>

namespace vantorel {
namespace {

/// One of the colours. It belongs to the interface of the row, and shows whatever colour is at its
/// place.
class AccessibleLastColor final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleLastColor(LastColors& row, int index) : _row(&row), _index(index) {}

    [[nodiscard]] bool isValid() const override { return _row && _index < _row->shownCount(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(_row);
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.focusable = true;
        state.focused = _row->hasFocus() && _row->current() == _index;
        state.invisible = !_row->isVisible();
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) return {};
        if (kind == QAccessible::Name) return codeWithOpacity(_row->order().colorAt(_index));
        if (kind == QAccessible::Description && _row->order().isPinned(_index)) {
            return LastColors::tr("pinned");
        }
        return {};
    }
    void setText(QAccessible::Text, const QString&) override {}

    [[nodiscard]] QRect rect() const override
    {
        if (!isValid()) return {};
        const QRect place = _row->rectOf(_index);
        return {_row->mapToGlobal(place.topLeft()), place.size()};
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return {pressAction(), setFocusAction(), showMenuAction()};
    }
    void doAction(const QString& action) override
    {
        if (!isValid()) return;
        if (action == pressAction()) {
            _row->choose(_index);
        } else if (action == setFocusAction()) {
            _row->makeCurrent(_index);
            _row->setFocus();
        } else if (action == showMenuAction()) {
            // Later, because the caller waits for the answer and may then query the menu.
            QMetaObject::invokeMethod(
                _row, [row = _row.get(), index = _index] { row->openMenu(index); },
                Qt::QueuedConnection);
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& action) const override
    {
        return action == pressAction() ? QStringList{QStringLiteral("Return")} : QStringList{};
    }

private:
    QPointer<LastColors> _row;
    int _index;
};

class AccessibleLastColors final : public QAccessibleWidget {
public:
    explicit AccessibleLastColors(LastColors& row)
        : QAccessibleWidget(&row, QAccessible::List), _row(row)
    {
    }
    ~AccessibleLastColors() override
    {
        for (const QAccessible::Id id : _items)
            QAccessible::deleteAccessibleInterface(id);
    }
    AccessibleLastColors(const AccessibleLastColors&) = delete;
    AccessibleLastColors& operator=(const AccessibleLastColors&) = delete;

    // The button comes last.
    [[nodiscard]] int childCount() const override
    {
        const int colors = _row.shownCount();
        return colors > 0 ? colors + 1 : 0;
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount()) return nullptr;
        if (index == _row.shownCount()) {
            return QAccessible::queryAccessibleInterface(&_row.menuButton());
        }
        while (_items.size() <= static_cast<std::size_t>(index)) {
            auto* item = new AccessibleLastColor(_row, static_cast<int>(_items.size()));
            _items.push_back(QAccessible::registerAccessibleInterface(item));
        }
        return QAccessible::accessibleInterface(_items[static_cast<std::size_t>(index)]);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (int i = 0; i < childCount(); ++i) {
            if (this->child(i) == child) return i;
        }
        return -1;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPoint point = _row.mapFromGlobal(QPoint(x, y));
        if (_row.menuButton().geometry().contains(point)) return child(_row.shownCount());
        return child(_row.places().swatchAt(point));
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override
    {
        return _row.hasFocus() ? child(_row.current()) : QAccessibleWidget::focusChild();
    }

private:
    LastColors& _row;
    mutable std::vector<QAccessible::Id> _items;
};

QAccessibleInterface* lastColorsInterface(const QString&, QObject* object)
{
    auto* row = qobject_cast<LastColors*>(object);
    return row != nullptr ? new AccessibleLastColors(*row) : nullptr;
}

}  // namespace

void installLastColorsInterface()
{
    static const bool installed = (QAccessible::installFactory(lastColorsInterface), true);
    static_cast<void>(installed);
}

}  // namespace vantorel
