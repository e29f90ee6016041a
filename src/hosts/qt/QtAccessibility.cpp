#include "hosts/qt/QtAccessibility.h"

#include "hosts/qt/QtAccessiblePopUpButton.h"
#include "hosts/qt/QtColors.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QVariant>

Q_DECLARE_METATYPE(const vantorel::HostCustomView*)
Q_DECLARE_METATYPE(vantorel::QtPopUpButton*)

namespace vantorel {
namespace {

// Widgets carry what their interfaces need, because Qt asks for an interface by the widget alone.
constexpr const char* roleProperty = "vantorelAccessibleRole";
constexpr const char* viewProperty = "vantorelView";
constexpr const char* popUpProperty = "vantorelPopUpButton";

class AccessibleCustomView final : public QAccessibleWidget {
public:
    AccessibleCustomView(QWidget* widget, const HostCustomView& view)
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
    const HostCustomView& _view;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (auto* popUp = widget->property(popUpProperty).value<QtPopUpButton*>()) {
        return new QtAccessiblePopUpButton(widget, *popUp);
    }
    if (const auto* view = widget->property(viewProperty).value<const HostCustomView*>()) {
        return new AccessibleCustomView(widget, *view);
    }
    if (const QVariant role = widget->property(roleProperty); role.isValid()) {
        return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
    }
    return nullptr;
}

/// Sets the property by which the interface is chosen.
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

/// Reports changes of a text that is computed on demand: whatever changes the text repaints the
/// widget, too. The widget owns it.
class ChangeReporter : public QObject {
public:
    explicit ChangeReporter(QWidget& widget) : QObject(&widget), _widget(widget)
    {
        widget.installEventFilter(this);
    }

protected:
    [[nodiscard]] virtual QString text() const = 0;
    virtual void report(QWidget& widget, const QString& before, const QString& now) = 0;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && QAccessible::isActive()) {
            const QString now = text();
            const QString before = std::exchange(_reported, now);
            if (before != now) report(_widget, before, now);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget& _widget;
    QString _reported;
};

class DescriptionReporter final : public ChangeReporter {
public:
    DescriptionReporter(QWidget& widget, const HostCustomView& view)
        : ChangeReporter(widget), _view(view)
    {
    }

protected:
    [[nodiscard]] QString text() const override
    {
        return qStringFrom(_view.accessibleDescription().value_or(u""));
    }

    void report(QWidget& widget, const QString&, const QString&) override
    {
        QAccessibleEvent event(&widget, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }

private:
    const HostCustomView& _view;
};

class ShownTextReporter final : public ChangeReporter {
public:
    ShownTextReporter(QWidget& widget, const QtPopUpButton& popUp)
        : ChangeReporter(widget), _popUp(popUp)
    {
    }

protected:
    [[nodiscard]] QString text() const override
    {
        return QtAccessiblePopUpButton::shownText(_popUp);
    }

    void report(QWidget& widget, const QString& before, const QString& now) override
    {
        QAccessibleTextUpdateEvent event(&widget, 0, before, now);
        QAccessible::updateAccessibility(&event);
    }

private:
    const QtPopUpButton& _popUp;
};

}  // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    setProperty(widget, roleProperty, static_cast<int>(role));
}

void describeCustomView(QWidget& widget, const HostCustomView& view)
{
    setProperty(widget, viewProperty, QVariant::fromValue(&view));
    new DescriptionReporter(widget, view);
}

void describePopUpButton(QWidget& widget, QtPopUpButton& popUp)
{
    setProperty(widget, popUpProperty, QVariant::fromValue(&popUp));
    new ShownTextReporter(widget, popUp);
}

}  // namespace vantorel
