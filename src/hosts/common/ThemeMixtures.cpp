#include "hosts/common/ThemeMixtures.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

using Components = HostColor::Components;

Components opaqueRGB(const HostColor& color)
{
    Components rgb = color.calibratedRGB().value_or(Components{});
    rgb.alpha = 1;
    return rgb;
}

/// Relative luminance as WCAG 2.2 defines it.
double luminanceOf(const Components& rgb)
{
    const auto linear = [](double channel) {
        const double c = std::clamp(channel, 0.0, 1.0);
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(rgb.red) + 0.7152 * linear(rgb.green) + 0.0722 * linear(rgb.blue);
}

double contrastOf(const Components& a, const Components& b)
{
    const double first = luminanceOf(a) + 0.05;
    const double second = luminanceOf(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// `share` is that of `a`.
Components mixed(const Components& a, const Components& b, double share)
{
    const auto mix = [share](double x, double y) { return x * share + y * (1 - share); };
    return {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue), 1};
}

HostColor mixture(const ThemeBasis& basis, double share, double leastContrast)
{
    constexpr double step = 0.05;
    const Components text = opaqueRGB(basis.text);
    const Components window = opaqueRGB(basis.window);
    Components color = mixed(text, window, share);
    while (share < 1 && contrastOf(color, window) < leastContrast) {
        share = std::min(1.0, share + step);
        color = mixed(text, window, share);
    }
    return HostColor::colorWithCalibratedRed(color.red, color.green, color.blue, 1);
}

}  // namespace

HostColor themeColorOf(const ThemeBasis& basis, HostThemeColor kind)
{
    switch (kind) {
        case HostThemeColor::window:
            return basis.window;
        case HostThemeColor::base:
            return basis.base;
        case HostThemeColor::text:
            return basis.text;
        case HostThemeColor::secondaryText:
            return mixture(basis, 0.7, 4.5);
        case HostThemeColor::edge:
            return mixture(basis, 0.45, 3);
        case HostThemeColor::line:
            return mixture(basis, 0.15, 0);
        case HostThemeColor::accent:
            break;
    }
    return basis.accent;
}

}  // namespace vantorel
