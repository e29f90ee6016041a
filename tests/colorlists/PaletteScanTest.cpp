#include "colorlists/PaletteScan.h"

#include "colorlists/ColorNamesPopUp.h"
#include "colorlists/PaletteFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

QTXHexColorSpec colorOf(std::uint64_t red, std::uint64_t green, std::uint64_t blue)
{
    QTXHexColorSpec spec;
    spec.setHexRed(red, green, blue);
    return spec;
}

/// The names by the list that is made of the file.
PaletteNameMatch namesByList(std::string_view bytes, const QTXHexColorSpec& color)
{
    const std::shared_ptr<HostColorList> list = readPalette(bytes, u"x")->list;
    ColorListIndex index;
    index.update(list);
    const ColorNameMatch match = matchColorName(color, *list, index);
    PaletteNameMatch names;
    if (match.exactPlace) names.exact = list->allKeys()[*match.exactPlace];
    for (const std::size_t place : match.closePlaces)
        names.close.push_back(list->allKeys()[place]);
    return names;
}

TEST(PaletteScanTest, TheNamesAreThoseOfTheList)
{
    std::mt19937 random(1);
    std::uniform_int_distribution byte(0, 255);
    std::string bytes = "GIMP Palette\nName: x\nColumns: 3\n#\n\n";
    for (int i = 0; i < 3000; ++i) {
        for (int channel = 0; channel < 3; ++channel)
            bytes += (i % 7 == channel ? "  " : "\t ") + std::to_string(byte(random) / 4 * 4);
        bytes += (i % 3 == 0 ? "  \t\t" : "  ") + std::string(i % 5 == 0 ? "\xC3\xA4 " : "") +
                 "name " + std::to_string(i) + (i % 4 == 0 ? "  " : "") + '\n';
    }
    int exact = 0;
    std::size_t close = 0;
    for (int i = 0; i < 300; ++i) {
        const auto channel = [&] { return static_cast<std::uint64_t>(byte(random)) / 4 * 4; };
        const QTXHexColorSpec color = colorOf(channel(), channel(), channel());
        const auto match = namesInPalette(bytes, color);
        ASSERT_TRUE(match);
        const PaletteNameMatch wanted = namesByList(bytes, color);
        EXPECT_EQ(match->exact, wanted.exact);
        EXPECT_EQ(match->close, wanted.close);
        exact += match->exact ? 1 : 0;
        close += match->close.size();
    }
    EXPECT_GT(exact, 0);
    EXPECT_GT(close, 500U);
}

TEST(PaletteScanTest, TheFirstExactNameCountsAndCloseOnesGo)
{
    const std::string head = "GIMP Palette\n";
    const auto match =
        namesInPalette(head + "1 2 4\tclose\n1 2 3\tfirst\n1 2 3\tsecond", colorOf(1, 2, 3));
    ASSERT_TRUE(match);
    EXPECT_EQ(match->exact, u"first");
    EXPECT_TRUE(match->close.empty());
    const auto borders = namesInPalette(
        head + "17 0 0\ta\n18 0 0\tb\n0 17 0\tc\n0 0 17\td\n0 0 18\te\n", colorOf(1, 1, 1));
    ASSERT_TRUE(borders);
    EXPECT_THAT(borders->close, testing::ElementsAre(u"a", u"c", u"d"));
    EXPECT_TRUE(namesInPalette(head, colorOf(1, 1, 1))->close.empty());
    const auto white = namesInPalette(head + "255 255 255\twhite\n", colorOf(255, 255, 255));
    ASSERT_TRUE(white);
    EXPECT_EQ(white->exact, u"white");
}

TEST(PaletteScanTest, OtherFilesNeedAList)
{
    const std::string head = "GIMP Palette\n";
    for (const char* rows :
         {"1 2 3\tred\n1 2 4\tred\n", "1 2 3\n", "1 2 3\t\n", "1 2 3\tred\r\n", "red\n",
          "1 2\tred\n", "256 0 0\tred\n", "-1 0 0\tred\n", "0001 0 0\tred\n", "1 2 3x\tred\n",
          "1 2 3\t\xE4\n", "9 9 9\t\xE4\n"}) {
        EXPECT_FALSE(namesInPalette(head + rows, colorOf(1, 2, 3))) << rows;
    }
}

TEST(PaletteHeadTest, ANameIsDecidedByTheFirstLines)
{
    const auto nameIn = [](std::string_view beginning) {
        const PaletteHead head = paletteHead(beginning, u"file");
        return head.isDecided ? head.name.value_or(u"none") : u"undecided";
    };
    EXPECT_EQ(nameIn("GIMP Palette\nName: Mine\nCol"), u"Mine");
    EXPECT_EQ(nameIn("GIMP Palette\nName: Mi"), u"undecided");
    EXPECT_EQ(nameIn("GIMP Palette\n#\n1 2 3\tred\n4"), u"file");
    EXPECT_EQ(nameIn("GIMP Palette\n# a comment\n1 2"), u"undecided");
    EXPECT_EQ(nameIn("GIMP Pal"), u"undecided");
    EXPECT_EQ(nameIn("binary\nName: Mine\n"), u"none");
}

}  // namespace
}  // namespace vantorel
