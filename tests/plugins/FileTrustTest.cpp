#include "plugins/FileTrust.h"
#include "plugins/PluginLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "ScratchFolder.h"

namespace vantorel {
namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

class FileTrustTest : public testing::Test {
protected:
    void SetUp() override
    {
        fs::create_directories(_folder);
        std::ofstream(_file) << "a file";
        for (const fs::path& path : {_root / "above", _folder})
            ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
        ASSERT_EQ(::chmod(_file.c_str(), 0644), 0);
    }

    static void setMode(const fs::path& path, mode_t mode)
    {
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
    }

    const ScratchFolder _scratch;
    const fs::path _root = _scratch.path();
    const fs::path _folder = _root / "above/plugins";
    const fs::path _file = _folder / "plugin.so";
};

TEST_F(FileTrustTest, AFileThatOnlyTheUserCanChangeIsTrusted)
{
    EXPECT_TRUE(checkTrust(_folder));
    EXPECT_TRUE(checkTrust(_file));
    EXPECT_TRUE(checkTrust(_folder.string() + "/"));
    EXPECT_TRUE(checkTrust(_folder / "missing.so"));
}

TEST_F(FileTrustTest, AFileIsNotTrustedIfAnyoneCanChangeItOrAFolderAboveIt)
{
    for (const fs::path& path : {_file, _folder, _root / "above"}) {
        SCOPED_TRACE(path);
        struct stat before {};
        ASSERT_EQ(::stat(path.c_str(), &before), 0);
        setMode(path, 0777);
        EXPECT_THAT(english(checkTrust(_file).error()),
                    HasSubstr("all users can write to \"" + path.string()));
        setMode(path, before.st_mode);
        EXPECT_TRUE(checkTrust(_file));
    }
}

TEST_F(FileTrustTest, PluginsMayBeBelowAStickyFolderButNotInIt)
{
    setMode(_root / "above", 01777);
    EXPECT_TRUE(checkTrust(_file));
    EXPECT_TRUE(checkTrust(_folder));
    setMode(_folder, 01777);
    EXPECT_THAT(english(checkTrust(_folder).error()), HasSubstr("all users can write"));
}

TEST_F(FileTrustTest, ALinkIsTrustedAsMuchAsItsTarget)
{
    fs::create_directories(_root / "elsewhere");
    fs::create_directory_symlink(_folder, _root / "elsewhere/link");
    EXPECT_TRUE(checkTrust(_root / "elsewhere/link"));
    setMode(_root / "above", 0777);
    EXPECT_THAT(english(checkTrust(_root / "elsewhere/link").error()), HasSubstr("above\""));
    setMode(_root / "above", 0755);
    setMode(_root / "elsewhere", 0777);
    EXPECT_THAT(english(checkTrust(_root / "elsewhere/link").error()), HasSubstr("elsewhere\""))
        << "another link could be put there";
}

TEST_F(FileTrustTest, AFileOfAnotherUserIsNotTrusted)
{
    constexpr uid_t nobody = 65534;
    if (::chown(_file.c_str(), nobody, static_cast<gid_t>(-1)) != 0)
        GTEST_SKIP() << "needs the administrator's rights";
    EXPECT_THAT(english(checkTrust(_file).error()), HasSubstr("belongs to another user"));
}

TEST_F(FileTrustTest, AGroupIsTrustedIfTheAdministratorHasChosenIt)
{
    constexpr uid_t user = 54321;
    constexpr gid_t group = 65534;
    if (::chown(_folder.c_str(), user, group) != 0)
        GTEST_SKIP() << "needs the administrator's rights";
    EXPECT_TRUE(checkTrust(_folder, user));
    setMode(_folder, 0775);
    EXPECT_THAT(english(checkTrust(_folder, user).error()), HasSubstr("a group can write to"));
    ASSERT_EQ(::chown(_folder.c_str(), 0, group), 0);
    EXPECT_TRUE(checkTrust(_folder, user));
}

TEST_F(FileTrustTest, PluginsFromUntrustedFoldersAreNotLoaded)
{
    fs::remove(_file);
    fs::copy_file(fs::path(VANTOREL_TEST_PLUGINS) / "good-plugin.so", _file);
    EXPECT_EQ(loadPlugins({_folder}, {}).plugins.size(), 1U);
    setMode(_folder, 0777);
    for (const auto& search : {loadPlugins({_folder}, {}), loadPlugins({}, {_file})}) {
        EXPECT_TRUE(search.plugins.empty());
        ASSERT_EQ(search.problems.size(), 1U);
        EXPECT_THAT(english(search.problems.front()),
                    HasSubstr("is left out: all users can write to"));
        EXPECT_THAT(english(search.problems.front()), HasSubstr("chmod o-w"));
    }
}

TEST_F(FileTrustTest, APipeDoesNotBlock)
{
    fs::remove(_file);
    ASSERT_EQ(::mkfifo(_file.c_str(), 0600), 0);
    const auto search = loadPlugins({_folder}, {});
    ASSERT_EQ(search.problems.size(), 1U);
    EXPECT_THAT(english(search.problems.front()),
                HasSubstr("plugin.so is left out: it is not a regular file"));
}

}  // namespace
}  // namespace vantorel
