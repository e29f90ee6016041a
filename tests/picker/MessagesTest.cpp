#include "PickerPage.h"

namespace vantorel {
namespace {

/// Messages in the colours view, which fade.
class MessagesTest : public PickerPage {
protected:
    MessagesTest()
    {
        _panel.showPage(_page);
        _picker.viewSizeChanged(nullptr);
    }

    HeadlessCustomView& view()
    {
        return dynamic_cast<HeadlessCustomView&>(control("_hexColorsView"));
    }
    /// What was painted last: the box, its edge and the text.
    struct Drawing {
        FillOperation box;
        StrokeOperation edge;
        TextOperation text;
    };
    [[nodiscard]] std::optional<Drawing> draw()
    {
        const auto operations = view().draw().operations();
        const auto* text = std::get_if<TextOperation>(&operations.back());
        if (text == nullptr) return std::nullopt;
        const std::size_t count = operations.size();
        return Drawing{std::get<FillOperation>(operations[count - 3]),
                       std::get<StrokeOperation>(operations[count - 2]), *text};
    }
    [[nodiscard]] static HostBezierPath rectangle(HostRect rect, double lineWidth)
    {
        HostBezierPath path;
        path.appendBezierPathWithRect(rect);
        path.setLineWidth(lineWidth);
        return path;
    }
    int advance(double seconds)
    {
        return _desktop.advance(seconds, [this] {
            if (view().needsDisplay()) static_cast<void>(view().draw());
        });
    }

    QTXHexColorsView& _view = _picker.hexColorsView();
};

TEST_F(MessagesTest, AMessageIsDrawnInABoxBelowTheTopEdge)
{
    struct Row {
        bool isWarning;
        double pointSize;
        HostColor color;
    };
    for (const Row& row : {Row{false, 12, HostColor::colorWithCalibratedRed(0, 0, 1, 1)},
                           Row{true, 18, HostColor::colorWithCalibratedRed(1, 0, 0, 1)}}) {
        if (row.isWarning) {
            _view.postWarning(u"Two\nlines");
        } else {
            _view.postMessage(u"Two\nlines");
        }
        const auto drawing = draw();
        ASSERT_TRUE(drawing);
        EXPECT_EQ(drawing->text.text.string, u"Two\nlines");
        EXPECT_EQ(drawing->text.text.pointSize, row.pointSize);
        EXPECT_EQ(drawing->text.text.color, row.color);
        EXPECT_EQ(drawing->text.text.isOwnWord, row.isWarning);
        // The text is 5 characters wide and 2 lines high.
        const HostSize text{5 * 0.6 * row.pointSize, 2 * 1.25 * row.pointSize};
        const HostRect bounds = view().bounds();
        const HostRect box{bounds.midX() - text.width / 2 - 8, bounds.maxY() - text.height - 10 - 3,
                           text.width + 16, text.height + 6};
        EXPECT_EQ(_view.messageRect(), box);
        EXPECT_EQ(drawing->box.path.elements(), rectangle(box, 1).elements());
        EXPECT_EQ(drawing->box.color, HostColor::whiteColor());
        EXPECT_EQ(drawing->edge.path, rectangle(box, 2.5));
        EXPECT_EQ(drawing->edge.color, row.color);
        EXPECT_EQ(drawing->text.at, (HostPoint{box.x + 5, box.y + 6}));
    }
}

TEST_F(MessagesTest, AMessageFadesAway)
{
    struct Row {
        bool isWarning;
        double rest, step;
        int rests;
    };
    for (const auto& [isWarning, rest, step, rests] :
         {Row{false, 0.9, 0.22, 9}, Row{true, 0.4, 0.05, 1}}) {
        if (isWarning) {
            _view.postWarning(u"text");
        } else {
            _view.postMessage(u"text");
        }
        _view.setNeedsDisplay(true);
        for (int fired = 0; fired < 16; ++fired) {
            const double seconds = fired < rests ? rest : step;
            EXPECT_EQ(advance(0.99 * seconds), 0) << fired;
            EXPECT_EQ(advance(0.01 * seconds + 1e-9), 1) << fired;
            EXPECT_NEAR(_view.messageAlpha(), 1 - 0.05 * (fired + 1), 1e-5);
        }
        EXPECT_FALSE(draw()) << "too faint";
        EXPECT_TRUE(_desktop.pendingTimers().empty());
    }
}

TEST_F(MessagesTest, AMessageThatIsClearedIsNotDrawn)
{
    _view.postMessage(u"text");
    EXPECT_TRUE(draw());
    _view.clearMessage();
    EXPECT_TRUE(view().needsDisplay());
    EXPECT_FALSE(draw());
    EXPECT_FALSE(_view.messageStr());
}

}  // namespace
}  // namespace vantorel
