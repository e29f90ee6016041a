#pragma once

#include "host/HostControls.h"
#include "host/HostDesktop.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// Buttons in one frame, of which one is chosen.
class Segments final : public HostViewContent {
public:
    struct Description {
        /// Of the frame. Those of the buttons end in the numbers from 1 on.
        std::string identifier;
        std::string buttonIdentifier;
        std::u16string accessibleName;
        std::vector<std::u16string> titles;
        double pointSize = 12;
    };
    using Chosen = std::function<void(std::size_t segment)>;

    static constexpr double height = 28;

    /// Call it once. `chosen` is called for each click, also on the segment that is chosen.
    void makeViews(HostDesktop& desktop, const Description& description, Chosen chosen);
    [[nodiscard]] HostView& view() const { return *_frame; }
    /// Shows which segment is chosen.
    void show(std::size_t segment);
    /// Gives all segments the same width.
    void layOut(HostRect place);
    /// Gives the segments widths that fit their titles.
    void layOutByTitles(HostRect place);
    /// The least width in which `layOutByTitles` shows all titles.
    [[nodiscard]] double leastWidth() const;

    void drawRect(HostCanvas& canvas) override;

private:
    void layOut(HostRect place, const std::vector<double>& widths);

    Chosen _chosen;
    std::unique_ptr<HostCustomView> _frame;
    std::vector<std::unique_ptr<HostButton>> _buttons;
    /// The widths of the titles, in points.
    std::vector<double> _titleWidths;
};

}  // namespace vantorel
