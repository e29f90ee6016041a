#include "settings/SettingsFile.h"

#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

const std::string folder = "/home/user/.local/share/Vantorel";
const std::string file = folder + "/Settings.plist";

TEST(SettingsFileTest, TheFirstStartCreatesFolderAndFile)
{
    MemoryFiles files;
    QTXHexSettings settings;
    SettingsMerge merge;
    initializeDefaults(files, settings, merge);
    EXPECT_EQ(files.contentsAtPath(file), settingsData(settings));
    EXPECT_TRUE(settings.codeSnippets().empty()) << "a new file is not read back";
}

TEST(SettingsFileTest, WithoutAHomeThereIsNoFileThatCouldBeLost)
{
    MemoryFiles files(std::nullopt);
    QTXHexSettings settings;
    SettingsMerge merge;
    EXPECT_TRUE(initializeDefaults(files, settings, merge));
}

TEST(SettingsFileTest, AnExistingFileIsLoaded)
{
    MemoryFiles files;
    files.createDirectory(folder);
    files.writeAtomically(file, "{ NColorCubeRings = 5; }");
    QTXHexSettings settings;
    SettingsMerge merge;
    initializeDefaults(files, settings, merge);
    EXPECT_EQ(settings.nColorCubeRings(), 5);
    EXPECT_EQ(files.contentsAtPath(file), "{ NColorCubeRings = 5; }");
}

TEST(SettingsFileTest, WhatOthersHaveStoredIsTakenInByKey)
{
    MemoryFiles files;
    QTXHexSettings mine;
    SettingsMerge merge;
    initializeDefaults(files, mine, merge);
    EXPECT_FALSE(takeInDefaults(files, mine, merge)) << "it is the file of this process";

    QTXHexSettings theirs;
    SettingsMerge theirMerge;
    initializeDefaults(files, theirs, theirMerge);
    theirs.setNColorCubeRings(5);
    theirs.setUsePoundSign(!mine.usePoundSign());
    writeDefaults(files, theirs, theirMerge);

    const bool poundSign = mine.usePoundSign();
    mine.setNColorCubeRings(9);
    EXPECT_TRUE(takeInDefaults(files, mine, merge));
    EXPECT_EQ(mine.usePoundSign(), !poundSign);
    EXPECT_EQ(mine.nColorCubeRings(), 9) << "this process has changed it, too";
    EXPECT_FALSE(takeInDefaults(files, mine, merge));
    writeDefaults(files, mine, merge);
    QTXHexSettings stored;
    readDefaults(files, stored);
    EXPECT_EQ(stored.nColorCubeRings(), 9);
    EXPECT_EQ(stored.usePoundSign(), !poundSign);

    files.writeAtomically(file, "damaged {");
    EXPECT_FALSE(takeInDefaults(files, mine, merge));
}

TEST(SettingsFileTest, AFileInPlaceOfTheFolderIsLeftAlone)
{
    MemoryFiles files;
    files.writeAtomically(folder, "in the way");
    QTXHexSettings settings;
    SettingsMerge merge;
    initializeDefaults(files, settings, merge);
    writeDefaults(files, settings, merge);
    EXPECT_EQ(files.contentsAtPath(folder), "in the way");
    EXPECT_EQ(files.contentsAtPath(file), std::nullopt);
}

TEST(SettingsFileTest, WithoutADataFolderNoFileIsWritten)
{
    MemoryFiles files(std::nullopt);
    QTXHexSettings settings;
    SettingsMerge merge;
    EXPECT_EQ(hexColorPickerDefaultsFileName(files), std::nullopt);
    initializeDefaults(files, settings, merge);
    readDefaults(files, settings);
    writeDefaults(files, settings, merge);
    EXPECT_TRUE(files.allPaths().empty());
}

TEST(SettingsFileTest, FailingWritesAreIgnored)
{
    MemoryFiles files;
    files.failWrites(true);
    QTXHexSettings settings;
    SettingsMerge merge;
    initializeDefaults(files, settings, merge);
    EXPECT_EQ(files.contentsAtPath(file), std::nullopt);
}

/// Files whose folder another process has locked, or in which it is quicker.
class SharedFiles final : public MemoryFiles {
public:
    std::shared_ptr<HostFolderLock> lockFolder(const std::string&) override
    {
        ++locks;
        if (!writtenBefore.empty()) writeAtomically(file, writtenBefore);
        return isLocked ? nullptr : std::make_shared<HostFolderLock>();
    }

    int locks = 0;
    bool isLocked = false;
    /// What the other process writes before it unlocks the folder.
    std::string writtenBefore;
};

TEST(SettingsFileTest, AFileWhoseContentsAreNotInTheSettingsIsReported)
{
    const auto isLoaded = [](HostFiles& files) {
        QTXHexSettings settings;
        SettingsMerge merge;
        return initializeDefaults(files, settings, merge);
    };
    SharedFiles files;
    EXPECT_TRUE(isLoaded(files)) << "a new file has the settings";
    EXPECT_EQ(files.locks, 2) << "to see whether there is a file, and to write it";
    EXPECT_TRUE(isLoaded(files));
    EXPECT_EQ(files.locks, 2);
    files.writeAtomically(file, "damaged {");
    EXPECT_FALSE(isLoaded(files));
    files.remove(folder);
    files.writeAtomically(folder, "in the way");
    EXPECT_FALSE(isLoaded(files));
    MemoryFiles none(std::nullopt);
    EXPECT_TRUE(isLoaded(none));
    MemoryFiles failing;
    failing.failWrites(true);
    EXPECT_FALSE(isLoaded(failing)) << "there is no folder";
}

TEST(SettingsFileTest, AFileOfAQuickerProcessIsLoaded)
{
    SharedFiles files;
    files.createDirectory(folder);
    files.writtenBefore = "{ NColorCubeRings = 5; }";
    QTXHexSettings settings;
    SettingsMerge merge;
    EXPECT_TRUE(initializeDefaults(files, settings, merge));
    EXPECT_EQ(settings.nColorCubeRings(), 5);
    EXPECT_EQ(files.contentsAtPath(file), files.writtenBefore);
}

TEST(SettingsFileTest, ALockedFolderGetsNoFile)
{
    SharedFiles files;
    files.createDirectory(folder);
    files.isLocked = true;
    QTXHexSettings settings;
    SettingsMerge merge;
    EXPECT_TRUE(initializeDefaults(files, settings, merge));
    EXPECT_EQ(files.contentsAtPath(file), std::nullopt);
}

TEST(SettingsFileTest, AFileIsKeptBesideTheNewOne)
{
    MemoryFiles files;
    EXPECT_TRUE(keepDefaultsFile(files)) << "there is none";
    EXPECT_EQ(files.contentsAtPath(file + "~"), std::nullopt);
    files.createDirectory(folder);
    files.createDirectory(file);
    EXPECT_TRUE(keepDefaultsFile(files)) << "a folder is not overwritten";
    files.remove(file);
    files.writeAtomically(file, "damaged {");
    EXPECT_TRUE(keepDefaultsFile(files));
    EXPECT_EQ(files.contentsAtPath(file + "~"), "damaged {");
    files.failWrites(true);
    EXPECT_FALSE(keepDefaultsFile(files));
    MemoryFiles none(std::nullopt);
    EXPECT_TRUE(keepDefaultsFile(none));
}

TEST(SettingsFileTest, OnlyADictionaryInUTF8OfABoundedSizeIsRead)
{
    const std::string dictionary = "{ a = \"\u00e9\"; }";
    const std::string padding(largestSettingsFile - dictionary.size(), ' ');
    EXPECT_TRUE(settingsDictionary(dictionary));
    EXPECT_TRUE(settingsDictionary(dictionary + padding));
    EXPECT_FALSE(settingsDictionary(dictionary + padding + " "));
    EXPECT_FALSE(settingsDictionary("{ a = \"\xE9\"; }"));
    EXPECT_FALSE(settingsDictionary("(a)"));
    EXPECT_FALSE(settingsDictionary(""));
}

class DamagedSettingsTest : public testing::TestWithParam<std::string> {};

TEST_P(DamagedSettingsTest, AreReadAsAnEmptyDictionary)
{
    MemoryFiles files;
    files.createDirectory(folder);
    files.writeAtomically(file, GetParam());
    QTXHexSettings settings;
    settings.setNColorCubeRings(11);
    readDefaults(files, settings);
    EXPECT_EQ(settings.nColorCubeRings(), 11);
    EXPECT_EQ(settings.codeSnippets().size(), 12U);
    EXPECT_EQ(settings.codeSnippetName(), u"ObjC fraction");
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedSettingsTest,
                         testing::Values("", "(a, b)", "text", "{ a = ", "\xFF\xFE{}",
                                         std::string(1 << 20, '('),
                                         std::string(largestSettingsFile + 1, ' ') + "{}"));

}  // namespace
}  // namespace vantorel
