#include "colorlists/BuiltInListData.h"

#include <array>

namespace vantorel {
namespace {

// Every combination of the bytes 00, 33, 66, 99, CC and FF, in the traditional order of this list.
// Each key is its own colour code.
constexpr std::array<const char16_t*, 216> keys{
    u"#000000", u"#FFFFFF", u"#333333", u"#666666", u"#999999", u"#CCCCCC", u"#FF0000", u"#00FF00",
    u"#0000FF", u"#FFFF00", u"#FF00FF", u"#00FFFF", u"#330000", u"#660000", u"#990000", u"#CC0000",
    u"#003300", u"#006600", u"#009900", u"#00CC00", u"#000033", u"#000066", u"#000099", u"#0000CC",
    u"#333300", u"#666600", u"#999900", u"#CCCC00", u"#330033", u"#660066", u"#990099", u"#CC00CC",
    u"#003333", u"#006666", u"#009999", u"#00CCCC", u"#FFCC99", u"#CC9966", u"#990033", u"#FF3366",
    u"#CC0033", u"#FF0033", u"#FF9999", u"#CC3366", u"#FFCCFF", u"#CC6699", u"#993366", u"#660033",
    u"#CC3399", u"#FF99CC", u"#FF66CC", u"#FF99FF", u"#FF6699", u"#CC0066", u"#FF0066", u"#FF3399",
    u"#FF0099", u"#FF33CC", u"#FF00CC", u"#FF66FF", u"#FF33FF", u"#CC0099", u"#990066", u"#CC66CC",
    u"#CC33CC", u"#CC99FF", u"#CC66FF", u"#CC33FF", u"#993399", u"#CC00FF", u"#9900CC", u"#CC99CC",
    u"#996699", u"#663366", u"#660099", u"#9933CC", u"#9900FF", u"#9933FF", u"#9966CC", u"#663399",
    u"#6633CC", u"#6600CC", u"#9966FF", u"#330066", u"#6600FF", u"#6633FF", u"#CCCCFF", u"#9999FF",
    u"#9999CC", u"#6666CC", u"#6666FF", u"#666699", u"#333366", u"#333399", u"#330099", u"#3300CC",
    u"#3300FF", u"#3333FF", u"#3333CC", u"#0066FF", u"#0033FF", u"#3366FF", u"#3366CC", u"#0033CC",
    u"#336699", u"#0066CC", u"#99CCFF", u"#6699FF", u"#003366", u"#6699CC", u"#006699", u"#3399CC",
    u"#0099CC", u"#66CCFF", u"#3399FF", u"#003399", u"#0099FF", u"#33CCFF", u"#00CCFF", u"#99FFFF",
    u"#66FFFF", u"#33FFFF", u"#669999", u"#99CCCC", u"#CCFFFF", u"#33CCCC", u"#66CCCC", u"#339999",
    u"#336666", u"#00FFCC", u"#33FFCC", u"#33CC99", u"#00CC99", u"#66FFCC", u"#99FFCC", u"#00FF99",
    u"#339966", u"#006633", u"#336633", u"#669966", u"#66CC66", u"#99FF99", u"#66FF66", u"#339933",
    u"#99CC99", u"#66FF99", u"#33FF99", u"#33CC66", u"#00CC66", u"#66CC99", u"#009966", u"#009933",
    u"#33FF66", u"#00FF66", u"#CCFFCC", u"#CCFF99", u"#99FF66", u"#99FF33", u"#00FF33", u"#33FF33",
    u"#00CC33", u"#33CC33", u"#66FF33", u"#66CC33", u"#33FF00", u"#66FF00", u"#99FF00", u"#66CC00",
    u"#33CC00", u"#339900", u"#99CC66", u"#669933", u"#99CC33", u"#336600", u"#669900", u"#99CC00",
    u"#CCFF66", u"#CCFF33", u"#CCFF00", u"#CCCC33", u"#999933", u"#CCCC66", u"#666633", u"#999966",
    u"#CCCC99", u"#FFFFCC", u"#FFFF99", u"#FFFF66", u"#FFFF33", u"#FFCC00", u"#FFCC66", u"#FFCC33",
    u"#CC9933", u"#996600", u"#CC9900", u"#FF9900", u"#CC6600", u"#993300", u"#CC6633", u"#663300",
    u"#FF9966", u"#FF6633", u"#FF9933", u"#FF6600", u"#CC3300", u"#996633", u"#663333", u"#996666",
    u"#CC9999", u"#993333", u"#CC6666", u"#FFCCCC", u"#FF3333", u"#CC3333", u"#FF6666", u"#FF3300",
};
// clang-format on

}  // namespace

std::span<const char16_t* const> browserSafeKeys()
{
    return keys;
}

}  // namespace vantorel
