#include "csscolor/CSSNamedColors.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

struct NamedColor {
    std::u16string_view name;
    std::uint32_t value;
};

// clang-format off
// The picker's colour lists also contain most of these names, but with misspelt keys, and users can
// edit them. CSS names must not depend on that.
constexpr std::array namedColors{
    NamedColor{u"aliceblue", 0xF0F8FF},
    NamedColor{u"antiquewhite", 0xFAEBD7},
    NamedColor{u"aqua", 0x00FFFF},
    NamedColor{u"aquamarine", 0x7FFFD4},
    NamedColor{u"azure", 0xF0FFFF},
    NamedColor{u"beige", 0xF5F5DC},
    NamedColor{u"bisque", 0xFFE4C4},
    NamedColor{u"black", 0x000000},
    NamedColor{u"blanchedalmond", 0xFFEBCD},
    NamedColor{u"blue", 0x0000FF},
    NamedColor{u"blueviolet", 0x8A2BE2},
    NamedColor{u"brown", 0xA52A2A},
    NamedColor{u"burlywood", 0xDEB887},
    NamedColor{u"cadetblue", 0x5F9EA0},
    NamedColor{u"chartreuse", 0x7FFF00},
    NamedColor{u"chocolate", 0xD2691E},
    NamedColor{u"coral", 0xFF7F50},
    NamedColor{u"cornflowerblue", 0x6495ED},
    NamedColor{u"cornsilk", 0xFFF8DC},
    NamedColor{u"crimson", 0xDC143C},
    NamedColor{u"cyan", 0x00FFFF},
    NamedColor{u"darkblue", 0x00008B},
    NamedColor{u"darkcyan", 0x008B8B},
    NamedColor{u"darkgoldenrod", 0xB8860B},
    NamedColor{u"darkgray", 0xA9A9A9},
    NamedColor{u"darkgreen", 0x006400},
    NamedColor{u"darkgrey", 0xA9A9A9},
    NamedColor{u"darkkhaki", 0xBDB76B},
    NamedColor{u"darkmagenta", 0x8B008B},
    NamedColor{u"darkolivegreen", 0x556B2F},
    NamedColor{u"darkorange", 0xFF8C00},
    NamedColor{u"darkorchid", 0x9932CC},
    NamedColor{u"darkred", 0x8B0000},
    NamedColor{u"darksalmon", 0xE9967A},
    NamedColor{u"darkseagreen", 0x8FBC8F},
    NamedColor{u"darkslateblue", 0x483D8B},
    NamedColor{u"darkslategray", 0x2F4F4F},
    NamedColor{u"darkslategrey", 0x2F4F4F},
    NamedColor{u"darkturquoise", 0x00CED1},
    NamedColor{u"darkviolet", 0x9400D3},
    NamedColor{u"deeppink", 0xFF1493},
    NamedColor{u"deepskyblue", 0x00BFFF},
    NamedColor{u"dimgray", 0x696969},
    NamedColor{u"dimgrey", 0x696969},
    NamedColor{u"dodgerblue", 0x1E90FF},
    NamedColor{u"firebrick", 0xB22222},
    NamedColor{u"floralwhite", 0xFFFAF0},
    NamedColor{u"forestgreen", 0x228B22},
    NamedColor{u"fuchsia", 0xFF00FF},
    NamedColor{u"gainsboro", 0xDCDCDC},
    NamedColor{u"ghostwhite", 0xF8F8FF},
    NamedColor{u"gold", 0xFFD700},
    NamedColor{u"goldenrod", 0xDAA520},
    NamedColor{u"gray", 0x808080},
    NamedColor{u"green", 0x008000},
    NamedColor{u"greenyellow", 0xADFF2F},
    NamedColor{u"grey", 0x808080},
    NamedColor{u"honeydew", 0xF0FFF0},
    NamedColor{u"hotpink", 0xFF69B4},
    NamedColor{u"indianred", 0xCD5C5C},
    NamedColor{u"indigo", 0x4B0082},
    NamedColor{u"ivory", 0xFFFFF0},
    NamedColor{u"khaki", 0xF0E68C},
    NamedColor{u"lavender", 0xE6E6FA},
    NamedColor{u"lavenderblush", 0xFFF0F5},
    NamedColor{u"lawngreen", 0x7CFC00},
    NamedColor{u"lemonchiffon", 0xFFFACD},
    NamedColor{u"lightblue", 0xADD8E6},
    NamedColor{u"lightcoral", 0xF08080},
    NamedColor{u"lightcyan", 0xE0FFFF},
    NamedColor{u"lightgoldenrodyellow", 0xFAFAD2},
    NamedColor{u"lightgray", 0xD3D3D3},
    NamedColor{u"lightgreen", 0x90EE90},
    NamedColor{u"lightgrey", 0xD3D3D3},
    NamedColor{u"lightpink", 0xFFB6C1},
    NamedColor{u"lightsalmon", 0xFFA07A},
    NamedColor{u"lightseagreen", 0x20B2AA},
    NamedColor{u"lightskyblue", 0x87CEFA},
    NamedColor{u"lightslategray", 0x778899},
    NamedColor{u"lightslategrey", 0x778899},
    NamedColor{u"lightsteelblue", 0xB0C4DE},
    NamedColor{u"lightyellow", 0xFFFFE0},
    NamedColor{u"lime", 0x00FF00},
    NamedColor{u"limegreen", 0x32CD32},
    NamedColor{u"linen", 0xFAF0E6},
    NamedColor{u"magenta", 0xFF00FF},
    NamedColor{u"maroon", 0x800000},
    NamedColor{u"mediumaquamarine", 0x66CDAA},
    NamedColor{u"mediumblue", 0x0000CD},
    NamedColor{u"mediumorchid", 0xBA55D3},
    NamedColor{u"mediumpurple", 0x9370DB},
    NamedColor{u"mediumseagreen", 0x3CB371},
    NamedColor{u"mediumslateblue", 0x7B68EE},
    NamedColor{u"mediumspringgreen", 0x00FA9A},
    NamedColor{u"mediumturquoise", 0x48D1CC},
    NamedColor{u"mediumvioletred", 0xC71585},
    NamedColor{u"midnightblue", 0x191970},
    NamedColor{u"mintcream", 0xF5FFFA},
    NamedColor{u"mistyrose", 0xFFE4E1},
    NamedColor{u"moccasin", 0xFFE4B5},
    NamedColor{u"navajowhite", 0xFFDEAD},
    NamedColor{u"navy", 0x000080},
    NamedColor{u"oldlace", 0xFDF5E6},
    NamedColor{u"olive", 0x808000},
    NamedColor{u"olivedrab", 0x6B8E23},
    NamedColor{u"orange", 0xFFA500},
    NamedColor{u"orangered", 0xFF4500},
    NamedColor{u"orchid", 0xDA70D6},
    NamedColor{u"palegoldenrod", 0xEEE8AA},
    NamedColor{u"palegreen", 0x98FB98},
    NamedColor{u"paleturquoise", 0xAFEEEE},
    NamedColor{u"palevioletred", 0xDB7093},
    NamedColor{u"papayawhip", 0xFFEFD5},
    NamedColor{u"peachpuff", 0xFFDAB9},
    NamedColor{u"peru", 0xCD853F},
    NamedColor{u"pink", 0xFFC0CB},
    NamedColor{u"plum", 0xDDA0DD},
    NamedColor{u"powderblue", 0xB0E0E6},
    NamedColor{u"purple", 0x800080},
    NamedColor{u"rebeccapurple", 0x663399},
    NamedColor{u"red", 0xFF0000},
    NamedColor{u"rosybrown", 0xBC8F8F},
    NamedColor{u"royalblue", 0x4169E1},
    NamedColor{u"saddlebrown", 0x8B4513},
    NamedColor{u"salmon", 0xFA8072},
    NamedColor{u"sandybrown", 0xF4A460},
    NamedColor{u"seagreen", 0x2E8B57},
    NamedColor{u"seashell", 0xFFF5EE},
    NamedColor{u"sienna", 0xA0522D},
    NamedColor{u"silver", 0xC0C0C0},
    NamedColor{u"skyblue", 0x87CEEB},
    NamedColor{u"slateblue", 0x6A5ACD},
    NamedColor{u"slategray", 0x708090},
    NamedColor{u"slategrey", 0x708090},
    NamedColor{u"snow", 0xFFFAFA},
    NamedColor{u"springgreen", 0x00FF7F},
    NamedColor{u"steelblue", 0x4682B4},
    NamedColor{u"tan", 0xD2B48C},
    NamedColor{u"teal", 0x008080},
    NamedColor{u"thistle", 0xD8BFD8},
    NamedColor{u"tomato", 0xFF6347},
    NamedColor{u"turquoise", 0x40E0D0},
    NamedColor{u"violet", 0xEE82EE},
    NamedColor{u"wheat", 0xF5DEB3},
    NamedColor{u"white", 0xFFFFFF},
    NamedColor{u"whitesmoke", 0xF5F5F5},
    NamedColor{u"yellow", 0xFFFF00},
    NamedColor{u"yellowgreen", 0x9ACD32},
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
static_assert(std::ranges::is_sorted(namedColors, {}, &NamedColor::name));
static_assert(std::ranges::is_sorted(contextualColors));

}  // namespace

std::optional<std::uint32_t> cssNamedColor(std::u16string_view name)
{
    const auto found = std::ranges::lower_bound(namedColors, name, {}, &NamedColor::name);
    if (found == namedColors.end() || found->name != name) return std::nullopt;
    return found->value;
}

bool isContextualCSSColor(std::u16string_view keyword)
{
    return std::ranges::binary_search(contextualColors, keyword);
}

}  // namespace vantorel
