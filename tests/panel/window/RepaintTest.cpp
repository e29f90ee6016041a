#include "PanelWindowFixture.h"

#include <QPaintEvent>

namespace vantorel {
namespace {

/// Records the painted region of a widget.
class PaintedRegions final : public QObject {
public:
    explicit PaintedRegions(QWidget& widget) { widget.installEventFilter(this); }

    [[nodiscard]] const std::vector<QRegion>& regions() const { return _regions; }
    void clear() { _regions.clear(); }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            _regions.push_back(static_cast<QPaintEvent*>(event)->region());
        }
        return false;
    }

private:
    std::vector<QRegion> _regions;
};

class RepaintTest : public PanelWindowFixture {};

TEST_F(RepaintTest, AFadingMessageRepaintsOnlyItsBox)
{
    auto* colors = child<QWidget>("_hexColorsView");
    auto* field = child<QLineEdit>("_fullHexText");
    ASSERT_TRUE(colors != nullptr && field != nullptr);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "no colour");
    QTest::keyClick(field, Qt::Key_Return);

    PaintedRegions painted(*colors);
    const auto wholeWasPainted = [&] {
        return !painted.regions().empty() && painted.regions().back().contains(colors->rect());
    };
    ASSERT_TRUE(QTest::qWaitFor(wholeWasPainted)) << "the message was not painted";
    painted.clear();
    constexpr std::size_t someSteps = 3;
    ASSERT_TRUE(QTest::qWaitFor([&] { return painted.regions().size() >= someSteps; }));
    for (const QRegion& region : painted.regions()) {
        const QRect box = region.boundingRect();
        EXPECT_LE(box.height(), colors->height() / 4);
        EXPECT_LT(box.width(), colors->width());
    }
}

}  // namespace
}  // namespace vantorel
