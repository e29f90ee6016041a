#include "commandline/ArgumentReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::ElementsAre;
using Options = std::vector<std::pair<std::string_view, std::string>>;

std::vector<Choice> sizes()
{
    return {{"small", "a few"}, {"large", {}}};
}

constexpr OperandRow keepOperands[] = {{"THING", "What to keep.", 1, 2}};
constexpr OptionRow keepOptions[] = {
    {.name = "--place", .value = "PLACE", .isRequired = true},
    {.name = "--size", .value = "SIZE", .choices = sizes},
    {.name = "--tag", .value = "TAG", .isRepeatable = true},
    {.name = "--dry", .excludes = "--wet"},
    {.name = "--wet"},
    {.name = "--count", .value = "N", .shortName = "-c"},
};
constexpr OperandRow findOperands[] = {{"THING", "What to find."}};
constexpr CommandRow findCommands[] = {{.name = "again", .operands = findOperands}};
constexpr OptionRow findOptions[] = {{.name = "--all"}};
constexpr CommandRow commands[] = {
    {.name = "keep", .operands = keepOperands, .options = keepOptions},
    {.name = "find", .operands = findOperands, .options = findOptions, .commands = findCommands},
    {.name = "run", .handsOnTo = &findCommands[0]},
};
constexpr OptionRow programOptions[] = {{.name = "--version"}};
constexpr ProgramRow program{
    .command = {.name = "p", .text = "Things.", .options = programOptions, .commands = commands},
    .subject = phraseText("a test"),
    .version = "1.2"};

TEST(ArgumentReaderTest, OptionsAndOperandsMayComeInAnyOrder)
{
    const auto reading = readArguments(
        program, {"keep", "a", "--place=x=y", "--tag", "--dry", "--dry", "--tag", "2", "-"});
    ASSERT_TRUE(reading) << english(reading.error());
    EXPECT_EQ(reading->arguments->command, "keep");
    EXPECT_THAT(reading->arguments->operands, ElementsAre("a", "-"));
    EXPECT_EQ(reading->arguments->options,
              (Options{{"--place", "x=y"}, {"--tag", "--dry"}, {"--dry", ""}, {"--tag", "2"}}));
    EXPECT_THAT(reading->arguments->values("--tag"), ElementsAre("--dry", "2"));
    EXPECT_EQ(reading->arguments->value("--size"), std::nullopt);
}

TEST(ArgumentReaderTest, AnOptionMayHaveAShortName)
{
    for (const std::vector<std::string>& count :
         {std::vector<std::string>{"-c", "2"}, {"-c=2"}, {"--count", "2"}}) {
        std::vector<std::string> arguments{"keep", "--place=x", "a"};
        arguments.insert(arguments.end(), count.begin(), count.end());
        const auto reading = readArguments(program, arguments);
        ASSERT_TRUE(reading) << english(reading.error());
        EXPECT_EQ(reading->arguments->value("--count"), "2");
    }
    EXPECT_FALSE(readArguments(program, {"keep", "--place=x", "a", "-c=1", "--count=1"}));
    EXPECT_THAT(readArguments(program, {"keep", "--help"})->text,
                testing::HasSubstr("\n  -c, --count N"));
}

TEST(ArgumentReaderTest, NegativeNumbersAreOperands)
{
    const auto reading = readArguments(program, {"find", "-30", "-.5"});
    ASSERT_TRUE(reading) << english(reading.error());
    EXPECT_THAT(reading->arguments->operands, ElementsAre("-30", "-.5"));
    EXPECT_FALSE(readArguments(program, {"find", "-."}));
    EXPECT_FALSE(readArguments(program, {"find", "-x3"}));
}

TEST(ArgumentReaderTest, EverythingAfterTheDoubleDashIsAnOperand)
{
    const auto reading = readArguments(program, {"find", "--all", "--", "again", "--", "--all"});
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->arguments->command, "find");
    EXPECT_THAT(reading->arguments->operands, ElementsAre("again", "--", "--all"));
    EXPECT_EQ(readArguments(program, {"find", "again", "x"})->arguments->command, "find again");
}

TEST(ArgumentReaderTest, ACommandCanPassOnTheRemainingArguments)
{
    const auto reading = readArguments(program, {"run", "--help", "--", "x"});
    ASSERT_TRUE(reading);
    EXPECT_THAT(reading->arguments->operands, ElementsAre("--help", "--", "x"));
}

TEST(ArgumentReaderTest, HelpAndVersionTakePrecedenceOverErrors)
{
    EXPECT_EQ(readArguments(program, {"--version"})->text, "p 1.2\n");
    EXPECT_THAT(readArguments(program, {"keep", "--nothing", "-h"})->text,
                testing::StartsWith("Usage: p keep --place PLACE [OPTION...] THING [THING]\n"));
    EXPECT_THAT(readArguments(program, {"keep", "--help"})->text,
                testing::HasSubstr("small (a few) or large."));
}

struct WrongRow {
    std::vector<std::string> arguments;
    const char* what;
    const char* remedy;
};

void PrintTo(const WrongRow& row, std::ostream* out)
{
    *out << testing::PrintToString(row.arguments);
}

class WrongArgumentsTest : public testing::TestWithParam<WrongRow> {};

TEST_P(WrongArgumentsTest, AreExplained)
{
    const auto reading = readArguments(program, GetParam().arguments);
    ASSERT_FALSE(reading);
    EXPECT_EQ(english(reading.error().what), GetParam().what);
    EXPECT_EQ(english(reading.error().remedy), GetParam().remedy);
}

constexpr const char* help = "see \"p --help\"";
constexpr const char* keepHelp = "see \"p keep --help\"";

INSTANTIATE_TEST_SUITE_P(
    Lines, WrongArgumentsTest,
    testing::Values(
        WrongRow{{}, "the command is missing", help},
        WrongRow{{"--", "keep"}, "the command is missing", help},
        WrongRow{{"kep"}, "\"kep\" is not a command", help},
        WrongRow{{"--place", "x", "keep"}, "\"p\" has no option \"--place\"", help},
        WrongRow{{"keep", "a", "-p"}, "\"p keep\" has no option \"-p\"", keepHelp},
        WrongRow{{"keep", "a", "--place"}, "--place requires a value", keepHelp},
        WrongRow{{"keep", "a", "--dry=1"}, "--dry takes no value", keepHelp},
        WrongRow{{"keep", "a", "--place=1", "--place=1"}, "--place is given twice", keepHelp},
        WrongRow{{"keep", "a"}, "--place is required", keepHelp},
        WrongRow{{"keep", "a", "--place=1", "--wet", "--dry"},
                 "--dry cannot be combined with --wet",
                 keepHelp},
        WrongRow{
            {"keep", "a", "--place=1", "--size=x"}, "--size cannot be \"x\"", "use small or large"},
        WrongRow{{"keep", "--place=1"}, "THING is missing", keepHelp},
        WrongRow{{"keep", "--place=1", "a", "b", "c"}, "\"c\" is one argument too many", keepHelp},
        WrongRow{
            {"find", "a", "again"}, "\"a\" precedes the command", "put it after \"p find again\""},
        WrongRow{{"find", "--all", "again"},
                 "--all precedes the command",
                 "put it after \"p find again\""}));

}  // namespace
}  // namespace vantorel
