#include "snippets/SnippetReader.h"

#include "color/ChannelConversion.h"
#include "snippets/SnippetReaders.h"

#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

using Kind = SnippetReader::Obstacle::Kind;
using Part = SnippetValue::Part;

QTXHexColorSpec specOf(std::uint32_t argb)
{
    QTXHexColorSpec spec;
    spec.setHexRed(argb >> 16 & 0xFF, argb >> 8 & 0xFF, argb & 0xFF);
    spec.setAlphaComp((argb >> 24) / 255.0);
    return spec;
}

HostColor colorOf(std::uint32_t argb)
{
    const auto channel = [&](int shift) { return (argb >> shift & 0xFF) / 255.0; };
    return HostColor::colorWithCalibratedRed(channel(16), channel(8), channel(0), channel(24));
}

/// The colour that a snippet reads in a whole line.
std::optional<HostColor> read(const QTXCodeSnippet& snippet, std::u16string_view line)
{
    const auto match = SnippetReader(snippet).matchAt(line, 0);
    if (!match || match->end != line.size()) return std::nullopt;
    return match->color;
}

std::optional<HostColor> read(const char16_t* format, const char16_t* form,
                              std::u16string_view line)
{
    return read(QTXCodeSnippet(u"x", format, form), line);
}

std::uint32_t bytesOf(const std::optional<HostColor>& color)
{
    if (!color) return 0xDEAD;
    const auto c = *color->calibratedRGB();
    return std::uint32_t{nearestByte(c.alpha)} << 24 | std::uint32_t{nearestByte(c.red)} << 16 |
           std::uint32_t{nearestByte(c.green)} << 8 | std::uint32_t{nearestByte(c.blue)};
}

bool writesOpacity(const QTXCodeSnippet& snippet)
{
    const auto form = *snippet.varFormSnippet();
    return form.starts_with(u"rgba") || form == u"rgbFixedAlphaFloat";
}

class BuiltInSnippetTest : public testing::TestWithParam<std::size_t> {
protected:
    const QTXCodeSnippet& _snippet = QTXCodeSnippet::buildDefaultCodeSnippets()[GetParam()];
    SnippetReader _reader{_snippet};
};

TEST_P(BuiltInSnippetTest, WhatIsWrittenIsReadAsTheSameColour)
{
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        auto argb = static_cast<std::uint32_t>(random());
        if (i % 2 == 0 || !writesOpacity(_snippet)) argb |= 0xFF000000;
        if (argb < 0x01000000) continue;
        const std::u16string line = _snippet.codeSnippetWithColorSpec(specOf(argb));
        const auto match = _reader.matchAt(line, 0);
        ASSERT_TRUE(match) << testing::PrintToString(line);
        EXPECT_EQ(match->end, line.size());
        EXPECT_EQ(match->color, colorOf(argb)) << testing::PrintToString(line);
    }
}

TEST_P(BuiltInSnippetTest, TheColourOfALineWritesTheLine)
{
    std::mt19937 random(2);
    for (int i = 0; i < 500; ++i) {
        QTXHexColorSpec spec = specOf(static_cast<std::uint32_t>(random()) | 0xFF000000);
        spec.setAlphaComp(std::uniform_real_distribution(0.01, 1.0)(random));
        const std::u16string line = _snippet.codeSnippetWithColorSpec(spec);
        const auto color = read(_snippet, line);
        ASSERT_TRUE(color) << testing::PrintToString(line);
        spec.setAlphaComp(color->alphaComponent());
        EXPECT_EQ(_snippet.codeSnippetWithColorSpec(spec), line);
    }
}

INSTANTIATE_TEST_SUITE_P(All, BuiltInSnippetTest, testing::Range<std::size_t>(0, 12));

TEST(SnippetReaderTest, OnlyOneOfTheBuiltInSnippetsHasAnObstacle)
{
    for (const QTXCodeSnippet& snippet : QTXCodeSnippet::buildDefaultCodeSnippets())
        EXPECT_TRUE(SnippetReader(snippet).obstacles().empty());
}

TEST(SnippetReaderTest, ALostLeadingZeroIsReadWhereItLeavesAnOpacity)
{
    const QTXCodeSnippet& packed = QTXCodeSnippet::buildDefaultCodeSnippets()[8];
    EXPECT_EQ(bytesOf(read(packed, u"Color(0xfff8000)")), 0x0FFF8000U);
    EXPECT_FALSE(read(packed, u"Color(0xff8000)")) << "a line of Java NSInteger";
    EXPECT_EQ(bytesOf(read(u"Color(0x%08X)", u"rgbaPackedInt", u"Color(0x00FF8000)")), 0x00FF8000U);
}

struct ReadRow {
    const char16_t* format;
    const char16_t* form;
    const char16_t* line;
    /// 0xAARRGGBB; `noMatch` if the line is not read.
    std::uint32_t argb;
};

constexpr std::uint32_t noMatch = 0xDEAD;

class ReadingTest : public testing::TestWithParam<ReadRow> {};

TEST_P(ReadingTest, ReadsWhatTheFormatCanMean)
{
    const auto& [format, form, line, argb] = GetParam();
    EXPECT_EQ(bytesOf(read(format, form, line)), argb)
        << testing::PrintToString(std::u16string(format)) << " "
        << testing::PrintToString(std::u16string(line));
}

INSTANTIATE_TEST_SUITE_P(
    Blanks, ReadingTest,
    testing::Values(ReadRow{u"Color(0x%x)", u"rgbaPackedInt", u"Color( 0xffff8000 )", 0xFFFF8000},
                    ReadRow{u"Color(0x%x)", u"rgbaPackedInt", u"Color\n(\n    0xffff8000\n)",
                            0xFFFF8000},
                    ReadRow{u"RGB(%d, %d, %d)", u"rgbFixed", u"RGB(255,128,\t0)", 0xFFFF8000},
                    ReadRow{u"RGB(%d, %d, %d)", u"rgbFixed", u"RGB(2 55,128,0)", noMatch},
                    ReadRow{u"new Color(%d)", u"rgbPackedInt", u"new  Color(16744448)", 0xFFFF8000},
                    ReadRow{u"new Color(%d)", u"rgbPackedInt", u"newColor(16744448)", noMatch},
                    ReadRow{u"Color(0x%06x)", u"rgbPackedInt", u"Color(0x ff8000)", noMatch},
                    ReadRow{u"a.b(%d)", u"rgbPackedInt", u"a. b(1)", noMatch},
                    ReadRow{u"%d %d %d", u"rgbFixed", u"255   128 0", 0xFFFF8000},
                    ReadRow{u"%d %d %d", u"rgbFixed", u"2551280", noMatch},
                    ReadRow{u"  #%06x  ", u"rgbPackedInt", u"#ff8000", 0xFFFF8000}));

INSTANTIATE_TEST_SUITE_P(
    Hex, ReadingTest,
    testing::Values(ReadRow{u"#%06x", u"rgbPackedInt", u"#FF8000", 0xFFFF8000},
                    ReadRow{u"#%06X", u"rgbPackedInt", u"#ff8000", 0xFFFF8000},
                    ReadRow{u"#%06x", u"rgbPackedInt", u"#f80", noMatch},
                    ReadRow{u"#%06x", u"rgbPackedInt", u"#ffff8000", noMatch},
                    ReadRow{u"%#x", u"rgbPackedInt", u"0xff8000", 0xFFFF8000},
                    ReadRow{u"%#x", u"rgbPackedInt", u"0", 0xFF000000},
                    ReadRow{u"%#X", u"rgbPackedInt", u"0XFF8000", 0xFFFF8000},
                    ReadRow{u"%x", u"rgbPackedInt", u"8000", 0xFF008000},
                    ReadRow{u"%x,%x,%x", u"rgbFixed", u"ff,8,0", 0xFFFF0800},
                    ReadRow{u"%02x%02x%02x%02x", u"rgbaFixed", u"FF800080", 0x80FF8000},
                    ReadRow{u"%o", u"rgbPackedInt", u"77700000", 0xFFFF8000},
                    ReadRow{u"%#o", u"rgbPackedInt", u"077700000", 0xFFFF8000}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, ReadingTest,
    testing::Values(
        ReadRow{u"C(%7.5f, %7.5f, %7.5f)", u"rgbFloats", u"C(1.0, 0.5, 0)", 0xFFFF8000},
        ReadRow{u"C(%7.5f, %7.5f, %7.5f)", u"rgbFloats", u"C(1, 0, 0)", noMatch},
        ReadRow{u"C(%g, %g, %g)", u"rgbFloats", u"C(1, 0, 0)", 0xFFFF0000},
        ReadRow{u"C(%.3f, %.3f, %.3f)", u"rgbFloats", u"C(1.001, 0.5, 0)", noMatch},
        ReadRow{u"C(%.3f, %.3f, %.3f)", u"rgbFloats", u"C(-0.1, 0.5, 0)", noMatch},
        ReadRow{u"C(%e, %e, %e)", u"rgbFloats", u"C(1.000000e+00, 5.019608e-01, 0.000000e+00)",
                0xFFFF8000},
        ReadRow{u"C(%a, %a, %a)", u"rgbFloats", u"C(0x1p+0, 0x1.010101010101p-1, 0x0p+0)",
                0xFFFF8000},
        ReadRow{u"C(%.0f, %.0f, %.0f)", u"rgbFixed", u"C(255, 128, 0)", 0xFFFF8000},
        ReadRow{u"C(%d, %d, %d)", u"rgbFixed", u"C(256, 0, 0)", noMatch},
        ReadRow{u"C(%d, %d, %d)", u"rgbFixed", u"C(0255, 0, 0)", noMatch},
        ReadRow{u"C(%03d, %03d, %03d)", u"rgbFixed", u"C(255, 8, 000)", 0xFFFF0800},
        ReadRow{u"C(%+d, %+d, %+d)", u"rgbFixed", u"C(+255, +128, +0)", 0xFFFF8000},
        ReadRow{u"C(%.0d, %.0d, %.0d)", u"rgbFixed", u"C(255, 128, )", 0xFFFF8000},
        ReadRow{u"C(%s, %@, %s)", u"rgbFixed", u"C(255, 128, 0)", 0xFFFF8000},
        ReadRow{u"C(%d)", u"rgbaPackedInt", u"C(-32768)", 0xFFFF8000},
        ReadRow{u"C(%hhd, %hhd, %hhd)", u"rgbFixed", u"C(-1, -128, 0)", 0xFFFF8000},
        ReadRow{u"C(%d, %d, %d, %.2f)", u"rgbFixedAlphaFloat", u"C(255, 128, 0, 1)", 0xFFFF8000},
        ReadRow{u"C(%d, %d, %d, %d)", u"rgbFixedAlphaFloat", u"C(255, 128, 0, 1)", 0xFFFF8000},
        ReadRow{u"C(%d, %d, %d, %d)", u"rgbFixedAlphaFloat", u"C(255, 128, 0, 0)", noMatch}));

INSTANTIATE_TEST_SUITE_P(
    Touching, ReadingTest,
    testing::Values(ReadRow{u"%d%d%d", u"rgbFixed", u"255255255", 0xFFFFFFFF},
                    ReadRow{u"%d%d%d", u"rgbFixed", u"1234", noMatch},
                    ReadRow{u"%d%d%d", u"rgbFixed", u"000", 0xFF000000},
                    ReadRow{u"%3d%3d%3d", u"rgbFixed", u"255  8 12", 0xFFFF080C},
                    ReadRow{u"%3d%3d%3d", u"rgbFixed", u"8  8 12", 0xFF08080C},
                    ReadRow{u"%d%5d%d", u"rgbFixed", u"12   451", 0xFF0C2D01},
                    ReadRow{u"%d%5d%d", u"rgbFixed", u"12   4511", 0xFF0C2D0B},
                    ReadRow{u"%-3d%-3d%-3d", u"rgbFixed", u"2558  12", 0xFFFF080C},
                    ReadRow{u"%.3f%.3f%.3f", u"rgbFloats", u"1.0000.5020.000", 0xFFFF8000},
                    ReadRow{u"%xa%xa%xa", u"rgbFixed", u"ffa80a0a", 0xFFFF8000},
                    ReadRow{u"%d0%d0%d0", u"rgbFixed", u"1002003", noMatch},
                    ReadRow{u"%02x%02x%02x", u"rgbFixed", u"ff8000", 0xFFFF8000}));

INSTANTIATE_TEST_SUITE_P(
    Hostile, ReadingTest,
    testing::Values(ReadRow{u"%n%d,%d,%d", u"rgbFixed", u"%n255,128,0", 0xFFFF8000},
                    ReadRow{u"%*d%d,%d,%d", u"rgbFixed", u"%*d255,128,0", 0xFFFF8000},
                    ReadRow{u"%1$d,%d,%d,%d", u"rgbFixed", u"%1$d,255,128,0", 0xFFFF8000},
                    ReadRow{u"%d,%d,%d,%d", u"rgbFixed", u"255,128,0,%d", 0xFFFF8000},
                    ReadRow{u"100%%%d,%d,%d", u"rgbFixed", u"100%255,128,0", 0xFFFF8000},
                    ReadRow{u"%d,%d", u"rgbFixed", u"255,128", noMatch},
                    ReadRow{u"nothing", u"rgbFixed", u"nothing", noMatch},
                    ReadRow{u"", u"rgbFixed", u"", noMatch},
                    ReadRow{u"%d,%d,%d", u"RGBFixed", u"255,128,0", noMatch},
                    ReadRow{u"%c%c%c", u"rgbFixed", u"abc", noMatch},
                    ReadRow{u"%hx", u"rgbPackedInt", u"8000", noMatch},
                    ReadRow{u"%d,%d,%d", u"rgbFloats", u"1,0,0", noMatch},
                    ReadRow{u"%.2s,%d,%d", u"rgbFixed", u"25,1,0", noMatch},
                    ReadRow{u"%", u"rgbFixed", u"%", noMatch}));

INSTANTIATE_TEST_SUITE_P(
    Names, ReadingTest,
    testing::Values(
        ReadRow{u"--accent: #%06x;", u"rgbPackedInt", u"--brand-dark: #ff8000;", 0xFFFF8000},
        ReadRow{u"<color name=\"accent\">#%08X</color>", u"rgbaPackedInt",
                u"<color name=\"sea_2\">#80FF8000</color>", 0x80FF8000},
        ReadRow{u"accents: %06x", u"rgbPackedInt", u"brand: ff8000", noMatch},
        ReadRow{u"--accent-x: #%06x;", u"rgbPackedInt", u"--brand-x: #ff8000;", 0xFFFF8000},
        ReadRow{u"--accent: #%06x;", u"rgbPackedInt", u"--: #ff8000;", noMatch}));

TEST(SnippetReaderTest, WidePaddingIsRead)
{
    const QTXCodeSnippet snippet(u"x", u"%999999d|%-999999d|%0999999d", u"rgbFixed");
    const auto line = snippet.codeSnippetWithColorSpec(specOf(0xFFFF8001));
    const std::size_t begin = line.find_first_not_of(u' ');
    const auto match = SnippetReader(snippet).matchAt(line, begin);
    ASSERT_TRUE(match);
    EXPECT_EQ(bytesOf(match->color), 0xFFFF8001U);
    EXPECT_EQ(match->end, line.size());
}

TEST(SnippetReaderTest, WideValuesThatTouchAreTriedByTheirDigits)
{
    const QTXCodeSnippet snippet(u"x", u"%999d%-999.5f%+999d%999d", u"rgbFixedAlphaFloat");
    QTXHexColorSpec spec = specOf(0xFFFF8001);
    const SnippetReaders readers({snippet});
    const auto line = snippet.codeSnippetWithColorSpec(spec);
    const auto match = readers.matchOf(line);
    ASSERT_TRUE(match);
    EXPECT_EQ(bytesOf(match->color), 0xFFFF8001U);
    // A try at each length would take minutes.
    std::u16string text;
    for (int i = 0; i < 20; ++i)
        text += u"255" + std::u16string(999, u' ');
    EXPECT_FALSE(readers.matchOf(text));
}

TEST(SnippetReaderTest, AFractionIsTheStepThatIsWrittenSo)
{
    const char16_t* const precise = u"C(%7.5f, %7.5f, %7.5f, %7.5f)";
    const auto typed = read(precise, u"rgbaFloats", u"C(0.5, 0.50196, 0.50197, 0.5)");
    ASSERT_TRUE(typed);
    EXPECT_EQ(*typed, HostColor::colorWithCalibratedRed(0.5, 128 / 255.0, 0.50197, 0.5));
    const auto coarse =
        read(u"C(%.2f, %.2f, %.2f, %.2f)", u"rgbaFloats", u"C(0.50, 1.00, 0.25, 0.50)");
    ASSERT_TRUE(coarse);
    EXPECT_EQ(*coarse, HostColor::colorWithCalibratedRed(128 / 255.0, 1, 64 / 255.0, 0.5));
}

TEST(SnippetReaderTest, AFractionWithEnoughDigitsIsNoStep)
{
    struct Row {
        const char16_t* format;
        const char16_t* line;
        double red;
    };
    for (const Row& row :
         {Row{u"(%.1e %e %e)", u"(5.0e-01 0 0)", 128 / 255.0},
          Row{u"(%.2e %e %e)", u"(5.00e-01 0 0)", 0.5},
          Row{u"(%.2g %g %g)", u"(0.5 0 0)", 128 / 255.0}, Row{u"(%.3g %g %g)", u"(0.5 0 0)", 0.5},
          Row{u"(%.1a %a %a)", u"(0x1.0p-1 0x0p+0 0x0p+0)", 128 / 255.0},
          Row{u"(%.3a %a %a)", u"(0x1.000p-1 0x0p+0 0x0p+0)", 0.5}}) {
        const auto color = read(row.format, u"rgbFloats", row.line);
        ASSERT_TRUE(color) << testing::PrintToString(row.format);
        EXPECT_EQ(color->calibratedRGB()->red, row.red) << testing::PrintToString(row.format);
    }
}

TEST(SnippetReaderTest, ALetterPartsNumbersThatHaveNone)
{
    const auto isSeparated = [](const char16_t* format) {
        return SnippetReader(QTXCodeSnippet(u"x", format, u"rgbFloats")).obstacles().empty();
    };
    EXPECT_TRUE(isSeparated(u"%fe%fe%f"));
    EXPECT_TRUE(isSeparated(u"%gx%gx%g"));
    EXPECT_FALSE(isSeparated(u"%ge%ge%g"));
}

TEST(SnippetReaderTest, ALineBeginsAndEndsAtWords)
{
    const SnippetReader color(QTXCodeSnippet(u"x", u"Color(0x%06x)", u"rgbPackedInt"));
    const SnippetReader number(QTXCodeSnippet(u"x", u"0x%06x", u"rgbPackedInt"));
    EXPECT_FALSE(color.matchAt(u"QColor(0xff8000)", 1));
    EXPECT_TRUE(color.matchAt(u"g.Color(0xff8000).x", 2));
    EXPECT_FALSE(number.matchAt(u"0xff8000u", 0));
    EXPECT_FALSE(number.matchAt(u"0xff8000.5", 0));
    EXPECT_TRUE(number.matchAt(u"0xff8000.", 0));
    EXPECT_FALSE(number.matchAt(u"10xff8000", 1));
    const SnippetReader escape(QTXCodeSnippet(u"x", u"\\e[%d;%d;%dm", u"rgbFixed"));
    EXPECT_TRUE(escape.matchAt(u"\\e[1;2;3mText", 0)) << "letters after a number end it";
}

struct ObstacleRow {
    const char16_t* format;
    const char16_t* form;
    Kind kind;
    Part part;
};

class ObstacleTest : public testing::TestWithParam<ObstacleRow> {};

TEST_P(ObstacleTest, SaysWhichValueIsNotRead)
{
    const auto& [format, form, kind, part] = GetParam();
    const SnippetReader reader(QTXCodeSnippet(u"x", format, form));
    ASSERT_FALSE(reader.obstacles().empty());
    EXPECT_EQ(reader.obstacles().front().kind, kind);
    EXPECT_EQ(reader.obstacles().front().part, part);
}

INSTANTIATE_TEST_SUITE_P(
    All, ObstacleTest,
    testing::Values(ObstacleRow{u"%d,%d", u"rgbFixed", Kind::missing, Part::blue},
                    ObstacleRow{u"%d,%d,%d", u"rgbaFixed", Kind::missing, Part::opacity},
                    ObstacleRow{u"x", u"rgbaPackedInt", Kind::missing, Part::argb},
                    ObstacleRow{u"%d,%c,%d", u"rgbFixed", Kind::character, Part::green},
                    ObstacleRow{u"%d,%d,%d,%d", u"rgbaFloats", Kind::wholeNumber, Part::red},
                    ObstacleRow{u"%d,%d,%.1s", u"rgbFixed", Kind::cutText, Part::blue},
                    ObstacleRow{u"%hhx", u"rgbPackedInt", Kind::highBits, Part::rgb},
                    ObstacleRow{u"%d,%d%d", u"rgbFixed", Kind::notSeparated, Part::green},
                    ObstacleRow{u"%g5%g,%g", u"rgbFloats", Kind::notSeparated, Part::red},
                    ObstacleRow{u"%d", u"none", Kind::unknownForm, Part::rgb}));

TEST(SnippetReaderTest, ALongFormatIsNotRead)
{
    const std::u16string format(3000, u'(');
    const SnippetReader reader(QTXCodeSnippet(u"x", format + u"%d", u"rgbPackedInt"));
    EXPECT_FALSE(reader.canRead());
    ASSERT_EQ(reader.obstacles().size(), 1U);
    EXPECT_EQ(reader.obstacles().front().kind, Kind::tooLong);
}

}  // namespace
}  // namespace vantorel
