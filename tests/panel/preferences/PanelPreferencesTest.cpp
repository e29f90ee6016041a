#include "panel/preferences/ConfigurationFile.h"
#include "panel/preferences/PanelPreferences.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace vantorel {
namespace {

class PanelPreferencesTest : public testing::Test {
protected:
    PanelPreferencesTest() { setConfigurationFolder(_folder.path()); }
    ~PanelPreferencesTest() override { setConfigurationFolder({}); }

    [[nodiscard]] QString path() const
    {
        return _folder.filePath(QStringLiteral("Vantorel/Preferences.plist"));
    }

    void writeFile(const QByteArray& bytes)
    {
        PanelPreferences().setTextSize(125);  // makes the folder
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QTemporaryDir _folder;
};

void expectUsual(const PanelPreferences& preferences)
{
    EXPECT_EQ(preferences.theme(), "auto");
    EXPECT_EQ(preferences.themeInForce(), "auto");
    EXPECT_FALSE(preferences.usesDesktopStyle());
    EXPECT_EQ(preferences.textSize(), 100);
}

TEST_F(PanelPreferencesTest, WithoutAFileAllIsUsualAndNoFileIsMade)
{
    expectUsual(PanelPreferences());
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(PanelPreferencesTest, AreReadAsTheyWereWritten)
{
    PanelPreferences written;
    const QSignalSpy changes(&written, &PanelPreferences::changed);
    written.setTheme(QStringLiteral("dark"));
    written.setTextSize(150);
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(PanelPreferences().theme(), "dark");
    EXPECT_EQ(PanelPreferences().themeInForce(), "dark");
    EXPECT_EQ(PanelPreferences().textSize(), 150);
    written.setUsesDesktopStyle(true);
    EXPECT_EQ(PanelPreferences().themeInForce(), "desktop");
    EXPECT_EQ(PanelPreferences().theme(), "dark");
}

TEST_F(PanelPreferencesTest, AValueThatDoesNotExistIsNotTaken)
{
    PanelPreferences preferences;
    const QSignalSpy changes(&preferences, &PanelPreferences::changed);
    preferences.setTheme(QStringLiteral("green"));
    preferences.setTextSize(0);
    preferences.setTextSize(100000);
    expectUsual(preferences);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(PanelPreferencesTest, ADamagedFileCountsAsNoneAndIsReplaced)
{
    for (const QByteArray& damaged :
         {QByteArray(), QByteArray("{ Theme = dark;"), QByteArray("\xff\xfe\x00", 3),
          QByteArray("(dark, light)"), QByteArray("{ Theme = (dark); TextSize = { a = 1; }; }"),
          QByteArray("{ Theme = green; TextSize = 99999999999; UsesDesktopStyle = maybe; }"),
          QByteArray(2 << 20, ' ') + "{ Theme = dark; }"}) {
        writeFile(damaged);
        expectUsual(PanelPreferences());
        PanelPreferences().setTheme(QStringLiteral("light"));
        EXPECT_EQ(PanelPreferences().theme(), "light") << damaged.left(80).toStdString();
        EXPECT_TRUE(QFile::remove(path()));
    }
}

TEST_F(PanelPreferencesTest, WhatALaterVersionHasWrittenIsKept)
{
    writeFile("{ Future = (a, b); Theme = sepia; }");
    PanelPreferences preferences;
    EXPECT_EQ(preferences.theme(), "auto");
    preferences.setTextSize(200);
    const PropertyList list =
        ConfigurationFile("Preferences.plist").contents().value_or(PropertyList());
    ASSERT_NE(list.valueForKey(u"Future"), nullptr);
    EXPECT_NE(list.valueForKey(u"Future")->array(), nullptr);
    ASSERT_NE(list.stringForKey(u"Theme"), nullptr);
    EXPECT_EQ(*list.stringForKey(u"Theme"), u"sepia");
}

TEST_F(PanelPreferencesTest, TwoPanelsDoNotUndoEachOther)
{
    PanelPreferences first;
    PanelPreferences second;
    first.setTheme(QStringLiteral("dark"));
    second.setTextSize(150);
    EXPECT_EQ(second.theme(), "dark") << "the other panel's choice is adopted";
    first.setUsesDesktopStyle(true);
    EXPECT_EQ(first.textSize(), 150);
    const PanelPreferences third;
    EXPECT_EQ(third.theme(), "dark");
    EXPECT_EQ(third.textSize(), 150);
    EXPECT_TRUE(third.usesDesktopStyle());
}

TEST_F(PanelPreferencesTest, WhatCannotBeWrittenHoldsUntilTheEnd)
{
    QFile file(_folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    setConfigurationFolder(file.fileName());
    PanelPreferences preferences;
    const QSignalSpy changes(&preferences, &PanelPreferences::changed);
    testing::internal::CaptureStderr();
    preferences.setTheme(QStringLiteral("dark"));
    preferences.setTextSize(150);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("vantorel-panel: "), std::string::npos);
    EXPECT_EQ(preferences.theme(), "dark");
    EXPECT_EQ(preferences.textSize(), 150);
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(PanelPreferencesTest, AreForTheUserAlone)
{
    PanelPreferences().setTheme(QStringLiteral("dark"));
    constexpr auto others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFile::permissions(path()) & others);
}

}  // namespace
}  // namespace vantorel
