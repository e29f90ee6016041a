#include "plugins/PluginLoader.h"

#include "testing/headless/HeadlessColorPanel.h"
#include "testing/headless/HeadlessDesktop.h"
#include "testing/headless/MemoryFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "ScratchFolder.h"

namespace vantorel {
namespace {

using testing::HasSubstr;

const std::string plugins = VANTOREL_TEST_PLUGINS;

TEST(PluginLoaderTest, ACompatiblePluginIsLoaded)
{
    const auto search = loadPlugins({}, {plugins + "/good-plugin.so"});
    EXPECT_TRUE(search.problems.empty());
    ASSERT_EQ(search.plugins.size(), 1U);
    EXPECT_STREQ(search.plugins.front().plugin().identifier, "good-plugin");
}

TEST(PluginLoaderTest, APickerIsCreatedOrTheReasonIsReported)
{
    HeadlessDesktop desktop{{std::make_unique<MemoryFiles>(), 0.6, {}}};
    HeadlessColorPanel panel{desktop, {200, 400, 260, 340}, HostColor::whiteColor()};
    const auto search =
        loadPlugins({}, {plugins + "/good-plugin.so", plugins + "/throwing-plugin.so",
                         plugins + "/empty-plugin.so"});
    ASSERT_EQ(search.plugins.size(), 3U);
    const auto picker = search.plugins[0].makePicker(panel);
    ASSERT_TRUE(picker);
    EXPECT_EQ((*picker)->buttonToolTip(), u"Test");
    const auto throwing = search.plugins[1].makePicker(panel);
    ASSERT_FALSE(throwing);
    EXPECT_EQ(english(throwing.error()), "it failed to create its page: on purpose");
    const auto empty = search.plugins[2].makePicker(panel);
    ASSERT_FALSE(empty);
    EXPECT_EQ(english(empty.error()), "it did not create a page");
}

TEST(PluginLoaderTest, APluginOfAnotherABIIsNotCalled)
{
    const auto search = loadPlugins({}, {plugins + "/other-abi-plugin.so"});
    EXPECT_TRUE(search.plugins.empty());
    ASSERT_EQ(search.problems.size(), 1U);
    EXPECT_THAT(english(search.problems.front()), HasSubstr("other-abi-plugin.so"));
    EXPECT_THAT(english(search.problems.front()),
                HasSubstr("version " + std::to_string(hostPluginABI + 1)));
}

TEST(PluginLoaderTest, FilesThatAreNotPluginsAreSkippedWithTheirNameAndAReason)
{
    const ScratchFolder folder;
    const std::string text = folder.pathOf("text.so");
    std::ofstream(text) << "not a library";
    const auto search = loadPlugins({folder.path().string()}, {"/missing/file.so", "libm.so.6"});
    EXPECT_TRUE(search.plugins.empty());
    ASSERT_EQ(search.problems.size(), 3U);
    EXPECT_THAT(english(search.problems[0]), HasSubstr("text.so is left out: "));
    EXPECT_THAT(english(search.problems[1]), HasSubstr("/missing/file.so is left out: "));
}

TEST(PluginLoaderTest, ALibraryThatWasNotCopiedWholeIsSkipped)
{
    const ScratchFolder folder;
    const std::string file = folder.pathOf("part.so");
    std::filesystem::copy_file(plugins + "/good-plugin.so", file);
    const auto whole = std::filesystem::file_size(file);
    for (const auto length : {whole / 8, whole / 2, whole - 1}) {
        // Opening it would end the process.
        std::filesystem::resize_file(file, length);
        const auto search = loadPlugins({}, {file});
        EXPECT_TRUE(search.plugins.empty());
        ASSERT_EQ(search.problems.size(), 1U);
        EXPECT_EQ(english(search.problems.front()),
                  file + " is left out: a part of it is missing; install it again");
    }
}

TEST(PluginLoaderTest, ALibraryWithoutTheSymbolsIsNotAPlugin)
{
    std::string libm;
    for (const auto& folder :
         {"/lib/x86_64-linux-gnu", "/lib64", "/usr/lib", "/lib/aarch64-linux-gnu"}) {
        const auto path = std::filesystem::path(folder) / "libm.so.6";
        if (std::filesystem::exists(path)) libm = path.string();
    }
    ASSERT_FALSE(libm.empty());
    const auto search = loadPlugins({}, {libm});
    ASSERT_EQ(search.problems.size(), 1U);
    EXPECT_THAT(english(search.problems.front()), HasSubstr("not a picker plug-in"));
}

TEST(PluginLoaderTest, TheFirstOfTwoIdenticalPluginsIsUsed)
{
    const ScratchFolder folder;
    const std::string copy = folder.pathOf("copy.so");
    std::filesystem::copy_file(plugins + "/good-plugin.so", copy);
    const auto search = loadPlugins({}, {plugins + "/good-plugin.so", copy});
    ASSERT_EQ(search.plugins.size(), 1U);
    EXPECT_EQ(search.plugins.front().file(), plugins + "/good-plugin.so");
    ASSERT_EQ(search.problems.size(), 1U);
    EXPECT_THAT(english(search.problems.front()), HasSubstr("was loaded first"));
}

TEST(PluginLoaderTest, ResourcesAreInTheFolderBesideTheLibrary)
{
    const auto search = loadPlugins({}, {VANTOREL_PICKERS "/QTXHexColorPicker.so"});
    ASSERT_EQ(search.plugins.size(), 1U);
    const HostBundle& bundle = search.plugins.front().bundle();
    EXPECT_TRUE(bundle.resource("QTXHexPick").has_value());
    EXPECT_FALSE(bundle.resource("missing").has_value());
    EXPECT_FALSE(bundle.resource("../QTXHexColorPicker.so").has_value());
    EXPECT_FALSE(bundle.resource("").has_value());
    EXPECT_EQ(bundle.pathOfResource("QTXHexPick"),
              VANTOREL_PICKERS "/QTXHexColorPicker.resources/QTXHexPick");
    for (const char* name : {"missing", "../QTXHexColorPicker.so", "..", ""}) {
        EXPECT_FALSE(bundle.pathOfResource(name).has_value()) << name;
    }
}

TEST(PluginLoaderTest, OurOwnFolderIsSearchedBeforeTheUsers)
{
    EXPECT_EQ(pluginFolders("/opt/x/bin", "/home/u/.local/share"),
              (std::vector<std::string>{"/opt/x/lib/vantorel/pickers",
                                        "/home/u/.local/share/Vantorel/Plugins"}));
    EXPECT_EQ(pluginFolders("/opt/x/bin", "").size(), 1U);
}

TEST(PluginLoaderTest, ARelativePathInARemovedFolderIsReported)
{
    const auto usual = std::filesystem::current_path();
    {
        const ScratchFolder removed;
        std::filesystem::current_path(removed.path());
    }
    const PluginSearch search = loadPlugins({}, {"relative.so"});
    std::filesystem::current_path(usual);
    ASSERT_EQ(search.problems.size(), 1U);
    EXPECT_THAT(english(search.problems.front()), HasSubstr("relative.so"));
}

}  // namespace
}  // namespace vantorel
