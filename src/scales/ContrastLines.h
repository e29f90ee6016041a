#pragma once

#include "host/HostColorPanel.h"
#include "host/HostControls.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// A colour on a ground, and how well it can be seen there.
struct ContrastLine {
    /// What the ground is.
    std::u16string title;
    /// Both within sRGB.
    HostColor color = HostColor::blackColor();
    HostColor ground = HostColor::whiteColor();

    bool operator==(const ContrastLine&) const = default;
};

/// Returns the contrast of a line, which is at least 1.
[[nodiscard]] double contrastOf(const ContrastLine& line);
/// Returns a ratio with two decimals, as the desktop writes them. It is rounded down, because one
/// that only rounds to a limit does not reach it.
[[nodiscard]] std::u16string ratioText(HostDesktop& desktop, double ratio);
/// Returns what a ratio is enough for: "AAA", "AA", "AA large" or "fails", in the user's language.
[[nodiscard]] std::u16string verdictText(HostDesktop& desktop, double ratio);

/// A table of contrasts: a sample, the ground, the ratio and what it is enough for.
class ContrastLines final : public HostViewContent {
public:
    static constexpr double lineHeight = 24;

    /// `panel` must outlive the view.
    ContrastLines(HostColorPanel& panel, const std::string& identifier, const std::u16string& name);

    [[nodiscard]] HostCustomView& view() const { return *_view; }
    void show(std::vector<ContrastLine> lines);

    void drawRect(HostCanvas& canvas) override;

private:
    [[nodiscard]] std::u16string spoken() const;

    HostColorPanel& _panel;
    std::unique_ptr<HostCustomView> _view;
    std::vector<ContrastLine> _lines;
};

}  // namespace vantorel
