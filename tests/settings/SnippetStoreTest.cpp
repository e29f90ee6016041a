#include "settings/SnippetStore.h"

#include "settings/KnownSnippets.h"
#include "snippets/SnippetFile.h"
#include "testing/headless/MemoryFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr const char* ownFile = "/home/user/.local/share/Vantorel/Snippets.plist";

QTXCodeSnippet row(const std::u16string& name)
{
    return {name, u"%x", u"rgbPackedInt"};
}

class SnippetStoreTest : public testing::Test {
protected:
    SnippetStoreTest()
    {
        for (const char* folder :
             {"/home/machine", "/home/machine/share", "/home/machine/share/vantorel"})
            _files.createDirectory(folder);
        HostBaseDirectories directories;
        directories.programData = "/home/machine/share";
        _files.setBaseDirectories(directories);
        const std::vector shipped{row(u"p"), row(u"q"), row(u"r")};
        _files.writeAtomically("/home/machine/share/vantorel/Snippets.plist",
                               snippetFileText(shipped));
    }
    static std::vector<std::u16string> names(const SnippetList& list)
    {
        std::vector<std::u16string> result;
        for (const QTXCodeSnippet& snippet : list)
            result.push_back(*snippet.nameSnippet());
        return result;
    }
    /// As other programs know them.
    [[nodiscard]] std::vector<std::u16string> knownNames() const
    {
        return names(KnownSnippets(_files, {}).all());
    }
    static void removeRow(SnippetStore& store, std::size_t place)
    {
        SnippetList list = store.snippets();
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(place));
        EXPECT_TRUE(store.change(list));
    }
    static void addRow(SnippetStore& store, const std::u16string& name)
    {
        SnippetList list = store.snippets();
        list.insert(list.begin(), row(name));
        EXPECT_TRUE(store.change(list));
    }

    MemoryFiles _files;
};

TEST_F(SnippetStoreTest, LookingAtTheSnippetsWritesNothing)
{
    const SnippetStore store(_files);
    EXPECT_THAT(names(store.snippets()), testing::ElementsAre(u"p", u"q", u"r"));
    EXPECT_EQ(_files.kindAtPath(ownFile), HostFileKind::none);
    EXPECT_THAT(store.takenNames(), testing::Contains(u"VBasic"));
}

TEST_F(SnippetStoreTest, AChangeAfterUndoReplacesWhatWasUndone)
{
    SnippetStore store(_files);
    addRow(store, u"a");
    addRow(store, u"b");
    EXPECT_TRUE(store.undo());
    addRow(store, u"c");
    EXPECT_TRUE(store.undo());
    EXPECT_THAT(names(store.snippets()), testing::ElementsAre(u"a", u"p", u"q", u"r"));
    EXPECT_TRUE(store.undo());
    EXPECT_THAT(names(store.snippets()), testing::ElementsAre(u"p", u"q", u"r"));
}

TEST_F(SnippetStoreTest, EachStepIsWrittenAtOnceAndCanBeUndone)
{
    SnippetStore store(_files);
    addRow(store, u"x");
    EXPECT_THAT(knownNames(), testing::ElementsAre(u"x", u"p", u"q", u"r"));
    removeRow(store, 2);
    EXPECT_THAT(knownNames(), testing::ElementsAre(u"x", u"p", u"r"));
    EXPECT_TRUE(store.undo());
    EXPECT_THAT(knownNames(), testing::ElementsAre(u"x", u"p", u"q", u"r"));
    EXPECT_TRUE(store.redo());
    EXPECT_THAT(knownNames(), testing::ElementsAre(u"x", u"p", u"r"));
    EXPECT_TRUE(store.undo());
    EXPECT_TRUE(store.undo());
    EXPECT_FALSE(store.canUndo());
    EXPECT_THAT(knownNames(), testing::ElementsAre(u"p", u"q", u"r"));
}

TEST_F(SnippetStoreTest, WhatAnotherProgramWritesIsNotLost)
{
    SnippetStore store(_files);
    SnippetStore other(_files);
    addRow(other, u"theirs");
    addRow(store, u"mine");
    EXPECT_THAT(knownNames(), testing::UnorderedElementsAre(u"mine", u"theirs", u"p", u"q", u"r"));
    EXPECT_TRUE(store.undo());
    EXPECT_THAT(knownNames(), testing::ElementsAre(u"theirs", u"p", u"q", u"r"));
    EXPECT_TRUE(other.refresh());
    EXPECT_FALSE(other.refresh());
}

TEST_F(SnippetStoreTest, AStepThatCannotBeWrittenChangesNothing)
{
    SnippetStore store(_files);
    addRow(store, u"x");
    _files.failWrites(true);
    EXPECT_FALSE(store.change({}));
    EXPECT_FALSE(store.undo());
    EXPECT_THAT(names(store.snippets()), testing::ElementsAre(u"x", u"p", u"q", u"r"));
    _files.failWrites(false);
    EXPECT_TRUE(store.undo());
    EXPECT_THAT(knownNames(), testing::ElementsAre(u"p", u"q", u"r"));
}

TEST_F(SnippetStoreTest, ADamagedFileIsCopiedBeforeItIsReplaced)
{
    const std::string damaged = "({NameSnippet = a; FormatSnippet";
    _files.createDirectory("/home/user/.local/share/Vantorel");
    _files.writeAtomically(ownFile, damaged);
    SnippetStore store(_files);
    EXPECT_EQ(store.problems().size(), 1U);
    addRow(store, u"x");
    EXPECT_TRUE(store.problems().empty());
    EXPECT_EQ(_files.contentsAtPath(ownFile + std::string("~")), damaged);
    EXPECT_THAT(knownNames(), testing::ElementsAre(u"x", u"p", u"q", u"r"));
}

TEST_F(SnippetStoreTest, AFileThatCannotBeReadIsNotReplaced)
{
    _files.createDirectory("/home/user/.local/share/Vantorel");
    _files.createDirectory(ownFile);
    SnippetStore store(_files);
    EXPECT_EQ(store.problems().size(), 1U);
    EXPECT_FALSE(store.change({}));
    EXPECT_FALSE(store.canUndo());
}

TEST_F(SnippetStoreTest, WithoutAFolderForDataNothingCanBeChanged)
{
    MemoryFiles none(std::nullopt);
    SnippetStore store(none);
    EXPECT_FALSE(store.change({row(u"x")}));
}

}  // namespace
}  // namespace vantorel
