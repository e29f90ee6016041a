#include "panel/widgets/PanelIcons.h"

#include "hosts/qt/QtButton.h"

namespace vantorel {
namespace {

/// The pictures have 16 by 16 units.
QIcon iconFromStrokes(const char* shapes)
{
    return iconFromSvg(
        std::string("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\" fill=\"none\" "
                    "stroke=\"currentColor\" stroke-width=\"1.4\" stroke-linecap=\"round\" "
                    "stroke-linejoin=\"round\">") +
        shapes + "</svg>");
}

}  // namespace

QIcon swapIcon()
{
    return iconFromStrokes(
        R"(<path d="M3 6h9M9.500 3.500L12 6 9.500 8.500M13 10.500H4M6.500 8L4 10.500 6.500 13"/>)");
}

QIcon pickIcon()
{
    return iconFromStrokes(
        R"(<path d="M9.500 4.500l2-2a1.400 1.400 0 0 1 2 2l-2 2M8.500 3.500l4 4M10.500 5.500L4.500 11.500 2.500 13.500l2-2v-2l5-5"/>)"
        R"(<path d="M3.500 12.500l1.500-3 4.500-4.500 1.500 1.500-4.500 4.500-3 1.500z"/>)");
}

QIcon copyIcon()
{
    return iconFromStrokes(
        R"(<rect x="5.500" y="5.500" width="8" height="8" rx="1"/><path d="M3.500 10.500h-1v-8h8v1"/>)");
}

QIcon menuIcon()
{
    return iconFromStrokes(R"(<path d="M3 4.500h10M3 8h10M3 11.500h10"/>)");
}

QIcon dialogPageIcon()
{
    return iconFromStrokes(
        R"(<rect x="2" y="2.500" width="12" height="11" rx="1"/><path d="M10.500 2.500v11M10.500 8H14"/>)");
}

QIcon palettesPageIcon()
{
    return iconFromStrokes(
        R"(<path d="M2.500 4h2M2.500 8h2M2.500 12h2M7 4h6.500M7 8h6.500M7 12h6.500"/>)");
}

QIcon addIcon()
{
    return iconFromStrokes(R"(<path d="M8 3v10M3 8h10"/>)");
}

QIcon removeIcon()
{
    return iconFromStrokes(R"(<path d="M3 8h10"/>)");
}

QIcon recolorIcon()
{
    return iconFromStrokes(
        R"(<path d="M8 2.500c2.500 3 4 4.800 4 7a4 4 0 0 1-8 0c0-2.200 1.500-4 4-7z"/>)"
        R"(<path d="M4.300 9.500h7.400" stroke-width="1"/>)");
}

QIcon undoIcon()
{
    return iconFromStrokes(R"(<path d="M5.500 3L2.500 6l3 3M2.500 6h7a3.500 3.500 0 0 1 0 7H6"/>)");
}

QIcon redoIcon()
{
    return iconFromStrokes(R"(<path d="M10.500 3l3 3-3 3M13.500 6h-7a3.500 3.500 0 0 0 0 7H10"/>)");
}

QIcon moreIcon()
{
    return iconFromStrokes(R"(<path d="M3.500 8h.01M8 8h.01M12.500 8h.01" stroke-width="2.200"/>)");
}

QIcon lockIcon()
{
    return iconFromStrokes(
        R"(<rect x="3.500" y="7" width="9" height="6.500" rx="1"/><path d="M5.500 7V5a2.500 2.500 0 0 1 5 0v2"/>)");
}

}  // namespace vantorel
