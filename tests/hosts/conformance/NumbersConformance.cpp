#include "ConformanceTest.h"
#include "host/HostNumberField.h"

namespace vantorel {
namespace {

using testing::ElementsAre;

class NumbersConformance : public ConformanceTest {
protected:
    NumbersConformance()
    {
        HostNumberFormat format;
        format.decimals = 1;
        format.unit = u" %";
        auto description = described({10, 20, 100, 28});
        description.accessibleName = u"Lightness";
        description.alignment = HostControlDescription::Alignment::right;
        number = factory.makeNumberField(description, format);
        number->setValue(50);
        number->setAction([this](HostNumberField& sender) { chosen.push_back(sender.value()); });
        number->setScrubReaction([this](bool isUnderWay) { scrubs.push_back(isUnderWay); });
        root.addSubview(number->textField());
        host->handleEvents();
    }

    std::unique_ptr<HostNumberField> number;
    std::vector<double> chosen;
    std::vector<bool> scrubs;
};

TEST_F(NumbersConformance, TheNumberIsShownWithItsUnit)
{
    EXPECT_EQ(host->textIn(number->textField()), u"50.0 %");
    if (const auto name = host->spokenNameOf(number->textField())) {
        EXPECT_EQ(name, u"Lightness");
        number->textField().setAccessibleName(u"Chroma");
        EXPECT_EQ(host->spokenNameOf(number->textField()), u"Chroma");
    }
    EXPECT_EQ(factory.decimalSeparator(), u".");
}

TEST_F(NumbersConformance, ANumberIsTyped)
{
    HostTextField& field = number->textField();
    host->clickAcross(field, {pressAt({50, 10}), releaseAt({50, 10})});
    EXPECT_EQ(host->selectionIn(field), (HostSelection{0, 6})) << "the whole text";
    host->type(field, u"62,25");
    host->pressKey(field, HandKey::enter);
    EXPECT_THAT(chosen, ElementsAre(62.25));
    EXPECT_EQ(host->textIn(field), u"62.3 %");
}

TEST_F(NumbersConformance, ANumberIsStepped)
{
    HostTextField& field = number->textField();
    host->clickInto(field);
    host->pressKey(field, HandKey::up);
    host->pressKey(field, HandKey::down, shiftModifierFlag);
    host->pressKey(field, HandKey::up, controlModifierFlag);
    EXPECT_THAT(chosen, ElementsAre(51, 41, 41.1));
}

TEST_F(NumbersConformance, ANumberIsScrubbed)
{
    host->clickAcross(number->textField(),
                      {pressAt({20, 10}), dragTo({26, 10}), dragTo({46, 10}),
                       dragTo({42, 10}, shiftModifierFlag), releaseAt({42, 10})});
    EXPECT_THAT(chosen, ElementsAre(60, 40));
    EXPECT_THAT(scrubs, ElementsAre(true, false));
    EXPECT_EQ(host->selectionIn(number->textField()), std::nullopt) << "it is not edited";
}

TEST_F(NumbersConformance, AScrubMayTakeTheFieldAway)
{
    number->setAction([this](HostNumberField&) { number.reset(); });
    host->clickAcross(number->textField(), {pressAt({20, 10}), dragTo({30, 10}), dragTo({50, 10}),
                                            dragTo({60, 10}), releaseAt({60, 10})});
    host->handleEvents();
    EXPECT_EQ(number, nullptr);
}

}  // namespace
}  // namespace vantorel
