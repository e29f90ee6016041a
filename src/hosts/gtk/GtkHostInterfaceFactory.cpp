#include "hosts/gtk/GtkHostInterfaceFactory.h"

#include "hosts/gtk/GtkHostBox.h"
#include "hosts/gtk/GtkHostButton.h"
#include "hosts/gtk/GtkHostCustomView.h"
#include "hosts/gtk/GtkHostPopUpButton.h"
#include "hosts/gtk/GtkHostTextField.h"
#include "hosts/gtk/GtkTexts.h"

#include <atk/atk.h>

#include <clocale>

namespace vantorel {

std::unique_ptr<HostView> GtkHostInterfaceFactory::makeView(
    const HostControlDescription& description)
{
    auto view = std::make_unique<GtkMirrored<HostView>>(description.frame, newHostBox(false));
    nameGtkWidget(view->widget(), description.identifier, description.accessibleName);
    atk_object_set_role(gtk_widget_get_accessible(view->widget()), ATK_ROLE_PANEL);
    return view;
}

std::unique_ptr<HostCustomView> GtkHostInterfaceFactory::makeCustomView(
    const HostControlDescription& description, HostViewContent& content)
{
    return std::make_unique<GtkHostCustomView>(description, content);
}

std::unique_ptr<HostTextField> GtkHostInterfaceFactory::makeTextField(
    const HostControlDescription& description)
{
    if (description.editable) return std::make_unique<GtkHostTextField>(description);
    return std::make_unique<GtkHostLabel>(description);
}

std::unique_ptr<HostButton> GtkHostInterfaceFactory::makeButton(
    const HostControlDescription& description)
{
    return std::make_unique<GtkHostButton>(description);
}

std::unique_ptr<HostPopUpButton> GtkHostInterfaceFactory::makePopUpButton(
    const HostControlDescription& description)
{
    return std::make_unique<GtkHostPopUpButton>(description);
}

std::u16string GtkHostInterfaceFactory::decimalSeparator() const
{
    // The program has set its locale, as GTK does when it starts.
    const std::u16string separator = coreText(std::localeconv()->decimal_point);
    return separator.empty() ? u"." : separator;
}

}  // namespace vantorel
