#include "colorlists/ColorSort.h"
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

void QTXHexColorsView::loadSortedPaletteColorKeys(const std::shared_ptr<HostColorList>& list)
{
    if (_sortedPaletteList == list && _sortedPaletteRevision == list->revision()) return;
    _sortedPaletteList = list;
    _sortedPaletteRevision = list->revision();
    __sortedPaletteColorKeys.clear();
    for (const std::size_t index : sortedColorIndexes(*list)) {
        __sortedPaletteColorKeys.push_back(list->allKeys()[index]);
    }
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
        drawHexSlidersWithRect(rect, canvas);
        return;
    }
    loadSortedPaletteColorKeys(list);
    const std::size_t count = __sortedPaletteColorKeys.size();
    setPaletteMatrixWithCount(count, rect);
    const PaletteGrid grid = currentPaletteGrid();

    for (std::size_t i = 0; i < count; ++i) {
        __bPth.removeAllPoints();
        __bPth.appendBezierPathWithRect(paletteSwatchRect(grid, i, rect.height));
        canvas.fill(__bPth, *list->colorWithKey(__sortedPaletteColorKeys[i]));
    }

    const QTXHexColorSpec& current = _hostHexColorPicker.hexColorSpec();
    int closeMarks = 0;
    for (std::size_t i = 0; i < count && closeMarks < mostCloseMarks; ++i) {
        const auto color = list->colorWithKey(__sortedPaletteColorKeys[i]);
        const bool equal = current.isEqualToColor(color);
        if (!equal && !current.isCloseToColor(color)) continue;
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

/// Takes a colour as it is named or drawn, so without remainders.
void QTXHexColorsView::pickColor(const std::optional<HostColor>& color)
{
    if (!color) return;
    QTXHexColorSpec& spec = _hostHexColorPicker.hexColorSpec();
    spec.setColorHexColorSpec(color);
    spec.clearRemainders();
    const HostColor picked = spec.colorHexColorSpec();
    _hostHexColorPicker.setColor(picked);
    panel().setColor(picked);
    _hostHexColorPicker.syncPanel();
}

}  // namespace vantorel
