#include "testing/driver/DriverSession.h"

#include "testing/driver/JsonValues.h"
#include "text/Unicode.h"

#include <algorithm>
#include <map>
#include <span>

/// Requests that act as a user does.
namespace vantorel {
namespace {

/// Returns the control of a name. Throws a DriverError if there is none or it is of another type.
template <class Control>
Control& controlNamed(DriverPanel& panel, const Json& request, const char* key, const char* kind)
{
    const std::string name = utf8FromUtf16(textFrom(requiredMember(request, key), key));
    auto* control = panel.desktop().interfaceFactory().control<Control>(name);
    if (control == nullptr)
        throw DriverError("no " + std::string(kind) + " is called \"" + name + "\"");
    return *control;
}

HostPopUpButton& popUpNamed(DriverPanel& panel, const Json& request)
{
    return controlNamed<HostPopUpButton>(panel, request, "popUp", "pop-up");
}

HeadlessTextField& fieldNamed(DriverPanel& panel, const Json& request)
{
    return controlNamed<HeadlessTextField>(panel, request, "field", "text field");
}

std::vector<std::u16string> pathFrom(const Json& request)
{
    std::vector<std::u16string> path;
    for (const Json& title : listFrom(requiredMember(request, "path"), "path")) {
        path.push_back(textFrom(title, "a title"));
    }
    if (path.empty()) throw DriverError("path must name an item");
    return path;
}

/// Returns the menu item at a path of titles.
HostMenuItem itemAtPath(const HostMenu& menu, std::span<const std::u16string> path)
{
    const std::u16string& title = path.front();
    const bool isLast = path.size() == 1;
    // A colour list may have the title of a submenu, so the title alone is ambiguous.
    const auto found = std::find_if(menu.begin(), menu.end(), [&](const HostMenuItem& item) {
        return !item.separator && item.title == title && !item.submenu == isLast;
    });
    if (found == menu.end()) {
        throw DriverError((isLast ? "no item to choose is called \"" : "no submenu is called \"") +
                          utf8FromUtf16(title) + "\"");
    }
    return isLast ? *found : itemAtPath(found->submenu(), path.subspan(1));
}

HostEvent eventFrom(const Json& value)
{
    static const std::map<std::string, HostEventType> types{
        {"down", HostEventType::leftMouseDown},
        {"drag", HostEventType::leftMouseDragged},
        {"up", HostEventType::leftMouseUp},
        {"move", HostEventType::mouseMoved},
    };
    const auto type = types.find(utf8FromUtf16(textFrom(requiredMember(value, "type"), "type")));
    if (type == types.end()) throw DriverError("type must be down, drag, up or move");
    HostEvent event;
    event.type = type->second;
    event.location = pointFrom(requiredMember(value, "at"), "at");
    if (const Json* flags = optionalMember(value, "flags")) {
        event.modifierFlags = unsignedFrom(*flags, "flags");
    }
    return event;
}

}  // namespace

Json DriverSession::enter(const Json& request)
{
    HeadlessTextField& field = fieldNamed(current(), request);
    const std::u16string text = textFrom(requiredMember(request, "text"), "text");
    current().endEditing();
    field.setStringValue(text);
    field.sendAction();
    return Json::object();
}

Json DriverSession::type(const Json& request)
{
    HeadlessTextField& field = fieldNamed(current(), request);
    const std::u16string text = textFrom(requiredMember(request, "text"), "text");
    std::uint64_t caret = text.size();
    if (const Json* given = optionalMember(request, "caret")) caret = unsignedFrom(*given, "caret");
    if (caret > text.size()) throw DriverError("caret is beyond the text");
    current().endEditing();
    field.type(text, caret);
    return Json::object();
}

Json DriverSession::choose(const Json& request)
{
    HostPopUpButton& popUp = popUpNamed(current(), request);
    const auto path = pathFrom(request);
    static_cast<void>(itemAtPath(popUp.menu(), path));
    current().endEditing();
    popUp.sendWillPopUp();
    // This is a copy, because the action may rebuild the menu.
    const HostMenuItem item = itemAtPath(popUp.menu(), path);
    if (item.action) {
        item.action(item);
    } else if (path.size() == 1) {
        popUp.selectItemWithTitle(item.title);
        popUp.sendAction();
    }
    return Json::object();
}

Json DriverSession::popUp(const Json& request)
{
    HostPopUpButton& popUp = popUpNamed(current(), request);
    current().endEditing();
    popUp.sendWillPopUp();
    return Json::object();
}

Json DriverSession::action(const Json& request)
{
    const std::string name = utf8FromUtf16(textFrom(requiredMember(request, "name"), "name"));
    const Json* control = optionalMember(request, "control");
    HostControl* sender = control != nullptr
                              ? &controlNamed<HostControl>(current(), request, "control", "control")
                              : nullptr;
    if (!QTXHexColorPicker::hasAction(name)) {
        throw DriverError("no action is called \"" + name + "\"");
    }
    current().endEditing();
    current().picker().performAction(name, sender);
    return Json::object();
}

Json DriverSession::check(const Json& request)
{
    auto& button = controlNamed<HostButton>(current(), request, "control", "button");
    const bool on = booleanFrom(requiredMember(request, "on"), "on");
    current().endEditing();
    button.setState(on ? 1 : 0);
    button.sendAction();
    return Json::object();
}

Json DriverSession::mouse(const Json& request)
{
    std::vector<HostEvent> events;
    for (const Json& event : listFrom(requiredMember(request, "events"), "events")) {
        events.push_back(eventFrom(event));
    }
    HeadlessCustomView* view = current().customView("_hexColorsView");
    if (view == nullptr || view->superview() == nullptr) {
        throw DriverError("the colours view is not shown");
    }
    current().endEditing();
    current().panel().deliver(events, *view);
    return Json::object();
}

Json DriverSession::pointer(const Json& request)
{
    const Json& at = requiredMember(request, "at");
    std::optional<HostPoint> point;
    if (!at.is_null()) point = pointFrom(at, "at");
    current().endEditing();
    current().panel().setPointer(point);
    return Json::object();
}

}  // namespace vantorel
