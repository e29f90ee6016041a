#include "csscolor/CSSColorReader.h"
#include "host/HostInterfaceFactory.h"
#include "host/HostNumberField.h"
#include "scales/ScalesSections.h"

#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace vantorel {
namespace {

// In points.
constexpr double gradientHeight = 28;
constexpr double mostGradientHeight = 72;
constexpr double stepsWidth = 40;
constexpr double besideText = 6;
constexpr double besideSwap = 24;

std::u16string titleOfSpace(HostDesktop& desktop, const GradientSpace& space)
{
    std::u16string name = space.name;
    if (space.space == ColorSpace::srgbLinear)
        return name + u", " + desktop.localizedString(u"linear light");
    if (!placeOfHue(space.space)) return name;
    return name + u", " +
           (space.arc == HueArc::longer ? desktop.localizedString(u"longer hue")
                                        : desktop.localizedString(u"shorter hue"));
}

class GradientSection final : public ScalesSection {
public:
    explicit GradientSection(ScalesPage& scalesPage)
        : ScalesSection(scalesPage, "scalesGradient",
                        scalesPage.panel().desktop().localizedString(u"Gradient")),
          _strip(addWideRow(u"",
                            {.name = title(),
                             .isJoined = true,
                             .droppedOnEnd =
                                 [this](bool onLast, const HostPasteboardItem& item) {
                                     takeDropped(onLast, item);
                                 }},
                            {gradientHeight, mostGradientHeight}))
    {
        addCopyMenu({{title(), [this] { return seriesOf("gradient", _strip.swatches()); }}}, true);
        makeControls();
    }

    void show() override
    {
        const ScalesModel& model = page().model();
        _strip.show(model.gradient());
        _end->setStringValue(page().hexCode(model.end()));
        _steps->setValue(model.steps());
        _space->selectItemAtIndex(static_cast<int>(model.space()));
    }

protected:
    [[nodiscard]] double heightAboveRows(double) const override { return 2 * controlHeight + gap; }

    void layOutAboveRows(HostRect place) override
    {
        const double before = std::max(widthOf(_toText), widthOf(_stepsText)) + besideText;
        const double swapWidth = widthOf(_swapText) + besideSwap;
        const double upper = place.maxY() - controlHeight;
        const double lower = place.y;
        const double fields = place.x + before;
        _to->setFrame({place.x, upper, before, controlHeight});
        _swap->setFrame({place.maxX() - swapWidth, upper, swapWidth, controlHeight});
        _end->setFrame({fields, upper, place.maxX() - swapWidth - gap - fields, controlHeight});
        _stepsLabel->setFrame({place.x, lower, before, controlHeight});
        _steps->textField().setFrame({fields, lower, stepsWidth, controlHeight});
        const double space = fields + stepsWidth + gap;
        _space->setFrame({space, lower, place.maxX() - space, controlHeight});
    }

private:
    [[nodiscard]] double widthOf(const std::u16string& text) const
    {
        return std::ceil(desktop().sizeOfText({.string = text, .pointSize = scalesTextSize}).width);
    }

    [[nodiscard]] HostControlDescription description(const std::string& word) const
    {
        HostControlDescription result;
        result.identifier = identifier() + word;
        result.pointSize = scalesTextSize;
        return result;
    }

    std::unique_ptr<HostTextField> makeLabel(const std::string& word, const std::u16string& text)
    {
        HostControlDescription label = description(word);
        label.title = text;
        label.editable = false;
        auto result = desktop().interfaceFactory().makeTextField(label);
        result->setStringValue(text);
        view().addSubview(*result);
        return result;
    }

    void makeControls()
    {
        HostInterfaceFactory& factory = desktop().interfaceFactory();
        _to = makeLabel("To", _toText);

        HostControlDescription end = description("End");
        end.monospaced = true;
        end.accessibleName = desktop().localizedString(u"Last colour of the gradient");
        end.toolTip = desktop().localizedString(
            u"The last colour, in any form of CSS. Leave it empty for the complement");
        _end = factory.makeTextField(end);
        _end->setAction([this](HostControl&) { takeEnd(); });
        view().addSubview(*_end);

        HostControlDescription swap = description("Swap");
        swap.title = _swapText;
        swap.toolTip = desktop().localizedString(
            u"Makes the last colour the panel's colour, and the panel's colour the last one");
        _swap = factory.makeButton(swap);
        _swap->setAction([this](HostControl&) { swapEnds(); });
        view().addSubview(*_swap);

        _stepsLabel = makeLabel("StepsLabel", _stepsText);
        HostControlDescription steps = description("Steps");
        steps.monospaced = true;
        steps.accessibleName = desktop().localizedString(u"Number of colours");
        _steps = factory.makeNumberField(
            steps,
            {.minimum = ScalesModel::leastSteps, .maximum = ScalesModel::mostSteps, .unit = u""});
        _steps->setAction([this](HostNumberField& field) {
            if (!std::isnan(field.value()))
                page().model().setSteps(static_cast<int>(std::lround(field.value())));
            page().modelDidChange();
        });
        view().addSubview(_steps->textField());

        HostControlDescription space = description("Space");
        space.accessibleName = desktop().localizedString(u"Colour space");
        _space = factory.makePopUpButton(space);
        for (const GradientSpace& each : gradientSpaces())
            _space->addItemWithTitle(titleOfSpace(desktop(), each));
        _space->setAction([this](HostControl&) {
            page().model().setSpace(static_cast<std::size_t>(_space->indexOfSelectedItem()));
            page().modelDidChange();
        });
        view().addSubview(*_space);
    }

    void reportNoColor()
    {
        page().panel().report(desktop().localizedString(
            u"This is not a colour. Write it as in CSS, such as #ff8000 or hsl(30 100% 50%)"));
    }

    void takeDropped(bool onLast, const HostPasteboardItem& item)
    {
        std::optional<HostColor> color;
        if (const auto* dropped = std::get_if<HostColor>(&item)) {
            color = *dropped;
        } else if (const auto read = readCSSColor(std::get<std::string>(item))) {
            color = read->color;
        }
        if (!color) {
            reportNoColor();
            return;
        }
        if (onLast) {
            page().model().setEnd(color);
        } else {
            // The gradient begins with the panel's colour, and goes to where it went.
            page().model().setEnd(page().model().end());
            page().choose(*color);
        }
        page().modelDidChange();
    }

    void takeEnd()
    {
        const std::u16string text = _end->stringValue();
        // The action is also sent when a field is left in which nothing was typed.
        if (text == page().hexCode(page().model().end())) return;
        if (text.find_first_not_of(u' ') == std::u16string::npos) {
            page().model().setEnd(std::nullopt);
        } else if (const auto color = readCSSColor(text)) {
            page().model().setEnd(color->color);
        } else if (const auto code = readCSSColor(u"#" + text)) {
            // The user may want codes without "#".
            page().model().setEnd(code->color);
        } else {
            reportNoColor();
        }
        page().modelDidChange();
    }

    void swapEnds()
    {
        const HostColor end = page().model().end();
        page().model().setEnd(page().model().color());
        page().choose(end);
        page().modelDidChange();
    }

    SwatchStrip& _strip;
    std::u16string _toText = desktop().localizedString(u"To");
    std::u16string _stepsText = desktop().localizedString(u"Steps");
    std::u16string _swapText = desktop().localizedString(u"Swap");
    std::unique_ptr<HostTextField> _to;
    std::unique_ptr<HostTextField> _end;
    std::unique_ptr<HostButton> _swap;
    std::unique_ptr<HostTextField> _stepsLabel;
    std::unique_ptr<HostNumberField> _steps;
    std::unique_ptr<HostPopUpButton> _space;
};

}  // namespace

std::unique_ptr<ScalesSection> makeGradientSection(ScalesPage& page)
{
    return std::make_unique<GradientSection>(page);
}

}  // namespace vantorel
