#include "hosts/posix/FolderLock.h"

#include "ScratchFolder.h"
#include "hosts/posix/PosixFiles.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <thread>

namespace vantorel {
namespace {

constexpr std::chrono::milliseconds briefly{20};

class FolderLockTest : public testing::Test {
protected:
    [[nodiscard]] std::string file() const { return _folder + "/.vantorel-lock"; }
    [[nodiscard]] bool isThere() const
    {
        return std::filesystem::exists(std::filesystem::symlink_status(file()));
    }
    /// Whether another process would get the lock. Locks of two open files exclude each other
    /// within a process, too.
    [[nodiscard]] bool isFree() const { return FolderLock::take(_folder, briefly).lock != nullptr; }

    ScratchFolder _scratch;
    std::string _folder = _scratch.path();
};

TEST_F(FolderLockTest, IsHeldUntilItIsDestroyedAndLeavesNothing)
{
    auto taken = FolderLock::take(_folder);
    EXPECT_TRUE(isThere());
    const auto second = FolderLock::take(_folder, briefly);
    EXPECT_EQ(second.lock, nullptr);
    EXPECT_EQ(second.error, ETIMEDOUT);
    taken.lock.reset();
    EXPECT_FALSE(isThere());
    EXPECT_TRUE(isFree());
}

TEST_F(FolderLockTest, IsWaitedFor)
{
    auto taken = FolderLock::take(_folder);
    std::thread other([&] {
        std::this_thread::sleep_for(briefly);
        taken.lock.reset();
    });
    EXPECT_NE(FolderLock::take(_folder).lock, nullptr);
    other.join();
}

TEST_F(FolderLockTest, AFileThatAKilledProcessLeftIsUsed)
{
    ::close(::open(file().c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600));
    EXPECT_TRUE(isFree());
    EXPECT_FALSE(isThere());
}

TEST_F(FolderLockTest, ALockWhoseFileWasRemovedIsNotTheLock)
{
    const auto taken = FolderLock::take(_folder);
    std::filesystem::remove(file());
    const auto second = FolderLock::take(_folder, briefly);
    EXPECT_NE(second.lock, nullptr) << "whoever removes files of others knows best";
    EXPECT_TRUE(isThere());
}

TEST_F(FolderLockTest, EveryoneWhoCanWriteToTheFolderCanTakeIt)
{
    for (const mode_t mode : {0700U, 0770U, 0775U, 0777U}) {
        ASSERT_EQ(::chmod(_folder.c_str(), mode), 0);
        const auto taken = FolderLock::take(_folder);
        struct stat status {};
        ASSERT_EQ(::stat(file().c_str(), &status), 0);
        const mode_t writers = mode & 0222;
        EXPECT_EQ(status.st_mode & 0777, writers | writers << 1) << std::oct << mode;
    }
}

TEST_F(FolderLockTest, WhereNothingCanBeLockedNobodyIsKeptOut)
{
    const auto expectNoLock = [](const std::string& folder) {
        const auto one = FolderLock::take(folder, briefly);
        const auto two = FolderLock::take(folder, briefly);
        EXPECT_TRUE(one.lock != nullptr && two.lock != nullptr) << folder;
    };
    expectNoLock(_folder + "/missing");
    std::filesystem::create_directory(file());
    expectNoLock(_folder);
    std::filesystem::remove(file());
    ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
    expectNoLock(_folder);
    std::filesystem::remove(file());
    std::filesystem::create_symlink("/dev/null", file());
    expectNoLock(_folder);
}

TEST_F(FolderLockTest, AProgramMayLockAgainWhatItHasLocked)
{
    PosixFiles files(_folder);
    auto outer = files.lockFolder(_folder);
    EXPECT_NE(files.lockFolder(_folder), nullptr);
    EXPECT_FALSE(isFree());
    outer.reset();
    EXPECT_TRUE(isFree());
}

}  // namespace
}  // namespace vantorel
