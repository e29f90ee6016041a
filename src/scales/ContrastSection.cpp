#include "colormath/ReadableColor.h"
#include "csscolor/Contrast.h"
#include "csscolor/GamutMapping.h"
#include "pageparts/Segments.h"
#include "scales/ContrastLines.h"
#include "scales/ContrastList.h"
#include "scales/ContrastMatrix.h"
#include "scales/ScalesSections.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>

namespace vantorel {
namespace {

// In points.
constexpr double nearestHeight = 24;
constexpr double onGroundHeight = 24;
constexpr double mostHeight = 36;
constexpr double leastWidthForVerdict = 19;
constexpr double viewsText = 11;
constexpr double besideViews = 16;
/// More colours of a list have room only where there is more of it.
constexpr std::size_t mostInLeastHeight = 11;

struct Level {
    const char16_t* name;
    double ratio;
};
constexpr Level levels[] = {{u"AA", 4.5}, {u"AAA", 7}};

class ContrastSection final : public ScalesSection {
public:
    explicit ContrastSection(ScalesPage& scalesPage)
        : ScalesSection(scalesPage, "scalesContrast",
                        scalesPage.panel().desktop().localizedString(u"Contrast")),
          _lines(scalesPage.panel(), identifier() + "Lines", title()),
          _matrix(scalesPage.panel(), identifier() + "Matrix",
                  desktop().localizedString(u"Contrasts of the colours with each other"),
                  [this](const HostColor& color) { page().choose(color); }),
          _views(makeViewChoice()),
          _list(scalesPage, view(), identifier() + "List"),
          _nearest(addRow(desktop().localizedString(u"Nearest"),
                          {.name = desktop().localizedString(u"Nearest colours that pass"),
                           .showsLabels = true,
                           .emptyText = desktop().localizedString(u"no lightness is enough")},
                          {nearestHeight, mostHeight})),
          _scale(addWideRow(desktop().localizedString(u"The scale in place of the colour"),
                            {.name = desktop().localizedString(u"Contrasts of the scale"),
                             .isJoined = true,
                             .showsLabels = true,
                             .leastWidth = leastWidthForVerdict},
                            {onGroundHeight, mostHeight}))
    {
        view().addSubview(_lines.view());
        view().addSubview(_matrix.view());
    }

    [[nodiscard]] double leastHeight(double width) const override
    {
        switch (_shown) {
            case Shown::color:
                break;
            case Shown::scale:
                return headingHeight + gap + ContrastMatrix::leastHeight(_compared.size());
            case Shown::list:
                return headingHeight + gap + ContrastList::height + gap +
                       ContrastMatrix::leastHeight(std::min(_compared.size(), mostInLeastHeight));
        }
        return ScalesSection::leastHeight(width);
    }

    void layOut(HostRect place) override
    {
        ScalesSection::layOut(place);
        const bool showsMatrix = _shown != Shown::color;
        setRowsParked(showsMatrix);
        _lines.view().setParked(showsMatrix);
        _matrix.view().setParked(!showsMatrix);
        _list.setParked(_shown != Shown::list);
        const double left = SwatchStrip::margin;
        const double width = _views->leastWidth() + besideViews;
        _views->layOutByTitles(
            {left + place.width - width, place.height - headingHeight, width, Segments::height});
        _views->show(static_cast<std::size_t>(_shown));
        if (!showsMatrix) return;
        double top = place.height - headingHeight - gap;
        if (_shown == Shown::list) {
            top -= ContrastList::height;
            _list.layOut({left, top, place.width, ContrastList::height});
            top -= gap;
        }
        const double height = std::min(
            top, ContrastMatrix::leastHeight(_compared.size()) * mostHeight / onGroundHeight);
        _matrix.view().setFrame({left - ContrastMatrix::margin, top - height,
                                 place.width + 2 * ContrastMatrix::margin, height});
        showMatrix();
    }

    void show() override
    {
        const HostColor own = mappedIntoSRGB(page().model().color());
        std::vector<ContrastLine> lines;
        const auto pair = pairOfColors();
        if (pair)
            lines.push_back(
                {desktop().localizedString(u"Background"), pair->color, pair->background});
        lines.push_back({desktop().localizedString(u"White"), own, HostColor::whiteColor()});
        lines.push_back({desktop().localizedString(u"Black"), own, HostColor::blackColor()});
        _lines.show(std::move(lines));
        _nearest.show(nearestColors());
        Swatches scale = page().model().scale();
        if (_shown == Shown::list && _list.isEmpty()) _list.readLists();
        _compared = _shown == Shown::list ? _list.colors() : scale;
        showMatrix();
        for (Swatch& swatch : scale)
            swatch.label = shortVerdict(contrastWithOther(swatch.color));
        _scale.show(std::move(scale));
    }

protected:
    [[nodiscard]] double heightAboveRows(double) const override
    {
        return 3 * ContrastLines::lineHeight;
    }
    void layOutAboveRows(HostRect place) override { _lines.view().setFrame(place); }

private:
    /// The choice between the colour and the scale, which the keyboard reaches before the rows.
    std::unique_ptr<Segments> makeViewChoice()
    {
        auto views = std::make_unique<Segments>();
        views->makeViews(
            desktop(),
            {.identifier = identifier() + "Views",
             .buttonIdentifier = identifier() + "View",
             .accessibleName = desktop().localizedString(u"Shown contrasts"),
             .titles = {desktop().localizedString(u"Colour"), desktop().localizedString(u"Scale"),
                        desktop().localizedString(u"List")},
             .pointSize = viewsText},
            [this](std::size_t choice) {
                _shown = static_cast<Shown>(choice);
                if (_shown == Shown::list) _list.readLists();
                page().modelDidChange();
            });
        view().addSubview(views->view());
        return views;
    }

    /// Shows the whole scale, or as many colours of a list as have room.
    void showMatrix()
    {
        Swatches shown = _compared;
        if (_shown == Shown::list) {
            shown.resize(std::min(shown.size(), _matrix.capacity()));
            _list.showCount(shown.size(), _compared.size());
        }
        _matrix.show(std::move(shown));
    }

    /// The panel's two colours as they are shown.
    [[nodiscard]] std::optional<HostColorPair> pairOfColors() const
    {
        auto pair = page().panel().colorPair();
        if (!pair || pair->color.isPattern() || pair->background.isPattern()) return std::nullopt;
        pair->color = mappedIntoSRGB(pair->color);
        pair->background = mappedIntoSRGB(pair->background);
        return pair;
    }

    /// Returns the contrast that a colour would have in place of the page's colour: with the
    /// panel's other colour, or on white if there is none.
    [[nodiscard]] double contrastWithOther(const HostColor& color) const
    {
        const auto pair = pairOfColors();
        const HostColor shown = mappedIntoSRGB(color);
        if (!pair) return contrastOf({u"", shown, HostColor::whiteColor()});
        return pair->editsBackground ? contrastOf({u"", pair->color, shown})
                                     : contrastOf({u"", shown, pair->background});
    }

    [[nodiscard]] Swatches nearestColors() const
    {
        const HostColor& own = page().model().color();
        Swatches swatches;
        for (const Level& level : levels) {
            const auto nearest = nearestReadableColor(
                own, level.ratio,
                [this](const HostColor& color) { return contrastWithOther(color); });
            if (!nearest) continue;
            const bool passes = *nearest == own;
            const std::u16string code = page().hexCode(*nearest);
            swatches.push_back(
                {*nearest,
                 level.name + (passes ? u" " + desktop().localizedString(u"passes") : u" " + code),
                 passes});
        }
        return swatches;
    }

    /// In the order of the segments.
    enum class Shown { color, scale, list };
    Shown _shown = Shown::color;
    /// The scale, or the colours of the chosen list while they are shown.
    Swatches _compared;
    ContrastLines _lines;
    ContrastMatrix _matrix;
    std::unique_ptr<Segments> _views;
    ContrastList _list;
    SwatchStrip& _nearest;
    SwatchStrip& _scale;
};

}  // namespace

std::unique_ptr<ScalesSection> makeContrastSection(ScalesPage& page)
{
    return std::make_unique<ContrastSection>(page);
}

}  // namespace vantorel
