#include "dialogswitch/SharedTexts.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr std::string_view ours = "/home/me/lib.so";

TEST(GtkModulesTest, TheGroupIsAddedWhereThereIsNone)
{
    EXPECT_EQ(withGtkModule("", ours), "[Settings]\ngtk-modules=/home/me/lib.so\n");
    EXPECT_EQ(withGtkModule("[Other]\na=1", ours),
              "[Other]\na=1\n[Settings]\ngtk-modules=/home/me/lib.so\n");
}

TEST(GtkModulesTest, TheKeyIsAddedToTheGroup)
{
    EXPECT_EQ(withGtkModule("# mine\n[Settings]\ngtk-theme-name=A\n[Other]\n", ours),
              "# mine\n[Settings]\ngtk-modules=/home/me/lib.so\ngtk-theme-name=A\n[Other]\n");
    EXPECT_EQ(withGtkModule("[Settings]", ours), "[Settings]\ngtk-modules=/home/me/lib.so\n");
    EXPECT_EQ(withGtkModule(" [Settings] \r\n", ours),
              " [Settings] \r\ngtk-modules=/home/me/lib.so\n");
}

TEST(GtkModulesTest, TheModuleIsAddedToThoseOfOthers)
{
    const std::string_view theirs = "[Settings]\ngtk-modules = a:b \nx=1\n";
    const std::string both = "[Settings]\ngtk-modules=a:b:/home/me/lib.so\nx=1\n";
    EXPECT_EQ(withGtkModule(theirs, ours), both);
    EXPECT_EQ(withGtkModule(both, ours), both);
    EXPECT_EQ(withoutGtkModule(both, ours), "[Settings]\ngtk-modules=a:b\nx=1\n");
}

TEST(GtkModulesTest, OnlyTheGroupSettingsCounts)
{
    const std::string_view elsewhere = "[Other]\ngtk-modules=/home/me/lib.so\n";
    EXPECT_FALSE(hasGtkModule(elsewhere, ours));
    EXPECT_EQ(withoutGtkModule(elsewhere, ours), elsewhere);
    const std::string_view after = "[Settings]\n[Other]\ngtk-modules=/home/me/lib.so\n";
    EXPECT_FALSE(hasGtkModule(after, ours));
    EXPECT_FALSE(hasGtkModule("[Settings]\n#gtk-modules=/home/me/lib.so\n", ours));
    EXPECT_FALSE(hasGtkModule("[Settings]\ngtk-modules=/home/me/lib.so.1\n", ours));
}

TEST(GtkModulesTest, TheLineIsRemovedWithItsLastModule)
{
    EXPECT_EQ(withoutGtkModule("[Settings]\ngtk-modules=/home/me/lib.so", ours), "[Settings]\n");
    EXPECT_EQ(withoutGtkModule("", ours), "");
    EXPECT_EQ(withoutGtkModule("a=1\n", ours), "a=1\n");
}

TEST(MarkedLinesTest, AreAddedAtTheEndAndRemovedAgain)
{
    const std::string with = withMarkedLines("a\nb", "us", "c\n");
    EXPECT_EQ(with, "a\nb\n# us: begin\nc\n# us: end\n");
    EXPECT_EQ(withoutMarkedLines(with, "us"), "a\nb\n");
    EXPECT_EQ(withoutMarkedLines(with + "d\n", "us"), "a\nb\nd\n");
    EXPECT_EQ(withMarkedLines("", "us", "c\n"), "# us: begin\nc\n# us: end\n");
}

TEST(MarkedLinesTest, LinesWithTheSameTitleAreReplaced)
{
    const std::string once = withMarkedLines("a\n", "us", "c\n");
    EXPECT_EQ(withMarkedLines(once, "us", "d\n"), "a\n# us: begin\nd\n# us: end\n");
    EXPECT_EQ(withMarkedLines(once, "them", "d\n"), once + "# them: begin\nd\n# them: end\n");
}

TEST(MarkedLinesTest, LinesWithoutBothMarksAreTheUsersOwn)
{
    for (const std::string_view text : {"# us: begin\nc\n", "c\n# us: end\n", "a\n"})
        EXPECT_EQ(withoutMarkedLines(text, "us"), text);
    EXPECT_EQ(withoutMarkedLines("# us: end\n# us: begin\n", "us"), "# us: end\n# us: begin\n");
}

}  // namespace
}  // namespace vantorel
