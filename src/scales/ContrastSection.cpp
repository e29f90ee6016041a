#include "colormath/ReadableColor.h"
#include "csscolor/Contrast.h"
#include "csscolor/GamutMapping.h"
#include "scales/ContrastLines.h"
#include "scales/ScalesSections.h"

#include <optional>

namespace vantorel {
namespace {

// In points.
constexpr double nearestHeight = 24;
constexpr double onGroundHeight = 24;
constexpr double mostHeight = 36;
constexpr double leastWidthForVerdict = 19;

struct Level {
    const char16_t* name;
    double ratio;
};
constexpr Level levels[] = {{u"AA", 4.5}, {u"AAA", 7}};

/// What a ratio is enough for, in the room of a narrow colour.
std::u16string shortVerdict(double ratio)
{
    const ContrastVerdicts verdicts = contrastVerdicts(ratio);
    if (verdicts.normalTextAAA) return u"AAA";
    if (verdicts.normalTextAA) return u"AA";
    return verdicts.largeTextAA ? u"3:1" : u"\u2013";
}

class ContrastSection final : public ScalesSection {
public:
    explicit ContrastSection(ScalesPage& scalesPage)
        : ScalesSection(scalesPage, "scalesContrast",
                        scalesPage.panel().desktop().localizedString(u"Contrast")),
          _lines(scalesPage.panel(), identifier() + "Lines", title()),
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

    ContrastLines _lines;
    SwatchStrip& _nearest;
    SwatchStrip& _scale;
};

}  // namespace

std::unique_ptr<ScalesSection> makeContrastSection(ScalesPage& page)
{
    return std::make_unique<ContrastSection>(page);
}

}  // namespace vantorel
