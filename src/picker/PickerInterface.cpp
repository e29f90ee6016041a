#include "picker/PickerInterface.h"

#include "picker/EnterTextFields.h"

namespace vantorel {
namespace {

/// Connects a control to the action named in the file. Returns false if there is no such action.
bool connectAction(HostView& view, const std::string& name, const PickerInterface::Parts& parts)
{
    if (name.empty()) return true;
    auto* control = dynamic_cast<HostControl*>(&view);
    auto action = parts.actionNamed(name);
    if (control == nullptr || !action) return false;
    control->setAction(std::move(action));
    return true;
}

HostControlDescription completed(const InterfaceItem& item, const PickerInterface::Parts& parts)
{
    HostControlDescription description = item.description;
    for (std::u16string* text :
         {&description.title, &description.toolTip, &description.accessibleName}) {
        if (!text->empty()) *text = parts.localized(*text);
    }
    if (!item.image.empty()) {
        description.svgImage = parts.bundle.resource(item.image + ".svg").value_or("");
    }
    return description;
}

}  // namespace

std::unique_ptr<PickerInterface> PickerInterface::build(const std::string& interfaceFile,
                                                        const Parts& parts)
{
    const auto items = parseInterfaceFile(interfaceFile);
    if (!items) return nullptr;
    auto interface = std::make_unique<PickerInterface>();
    for (const InterfaceItem& item : *items) {
        if (interface->buildItem(item, parts) == nullptr) return nullptr;
    }
    return interface;
}

PickerInterface::~PickerInterface()
{
    // Destroy subviews first, so that no desktop sees a view destroyed before its subviews.
    while (!_views.empty())
        _views.pop_back();
}

HostView* PickerInterface::buildItem(const InterfaceItem& item, const Parts& parts)
{
    const HostControlDescription description = completed(item, parts);
    std::unique_ptr<HostView> made = makeView(item, description, parts);
    if (!made) return nullptr;
    HostView* view = made.get();
    _views.push_back(std::move(made));
    _byName.emplace(description.identifier, view);

    view->setResizing(description.resizing);
    if (!description.toolTip.empty()) view->setToolTip(description.toolTip);
    if (!connectAction(*view, item.action, parts)) return nullptr;
    for (const InterfaceItem& subitem : item.subviews) {
        HostView* subview = buildItem(subitem, parts);
        if (subview == nullptr) return nullptr;
        view->addSubview(*subview);
    }
    return view;
}

std::unique_ptr<HostView> PickerInterface::makeView(const InterfaceItem& item,
                                                    const HostControlDescription& description,
                                                    const Parts& parts)
{
    HostInterfaceFactory& factory = parts.factory;
    using Kind = InterfaceItem::Kind;
    switch (item.kind) {
        case Kind::view:
            return factory.makeView(description);
        case Kind::colorsView:
            return factory.makeCustomView(description, parts.colorsView);
        case Kind::settingsView:
            return factory.makeCustomView(description, parts.settingsView);
        case Kind::textField:
        case Kind::hexEnterTextField:
        case Kind::rgbDecimalEnterTextField:
            return factory.makeTextField(description);
        case Kind::popUpButton:
            return factory.makePopUpButton(description);
        case Kind::button:
            return factory.makeButton(description);
    }
    return nullptr;
}

}  // namespace vantorel
