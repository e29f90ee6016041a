#include "view/KeyMoves.h"
#include "view/QTXHexColorsView.h"

#include <algorithm>
#include <cmath>

/// Picking by keyboard and with the mouse wheel. In the Slider, the keys change the current digit
/// of a column at once. In the Palette and on the Wheel, they move a cell outline, and Enter picks.
namespace vantorel {
namespace {

int squared(int number)
{
    return number * number;
}

/// Returns how far a wheel cell's colour is from a colour; 0 for equal colours.
int distanceOfCell(const WheelCell& cell, const QTXHexColorSpec& color)
{
    return squared(cell.red - static_cast<int>(color.componentWithIndex(0))) +
           squared(cell.green - static_cast<int>(color.componentWithIndex(1))) +
           squared(cell.blue - static_cast<int>(color.componentWithIndex(2)));
}

}  // namespace

bool QTXHexColorsView::showsSliders() const
{
    const PickViewMode mode = _hostHexColorPicker.hexSettings().pickViewMode();
    return mode == PickViewMode::slider || (mode == PickViewMode::palette && !paletteList());
}

void QTXHexColorsView::keyFocusDidChange(bool hasFocus)
{
    _hasKeyFocus = hasFocus;
    setNeedsDisplay(true);
}

SliderCell QTXHexColorsView::keySliderCell() const
{
    const int component = _keyColumn / 2;
    const int digit = 1 - _keyColumn % 2;
    const auto value =
        _hostHexColorPicker.hexColorSpec().colorSubComponentWithComponentIndex(component, digit);
    return {component, digit, static_cast<int>(value)};
}

std::size_t QTXHexColorsView::keyPalettePosition() const
{
    const std::size_t count = __sortedPaletteColorKeys.size();
    if (_keyCell && _keyCell->mode == PickViewMode::palette && _keyCell->index < count) {
        return _keyCell->index;
    }
    const QTXHexColorSpec& current = _hostHexColorPicker.hexColorSpec();
    const auto near = __sortedPaletteColorKeys.positionsNear(current);
    const auto equal = std::find_if(near.begin(), near.end(), [&](std::size_t position) {
        return current.isEqualToColor(__sortedPaletteColorKeys.colorAtPosition(position));
    });
    if (equal != near.end()) return *equal;
    return near.empty() ? 0 : near.front();
}

std::size_t QTXHexColorsView::keyWheelIndex(const std::vector<WheelCell>& cells) const
{
    if (_keyCell && _keyCell->mode == PickViewMode::wheel && _keyCell->index < cells.size()) {
        return _keyCell->index;
    }
    const QTXHexColorSpec& current = _hostHexColorPicker.hexColorSpec();
    const auto nearest =
        std::min_element(cells.begin(), cells.end(), [&](const WheelCell& a, const WheelCell& b) {
            return distanceOfCell(a, current) < distanceOfCell(b, current);
        });
    return static_cast<std::size_t>(nearest - cells.begin());
}

std::optional<QTXHexColorsView::KeyCell> QTXHexColorsView::keyCell() const
{
    if (!_hasKeyFocus || _view == nullptr) return std::nullopt;
    KeyCell cell;
    if (showsSliders()) {
        cell.digit = keySliderCell();
        const HostRect matrix = colorMatrixRect();
        cell.outline.appendBezierPathWithRect(
            sliderCellRect(matrix, sliderCellSize(matrix), *cell.digit));
        cell.color = _hostHexColorPicker.hexColorSpec().colorHexColorSpec();
    } else if (_hostHexColorPicker.hexSettings().pickViewMode() == PickViewMode::palette) {
        const PaletteGrid grid = currentPaletteGrid();
        if (__sortedPaletteColorKeys.size() == 0 || grid.across == 0) return std::nullopt;
        const std::size_t position = keyPalettePosition();
        cell.outline.appendBezierPathWithRect(paletteSwatchRect(grid, position, modeRect().height));
        cell.color = __sortedPaletteColorKeys.colorAtPosition(position);
        cell.name = __sortedPaletteColorKeys[position];
    } else {
        const auto cells = wheelCells(currentWheelPlace(modeRect()));
        const WheelCell& reached = cells[keyWheelIndex(cells)];
        const auto& [a, b, c] = reached.corners;
        cell.outline.moveToPoint(a);
        cell.outline.lineToPoint(b);
        cell.outline.lineToPoint(c);
        cell.outline.closePath();
        QTXHexColorSpec spec;
        spec.setHexRed(reached.red, reached.green, reached.blue);
        cell.color = spec.colorHexColorSpec();
    }
    return cell;
}

HostBezierPath QTXHexColorsView::keyOutline() const
{
    const auto cell = keyCell();
    return cell ? cell->outline : HostBezierPath();
}

bool QTXHexColorsView::keyDown(const HostKeyEvent& event)
{
    if (_view == nullptr) return false;
    if (showsSliders()) {
        // The other keys have picked the cell already, so Return ends the dialogue, if there is
        // one.
        if (event.key == HostKey::pick) return false;
        const SliderCell before = keySliderCell();
        const SliderCell cell = sliderCellAfterKey(before, event.key);
        _keyColumn = 2 * cell.component + 1 - cell.digit;
        const bool changesColumn = cell.component != before.component || cell.digit != before.digit;
        if (!changesColumn && cell.value != before.value) {
            clearMessage();
            pickSliderCell(cell, event.modifierFlags);
        }
    } else if (_hostHexColorPicker.hexSettings().pickViewMode() == PickViewMode::palette) {
        const std::size_t count = __sortedPaletteColorKeys.size();
        if (count == 0) return false;
        const std::size_t position =
            paletteIndexAfterKey(currentPaletteGrid(), count, keyPalettePosition(), event.key);
        _keyCell = {PickViewMode::palette, position};
        if (event.key == HostKey::pick) {
            clearMessage();
            pickColor(__sortedPaletteColorKeys.colorAtPosition(position));
        }
    } else {
        const auto cells = wheelCells(currentWheelPlace(modeRect()));
        const std::size_t index = wheelIndexAfterKey(cells, keyWheelIndex(cells), event.key);
        _keyCell = {PickViewMode::wheel, index};
        if (event.key == HostKey::pick) {
            clearMessage();
            QTXHexColorSpec spec;
            spec.setHexRed(cells[index].red, cells[index].green, cells[index].blue);
            pickColor(spec.colorHexColorSpec());
        }
    }
    setNeedsDisplay(true);
    return true;
}

bool QTXHexColorsView::scrollWheel(const HostScrollEvent& event)
{
    if (_view == nullptr || !showsSliders()) return false;
    auto cell = sliderCellAtPoint(colorMatrixRect(), event.location);
    if (!cell) return false;
    const auto before =
        static_cast<int>(_hostHexColorPicker.hexColorSpec().colorSubComponentWithComponentIndex(
            cell->component, cell->digit));
    cell->value = std::clamp(before + event.steps, 0, 15);
    if (cell->value != before) {
        clearMessage();
        pickSliderCell(*cell, event.modifierFlags);
    }
    return true;
}

}  // namespace vantorel
