#include "listformats/Svg.h"

#include "listformats/PaletteSvg.h"

#include <gtest/gtest.h>

namespace {

using namespace vantorel;

TEST(SvgTest, NumbersHaveThreeDecimalsAtMost)
{
    EXPECT_EQ(svgNumber(0), "0");
    EXPECT_EQ(svgNumber(12), "12");
    EXPECT_EQ(svgNumber(12.5), "12.5");
    EXPECT_EQ(svgNumber(2.0 / 3), "0.667");
    EXPECT_EQ(svgNumber(-0.25), "-0.25");
}

TEST(SvgTest, TextsAreNotMarkup)
{
    EXPECT_EQ(svgText(u"a > b & <c/> \"d\""), "a &gt; b &amp; &lt;c/&gt; \"d\"");
    EXPECT_EQ(svgText(u"\u00e9 \U0001F3A8"), "\u00e9 \U0001F3A8");
    EXPECT_EQ(svgText(u"\uFFFD \uFFFE \uFFFF"), "\uFFFD \uFFFD \uFFFD");
    EXPECT_EQ(svgText(u"a\tb\u0001c"), "a b c");
    EXPECT_EQ(svgText(u""), "");
}

TEST(SvgTest, ColoursLoseTheirOpacity)
{
    EXPECT_EQ(svgColor(HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 0.5)), "#ff8000");
}

TEST(PaletteSvgTest, SwatchesFillThePictureWithinTheRim)
{
    HostColorList list(u"A & B");
    for (const auto& [red, name] : {std::pair{0.0, u"a"}, {0.2, u"b"}, {0.4, u"c"}, {1.0, u"<d>"}})
        list.setColor(HostColor::colorWithCalibratedRed(red, 0, 0, 1), name);
    const PalettePicture picture(list, {44, 24});
    EXPECT_EQ(picture.inside(), (HostSize{40, 20}));
    EXPECT_EQ(picture.places(), (std::vector<std::size_t>{3, 2, 1, 0}));
    EXPECT_EQ(picture.swatch(0), (HostRect{2, 2, 20, 10}));
    EXPECT_EQ(picture.swatch(1), (HostRect{22, 2, 20, 10}));
    EXPECT_EQ(picture.swatch(3), (HostRect{22, 12, 20, 10}));
    EXPECT_EQ(paletteSvg(list, {44, 24}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"44\" height=\"24\" "
              "viewBox=\"0 0 44 24\">\n"
              "<title>A &amp; B</title>\n"
              "<rect width=\"100%\" height=\"100%\" fill=\"#f1f1f5\"/>\n"
              "<g shape-rendering=\"crispEdges\">\n"
              "<rect x=\"2\" y=\"2\" width=\"20\" height=\"10\" fill=\"#ff0000\">"
              "<title>&lt;d&gt;</title></rect>\n"
              "<rect x=\"22\" y=\"2\" width=\"20\" height=\"10\" fill=\"#660000\">"
              "<title>c</title></rect>\n"
              "<rect x=\"2\" y=\"12\" width=\"20\" height=\"10\" fill=\"#330000\">"
              "<title>b</title></rect>\n"
              "<rect x=\"22\" y=\"12\" width=\"20\" height=\"10\" fill=\"#000000\">"
              "<title>a</title></rect>\n"
              "</g>\n</svg>\n");
}

}  // namespace
