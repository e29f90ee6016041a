#include "translations/TranslationFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ScratchFolder.h"

#include <fstream>
#include <map>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

std::vector<std::string> languages(const std::map<std::string, std::string>& environment)
{
    return languagesToTranslateTo([&](const char* name) {
        const auto found = environment.find(name);
        return found != environment.end() ? std::optional(found->second) : std::nullopt;
    });
}

TEST(TranslationsTest, TheLocaleNamesTheLanguage)
{
    EXPECT_THAT(languages({{"LANG", "de_DE.UTF-8"}}), ElementsAre("de"));
    EXPECT_THAT(languages({{"LANG", "de_DE"}, {"LC_MESSAGES", "fr"}}), ElementsAre("fr"));
    EXPECT_THAT(languages({{"LC_ALL", "es_ES@x"}, {"LC_MESSAGES", "fr"}}), ElementsAre("es"));
    EXPECT_THAT(languages({{"LANG", "en_GB"}, {"LANGUAGE", "nds:de_AT:en:fr"}}),
                ElementsAre("nds", "de"));
}

TEST(TranslationsTest, EnglishNeedsNoTranslation)
{
    EXPECT_THAT(languages({}), IsEmpty());
    for (const char* locale : {"", "C", "C.UTF-8", "POSIX", "en_GB.UTF-8"})
        EXPECT_THAT(languages({{"LANG", locale}}), IsEmpty()) << locale;
    EXPECT_THAT(languages({{"LANG", "C"}, {"LANGUAGE", "de"}}), IsEmpty());
    EXPECT_THAT(languages({{"LANG", "de"}, {"LC_ALL", "C"}}), IsEmpty());
}

TEST(TranslationsTest, ALanguageIsNoPath)
{
    EXPECT_THAT(languages({{"LANG", "../../x"}}), IsEmpty());
}

TEST(TranslationsTest, OnlyFinishedMessagesAreRead)
{
    EXPECT_THAT(readTranslations("<context><name>Other</name><message><source>a</source>"
                                 "<translation>other</translation></message></context>"
                                 "<context>\n<name>Messages</name>\n"
                                 "<message><source>a &lt;&quot;%1&quot;&gt;\nb</source>\n"
                                 "<translation>\u00e4 &amp;lt; %1</translation></message>"
                                 "<message><source>c</source><translation type=\"unfinished\">d"
                                 "</translation></message></context>"
                                 "<context><name>Later</name><message><source>e</source>"
                                 "<translation>f</translation></message></context>",
                                 "Messages"),
                UnorderedElementsAre(Pair("a <\"%1\">\nb", "\u00e4 &lt; %1")));
}

TEST(TranslationsTest, DamagedFilesAreHarmless)
{
    for (const char* ts : {"", "<", "<name>Messages</name>", "<name>Messages</name><source>a",
                           "<name>Messages</name><source>a</source><translation>"})
        EXPECT_THAT(readTranslations(ts, "Messages"), IsEmpty()) << ts;
}

TEST(TranslationFilesTest, TheFirstLanguageThatIsThereCounts)
{
    const ScratchFolder folder;
    std::ofstream(folder.pathOf("vantorel_de.ts"))
        << "<context><name>DisplayNames</name><message><source>Add</source><translation>"
           "Hinzuf\u00fcgen</translation></message></context>";
    TranslationFiles files(folder.path().string(), {"nds", "de", "fr"});
    EXPECT_EQ(files.translated("DisplayNames", "Add"), "Hinzuf\u00fcgen");
    EXPECT_EQ(files.translated("Messages", "Add"), "Add");
    EXPECT_EQ(files.translated("DisplayNames", "Remove"), "Remove");
    EXPECT_EQ(TranslationFiles(folder.path().string(), {"fr"}).translated("DisplayNames", "Add"),
              "Add");
    EXPECT_EQ(TranslationFiles({}, {"de"}).translated("DisplayNames", "Add"), "Add");
}

TEST(TranslationFilesTest, AFolderInPlaceOfAFileIsHarmless)
{
    const ScratchFolder folder;
    std::filesystem::create_directory(folder.pathOf("vantorel_de.ts"));
    EXPECT_EQ(TranslationFiles(folder.path().string(), {"de"}).translated("DisplayNames", "Add"),
              "Add");
}

}  // namespace
}  // namespace vantorel
