#include "hosts/qt/QtAccessibility.h"

#include "hosts/qt/QtAccessiblePopUpButton.h"
#include "hosts/qt/QtColors.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QVariant>

Q_DECLARE_METATYPE(const vantorel::HostView*)
Q_DECLARE_METATYPE(vantorel::QtPopUpButton*)

namespace vantorel {
namespace {

// Widgets carry what their interfaces need, because Qt asks for an interface by the widget alone.
constexpr const char* roleProperty = "vantorelAccessibleRole";
constexpr const char* viewProperty = "vantorelView";
constexpr const char* popUpProperty = "vantorelPopUpButton";

class AccessibleCustomView final : public QAccessibleWidget {
public:
    AccessibleCustomView(QWidget* widget, const HostView& view)
        : QAccessibleWidget(widget), _view(view)
    {
    }

    [[nodiscard]] QAccessible::Role role() const override
    {
        return _view.accessibleDescription() ? QAccessible::ColorChooser : QAccessible::Grouping;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Description) {
            if (const auto description = _view.accessibleDescription()) {
                return qStringFrom(*description);
            }
        }
        return QAccessibleWidget::text(kind);
    }

private:
    const HostView& _view;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (auto* popUp = widget->property(popUpProperty).value<QtPopUpButton*>()) {
        return new QtAccessiblePopUpButton(widget, *popUp);
    }
    if (const auto* view = widget->property(viewProperty).value<const HostView*>()) {
        return new AccessibleCustomView(widget, *view);
    }
    if (const QVariant role = widget->property(roleProperty); role.isValid()) {
        return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
    }
    return nullptr;
}

/// Sets what the interface is chosen by.
void setProperty(QWidget& widget, const char* name, const QVariant& value)
{
    static const bool installed = (QAccessible::installFactory(interfaceOf), true);
    static_cast<void>(installed);
    widget.setProperty(name, value);
    // Naming a widget is enough for Qt to give it an interface, which it keeps.
    if (QAccessibleInterface* former = QAccessible::queryAccessibleInterface(&widget)) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
    }
}

/// Tells when a text that is computed on demand has changed: whatever changes it repaints the
/// widget, too.
class ChangeTeller final : public QObject {
public:
    using Text = std::function<QString()>;
    using Tell = std::function<void(const QString& before, const QString& now)>;

    ChangeTeller(QWidget& widget, Text text, Tell tell)
        : QObject(&widget), _text(std::move(text)), _tell(std::move(tell))
    {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && QAccessible::isActive()) {
            const QString now = _text();
            const QString before = std::exchange(_told, now);
            if (before != now) _tell(before, now);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Text _text;
    Tell _tell;
    QString _told;
};

}  // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    setProperty(widget, roleProperty, static_cast<int>(role));
}

void describeCustomView(QWidget& widget, const HostView& view)
{
    setProperty(widget, viewProperty, QVariant::fromValue(&view));
    new ChangeTeller(
        widget, [&view] { return qStringFrom(view.accessibleDescription().value_or(u"")); },
        [&widget](const QString&, const QString&) {
            QAccessibleEvent event(&widget, QAccessible::DescriptionChanged);
            QAccessible::updateAccessibility(&event);
        });
}

void describePopUpButton(QWidget& widget, QtPopUpButton& popUp)
{
    setProperty(widget, popUpProperty, QVariant::fromValue(&popUp));
    new ChangeTeller(
        widget, [&popUp] { return QtAccessiblePopUpButton::shownText(popUp); },
        [&widget](const QString& before, const QString& now) {
            QAccessibleTextUpdateEvent event(&widget, 0, before, now);
            QAccessible::updateAccessibility(&event);
        });
}

}  // namespace vantorel
