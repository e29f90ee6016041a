#include "lsp/PanelChoices.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>

namespace vantorel {
namespace {

/// Runs a script of the shell in the place of a panel.
ServerUser::Panel panelThatRuns(const char* script)
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) std::abort();
    const pid_t process = ::fork();
    if (process == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::execl("/bin/sh", "sh", "-c", script, nullptr);
        ::_exit(127);
    }
    ::close(ends[1]);
    return {process, ends[0]};
}

/// Reads until the panel has ended.
std::optional<PanelChoices::Choice> choiceFrom(PanelChoices& choices)
{
    while (!choices.outputs().empty()) {
        if (auto choice = choices.read(choices.outputs().front())) return choice;
    }
    return std::nullopt;
}

bool isRunning(pid_t process)
{
    return ::kill(process, 0) == 0;
}

TEST(PanelChoicesTest, AChoiceIsWhatThePanelPrints)
{
    const ServerUser::Panel panel = panelThatRuns("printf '#ff'; printf '8000\\n'");
    PanelChoices choices;
    choices.add(panel, "file:///a.css", {10, 14});
    choices.replace("file:///a.css", {2, 4}, 5);
    const auto choice = choiceFrom(choices);
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->text, "#ff8000\n");
    EXPECT_EQ(choice->range, (TextRange{13, 17}));
    EXPECT_FALSE(isRunning(panel.process));
}

TEST(PanelChoicesTest, AnEditOfTheColourGivesItsChoiceUp)
{
    const ServerUser::Panel panel = panelThatRuns("echo '#ff8000'");
    PanelChoices choices;
    choices.add(panel, "file:///a.css", {10, 14});
    choices.replace("file:///a.css", {12, 13}, 0);
    EXPECT_FALSE(choiceFrom(choices));
    EXPECT_FALSE(isRunning(panel.process));
}

TEST(PanelChoicesTest, APanelThatWritesMoreThanAColourIsEnded)
{
    const ServerUser::Panel panel = panelThatRuns("trap '' PIPE; while :; do echo '#ff8000'; done");
    PanelChoices choices;
    choices.add(panel, "file:///a.css", {10, 14});
    const auto choice = choiceFrom(choices);
    ASSERT_TRUE(choice);
    EXPECT_GE(choice->text.size(), 4096U);
    EXPECT_FALSE(isRunning(panel.process));
}

TEST(PanelChoicesTest, OpenPanelsEndWithTheServer)
{
    const ServerUser::Panel panel = panelThatRuns("exec sleep 1000");
    {
        PanelChoices choices;
        choices.add(panel, "file:///a.css", {10, 14});
    }
    EXPECT_FALSE(isRunning(panel.process));
}

}  // namespace
}  // namespace vantorel
