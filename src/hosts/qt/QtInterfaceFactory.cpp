#include "hosts/qt/QtInterfaceFactory.h"

#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/QtButton.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtCustomView.h"
#include "hosts/qt/QtPopUpButton.h"
#include "hosts/qt/QtTextField.h"

#include <QLocale>

namespace vantorel {
namespace {

/// Tests and assistive programs find a widget by the name that the interface file gives it.
template <class View>
std::unique_ptr<View> named(std::unique_ptr<View> view, const HostControlDescription& description)
{
    view->widget()->setObjectName(QString::fromStdString(description.identifier));
    return view;
}

}  // namespace

std::unique_ptr<HostView> QtInterfaceFactory::makeView(const HostControlDescription& description)
{
    auto view = std::make_unique<QtMirrored<HostView>>(description.frame, new QWidget);
    view->widget()->setAccessibleName(qStringFrom(description.accessibleName));
    setAccessibleRole(*view->widget(), QAccessible::Grouping);
    return named(std::move(view), description);
}

std::unique_ptr<HostCustomView> QtInterfaceFactory::makeCustomView(
    const HostControlDescription& description, HostViewContent& content)
{
    auto view = named(std::make_unique<QtCustomView>(description, content), description);
    describeCustomView(*view->widget(), *view);
    return view;
}

std::unique_ptr<HostTextField> QtInterfaceFactory::makeTextField(
    const HostControlDescription& description)
{
    if (description.editable) {
        return named(std::make_unique<QtTextField>(description), description);
    }
    return named(std::make_unique<QtLabel>(description), description);
}

std::unique_ptr<HostButton> QtInterfaceFactory::makeButton(
    const HostControlDescription& description)
{
    return named(std::make_unique<QtButton>(description), description);
}

std::unique_ptr<HostPopUpButton> QtInterfaceFactory::makePopUpButton(
    const HostControlDescription& description)
{
    auto popUp = named(std::make_unique<QtPopUpButton>(description), description);
    describePopUpButton(*popUp->widget(), *popUp);
    return popUp;
}

std::u16string QtInterfaceFactory::decimalSeparator() const
{
    return u16From(QString(QLocale().decimalPoint()));
}

}  // namespace vantorel
