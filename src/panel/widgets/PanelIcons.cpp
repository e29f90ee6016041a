#include "panel/widgets/PanelIcons.h"

#include "hosts/qt/QtButton.h"

namespace vantorel {
namespace {

/// The pictures have 16 by 16 units.
QIcon iconFromStrokes(const char* shapes, const QWidget* ground = nullptr)
{
    return iconFromSvg(
        std::string("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\" fill=\"none\" "
                    "stroke=\"currentColor\" stroke-width=\"1.4\" stroke-linecap=\"round\" "
                    "stroke-linejoin=\"round\">") +
            shapes + "</svg>",
        ground);
}

}  // namespace

QIcon swapIcon()
{
    return iconFromStrokes(
        R"(<path d="M2.5 5.5h11M10.5 2.5l3 3-3 3M13.5 10.5h-11M5.5 7.5l-3 3 3 3"/>)");
}

QIcon pickIcon()
{
    return iconFromStrokes(
        R"(<path d="M8 5.5L3.5 10v2.5H6L10.5 8M3.5 12.5L2 14M6.5 4L12 9.5M8 5.5l2.75-2.75a1.77 1.77 0 0 1 2.5 2.5L10.5 8"/>)");
}

QIcon copyIcon()
{
    return iconFromStrokes(
        R"(<rect x="5.5" y="5.5" width="8" height="8" rx="1.5"/>)"
        R"(<path d="M3.5 10.5a1 1 0 0 1-1-1v-6a1 1 0 0 1 1-1h6a1 1 0 0 1 1 1"/>)");
}

QIcon menuIcon()
{
    return iconFromStrokes(R"(<path d="M2.5 4.5h11M2.5 8.5h11M2.5 12.5h11"/>)");
}

QIcon moreIcon()
{
    return iconFromStrokes(R"(<path stroke-width="2" d="M4 8h.01M8 8h.01M12 8h.01"/>)");
}

QIcon downIcon()
{
    return iconFromStrokes(R"(<path d="M4.5 6.5L8 10l3.5-3.5"/>)");
}

QIcon upIcon()
{
    return iconFromStrokes(R"(<path d="M4.5 9.5L8 6l3.5 3.5"/>)");
}

QIcon rightIcon()
{
    return iconFromStrokes(R"(<path d="M6.5 4.5L10 8l-3.5 3.5"/>)");
}

QIcon settingsIcon()
{
    return iconFromStrokes(R"(<circle cx="10.5" cy="5.5" r="2"/>)"
                           R"(<circle cx="5.5" cy="10.5" r="2"/>)"
                           R"(<path d="M2.5 5.5h6M12.5 5.5h1M2.5 10.5h1M7.5 10.5h6"/>)");
}

QIcon tickIcon(const QWidget* ground)
{
    return iconFromStrokes(R"(<path d="M3.5 8.5l3 3 6-7"/>)", ground);
}

QIcon warnIcon(const QWidget* ground)
{
    return iconFromStrokes(R"(<path d="M8 2.5l6 11H2zM8 6.5v3M8 11.5h.01"/>)", ground);
}

QIcon pinIcon()
{
    return iconFromStrokes(R"(<path d="M5.5 2.5h5M6.5 2.5v4l-2 3h7l-2-3v-4M8 9.5V14"/>)");
}

QIcon gripIcon()
{
    return iconFromStrokes(
        R"(<path stroke-width="2" d="M6 4h.01M10 4h.01M6 8h.01M10 8h.01M6 12h.01M10 12h.01"/>)");
}

QIcon closeIcon()
{
    return iconFromStrokes(R"(<path d="M4 4l8 8M12 4l-8 8"/>)");
}

QIcon helpIcon()
{
    return iconFromStrokes(
        R"(<circle cx="8" cy="8" r="5.5"/>)"
        R"(<path d="M6.3 6.5a1.7 1.7 0 1 1 2.6 1.5c-.6.35-.9.7-.9 1.2M8 11.2h.01"/>)");
}

QIcon hexPageIcon()
{
    return iconFromStrokes(R"(<path d="M6.5 2.5l-1.5 11M11 2.5l-1.5 11M3 5.5h10.5M2.5 10.5H13"/>)");
}

QIcon mixPageIcon()
{
    return iconFromStrokes(R"(<path d="M2.5 2.5l11 5.5-11 5.5z"/>)"
                           R"(<path stroke-width="2" d="M6 8h.01"/>)");
}

QIcon scalesPageIcon()
{
    return iconFromStrokes(
        R"(<path d="M1.5 13.5v-1M4.5 13.5v-3.5M7.5 13.5v-6M10.5 13.5V5M13.5 13.5v-11"/>)");
}

QIcon palettesPageIcon()
{
    return listIcon();
}

QIcon sliderIcon()
{
    return iconFromStrokes(
        R"(<path d="M3.5 2.5v4M2 9.5h3M3.5 9.5v4M8 2.5v3M6.5 5.5h3M8 8.5v5M12.5 2.5v6M11 11.5h3M12.5 11.5v2"/>)");
}

QIcon gridIcon()
{
    return iconFromStrokes(
        R"(<path d="M2.5 2.5h4v4h-4zM9.5 2.5h4v4h-4zM2.5 9.5h4v4h-4zM9.5 9.5h4v4h-4z"/>)");
}

QIcon wheelIcon()
{
    return iconFromStrokes(
        R"(<path d="M8 1.75L13.5 5v6L8 14.25 2.5 11V5zM8 8v6M8 8L2.5 5M8 8l5.5-3"/>)");
}

QIcon listIcon()
{
    return iconFromStrokes(R"(<path d="M6.5 4.5h7M6.5 8.5h7M6.5 12.5h7"/>)"
                           R"(<path stroke-width="2" d="M3 4.5h.01M3 8.5h.01M3 12.5h.01"/>)");
}

QIcon addIcon()
{
    return iconFromStrokes(R"(<path d="M8.5 3.5v10M3.5 8.5h10"/>)");
}

QIcon removeIcon()
{
    return iconFromStrokes(R"(<path d="M3.5 8.5h10"/>)");
}

QIcon recolorIcon()
{
    return iconFromStrokes(R"(<path d="M8 2.5c2.5 3 4 4.8 4 7a4 4 0 0 1-8 0c0-2.2 1.5-4 4-7z"/>)");
}

QIcon undoIcon()
{
    return iconFromStrokes(R"(<path d="M5.5 2.5l-3 3 3 3M2.5 5.5h7a4 4 0 0 1 0 8h-3"/>)");
}

QIcon redoIcon()
{
    return iconFromStrokes(R"(<path d="M10.5 2.5l3 3-3 3M13.5 5.5h-7a4 4 0 0 0 0 8h3"/>)");
}

QIcon lockIcon()
{
    return iconFromStrokes(R"(<rect x="3.5" y="7.5" width="9" height="6" rx="1"/>)"
                           R"(<path d="M5.5 7.5V5a2.5 2.5 0 0 1 5 0v2.5"/>)");
}

QIcon nameIcon()
{
    return iconFromStrokes(
        R"(<path d="M8.5 2.5h-6v6l5.3 5.3a1 1 0 0 0 1.4 0l4.6-4.6a1 1 0 0 0 0-1.4z"/>)"
        R"(<path stroke-width="2" d="M5.5 5.5h.01"/>)");
}

}  // namespace vantorel
