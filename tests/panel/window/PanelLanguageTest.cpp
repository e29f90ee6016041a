#include "PanelWindowFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTranslator>

namespace vantorel {
namespace {

/// Translates the words that pickers choose by.
class WordsTranslator final : public QTranslator {
public:
    WordsTranslator() { QCoreApplication::installTranslator(this); }
    ~WordsTranslator() override { QCoreApplication::removeTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* source, const char*,
                                    int) const override
    {
        if (QLatin1String(context) != QLatin1String("DisplayNames")) return {};
        return QStringLiteral("de ") + QString::fromUtf8(source);
    }
};

/// The panel in another language. The user has a list, a colour and a snippet that are called like
/// words of the page.
class PanelLanguageTest : public PanelWindowFixture {
protected:
    void SetUp() override
    {
        put("Palettes/Color.gpl", "GIMP Palette\nName: Color\n 76 153   0\tAdd\n");
        put("Settings.plist",
            "{ HexColorLlst = Color; AddedColorLists = (Color, \"CSS Keyword\");"
            "  CodeSnippetName = \"Hex Code\"; CodeSnippets = ({ NameSnippet = \"Hex Code\";"
            "  FormatSnippet = \"%06x\"; VarsSnippet = rgbPackedInt; }); }");
        PanelWindowFixture::SetUp();
        child<QAbstractButton>("settingsButton")->click();
    }
    [[nodiscard]] QString shownBy(const char* popUp) const
    {
        QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(child<QWidget>(popUp));
        return shown != nullptr ? shown->text(QAccessible::Value) : QString();
    }

private:
    static void put(const char* path, const char* text)
    {
        QFile file(qEnvironmentVariable("XDG_DATA_HOME") + "/Vantorel/" + path);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    WordsTranslator _translator;
};

TEST_F(PanelLanguageTest, WordsOfThePageAreTranslated)
{
    EXPECT_EQ(shownBy("entryFormPopUp"), "de Uppercase");
    EXPECT_EQ(shownBy("componentDisplayPopUp"), "de Hex");
    EXPECT_EQ(shownBy("codeDragTypePopUp"), "de Hex Code");
    _window->colors().setColor(rgb(250, 2, 250));
    EXPECT_EQ(shownBy("hexColorNamePopUp"), "de No Match");
}

TEST_F(PanelLanguageTest, NamesOfTheUserAreNot)
{
    _window->colors().setColor(rgb(76, 153, 0));
    EXPECT_EQ(shownBy("hexColorsListPopUp"), "Color");
    EXPECT_EQ(shownBy("hexColorNamePopUp"), "Add");
    EXPECT_EQ(shownBy("cCodeEntryFormPopUp"), "Hex Code");
}

}  // namespace
}  // namespace vantorel
