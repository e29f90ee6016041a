#include "csscolor/Contrast.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/PanelTheme.h"
#include "panel/widgets/ThemeTables.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
#include <QStyleHints>
#endif

namespace vantorel {
namespace {

double contrastBetween(const QColor& a, const QColor& b)
{
    return contrastRatio(hostColorFrom(a), hostColorFrom(b)).value_or(0);
}

void expectContrast(const QColor& color, const QColor& ground, double least,
                    const std::string& what)
{
    EXPECT_GE(contrastBetween(color, ground), least)
        << what << ": " << color.name().toStdString() << " on " << ground.name().toStdString();
}

/// Every pair of colours that the panel paints on each other.
void expectReadable(const ThemeColors& colors, const std::string& theme)
{
    constexpr double text = 4.5;
    constexpr double edge = 3;
    for (const QColor& ground :
         {colors.window, colors.base, colors.control, colors.hover, colors.down}) {
        expectContrast(colors.text, ground, text, theme + ", text");
        expectContrast(colors.text2, ground, text, theme + ", second text");
    }
    for (const QColor& ground : {colors.window, colors.base, colors.control}) {
        expectContrast(colors.edge, ground, edge, theme + ", edge");
        expectContrast(colors.accent, ground, edge, theme + ", focus");
        expectContrast(colors.error, ground, text, theme + ", error");
        expectContrast(colors.good, ground, text, theme + ", good");
        expectContrast(colors.warn, ground, text, theme + ", warning");
    }
    expectContrast(colors.onAccent, colors.accent, text, theme + ", selected text");
    // What is chosen has the text's colour as its ground.
    expectContrast(colors.window, colors.text, text, theme + ", chosen");
}

TEST(ThemeColorsTest, EveryTextAndEdgeOfOurThemesIsReadable)
{
    expectReadable(lightTheme(), "light");
    expectReadable(darkTheme(), "dark");
    expectReadable(contrastTheme(), "contrast");
}

struct DesktopPalette {
    const char* name;
    const char* window;
    const char* base;
    const char* button;
    const char* text;
    const char* highlight;
    const char* highlightedText;
};

QPalette paletteFrom(const DesktopPalette& row)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(row.window));
    palette.setColor(QPalette::Base, QColor(row.base));
    palette.setColor(QPalette::Button, QColor(row.button));
    palette.setColor(QPalette::WindowText, QColor(row.text));
    palette.setColor(QPalette::Text, QColor(row.text));
    palette.setColor(QPalette::Highlight, QColor(row.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(row.highlightedText));
    return palette;
}

TEST(ThemeColorsTest, ColoursDerivedFromADesktopsPaletteAreReadable)
{
    const DesktopPalette rows[]{
        {"Fusion", "#efefef", "#ffffff", "#efefef", "#000000", "#308cc6", "#ffffff"},
        {"cool light", "#eff0f1", "#fcfcfc", "#eff0f1", "#232629", "#3daee9", "#fcfcfc"},
        {"cool dark", "#31363b", "#232629", "#31363b", "#eff0f1", "#3daee9", "#fcfcfc"},
        {"warm", "#f6f5f4", "#ffffff", "#edebe9", "#2e3436", "#e95420", "#ffffff"},
        {"white", "#ffffff", "#ffffff", "#ffffff", "#000000", "#ffff00", "#000000"},
        {"black", "#000000", "#000000", "#000000", "#ffffff", "#000000", "#ffffff"},
        {"sepia", "#fdf6e3", "#eee8d5", "#eee8d5", "#475b62", "#268bd2", "#fdf6e3"},
        {"middle grey", "#808080", "#909090", "#808080", "#000000", "#4040ff", "#000000"},
        {"faint text", "#ffffff", "#ffffff", "#f8f8f8", "#6c6c6c", "#cccccc", "#dddddd"},
    };
    for (const DesktopPalette& row : rows) {
        const QPalette palette = paletteFrom(row);
        EXPECT_EQ(themeOf(palette), nullptr) << row.name;
        expectReadable(themeColors(palette), row.name);
    }
}

TEST(ThemeColorsTest, DerivedColoursBelongToThePaletteThatIsAskedFor)
{
    const auto window = [](const char* name) {
        return themeColors(paletteFrom({"", name, name, name, "#000000", "#0000ff", "#ffffff"}))
            .window;
    };
    EXPECT_EQ(window("#eeeeee"), QColor("#eeeeee"));
    EXPECT_EQ(window("#dddddd"), QColor("#dddddd"));
    EXPECT_EQ(window("#eeeeee"), QColor("#eeeeee"));
}

TEST(ThemeColorsTest, OurThemesAreRecognisedByTheirPalettes)
{
    for (const ThemeColors* theme : {&lightTheme(), &darkTheme(), &contrastTheme()}) {
        QPalette palette = paletteOf(*theme);
        EXPECT_EQ(themeOf(palette), theme);
        EXPECT_EQ(themeColors(palette).good, theme->good);
        palette.setColor(QPalette::Text, Qt::red);
        EXPECT_EQ(themeOf(palette), theme) << "a field with its own text colour";
        palette.setColor(QPalette::Window, Qt::red);
        EXPECT_EQ(themeOf(palette), nullptr) << "a message with its own ground";
    }
}

/// As the style of a desktop that has been set to dark.
class DarkDesktopStyle final : public QProxyStyle {
public:
    void polish(QPalette& palette) override { palette = QPalette(Qt::black); }
};

class PanelThemeTest : public testing::Test {
protected:
    PanelThemeTest() { applyTheme(QStringLiteral("desktop")); }
    ~PanelThemeTest() override { applyTheme(QStringLiteral("desktop")); }
};

TEST_F(PanelThemeTest, GivesTheProgramItsPaletteAndTheDesktopsBack)
{
    const QPalette desktop = QApplication::palette();
    const QString style = QApplication::style()->name();
    EXPECT_TRUE(applyTheme(QStringLiteral("dark")));
    EXPECT_EQ(themeOf(QApplication::palette()), &darkTheme());
    EXPECT_TRUE(applyTheme(QStringLiteral("contrast")));
    EXPECT_EQ(themeOf(QApplication::palette()), &contrastTheme());
    EXPECT_TRUE(applyTheme(QStringLiteral("light")));
    EXPECT_EQ(themeOf(QApplication::palette()), &lightTheme());
    EXPECT_TRUE(applyTheme(QStringLiteral("desktop")));
    EXPECT_EQ(QApplication::palette(), desktop);
    EXPECT_EQ(QApplication::style()->name(), style);
    EXPECT_FALSE(applyTheme(QStringLiteral("green")));
    EXPECT_EQ(QApplication::palette(), desktop);
}

TEST_F(PanelThemeTest, AutoIsLightOrDarkAsTheDesktopIs)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    if (QGuiApplication::styleHints()->colorScheme() != Qt::ColorScheme::Unknown)
        GTEST_SKIP() << "the platform has a colour scheme";
#endif
    applyTheme(QStringLiteral("dark"));
    EXPECT_TRUE(applyTheme(QStringLiteral("auto")));
    EXPECT_EQ(themeOf(QApplication::palette()), &lightTheme());
    QApplication::setStyle(new DarkDesktopStyle);
    EXPECT_TRUE(applyTheme(QStringLiteral("auto")));
    EXPECT_EQ(themeOf(QApplication::palette()), &darkTheme());
}

}  // namespace
}  // namespace vantorel
