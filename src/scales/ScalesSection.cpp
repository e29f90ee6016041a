#include "scales/ScalesSection.h"

#include "host/HostInterfaceFactory.h"
#include "text/Unicode.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr double captionHeight = 16;
constexpr double besideLabel = 8;
/// The arrow of a pop-up, and the room around its title.
constexpr double besideTitle = 40;
/// The gap between rows contains the room around their colours.
constexpr double betweenRows = 2;

}  // namespace

ScalesSection::ScalesSection(ScalesPage& page, std::string identifier, std::u16string title)
    : _page(page), _identifier(std::move(identifier)), _title(std::move(title))
{
    HostControlDescription description;
    description.identifier = _identifier;
    description.accessibleName = _title;
    _view = desktop().interfaceFactory().makeCustomView(description, *this);
}

SwatchStrip& ScalesSection::addRow(const std::u16string& label, SwatchStrip::Options options,
                                   RowHeight height)
{
    options.code = [this](const HostColor& color) { return _page.hexCode(color); };
    options.identifier = _identifier + "Row" + std::to_string(_rows.size() + 1);
    _rows.push_back(
        {label, false,
         std::make_unique<SwatchStrip>(_page.panel(), std::move(options),
                                       [this](const HostColor& color) { _page.choose(color); }),
         height});
    SwatchStrip& strip = *_rows.back().strip;
    _view->addSubview(strip.view());
    return strip;
}

SwatchStrip& ScalesSection::addWideRow(const std::u16string& label, SwatchStrip::Options options,
                                       RowHeight height)
{
    SwatchStrip& strip = addRow(label, std::move(options), height);
    _rows.back().isWide = true;
    return strip;
}

void ScalesSection::setRowsParked(bool flag)
{
    for (const Row& row : _rows)
        row.strip->view().setParked(flag);
}

void ScalesSection::addCopyMenu(std::vector<CopiedSeries> series, bool comesFirst)
{
    HostControlDescription description;
    description.identifier = _identifier + "Copy";
    description.pointSize = scalesTextSize;
    description.accessibleName = _title;
    description.accessibleName += u": ";
    description.accessibleName += desktop().localizedString(u"Copy all");
    _copy = desktop().interfaceFactory().makePopUpButton(description);
    _copy->setItems(copyMenu(_page.panel(), std::move(series), comesFirst));
    _view->addSubview(*_copy);
}

ColorSeries ScalesSection::seriesOf(const std::string& word, const Swatches& swatches) const
{
    ColorSeries series{_page.model().name(), {}};
    const std::string before = word.empty() ? "" : word + "-";
    for (const Swatch& swatch : swatches) {
        const std::string label = utf8FromUtf16(swatch.label);
        series.entries.push_back({before + label, swatch.color});
    }
    return series;
}

double ScalesSection::heightAboveRows(double) const
{
    return 0;
}

void ScalesSection::layOutAboveRows(HostRect) {}

double ScalesSection::labelWidth() const
{
    double widest = 0;
    for (const Row& row : _rows) {
        if (row.isWide) continue;
        const HostText label{.string = row.label, .pointSize = scalesTextSize};
        widest = std::max(widest, desktop().sizeOfText(label).width);
    }
    return std::ceil(widest) + besideLabel;
}

double ScalesSection::captionOf(const Row& row)
{
    return row.isWide && !row.label.empty() ? captionHeight : 0;
}

double ScalesSection::heightOfRow(const Row& row, double width) const
{
    const double before = row.isWide ? 0 : labelWidth();
    // The strip's own margin is outside of the section's edges.
    return row.strip->heightFor(width - before + 2 * SwatchStrip::margin, row.height.least) -
           2 * SwatchStrip::margin;
}

double ScalesSection::leastHeight(double width) const
{
    double height = headingHeight;
    if (const double above = heightAboveRows(width); above > 0) height += gap + above;
    for (const Row& row : _rows)
        height += gap + betweenRows + captionOf(row) + heightOfRow(row, width);
    return height + SwatchStrip::margin;
}

void ScalesSection::layOut(HostRect place)
{
    // Views reach beyond the section's edges by the room in which the focus is shown.
    const HostRect frame{place.x - SwatchStrip::margin, place.y,
                         place.width + 2 * SwatchStrip::margin, place.height};
    _view->setFrame(frame);
    const double left = SwatchStrip::margin;
    double top = place.height - headingHeight;
    if (_copy) {
        const HostText title{.string = _copy->menu().front().title, .pointSize = scalesTextSize};
        const double width = std::ceil(desktop().sizeOfText(title).width) + besideTitle;
        _copy->setFrame({left + place.width - width, top, width, controlHeight});
    }
    if (const double above = heightAboveRows(place.width); above > 0) {
        top -= gap + above;
        layOutAboveRows({left, top, place.width, above});
    }
    double wanted = 0;
    for (const Row& row : _rows)
        wanted += row.height.most - row.height.least;
    const double leftOver = std::max(0.0, place.height - leastHeight(place.width));
    const double share = wanted > 0 ? std::min(1.0, leftOver / wanted) : 0;
    for (const Row& row : _rows) {
        const double before = row.isWide ? 0 : labelWidth();
        const double height = heightOfRow(row, place.width) +
                              std::floor(share * (row.height.most - row.height.least));
        top -= gap + betweenRows + captionOf(row) + height;
        row.strip->view().setFrame({left + before - SwatchStrip::margin, top - SwatchStrip::margin,
                                    place.width - before + 2 * SwatchStrip::margin,
                                    height + 2 * SwatchStrip::margin});
    }
    _view->setNeedsDisplay(true);
}

void ScalesSection::drawRect(HostCanvas& canvas)
{
    const HostText heading{.string = _title,
                           .pointSize = scalesTextSize,
                           .color = canvas.themeColor(HostThemeColor::text),
                           .isBold = true};
    const auto drawLeft = [&](const HostText& text, double middle) {
        const HostSize size = desktop().sizeOfText(text);
        canvas.drawText(text, {SwatchStrip::margin, middle - size.height / 2});
    };
    drawLeft(heading, _view->bounds().maxY() - headingHeight / 2);
    for (const Row& row : _rows) {
        if (row.strip->view().isParked()) continue;
        const HostText label{.string = row.label,
                             .pointSize = scalesTextSize,
                             .color = canvas.themeColor(HostThemeColor::secondaryText)};
        const HostRect strip = row.strip->view().frame();
        if (!row.label.empty())
            drawLeft(label, row.isWide ? strip.maxY() + captionHeight / 2 : strip.midY());
    }
}

}  // namespace vantorel
