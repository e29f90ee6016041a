#include "PalettesPageFixture.h"

#include "panel/widgets/ColorFacts.h"
#include "panel/widgets/ColorField.h"

#include <QLabel>
#include <QMimeData>
#include <QToolButton>

namespace vantorel {
namespace {

/// The panel of a user who wants hex codes in lower case and without "#".
class HexFormTest : protected UserFolders, public PanelWindowFixture {
protected:
    HexFormTest() { choose("{EntryForm = Lowercase; UsePoundSign = No;}"); }
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        _window->resizeToPage({296, 340});
        _window->colors().setColor(rgb(255, 128, 0));
    }
    void choose(const QByteArray& settings) { put("data/Vantorel/Settings.plist", settings); }
    [[nodiscard]] std::string copied(QAction& command) const
    {
        QApplication::clipboard()->clear();
        command.trigger();
        return QApplication::clipboard()->text().toStdString();
    }
    [[nodiscard]] QString otherForm() const
    {
        return child<ColorFacts>("colorFacts")->findChildren<QLabel*>().at(2)->text();
    }
};

TEST_F(HexFormTest, CopiesHaveTheFormOfTheSettingsOnEveryPage)
{
    for (int page = 0; page < _window->pages().count(); ++page) {
        _window->pages().showPage(page);
        EXPECT_EQ(copied(_window->commands().copy()), "ff8000") << page;
        _window->exchange().copyHexCode();
        EXPECT_EQ(QApplication::clipboard()->text(), "ff8000") << page;
        EXPECT_EQ(_window->exchange().colorTexts().front().text, u"ff8000") << page;
        EXPECT_EQ(text("colorText"), "ff8000") << page;
        EXPECT_EQ(child<ColorField>("colorField")->findChild<QToolButton*>()->text(), "HEX");
        EXPECT_TRUE(otherForm().startsWith("oklch(")) << otherForm().toStdString();
    }
    _window->colors().setColor(rgb(255, 128, 0, 0.5));
    EXPECT_EQ(copied(_window->commands().copy()), "ff800080");
}

TEST_F(HexFormTest, TheOtherFormAndTheTipsHaveIt)
{
    _window->exchange().setForm("HSL (CSS)");
    EXPECT_EQ(otherForm(), "ff8000");
    EXPECT_TRUE(child<QWidget>("colorWell")->toolTip().contains(": ff8000"))
        << child<QWidget>("colorWell")->toolTip().toStdString();
    _window->colors().setColor(rgb(255, 128, 0, 0.5));
    EXPECT_EQ(otherForm(), "ff800080");
    EXPECT_TRUE(child<QWidget>("colorWell")->toolTip().contains(": ff8000, 50 %"));
}

TEST_F(HexFormTest, TheCopiesFollowTheSettings)
{
    ASSERT_TRUE(_window->pages().showPageWithKey("palettes"));
    EXPECT_EQ(copied(_window->commands().copy()), "ff8000");
    choose("{EntryForm = Uppercase; UsePoundSign = YES;}");
    EXPECT_EQ(copied(_window->commands().copy()), "#FF8000");
}

TEST_F(HexFormTest, ColoursDraggedOutOfAListHaveIt)
{
    QObject owner;
    PaletteEntriesModel model(&owner);
    model.setEntries({PaletteEntry(u"a", rgb(255, 128, 0)), PaletteEntry(u"b", rgb(1, 2, 255))});
    EXPECT_EQ(model.index(0).data(PaletteEntriesModel::hexRole), "ff8000");
    const std::unique_ptr<QMimeData> dragged(model.mimeData({model.index(0), model.index(1)}));
    EXPECT_EQ(dragged->text(), "ff8000\n0102ff");
    model.setFilter("#0102");
    EXPECT_EQ(model.rowCount(), 1) << "a code is found in any form";
}

}  // namespace
}  // namespace vantorel
