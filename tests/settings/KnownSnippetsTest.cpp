#include "settings/KnownSnippets.h"

#include "testing/headless/MemoryFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr const char* ownPath = "/home/user/.local/share/Vantorel/Snippets.plist";

std::string fileOf(const std::vector<std::string>& names)
{
    std::string text = "(";
    for (const std::string& name : names)
        text +=
            "{NameSnippet = " + name + "; FormatSnippet = \"%x\"; VarsSnippet = rgbPackedInt;},";
    return text + ")";
}

class KnownSnippetsTest : public testing::Test {
protected:
    KnownSnippetsTest()
    {
        _files.createDirectory("/home/user/.local/share/Vantorel");
        for (const char* folder :
             {"/home/machine", "/home/machine/share", "/home/machine/share/vantorel"})
            _files.createDirectory(folder);
        HostBaseDirectories directories;
        directories.programData = "/home/machine/share";
        _files.setBaseDirectories(directories);
        _files.writeAtomically("/home/machine/share/vantorel/Snippets.plist",
                               fileOf({"b", "c", "d"}));
    }
    std::vector<std::u16string> names(KnownSnippets known)
    {
        std::vector<std::u16string> result;
        for (const QTXCodeSnippet& snippet : known.all())
            result.push_back(snippet.nameSnippet().value_or(u""));
        return result;
    }

    MemoryFiles _files;
    std::vector<QTXCodeSnippet> _ofSettings{{u"a", u"%d", u"rgbPackedInt"}};
};

TEST_F(KnownSnippetsTest, ThoseOfTheSettingsComeFirstThenTheUsersOwn)
{
    _files.writeAtomically(ownPath, fileOf({"e", "c"}));
    KnownSnippets known(_files, _ofSettings);
    EXPECT_EQ(known.users().size(), 3U);
    EXPECT_THAT(names(known), testing::ElementsAre(u"a", u"e", u"c", u"b", u"d"));
    EXPECT_EQ(known.users().size(), 3U);
    using Source = KnownSnippets::Source;
    EXPECT_EQ(known.sourceOf(0), Source::settings);
    EXPECT_EQ(known.sourceOf(1), Source::own);
    EXPECT_EQ(known.sourceOf(2), Source::own) << "it replaces the one that ships";
    EXPECT_EQ(known.sourceOf(3), Source::shipped);
    EXPECT_TRUE(known.problems().empty());
    EXPECT_EQ(_files.contentsAtPath(ownPath), fileOf({"e", "c"}));
}

TEST_F(KnownSnippetsTest, WhatIsWrongInTheUsersFileIsReportedAndTheRestIsThere)
{
    _files.writeAtomically(ownPath, "({NameSnippet = e;}, " + fileOf({"a", "f"}).substr(1));
    KnownSnippets known(_files, _ofSettings);
    EXPECT_THAT(names(known), testing::ElementsAre(u"a", u"f", u"b", u"c", u"d"));
    ASSERT_EQ(known.problems().size(), 2U);
    EXPECT_EQ(english(known.problems()[1].what), "\"" + std::string(ownPath) +
                                                     "\": there is already a snippet \"a\" in the "
                                                     "settings");
}

TEST_F(KnownSnippetsTest, WithoutFilesThereAreThoseOfTheSettings)
{
    MemoryFiles none(std::nullopt);
    EXPECT_THAT(names(KnownSnippets(none, _ofSettings)), testing::ElementsAre(u"a"));
}

}  // namespace
}  // namespace vantorel
