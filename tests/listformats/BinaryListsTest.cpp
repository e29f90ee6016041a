#include "listformats/BinaryNumbers.h"
#include "listformats/ColorSwatches.h"
#include "listformats/KritaPalette.h"
#include "listformats/ListReader.h"
#include "listformats/ListTexts.h"
#include "listformats/ZipArchive.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

using namespace vantorel;

std::shared_ptr<HostColorList> threeColors()
{
    auto list = std::make_shared<HostColorList>(u"List");
    list->setColor(HostColor::blackColor(), u"first & \"last\"");
    list->setColor(HostColor::colorWithCalibratedRed(1 / 255.0, 2 / 255.0, 3 / 255.0, 1),
                   u"\u00e9\U0001F3A8");
    list->setColor(HostColor::whiteColor(), u"white");
    return list;
}

std::string wordsOf(std::initializer_list<unsigned> numbers)
{
    std::string bytes;
    for (const unsigned number : numbers) {
        bytes += static_cast<char>(number >> 8);
        bytes += static_cast<char>(number & 0xFF);
    }
    return bytes;
}

std::string textOf(std::string_view bytes, const std::string& file)
{
    const auto read = readColorList(bytes, file);
    return read ? plainText(*read->list) : english(read.error());
}

TEST(ColorSwatchesTest, EveryModelIsRead)
{
    struct Row {
        std::array<unsigned, 5> words;
        const char* line;
    };
    constexpr unsigned minus20 = 0x10000 - 2000;
    for (const Row& row : {
             Row{{0, 0xFFFF, 0x8080, 0, 0}, "#ff8000\tUntitled\n"},
             Row{{1, 0x5555, 0xFFFF, 0xFFFF, 0}, "#00ff00\tUntitled\n"},
             Row{{1, 0, 0x8000, 0x8000, 0}, "#804040\tUntitled\n"},
             Row{{2, 0xFFFF, 0x6666, 0x1999, 0x8000}, "#80330d\tUntitled\n"},
             Row{{7, 5000, 4000, 2000, 0}, "#b95857\tUntitled\n"},
             Row{{7, 5000, 0, minus20, 0}, "#687899\tUntitled\n"},
             Row{{8, 2000, 0, 0, 0}, "#333333\tUntitled\n"},
             Row{{9, 2000, 6000, 9000, 5000}, "#66330d\tUntitled\n"},
         }) {
        std::string bytes = wordsOf({1, 1});
        for (const unsigned word : row.words)
            bytes += wordsOf({word});
        EXPECT_EQ(textOf(bytes, "x.aco"), row.line) << row.words[0];
    }
    const auto unknown = readColorSwatches(wordsOf({1, 1, 3, 0, 0, 0, 0}));
    ASSERT_TRUE(unknown);
    EXPECT_EQ(unknown->skipped, 1U);
    EXPECT_EQ(textOf(wordsOf({1, 2, 0, 0, 0, 0, 0, 3, 0, 0, 0, 0}), "x.aco"),
              "#000000\tUntitled\n");
    EXPECT_NE(textOf(wordsOf({1, 2, 0, 0, 0, 0, 0, 3, 0, 0, 0, 0}), "x"), "#000000\tUntitled\n")
        << "without the ending, a file with anything unknown is not taken for swatches";
}

TEST(ColorSwatchesTest, ListsAreWrittenWithoutAndWithNames)
{
    HostColorList one(u"L");
    one.setColor(HostColor::colorWithCalibratedRed(1, 0.2, 0, 1), u"x");
    EXPECT_EQ(colorSwatchesBytes(one), wordsOf({1, 1, 0, 0xFFFF, 0x3333, 0, 0}) +
                                           wordsOf({2, 1, 0, 0xFFFF, 0x3333, 0, 0, 0, 2, 'x', 0}));
}

TEST(ColorSwatchesTest, NamesOfTheSecondPartCountWherever)
{
    const std::string named = wordsOf({2, 1, 0, 0xFFFF, 0, 0, 0, 0, 4, 'r', 'e', 'd', 0});
    EXPECT_EQ(textOf(named, "x"), "#ff0000\tred\n");
    EXPECT_EQ(textOf(wordsOf({1, 1, 0, 0xFFFF, 0, 0, 0}) + named, "x"), "#ff0000\tred\n");
    EXPECT_EQ(textOf(wordsOf({1, 1, 0, 0xFFFF, 0, 0, 0}) + "rubbish", "x"), "#ff0000\tUntitled\n");
}

TEST(ColorSwatchesTest, LongerListsAreCut)
{
    HostColorList list(u"L");
    for (std::size_t i = 0; i < mostColorSwatches + 2; ++i)
        list.addColor(HostColor::whiteColor(), u"c" +
                                                   std::u16string(1, char16_t(0x4E00 + i / 256)) +
                                                   std::u16string(1, char16_t(0x100 + i % 256)));
    const auto again = readColorSwatches(colorSwatchesBytes(list));
    ASSERT_TRUE(again);
    EXPECT_EQ(again->entries.size(), mostColorSwatches);
}

TEST(ColorSwatchesTest, DamagedFilesAreHarmless)
{
    const std::string bytes = colorSwatchesBytes(*threeColors());
    const std::size_t firstPart = 4 + 3 * 10;
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const bool isWhole = length == firstPart || length == firstPart + 1;
        EXPECT_EQ(readColorSwatches(bytes.substr(0, length)).has_value(), isWhole) << length;
    }
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        for (const char byte : {'\0', '\xFF', '\x7F', '\x01'}) {
            std::string changed = bytes;
            changed[place] = byte;
            const auto read = readColorSwatches(changed);
            EXPECT_TRUE(!read || read->entries.size() < 70000);
        }
    }
    EXPECT_EQ(textOf(wordsOf({2, 1, 0, 0, 0, 0, 0, 0xFFFF, 0xFFFF}), "x.ACO"),
              "it is truncated; give the complete file");
}

TEST(BigEndianReaderTest, ATextNeedsNoZeroAtItsEnd)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(BigEndianReader("\0a\0b"sv).units(2), u"ab");
    EXPECT_EQ(BigEndianReader("\0a\0b\0\0"sv).units(3), u"ab");
    BigEndianReader tooShort("\0a\0"sv);
    EXPECT_EQ(tooShort.units(2), u"");
    EXPECT_TRUE(tooShort.hasFailed());
}

TEST(ZipArchiveTest, FilesComeBack)
{
    const std::array<std::pair<std::string, std::string>, 2> files{
        {{"a", "first"}, {"folder/b", std::string(1000, 'x')}}};
    const std::string archive = zipArchive(files);
    EXPECT_EQ(fileInZip(archive, "a", 5), "first");
    EXPECT_EQ(fileInZip(archive, "a", 4), std::nullopt) << "larger than allowed";
    EXPECT_EQ(fileInZip(archive, "folder/b", 1000), files[1].second);
    EXPECT_EQ(fileInZip(archive, "b", 1000), std::nullopt);
    EXPECT_EQ(fileInZip("PK\3\4", "a", 1000), std::nullopt);
}

/// An archive with "colorset.xml", deflated by another program.
std::string deflatedPalette()
{
    constexpr std::string_view hex =
        "504b0304140000000000000021000d3cd21b1b0000001b000000080000006d696d65747970656170706c"
        "69636174696f6e2f782d6b726974612d70616c65747465504b030414000000080000002100d181f97d61"
        "0000005d0100000c000000636f6c6f727365742e786d6cb371cecfc92f0a4e2d51284b2d2acecccfb355"
        "32d2335052c84bcc4db5550a484cce4e4d51b2b381a972cd2b29aa844aa617a5562a18002583dc9d148a"
        "6c950cf48c9414d2a1741284d6b7b3d147d18bc72843ea1965443da38c49360aceb70300504b01021403"
        "140000000000000021000d3cd21b1b0000001b0000000800000000000000000000008001000000006d69"
        "6d6574797065504b0102140314000000080000002100d181f97d610000005d0100000c00000000000000"
        "00000000800141000000636f6c6f727365742e786d6c504b0506000000000200020070000000cc000000"
        "0000";
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2)
        bytes += static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
    return bytes;
}

TEST(ZipArchiveTest, OnlyACommentMayFollowTheDirectory)
{
    const std::array<std::pair<std::string, std::string>, 1> files{{{"a", "first"}}};
    const std::string archive = zipArchive(files);
    constexpr std::size_t longest = 0xFFFF;
    EXPECT_EQ(fileInZip(archive + std::string(longest, ' '), "a", 5), "first");
    EXPECT_EQ(fileInZip(archive + std::string(longest + 1, ' '), "a", 5), std::nullopt);
}

TEST(ZipArchiveTest, PackedFilesAreRead)
{
    const std::string packed = deflatedPalette();
    const auto list = readColorList(packed, "x.kpl");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->list->name(), u"Packed");
    EXPECT_EQ(plainText(*list->list),
              "#333333\tgrey 0\n#333333\tgrey 1\n#333333\tgrey 2\n#333333\tgrey 3\n");
    for (std::size_t place = 0; place < packed.size(); ++place) {
        std::string changed = packed;
        changed[place] = static_cast<char>(changed[place] ^ 0x41);
        const auto read = fileInZip(changed, "colorset.xml", 1 << 20);
        EXPECT_TRUE(!read || read == fileInZip(packed, "colorset.xml", 1 << 20)) << place;
    }
}

TEST(ZipArchiveTest, DamagedArchivesAreHarmless)
{
    const std::string archive = kritaPaletteBytes(*threeColors());
    for (std::size_t length = 0; length < archive.size(); length += 3)
        EXPECT_FALSE(fileInZip(archive.substr(0, length), "colorset.xml", 1 << 20)) << length;
    for (std::size_t place = 0; place < archive.size(); ++place) {
        for (const char byte : {'\0', '\xFF', '\x08'}) {
            std::string changed = archive;
            changed[place] = byte;
            const auto read = fileInZip(changed, "colorset.xml", 1 << 20);
            EXPECT_TRUE(!read || read->size() < 10000) << place;
        }
    }
}

std::string kritaFile(const std::string& xml)
{
    const std::array<std::pair<std::string, std::string>, 1> files{{{"colorset.xml", xml}}};
    return zipArchive(files);
}

TEST(KritaPaletteTest, EveryModelIsRead)
{
    struct Row {
        const char* color;
        const char* line;
    };
    for (const Row& row :
         {Row{R"(<RGB space="sRGB-elle-V2-srgbtrc.icc" r="1" g="0.5019608" b="0"/>)", "#ff8000"},
          Row{R"(<sRGB r="1" g="0.2" b="0"/>)", "#ff3300"},
          Row{R"(<RGB space="sRGB-elle-V2-g10.icc" r="1" g="0.2158605" b="0"/>)", "#ff8000"},
          Row{R"(<Gray space="x" g="0.2"/>)", "#333333"},
          Row{R"(<CMYK c="0.2" m="0.6" y="0.9" k="0.5"/>)", "#66330d"},
          Row{R"(<Lab L="50" a="40" b="20"/>)", "#b95857"},
          Row{R"(<RGB r="nan" g="1e999" b="-4"/>)", "#000000"}}) {
        const std::string xml = std::string(
                                    "<ColorSet name=\"N\"><Group name=\"g\"><ColorSetEntry "
                                    "name=\"a &amp; b\">") +
                                row.color +
                                "<Position row=\"0\"/></ColorSetEntry></Group></ColorSet>";
        EXPECT_EQ(textOf(kritaFile(xml), "x.kpl"), std::string(row.line) + "\ta & b\n")
            << row.color;
    }
    const auto read =
        readKritaPalette(kritaFile("<ColorSet name=\"N\"><ColorSetEntry name=\"a\"><XYZ "
                                   "x=\"1\"/></ColorSetEntry></ColorSet>"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->skipped, 1U);
    EXPECT_EQ(read->name, u"N");
    EXPECT_EQ(textOf(kritaFile("<ColorSet/>"), "x.kpl").substr(0, 21), "it contains no colour");
    EXPECT_EQ(textOf("PK\3\4", "x.kpl").substr(0, 16), "it is an archive");
}

TEST(KritaPaletteTest, ListsComeBackWhole)
{
    const auto again = readColorList(kritaPaletteBytes(*threeColors()), "x.kpl");
    ASSERT_TRUE(again);
    EXPECT_EQ(again->list->name(), u"List");
    EXPECT_EQ(plainText(*again->list), plainText(*threeColors()));
}

}  // namespace
