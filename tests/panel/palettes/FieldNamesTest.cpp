#include "PalettesPageFixture.h"

#include "hosts/qt/TextScale.h"
#include "panel/widgets/ColorFacts.h"
#include "panel/widgets/ColorField.h"

#include <QCompleter>
#include <QLabel>
#include <QListView>

namespace vantorel {
namespace {

/// The panel of a user whose naming list is "Reds". The page that is shown is the first one.
class FieldNamesTest : protected UserFolders, public PanelWindowFixture {
protected:
    FieldNamesTest() { chooseNamingList("Reds"); }
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        _window->resizeAtOnce({scaled(340), scaled(600)});
        _window->colors().setColor(rgb(0, 0, 0));
    }
    void chooseNamingList(const QByteArray& name)
    {
        put("data/Vantorel/Settings.plist", "{HexColorLlst = \"" + name + "\";}");
    }
    [[nodiscard]] QLineEdit& edit() const { return *child<QLineEdit>("colorText"); }
    [[nodiscard]] QListView& popup() const
    {
        return *static_cast<QListView*>(edit().completer()->popup());
    }
    void typeColor(const QString& text) const
    {
        edit().setFocus();
        edit().selectAll();
        QTest::keyClicks(&edit(), text);
    }
    QRgb entered(const QString& text) const
    {
        typeColor(text);
        QTest::keyClick(&edit(), Qt::Key_Return);
        return chosenColor().rgb();
    }
    void showPalette(const QString& list) const
    {
        ASSERT_TRUE(_window->pages().showPageWithKey("palettes"));
        auto* lists = child<QComboBox>("paletteLists");
        ASSERT_GE(lists->findText(list), 0);
        lists->setCurrentIndex(lists->findText(list));
        emit lists->activated(lists->currentIndex());
    }
    /// "name | list" of the line below the field.
    [[nodiscard]] std::string facts() const
    {
        const auto* facts = child<ColorFacts>("colorFacts");
        QStringList texts;
        for (const QLabel* label : facts->findChildren<QLabel*>()) {
            if (label->isVisible() && texts.size() < 2) texts.append(label->text());
        }
        return texts.join(" | ").toStdString();
    }
    [[nodiscard]] std::string offered() const
    {
        QStringList names;
        for (int row = 0; row < edit().completer()->completionCount(); ++row) {
            edit().completer()->setCurrentRow(row);
            names.append(edit().completer()->currentCompletion());
        }
        return names.join(u' ').toStdString();
    }
};

TEST_F(FieldNamesTest, TheNameIsThatOfTheNamingListWithItsList)
{
    _window->colors().setColor(rgb(192, 0, 0));
    EXPECT_EQ(facts(), "dark | Reds");
    _window->colors().setColor(rgb(0, 0, 128));
    EXPECT_EQ(facts(), "navy | CSS Color 4");
    _window->colors().setColor(rgb(191, 0, 0));
    EXPECT_EQ(facts(), "Nearest: dark | Reds");
}

TEST_F(FieldNamesTest, TheNameFollowsTheListsAndTheSettings)
{
    _window->colors().setColor(rgb(0, 0, 255));
    EXPECT_EQ(facts(), "blue | CSS Color 4");
    const auto letGo = [this] {
        QTest::mouseClick(child<QWidget>("colorFacts"), Qt::LeftButton, {}, QPoint(1, 1));
    };
    put("data/Vantorel/Palettes/Reds.gpl", "GIMP Palette\nName: Reds\n0 0 255\tNot red at all\n");
    letGo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return facts() == "Not red at all | Reds"; })) << facts();
    chooseNamingList("Blues");
    letGo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return facts() == "blue | Blues"; })) << facts();
}

TEST_F(FieldNamesTest, ALongNameLeavesNoRoomForItsList)
{
    put("data/Vantorel/Palettes/Reds.gpl",
        "GIMP Palette\nName: Reds\n1 1 1\t" + QByteArray(100000, 'm') + "\n");
    _window->colors().setColor(rgb(1, 1, 1));
    EXPECT_TRUE(facts().starts_with("mmm")) << facts();
    EXPECT_LT(facts().size(), 100U);
}

TEST_F(FieldNamesTest, TypedNamesAreThoseOfTheChosenListsThenOfCSSThenOfAllLists)
{
    EXPECT_EQ(entered("darker"), qRgb(128, 0, 0));
    EXPECT_EQ(entered("DARKEST"), qRgb(64, 0, 0));
    EXPECT_EQ(entered("teal"), qRgb(0, 128, 128)) << "of CSS, and of a list of another program";
    put("data/Vantorel/Palettes/Blues.gpl",
        "GIMP Palette\nName: Blues\n1 2 200\tteal\n1 2 3\tdark\n1 2 4\tBlue of ours\n");
    EXPECT_EQ(entered("blue of ours"), qRgb(1, 2, 4));
    EXPECT_EQ(entered("teal"), qRgb(0, 128, 128));
    showPalette("Blues");
    EXPECT_EQ(entered("teal"), qRgb(1, 2, 200)) << "the list of the page is before CSS";
    EXPECT_EQ(entered("dark"), qRgb(192, 0, 0)) << "the naming list is before it";
}

TEST_F(FieldNamesTest, CodesAreColoursWhateverListsCallByThem)
{
    put("data/Vantorel/Palettes/Reds.gpl",
        "GIMP Palette\nName: Reds\n1 1 1\t#102030\n2 2 2\tfacade\n3 3 3\trgb(9, 9, 9)\n"
        "4 4 4\tred\n5 5 5\t4 red\n");
    EXPECT_EQ(entered("#102030"), qRgb(16, 32, 48));
    EXPECT_EQ(entered("rgb(9, 9, 9)"), qRgb(9, 9, 9));
    EXPECT_EQ(entered("red"), qRgb(4, 4, 4));
    EXPECT_EQ(entered("4 red"), qRgb(5, 5, 5));
    EXPECT_EQ(entered("facade"), qRgb(0xFA, 0xCA, 0xDE));
}

TEST_F(FieldNamesTest, ANameThatNoListHasIsReported)
{
    put("data/Vantorel/Palettes/Reds.gpl", "GIMP Palette\nName: Reds\n1 1 1\tBrick\n");
    EXPECT_EQ(entered("no such name"), qRgb(0, 0, 0));
    EXPECT_TRUE(child<ColorField>("colorField")->hasError());
    EXPECT_EQ(edit().text(), "no such name");
    const auto* message = _window->findChild<MessageLabel*>();
    EXPECT_TRUE(message->text().contains("\"no such name\"")) << message->text().toStdString();
    EXPECT_EQ(entered("rgb(1 2 blu)"), qRgb(0, 0, 0));
    EXPECT_TRUE(message->text().contains("blu")) << message->text().toStdString();
    EXPECT_FALSE(message->text().contains("list")) << message->text().toStdString();
    typeColor("bric");
    EXPECT_TRUE(child<ColorField>("colorField")->hasError());
    QTest::keyClicks(&edit(), "k");
    EXPECT_FALSE(child<ColorField>("colorField")->hasError()) << "it is a name now";
}

TEST_F(FieldNamesTest, NamesAreOfferedFromTheFirstLetterOn)
{
    EXPECT_EQ(edit().completer(), nullptr) << "no list is read before it is needed";
    typeColor("#d");
    EXPECT_EQ(edit().completer(), nullptr);
    typeColor("dark");
    ASSERT_TRUE(popup().isVisible());
    EXPECT_TRUE(QString::fromStdString(offered()).startsWith("dark darker darkest darkblue "))
        << offered();
    QTest::keyClicks(&edit(), "er");
    EXPECT_EQ(offered(), "darker");
    QTest::keyClicks(&edit(), "?");
    EXPECT_FALSE(popup().isVisible());
    put("data/Vantorel/Palettes/Reds.gpl", "GIMP Palette\nName: Reds\n1 1 1\tDarkest of all\n");
    typeColor("darkest");
    EXPECT_EQ(offered(), "Darkest of all");
}

TEST_F(FieldNamesTest, AnOfferedNameIsEnteredByAClickAndByTheKeys)
{
    typeColor("dar");
    ASSERT_TRUE(popup().isVisible());
    QTest::mouseClick(popup().viewport(), Qt::LeftButton, {},
                      popup().visualRect(popup().model()->index(1, 0)).center());
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit().text() == "#800000"; }))
        << edit().text().toStdString();
    EXPECT_EQ(chosenColor().rgb(), qRgb(128, 0, 0));
    EXPECT_FALSE(popup().isVisible());

    typeColor("dar");
    QTest::keyClick(&popup(), Qt::Key_Down);
    EXPECT_EQ(edit().text(), "dark");
    QTest::keyClick(&popup(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit().text() == "#C00000"; }))
        << edit().text().toStdString();
    QApplication::processEvents();
    EXPECT_EQ(edit().text(), "#C00000") << "not the name once more";
    EXPECT_EQ(chosenColor().rgb(), qRgb(192, 0, 0));
    EXPECT_FALSE(child<ColorField>("colorField")->hasError());
}

TEST_F(FieldNamesTest, LeavingTheFieldEntersItsTextWhileNamesAreOffered)
{
    typeColor("darkest");
    ASSERT_TRUE(popup().isVisible());
    QTest::keyClick(&popup(), Qt::Key_Tab);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(chosenColor().rgb(), qRgb(64, 0, 0));
}

TEST_F(FieldNamesTest, EscapeClosesTheNamesThenRestoresTheColour)
{
    typeColor("dar");
    QTest::keyClick(&popup(), Qt::Key_Down);
    QTest::keyClick(&popup(), Qt::Key_Escape);
    EXPECT_FALSE(popup().isVisible());
    QApplication::processEvents();
    EXPECT_EQ(chosenColor().rgb(), qRgb(0, 0, 0));
    QTest::keyClick(&edit(), Qt::Key_Escape);
    EXPECT_EQ(edit().text(), "#000000");
    EXPECT_TRUE(_window->isVisible());
}

}  // namespace
}  // namespace vantorel
