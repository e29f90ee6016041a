#include "scales/ScalesSections.h"

#include <array>

namespace vantorel {
namespace {

// In points.
constexpr double schemeHeight = 24;
constexpr double mostSchemeHeight = 36;

std::u16string nameOfScheme(HostDesktop& desktop, Scheme scheme)
{
    switch (scheme) {
        case Scheme::complement:
            return desktop.localizedString(u"Complement");
        case Scheme::split:
            return desktop.localizedString(u"Split");
        case Scheme::triad:
            return desktop.localizedString(u"Triad");
        case Scheme::tetrad:
            return desktop.localizedString(u"Tetrad");
        case Scheme::analogous:
            break;
    }
    return desktop.localizedString(u"Analogous");
}

/// The name of a scheme in texts, the same in every language.
std::string wordOf(Scheme scheme)
{
    static constexpr std::array words{"complement", "split", "triad", "tetrad", "analogous"};
    return words[static_cast<std::size_t>(scheme)];
}

class SchemesSection final : public ScalesSection {
public:
    explicit SchemesSection(ScalesPage& scalesPage)
        : ScalesSection(scalesPage, "scalesSchemes",
                        scalesPage.panel().desktop().localizedString(u"Schemes"))
    {
        std::vector<CopiedSeries> copied;
        for (const Scheme scheme : allSchemes) {
            const std::u16string name = nameOfScheme(desktop(), scheme);
            SwatchStrip& strip = addRow(name, {.name = name}, {schemeHeight, mostSchemeHeight});
            _strips[static_cast<std::size_t>(scheme)] = &strip;
            copied.push_back({name, [this, scheme, &strip] {
                                  return seriesOf(wordOf(scheme), strip.swatches());
                              }});
        }
        addCopyMenu(std::move(copied), false);
    }

    void show() override
    {
        for (const Scheme scheme : allSchemes)
            _strips[static_cast<std::size_t>(scheme)]->show(page().model().scheme(scheme));
    }

private:
    std::array<SwatchStrip*, allSchemes.size()> _strips{};
};

}  // namespace

std::unique_ptr<ScalesSection> makeSchemesSection(ScalesPage& page)
{
    return std::make_unique<SchemesSection>(page);
}

}  // namespace vantorel
