#pragma once

#include "host/HostControls.h"

#include <QAccessible>
#include <QWidget>

/// The interfaces through which assistive technology sees hand-painted widgets. Qt has its own for
/// its standard widgets.
namespace vantorel {

class QtPopUpButton;

/// Gives a plain widget a role in place of that of a container.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Makes the widget of a custom view report the view's accessible description and its changes. A
/// view with a description is a colour chooser; one without is a container of its controls. `view`
/// must outlive `widget`.
void describeCustomView(QWidget& widget, const HostCustomView& view);

/// Makes the widget of a pop-up a combo box whose text is the selected item's title, and which can
/// be opened. `popUp` must outlive `widget`.
void describePopUpButton(QWidget& widget, QtPopUpButton& popUp);

}  // namespace vantorel
