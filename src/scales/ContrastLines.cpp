#include "scales/ContrastLines.h"

#include "csscolor/Contrast.h"
#include "host/HostInterfaceFactory.h"
#include "pageparts/FittingText.h"
#include "pageparts/PixelPainting.h"
#include "scales/ScalesSection.h"
#include "text/ASCII.h"
#include "text/Decimals.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr double sampleWidth = 40;
constexpr double sampleHeight = 22;
constexpr double besideSample = 8;
constexpr double besideRatio = 8;
constexpr double radius = 4;

std::uint32_t opaquePixel(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    return pixelOf(ColorTriple{rgb.red, rgb.green, rgb.blue});
}

}  // namespace

double contrastOf(const ContrastLine& line)
{
    return contrastRatio(line.color, line.ground).value_or(1);
}

std::u16string ratioText(HostDesktop& desktop, double ratio)
{
    // A product such as 4.5 * 100 may be a little too small.
    std::u16string text = widened(fixedText(std::floor(ratio * 100 + 1e-9) / 100, 2));
    return text.replace(text.find(u'.'), 1, desktop.interfaceFactory().decimalSeparator());
}

std::u16string verdictText(HostDesktop& desktop, double ratio)
{
    const ContrastVerdicts verdicts = contrastVerdicts(ratio);
    if (verdicts.normalTextAAA) return u"AAA";
    if (verdicts.normalTextAA) return u"AA";
    if (verdicts.largeTextAA) return desktop.localizedString(u"AA large");
    return desktop.localizedString(u"fails");
}

ContrastLines::ContrastLines(HostColorPanel& panel, const std::string& identifier,
                             const std::u16string& name)
    : _panel(panel)
{
    HostControlDescription description;
    description.identifier = identifier;
    description.accessibleName = name;
    _view = panel.desktop().interfaceFactory().makeCustomView(description, *this);
    _view->setAccessibleDescription([this] { return spoken(); });
}

void ContrastLines::show(std::vector<ContrastLine> lines)
{
    if (lines == _lines) return;
    _lines = std::move(lines);
    _view->setNeedsDisplay(true);
}

std::u16string ContrastLines::spoken() const
{
    std::u16string text;
    for (const ContrastLine& line : _lines) {
        const double ratio = contrastOf(line);
        text += (text.empty() ? u"" : u"; ") + line.title + u" " +
                ratioText(_panel.desktop(), ratio) + u" " + verdictText(_panel.desktop(), ratio);
    }
    return text;
}

void ContrastLines::drawRect(HostCanvas& canvas)
{
    HostDesktop& desktop = _panel.desktop();
    double widestVerdict = 0;
    const auto textOf = [&](std::u16string string, HostThemeColor color, bool isBold) {
        return HostText{.string = std::move(string),
                        .pointSize = scalesTextSize,
                        .color = canvas.themeColor(color),
                        .isBold = isBold};
    };
    for (const double each : {21.0, 4.5, 3.0, 1.0}) {
        const HostText verdict = textOf(verdictText(desktop, each), HostThemeColor::text, true);
        widestVerdict = std::max(widestVerdict, desktop.sizeOfText(verdict).width);
    }
    const HostRect bounds = _view->bounds();
    double middle = bounds.maxY() - lineHeight / 2;
    for (const ContrastLine& line : _lines) {
        const auto draw = [&](const HostText& text, double x) {
            canvas.drawText(text, {x, middle - desktop.sizeOfText(text).height / 2});
        };
        const HostRect place{bounds.x, middle - sampleHeight / 2, sampleWidth, sampleHeight};
        HostPixels sample(canvas.pixelSizeOf(place));
        const PixelLook look = lookOf(canvas, place);
        const HostColor ground =
            composedOver(line.ground, HostColor::whiteColor()).value_or(line.ground);
        for (int y = 0; y < sample.height(); ++y)
            std::fill_n(sample.row(y), sample.width(), opaquePixel(ground));
        frameRounded(sample, radius * look.scale, look.scale, look.edge);
        canvas.drawPixels(sample, place);
        HostText letters = textOf(u"Aa", HostThemeColor::text, true);
        letters.color = composedOver(line.color, ground).value_or(line.color);
        draw(letters, place.midX() - desktop.sizeOfText(letters).width / 2);

        const double ratio = contrastOf(line);
        const double verdictX = bounds.maxX() - widestVerdict;
        draw(textOf(verdictText(desktop, ratio), HostThemeColor::text, true), verdictX);
        const HostText number =
            textOf(ratioText(desktop, ratio), HostThemeColor::secondaryText, false);
        const double numberX = verdictX - besideRatio - desktop.sizeOfText(number).width;
        draw(number, numberX);
        const double titleX = place.maxX() + besideSample;
        const HostText title = textOf(line.title, HostThemeColor::text, false);
        draw(fittingText(desktop, title, numberX - besideRatio - titleX), titleX);
        middle -= lineHeight;
    }
}

}  // namespace vantorel
