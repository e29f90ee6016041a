#include "listformats/ListFormats.h"
#include "listformats/ListReader.h"
#include "listformats/ListTexts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace vantorel;

std::shared_ptr<HostColorList> listWithName(const std::u16string& name)
{
    auto list = std::make_shared<HostColorList>(u"List");
    list->setColor(HostColor::blackColor(), u"first");
    list->setColor(HostColor::colorWithCalibratedRed(1 / 255.0, 2 / 255.0, 3 / 255.0, 1), name);
    list->setColor(HostColor::whiteColor(), u"last");
    return list;
}

using Row = std::pair<const char*, std::string (*)(const HostColorList&)>;
constexpr Row formats[] = {
    {"x.css", cssText}, {"x.scss", scssText}, {"x.json", jsonText}, {"x.txt", plainText}};

TEST(ListFormatsTest, NamesThatLookLikeFormatSyntaxSurvive)
{
    for (const char16_t* name :
         {u"a",    u"a;b",    u"}",          u"{", u"--x: red;", u"$x: red;", u"// y",
          u"/* z", u"\"",     u"\\",         u"'", u"#ff0000",   u"a\tb",     u"]",
          u":",    u"\u00e9", u"\U0001F3A8", u"*", u"/",         u"\uFFFF"}) {
        const auto list = listWithName(name);
        for (const auto& [file, write] : formats) {
            const auto reading = readColorList(write(*list), file);
            ASSERT_TRUE(reading) << file;
            ASSERT_EQ(reading->list->allKeys().size(), 3U) << file;
            // A tab is a control character and becomes a blank, except in JSON.
            const bool isChanged = std::u16string(name) == u"a\tb" && std::string(file) != "x.json";
            EXPECT_EQ(reading->list->allKeys()[1], isChanged ? u"a b" : name) << file;
            EXPECT_EQ(reading->list->colorAtIndex(1), list->colorAtIndex(1)) << file;
            EXPECT_EQ(reading->skipped, 0U) << file;
        }
    }
}

TEST(ListFormatsTest, TheFirstCommentAfterADeclarationIsTheName)
{
    const auto css = readColorList(
        "/* List */ /* not a name */\n--a: red; /* one */ /* two */\n--b: blue; /* */ /* four */\n"
        "--c: 12px; /* five */\n$d: black; // six\n// seven\n",
        "x.scss");
    ASSERT_TRUE(css);
    EXPECT_EQ(css->list->name(), u"List");
    EXPECT_EQ(css->list->allKeys(), (std::vector<std::u16string>{u"one", u"b", u"six"}));
}

TEST(ListFormatsTest, ADeclarationBeginsWithItsName)
{
    for (const char* text : {"a--b: red;", "a$b: red;", "--: red;", "$: red;", "--b red;", "--b;",
                             "-b: red;", "_--b: red;", "\u00e9--b: red;", "--b", "$b", "--", "$"}) {
        const auto css = readColorList(text, "x.scss");
        EXPECT_TRUE(!css || css->list->allKeys().empty()) << text;
    }
    for (const char* text : {"--b: red;", "$b: red", "{--b:red}", " --b : red ;", "a{--b: red;}",
                             "--b: red !important;", "/**/--b: red"}) {
        const auto css = readColorList(text, "x.scss");
        ASSERT_TRUE(css) << text;
        EXPECT_EQ(css->list->allKeys(), std::vector<std::u16string>{u"b"}) << text;
    }
}

TEST(ListFormatsTest, EveryLineOfAPaletteThatIsLeftOutCounts)
{
    std::string palette = "GIMP Palette\n1 2 3\tone\n";
    for (int i = 0; i < 1000; ++i)
        palette += "no colour\n";
    const auto list = readColorList(palette, "x.gpl");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->skipped, 1000U);
}

TEST(ListFormatsTest, LinesAreColoursWithNames)
{
    const auto list = readColorList(
        "#ff0000\n\n #ff0000 one \nred\ttwo words\nno colour\n\tred\n#12 x\nblue\t\r\n"
        "rgb(1 2 3)\t\tthree",
        "x.txt");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->skipped, 2U);
    EXPECT_EQ(list->list->colorAtIndex(1), HostColor::colorWithCalibratedRed(1, 0, 0, 1));
    const auto& keys = list->list->allKeys();
    ASSERT_EQ(keys.size(), 6U);
    EXPECT_EQ(keys[1], u"one");
    EXPECT_EQ(keys[2], u"two words");
    EXPECT_EQ(keys[5], u"three");
}

TEST(ListFormatsTest, TheFormatsSayWhatTheyAre)
{
    const auto list = listWithName(u"name");
    for (const ListFormat& format : listFormats()) {
        const std::string bytes = format.write(*list);
        const bool hasControls = std::ranges::any_of(
            bytes, [](char c) { return c >= 0 && c < ' ' && c != '\n' && c != '\t'; });
        EXPECT_EQ(format.isBinary, hasControls) << format.name;
        EXPECT_EQ(listFormatNamed(format.name), &format);
        for (const std::string_view ending : format.endings) {
            const std::string file = "a.b." + std::string(ending);
            EXPECT_EQ(listFormatOfFile(file), &format);
            const auto reading = readColorList(bytes, file);
            const bool isWhole = reading && reading->list->allKeys() == list->allKeys();
            EXPECT_EQ(format.isRead, isWhole) << file;
        }
    }
    EXPECT_EQ(listFormats().front().name, "gpl");
    EXPECT_EQ(listFormatOfFile("A.SVG"), listFormatNamed("svg"));
    EXPECT_NE(listFormatNamed("svg")->write(*list).find("viewBox=\"0 0 640 480\""),
              std::string::npos);
    EXPECT_EQ(listFormatNamed("SVG"), nullptr);
    EXPECT_EQ(listFormatOfFile("svg"), nullptr);
    EXPECT_EQ(listFormatOfFile("a.b"), nullptr);
    EXPECT_EQ(listFormatOfFile("a."), nullptr);
}

TEST(ListFormatsTest, IdentifiersAreUnique)
{
    HostColorList list(u"L");
    for (const char16_t* key :
         {u"A b", u"a-b", u"a b!", u"a-b-2", u"2", u"color-2", u"!", u"color"})
        list.setColor(HostColor::blackColor(), key);
    const std::string text = scssText(list);
    for (const char* line : {"\n$a-b: ", "\n$a-b-2: ", "\n$a-b-3: ", "\n$a-b-2-2: ", "\n$color-2: ",
                             "\n$color-2-2: ", "\n$color: ", "\n$color-3: "})
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
}

TEST(ListFormatsTest, EntriesThatAreNotColoursAreCounted)
{
    const auto css = readColorList(":root { --a: red; --b: 12px; --c: var(--a); }", "x.css");
    ASSERT_TRUE(css);
    EXPECT_EQ(css->list->allKeys().size(), 1U);
    EXPECT_EQ(css->skipped, 2U);
    EXPECT_EQ(css->list->name(), u"x");
    EXPECT_EQ(readColorList("red\nredd\n", "/a/b.c/names")->list->name(), u"names");
}

}  // namespace
