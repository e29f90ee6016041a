#include "view/QTXHexColorsView.h"
#include "view/ViewColors.h"

namespace vantorel {
namespace {

/// A cell is outlined if each of its components differs from the current colour's by less than
/// this.
constexpr int matchLimit = 2;

void loadPathWithCell(HostBezierPath& path, const WheelCell& cell)
{
    path.removeAllPoints();
    path.moveToPoint(cell.corners[0]);
    path.lineToPoint(cell.corners[1]);
    path.lineToPoint(cell.corners[2]);
    path.closePath();
}

}  // namespace

WheelPlace QTXHexColorsView::currentWheelPlace(HostRect rect) const
{
    const std::int64_t stored = _hostHexColorPicker.hexSettings().nColorCubeRings();
    return wheelPlace(rect.size(), drawnRingCount(stored));
}

void QTXHexColorsView::drawHexColorWheelWithRect(HostRect rect, HostCanvas& canvas)
{
    const QTXHexColorSpec& current = _hostHexColorPicker.hexColorSpec();
    HostBezierPath matching;  // the last matching cell's path; empty if none
    const auto outlineMatching = [&] {
        if (matching.isEmpty()) return;
        matching.setLineWidth(1.0);
        canvas.stroke(matching, HostColor::whiteColor());
        matching.setLineWidth(0.5);
        canvas.stroke(matching, HostColor::blackColor());
        matching.removeAllPoints();
    };

    bool inCenter = false;
    for (const WheelCell& cell : wheelCells(currentWheelPlace(rect))) {
        if (cell.center && !inCenter) {
            inCenter = true;
            outlineMatching();
        }
        __workColorSpec.setHexRed(cell.red, cell.green, cell.blue);
        loadPathWithCell(__bPth, cell);
        canvas.fill(__bPth, __workColorSpec.colorHexColorSpec());
        if (current.isMatchToColorSpec(__workColorSpec, matchLimit)) matching = __bPth;
    }
    outlineMatching();
}

std::optional<HostColor> QTXHexColorsView::getWheelColorWithPoint(HostPoint point,
                                                                  HostRect rect) const
{
    const auto cell = wheelCellAtPoint(currentWheelPlace(rect), point);
    if (!cell) return std::nullopt;
    QTXHexColorSpec spec;
    spec.setHexRed(cell->red, cell->green, cell->blue);
    return spec.colorHexColorSpec();
}

void QTXHexColorsView::wheelMouseDownWithEvent(const HostEvent& event)
{
    pickColor(getWheelColorWithPoint(event.location, modeRect()));
}

}  // namespace vantorel
