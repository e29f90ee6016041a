#include "testing/driver/DriverSession.h"

#include "hosts/posix/PosixFiles.h"
#include "result/Message.h"
#include "settings/SettingsFile.h"
#include "testing/driver/EmbeddedResources.h"
#include "testing/driver/JsonValues.h"
#include "testing/headless/MemoryFiles.h"
#include "text/Unicode.h"

#include <filesystem>
#include <iostream>

/// Requests that open, close and surround a picker.
namespace vantorel {
namespace {

constexpr const char* interfaceFileName = "QTXHexPick";
/// The largest character width, as a multiple of the point size: far beyond any font, yet small
/// enough for finite text widths.
constexpr int widestCharacter = 1000;

std::shared_ptr<HostColorList> colorListFrom(const Json& value)
{
    auto list =
        std::make_shared<HostColorList>(textFrom(requiredMember(value, "name"), "a list's name"));
    for (const Json& entry : listFrom(requiredMember(value, "entries"), "entries")) {
        if (!entry.is_array() || entry.size() != 2) {
            throw DriverError("an entry must be [key, colour]");
        }
        const std::u16string key = textFrom(entry[0], "a key");
        if (const auto color = optionalColorFrom(entry[1], "an entry's colour")) {
            list->setColor(*color, key);
        } else {
            list->addKey(key);
        }
    }
    return list;
}

/// Reads a list of snippets in the form of the state, in which an unset field is null.
std::optional<std::vector<QTXCodeSnippet>> snippetsFrom(const Json& value)
{
    if (value.is_null()) return std::nullopt;
    std::vector<QTXCodeSnippet> snippets;
    for (const Json& entry : listFrom(value, "codeSnippets")) {
        const auto field = [&](const char* name) {
            return optionalTextFrom(requiredMember(entry, name), name);
        };
        QTXCodeSnippet& snippet = snippets.emplace_back();
        snippet.setNameSnippet(field("name"));
        snippet.setFormatStringSnippet(field("format"));
        snippet.setVarFormSnippet(field("vars"));
    }
    return snippets;
}

/// Opens a folder on the disk, or files in memory.
std::unique_ptr<HostFiles> filesFrom(const Json& request)
{
    const Json* home = optionalMember(request, "home");
    if (home == nullptr) return std::make_unique<MemoryFiles>();
    const std::string path = utf8FromUtf16(textFrom(*home, "home"));
    if (path.empty()) throw DriverError("home must name a folder");
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    if (error) throw DriverError("home is not a valid path: " + error.message());
    auto files = std::make_unique<PosixFiles>(absolute.lexically_normal().string());
    files->setFailureHandler([](auto, const Message& message) {
        std::cerr << "vantorel-driver: " << english(message) << '\n';
    });
    return files;
}

DriverPanel::Options optionsFrom(const Json& request)
{
    DriverPanel::Options options;
    options.files = filesFrom(request);
    if (const Json* frame = optionalMember(request, "panel")) {
        options.frame = rectFrom(*frame, "panel");
    }
    if (const Json* color = memberOf(request, "color")) {
        options.color = optionalColorFrom(*color, "color");
    }
    if (const Json* lists = optionalMember(request, "lists")) {
        for (const Json& list : listFrom(*lists, "lists")) {
            options.lists.push_back(colorListFrom(list));
        }
    }
    if (const Json* nib = optionalMember(request, "nib")) {
        options.hasInterfaceFile = booleanFrom(*nib, "nib");
    }
    if (const Json* strings = optionalMember(request, "strings")) {
        if (!strings->is_object()) throw DriverError("strings must be an object");
        for (const auto& [key, text] : strings->items()) {
            options.localizedStrings[utf16FromUtf8(key)] = textFrom(text, "a localised string");
        }
    }
    if (const Json* text = optionalMember(request, "settingsFile")) {
        options.settingsFile = utf8FromUtf16(textFrom(*text, "settingsFile"));
    }
    if (const Json* width = optionalMember(request, "charWidth")) {
        options.charWidth = numberFrom(*width, "charWidth");
        if (!(options.charWidth >= 0 && options.charWidth <= widestCharacter)) {
            throw DriverError("charWidth must be from 0 to " + std::to_string(widestCharacter));
        }
    }
    return options;
}

/// Creates a settings file before the picker looks for one.
std::unique_ptr<HostFiles> withSettingsFile(std::unique_ptr<HostFiles> files,
                                            const std::optional<std::string>& text)
{
    const auto path = text ? hexColorPickerDefaultsFileName(*files) : std::nullopt;
    if (path) {
        files->createDirectory(path->substr(0, path->rfind('/')));
        files->writeAtomically(*path, *text);
    }
    return files;
}

}  // namespace

class DriverPanel::Bundle final : public HostBundle {
public:
    explicit Bundle(bool hasInterfaceFile) : _hasInterfaceFile(hasInterfaceFile) {}

    [[nodiscard]] std::optional<std::string> resource(const std::string& name) const override
    {
        const auto found = embeddedResources().find(name);
        const bool missing = name == interfaceFileName && !_hasInterfaceFile;
        if (missing || found == embeddedResources().end()) return std::nullopt;
        return found->second;
    }
    /// Returns `std::nullopt`, because the resources are compiled in.
    [[nodiscard]] std::optional<std::string> pathOfResource(const std::string&) const override
    {
        return std::nullopt;
    }

private:
    bool _hasInterfaceFile;
};

DriverPanel::DriverPanel(Options options)
    : _bundle(std::make_unique<Bundle>(options.hasInterfaceFile)),
      _desktop({withSettingsFile(std::move(options.files), options.settingsFile), options.charWidth,
                std::move(options.localizedStrings)}),
      _panel(_desktop, options.frame, options.color)
{
    for (auto& list : options.lists)
        _desktop.colorLists().install(std::move(list));
    _picker = std::make_unique<QTXHexColorPicker>(0, _panel, *_bundle);
    _panel.setPicker(_picker.get());
    // The page has its final size from the start. Only later changes of size are reported.
    _panel.showPage(_picker->provideNewView(true));
}

DriverPanel::~DriverPanel()
{
    _panel.setPicker(nullptr);
}

HeadlessCustomView* DriverPanel::customView(const std::string& name)
{
    return _desktop.interfaceFactory().control<HeadlessCustomView>(name);
}

std::string DriverPanel::shownViewName()
{
    for (const char* name : {"_hexColorsView", "_hexSettingsView"}) {
        const HeadlessCustomView* view = customView(name);
        if (view != nullptr && view->superview() != nullptr) return name;
    }
    return {};
}

HeadlessCustomView* DriverPanel::shownView()
{
    return customView(shownViewName());
}

void DriverPanel::endEditing()
{
    for (const auto& [name, view] : _desktop.interfaceFactory().controls()) {
        if (auto* field = dynamic_cast<HeadlessTextField*>(view)) field->endEditing();
    }
}

DriverPanel& DriverSession::current()
{
    if (!_current) throw DriverError("no picker is open; send \"open\" first");
    return *_current;
}

Json DriverSession::open(const Json& request)
{
    auto options = optionsFrom(request);
    _current.reset();
    _current = std::make_unique<DriverPanel>(std::move(options));
    return Json::object();
}

Json DriverSession::close(const Json&)
{
    static_cast<void>(current());
    _current.reset();
    return Json::object();
}

Json DriverSession::picker(const Json& request)
{
    QTXHexColorPicker& picker = current().picker();
    const std::string name = utf8FromUtf16(textFrom(requiredMember(request, "fn"), "fn"));
    if (name == "supportsMode") {
        const Json& arguments = listFrom(requiredMember(request, "args"), "args");
        const std::int64_t mode = integerFrom(argumentAt(arguments, 0), "argument 1");
        const bool known = mode >= INT32_MIN && mode <= INT32_MAX;
        return {{"result", known && picker.supportsMode(static_cast<int>(mode))}};
    }
    if (name == "currentMode") return {{"result", picker.currentMode()}};
    if (name == "buttonToolTip") return {{"result", jsonFromText(picker.buttonToolTip())}};
    if (name == "minContentSize") return {{"result", jsonFromSize(picker.minContentSize())}};
    if (name == "minContentSizeWitSettings") {
        return {{"result", jsonFromSize(picker.minContentSizeWitSettings())}};
    }
    if (name == "exactHexColorMatch") return {{"result", picker.exactHexColorMatch()}};
    throw DriverError("no function of the picker is called \"" + name + "\"");
}

Json DriverSession::setPanelColor(const Json& request)
{
    const auto color = optionalColorFrom(requiredMember(request, "color"), "color");
    current().panel().changeColor(color);
    return Json::object();
}

Json DriverSession::resize(const Json& request)
{
    const HostSize size{numberFrom(requiredMember(request, "width"), "width"),
                        numberFrom(requiredMember(request, "height"), "height")};
    if (size.width < 0 || size.height < 0) throw DriverError("a size must not be negative");
    current().panel().resize(size);
    return Json::object();
}

Json DriverSession::set(const Json& request)
{
    const Json& values = requiredMember(request, "settings");
    if (!values.is_object()) throw DriverError("settings must be an object");
    QTXHexColorPicker& picker = current().picker();
    // Changes are made to a copy, so that an invalid value leaves the settings unchanged.
    QTXHexSettings settings = picker.hexSettings();
    for (const auto& [key, value] : values.items()) {
        if (key == "entryForm") {
            settings.setEntryForm(enumerationFrom<EntryForm>(value, key));
        } else if (key == "usePoundSign") {
            settings.setUsePoundSign(booleanFrom(value, key));
        } else if (key == "hexColorList") {
            settings.setHexColorList(optionalTextFrom(value, key));
        } else if (key == "activeColorLists") {
            std::vector<std::u16string> names;
            for (const Json& name : listFrom(value, key))
                names.push_back(textFrom(name, key));
            settings.activeColorLists() = names;
        } else if (key == "pickViewMode") {
            settings.setPickViewMode(enumerationFrom<PickViewMode>(value, key));
        } else if (key == "nColorCubeRings") {
            settings.setNColorCubeRings(integerFrom(value, key));
        } else if (key == "componentDisplay") {
            settings.setComponentDisplay(enumerationFrom<ComponentDisplay>(value, key));
        } else if (key == "codeSnippets") {
            settings.setCodeSnippets(snippetsFrom(value));
        } else if (key == "codeSnippetName") {
            settings.setCodeSnippetName(optionalTextFrom(value, key));
        } else if (key == "createColorLists") {
            settings.setCreateColorLists(booleanFrom(value, key));
        } else if (key == "codeDragType") {
            settings.setCodeDragType(enumerationFrom<CodeDragType>(value, key));
        } else {
            throw DriverError("no setting is called \"" + key + "\"");
        }
    }
    picker.hexSettings() = settings;
    picker.syncPanel();
    return Json::object();
}

}  // namespace vantorel
