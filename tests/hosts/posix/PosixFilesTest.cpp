#include "hosts/posix/PosixFiles.h"

#include "ScopedEnvironment.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

class PosixFilesTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::string path = (fs::temp_directory_path() / "vantorel-test-XXXXXX").string();
        ASSERT_NE(::mkdtemp(path.data()), nullptr);
        _folder = path;
    }
    void TearDown() override { fs::remove_all(_folder); }

    [[nodiscard]] std::string inFolder(const std::string& name) const
    {
        return _folder + "/" + name;
    }

    static unsigned permissions(const std::string& path)
    {
        struct stat status {};
        ::stat(path.c_str(), &status);
        return status.st_mode & 07777;
    }

    std::string _folder;
    PosixFiles _files{"/nowhere"};
};

TEST_F(PosixFilesTest, WritesAWholeFileThatOnlyTheUserCanRead)
{
    const std::string bytes("a\0b", 3);
    EXPECT_TRUE(_files.writeAtomically(inFolder("file"), bytes));
    EXPECT_EQ(_files.contentsAtPath(inFolder("file")), bytes);
    EXPECT_EQ(permissions(inFolder("file")), 0600U);
    EXPECT_EQ(_files.contentsOfDirectory(_folder), std::vector<std::string>{"file"});
}

TEST_F(PosixFilesTest, ReplacingAFileKeepsItsPermissions)
{
    _files.writeAtomically(inFolder("file"), "old");
    ::chmod(inFolder("file").c_str(), 0644);
    EXPECT_TRUE(_files.writeAtomically(inFolder("file"), "new"));
    EXPECT_EQ(permissions(inFolder("file")), 0644U);
    EXPECT_EQ(_files.contentsAtPath(inFolder("file")), "new");
}

TEST_F(PosixFilesTest, ALinkIsFollowedAndKept)
{
    fs::create_directory(inFolder("elsewhere"));
    fs::create_symlink("elsewhere/target", inFolder("link"));
    EXPECT_TRUE(_files.writeAtomically(inFolder("link"), "text"));
    EXPECT_TRUE(fs::is_symlink(inFolder("link")));
    EXPECT_EQ(_files.contentsAtPath(inFolder("elsewhere/target")), "text");
}

TEST_F(PosixFilesTest, AFailedWriteLeavesNoFile)
{
    fs::create_directory(inFolder("place"));
    EXPECT_FALSE(_files.writeAtomically(inFolder("place"), "text"));
    EXPECT_FALSE(_files.writeAtomically(inFolder("missing/file"), "text"));
    EXPECT_EQ(_files.contentsOfDirectory(_folder), std::vector<std::string>{"place"});
}

TEST_F(PosixFilesTest, AFullDiskLeavesTheOldContents)
{
    ASSERT_TRUE(_files.writeAtomically(inFolder("file"), "old"));
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    rlimit small = before;
    small.rlim_cur = 4096;
    ::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    const bool written = _files.writeAtomically(inFolder("file"), std::string(100000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_FALSE(written);
    EXPECT_EQ(_files.contentsAtPath(inFolder("file")), "old");
    EXPECT_EQ(_files.contentsOfDirectory(_folder), std::vector<std::string>{"file"});
}

TEST_F(PosixFilesTest, CircularLinksAreNotReplaced)
{
    fs::create_symlink("b", inFolder("a"));
    fs::create_symlink("a", inFolder("b"));
    EXPECT_FALSE(_files.writeAtomically(inFolder("a"), "text"));
    EXPECT_TRUE(fs::is_symlink(inFolder("a")));
    EXPECT_EQ(_files.kindAtPath(inFolder("a")), HostFileKind::none);
    EXPECT_EQ(_files.contentsOfDirectory(_folder), (std::vector<std::string>{"a", "b"}));
}

TEST_F(PosixFilesTest, TheHeadOfAFileIsRead)
{
    const std::string path = inFolder("file");
    _files.writeAtomically(path, "0123456789");
    const auto head = _files.headAtPath(path, 4);
    ASSERT_TRUE(head);
    EXPECT_EQ(head->bytes, "0123");
    EXPECT_FALSE(head->isWholeFile);
    EXPECT_EQ(head->version, _files.versionAtPath(path));
    EXPECT_EQ(head->identity, _files.identityAtPath(path));
    const auto whole = _files.headAtPath(path, 100);
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->bytes, "0123456789");
    EXPECT_TRUE(whole->isWholeFile);
    EXPECT_FALSE(_files.headAtPath(inFolder("none"), 100));
    EXPECT_FALSE(_files.headAtPath(_folder, 100));
}

TEST_F(PosixFilesTest, AFileIsReadWholeUpToTheSizeLimit)
{
    std::ofstream(inFolder("file")) << "x";
    std::error_code error;
    fs::resize_file(inFolder("file"), PosixFiles::largestFile, error);
    if (error) GTEST_SKIP() << "no sparse files here: " << error.message();
    const auto bytes = _files.contentsAtPath(inFolder("file"));
    ASSERT_TRUE(bytes.has_value());
    EXPECT_EQ(bytes->size(), PosixFiles::largestFile);
    fs::resize_file(inFolder("file"), PosixFiles::largestFile + 1);
    EXPECT_EQ(_files.contentsAtPath(inFolder("file")), std::nullopt);
}

TEST_F(PosixFilesTest, APipeDoesNotBlock)
{
    ASSERT_EQ(::mkfifo(inFolder("pipe").c_str(), 0600), 0);
    EXPECT_EQ(_files.contentsAtPath(inFolder("pipe")), std::nullopt);
    EXPECT_EQ(_files.contentsAtPath(_folder), std::nullopt);
    EXPECT_EQ(_files.contentsAtPath(inFolder("missing")), std::nullopt);
}

TEST_F(PosixFilesTest, TheVersionChangesWithTheFileAndItsFolder)
{
    EXPECT_EQ(_files.versionAtPath(inFolder("file")), 0U);
    const auto empty = _files.versionAtPath(_folder);
    _files.writeAtomically(inFolder("file"), "a");
    const auto first = _files.versionAtPath(inFolder("file"));
    _files.writeAtomically(inFolder("file"), "b");
    EXPECT_NE(_files.versionAtPath(inFolder("file")), first);
    EXPECT_NE(_files.versionAtPath(_folder), empty);

    // Another file of the same age and size.
    const auto second = _files.versionAtPath(inFolder("file"));
    std::ofstream(inFolder("other")) << "c";
    fs::last_write_time(inFolder("other"), fs::last_write_time(inFolder("file")));
    fs::rename(inFolder("other"), inFolder("file"));
    EXPECT_NE(_files.versionAtPath(inFolder("file")), second);
}

TEST_F(PosixFilesTest, TheIdentityIsThatOfTheLinkTarget)
{
    _files.writeAtomically(inFolder("file"), "a");
    _files.writeAtomically(inFolder("equal"), "a");
    fs::create_symlink("file", inFolder("symbolic"));
    fs::create_hard_link(inFolder("file"), inFolder("hard"));
    fs::create_symlink("nowhere", inFolder("dangling"));
    fs::create_directory_symlink(".", inFolder("here"));
    const std::string identity = _files.identityAtPath(inFolder("file"));
    EXPECT_FALSE(identity.empty());
    for (const char* same : {"symbolic", "hard", "here/file", "here/here/hard"}) {
        EXPECT_EQ(_files.identityAtPath(inFolder(same)), identity) << same;
    }
    EXPECT_NE(_files.identityAtPath(inFolder("equal")), identity);
    EXPECT_EQ(_files.identityAtPath(inFolder("here")), _files.identityAtPath(_folder));
    EXPECT_EQ(_files.identityAtPath(inFolder("dangling")), "");
    EXPECT_EQ(_files.identityAtPath(inFolder("missing")), "");
}

TEST_F(PosixFilesTest, FoldersAreCreatedOneAtATime)
{
    EXPECT_FALSE(_files.createDirectory(inFolder("a/b")));
    EXPECT_TRUE(_files.createDirectory(inFolder("a")));
    EXPECT_FALSE(_files.createDirectory(inFolder("a")));
    EXPECT_EQ(permissions(inFolder("a")), 0700U);
    EXPECT_EQ(_files.kindAtPath(inFolder("a")), HostFileKind::folder);
}

TEST_F(PosixFilesTest, UserDataFollowsTheBaseDirectories)
{
    ScopedEnvironment environment;
    environment.set("XDG_DATA_HOME", inFolder("data/deep"));
    EXPECT_EQ(PosixFiles().applicationSupportDirectory(), inFolder("data/deep"));
    EXPECT_TRUE(fs::is_directory(inFolder("data/deep")));
    environment.set("XDG_DATA_HOME", "relative");
    environment.set("HOME", inFolder("home"));
    EXPECT_EQ(PosixFiles().applicationSupportDirectory(), inFolder("home/.local/share"));
}

}  // namespace
}  // namespace vantorel
