#include "PaletteEditorFixture.h"

#include <functional>
#include <vector>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PaletteEditorTest : public PaletteEditorFixture {
protected:
    /// Every file with its contents.
    [[nodiscard]] std::map<std::string, std::string> allFiles() const
    {
        std::map<std::string, std::string> files;
        for (const std::string& path : _files.allPaths()) {
            if (const auto bytes = _files.contentsAtPath(path)) files[path] = *bytes;
        }
        return files;
    }
};

TEST_F(PaletteEditorTest, EveryStepIsSavedAndCanBeUndoneAndRedone)
{
    put(ours + std::string("Reds.gpl"), "Reds", "a=1 b=2 c=3");
    put(ours + std::string("Blues.gpl"), "Blues", "x=7");
    put(theirs + std::string("Web.gpl"), "Web", "w=5");
    PaletteEditor editor(_files, _store, remover());
    const PaletteId reds = idOf(editor, "Reds");
    struct Row {
        const char* what;
        std::function<EditOutcome()> step;
        const char* file;
        const char* expected;
    };
    const auto entries = [&]() -> const PaletteEntries& { return editor.entriesOf(reds); };
    const std::vector<Row> rows{
        {"insert",
         [&] {
             return editor.setEntries(reds,
                                      withInserted(entries(), 1, entriesFrom("n=9 n=8")).entries);
         },
         "Reds.gpl", "Reds: a=1 n=9 n 2=8 b=2 c=3"},
        {"remove",
         [&] {
             return editor.setEntries(reds, withRemoved(entries(), {0, 3}).entries);
         },
         "Reds.gpl", "Reds: n=9 n 2=8 c=3"},
        {"move", [&] { return editor.setEntries(reds, withMoved(entries(), {2}, 0).entries); },
         "Reds.gpl", "Reds: c=3 n=9 n 2=8"},
        {"step", [&] { return editor.setEntries(reds, withStepped(entries(), {0}, 1).entries); },
         "Reds.gpl", "Reds: n=9 c=3 n 2=8"},
        {"rename an entry",
         [&] { return editor.setEntries(reds, withRenamed(entries(), 0, u"new").entries); },
         "Reds.gpl", "Reds: new=9 c=3 n 2=8"},
        {"recolour",
         [&] {
             return editor.setEntries(
                 reds, withRecolored(entries(), {1, 2}, HostColor::blackColor()).entries);
         },
         "Reds.gpl", "Reds: new=9 c=0 n 2=0"},
        {"rename the list", [&] { return editor.rename(reds, u" Dark\treds "); }, "Dark reds.gpl",
         "Dark reds: new=9 c=0 n 2=0"},
        {"make a list", [&] { return editor.add(u"Blues", {}); }, "Blues 2.gpl", "Blues 2: "},
        {"copy a list", [&] { return editor.add(u"Copy", entries()); }, "Copy.gpl",
         "Copy: new=9 c=0 n 2=0"},
        {"remove a list", [&] { return editor.remove(reds); }, "Dark reds.gpl", "none"},
        {"change another program's",
         [&] { return editor.setEntries(idOf(editor, "Web"), entriesFrom("w=5 v=6")); }, "Web.gpl",
         "Web: w=5 v=6"},
        {"rename another program's",
         [&] { return editor.rename(idOf(editor, "Web (Krita)"), u"Mine"); }, "Mine.gpl",
         "Mine: w=5"},
    };
    std::vector<std::map<std::string, std::string>> states{allFiles()};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_TRUE(row.step().done);
        EXPECT_EQ(fileAt(ours + std::string(row.file)), row.expected);
        EXPECT_EQ(fileAt(theirs + std::string("Web.gpl")), "Web: w=5");
        EXPECT_NE(allFiles(), states.back());
        states.push_back(allFiles());
    }
    for (int round = 0; round < 2; ++round) {
        for (std::size_t i = rows.size(); i-- > 0;) {
            SCOPED_TRACE(std::string("undo: ") + rows[i].what);
            const EditOutcome outcome = editor.undo();
            EXPECT_TRUE(outcome.done);
            EXPECT_THAT(outcome.messages, IsEmpty());
            EXPECT_EQ(allFiles(), states[i]);
        }
        EXPECT_FALSE(editor.canUndo());
        EXPECT_FALSE(editor.undo().done);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            SCOPED_TRACE(std::string("redo: ") + rows[i].what);
            EXPECT_TRUE(editor.redo().done);
            EXPECT_EQ(allFiles(), states[i + 1]);
        }
        EXPECT_FALSE(editor.canRedo());
        EXPECT_FALSE(editor.redo().done);
    }
}

TEST_F(PaletteEditorTest, AnEditWithoutEffectIsNotAStep)
{
    put(ours + std::string("Reds.gpl"), "Reds", "a=1");
    put(theirs + std::string("Web.gpl"), "Web", "w=5");
    PaletteEditor editor(_files, _store, remover());
    const PaletteId reds = idOf(editor, "Reds");
    const PaletteId web = idOf(editor, "Web");
    const auto before = allFiles();
    EXPECT_FALSE(editor.setEntries(reds, entriesFrom("a=1")).done);
    EXPECT_FALSE(editor.rename(reds, u"Reds").done);
    EXPECT_FALSE(editor.rename(reds, u" \n ").done);
    EXPECT_FALSE(editor.add(u"", {}).done);
    EXPECT_FALSE(editor.remove(web).done) << "the list belongs to another program";
    for (const PaletteId nothing : {PaletteId{0}, PaletteId{999}}) {
        EXPECT_FALSE(editor.setEntries(nothing, entriesFrom("a=1")).done);
        EXPECT_FALSE(editor.rename(nothing, u"x").done);
        EXPECT_FALSE(editor.remove(nothing).done);
        EXPECT_TRUE(editor.entriesOf(nothing).empty());
    }
    EXPECT_FALSE(editor.canUndo());
    EXPECT_EQ(allFiles(), before);
}

TEST_F(PaletteEditorTest, HostileListNamesStayInTheFolder)
{
    PaletteEditor editor(_files, _store, remover());
    const std::vector<std::u16string> names{u"../../escape",
                                            u".",
                                            u"..",
                                            u"a/b",
                                            std::u16string(u"a\0b", 3),
                                            u"%2F",
                                            u"\U0001F3A8",
                                            std::u16string(5000, u'x'),
                                            std::u16string(1, char16_t{0xDC00}),
                                            u"a\nName: b",
                                            u"#"};
    for (const std::u16string& name : names)
        EXPECT_TRUE(editor.add(name, entriesFrom("a=1")).done);
    EXPECT_EQ(editor.palettes().size(), names.size());
    for (const auto& [path, bytes] : allFiles())
        EXPECT_TRUE(path.starts_with(ours)) << path;
    PaletteFileStore nextStore(_files);
    PaletteEditor next(_files, nextStore, remover());
    EXPECT_EQ(namesIn(next), namesIn(editor)) << "all names are read back";
    while (editor.canUndo())
        ASSERT_TRUE(editor.undo().done);
    EXPECT_TRUE(allFiles().empty());
}

TEST_F(PaletteEditorTest, AListNameThatIsTakenIsReplacedByAFreeOne)
{
    put(ours + std::string("Reds.gpl"), "Reds", "a=1");
    put(theirs + std::string("Web.gpl"), "Web", "w=5");
    PaletteEditor editor(_files, _store, remover());
    for (const char16_t* name : {u"Reds", u"Web"}) {
        const EditOutcome outcome = editor.add(name, {});
        const std::u16string freeName = std::u16string(name) + u" 2";
        EXPECT_THAT(outcome.messages, ElementsAre(editmessages::otherName(freeName)));
        EXPECT_EQ(editor.palette(outcome.list)->name, freeName);
    }
    const EditOutcome renamed = editor.rename(idOf(editor, "Reds 2"), u"Web");
    EXPECT_EQ(editor.palette(renamed.list)->name, u"Web 3");
}

TEST_F(PaletteEditorTest, TheFirstChangeToAForeignListCreatesAUserCopy)
{
    put(theirs + std::string("Web.gpl"), "Web", "w=5");
    PaletteEditor editor(_files, _store, remover());
    const PaletteId web = idOf(editor, "Web");
    const EditOutcome outcome = editor.setEntries(web, entriesFrom("w=6"));
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::copiedFirst(u"Web")));
    EXPECT_NE(outcome.list, web);
    EXPECT_TRUE(editor.palette(outcome.list)->isOwn());
    EXPECT_EQ(namesIn(editor), "Web, Web (Krita)");
    EXPECT_EQ(editor.palette(web)->name, u"Web (Krita)");
    const EditOutcome second = editor.setEntries(web, entriesFrom("w=7"));
    EXPECT_EQ(fileAt(ours + std::string("Web 2.gpl")), "Web 2: w=7");
    EXPECT_EQ(editor.palette(second.list)->name, u"Web 2");
}

TEST_F(PaletteEditorTest, AnEditThatCannotBeSavedIsNotMade)
{
    put(ours + std::string("Reds.gpl"), "Reds", "a=1");
    put(theirs + std::string("Web.gpl"), "Web", "w=5");
    PaletteEditor editor(_files, _store, remover());
    const PaletteId reds = idOf(editor, "Reds");
    ASSERT_TRUE(editor.setEntries(reds, entriesFrom("a=1 b=2")).done);
    const auto before = allFiles();
    _files.failWrites(true);
    _removalFails = true;
    struct Row {
        const char* what;
        std::function<EditOutcome()> step;
        Message message;
    };
    using editmessages::notSaved;
    const std::vector<Row> rows{
        Row{"change", [&] { return editor.setEntries(reds, {}); }, notSaved(u"Reds", folder)},
        Row{"rename", [&] { return editor.rename(reds, u"x"); }, notSaved(u"Reds", folder)},
        Row{"make", [&] { return editor.add(u"x", {}); }, notSaved(u"x", folder)},
        Row{"remove", [&] { return editor.remove(reds); },
            editmessages::notRemoved(u"Reds", folder)},
        Row{"copy first", [&] { return editor.setEntries(idOf(editor, "Web"), {}); },
            notSaved(u"Web", folder)},
        Row{"undo", [&] { return editor.undo(); }, notSaved(u"Reds", folder)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const EditOutcome outcome = row.step();
        EXPECT_FALSE(outcome.done);
        EXPECT_THAT(outcome.messages, ElementsAre(row.message));
        EXPECT_EQ(allFiles(), before);
        EXPECT_EQ(textOf(editor.entriesOf(reds)), "a=1 b=2");
        EXPECT_EQ(namesIn(editor), "Reds, Web");
    }
    _files.failWrites(false);
    EXPECT_TRUE(editor.undo().done) << "the step can still be undone";
    EXPECT_EQ(fileAt(ours + std::string("Reds.gpl")), "Reds: a=1");
}

TEST_F(PaletteEditorTest, ARenamedListIsWrittenBeforeItsOldFileIsRemoved)
{
    put(ours + std::string("Reds.gpl"), "Reds", "a=1");
    PaletteEditor editor(_files, _store, [this](const std::string& path) {
        EXPECT_EQ(fileAt(ours + std::string("New.gpl")), "New: a=1");
        _files.remove(path);
        return true;
    });
    EXPECT_TRUE(editor.rename(idOf(editor, "Reds"), u"New").done);
    EXPECT_EQ(namesIn(editor), "New");
}

TEST_F(PaletteEditorTest, AnOldFileThatCannotBeRemovedIsReported)
{
    put(ours + std::string("Reds.gpl"), "Reds", "a=1");
    PaletteEditor editor(_files, _store, remover());
    _removalFails = true;
    const EditOutcome outcome = editor.rename(idOf(editor, "Reds"), u"New");
    EXPECT_TRUE(outcome.done);
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::oldFileStayed(u"Reds")));
    EXPECT_EQ(namesIn(editor), "New, Reds");
}

TEST_F(PaletteEditorTest, AFileWithExtraLinesIsKeptBesideTheEditedOne)
{
    const std::string path = ours + std::string("Reds.gpl");
    struct Row {
        const char* what;
        const char* text;
        bool isKept;
    };
    for (const Row& row :
         {Row{"a comment", "GIMP Palette\nName: Reds\n# by somebody\n1 0 0\ta\n", true},
          Row{"a bad line", "GIMP Palette\nName: Reds\n1 0 0\ta\n999 0 0\tb\n", true},
          Row{"the head's lone mark", "GIMP Palette\nName: Reds\n#\n1 0 0\ta\n", false},
          Row{"a mark in a name", "GIMP Palette\nName: Reds\n1 0 0\t#a b\n", false}}) {
        SCOPED_TRACE(row.what);
        ASSERT_TRUE(_files.writeAtomically(path, row.text));
        PaletteEditor editor(_files, _store, remover());
        const PaletteId reds = idOf(editor, "Reds");
        const EditOutcome outcome = editor.setEntries(reds, entriesFrom("z=3"));
        EXPECT_TRUE(outcome.done);
        EXPECT_EQ(!outcome.messages.empty(), row.isKept);
        EXPECT_EQ(_files.contentsAtPath(path + "~").value_or(""), row.isKept ? row.text : "");
        EXPECT_EQ(namesIn(editor), "Reds") << "the kept file is not listed";
        ASSERT_TRUE(editor.undo().done);
        const std::string undone = _files.contentsAtPath(path).value_or("");
        EXPECT_EQ(undone == row.text, row.isKept) << "restored byte for byte";
        ASSERT_TRUE(editor.remove(reds).done);
        ASSERT_TRUE(editor.undo().done);
        EXPECT_EQ(_files.contentsAtPath(path), undone);
        _files.remove(path + "~");
    }
}

TEST_F(PaletteEditorTest, ThirtyThousandEntriesAreEditedStepByStep)
{
    PaletteEntries many;
    for (int i = 0; i < 30000; ++i)
        many.push_back(entryWithShade("c" + std::to_string(i), i % 256));
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = editor.add(u"Many", many).list;
    for (std::size_t i = 0; i < 20; ++i)
        ASSERT_TRUE(
            editor.setEntries(id, withMoved(editor.entriesOf(id), {29999}, 0).entries).done);
    EXPECT_EQ(editor.entriesOf(id).front().name(), u"c29980");
    for (int i = 0; i < 20; ++i)
        ASSERT_TRUE(editor.undo().done);
    EXPECT_EQ(editor.entriesOf(id), many);
}

}  // namespace
}  // namespace vantorel
