#include "csscolor/CSSNamedColors.h"

#include "text/ASCII.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

// clang-format off
// The picker's colour lists also contain most of these names, but with misspelt keys, and users can
// edit them. CSS names must not depend on that.
constexpr std::array namedColors{
    CSSNamedColor{u"aliceblue", 0xF0F8FF},
    CSSNamedColor{u"antiquewhite", 0xFAEBD7},
    CSSNamedColor{u"aqua", 0x00FFFF},
    CSSNamedColor{u"aquamarine", 0x7FFFD4},
    CSSNamedColor{u"azure", 0xF0FFFF},
    CSSNamedColor{u"beige", 0xF5F5DC},
    CSSNamedColor{u"bisque", 0xFFE4C4},
    CSSNamedColor{u"black", 0x000000},
    CSSNamedColor{u"blanchedalmond", 0xFFEBCD},
    CSSNamedColor{u"blue", 0x0000FF},
    CSSNamedColor{u"blueviolet", 0x8A2BE2},
    CSSNamedColor{u"brown", 0xA52A2A},
    CSSNamedColor{u"burlywood", 0xDEB887},
    CSSNamedColor{u"cadetblue", 0x5F9EA0},
    CSSNamedColor{u"chartreuse", 0x7FFF00},
    CSSNamedColor{u"chocolate", 0xD2691E},
    CSSNamedColor{u"coral", 0xFF7F50},
    CSSNamedColor{u"cornflowerblue", 0x6495ED},
    CSSNamedColor{u"cornsilk", 0xFFF8DC},
    CSSNamedColor{u"crimson", 0xDC143C},
    CSSNamedColor{u"cyan", 0x00FFFF},
    CSSNamedColor{u"darkblue", 0x00008B},
    CSSNamedColor{u"darkcyan", 0x008B8B},
    CSSNamedColor{u"darkgoldenrod", 0xB8860B},
    CSSNamedColor{u"darkgray", 0xA9A9A9},
    CSSNamedColor{u"darkgreen", 0x006400},
    CSSNamedColor{u"darkgrey", 0xA9A9A9},
    CSSNamedColor{u"darkkhaki", 0xBDB76B},
    CSSNamedColor{u"darkmagenta", 0x8B008B},
    CSSNamedColor{u"darkolivegreen", 0x556B2F},
    CSSNamedColor{u"darkorange", 0xFF8C00},
    CSSNamedColor{u"darkorchid", 0x9932CC},
    CSSNamedColor{u"darkred", 0x8B0000},
    CSSNamedColor{u"darksalmon", 0xE9967A},
    CSSNamedColor{u"darkseagreen", 0x8FBC8F},
    CSSNamedColor{u"darkslateblue", 0x483D8B},
    CSSNamedColor{u"darkslategray", 0x2F4F4F},
    CSSNamedColor{u"darkslategrey", 0x2F4F4F},
    CSSNamedColor{u"darkturquoise", 0x00CED1},
    CSSNamedColor{u"darkviolet", 0x9400D3},
    CSSNamedColor{u"deeppink", 0xFF1493},
    CSSNamedColor{u"deepskyblue", 0x00BFFF},
    CSSNamedColor{u"dimgray", 0x696969},
    CSSNamedColor{u"dimgrey", 0x696969},
    CSSNamedColor{u"dodgerblue", 0x1E90FF},
    CSSNamedColor{u"firebrick", 0xB22222},
    CSSNamedColor{u"floralwhite", 0xFFFAF0},
    CSSNamedColor{u"forestgreen", 0x228B22},
    CSSNamedColor{u"fuchsia", 0xFF00FF},
    CSSNamedColor{u"gainsboro", 0xDCDCDC},
    CSSNamedColor{u"ghostwhite", 0xF8F8FF},
    CSSNamedColor{u"gold", 0xFFD700},
    CSSNamedColor{u"goldenrod", 0xDAA520},
    CSSNamedColor{u"gray", 0x808080},
    CSSNamedColor{u"green", 0x008000},
    CSSNamedColor{u"greenyellow", 0xADFF2F},
    CSSNamedColor{u"grey", 0x808080},
    CSSNamedColor{u"honeydew", 0xF0FFF0},
    CSSNamedColor{u"hotpink", 0xFF69B4},
    CSSNamedColor{u"indianred", 0xCD5C5C},
    CSSNamedColor{u"indigo", 0x4B0082},
    CSSNamedColor{u"ivory", 0xFFFFF0},
    CSSNamedColor{u"khaki", 0xF0E68C},
    CSSNamedColor{u"lavender", 0xE6E6FA},
    CSSNamedColor{u"lavenderblush", 0xFFF0F5},
    CSSNamedColor{u"lawngreen", 0x7CFC00},
    CSSNamedColor{u"lemonchiffon", 0xFFFACD},
    CSSNamedColor{u"lightblue", 0xADD8E6},
    CSSNamedColor{u"lightcoral", 0xF08080},
    CSSNamedColor{u"lightcyan", 0xE0FFFF},
    CSSNamedColor{u"lightgoldenrodyellow", 0xFAFAD2},
    CSSNamedColor{u"lightgray", 0xD3D3D3},
    CSSNamedColor{u"lightgreen", 0x90EE90},
    CSSNamedColor{u"lightgrey", 0xD3D3D3},
    CSSNamedColor{u"lightpink", 0xFFB6C1},
    CSSNamedColor{u"lightsalmon", 0xFFA07A},
    CSSNamedColor{u"lightseagreen", 0x20B2AA},
    CSSNamedColor{u"lightskyblue", 0x87CEFA},
    CSSNamedColor{u"lightslategray", 0x778899},
    CSSNamedColor{u"lightslategrey", 0x778899},
    CSSNamedColor{u"lightsteelblue", 0xB0C4DE},
    CSSNamedColor{u"lightyellow", 0xFFFFE0},
    CSSNamedColor{u"lime", 0x00FF00},
    CSSNamedColor{u"limegreen", 0x32CD32},
    CSSNamedColor{u"linen", 0xFAF0E6},
    CSSNamedColor{u"magenta", 0xFF00FF},
    CSSNamedColor{u"maroon", 0x800000},
    CSSNamedColor{u"mediumaquamarine", 0x66CDAA},
    CSSNamedColor{u"mediumblue", 0x0000CD},
    CSSNamedColor{u"mediumorchid", 0xBA55D3},
    CSSNamedColor{u"mediumpurple", 0x9370DB},
    CSSNamedColor{u"mediumseagreen", 0x3CB371},
    CSSNamedColor{u"mediumslateblue", 0x7B68EE},
    CSSNamedColor{u"mediumspringgreen", 0x00FA9A},
    CSSNamedColor{u"mediumturquoise", 0x48D1CC},
    CSSNamedColor{u"mediumvioletred", 0xC71585},
    CSSNamedColor{u"midnightblue", 0x191970},
    CSSNamedColor{u"mintcream", 0xF5FFFA},
    CSSNamedColor{u"mistyrose", 0xFFE4E1},
    CSSNamedColor{u"moccasin", 0xFFE4B5},
    CSSNamedColor{u"navajowhite", 0xFFDEAD},
    CSSNamedColor{u"navy", 0x000080},
    CSSNamedColor{u"oldlace", 0xFDF5E6},
    CSSNamedColor{u"olive", 0x808000},
    CSSNamedColor{u"olivedrab", 0x6B8E23},
    CSSNamedColor{u"orange", 0xFFA500},
    CSSNamedColor{u"orangered", 0xFF4500},
    CSSNamedColor{u"orchid", 0xDA70D6},
    CSSNamedColor{u"palegoldenrod", 0xEEE8AA},
    CSSNamedColor{u"palegreen", 0x98FB98},
    CSSNamedColor{u"paleturquoise", 0xAFEEEE},
    CSSNamedColor{u"palevioletred", 0xDB7093},
    CSSNamedColor{u"papayawhip", 0xFFEFD5},
    CSSNamedColor{u"peachpuff", 0xFFDAB9},
    CSSNamedColor{u"peru", 0xCD853F},
    CSSNamedColor{u"pink", 0xFFC0CB},
    CSSNamedColor{u"plum", 0xDDA0DD},
    CSSNamedColor{u"powderblue", 0xB0E0E6},
    CSSNamedColor{u"purple", 0x800080},
    CSSNamedColor{u"rebeccapurple", 0x663399},
    CSSNamedColor{u"red", 0xFF0000},
    CSSNamedColor{u"rosybrown", 0xBC8F8F},
    CSSNamedColor{u"royalblue", 0x4169E1},
    CSSNamedColor{u"saddlebrown", 0x8B4513},
    CSSNamedColor{u"salmon", 0xFA8072},
    CSSNamedColor{u"sandybrown", 0xF4A460},
    CSSNamedColor{u"seagreen", 0x2E8B57},
    CSSNamedColor{u"seashell", 0xFFF5EE},
    CSSNamedColor{u"sienna", 0xA0522D},
    CSSNamedColor{u"silver", 0xC0C0C0},
    CSSNamedColor{u"skyblue", 0x87CEEB},
    CSSNamedColor{u"slateblue", 0x6A5ACD},
    CSSNamedColor{u"slategray", 0x708090},
    CSSNamedColor{u"slategrey", 0x708090},
    CSSNamedColor{u"snow", 0xFFFAFA},
    CSSNamedColor{u"springgreen", 0x00FF7F},
    CSSNamedColor{u"steelblue", 0x4682B4},
    CSSNamedColor{u"tan", 0xD2B48C},
    CSSNamedColor{u"teal", 0x008080},
    CSSNamedColor{u"thistle", 0xD8BFD8},
    CSSNamedColor{u"tomato", 0xFF6347},
    CSSNamedColor{u"turquoise", 0x40E0D0},
    CSSNamedColor{u"violet", 0xEE82EE},
    CSSNamedColor{u"wheat", 0xF5DEB3},
    CSSNamedColor{u"white", 0xFFFFFF},
    CSSNamedColor{u"whitesmoke", 0xF5F5F5},
    CSSNamedColor{u"yellow", 0xFFFF00},
    CSSNamedColor{u"yellowgreen", 0x9ACD32},
};

constexpr std::array<std::u16string_view, 43> contextualColors{
    u"accentcolor", u"accentcolortext", u"activeborder", u"activecaption", u"activetext",
    u"appworkspace", u"background", u"buttonborder", u"buttonface", u"buttonhighlight",
    u"buttonshadow", u"buttontext", u"canvas", u"canvastext", u"captiontext", u"currentcolor",
    u"field", u"fieldtext", u"graytext", u"highlight", u"highlighttext", u"inactiveborder",
    u"inactivecaption", u"inactivecaptiontext", u"infobackground", u"infotext", u"linktext",
    u"mark", u"marktext", u"menu", u"menutext", u"scrollbar", u"selecteditem",
    u"selecteditemtext", u"threeddarkshadow", u"threedface", u"threedhighlight",
    u"threedlightshadow", u"threedshadow", u"visitedtext", u"window", u"windowframe",
    u"windowtext",
};
// clang-format on

static_assert(namedColors.size() == 148);
static_assert(std::ranges::is_sorted(namedColors, {}, &CSSNamedColor::name));
static_assert(std::ranges::is_sorted(contextualColors));

constexpr std::size_t longestName =
    std::ranges::max(namedColors, {}, [](const CSSNamedColor& color) {
        return color.name.size();
    }).name.size();

/// The indices of `namedColors` at the hashes of their names, or at the next free places after
/// them. A lookup compares one name, or few; a binary search compares seven, and the processor
/// predicts none of its branches.
using NameTable = std::array<std::uint8_t, 512>;
constexpr std::uint8_t noName = 0xFF;

/// Returns `std::nullopt` at the first character that is not a letter: no name has one, but what
/// begins a function soon has.
template <TextUnit Unit>
constexpr std::optional<std::size_t> placeOfName(std::basic_string_view<Unit> name)
{
    std::size_t hash = 0;
    for (const Unit unit : name) {
        if (!isLetter(unit)) return std::nullopt;
        hash = hash * 31 + static_cast<std::size_t>(lowerCase(unit));
    }
    return hash % NameTable{}.size();
}

constexpr std::size_t placeAfter(std::size_t place)
{
    return (place + 1) % NameTable{}.size();
}

constexpr NameTable tableOfNames()
{
    NameTable table{};
    table.fill(noName);
    for (std::size_t i = 0; i < namedColors.size(); ++i) {
        std::size_t place = placeOfName(namedColors[i].name).value();
        while (table[place] != noName)
            place = placeAfter(place);
        table[place] = static_cast<std::uint8_t>(i);
    }
    return table;
}

constexpr NameTable nameTable = tableOfNames();

template <TextUnit Unit>
std::optional<std::uint32_t> valueOfName(std::basic_string_view<Unit> name)
{
    if (name.size() > longestName) return std::nullopt;
    const auto first = placeOfName(name);
    if (!first) return std::nullopt;
    for (std::size_t place = *first; nameTable[place] != noName; place = placeAfter(place)) {
        const CSSNamedColor& color = namedColors[nameTable[place]];
        if (std::ranges::equal(color.name, name, {}, {}, lowerCase<Unit>)) return color.value;
    }
    return std::nullopt;
}

}  // namespace

std::span<const CSSNamedColor> cssNamedColors()
{
    return namedColors;
}

std::optional<std::u16string_view> cssNameOfColor(std::uint64_t value)
{
    const auto* const found = std::ranges::find(namedColors, value, &CSSNamedColor::value);
    if (found == namedColors.end()) return std::nullopt;
    return found->name;
}

std::optional<std::uint32_t> cssNamedColor(std::u16string_view name)
{
    return valueOfName(name);
}

std::optional<std::uint32_t> cssNamedColor(std::string_view name)
{
    return valueOfName(name);
}

bool isContextualCSSColor(std::u16string_view keyword)
{
    return std::ranges::binary_search(contextualColors, keyword);
}

}  // namespace vantorel
