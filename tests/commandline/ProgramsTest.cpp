#include "commandline/Descriptions.h"
#include "commandline/Programs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace vantorel {
namespace {

/// Invokes `call` for a command and all its subcommands.
template <class Call>
void forEachCommand(const CommandRow& command, Call call)
{
    call(command);
    for (const CommandRow& inner : command.commands)
        forEachCommand(inner, call);
}

class ProgramsTest : public testing::TestWithParam<const ProgramRow*> {};

TEST_P(ProgramsTest, EveryOptionIsDocumentedOnce)
{
    forEachCommand(GetParam()->command, [](const CommandRow& command) {
        for (const OptionRow& option : command.options) {
            EXPECT_TRUE(option.name.starts_with("--")) << option.name;
            EXPECT_FALSE(explanationOf(option).isEmpty()) << option.name;
            EXPECT_EQ(std::ranges::count(command.options, option.name, &OptionRow::name), 1)
                << option.name;
            const auto excluded =
                std::ranges::count(command.options, option.excludes, &OptionRow::name);
            EXPECT_EQ(excluded, option.excludes.empty() ? 0 : 1) << option.name;
        }
    });
}

TEST_P(ProgramsTest, OnlyTrailingOperandsAreOptional)
{
    forEachCommand(GetParam()->command, [](const CommandRow& command) {
        for (std::size_t i = 1; i < command.operands.size(); ++i) {
            const OperandRow& before = command.operands[i - 1];
            EXPECT_EQ(before.fewest, before.most) << command.name;
        }
    });
}

TEST_P(ProgramsTest, EveryOptionIsInTheManualAndTheCompletions)
{
    const std::string page = manualPage(*GetParam());
    forEachCommand(GetParam()->command, [&](const CommandRow& command) {
        for (const OptionRow& option : command.options) {
            const std::string name(option.name.substr(2));
            for (const char* shell : {"bash", "zsh", "fish"}) {
                EXPECT_THAT(completionScript(*GetParam(), shell), testing::HasSubstr(name))
                    << shell;
            }
            std::string inPage = option.shortName.empty() ? "\n.B \\-\\-" : ", \\-\\-";
            for (const char c : name)
                inPage += c == '-' ? std::string("\\-") : std::string(1, c);
            EXPECT_THAT(page, testing::HasSubstr(inPage));
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Both, ProgramsTest,
                         testing::Values(&vantorelProgram, &vantorelPanelProgram));

}  // namespace
}  // namespace vantorel
