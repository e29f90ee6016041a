#include "paletteedit/EntriesReader.h"

#include <gtest/gtest.h>

#include "CountingFiles.h"
#include "paletteedit/PaletteEditor.h"

namespace vantorel {
namespace {

std::string palette(int count, const std::string& last = {})
{
    std::string text = "GIMP Palette\nName: Long\n";
    for (int i = 0; i < count; ++i)
        text += "1 2 3\tcolour " + std::to_string(i) + "\n";
    return text + last;
}

TEST(EntriesReaderTest, StepsReadWhatOneStepReads)
{
    for (const char* last : {"", "# a comment\n", "no colour\n"}) {
        const std::string path = "/palettes/Long.gpl";
        EntriesReader reader(palette(10, last), path);
        EXPECT_FALSE(reader.readLines(4));
        EXPECT_EQ(reader.entries().size(), 3U) << "the first line names the list";
        EXPECT_LT(reader.bytesRead(), reader.allBytes());
        while (!reader.readLines(2)) {
        }
        EXPECT_EQ(reader.bytesRead(), reader.allBytes());
        EXPECT_EQ(reader.entries().size(), 10U);

        EntriesReader other(palette(10, last), path);
        EXPECT_TRUE(other.readLines(100));
        const auto state = reader.takeState();
        const auto otherState = other.takeState();
        ASSERT_TRUE(state && otherState);
        EXPECT_EQ(state->name, u"Long");
        EXPECT_EQ(*state->entries, *otherState->entries);
        EXPECT_EQ(state->bytes != nullptr, *last != '\0');
        EXPECT_EQ(otherState->bytes != nullptr, *last != '\0');
    }
}

TEST(EntriesReaderTest, OnlyCommentsWithATextAreOtherLines)
{
    struct Row {
        const char* lines;
        bool isOther;
    };
    for (const Row& row :
         {Row{"#\n", false}, Row{"#\n1 2 3 a\n# \t#\n", false}, Row{"# text\n", true},
          Row{"#\n  \t# text", true}, Row{"1 2 3 a # b\n", false},
          Row{"1 2 3 # b\r\n4 5 6 # c\r", false}, Row{"1 2 3 a#\n#b\n1 2 3 c\n", true},
          Row{"#\r\n#\r\n1 2 3 a", false}, Row{"#\r# text\r", true}, Row{"no colour\n", true}}) {
        EntriesReader reader("GIMP Palette\nName: A # b\n" + std::string(row.lines), "/x.gpl");
        EXPECT_TRUE(reader.readLines(100));
        const auto state = reader.takeState();
        ASSERT_TRUE(state);
        EXPECT_EQ(state->bytes != nullptr, row.isOther) << row.lines;
    }
}

TEST(EntriesReaderTest, OtherFilesAreNotPalettes)
{
    EntriesReader reader("a text\nof two lines\n", "/x.gpl");
    EXPECT_TRUE(reader.readLines(1));
    EXPECT_FALSE(reader.takeState());
    EXPECT_EQ(reader.bytesRead(), 0U);
    EXPECT_TRUE(reader.entries().empty());
}

class StepwiseReadingTest : public testing::Test {
protected:
    StepwiseReadingTest()
    {
        _files.createDirectory("/home/user/.local/share/Vantorel");
        _files.createDirectory("/home/user/.local/share/Vantorel/Palettes");
        _files.writeAtomically(_path, palette(100));
    }

    const std::string _path = "/home/user/.local/share/Vantorel/Palettes/Long.gpl";
    CountingFiles _files;
    PaletteFileStore _store{_files};
};

TEST_F(StepwiseReadingTest, AListCanBeReadInSteps)
{
    PaletteEditor editor(_files, _store, [](const std::string&) { return false; });
    const PaletteId id = editor.palettes().front().id;
    EXPECT_EQ(editor.readerOf(id), nullptr);
    static_cast<void>(_files.takeCalls());
    EXPECT_FALSE(editor.continueReading(id, 11));
    ASSERT_NE(editor.readerOf(id), nullptr);
    EXPECT_EQ(editor.readerOf(id)->entries().size(), 10U);
    EXPECT_FALSE(editor.continueReading(id, 40));
    EXPECT_TRUE(editor.continueReading(id, 100));
    EXPECT_EQ(editor.readerOf(id), nullptr);
    EXPECT_EQ(editor.entriesOf(id).size(), 100U);
    EXPECT_LE(_files.takeCalls(), 4U) << "the file is read once";
}

TEST_F(StepwiseReadingTest, AFileThatChangesInBetweenIsReadAnew)
{
    PaletteEditor editor(_files, _store, [](const std::string&) { return false; });
    const PaletteId id = editor.palettes().front().id;
    EXPECT_FALSE(editor.continueReading(id, 50));
    _files.writeAtomically(_path, palette(5));
    EXPECT_TRUE(editor.continueReading(id, 50));
    EXPECT_EQ(editor.entriesOf(id).size(), 5U);
}

TEST_F(StepwiseReadingTest, AnEditReadsTheRest)
{
    PaletteEditor editor(_files, _store, [](const std::string&) { return false; });
    const PaletteId id = editor.palettes().front().id;
    EXPECT_FALSE(editor.continueReading(id, 50));
    EXPECT_EQ(editor.entriesOf(id).size(), 100U);
    EXPECT_TRUE(editor.continueReading(id, 1));
    EXPECT_EQ(editor.readerOf(id), nullptr);
}

}  // namespace
}  // namespace vantorel
