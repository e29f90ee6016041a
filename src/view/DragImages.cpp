#include "view/DragImages.h"

#include "view/ViewColors.h"

namespace vantorel {
namespace {

constexpr double textPointSize = 9.0;
constexpr double widestText = 140.0;
constexpr std::size_t longestText = 20;

HostText dragText(const std::u16string& string)
{
    return {string, textPointSize, dragStringColorS};
}

void fillRect(HostCanvas& canvas, HostRect rect, const HostColor& color)
{
    HostBezierPath path;
    path.appendBezierPathWithRect(rect);
    canvas.fill(path, color);
}

}  // namespace

HostImage stringDragImage(HostDesktop& desktop, const std::u16string& text)
{
    HostText shown = dragText(text);
    if (desktop.sizeOfText(shown).width > widestText && text.size() > longestText) {
        shown.string = text.substr(0, longestText) + u"...";
    }
    const HostSize size = desktop.sizeOfText(shown);
    return {{size.width + 4.0, size.height + 4.0},
            [shown](HostCanvas& canvas) {
                canvas.drawText(shown, {2.0, 2.0});
            },
            0.65};
}

HostImage colorDragImage(HostDesktop& desktop, const HostColor& color, const std::u16string& label)
{
    const HostText text = dragText(label);
    const HostSize size{desktop.sizeOfText(text).width + 8.0, 36.0};
    return {size,
            [size, text, color](HostCanvas& canvas) {
                HostRect rect = insetRect({0, 0, size.width, size.height}, 2.0, 2.0);
                fillRect(canvas, rect, HostColor::whiteColor());
                rect.height = 20.0;
                rect = insetRect(rect, 2.0, 2.0);
                fillRect(canvas, rect, HostColor::blackColor());
                rect = insetRect(rect, 1.0, 1.0);
                fillRect(canvas, rect, HostColor::whiteColor());
                fillRect(canvas, insetRect(rect, 1.0, 1.0), color);
                canvas.drawText(text, {3.0, 24.0});
            },
            0.7};
}

}  // namespace vantorel
