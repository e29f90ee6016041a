#include "PickerPage.h"
#include "text/Unicode.h"
#include "view/ViewColors.h"

#include <array>
#include <initializer_list>

namespace vantorel {
namespace {

/// The marks at the current colour in the palette and on the wheel.
class ColorsViewDrawingTest : public PickerPage {
protected:
    ColorsViewDrawingTest()
    {
        _panel.showPage(_page);
        _picker.viewSizeChanged(nullptr);
    }

    void setColor(std::uint64_t red, std::uint64_t green, std::uint64_t blue)
    {
        QTXHexColorSpec spec;
        spec.setHexRed(red, green, blue);
        _panel.changeColor(spec.colorHexColorSpec());
    }
    [[nodiscard]] std::vector<PaintOperation> draw()
    {
        return dynamic_cast<HeadlessCustomView&>(control("_hexColorsView")).draw().operations();
    }
    /// The strokes of a drawing, without the view's frame.
    [[nodiscard]] static std::vector<StrokeOperation> marksIn(
        const std::vector<PaintOperation>& operations)
    {
        std::vector<StrokeOperation> strokes;
        for (std::size_t i = 2; i < operations.size(); ++i) {
            const auto* stroke = std::get_if<StrokeOperation>(&operations[i]);
            if (stroke != nullptr) strokes.push_back(*stroke);
        }
        return strokes;
    }
    /// The colour that the last filling before a stroke gave to the same shape.
    [[nodiscard]] static std::optional<HostColor> fillingOf(
        const std::vector<PaintOperation>& operations, const StrokeOperation& stroke)
    {
        std::optional<HostColor> color;
        for (const PaintOperation& operation : operations) {
            const auto* fill = std::get_if<FillOperation>(&operation);
            if (fill != nullptr && fill->path.elements() == stroke.path.elements())
                color = fill->color;
        }
        return color;
    }
    void showGreys(std::initializer_list<int> greys)
    {
        auto list = std::make_shared<HostColorList>(u"Greys");
        for (const int grey : greys) {
            const double channel = grey / 255.0;
            list->setColor(HostColor::colorWithCalibratedRed(channel, channel, channel, 1),
                           utf16FromUtf8(std::to_string(grey)));
        }
        _desktop.colorLists().install(std::move(list));
        _picker.hexSettings().setHexColorList(u"Greys");
        _picker.performAction("paletteViewModeAction", nullptr);
    }
};

TEST_F(ColorsViewDrawingTest, TheWheelOutlinesTheCellOfTheCurrentColour)
{
    _picker.performAction("cubeViewModeAction", nullptr);
    struct Row {
        std::array<std::uint64_t, 3> color;
        std::array<std::uint64_t, 3> cell;
    };
    for (const auto& [color, cell] :
         {Row{{0xFF, 0, 0}, {0xFF, 0, 0}}, Row{{0xFE, 1, 1}, {0xFF, 0, 0}},
          Row{{0x60, 0x5F, 0x61}, {0x60, 0x60, 0x60}}, Row{{0, 0, 0}, {0, 0, 0}},
          Row{{0xFF, 0xFF, 0xFF}, {0xFF, 0xFF, 0xFF}}}) {
        setColor(color[0], color[1], color[2]);
        const auto operations = draw();
        const auto marks = marksIn(operations);
        ASSERT_EQ(marks.size(), 2U);
        EXPECT_EQ(marks[0].path.lineWidth(), 1.0);
        EXPECT_EQ(marks[0].color, HostColor::whiteColor());
        EXPECT_EQ(marks[1].path.lineWidth(), 0.5);
        EXPECT_EQ(marks[1].color, HostColor::blackColor());
        QTXHexColorSpec spec;
        spec.setHexRed(cell[0], cell[1], cell[2]);
        for (const StrokeOperation& mark : marks)
            EXPECT_EQ(fillingOf(operations, mark), spec.colorHexColorSpec());
    }
    for (const auto& color :
         {std::array<std::uint64_t, 3>{0xFD, 0, 0}, {0xFF, 2, 0}, {0x5E, 0x60, 0x60}}) {
        setColor(color[0], color[1], color[2]);
        EXPECT_TRUE(marksIn(draw()).empty());
    }
}

TEST_F(ColorsViewDrawingTest, ThePaletteMarksTheColourOrThreeThatAreClose)
{
    showGreys({0, 60, 100, 104, 108, 112, 116, 240});
    struct Row {
        int color;
        std::vector<int> marked;
    };
    for (const Row& row : {Row{240, {240}}, Row{80, {}}, Row{56, {60}}, Row{102, {112, 116, 100}},
                           Row{90, {100, 104}}}) {
        const auto channel = static_cast<std::uint64_t>(row.color);
        setColor(channel, channel, channel);
        const auto operations = draw();
        const auto marks = marksIn(operations);
        ASSERT_EQ(marks.size(), 2 * row.marked.size()) << row.color;
        for (std::size_t i = 0; i < row.marked.size(); ++i) {
            const double fraction = row.marked[i] / 255.0;
            const auto swatch = HostColor::colorWithCalibratedRed(fraction, fraction, fraction, 1);
            const bool isEqual = row.marked[i] == row.color;
            EXPECT_EQ(fillingOf(operations, marks[2 * i]), swatch) << row.color;
            EXPECT_EQ(marks[2 * i].path.lineWidth(), 3.0);
            EXPECT_EQ(marks[2 * i].color, HostColor::whiteColor());
            EXPECT_EQ(fillingOf(operations, marks[2 * i + 1]), swatch) << row.color;
            EXPECT_EQ(marks[2 * i + 1].path.lineWidth(), 1.5);
            EXPECT_EQ(marks[2 * i + 1].color, isEqual ? hexColorsSelectedColorWithMatchColorS
                                                      : hexColorsSelectedColorWithoutMatchColorS);
        }
    }
}

}  // namespace
}  // namespace vantorel
