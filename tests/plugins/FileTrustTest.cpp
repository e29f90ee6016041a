#include "plugins/FileTrust.h"
#include "plugins/PluginLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
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

    static constexpr const char* listAttribute = "system.posix_acl_access";
    struct AccessListEntry {
        std::uint16_t tag;
        std::uint16_t permissions;
        std::uint32_t id;
    };
    static std::string accessList(const std::vector<AccessListEntry>& entries)
    {
        std::string list("\2\0\0\0", 4);
        for (const AccessListEntry& entry : entries) {
            for (const std::uint32_t number :
                 {std::uint32_t{entry.permissions} << 16 | entry.tag, entry.id}) {
                for (int shift = 0; shift < 32; shift += 8)
                    list += static_cast<char>(number >> shift & 0xFF);
            }
        }
        return list;
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

TEST_F(FileTrustTest, LinksAreCheckedInEachFolderTheyLeadThrough)
{
    // there/link -> ../between/link -> above/plugins
    for (const char* name : {"there", "between"})
        fs::create_directories(_root / name);
    fs::create_symlink("../above", _root / "between/up");
    fs::create_symlink("../between/up/plugins", _root / "there/link");
    const fs::path path = _root / "there/link/plugin.so";
    EXPECT_TRUE(checkTrust(path));
    for (const char* name : {"there", "between", "above", "above/plugins"}) {
        SCOPED_TRACE(name);
        setMode(_root / name, 0777);
        EXPECT_THAT(english(checkTrust(path).error()),
                    HasSubstr("all users can write to \"" + (_root / name).string() + '"'));
        setMode(_root / name, 0755);
    }
}

TEST_F(FileTrustTest, TwoDotsLeadToTheFolderAboveTheTargetOfALink)
{
    fs::create_directories(_root / "elsewhere");
    fs::create_directory_symlink(_folder, _root / "elsewhere/link");
    const auto found = openTrusted(_root / "elsewhere/link/../plugins/plugin.so");
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->isRegular);
    EXPECT_EQ(fs::read_symlink(found->path()), fs::canonical(_file));
    EXPECT_TRUE(fs::equivalent(found->pathInFolder(), _file));
}

TEST_F(FileTrustTest, LinksInACircleEnd)
{
    fs::create_symlink("circle.so", _folder / "circle.so");
    EXPECT_THAT(english(checkTrust(_folder / "circle.so").error()), HasSubstr("cannot be opened"));
}

TEST_F(FileTrustTest, WhatIsMissingCannotBeOpened)
{
    for (const char* name : {"missing.so", "missing/plugin.so", "plugin.so/missing"}) {
        EXPECT_TRUE(checkTrust(_folder / name)) << name;
        EXPECT_FALSE(openTrusted(_folder / name)) << name;
    }
}

constexpr uid_t nobody = 65534;

/// Needs the administrator's rights: the files belong to other users.
class OwnersTest : public FileTrustTest {
protected:
    void SetUp() override
    {
        FileTrustTest::SetUp();
        if (::geteuid() != 0) GTEST_SKIP() << "needs the administrator's rights";
    }
    static void setOwner(const fs::path& path, uid_t newOwner)
    {
        ASSERT_EQ(::lchown(path.c_str(), newOwner, static_cast<gid_t>(-1)), 0);
    }
    [[nodiscard]] static std::string distrust(const fs::path& path, const TrustedUsers& users)
    {
        const Status trust = checkTrust(path, users);
        return trust ? std::string() : english(trust.error());
    }

    static constexpr uid_t user = 54321;
};

TEST_F(OwnersTest, FilesAndFoldersOfOtherUsersAreNotTrusted)
{
    for (const fs::path& path : {_file, _folder, _root / "above"}) {
        SCOPED_TRACE(path);
        setOwner(path, nobody);
        EXPECT_THAT(distrust(_file, {user}),
                    HasSubstr('"' + path.string() + "\" belongs to another user"));
        setOwner(path, user);
        EXPECT_EQ(distrust(_file, {user}), "");
    }
}

TEST_F(OwnersTest, LinksOfOtherUsersInAStickyFolderAreNotTrusted)
{
    setMode(_root, 01777);
    fs::create_symlink("above", _root / "link");
    EXPECT_EQ(distrust(_root / "link/plugins/plugin.so", {user}), "");
    setOwner(_root / "link", nobody);
    EXPECT_THAT(distrust(_root / "link/plugins/plugin.so", {user}),
                HasSubstr("link\" belongs to another user"));
}

TEST_F(OwnersTest, TheOwnerOfTheProgramIsTrustedBelowItsPrefixAlone)
{
    for (const fs::path& path : {_file, _folder, _root / "above"})
        setOwner(path, nobody);
    const std::string root = fs::canonical(_root).string();
    EXPECT_EQ(distrust(_file, {user, root + "/above", nobody, ""}), "");
    EXPECT_EQ(distrust(_file, {user, root, nobody, ""}), "");
    for (const char* prefix : {"", "/abov", "/above/plugins/plugin.so/x", "/other"}) {
        EXPECT_NE(distrust(_file, {user, root + "/other" + prefix, nobody, ""}), "") << prefix;
    }
}

TEST_F(OwnersTest, FoldersAboveTheProgramAndTheHomeFolderMayBelongToAnyone)
{
    setOwner(_root / "above", nobody);
    const std::string folder = fs::canonical(_folder).string();
    EXPECT_NE(distrust(_file, {user}), "");
    EXPECT_EQ(distrust(_file, {user, folder, user, ""}), "");
    EXPECT_EQ(distrust(_file, {user, "", {}, folder}), "");
    setOwner(_folder, nobody);
    EXPECT_NE(distrust(_file, {user, "", {}, folder}), "") << "the home folder itself";
}

TEST_F(OwnersTest, AGroupIsTrustedIfTheAdministratorHasChosenIt)
{
    constexpr gid_t group = 65534;
    ASSERT_EQ(::chown(_folder.c_str(), user, group), 0);
    EXPECT_EQ(distrust(_folder, {user}), "");
    setMode(_folder, 0775);
    EXPECT_THAT(distrust(_folder, {user}), HasSubstr("a group can write to"));
    setOwner(_folder, 0);
    EXPECT_EQ(distrust(_folder, {user}), "");
}

TEST_F(FileTrustTest, AccessListsThatLetOthersWriteAreNotTrusted)
{
    for (const fs::path& path : {_file, _folder, _root / "above"}) {
        SCOPED_TRACE(path);
        struct stat before {};
        ASSERT_EQ(::stat(path.c_str(), &before), 0);
        for (const auto& [tag, message] :
             {std::pair{0x02, "another user can write to"}, {0x08, "a group can write to"}}) {
            std::vector<AccessListEntry> entries{{0x01, 7, -1U},
                                                 {0x04, 5, -1U},
                                                 {0x10, 7, -1U},
                                                 {0x20, 5, -1U},
                                                 {static_cast<std::uint16_t>(tag), 7, nobody}};
            std::ranges::sort(entries, {}, &AccessListEntry::tag);
            const std::string list = accessList(entries);
            if (::setxattr(path.c_str(), listAttribute, list.data(), list.size(), 0) != 0) {
                ASSERT_EQ(errno, EOPNOTSUPP);
                GTEST_SKIP() << "the file system has no access-control lists";
            }
            EXPECT_THAT(english(checkTrust(_file).error()),
                        HasSubstr(message + (" \"" + path.string()) + '"'));
            EXPECT_THAT(english(checkTrust(_file).error()), HasSubstr("setfacl -b"));
            ASSERT_EQ(::removexattr(path.c_str(), listAttribute), 0);
            setMode(path, before.st_mode);
            EXPECT_TRUE(checkTrust(_file));
        }
    }
}

TEST_F(FileTrustTest, PluginsWithResourcesThatOthersCanWriteAreNotLoaded)
{
    fs::remove(_file);
    fs::copy_file(fs::path(VANTOREL_TEST_PLUGINS) / "good-plugin.so", _file);
    const fs::path resources = _folder / "plugin.resources";
    fs::create_directory(resources);
    std::ofstream(resources / "icon") << "a picture";
    setMode(resources, 0755);
    const auto search = loadPlugins({_folder}, {});
    ASSERT_EQ(search.plugins.size(), 1U);
    EXPECT_EQ(search.plugins.front().bundle().resource("icon"), "a picture");

    setMode(resources / "icon", 0666);
    EXPECT_EQ(search.plugins.front().bundle().resource("icon"), std::nullopt);
    EXPECT_EQ(search.plugins.front().bundle().pathOfResource("icon"), std::nullopt);

    setMode(resources, 0777);
    const auto refused = loadPlugins({_folder}, {});
    EXPECT_TRUE(refused.plugins.empty());
    ASSERT_EQ(refused.problems.size(), 1U);
    EXPECT_THAT(english(refused.problems.front()),
                HasSubstr("plugin.so is left out: all users can write to \"" + resources.string()));
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
