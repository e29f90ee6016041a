#include "settings/SnippetMerge.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {
namespace {

QTXCodeSnippet snippet(const std::u16string& name, const std::u16string& format = u"%x")
{
    return {name, format, u"rgbPackedInt"};
}

/// A list with a snippet for each letter; "b1" is the snippet "b" with another format.
SnippetList listOf(std::u16string_view letters)
{
    SnippetList list;
    for (const char16_t letter : letters) {
        if (letter >= u'0' && letter <= u'9') {
            list.back().setFormatStringSnippet(u"%x" + std::u16string(1, letter));
        } else {
            list.push_back(snippet(std::u16string(1, letter)));
        }
    }
    return list;
}

std::u16string lettersOf(const SnippetList& list)
{
    std::u16string letters;
    for (const QTXCodeSnippet& row : list)
        letters += *row.nameSnippet() + row.formatStringSnippet()->substr(2);
    return letters;
}

TEST(SnippetMergeTest, ChangesOfBothSidesAreKept)
{
    struct Row {
        const char16_t* base;
        const char16_t* mine;
        const char16_t* theirs;
        const char16_t* merged;
    };
    const Row rows[]{
        {u"abc", u"abxc", u"abc", u"abxc"},    // added here
        {u"abc", u"abc", u"abxc", u"abxc"},    // added there
        {u"abc", u"axbc", u"abcy", u"axbcy"},  // added in both places
        {u"abc", u"ac", u"abcy", u"acy"},      // removed here, added there
        {u"abc", u"ab1c", u"abc2", u"ab1c2"},  // two snippets changed
        {u"abc", u"ab1c", u"ab2c", u"ab1c"},   // the same one changed: the step made here counts
        {u"abc", u"ac", u"ab2c", u"ab2c"},     // removed here, changed there
        {u"abc", u"ab2c", u"ac", u"ab2c"},     // changed here, removed there
        {u"abc", u"cab", u"abcy", u"cyab"},    // moved here, added there
        {u"abc", u"abc1", u"cab", u"c1ab"},    // changed here, moved there
        {u"abc", u"", u"abc", u""},            // all removed
        {u"", u"x", u"y", u"xy"},              // added to an empty list
    };
    for (const Row& row : rows) {
        EXPECT_EQ(lettersOf(mergedSnippets(listOf(row.base), listOf(row.mine), listOf(row.theirs))),
                  row.merged);
    }
}

TEST(SnippetMergeTest, TheFileHoldsOnlyWhatTheProgramDoesNot)
{
    struct Row {
        const char16_t* snippets;
        const char16_t* own;
        std::vector<std::u16string> removed;
    };
    const Row rows[]{
        {u"pqr", u"", {}},    {u"xpqr", u"x", {}},
        {u"pr", u"", {u"q"}}, {u"pq1r", u"pq1", {}},
        {u"qpr", u"q", {}},   {u"pqrx", u"pqrx", {}},
        {u"rqp", u"rq", {}},  {u"x", u"x", {u"p", u"q", u"r"}},
    };
    for (const Row& row : rows) {
        const SnippetFileContents file = snippetFileFor(listOf(row.snippets), listOf(u"pqr"));
        EXPECT_EQ(lettersOf(file.own), row.own);
        EXPECT_EQ(file.removed, row.removed);
        EXPECT_EQ(lettersOf(snippetsOfFile(file, listOf(u"pqr"))), row.snippets);
    }
}

TEST(SnippetMergeTest, RestoringKeepsTheUsersSnippets)
{
    EXPECT_EQ(lettersOf(withShippedRestored(listOf(u"xq1y"), listOf(u"pqr"))), u"xqypr");
}

TEST(SnippetMergeTest, AnImportReplacesNothing)
{
    SnippetList list = withImported(listOf(u"ab"), listOf(u"ab1c"), {u"c"});
    ASSERT_EQ(list.size(), 4U);
    EXPECT_EQ(list[2], snippet(u"b 2", u"%x1"));
    EXPECT_EQ(list[3], snippet(u"c 2"));
}

}  // namespace
}  // namespace vantorel
