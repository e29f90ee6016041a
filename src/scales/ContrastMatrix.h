#pragma once

#include "host/HostColorPanel.h"
#include "host/HostControls.h"
#include "scales/ScalesModel.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// Returns what a ratio is enough for, in the room of a narrow colour: "AAA", "AA", "3:1" for large
/// texts, or a dash.
[[nodiscard]] std::u16string shortVerdict(double ratio);

/// A table of the contrasts of colours with each other: a column for each colour as a text, a row
/// for each as its ground. A cell in which small texts can be read shows such a text; the others
/// say what they are enough for. A click takes the colour of the text, the arrows walk through the
/// cells, and Return takes the colour.
class ContrastMatrix final : public HostViewContent {
public:
    using Chosen = std::function<void(const HostColor& color)>;

    /// The room around the cells on each side, in which the focus is shown. In points.
    static constexpr double margin = 3;

    /// `panel` must outlive the view.
    ContrastMatrix(HostColorPanel& panel, const std::string& identifier, const std::u16string& name,
                   Chosen chosen);

    [[nodiscard]] HostCustomView& view() const { return *_view; }
    void show(Swatches swatches);
    /// The least height of the view for a number of colours, in points.
    [[nodiscard]] static double leastHeight(std::size_t count);
    /// Returns how many colours have room in the view.
    [[nodiscard]] std::size_t capacity() const;

    /// A text on a ground, by the places of their colours.
    struct Cell {
        std::size_t text = 0;
        std::size_t ground = 0;
        bool operator==(const Cell&) const = default;
    };
    [[nodiscard]] double ratioOf(Cell cell) const;
    /// The place of a cell in the view.
    [[nodiscard]] HostRect placeOf(Cell cell) const;

    void drawRect(HostCanvas& canvas) override;
    void mouseDown(const HostEvent& event) override;
    void mouseUp(const HostEvent& event) override;
    void mouseMoved(const HostEvent& event) override;
    [[nodiscard]] bool takesKeys() const override { return true; }
    bool keyDown(const HostKeyEvent& event) override;
    [[nodiscard]] HostBezierPath keyOutline() const override;

private:
    /// The place of a column and row counted from the headings, which are at 0.
    [[nodiscard]] HostRect placeInGrid(std::size_t column, std::size_t row) const;
    [[nodiscard]] std::optional<Cell> cellAt(HostPoint point) const;
    /// Returns the label of the heading at a point.
    [[nodiscard]] std::optional<std::u16string> headingAt(HostPoint point) const;
    [[nodiscard]] std::u16string spoken(Cell cell) const;
    void drawHeading(HostCanvas& canvas, const Swatch& swatch, HostRect place) const;
    void drawCell(HostCanvas& canvas, Cell cell) const;

    HostColorPanel& _panel;
    Chosen _chosen;
    std::unique_ptr<HostCustomView> _view;
    Swatches _swatches;
    /// Where the keys are.
    Cell _current;
    std::optional<Cell> _pressed;
};

}  // namespace vantorel
