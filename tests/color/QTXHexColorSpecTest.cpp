#include "color/QTXHexColorSpec.h"

#include "color/ColorMeasures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vantorel {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr auto largest = std::numeric_limits<std::uint64_t>::max();

HostColor gray(double channel)
{
    return HostColor::colorWithCalibratedRed(channel, channel, channel, 1);
}

QTXHexColorSpec specOf(std::uint64_t red, std::uint64_t green, std::uint64_t blue)
{
    QTXHexColorSpec spec;
    spec.setHexRed(red, green, blue);
    return spec;
}

TEST(QTXHexColorSpecTest, EveryGridStepSurvivesARoundTripExactly)
{
    for (std::uint64_t k = 0; k <= 255; ++k) {
        QTXHexColorSpec spec;
        spec.setColorHexColorSpec(gray(static_cast<double>(k) / 255));
        EXPECT_EQ(spec.redHexComp(), k);
        EXPECT_EQ(spec.redRemainder(), 0.0);
        EXPECT_TRUE(spec.isExact());
        EXPECT_EQ(spec.colorHexColorSpec(), gray(static_cast<double>(k) / 255));
    }
}

TEST(QTXHexColorSpecTest, SinglePrecisionGivesTheSameStep)
{
    for (std::uint64_t k = 0; k <= 255; ++k) {
        QTXHexColorSpec spec;
        spec.setColorHexColorSpec(gray(static_cast<double>(static_cast<float>(k) / 255.0F)));
        EXPECT_EQ(spec.greenHexComp(), k);
        EXPECT_TRUE(spec.isExact());
    }
}

struct OutOfRangeRow {
    double channel;
    std::uint64_t component;
};

void PrintTo(const OutOfRangeRow& row, std::ostream* out)
{
    *out << row.channel;
}

class OutOfRangeTest : public testing::TestWithParam<OutOfRangeRow> {};

TEST_P(OutOfRangeTest, AnyChannelBecomesAComponentWithoutUndefinedBehaviour)
{
    const auto [channel, component] = GetParam();
    QTXHexColorSpec spec;
    spec.setColorHexColorSpec(gray(channel));
    EXPECT_EQ(spec.blueHexComp(), component);
    // The results do not matter, but none of these calls may trap.
    static_cast<void>(spec.isExact());
    static_cast<void>(spec.isEqualToColor(gray(channel)));
    static_cast<void>(spec.isCloseToColor(gray(-channel)));
    static_cast<void>(exactHexColor(gray(channel)));
    static_cast<void>(spec.javaRGBAInt());
    EXPECT_FALSE(spec.rgbDecimalStringWithEntryForm(EntryForm::uppercase).empty());
}

INSTANTIATE_TEST_SUITE_P(Channels, OutOfRangeTest,
                         testing::Values(OutOfRangeRow{-0.5, 0}, OutOfRangeRow{-infinity, 0},
                                         OutOfRangeRow{notANumber, 0}, OutOfRangeRow{2.0, 510},
                                         OutOfRangeRow{1e300, largest},
                                         OutOfRangeRow{infinity, largest}));

TEST(QTXHexColorSpecTest, RemaindersBelowZeroAreExactAndTwoHundredThousandthsAreNot)
{
    QTXHexColorSpec spec;
    spec.setBlueRemainder(-0.00005);
    EXPECT_TRUE(spec.isExact());
    spec.setBlueRemainder(0.0000199);
    EXPECT_TRUE(spec.isExact());
    spec.setBlueRemainder(0.00002);
    EXPECT_FALSE(spec.isExact());
    spec.clearRemainders();
    spec.setRedRemainder(notANumber);
    EXPECT_FALSE(spec.isExact());
}

TEST(QTXHexColorSpecTest, ComparesTruncatedWithoutBias)
{
    EXPECT_TRUE(specOf(127, 127, 127).isEqualToColor(gray(0.5)));
    EXPECT_FALSE(specOf(255, 255, 255).isEqualToColor(gray(0.99999)));
    EXPECT_FALSE(specOf(0, 0, 0).isEqualToColor(std::nullopt));
    EXPECT_TRUE(specOf(0, 0, 0).isEqualToColor(gray(-0.003)));
    ASSERT_EQ(-1.0 / 255 * 255, -1);
    EXPECT_FALSE(specOf(0, 0, 0).isEqualToColor(gray(-1.0 / 255)));
    EXPECT_TRUE(specOf(0, 0, 0).isEqualToColor(gray(-0.999 / 255)));
    EXPECT_FALSE(specOf(0, 0, 0).isEqualToColor(gray(-0.5))) << "not 0, although stored as 0";
    EXPECT_FALSE(specOf(0, 0, 0).isCloseToColor(HostColor::patternColor()));
}

TEST(QTXHexColorSpecTest, ColoursAreCloseWithinSixteenInEachChannel)
{
    const HostColor middle = gray(100 / 255.0);
    EXPECT_TRUE(specOf(116, 84, 100).isCloseToColor(middle));
    EXPECT_FALSE(specOf(117, 100, 100).isCloseToColor(middle));
    EXPECT_FALSE(specOf(100, 83, 100).isCloseToColor(middle));
    EXPECT_FALSE(specOf(100, 100, largest).isCloseToColor(middle));
}

TEST(QTXHexColorSpecTest, MatchesStrictlyWithinALimit)
{
    EXPECT_TRUE(specOf(1, 2, 3).isMatchToColorSpec(specOf(2, 1, 3), 2));
    EXPECT_FALSE(specOf(1, 2, 3).isMatchToColorSpec(specOf(3, 2, 3), 2));
    EXPECT_FALSE(specOf(1, 2, 3).isMatchToColorSpec(specOf(1, 2, 3), 0));
    EXPECT_FALSE(specOf(1, 2, 3).isMatchToColorSpec(specOf(1, 2, 3), -5));
    EXPECT_FALSE(specOf(0, 0, 0).isMatchToColorSpec(specOf(largest, 0, 0), 2));
}

TEST(QTXHexColorSpecTest, SettingADigitChangesOnlyItsFourBits)
{
    auto spec = specOf(0x3C, 0, 0);
    spec.setColorSubComponent(0xFA, 0, 1);
    EXPECT_EQ(spec.redHexComp(), 0xACU);
    spec.setColorSubComponent(0x15, 0, 0);
    EXPECT_EQ(spec.redHexComp(), 0xA5U);
    spec.setColorSubComponent(7, 0, 2);  // every index but 0 writes the high digit
    EXPECT_EQ(spec.redHexComp(), 0x75U);
    EXPECT_EQ(spec.colorSubComponentWithComponentIndex(0, 2), 5U);  // but only 1 reads it
}

TEST(QTXHexColorSpecTest, LoadingCopiesEveryField)
{
    auto spec = specOf(1, 2, 3);
    spec.setRedRemainder(0.1);
    spec.setAlphaComp(0.5);
    QTXHexColorSpec copy;
    copy.loadWithHexColorSpec(&spec);
    EXPECT_EQ(copy, spec);
    copy.loadWithHexColorSpec(nullptr);
    EXPECT_EQ(copy.alphaComp(), 1.0);
    EXPECT_EQ(copy.redRemainder(), 0.0);
}

TEST(QTXHexColorSpecTest, PackedComponentsSpillWhenTheyAreTooLarge)
{
    EXPECT_EQ(specOf(0, 0, 0x1FF).javaRGBInt(), 0x1FFU);
    auto spec = specOf(0x12, 0x34, 0x56);
    spec.setAlphaComp(1.0);
    EXPECT_EQ(spec.javaRGBAInt(), 0xFF123456U);
}

}  // namespace
}  // namespace vantorel
