#pragma once

#include "host/HostView.h"

#include <QAccessible>
#include <QWidget>

/// What assistive technology sees of widgets that are painted by hand; Qt knows its own by itself.
namespace vantorel {

class QtPopUpButton;

/// Gives a plain widget a role, in place of the one of a mere ground for others.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Makes the widget of a custom view tell the view's accessible description, and changes of it. A
/// view that has one is what colours are chosen in; one without is a ground for its controls.
/// `view` must outlive `widget`.
void describeCustomView(QWidget& widget, const HostView& view);

/// Makes the widget of a pop-up a combo box whose text is the selected item's title, and which can
/// be opened. `popUp` must outlive `widget`.
void describePopUpButton(QWidget& widget, QtPopUpButton& popUp);

}  // namespace vantorel
