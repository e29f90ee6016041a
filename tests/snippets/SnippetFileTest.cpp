#include "snippets/SnippetFile.h"
#include "snippets/SnippetLimits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace vantorel {
namespace {

std::vector<std::string> problemsOf(const SnippetFileReading& reading)
{
    std::vector<std::string> texts;
    for (const Message& problem : reading.problems)
        texts.push_back(english(problem.what));
    return texts;
}

TEST(SnippetFileTest, AnArrayAndADictionaryOfSettingsAreRead)
{
    const std::string entry =
        "{NameSnippet = a; FormatSnippet = \"%d\"; VarsSnippet = rgbPackedInt;}";
    for (const std::string& text : {"(" + entry + ",)", "{CodeSnippets = (" + entry + ");}"}) {
        const auto reading = readSnippetFile("// mine\n" + text, "f");
        EXPECT_TRUE(reading.problems.empty());
        EXPECT_THAT(reading.snippets,
                    testing::ElementsAre(QTXCodeSnippet(u"a", u"%d", u"rgbPackedInt")));
    }
}

TEST(SnippetFileTest, EntriesWithErrorsAreReportedAndTheOthersRead)
{
    const auto reading = readSnippetFile(
        "({NameSnippet = a; FormatSnippet = \"%d\"; VarsSnippet = rgbPackedInt;},\n"
        " text, {FormatSnippet = x; VarsSnippet = rgbFixed;},\n"
        " {NameSnippet = b; FormatSnippet = \"\"; VarsSnippet = rgbFixed;},\n"
        " {NameSnippet = c; FormatSnippet = x;},\n"
        " {NameSnippet = d; FormatSnippet = x; VarsSnippet = RGBFixed;},\n"
        " {NameSnippet = a; FormatSnippet = x; VarsSnippet = rgbFixed;},\n"
        " {NameSnippet = e; FormatSnippet = x; VarsSnippet = rgbFixed;})",
        "f");
    ASSERT_EQ(reading.snippets.size(), 2U);
    EXPECT_EQ(reading.snippets[1].nameSnippet(), u"e");
    EXPECT_THAT(problemsOf(reading),
                testing::ElementsAre(
                    "\"f\", entry 2, is not a snippet", "\"f\", entry 3, has no NameSnippet",
                    "\"f\", entry 4, has no FormatSnippet", "\"f\", entry 5, has no VarsSnippet",
                    "\"f\", entry 6: there is no variable form \"RGBFixed\"",
                    "\"f\", entry 7: there is already a snippet \"a\""));
}

TEST(SnippetFileTest, AFileThatIsNotAListIsReportedWithItsLine)
{
    EXPECT_THAT(problemsOf(readSnippetFile("(\n{NameSnippet = a b;}\n)", "f")),
                testing::ElementsAre("\"f\", line 2: this is not a property list"));
    for (const char* text : {"text", "{}", "{CodeSnippets = text;}"}) {
        EXPECT_THAT(problemsOf(readSnippetFile(text, "f")),
                    testing::ElementsAre("\"f\" has no list of snippets"));
    }
}

/// The snippets that ship with the program.
class ShippedSnippetsTest : public testing::Test {
protected:
    static SnippetFileReading shipped()
    {
        std::ifstream file(VANTOREL_SNIPPETS);
        return readSnippetFile(std::string(std::istreambuf_iterator<char>(file), {}), "shipped");
    }

    SnippetFileReading _reading = shipped();
    SnippetReaders _readers{_reading.snippets};
};

TEST_F(ShippedSnippetsTest, ThereIsOneForEachEnvironment)
{
    EXPECT_TRUE(_reading.problems.empty());
    std::vector<std::u16string> names;
    for (const QTXCodeSnippet& snippet : _reading.snippets)
        names.push_back(*snippet.nameSnippet());
    EXPECT_THAT(names,
                testing::ElementsAre(u"SwiftUI", u"Kotlin Compose", u"Android XML", u"Flutter",
                                     u"C# WPF", u"C# MAUI", u"Rust", u"Go", u"Qt", u"GTK", u"Unity",
                                     u"Unreal", u"GLSL", u"LaTeX xcolor", u"TikZ", u"ANSI 24 bit"));
}

TEST_F(ShippedSnippetsTest, TheirLinesAreReadAsTheSameColours)
{
    std::mt19937 random(3);
    for (std::size_t i = 0; i < _reading.snippets.size(); ++i) {
        const QTXCodeSnippet& snippet = _reading.snippets[i];
        EXPECT_TRUE(snippetLimits(_readers, i).empty());
        const bool hasOpacity = snippet.varFormSnippet()->starts_with(u"rgba");
        for (int round = 0; round < 300; ++round) {
            const auto bits = static_cast<std::uint32_t>(random());
            QTXHexColorSpec spec;
            spec.setHexRed(bits & 0xFF, bits >> 8 & 0xFF, bits >> 16 & 0xFF);
            spec.setAlphaComp(hasOpacity ? (bits >> 24) / 255.0 : 1);
            const auto line = u"x = " + snippet.codeSnippetWithColorSpec(spec) + u", y";
            const auto matches = _readers.matchesIn(line);
            ASSERT_EQ(matches.size(), 1U) << testing::PrintToString(line);
            EXPECT_EQ(matches[0].color, HostColor::colorWithCalibratedRed(
                                            (bits & 0xFF) / 255.0, (bits >> 8 & 0xFF) / 255.0,
                                            (bits >> 16 & 0xFF) / 255.0, spec.alphaComp()))
                << testing::PrintToString(line);
        }
    }
}

std::vector<std::string> limitsOf(const char16_t* format, const char16_t* form,
                                  std::vector<QTXCodeSnippet> others = {})
{
    others.emplace_back(u"x", format, form);
    std::vector<std::string> sentences;
    for (const Phrase& limit : snippetLimits(SnippetReaders(others), others.size() - 1))
        sentences.push_back(english(limit));
    return sentences;
}

TEST(SnippetLimitsTest, TheBuiltInOnesHaveOne)
{
    const SnippetReaders readers(QTXCodeSnippet::buildDefaultCodeSnippets());
    for (std::size_t i = 0; i < readers.snippets().size(); ++i) {
        const auto limits = snippetLimits(readers, i);
        ASSERT_EQ(limits.size(), i == 8 ? 1U : 0U) << i;
        if (i == 8) {
            EXPECT_EQ(english(limits[0]),
                      "an opacity of 0 is lost with the leading zeros, which are not written");
        }
    }
}

struct LimitRow {
    const char16_t* format;
    const char16_t* form;
    const char* sentence;
};

class SnippetLimitTest : public testing::TestWithParam<LimitRow> {};

TEST_P(SnippetLimitTest, IsExplained)
{
    const auto& [format, form, sentence] = GetParam();
    EXPECT_THAT(limitsOf(format, form), testing::ElementsAre(sentence));
}

INSTANTIATE_TEST_SUITE_P(
    All, SnippetLimitTest,
    testing::Values(
        LimitRow{u"C%d,%d", u"rgbFixed", "blue is not in the format"},
        LimitRow{u"C", u"rgbPackedInt", "the colour is not in the format"},
        LimitRow{u"C%d,%d,%d", u"rgbaFixed", "opacity is not in the format"},
        LimitRow{u"C%d,%c,%d", u"rgbFixed", "green is written as a character"},
        LimitRow{u"C%f,%f,%d", u"rgbFloats", "blue is written without decimals"},
        LimitRow{u"C%.2s,%d,%d", u"rgbFixed", "red is cut off"},
        LimitRow{u"C%hx", u"rgbPackedInt", "the colour is written without its highest bits"},
        LimitRow{u"C%d,%d,%d", u"rgb", "there is no variable form \"rgb\""},
        LimitRow{u"C%d%d,%d", u"rgbFixed",
                 "red is not separated from what follows, so that some lines have two meanings"},
        LimitRow{u"C%.3f,%.2f,%.3f", u"rgbFloats",
                 "green has too few digits to tell neighbouring values apart"},
        LimitRow{u"C%g", u"rgbPackedInt",
                 "the colour has too few digits to tell neighbouring values apart"},
        LimitRow{u"(%d,%d,%d)", u"rgbFixed",
                 "the line has no text of its own, so it is read only where it is alone"}));

TEST(SnippetLimitsTest, ARivalIsNamed)
{
    EXPECT_THAT(limitsOf(u"C%d,%d,%d", u"rgbFixed", {{u"hex", u"C%x,%x,%x", u"rgbFixed"}}),
                testing::ElementsAre("a line can be one of \"hex\" with another colour"));
    EXPECT_TRUE(limitsOf(u"C%d,%d,%d", u"rgbFixed", {{u"y", u"C%d,%d,%d", u"rgbFixed"}}).empty())
        << "the colour is the same";
}

}  // namespace
}  // namespace vantorel
