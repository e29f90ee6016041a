#include "testing/driver/JsonValues.h"

#include "host/HostText.h"
#include "plist/PropertyListWriter.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

Json jsonFromPath(const HostBezierPath& path)
{
    Json json = Json::array();
    for (const HostBezierPath::Element& element : path.elements()) {
        switch (element.kind) {
            case HostBezierPath::ElementKind::moveTo:
                json.push_back({"M", element.point.x, element.point.y});
                break;
            case HostBezierPath::ElementKind::lineTo:
                json.push_back({"L", element.point.x, element.point.y});
                break;
            case HostBezierPath::ElementKind::close:
                json.push_back(Json::array({"Z"}));
                break;
        }
    }
    return json;
}

struct OperationWriter {
    Json operator()(const FillOperation& fill) const
    {
        return {
            {"fill", {{"path", jsonFromPath(fill.path)}, {"color", jsonFromColor(fill.color)}}}};
    }
    Json operator()(const StrokeOperation& stroke) const
    {
        return {{"stroke",
                 {{"path", jsonFromPath(stroke.path)},
                  {"color", jsonFromColor(stroke.color)},
                  {"width", stroke.path.lineWidth()}}}};
    }
    Json operator()(const TextOperation& operation) const
    {
        const HostText& text = operation.text;
        return {{"text",
                 {{"string", jsonFromText(text.string)},
                  {"size", text.pointSize},
                  {"color", jsonFromColor(text.color)},
                  {"at", jsonFromPoint(operation.at)}}}};
    }
    Json operator()(const PixelsOperation& operation) const
    {
        const HostPixelSize size = operation.pixels.size();
        return {{"pixels",
                 {{"size", Json::array({size.width, size.height})},
                  {"rect", jsonFromRect(operation.rect)}}}};
    }
};

struct JournalWriter {
    Json operator()(const PanelColorSet& entry) const
    {
        return {{"panelColor", jsonFromColor(entry.color)}};
    }
    Json operator()(const PanelFrameSet& entry) const
    {
        return {{"panelFrame", jsonFromRect(entry.frame)}};
    }
    Json operator()(const LineLogged& entry) const { return {{"log", jsonFromText(entry.line)}}; }
    Json operator()(const Beeped&) const { return {{"beep", true}}; }
    Json operator()(const URLOpened& entry) const { return {{"openedURL", entry.url}}; }
    Json operator()(const SettingsWritten&) const { return {{"settingsWritten", true}}; }
    Json operator()(const ListSaved& entry) const
    {
        return {{"listSaved", jsonFromText(entry.name)}};
    }
    Json operator()(const Dragged& entry) const
    {
        return {{"drag",
                 {{"type", entry.text ? "string" : "color"},
                  {"string", entry.text ? Json(*entry.text) : Json()},
                  {"color", jsonFromColor(entry.color)},
                  {"imageSize", jsonFromSize(entry.imageSize)},
                  {"panelColor", jsonFromColor(entry.panelColor)}}}};
    }
};

}  // namespace

Json jsonFromText(const std::u16string& text)
{
    return utf8FromUtf16(text);
}

Json jsonFromText(const std::optional<std::u16string>& text)
{
    return text ? jsonFromText(*text) : Json();
}

Json jsonFromTexts(const std::vector<std::u16string>& texts)
{
    Json json = Json::array();
    for (const std::u16string& text : texts)
        json.push_back(jsonFromText(text));
    return json;
}

Json jsonFromPoint(HostPoint point)
{
    return Json::array({point.x, point.y});
}

Json jsonFromSize(HostSize size)
{
    return Json::array({size.width, size.height});
}

Json jsonFromRect(HostRect rect)
{
    return Json::array({rect.x, rect.y, rect.width, rect.height});
}

Json jsonFromColor(const std::optional<HostColor>& color)
{
    if (!color) return nullptr;
    const auto rgb = color->calibratedRGB();
    if (!rgb) return "pattern";
    return Json::array({rgb->red, rgb->green, rgb->blue, rgb->alpha});
}

Json jsonFromSpec(const QTXHexColorSpec& spec)
{
    return {
        {"components", Json::array({spec.redHexComp(), spec.greenHexComp(), spec.blueHexComp()})},
        {"remainders",
         Json::array({spec.redRemainder(), spec.greenRemainder(), spec.blueRemainder()})},
        {"alpha", spec.alphaComp()}};
}

Json jsonFromPropertyList(const PropertyList& value)
{
    if (const auto* string = value.string()) return jsonFromText(*string);
    if (value.data() != nullptr) return jsonFromText(propertyListText(value));
    if (const auto* array = value.array()) {
        Json json = Json::array();
        for (const PropertyList& element : *array)
            json.push_back(jsonFromPropertyList(element));
        return json;
    }
    Json json = Json::object();
    for (const auto& [key, entry] : *value.dictionary()) {
        json[utf8FromUtf16(key)] = jsonFromPropertyList(entry);
    }
    return json;
}

Json jsonFromOperations(const std::vector<PaintOperation>& operations)
{
    Json json = Json::array();
    for (const PaintOperation& operation : operations) {
        json.push_back(std::visit(OperationWriter(), operation));
    }
    return json;
}

Json jsonFromImage(const std::optional<HostImage>& image)
{
    if (!image) return nullptr;
    RecordingCanvas canvas;
    image->paint(canvas);
    return {{"size", jsonFromSize(image->size)},
            {"ops", jsonFromOperations(canvas.operations())},
            {"fraction", image->fraction}};
}

Json jsonFromMenu(const HostMenu& menu)
{
    Json json = Json::array();
    for (const HostMenuItem& item : menu) {
        json.push_back({{"title", jsonFromText(item.title)},
                        {"separator", item.separator},
                        {"image", item.image ? jsonFromSize(item.image->size) : Json()},
                        {"items", item.submenu ? jsonFromMenu(item.submenu()) : Json()}});
    }
    return json;
}

Json jsonFromJournal(const HeadlessJournal& journal)
{
    Json json = Json::array();
    for (const JournalEntry& entry : journal)
        json.push_back(std::visit(JournalWriter(), entry));
    return json;
}

}  // namespace vantorel
