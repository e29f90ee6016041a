#pragma once

#include "host/HostColorPicker.h"
#include "host/HostControls.h"
#include "host/HostNumberField.h"
#include "mix/MixChannels.h"
#include "mix/MixLayout.h"
#include "mix/MixModel.h"
#include "mix/PlaneView.h"
#include "mix/TrackView.h"
#include "pageparts/Segments.h"

#include <array>
#include <memory>
#include <optional>

namespace vantorel {

/// The page on which colours are mixed: a plane of a space with its third component beside it, and
/// a slider with a number for each component and the opacity.
class MixPicker final : public HostColorPicker, private MarkDragListener {
public:
    static constexpr int mixMode = 15;

    using HostColorPicker::HostColorPicker;

    HostView* provideNewView(bool initialRequest) override;
    [[nodiscard]] bool supportsMode(int mode) const override { return mode == mixMode; }
    [[nodiscard]] int currentMode() const override { return mixMode; }
    [[nodiscard]] std::u16string buttonToolTip() const override;
    [[nodiscard]] std::string buttonImage() const override;
    [[nodiscard]] HostSize minContentSize() const override { return leastMixPage; }
    [[nodiscard]] HostSize preferredContentSize() const override { return {300, 360}; }
    [[nodiscard]] bool takesWideGamut() const override { return true; }
    void setColor(const std::optional<HostColor>& color) override;
    void viewSizeChanged(HostView* sender) override;
    bool performAction(std::string_view name, HostControl* sender) override;

private:
    /// A slider, its name and its number. The last one is that of the opacity.
    struct Row {
        std::unique_ptr<HostTextField> label;
        std::unique_ptr<TrackView> track;
        std::unique_ptr<HostNumberField> number;
        MixChannel channel;
    };
    static constexpr std::size_t opacityRow = 3;

    void makePlane();
    void makeRow(std::size_t index);
    void describeViews();
    /// Puts words and numbers of the space into the rows.
    void showSpace();
    void layOut();
    /// Shows the colour everywhere.
    void sync();
    void syncBar();
    /// Passes the page's colour to the panel.
    void push();

    void chooseSpace(MixSpace space);
    void choosePlace(HostPoint place);
    void stepPlace(int right, int up, std::uint64_t modifierFlags);
    void stepRow(std::size_t index, int steps, std::uint64_t modifierFlags);
    /// Chooses a value of a row's slider.
    void chooseFraction(std::size_t index, double fraction);
    /// Chooses a value of a row's number.
    void chooseNumber(std::size_t index, double number);
    void setValue(std::size_t index, double value);

    [[nodiscard]] MixRange rangeOfRow(std::size_t index) const;
    [[nodiscard]] double valueOfRow(std::size_t index) const;
    [[nodiscard]] std::u16string spokenPlane() const;

    void dragDidBegin() override { colorPanel().continuousChangeDidBegin(); }
    void dragDidEnd() override { colorPanel().continuousChangeDidEnd(); }

    MixModel _model;
    bool _isPushing = false;
    std::unique_ptr<HostView> _page;
    Segments _segments;
    std::unique_ptr<PlaneView> _plane;
    std::unique_ptr<TrackView> _bar;
    std::array<Row, opacityRow + 1> _rows;
};

}  // namespace vantorel
