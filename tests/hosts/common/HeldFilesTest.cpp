#include "hosts/common/HeldFiles.h"

#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

const std::string folder = "/home/user/.local/share/Vantorel";
const std::string file = folder + "/Settings.plist";

class HeldFilesTest : public testing::Test {
protected:
    void lookAtThePage()
    {
        const HeldFiles::Hold hold(_files);
        EXPECT_TRUE(_files.createDirectory(folder));
        EXPECT_TRUE(_files.writeAtomically(file, "first"));
        EXPECT_EQ(_files.createAtomically(folder + "/List", "list"), HostFileCreation::made);
    }

    MemoryFiles _disk;
    std::vector<std::string> _before = _disk.allPaths();
    HeldFiles _files{_disk};
};

TEST_F(HeldFilesTest, WhatIsHeldCanBeReadAndIsNotOnTheDisk)
{
    lookAtThePage();
    EXPECT_EQ(_disk.allPaths(), _before);
    EXPECT_EQ(_files.kindAtPath(folder), HostFileKind::folder);
    EXPECT_EQ(_files.kindAtPath(file), HostFileKind::file);
    EXPECT_EQ(_files.contentsAtPath(file), "first");
    EXPECT_EQ(_files.contentsOfDirectory(folder),
              (std::vector<std::string>{"List", "Settings.plist"}));
    EXPECT_NE(_files.versionAtPath(file), 0U);
    EXPECT_NE(_files.identityAtPath(file), _files.identityAtPath(folder));
    EXPECT_EQ(_files.createAtomically(file, ""), HostFileCreation::pathIsTaken);
}

TEST_F(HeldFilesTest, TheFirstChangeOfTheUserWritesAll)
{
    lookAtThePage();
    EXPECT_TRUE(_files.writeAtomically(file, "changed"));
    EXPECT_EQ(_disk.contentsAtPath(file), "changed");
    EXPECT_EQ(_disk.contentsAtPath(folder + "/List"), "list");
}

TEST_F(HeldFilesTest, WhatOthersHaveWrittenMeanwhileIsKept)
{
    lookAtThePage();
    _disk.createDirectory(folder);
    _disk.writeAtomically(file, "theirs");
    EXPECT_EQ(_files.contentsAtPath(file), "theirs");
    EXPECT_NE(_files.lockFolder(folder), nullptr);
    EXPECT_EQ(_disk.contentsAtPath(file), "theirs");
    EXPECT_EQ(_disk.contentsAtPath(folder + "/List"), "list");
}

TEST_F(HeldFilesTest, ExistingFilesAreWrittenDuringAHold)
{
    _disk.createDirectory(folder);
    _disk.writeAtomically(file, "old");
    const HeldFiles::Hold hold(_files);
    EXPECT_TRUE(_files.writeForOthers(file, "new"));
    EXPECT_TRUE(_files.writeForOthers(folder + "/Other", "held"));
    EXPECT_EQ(_disk.contentsAtPath(file), "new");
    EXPECT_EQ(_disk.contentsAtPath(folder + "/Other"), std::nullopt);
}

TEST_F(HeldFilesTest, AFileNeedsItsFolder)
{
    const HeldFiles::Hold hold(_files);
    EXPECT_FALSE(_files.writeAtomically(file, "first"));
    EXPECT_EQ(_files.createAtomically(file, "first"), HostFileCreation::failed);
}

}  // namespace
}  // namespace vantorel
