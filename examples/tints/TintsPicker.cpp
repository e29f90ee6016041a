// A page of tints and shades: the panel's colour in steps to white and to black. A click takes one.
#include "host/HostControls.h"
#include "host/HostPluginEntry.h"

#include <algorithm>

namespace {

using namespace vantorel;

constexpr int steps = 11;  // from the colour itself to white or black
constexpr int rows = 2;    // tints above shades

/// `end` is 1 for tints and 0 for shades; the alpha stays.
HostColor mixed(const HostColor::Components& from, double end, int step)
{
    const double share = static_cast<double>(step) / (steps - 1);
    const auto mix = [&](double channel) { return channel + (end - channel) * share; };
    return HostColor::colorWithCalibratedRed(mix(from.red), mix(from.green), mix(from.blue),
                                             from.alpha);
}

class TintsPicker final : public HostColorPicker, HostViewContent {
public:
    using HostColorPicker::HostColorPicker;

    HostView* provideNewView(bool) override
    {
        HostControlDescription description;
        description.identifier = "tints";
        description.frame = {0, 0, minContentSize().width, minContentSize().height};
        description.accessibleName = u"Tints and shades";
        auto& factory = colorPanel().desktop().interfaceFactory();
        _view = factory.makeCustomView(description, *this);
        return _view.get();
    }

    [[nodiscard]] bool supportsMode(int mode) const override { return mode == 0; }
    [[nodiscard]] int currentMode() const override { return 0; }
    [[nodiscard]] std::u16string buttonToolTip() const override { return u"Tints and shades"; }
    [[nodiscard]] std::string buttonImage() const override
    {
        return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16" fill="currentColor">)"
               R"(<path d="M2 3h3v10H2z"/><path d="M6.500 3h3v10h-3z" opacity=".6"/>)"
               R"(<path d="M11 3h3v10h-3z" opacity=".3"/></svg>)";
    }
    [[nodiscard]] HostSize minContentSize() const override { return {160, 60}; }
    bool performAction(std::string_view, HostControl*) override { return false; }

    void setColor(const std::optional<HostColor>& color) override
    {
        // The tints of a step just chosen would move under the pointer.
        if (_isTakingStep || !color) return;
        // A pattern colour has no tints; keep the previous ones.
        _base = color->calibratedRGB().value_or(_base);
        if (_view) _view->setNeedsDisplay(true);
    }
    // The view is redrawn when its size changes, and it has no controls to lay out.
    void viewSizeChanged(HostView*) override {}

private:
    void drawRect(HostCanvas& canvas) override
    {
        const HostSize cell = cellSize();
        for (int row = 0; row < rows; ++row) {
            for (int step = 0; step < steps; ++step) {
                HostBezierPath path;
                path.appendBezierPathWithRect(
                    {step * cell.width, (1 - row) * cell.height, cell.width, cell.height});
                canvas.fill(path, colorAt(row, step));
            }
        }
    }

    // From press to release the panel sees one change.
    void mouseDown(const HostEvent& event) override
    {
        colorPanel().continuousChangeDidBegin();
        takeStep(event);
    }
    void mouseDragged(const HostEvent& event) override { takeStep(event); }
    void mouseUp(const HostEvent&) override { colorPanel().continuousChangeDidEnd(); }

    void takeStep(const HostEvent& event)
    {
        const HostSize cell = cellSize();
        if (!_view->bounds().contains(event.location)) return;
        _isTakingStep = true;
        colorPanel().setColor(
            colorAt(event.location.y < cell.height ? 1 : 0,
                    std::min(static_cast<int>(event.location.x / cell.width), steps - 1)));
        _isTakingStep = false;
    }

    [[nodiscard]] HostColor colorAt(int row, int step) const { return mixed(_base, 1 - row, step); }
    [[nodiscard]] HostSize cellSize() const
    {
        return {_view->bounds().width / steps, _view->bounds().height / rows};
    }

    std::unique_ptr<HostCustomView> _view;
    HostColor::Components _base;
    bool _isTakingStep = false;
};

}  // namespace

VANTOREL_PICKER_PLUGIN(TintsPicker, "org.vantorel.tints", "Tints")
