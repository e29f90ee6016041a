#include "ScopedEnvironment.h"
#include "colorlists/PaletteFile.h"
#include "colorlists/PaletteFileStore.h"
#include "hosts/posix/PosixFiles.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

struct Row {
    long red, green, blue;
    bool operator==(const Row&) const = default;
};

/// The rows of a palette by the simplest possible rule: lines that begin with three numbers.
std::vector<Row> rowsOf(const std::string& text)
{
    std::vector<Row> rows;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        Row row{};
        std::istringstream fields(line);
        if (fields >> row.red >> row.green >> row.blue) rows.push_back(row);
    }
    return rows;
}

std::vector<Row> rowsOf(const HostColorList& list)
{
    std::vector<Row> rows;
    const auto byte = [](double channel) { return std::lround(channel * 255); };
    for (std::size_t i = 0; i < list.allKeys().size(); ++i) {
        const auto rgb = list.colorAtIndex(i).calibratedRGB();
        if (rgb) rows.push_back({byte(rgb->red), byte(rgb->green), byte(rgb->blue)});
    }
    return rows;
}

/// The palettes installed by the machine's packages, wherever their programs look for them.
std::vector<fs::path> installedPalettes(const HostBaseDirectories& directories)
{
    std::vector<fs::path> roots;
    for (const std::string& data : directories.dataDirectories) {
        for (const char* folder :
             {"gimp", "inkscape/palettes", "krita/palettes", "create/swatches"})
            roots.emplace_back(data + "/" + folder);
    }
    for (const std::string& config : directories.configDirectories)
        roots.emplace_back(config + "/colors");
    std::vector<fs::path> files;
    for (const fs::path& root : roots) {
        std::error_code error;
        for (const auto& entry : fs::recursive_directory_iterator(root, error)) {
            std::string head(64, '\0');
            std::ifstream(entry.path(), std::ios::binary).read(head.data(), 64);
            if (entry.is_regular_file() && head.find(" Palette") < head.find('\n'))
                files.push_back(entry.path());
        }
    }
    return files;
}

std::string contents(const fs::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

TEST(InstalledPalettesTest, EveryPaletteIsListedWithAllItsColours)
{
    // The machine's palettes, not the user's.
    std::string user = (fs::temp_directory_path() / "vantorel-test-XXXXXX").string();
    ASSERT_NE(::mkdtemp(user.data()), nullptr);
    ScopedEnvironment environment;
    environment.set("XDG_CONFIG_HOME", user);
    environment.set("XDG_DATA_HOME", user);
    PosixFiles files;
    fs::remove(user);
    const std::vector<fs::path> palettes = installedPalettes(files.baseDirectories());
    if (palettes.empty()) GTEST_SKIP() << "no program with palettes is installed here";

    std::vector<std::u16string> log;
    PaletteFileStore store(files, [&](const std::u16string& line) { log.push_back(line); });
    std::vector<std::shared_ptr<HostColorList>> lists;
    for (const std::u16string& name : store.availableColorLists()) {
        lists.push_back(store.colorListNamed(name));
        ASSERT_NE(lists.back(), nullptr) << utf8FromUtf16(name);
        EXPECT_EQ(lists.back()->name(), name);
    }
    std::size_t colorCount = 0;
    for (const fs::path& path : palettes) {
        const std::string text = contents(path);
        const std::vector<Row> rows = rowsOf(text);
        auto name = paletteName(text, PaletteFolder::fallbackListName(path.filename().string()));
        ASSERT_TRUE(name.has_value()) << path;
        while (name->ends_with(u' ') || name->ends_with(u'\t'))
            name->pop_back();
        EXPECT_TRUE(std::any_of(lists.begin(), lists.end(),
                                [&](const auto& list) {
                                    return list->name().starts_with(*name) && rowsOf(*list) == rows;
                                }))
            << path << " with " << rows.size() << " colours";
        colorCount += rows.size();
    }
    for (const std::u16string& line : log)
        ADD_FAILURE() << utf8FromUtf16(line);
    std::cout << palettes.size() << " palettes with " << colorCount << " colours, shown as "
              << lists.size() << " lists\n";
    EXPECT_LE(lists.size(), palettes.size());
    fs::remove(user);
}

}  // namespace
}  // namespace vantorel
