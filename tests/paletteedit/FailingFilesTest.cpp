#include "FailingFiles.h"

#include "EntryTexts.h"
#include "colorlists/PaletteFile.h"
#include "paletteedit/PaletteEditor.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

/// Makes each of the editor's file operations fail once; a list must be either the old or the new
/// one.
namespace vantorel {
namespace {

constexpr const char* folder = "/home/user/.local/share/Vantorel/Palettes/";

std::string paletteOf(const std::string& name, const std::string& entries)
{
    return paletteText(*listOfEntries(utf16FromUtf8(name), entriesFrom(entries)));
}

std::map<std::string, std::string> filesIn(const FailingFiles& files)
{
    std::map<std::string, std::string> contents;
    for (const std::string& path : files.allPaths()) {
        if (const auto bytes = files.contentsAtPath(path)) contents[path] = *bytes;
    }
    return contents;
}

struct Step {
    const char* what;
    std::function<EditOutcome(PaletteEditor& editor, PaletteId mine)> doIt;
    std::string before;
    std::string after;
};

class FailingFilesTest : public testing::TestWithParam<Step> {};

TEST_P(FailingFilesTest, LoseNoList)
{
    const Step& step = GetParam();
    int calls = 0;
    for (int failing = 0; failing <= calls; ++failing) {
        FailingFiles files;
        files.createDirectory("/home/user/.local/share/Vantorel");
        files.createDirectory("/home/user/.local/share/Vantorel/Palettes");
        files.writeAtomically(folder + std::string("Mine.gpl"), paletteOf("Mine", "a=1 b=2"));
        PaletteFileStore store(files);
        PaletteEditor editor(files, store, [&](const std::string& path) {
            files.remove(path);
            return true;
        });
        const PaletteId mine = editor.palettes().front().id;
        static_cast<void>(editor.entriesOf(mine));
        files.failAt(failing);
        const EditOutcome outcome = step.doIt(editor, mine);
        if (failing == 0) calls = files.calls();
        files.failAt(0);
        bool hasBefore = step.before.empty();
        bool hasAfter = step.after.empty();
        for (const auto& [path, bytes] : filesIn(files)) {
            EXPECT_TRUE(bytes == step.before || bytes == step.after)
                << path << " of call " << failing << ": " << bytes;
            hasBefore = hasBefore || bytes == step.before;
            hasAfter = hasAfter || bytes == step.after;
        }
        EXPECT_TRUE(outcome.done ? hasAfter : hasBefore) << "call " << failing;
        EXPECT_TRUE(outcome.done || failing != 0);
        EXPECT_TRUE(outcome.done || !outcome.messages.empty()) << "call " << failing;
    }
    EXPECT_GT(calls, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, FailingFilesTest,
    testing::Values(Step{"Change",
                         [](PaletteEditor& editor, PaletteId mine) {
                             return editor.setEntries(mine, entriesFrom("a=1 b=3"));
                         },
                         paletteOf("Mine", "a=1 b=2"), paletteOf("Mine", "a=1 b=3")},
                    Step{"Rename",
                         [](PaletteEditor& editor, PaletteId mine) {
                             return editor.rename(mine, u"New");
                         },
                         paletteOf("Mine", "a=1 b=2"), paletteOf("New", "a=1 b=2")},
                    Step{"Remove",
                         [](PaletteEditor& editor, PaletteId mine) { return editor.remove(mine); },
                         paletteOf("Mine", "a=1 b=2"),
                         {}}),
    [](const auto& row) { return std::string(row.param.what); });

}  // namespace
}  // namespace vantorel
