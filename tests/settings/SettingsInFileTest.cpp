#include "settings/SettingsInFile.h"

#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

const std::string settingsFolder = "/home/user/.local/share/Vantorel";

TEST(SettingsInFileTest, TheSettingsAreThoseOfTheFile)
{
    MemoryFiles files;
    SettingsInFile settings(files);
    EXPECT_EQ(settings.current().hexColorList(), u"CSS Keyword") << "the defaults without a file";
    EXPECT_TRUE(settings.current().usePoundSign());
    EXPECT_FALSE(settings.current().codeSnippets().empty());

    files.createDirectory(settingsFolder);
    files.writeAtomically(settingsFolder + "/Settings.plist",
                          "{UsePoundSign = NO; HexColorLlst = Mine; EntryForm = Lowercase;}");
    EXPECT_EQ(settings.current().hexColorList(), u"Mine");
    EXPECT_FALSE(settings.current().usePoundSign());
    EXPECT_EQ(settings.current().entryForm(), EntryForm::lowercase);

    files.writeAtomically(settingsFolder + "/Settings.plist", "{UsePoundSign = NO;}");
    EXPECT_EQ(settings.current().entryForm(), EntryForm::uppercase)
        << "what is missing has its default again";
    files.remove(settingsFolder + "/Settings.plist");
    EXPECT_TRUE(settings.current().usePoundSign());
}

TEST(SettingsInFileTest, AFileThatIsNotReadableCountsAsTheDefaults)
{
    MemoryFiles files;
    files.createDirectory(settingsFolder);
    files.writeAtomically(settingsFolder + "/Settings.plist", "{UsePoundSign = ");
    SettingsInFile settings(files);
    EXPECT_TRUE(settings.current().usePoundSign());
    MemoryFiles none(std::nullopt);
    SettingsInFile homeless(none);
    EXPECT_EQ(homeless.current().hexColorList(), u"CSS Keyword");
}

}  // namespace
}  // namespace vantorel
