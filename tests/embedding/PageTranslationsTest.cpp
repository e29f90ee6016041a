#include "embedding/PageTranslations.h"

#include "embedding/PageLibrary.h"

#include <gtest/gtest.h>

#include "ScopedEnvironment.h"
#include "ScratchFolder.h"

#include <filesystem>
#include <string>

namespace vantorel {
namespace {

class PageTranslationsTest : public testing::Test {
protected:
    PageTranslationsTest()
    {
        for (const char* name : {"LC_MESSAGES", "LANG", "LANGUAGE"})
            _environment.set(name, std::nullopt);
        setLocale("de_DE.UTF-8");
    }

    void setLocale(const char* locale) { _environment.set("LC_ALL", locale); }

private:
    ScopedEnvironment _environment;
};

TEST_F(PageTranslationsTest, TheTranslationsBesideThePageAreUsed)
{
    EXPECT_EQ(pageTranslation("Vantorel", u"Settings"), u"Settings");
    ASSERT_TRUE(openPage(VANTOREL_PICKERS));
    EXPECT_EQ(pageTranslation("Vantorel", u"Settings"), u"Einstellungen");
    EXPECT_EQ(pageTranslation("DisplayNames", u"Uppercase"), u"Gro\u00df (A\u2013F)");
    EXPECT_EQ(pageTranslation("DisplayNames", u"Settings"), u"Settings");
}

TEST_F(PageTranslationsTest, TheFolderOfThePageMayBeALink)
{
    const ScratchFolder folder;
    const std::string link = folder.pathOf("pickers");
    std::filesystem::create_directory_symlink(VANTOREL_PICKERS, link);
    ASSERT_TRUE(openPage(link.c_str()));
    EXPECT_EQ(pageTranslation("Vantorel", u"Settings"), u"Einstellungen");
}

TEST_F(PageTranslationsTest, TheEnvironmentNamesTheLanguage)
{
    setLocale("fr_FR.UTF-8");
    openPage(VANTOREL_PICKERS);
    EXPECT_EQ(pageTranslation("DisplayNames", u"Add"), u"Ajouter");
    setLocale("C");
    openPage(VANTOREL_PICKERS);
    EXPECT_EQ(pageTranslation("DisplayNames", u"Add"), u"Add");
}

TEST_F(PageTranslationsTest, TextsStayEnglishWithoutAFile)
{
    testing::internal::CaptureStderr();
    setPageTranslations("/nowhere");
    EXPECT_EQ(pageTranslation("Vantorel", u"Settings"), u"Settings");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace vantorel
