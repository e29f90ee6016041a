#include "host/HostNumberField.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vantorel {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double missing = std::nan("");

class PlainField final : public HostTextField {
public:
    PlainField() : HostTextField({0, 0, 60, 24}) {}
    [[nodiscard]] std::u16string stringValue() const override { return _text; }
    void setStringValue(const std::u16string& text) override { _text = text; }
    void setTextColor(const HostColor&) override {}

private:
    std::u16string _text;
};

HostNumberFormat percent()
{
    HostNumberFormat format;
    format.decimals = 1;
    format.unit = u" %";
    return format;
}

HostNumberFormat degrees()
{
    HostNumberFormat format;
    format.maximum = 360;
    format.decimals = 1;
    format.unit = u"\u00B0";
    format.isCyclic = true;
    return format;
}

class HostNumberFieldTest : public testing::Test {
protected:
    HostNumberFieldTest() { use(percent()); }

    void use(const HostNumberFormat& format, const std::u16string& separator = u".")
    {
        number =
            std::make_unique<HostNumberField>(std::make_unique<PlainField>(), format, separator);
        number->setAction([this](HostNumberField& sender) { chosen.push_back(sender.value()); });
        number->setScrubReaction([this](bool isUnderWay) { scrubs.push_back(isUnderWay); });
    }
    void enter(const std::u16string& text)
    {
        number->textField().setStringValue(text);
        number->textField().sendAction();
    }
    [[nodiscard]] std::u16string text() const { return number->textField().stringValue(); }

    std::unique_ptr<HostNumberField> number;
    std::vector<double> chosen;
    std::vector<bool> scrubs;
};

TEST_F(HostNumberFieldTest, WritesTheNumberRoundedWithItsUnit)
{
    for (const auto& [value, shown] : std::vector<std::pair<double, std::u16string>>{
             {0, u"0.0 %"}, {62.25, u"62.3 %"}, {99.99, u"100.0 %"}, {-0.01, u"0.0 %"}}) {
        number->setValue(value);
        EXPECT_EQ(text(), shown);
    }
    EXPECT_TRUE(chosen.empty());
}

TEST_F(HostNumberFieldTest, TheDesktopsSeparatorIsWrittenAndBothAreRead)
{
    use(percent(), u",");
    number->setValue(62.25);
    EXPECT_EQ(text(), u"62,3 %");
    enter(u"1,5");
    enter(u"2.5 %");
    EXPECT_EQ(chosen, (std::vector{1.5, 2.5}));
}

TEST_F(HostNumberFieldTest, ReadsNumbersWithAndWithoutTheUnit)
{
    for (const char16_t* read : {u"12.5", u" 12.5 ", u"12.5%", u"12.5 %", u"+12.5", u"12,5\u00A0%"})
        EXPECT_EQ(number->numberIn(read), 12.5);
    EXPECT_EQ(number->numberIn(u"\u22123"), -3);
    EXPECT_EQ(number->numberIn(u".5"), 0.5);
    EXPECT_EQ(number->numberIn(std::u16string(400, u'9')), std::numeric_limits<double>::max());
    for (const char16_t* other : {u"", u" ", u"%", u"-", u".", u"red", u"nan", u"inf", u"1e5",
                                  u"1 2", u"1.2.3", u"1-2", u"--1", u"+-1", u"12 px", u"\u0661"})
        EXPECT_EQ(number->numberIn(other), std::nullopt) << std::u16string(other).size();
}

TEST_F(HostNumberFieldTest, ANumberOutOfRangeBecomesTheNearest)
{
    enter(u"200");
    EXPECT_EQ(number->value(), 100);
    EXPECT_EQ(text(), u"100.0 %");
    enter(u"-5");
    EXPECT_EQ(number->value(), 0);
    number->setValue(infinity);
    EXPECT_EQ(number->value(), 100);
    number->setValue(-infinity);
    EXPECT_EQ(number->value(), 0);
}

TEST_F(HostNumberFieldTest, ACyclicNumberGoesOnAtTheOtherEnd)
{
    use(degrees());
    for (const auto& [value, kept] : std::vector<std::pair<double, double>>{
             {0, 0}, {360, 0}, {370, 10}, {-10, 350}, {725, 5}, {-1e-20, 0}, {infinity, 0}}) {
        number->setValue(value);
        EXPECT_EQ(number->value(), kept) << value;
    }
    number->setValue(359.99);
    EXPECT_EQ(text(), u"0.0\u00B0");
    number->textField().sendStep(-1, 0);
    EXPECT_EQ(number->value(), 359);
}

TEST_F(HostNumberFieldTest, WithoutANumberTheTextIsEmpty)
{
    number->setValue(missing);
    EXPECT_TRUE(std::isnan(number->value()));
    EXPECT_EQ(text(), u"");
    number->textField().sendAction();
    EXPECT_TRUE(chosen.empty());
    number->textField().sendStep(2, 0);
    EXPECT_EQ(number->value(), 2);
}

TEST_F(HostNumberFieldTest, AnEnteredNumberKeepsItsDigitsAndIsNotEnteredTwice)
{
    enter(u"12.3456");
    EXPECT_EQ(number->value(), 12.3456);
    EXPECT_EQ(text(), u"12.3 %");
    number->textField().sendAction();
    EXPECT_EQ(number->value(), 12.3456) << "the rounded text is what was shown";
    EXPECT_EQ(chosen, std::vector{12.3456});
}

TEST_F(HostNumberFieldTest, AnotherTextIsReplacedByTheNumber)
{
    number->setValue(7);
    EXPECT_EQ(number->textField().entryFit(u"red"), HostEntryFit::doesNotFit);
    EXPECT_EQ(number->textField().entryFit(u"8"), HostEntryFit::fits);
    enter(u"red");
    EXPECT_EQ(text(), u"7.0 %");
    EXPECT_TRUE(chosen.empty());
}

TEST_F(HostNumberFieldTest, StepsBeginAtTheNumberThatIsShown)
{
    number->setValue(62.25);
    number->textField().sendStep(1, 0);
    number->textField().sendStep(-2, controlModifierFlag);
    number->textField().sendStep(1, shiftModifierFlag);
    EXPECT_EQ(chosen, (std::vector{63.3, 63.1, 73.1}));
    number->textField().sendStep(100, 0);
    number->textField().sendStep(1, 0);
    EXPECT_EQ(chosen.size(), 4U) << "it is at its end";
}

TEST_F(HostNumberFieldTest, AFineStepIsNotSmallerThanTheLastDecimal)
{
    HostNumberFormat whole;
    use(whole);
    number->textField().sendStep(1, controlModifierFlag);
    EXPECT_EQ(number->value(), 1);
}

TEST_F(HostNumberFieldTest, AScrubMovesAStepInTwoPoints)
{
    using Phase = HostTextField::Scrub::Phase;
    number->setValue(50);
    HostTextField& field = number->textField();
    field.sendScrub({Phase::begin, 0, 0});
    EXPECT_EQ(scrubs, std::vector{true});
    field.sendScrub({Phase::move, 10, 0});
    field.sendScrub({Phase::move, -4, shiftModifierFlag});
    field.sendScrub({Phase::move, 1, controlModifierFlag});
    EXPECT_EQ(chosen, (std::vector{55.0, 35.0, 35.1})) << "rounded, and up from the half";
    field.sendScrub({Phase::move, -1000, 0});
    field.sendScrub({Phase::move, 10, 0});
    EXPECT_EQ(number->value(), 5) << "it turns where it has come to the end";
    field.sendScrub({Phase::end, 0, 0});
    EXPECT_EQ(scrubs, (std::vector{true, false}));
}

TEST_F(HostNumberFieldTest, TheActionMayDestroyTheField)
{
    number->setAction([this](HostNumberField&) { number.reset(); });
    number->textField().sendStep(1, 0);
    EXPECT_EQ(number, nullptr);
}

TEST_F(HostNumberFieldTest, ANewFormatFitsTheNumber)
{
    number->setValue(80);
    HostNumberFormat narrow = percent();
    narrow.maximum = 40;
    number->setFormat(narrow);
    EXPECT_EQ(number->value(), 40);
    EXPECT_EQ(text(), u"40.0 %");
}

}  // namespace
}  // namespace vantorel
