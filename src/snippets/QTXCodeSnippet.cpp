#include "snippets/QTXCodeSnippet.h"

#include "color/ChannelConversion.h"
#include "snippets/FormatString.h"

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

/// Returns the arguments of the format for a variable form, or `std::nullopt` if the form is
/// unknown.
std::optional<std::vector<FormatArgument>> argumentsOfForm(std::u16string_view form,
                                                           const QTXHexColorSpec& spec)
{
    const std::vector<FormatArgument> fractions{static_cast<double>(spec.redHexComp()) / 255,
                                                static_cast<double>(spec.greenHexComp()) / 255,
                                                static_cast<double>(spec.blueHexComp()) / 255};
    const std::vector<FormatArgument> integers{spec.redHexComp(), spec.greenHexComp(),
                                               spec.blueHexComp()};
    // A negative alpha keeps its sign, in two's complement like every integer argument.
    const auto alphaByte = static_cast<std::uint64_t>(truncatedSigned(spec.alphaComp() * 255));
    const auto with = [](std::vector<FormatArgument> arguments, FormatArgument alpha) {
        arguments.push_back(std::move(alpha));
        return arguments;
    };
    if (form == u"rgbaFloats") return with(fractions, spec.alphaComp());
    if (form == u"rgbFloats") return fractions;
    if (form == u"rgbFixedAlphaFloat") return with(integers, spec.alphaComp());
    if (form == u"rgbFixed") return integers;
    if (form == u"rgbaFixed") return with(integers, alphaByte);
    if (form == u"rgbPackedInt") return {{spec.javaRGBInt()}};
    if (form == u"rgbaPackedInt") return {{spec.javaRGBAInt()}};
    return std::nullopt;
}

}  // namespace

std::u16string QTXCodeSnippet::codeSnippetWithColorSpec(const QTXHexColorSpec& colorSpec) const
{
    const auto arguments = argumentsOfForm(_varFormSnippet.value_or(u""), colorSpec);
    if (!arguments) return u"??";
    return formatted(_formatStringSnippet.value_or(u""), *arguments);
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
