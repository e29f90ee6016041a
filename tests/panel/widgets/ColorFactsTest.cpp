#include "panel/widgets/ColorFacts.h"

#include "hosts/qt/TextScale.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace vantorel {
namespace {

/// The label with a text.
QLabel* labelOf(const ColorFacts& facts, const QString& text)
{
    for (QLabel* label : facts.findChildren<QLabel*>()) {
        if (label->text() == text) return label;
    }
    return nullptr;
}

TEST(ColorFactsTest, NothingInTheSecondLineTouchesItsNeighbour)
{
    ColorFacts facts;
    facts.setName(QStringLiteral("crimson"), QStringLiteral("CSS Color 4"));
    facts.setOtherForm(QStringLiteral("oklch(60.5% 0.200 31.1)"));
    facts.setOpacity(100);
    facts.show();
    const auto* slider = facts.findChild<QSlider*>();
    const QLabel* percent = labelOf(facts, QStringLiteral("100 %"));
    const QLabel* form = labelOf(facts, QStringLiteral("oklch(60.5% 0.200 31.1)"));
    ASSERT_TRUE(percent != nullptr && form != nullptr);
    for (const int width : {236, 276, 300, 501, 876}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            facts.setLayoutDirection(direction);
            facts.resize(scaled(width), ColorFacts::heightOfBoth());
            const QRect place = slider->geometry().adjusted(-scaled(4), 0, scaled(4), 0);
            EXPECT_FALSE(place.intersects(percent->geometry())) << width;
            EXPECT_FALSE(form->isVisibleTo(&facts) && place.intersects(form->geometry())) << width;
            EXPECT_TRUE(facts.rect().contains(percent->geometry())) << width;
        }
    }
}

}  // namespace
}  // namespace vantorel
