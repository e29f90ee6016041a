#pragma once

#include "host/HostColorPanel.h"
#include "host/HostControls.h"
#include "host/HostDrops.h"
#include "scales/ScalesModel.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// A row of colours. A click takes one, a drag carries it out. The arrows, Home and End walk along
/// the row, and Return takes the colour that they have reached.
class SwatchStrip final : public HostViewContent, public HostDropTarget {
public:
    struct Options {
        std::string identifier = {};
        /// What assistive technology calls the row.
        std::u16string name = {};
        /// Whether the colours touch each other, in one frame.
        bool isJoined = false;
        /// Whether the labels are written below the colours.
        bool showsLabels = false;
        /// Colours that would be narrower break into rows. In points.
        double leastWidth = 24;
        /// What is shown in place of colours if there are none.
        std::u16string emptyText = {};
        /// Writes the code of a colour. Sections set it.
        std::function<std::u16string(const HostColor& color)> code = {};
        /// Called for what is dropped on the first or the last colour. Without it nothing can be
        /// dropped.
        std::function<void(bool onLast, const HostPasteboardItem& item)> droppedOnEnd = {};
    };
    using Chosen = std::function<void(const HostColor& color)>;

    /// The room around the colours on each side, in which the focus is shown. In points.
    static constexpr double margin = 3;

    /// `panel` must outlive the view.
    SwatchStrip(HostColorPanel& panel, Options options, Chosen chosen);

    [[nodiscard]] HostCustomView& view() const { return *_view; }

    void show(Swatches swatches);
    [[nodiscard]] const Swatches& swatches() const { return _swatches; }

    /// Returns the least height of the view in which colours of `height` and their labels are
    /// shown. Colours in several rows are less high.
    [[nodiscard]] double heightFor(double width, double height) const;

    void drawRect(HostCanvas& canvas) override;
    void mouseDown(const HostEvent& event) override;
    void mouseDragged(const HostEvent& event) override;
    void mouseUp(const HostEvent& event) override;
    void mouseMoved(const HostEvent& event) override;
    [[nodiscard]] bool takesKeys() const override { return true; }
    bool keyDown(const HostKeyEvent& event) override;
    [[nodiscard]] HostBezierPath keyOutline() const override;
    [[nodiscard]] bool takesDropAt(HostPoint point) const override;
    void takeDrop(const HostPasteboardItem& item, HostPoint point) override;

private:
    /// The places of the colours, without their labels.
    [[nodiscard]] std::vector<HostRect> places() const;
    [[nodiscard]] std::optional<std::size_t> swatchAt(HostPoint point) const;
    [[nodiscard]] std::u16string codeOf(const HostColor& color) const;
    [[nodiscard]] std::u16string spoken(std::size_t index) const;
    void drawEmptyText(HostCanvas& canvas) const;
    void drawLabel(HostCanvas& canvas, const Swatch& swatch, HostRect place) const;

    HostColorPanel& _panel;
    Options _options;
    Chosen _chosen;
    std::unique_ptr<HostCustomView> _view;
    Swatches _swatches;
    /// Where the keys are.
    std::size_t _current = 0;
    struct Press {
        std::size_t swatch;
        HostPoint at;
    };
    std::optional<Press> _press;
};

/// Returns the places of colours in a strip, in rows from the top. `below` is the room for a label
/// below each colour.
[[nodiscard]] std::vector<HostRect> swatchPlaces(HostRect strip, std::size_t count,
                                                 const SwatchStrip::Options& options, double below);
/// The number of rows in which the colours are shown.
[[nodiscard]] std::size_t swatchRows(double width, std::size_t count,
                                     const SwatchStrip::Options& options);

}  // namespace vantorel
