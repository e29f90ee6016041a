#include "colorlists/ColorNamesPopUp.h"
#include "settings/SettingsFile.h"
#include "testing/driver/DriverSession.h"
#include "testing/driver/JsonValues.h"
#include "text/Unicode.h"

#include <array>

/// Requests that return the state or advance the clock.
namespace vantorel {
namespace {

constexpr std::array fieldNames{
    "_redHexText",       "_greenHexText", "_blueHexText",       "_fullHexText",
    "_rgbDecimalText",   "_objCCodeText", "_cursorReadoutText", "componentDisplayLabel",
    "codeDragTypeLabel", "codeCodeLabel", "_versionLabelText",
};
constexpr std::array viewNames{"_hexPickerView", "_hexColorsView", "_hexSettingsView"};

Json fieldState(const HeadlessTextField& field)
{
    Json json{{"text", jsonFromText(field.stringValue())},
              {"color", jsonFromColor(field.textColor())},
              {"toolTip", jsonFromText(field.toolTip())},
              {"frame", jsonFromRect(field.frame())}};
    if (field.isEdited()) {
        const HostSelection selection = field.selectedRange();
        json["selection"] = Json::array({selection.location, selection.length});
    }
    return json;
}

Json fieldsState(const HeadlessInterfaceFactory& factory)
{
    Json json = Json::object();
    for (const char* name : fieldNames) {
        if (const auto* field = factory.control<HeadlessTextField>(name)) {
            json[name] = fieldState(*field);
        }
    }
    return json;
}

Json popUpsState(const HeadlessInterfaceFactory& factory)
{
    Json json = Json::object();
    for (const auto& [name, view] : factory.controls()) {
        const auto* popUp = dynamic_cast<const HostPopUpButton*>(view);
        if (popUp == nullptr) continue;
        json[name] = {{"items", jsonFromMenu(popUp->menu())},
                      {"selected", popUp->indexOfSelectedItem()},
                      {"title", jsonFromText(popUp->titleOfSelectedItem())},
                      {"frame", jsonFromRect(popUp->frame())}};
    }
    return json;
}

Json buttonsState(const HeadlessInterfaceFactory& factory)
{
    Json json = Json::object();
    for (const auto& [name, view] : factory.controls()) {
        const auto* button = dynamic_cast<const HostButton*>(view);
        if (button == nullptr) continue;
        json[name] = {{"on", button->state() == 1}, {"frame", jsonFromRect(button->frame())}};
    }
    return json;
}

Json viewsState(const HeadlessInterfaceFactory& factory)
{
    Json json = Json::object();
    for (const char* name : viewNames) {
        const auto* view = factory.control<HostView>(name);
        if (view == nullptr) continue;
        json[name] = {{"frame", jsonFromRect(view->frame())},
                      {"bounds", jsonFromRect(view->bounds())},
                      {"inHierarchy", view->superview() != nullptr},
                      {"needsDisplay", view->needsDisplay()},
                      {"toolTip", jsonFromText(view->toolTip())}};
    }
    return json;
}

Json snippetsState(const QTXHexSettings& settings)
{
    if (!settings.hasCodeSnippets()) return nullptr;
    Json json = Json::array();
    for (const QTXCodeSnippet& snippet : settings.codeSnippets()) {
        json.push_back({{"name", jsonFromText(snippet.nameSnippet())},
                        {"format", jsonFromText(snippet.formatStringSnippet())},
                        {"vars", jsonFromText(snippet.varFormSnippet())}});
    }
    return json;
}

Json settingsState(const QTXHexSettings& settings)
{
    return {{"entryForm", static_cast<int>(settings.entryForm())},
            {"usePoundSign", settings.usePoundSign()},
            {"hexColorList", jsonFromText(settings.hexColorList())},
            {"activeColorLists", jsonFromTexts(settings.activeColorLists())},
            {"pickViewMode", static_cast<int>(settings.pickViewMode())},
            {"nColorCubeRings", settings.nColorCubeRings()},
            {"componentDisplay", static_cast<int>(settings.componentDisplay())},
            {"codeSnippets", snippetsState(settings)},
            {"codeSnippetName", jsonFromText(settings.codeSnippetName())},
            {"createColorLists", settings.createColorLists()},
            {"codeDragType", static_cast<int>(settings.codeDragType())}};
}

Json messageState(const QTXHexColorsView& view)
{
    return {{"text", jsonFromText(view.messageStr())},
            {"alpha", static_cast<double>(view.messageAlpha())},
            {"warning", view.isWarning()},
            {"rect", jsonFromRect(view.messageRect())}};
}

Json trackingState(DriverPanel& panel)
{
    const HeadlessCustomView* view = panel.customView("_hexColorsView");
    return {{"installed", view != nullptr && view->isTracking()},
            {"inside", view != nullptr && view->pointerIsInside()}};
}

}  // namespace

Json DriverSession::draw(const Json&)
{
    HeadlessCustomView* view = current().shownView();
    if (view == nullptr) throw DriverError("no view is shown");
    const std::string name = current().shownViewName();
    const RecordingCanvas canvas = view->draw();
    return {{"view", name}, {"ops", jsonFromOperations(canvas.operations())}};
}

Json DriverSession::advance(const Json& request)
{
    const double seconds = numberFrom(requiredMember(request, "seconds"), "seconds");
    if (!(seconds >= 0)) throw DriverError("seconds must be 0 or above");
    DriverPanel& panel = current();
    const int fired = panel.desktop().advance(seconds, [&] {
        HeadlessCustomView* view = panel.shownView();
        if (view != nullptr && view->needsDisplay()) static_cast<void>(view->draw());
    });
    return {{"fired", fired}};
}

Json DriverSession::swatch(const Json& request)
{
    const auto name = textFrom(requiredMember(request, "list"), "list");
    const auto key = textFrom(requiredMember(request, "key"), "key");
    const auto list = current().desktop().colorLists().colorListNamed(name);
    return {{"image", jsonFromImage(list ? menuImageWithColorList(*list, key) : std::nullopt)}};
}

Json DriverSession::dragImage(const Json& request)
{
    const std::string kind = utf8FromUtf16(textFrom(requiredMember(request, "kind"), "kind"));
    const QTXHexColorsView& view = current().picker().hexColorsView();
    if (kind == "string") {
        const auto text = textFrom(requiredMember(request, "text"), "text");
        return {{"image", jsonFromImage(view.dragImageWithString(text))}};
    }
    if (kind == "color") {
        const HostColor color = colorFrom(requiredMember(request, "color"), "color");
        return {{"image", jsonFromImage(view.dragImageWithColor(color))}};
    }
    throw DriverError("kind must be \"string\" or \"color\"");
}

Json DriverSession::dragString(const Json& request)
{
    const Json* type = optionalMember(request, "type");
    const QTXHexColorPicker& picker = current().picker();
    if (type == nullptr) return {{"result", jsonFromText(picker.dragString())}};
    return {{"result", jsonFromText(picker.dragStringWithDragType(
                           enumerationFrom<CodeDragType>(*type, "type")))}};
}

Json DriverSession::settingsFile(const Json&)
{
    HostFiles& files = current().desktop().files();
    const auto home = files.applicationSupportDirectory();
    const auto path = hexColorPickerDefaultsFileName(files);
    if (!home || !path) return {{"path", nullptr}, {"text", nullptr}};
    const auto bytes = files.contentsAtPath(*path);
    return {{"path", path->substr(home->size() + 1)},
            {"text", bytes ? jsonFromText(utf16FromUtf8(*bytes)) : Json()}};
}

Json DriverSession::state(const Json&)
{
    DriverPanel& panel = current();
    QTXHexColorPicker& picker = panel.picker();
    HeadlessDesktop& desktop = panel.desktop();
    const HeadlessInterfaceFactory& factory = desktop.interfaceFactory();
    Json json{
        {"fields", fieldsState(factory)},
        {"popUps", popUpsState(factory)},
        {"buttons", buttonsState(factory)},
        {"spec", jsonFromSpec(picker.hexColorSpec())},
        {"exactHexColorMatch", picker.exactHexColorMatch()},
        {"settings", settingsState(picker.hexSettings())},
        {"panel",
         {{"frame", jsonFromRect(panel.panel().frame())},
          {"color", jsonFromColor(panel.panel().color())},
          {"acceptsMouseMovedEvents", panel.panel().acceptsMouseMovedEvents()}}},
        {"views", viewsState(factory)},
        {"message", messageState(picker.hexColorsView())},
        {"tracking", trackingState(panel)},
        {"timers", desktop.pendingTimers()},
        {"noMatchString", jsonFromText(picker.noMatchString())},
        {"closeMatches", jsonFromTexts(picker.holdCloseMatchColors())},
        {"installedLists", jsonFromTexts(desktop.colorLists().availableColorLists())},
        {"journal", jsonFromJournal(desktop.journal())},
    };
    desktop.journal().clear();
    return json;
}

}  // namespace vantorel
