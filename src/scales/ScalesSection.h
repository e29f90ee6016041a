#pragma once

#include "host/HostColorPanel.h"
#include "host/HostControls.h"
#include "scales/CopyMenu.h"
#include "scales/ScalesModel.h"
#include "scales/SwatchStrip.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// The size of the texts of the page, in points.
inline constexpr double scalesTextSize = 12;

/// What sections need of the page.
class ScalesPage {
public:
    virtual ~ScalesPage() = default;
    virtual HostColorPanel& panel() = 0;
    virtual ScalesModel& model() = 0;
    /// Returns the hex code of a colour in the form that the user wants, mapped into sRGB.
    [[nodiscard]] virtual std::u16string hexCode(const HostColor& color) = 0;
    /// Makes a colour the panel's colour.
    virtual void choose(const HostColor& color) = 0;
    /// The user has changed the model in another way.
    virtual void modelDidChange() = 0;
};

/// A part of the page under a heading: rows of colours with their names, and a menu that copies
/// them.
class ScalesSection : public HostViewContent {
public:
    [[nodiscard]] HostCustomView& view() const { return *_view; }
    [[nodiscard]] const std::u16string& title() const { return _title; }

    /// The least height in which everything is shown at a width, in points.
    [[nodiscard]] virtual double leastHeight(double width) const;
    /// Places the section. Room that is left below makes its rows higher, up to a limit.
    virtual void layOut(HostRect place);

    /// Shows what the model has now.
    virtual void show() = 0;

    void drawRect(HostCanvas& canvas) override;

protected:
    /// The heights between which the colours of a row are, in points.
    struct RowHeight {
        double least = 0;
        double most = 0;
    };
    struct Row {
        /// Empty for a row without a name.
        std::u16string label;
        /// Whether the row takes the whole width, with its name above it.
        bool isWide = false;
        std::unique_ptr<SwatchStrip> strip;
        RowHeight height = {};
    };

    /// In points.
    static constexpr double headingHeight = 28;
    static constexpr double gap = 4;
    static constexpr double controlHeight = 28;

    /// `page` must outlive the section. `identifier` is that of its views, followed by a word.
    ScalesSection(ScalesPage& page, std::string identifier, std::u16string title);

    /// Adds a row with its name before it.
    SwatchStrip& addRow(const std::u16string& label, SwatchStrip::Options options,
                        RowHeight height);
    /// Adds a row that takes the whole width. The name, if any, is above it.
    SwatchStrip& addWideRow(const std::u16string& label, SwatchStrip::Options options,
                            RowHeight height);
    /// Hides the rows, or shows them again.
    void setRowsParked(bool flag);
    /// Adds the menu at the right end of the heading.
    void addCopyMenu(std::vector<CopiedSeries> series, bool comesFirst);
    /// Returns the colours of a row as they are copied.
    [[nodiscard]] ColorSeries seriesOf(const std::string& word, const Swatches& swatches) const;

    [[nodiscard]] ScalesPage& page() const { return _page; }
    [[nodiscard]] HostDesktop& desktop() const { return _page.panel().desktop(); }
    [[nodiscard]] const std::string& identifier() const { return _identifier; }

    /// The height of what a section has above its rows.
    [[nodiscard]] virtual double heightAboveRows(double width) const;
    virtual void layOutAboveRows(HostRect place);

private:
    [[nodiscard]] double labelWidth() const;
    /// The height of a name above its row.
    [[nodiscard]] static double captionOf(const Row& row);
    [[nodiscard]] double heightOfRow(const Row& row, double width) const;

    ScalesPage& _page;
    std::string _identifier;
    std::u16string _title;
    std::unique_ptr<HostCustomView> _view;
    std::unique_ptr<HostPopUpButton> _copy;
    std::vector<Row> _rows;
};

}  // namespace vantorel
