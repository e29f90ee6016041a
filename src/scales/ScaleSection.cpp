#include "scales/ScalesSections.h"

namespace vantorel {
namespace {

// In points.
constexpr double scaleHeight = 44;
constexpr double mostScaleHeight = 64;
constexpr double seriesHeight = 28;
constexpr double mostSeriesHeight = 36;
/// With the gap between them, these colours are as far apart as targets must be.
constexpr double leastSeriesWidth = 20;

class ScaleSection final : public ScalesSection {
public:
    explicit ScaleSection(ScalesPage& scalesPage)
        : ScalesSection(scalesPage, "scalesScale",
                        scalesPage.panel().desktop().localizedString(u"Scale")),
          _scale(addWideRow(u"", {.name = title(), .isJoined = true, .showsLabels = true},
                            {scaleHeight, mostScaleHeight})),
          _tints(addSeries(desktop().localizedString(u"Tints"))),
          _shades(addSeries(desktop().localizedString(u"Shades"))),
          _tones(addSeries(desktop().localizedString(u"Tones")))
    {
        addCopyMenu({{title(), [this] { return seriesOf("", _scale.swatches()); }},
                     {desktop().localizedString(u"Tints"),
                      [this] { return seriesOf("tint", _tints.swatches()); }},
                     {desktop().localizedString(u"Shades"),
                      [this] { return seriesOf("shade", _shades.swatches()); }},
                     {desktop().localizedString(u"Tones"),
                      [this] { return seriesOf("tone", _tones.swatches()); }}},
                    true);
    }

    void show() override
    {
        const ScalesModel& model = page().model();
        _scale.show(model.scale());
        _tints.show(model.tints());
        _shades.show(model.shades());
        _tones.show(model.tones());
    }

private:
    SwatchStrip& addSeries(const std::u16string& name)
    {
        return addRow(name, {.name = name, .leastWidth = leastSeriesWidth},
                      {seriesHeight, mostSeriesHeight});
    }

    SwatchStrip& _scale;
    SwatchStrip& _tints;
    SwatchStrip& _shades;
    SwatchStrip& _tones;
};

}  // namespace

std::unique_ptr<ScalesSection> makeScaleSection(ScalesPage& page)
{
    return std::make_unique<ScaleSection>(page);
}

}  // namespace vantorel
