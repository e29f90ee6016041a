#include "hosts/posix/UserDirectories.h"

#include "ScopedEnvironment.h"
#include "hosts/posix/PosixFiles.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using Paths = std::vector<std::string>;
using Value = std::optional<std::string>;

TEST(UserDirectoriesTest, AVariableWithoutAnAbsolutePathIsIgnored)
{
    ScopedEnvironment environment;
    environment.set("HOME", "/home/me");
    for (const Value& value : {Value(), Value(""), Value("relative"), Value("relative:./dots"),
                               Value("~/tilde"), Value(":::")}) {
        for (const char* name :
             {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_DIRS"}) {
            environment.set(name, value);
        }
        const HostBaseDirectories directories = userBaseDirectories();
        EXPECT_EQ(directories.configHome, "/home/me/.config");
        EXPECT_EQ(directories.dataHome, "/home/me/.local/share");
        EXPECT_EQ(directories.configDirectories, Paths{"/etc/xdg"});
        EXPECT_EQ(directories.dataDirectories, (Paths{"/usr/local/share", "/usr/share"}));
    }
}

TEST(UserDirectoriesTest, VariablesAreUsedInOrderOfPrecedence)
{
    ScopedEnvironment environment;
    environment.set("XDG_CONFIG_HOME", "/c:with colon/");
    environment.set("XDG_DATA_HOME", "/d");
    environment.set("XDG_CONFIG_DIRS", "/c2");
    environment.set("XDG_DATA_DIRS", "/z//::relative:/a:/");
    const HostBaseDirectories directories = userBaseDirectories();
    EXPECT_EQ(directories.configHome, "/c:with colon");
    EXPECT_EQ(directories.dataHome, "/d");
    EXPECT_EQ(directories.configDirectories, Paths{"/c2"});
    EXPECT_EQ(directories.dataDirectories, (Paths{"/z", "/a", "/"}));
}

TEST(UserDirectoriesTest, TheProgramsOwnDataIsBesideItsFolder)
{
    // The tests are in a folder "bin", as installed programs are.
    const Value data = userBaseDirectories().programData;
    ASSERT_TRUE(data.has_value());
    EXPECT_TRUE(data->ends_with("/share")) << *data;
}

TEST(UserDirectoriesTest, OnlyFilesOfTheRealUserHaveThem)
{
    ScopedEnvironment environment;
    environment.set("XDG_DATA_DIRS", "/somewhere");
    EXPECT_EQ(PosixFiles().baseDirectories().dataDirectories, Paths{"/somewhere"});
    const HostBaseDirectories given = PosixFiles("/given").baseDirectories();
    EXPECT_EQ(given.configHome, std::nullopt);
    EXPECT_EQ(given.dataHome, std::nullopt);
    EXPECT_TRUE(given.configDirectories.empty());
    EXPECT_TRUE(given.dataDirectories.empty());
    EXPECT_EQ(given.programData, std::nullopt);
}

}  // namespace
}  // namespace vantorel
