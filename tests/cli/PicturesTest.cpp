#include "cli/Pictures.h"

#include "listformats/PaletteSvg.h"

#include <gtest/gtest.h>

namespace {

using namespace vantorel;

std::size_t countOf(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t i = text.find(part); i != std::string::npos; i = text.find(part, i + 1))
        ++count;
    return count;
}

TEST(PicturesTest, AnyNumberOfColoursFitsAnySize)
{
    for (const int count : {0, 1, 2, 17, 216, 1000}) {
        const auto list = std::make_shared<HostColorList>(u"L");
        for (int i = 0; i < count; ++i) {
            const std::string digits = std::to_string(i);
            list->setColor(HostColor::whiteColor(), std::u16string(digits.begin(), digits.end()));
        }
        for (const HostSize size :
             {HostSize{8, 8}, HostSize{8, 900}, HostSize{900, 8}, HostSize{640, 480}}) {
            const std::string svg = paletteSvg(*list, size);
            EXPECT_EQ(countOf(svg, "</title></rect>"), static_cast<std::size_t>(count));
            EXPECT_EQ(countOf(svg, "nan") + countOf(svg, "inf"), 0U);
            EXPECT_TRUE(palettePng(*list, size).starts_with("\x89PNG"));
        }
    }
}

TEST(PicturesTest, NamesAreEscapedForXml)
{
    const auto list = std::make_shared<HostColorList>(u"<&>");
    list->setColor(HostColor::blackColor(), u"a\x01\uFFFE\"]]>");
    const std::string svg = paletteSvg(*list, {100, 100});
    EXPECT_NE(svg.find("<title>&lt;&amp;&gt;</title>"), std::string::npos);
    EXPECT_NE(svg.find("<title>a \uFFFD\"]]&gt;</title>"), std::string::npos);
}

}  // namespace
