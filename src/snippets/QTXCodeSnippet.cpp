#include "snippets/QTXCodeSnippet.h"

#include "snippets/FormatString.h"
#include "snippets/SnippetValues.h"

#include <array>

namespace vantorel {
namespace {

constexpr const char16_t* NameSnippetKey = u"NameSnippet";
constexpr const char16_t* FormatSnippetKey = u"FormatSnippet";
constexpr const char16_t* VarsSnippetKey = u"VarsSnippet";

struct BuiltInSnippet {
    const char16_t* name;
    const char16_t* format;
    const char16_t* varForm;
};

// clang-format off
constexpr std::array builtInSnippets{
    BuiltInSnippet{u"ObjC fraction", u"[NSColor colorWithCalibratedRed:%7.5f green:%7.5f blue:%7.5f alpha:%7.5f]", u"rgbaFloats"},
    BuiltInSnippet{u"ObjC decimal", u"[NSColor colorWithCalibratedRed:(%d / 255.0) green:(%d / 255.0) blue:(%d / 255.0) alpha:%7.5f]", u"rgbFixedAlphaFloat"},
    BuiltInSnippet{u"ObjC hex", u"[NSColor colorWithCalibratedRed:((CGFloat)0x%02x / (CGFloat)0xff) green:((CGFloat)0x%02x / (CGFloat)0xff) blue:((CGFloat)0x%02x / (CGFloat)0xff) alpha:%7.5f]", u"rgbFixedAlphaFloat"},
    BuiltInSnippet{u"Carbon hex", u"RGBColor myColor = {0x%02x, 0x%02x, 0x%02x};", u"rgbFixed"},
    BuiltInSnippet{u"Carbon decimal", u"RGBColor myColor = {%d, %d, %d};", u"rgbFixed"},
    BuiltInSnippet{u"Java CGFloat", u"Color(%7.5f, %7.5f, %7.5f)", u"rgbFloats"},
    BuiltInSnippet{u"Java CGFloat A", u"Color(%7.5f, %7.5f, %7.5f, %7.5f)", u"rgbaFloats"},
    BuiltInSnippet{u"Java NSInteger", u"Color(0x%06x)", u"rgbPackedInt"},
    BuiltInSnippet{u"Java NSInteger A", u"Color(0x%x)", u"rgbaPackedInt"},
    BuiltInSnippet{u"Java NSInteger 3", u"Color(0x%02x, 0x%02x, 0x%02x)", u"rgbFixed"},
    BuiltInSnippet{u"Java NSInteger 4", u"Color(0x%02x, 0x%02x, 0x%02x, 0x%02x)", u"rgbaFixed"},
    BuiltInSnippet{u"VBasic", u"RGB(%d, %d, %d)", u"rgbFixed"},
};
// clang-format on

}  // namespace

std::u16string QTXCodeSnippet::codeSnippetWithColorSpec(const QTXHexColorSpec& colorSpec) const
{
    const auto values = valuesOfVarForm(_varFormSnippet.value_or(u""));
    if (!values) return u"??";
    std::vector<FormatArgument> arguments;
    arguments.reserve(values->size());
    for (const SnippetValue& value : *values)
        arguments.push_back(value.of(colorSpec));
    return formatted(_formatStringSnippet.value_or(u""), arguments);
}

PropertyList QTXCodeSnippet::propertyListRepresentation() const
{
    PropertyList dictionary(PropertyList::Dictionary{});
    if (_nameSnippet) dictionary.setValue(*_nameSnippet, NameSnippetKey);
    if (_formatStringSnippet) dictionary.setValue(*_formatStringSnippet, FormatSnippetKey);
    if (_varFormSnippet) dictionary.setValue(*_varFormSnippet, VarsSnippetKey);
    return dictionary;
}

void QTXCodeSnippet::loadPropertyListRepresentation(const PropertyList& dictionary)
{
    if (const auto* name = dictionary.stringForKey(NameSnippetKey)) _nameSnippet = *name;
    if (const auto* format = dictionary.stringForKey(FormatSnippetKey)) {
        _formatStringSnippet = *format;
    }
    if (const auto* form = dictionary.stringForKey(VarsSnippetKey)) _varFormSnippet = *form;
}

const PropertyList& QTXCodeSnippet::buildDefaultCodeSnippetDictionaries()
{
    static const PropertyList dictionaries = [] {
        PropertyList::Array array;
        for (const auto& [name, format, varForm] : builtInSnippets) {
            array.push_back(QTXCodeSnippet(name, format, varForm).propertyListRepresentation());
        }
        return PropertyList(std::move(array));
    }();
    return dictionaries;
}

const std::vector<QTXCodeSnippet>& QTXCodeSnippet::buildDefaultCodeSnippets()
{
    static const std::vector<QTXCodeSnippet> snippets = [] {
        std::vector<QTXCodeSnippet> result;
        for (const PropertyList& dictionary : *buildDefaultCodeSnippetDictionaries().array()) {
            result.emplace_back().loadPropertyListRepresentation(dictionary);
        }
        return result;
    }();
    return snippets;
}

}  // namespace vantorel
