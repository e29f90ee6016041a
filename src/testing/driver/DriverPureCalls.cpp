#include "color/ColorMeasures.h"
#include "color/ColorTexts.h"
#include "colorlists/ColorSort.h"
#include "colorlists/QTXHexColorLists.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "settings/QTXHexSettings.h"
#include "testing/driver/DriverRequests.h"
#include "testing/driver/JsonValues.h"
#include "text/Unicode.h"

#include <map>

namespace vantorel {
namespace {

/// The arguments of a call, read by their index.
class Arguments {
public:
    explicit Arguments(const Json& list) : _list(list) {}

    [[nodiscard]] const Json& at(std::size_t index) const { return argumentAt(_list, index); }
    [[nodiscard]] std::u16string text(std::size_t i) const { return textFrom(at(i), name(i)); }
    /// Returns an empty text for null. Readers treat a missing text as an empty one.
    [[nodiscard]] std::u16string textOrNull(std::size_t i) const
    {
        return optionalTextFrom(at(i), name(i)).value_or(u"");
    }
    [[nodiscard]] std::int64_t integer(std::size_t i) const { return integerFrom(at(i), name(i)); }
    /// Reads any 64-bit component. Negative numbers are converted to unsigned ones.
    [[nodiscard]] std::uint64_t component(std::size_t i) const
    {
        return at(i).is_number_unsigned() ? at(i).get<std::uint64_t>()
                                          : static_cast<std::uint64_t>(integer(i));
    }
    [[nodiscard]] double number(std::size_t i) const { return numberFrom(at(i), name(i)); }
    [[nodiscard]] std::optional<HostColor> color(std::size_t i) const
    {
        return optionalColorFrom(at(i), name(i));
    }
    template <class Enumeration>
    [[nodiscard]] Enumeration enumeration(std::size_t i) const
    {
        return enumerationFrom<Enumeration>(at(i), name(i));
    }

private:
    static std::string name(std::size_t i) { return "argument " + std::to_string(i + 1); }

    const Json& _list;
};

std::int64_t number(PickViewMode mode)
{
    return static_cast<std::int64_t>(mode);
}

int smallInteger(std::int64_t value)
{
    return static_cast<int>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

char16_t oneCharacter(const std::u16string& text)
{
    if (text.size() != 1) throw DriverError("argument 1 must be one character");
    return text.front();
}

Json fromNameOrNull(const Arguments& a, auto&& valueFromName)
{
    return static_cast<std::int32_t>(valueFromName(a.textOrNull(0)));
}

using Call = Json (*)(const Arguments&);

const std::map<std::string, Call>& calls()
{
    // clang-format off
    static const std::map<std::string, Call> table{
        {"decodeHex", [](const Arguments& a) -> Json { return decodeHex(oneCharacter(a.text(0))); }},
        {"hexFromInt", [](const Arguments& a) { return jsonFromText(hexFromInt(a.integer(0), a.enumeration<EntryForm>(1))); }},
        {"readHex", [](const Arguments& a) -> Json { return readHex(a.textOrNull(0)); }},
        {"readInt", [](const Arguments& a) -> Json { return readInt(a.textOrNull(0)); }},
        {"readFraction", [](const Arguments& a) -> Json { return readFraction(a.textOrNull(0)); }},
        {"readComponent", [](const Arguments& a) -> Json { return readComponent(a.textOrNull(0), a.enumeration<ComponentDisplay>(1)); }},
        {"compStringHexColorSpec", [](const Arguments& a) { return jsonFromText(compStringHexColorSpec(a.component(0), a.enumeration<EntryForm>(1), a.enumeration<ComponentDisplay>(2))); }},
        {"hexCompStringHexColorSpec", [](const Arguments& a) { return jsonFromText(hexCompStringHexColorSpec(a.component(0), a.enumeration<EntryForm>(1))); }},
        {"validHexString", [](const Arguments& a) { return jsonFromText(validHexString(a.textOrNull(0), smallInteger(a.integer(1)))); }},
        {"webSafeColorFromName", [](const Arguments& a) { return jsonFromColor(webSafeColorFromName(a.textOrNull(0))); }},
        {"exactHexColor", [](const Arguments& a) -> Json { return exactHexColor(a.color(0)); }},
        {"distanceBetweenPoints", [](const Arguments& a) -> Json { return distanceBetweenPoints(a.number(0), a.number(1), a.number(2), a.number(3)); }},
        {"colorSortFunc", [](const Arguments& a) -> Json { return colorSortFunc(a.color(0).value_or(HostColor::blackColor()), a.color(1).value_or(HostColor::blackColor())); }},
        {"nameEntryForm", [](const Arguments& a) { return jsonFromText(QTXHexSettings::nameEntryForm(a.enumeration<EntryForm>(0))); }},
        {"entryFormFromName", [](const Arguments& a) { return fromNameOrNull(a, QTXHexSettings::entryFormFromName); }},
        {"entryFormNames", [](const Arguments&) { return jsonFromTexts(QTXHexSettings::entryFormNames()); }},
        {"nameComponentDisplay", [](const Arguments& a) { return jsonFromText(QTXHexSettings::nameComponentDisplay(a.enumeration<ComponentDisplay>(0))); }},
        {"componentDisplayFromName", [](const Arguments& a) { return fromNameOrNull(a, QTXHexSettings::componentDisplayFromName); }},
        {"componentDisplayNames", [](const Arguments&) { return jsonFromTexts(QTXHexSettings::componentDisplayNames()); }},
        {"nameCodeDragType", [](const Arguments& a) { return jsonFromText(QTXHexSettings::nameCodeDragType(a.enumeration<CodeDragType>(0))); }},
        {"codeDragTypeFromName", [](const Arguments& a) { return fromNameOrNull(a, QTXHexSettings::codeDragTypeFromName); }},
        {"codeDragTypeNames", [](const Arguments&) { return jsonFromTexts(QTXHexSettings::codeDragTypeNames()); }},
        {"stringFromPickViewMode", [](const Arguments& a) { return jsonFromText(stringFromPickViewMode(a.enumeration<PickViewMode>(0))); }},
        {"pickViewModeFromString", [](const Arguments& a) -> Json { return number(pickViewModeFromString(a.textOrNull(0))); }},
        {"nameFromHexColorList", [](const Arguments& a) { return jsonFromText(nameFromHexColorList(BuiltInList{smallInteger(a.integer(0))})); }},
        {"hexColorListFromString", [](const Arguments& a) -> Json { return static_cast<int>(hexColorListFromString(a.textOrNull(0))); }},
        {"allHexColorListNames", [](const Arguments&) { return jsonFromTexts(allHexColorListNames()); }},
        {"buildDefaultCodeSnippetDictionaries", [](const Arguments&) { return jsonFromPropertyList(QTXCodeSnippet::buildDefaultCodeSnippetDictionaries()); }},
    };
    // clang-format on
    return table;
}

}  // namespace

Json replyToCall(const Json& request)
{
    const std::string name = utf8FromUtf16(textFrom(requiredMember(request, "fn"), "fn"));
    const auto found = calls().find(name);
    if (found == calls().end()) throw DriverError("no function is called \"" + name + "\"");
    const Json* given = optionalMember(request, "args");
    const Json none = Json::array();
    const Json& arguments = given != nullptr ? listFrom(*given, "args") : none;
    return {{"result", found->second(Arguments(arguments))}};
}

Json replyToSnippet(const Json& request)
{
    QTXCodeSnippet snippet;
    if (const Json* name = optionalMember(request, "name")) {
        snippet.setNameSnippet(optionalTextFrom(*name, "name"));
    }
    snippet.setFormatStringSnippet(optionalTextFrom(requiredMember(request, "format"), "format"));
    snippet.setVarFormSnippet(optionalTextFrom(requiredMember(request, "vars"), "vars"));
    const auto spec = optionalSpecFrom({{"components", requiredMember(request, "components")},
                                        {"alpha", requiredMember(request, "alpha")}},
                                       "the colour");
    return {{"result", jsonFromText(snippet.codeSnippetWithColorSpec(*spec))}};
}

Json replyToPropertyListParse(const Json& request)
{
    const auto value = parsePropertyList(textFrom(requiredMember(request, "text"), "text"));
    return {{"value", value ? jsonFromPropertyList(*value) : Json()}};
}

Json replyToPropertyListWrite(const Json& request)
{
    const PropertyList value = propertyListFrom(requiredMember(request, "value"), "value");
    return {{"text", jsonFromText(propertyListText(value))}};
}

}  // namespace vantorel
