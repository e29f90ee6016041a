#include "settings/SettingsFile.h"
#include "testing/headless/MemoryFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <utility>

/// Several processes that write one settings file.
namespace vantorel {
namespace {

using testing::ElementsAre;

/// The settings of one process.
struct SettingsProcess {
    explicit SettingsProcess(HostFiles& usersFiles) : files(usersFiles)
    {
        initializeDefaults(files, settings, merge);
    }
    void write() { writeDefaults(files, settings, merge); }

    HostFiles& files;
    QTXHexSettings settings;
    SettingsMerge merge;
};

/// Files that another process keeps locked for a while.
class ContendedFiles final : public MemoryFiles {
public:
    [[nodiscard]] std::shared_ptr<HostFolderLock> lockFolder(const std::string& folder) override
    {
        if (const auto change = std::exchange(lastChange, {})) change();
        return isReleased ? MemoryFiles::lockFolder(folder) : nullptr;
    }

    /// What the other process does before it releases the lock.
    std::function<void()> lastChange;
    bool isReleased = true;
};

class SettingsMergeTest : public testing::Test {
protected:
    SettingsMergeTest() { SettingsProcess first(_files); }

    [[nodiscard]] QTXHexSettings stored() const
    {
        QTXHexSettings settings;
        readDefaults(_files, settings);
        return settings;
    }

    ContendedFiles _files;
};

TEST_F(SettingsMergeTest, AProcessThatIsAloneWritesItsSettings)
{
    _files.writeAtomically(*hexColorPickerDefaultsFileName(_files),
                           "{ EntryForm = odd; Unknown = 1; }");
    SettingsProcess only(_files);
    only.settings.setNColorCubeRings(7);
    only.write();
    EXPECT_EQ(_files.contentsAtPath(*hexColorPickerDefaultsFileName(_files)),
              settingsData(only.settings));
}

TEST_F(SettingsMergeTest, ChangesOfDifferentKeysAreAllKept)
{
    SettingsProcess one(_files);
    SettingsProcess two(_files);
    one.settings.setNColorCubeRings(7);
    one.write();
    two.settings.setEntryForm(EntryForm::lowercase);
    two.write();
    EXPECT_EQ(stored().nColorCubeRings(), 7);
    EXPECT_EQ(stored().entryForm(), EntryForm::lowercase);
    EXPECT_NE(two.settings.nColorCubeRings(), 7) << "no control changes under the user's hand";
    two.settings.setUsePoundSign(!two.settings.usePoundSign());
    two.write();
    EXPECT_EQ(stored().nColorCubeRings(), 7) << "nor is it lost with the next change";
}

TEST_F(SettingsMergeTest, TheLastChangeOfAKeyWins)
{
    SettingsProcess one(_files);
    SettingsProcess two(_files);
    one.settings.setNColorCubeRings(7);
    one.write();
    two.settings.setNColorCubeRings(9);
    two.write();
    EXPECT_EQ(stored().nColorCubeRings(), 9);
    one.settings.setNColorCubeRings(8);
    one.write();
    EXPECT_EQ(stored().nColorCubeRings(), 8);
}

TEST_F(SettingsMergeTest, AddedAndRemovedListsDoNotExcludeEachOther)
{
    SettingsProcess start(_files);
    start.settings.activeColorLists() = {u"A", u"B"};
    start.write();
    SettingsProcess one(_files);
    SettingsProcess two(_files);
    one.settings.activeColorLists() = {u"A", u"B", u"One"};
    one.write();
    two.settings.activeColorLists() = {u"B", u"Two"};
    two.write();
    EXPECT_THAT(stored().activeColorLists(), ElementsAre(u"B", u"One", u"Two"));
    two.settings.activeColorLists() = {u"B", u"Two", u"Three"};
    two.write();
    EXPECT_THAT(stored().activeColorLists(), ElementsAre(u"B", u"One", u"Two", u"Three"));
}

TEST_F(SettingsMergeTest, SomeListStaysActive)
{
    SettingsProcess start(_files);
    start.settings.activeColorLists() = {u"A", u"B"};
    start.write();
    SettingsProcess one(_files);
    SettingsProcess two(_files);
    one.settings.activeColorLists() = {u"A"};
    one.write();
    two.settings.activeColorLists() = {u"B"};
    two.write();
    EXPECT_THAT(stored().activeColorLists(), ElementsAre(u"B"));
}

TEST_F(SettingsMergeTest, AnUnknownKeyOfAnotherProcessIsLeftOut)
{
    SettingsProcess one(_files);
    const std::string path = *hexColorPickerDefaultsFileName(_files);
    _files.writeAtomically(path, "{ Unknown = 1; }");
    one.settings.setEntryForm(EntryForm::lowercase);
    one.write();
    EXPECT_EQ(_files.contentsAtPath(path), settingsData(stored()));
    EXPECT_EQ(_files.contentsAtPath(path)->find("Unknown"), std::string::npos);
}

TEST_F(SettingsMergeTest, WhatIsWrittenBeforeTheLockIsReleasedIsKept)
{
    SettingsProcess one(_files);
    SettingsProcess two(_files);
    _files.lastChange = [&two] {
        two.settings.setNColorCubeRings(7);
        two.write();
    };
    one.settings.setEntryForm(EntryForm::lowercase);
    one.write();
    EXPECT_EQ(stored().nColorCubeRings(), 7);
    EXPECT_EQ(stored().entryForm(), EntryForm::lowercase);
}

TEST_F(SettingsMergeTest, NothingIsWrittenWithoutTheLock)
{
    SettingsProcess one(_files);
    _files.isReleased = false;
    one.settings.setNColorCubeRings(7);
    one.write();
    EXPECT_NE(stored().nColorCubeRings(), 7);
    _files.isReleased = true;
    one.write();
    EXPECT_EQ(stored().nColorCubeRings(), 7);
}

TEST_F(SettingsMergeTest, ADamagedOrRemovedFileIsReplaced)
{
    const std::string path = *hexColorPickerDefaultsFileName(_files);
    for (const char* damaged : {"{", "", "(a)", "\xFF"}) {
        SettingsProcess one(_files);
        _files.writeAtomically(path, damaged);
        one.settings.setNColorCubeRings(7);
        one.write();
        EXPECT_EQ(_files.contentsAtPath(path), settingsData(one.settings)) << damaged;
    }
    SettingsProcess one(_files);
    _files.remove(path);
    one.write();
    EXPECT_EQ(_files.contentsAtPath(path), settingsData(one.settings));
}

}  // namespace
}  // namespace vantorel
