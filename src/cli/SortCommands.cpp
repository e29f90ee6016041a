#include "cli/Computing.h"
#include "cli/Failure.h"
#include "colormath/ColorProperties.h"
#include "colormath/Differences.h"
#include "csscolor/Contrast.h"
#include "result/HarmlessLine.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

/// The colours of a list, for finding the nearest one.
class ListedColors {
public:
    ListedColors(Session& session, const CommandLine& commandLine)
        : _list(session.requiredNamingList(commandLine))
    {
        for (std::size_t place = 0; place < _list->allKeys().size(); ++place) {
            // Keys without a colour, and patterns, cannot be near a colour.
            const auto rgb = _list->colorAtIndex(place).calibratedRGB();
            if (!rgb) continue;
            CSSColorValue color;
            color.components = {rgb->red, rgb->green, rgb->blue};
            color.alpha = rgb->alpha;
            _colors.push_back(color);
            _places.push_back(place);
        }
        if (_colors.empty()) {
            throw Failure{{phrase("the list \"%1\" has no colours", _list->name()),
                           phrase("choose another one with \"--list NAME\"")}};
        }
        _nearest.emplace(_colors);
    }

    struct Entry {
        CSSColorValue color;
        std::string name;
    };
    [[nodiscard]] Entry nearestTo(const CSSColorValue& color) const
    {
        const std::size_t found = _nearest->placeFor(color);
        return {_colors[found], utf8FromUtf16(_list->allKeys()[_places[found]])};
    }

private:
    std::shared_ptr<HostColorList> _list;
    std::vector<CSSColorValue> _colors;
    /// The place of each colour in the list.
    std::vector<std::size_t> _places;
    std::optional<NearestColor> _nearest;
};

class NearestWriter final : public ColorTextUser {
public:
    NearestWriter(const CommandLine& commandLine, const ListedColors& colors,
                  ColorTextReader& reader)
        : _writer(commandLine.form), _colors(colors), _reader(reader)
    {
    }

    Status use(Output& output, std::string_view text, bool) override
    {
        const Result<CSSColor> color = _reader.readUnrounded(text);
        if (!color) return color.error();
        const auto [nearest, name] = _colors.nearestTo(color->value);
        _writer.write(output, nearest, "\t" + harmlessLine(name));
        return {};
    }

private:
    ColorFormWriter _writer;
    const ListedColors& _colors;
    ColorTextReader& _reader;
};

/// Sorts colours with equal keys in the order of the input.
template <class KeyOf>
void sortBy(std::vector<CSSColor>& colors, bool isReversed, KeyOf keyOf)
{
    using Key = decltype(keyOf(colors.front()));
    std::vector<std::pair<Key, CSSColor>> keyed;
    keyed.reserve(colors.size());
    for (const CSSColor& color : colors)
        keyed.emplace_back(keyOf(color), color);
    std::ranges::stable_sort(keyed, [isReversed](const auto& first, const auto& second) {
        return isReversed ? second.first < first.first : first.first < second.first;
    });
    std::ranges::transform(keyed, colors.begin(), &std::pair<Key, CSSColor>::second);
}

ColorProperty propertyNamed(std::string_view name)
{
    if (name == "hue") return ColorProperty::hue;
    if (name == "lightness") return ColorProperty::lightness;
    return name == "chroma" ? ColorProperty::chroma : ColorProperty::luminance;
}

}  // namespace

int printNearest(Session& session, const CommandLine& commandLine)
{
    const ListedColors colors(session, commandLine);
    ColorTextReader reader = colorTextReader(session, commandLine);
    NearestWriter writer(commandLine, colors, reader);
    return useColorTexts(commandLine.operands, writer, session.output()) ? 0 : failureStatus;
}

int sortColors(Session& session, const CommandLine& commandLine)
{
    const std::string by = commandLine.sortedBy.value_or("hue");
    ColorTextReader reader = colorTextReader(session, commandLine);
    std::optional<ListedColors> listed;
    if (by == "name") listed.emplace(session, commandLine);
    std::vector<CSSColor> colors;
    const bool areAllColors = collectColors(session, reader, commandLine.operands, colors);
    if (by == "name") {
        sortBy(colors, commandLine.reversed,
               [&](const CSSColor& color) { return listed->nearestTo(color.value).name; });
    } else if (by == "contrast") {
        sortBy(colors, commandLine.reversed, [](const CSSColor& color) {
            return contrastRatio(color.color, HostColor::whiteColor()).value_or(1);
        });
    } else {
        sortBy(colors, commandLine.reversed, [property = propertyNamed(by)](const CSSColor& color) {
            return propertyOf(color.value, property);
        });
    }
    const ColorFormWriter writer(commandLine.form);
    for (const CSSColor& color : colors)
        writer.write(session.output(), color);
    return areAllColors ? 0 : failureStatus;
}

}  // namespace vantorel
