#include "view/QTXHexColorsView.h"
#include "view/ViewColors.h"

namespace vantorel {
namespace {

constexpr int mostCloseMarks = 3;

}  // namespace

std::shared_ptr<HostColorList> QTXHexColorsView::paletteList() const
{
    const auto& name = _hostHexColorPicker.hexSettings().hexColorList();
    return name ? panel().desktop().colorLists().colorListNamed(*name) : nullptr;
}

void QTXHexColorsView::setPaletteMatrixWithCount(std::size_t count, HostRect rect)
{
    const PaletteGrid grid = paletteGrid(count, rect.size());
    _nAcrossPaletteMode = grid.across;
    _nDownPaletteMode = grid.down;
    _swatchSizePaletteMode = grid.swatch;
}

PaletteGrid QTXHexColorsView::currentPaletteGrid() const
{
    return {_nAcrossPaletteMode, _nDownPaletteMode, _swatchSizePaletteMode};
}

void QTXHexColorsView::drawHexPaletteWithRect(HostRect rect, HostCanvas& canvas)
{
    const auto list = paletteList();
    if (!list) {
        drawHexSlidersWithRect(canvas);
        return;
    }
    __sortedPaletteColorKeys.update(list);
    const std::size_t count = __sortedPaletteColorKeys.size();
    setPaletteMatrixWithCount(count, rect);
    const PaletteGrid grid = currentPaletteGrid();

    // Advance from swatch to swatch: a division for each took a quarter of the time of a long list.
    PalettePlace place;
    for (std::size_t i = 0; i < count; ++i, place = place.next(grid)) {
        if (!__sortedPaletteColorKeys.hasColorAtPosition(i)) continue;
        __bPth.removeAllPoints();
        __bPth.appendBezierPathWithRect(paletteSwatchRect(grid, place, rect.height));
        canvas.fill(__bPth, __sortedPaletteColorKeys.colorAtPosition(i));
    }

    const QTXHexColorSpec& current = _hostHexColorPicker.hexColorSpec();
    int closeMarks = 0;
    for (const std::size_t i : __sortedPaletteColorKeys.positionsNear(current)) {
        if (closeMarks == mostCloseMarks) break;
        const bool equal = current.isEqualToColor(__sortedPaletteColorKeys.colorAtPosition(i));
        if (!equal) ++closeMarks;
        __bPth.removeAllPoints();
        __bPth.appendBezierPathWithRect(paletteSwatchRect(grid, i, rect.height));
        __bPth.setLineWidth(3.0);
        canvas.stroke(__bPth, HostColor::whiteColor());
        __bPth.setLineWidth(1.5);
        canvas.stroke(__bPth, equal ? hexColorsSelectedColorWithMatchColorS
                                    : hexColorsSelectedColorWithoutMatchColorS);
    }
}

std::optional<HostColor> QTXHexColorsView::getPaletteColorWithPoint(HostPoint point) const
{
    const auto index = paletteIndexAtPoint(currentPaletteGrid(), point, bounds().height);
    if (!index || *index >= __sortedPaletteColorKeys.size()) return std::nullopt;
    const auto list = paletteList();
    return list ? list->colorWithKey(__sortedPaletteColorKeys[*index]) : std::nullopt;
}

void QTXHexColorsView::paletteMouseDownWithEvent(const HostEvent& event)
{
    pickColor(getPaletteColorWithPoint(event.location));
}

/// Sets the picked colour. Palette and wheel colours are used without remainders.
void QTXHexColorsView::pickColor(const std::optional<HostColor>& color)
{
    if (!color) return;
    QTXHexColorSpec spec;
    spec.setColorHexColorSpec(color);
    const HostColor picked = spec.colorHexColorSpec();
    _hostHexColorPicker.setColor(picked);
    panel().setColor(picked);
    _hostHexColorPicker.syncPanel();
}

}  // namespace vantorel
