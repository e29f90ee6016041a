#include "PanelCommandsFixture.h"
#include "csscolor/GamutMapping.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace vantorel {
namespace {

/// Colours outside sRGB, which only some pages take as they are.
class WideGamutTest : public PanelCommandsFixture {
protected:
    void SetUp() override
    {
        PanelCommandsFixture::SetUp();
        _window->pages().showPageWithKey(QStringLiteral("mix"));
    }
    void enterIntoField(const QString& typed)
    {
        auto* field = child<QLineEdit>("colorText");
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, typed);
        QTest::keyClick(field, Qt::Key_Return);
    }
    [[nodiscard]] HostColor::Components color() const
    {
        return *_window->colors().color().calibratedRGB();
    }
    [[nodiscard]] QString form(const char16_t* name) const
    {
        for (const HostColorText& text : _window->exchange().colorTexts())
            if (text.name == name) return qStringFrom(text.text);
        return {};
    }

    /// A green of Display P3, and the nearest one of sRGB.
    const QString _wide = QStringLiteral("color(display-p3 0 1 0)");
    const HostColor _nearest = [] {
        const auto [red, green, blue] =
            convertedColor({0, 1, 0}, ColorSpace::displayP3, ColorSpace::srgb);
        return mappedIntoSRGB(HostColor::colorWithCalibratedRed(red, green, blue, 1));
    }();
};

TEST_F(WideGamutTest, AColourOutsideSRGBIsHeldAsItIs)
{
    enterIntoField(_wide);
    EXPECT_NEAR(color().red, -0.511, 0.001);
    EXPECT_NEAR(color().green, 1.018, 0.001);
    EXPECT_EQ(message(), "");
    _window->colors().setOpacity(50);
    EXPECT_NEAR(color().red, -0.511, 0.001);
}

TEST_F(WideGamutTest, OtherPagesGetTheNearestColourAndThePanelSaysSo)
{
    enterIntoField(_wide);
    _window->pages().showPageWithKey(QStringLiteral("hex"));
    // The hex page cuts fractions of bytes off.
    EXPECT_EQ(text("_fullHexText").left(6), qColorFrom(_nearest).name().toUpper().left(6));
    EXPECT_TRUE(message().contains("outside sRGB")) << message().toStdString();
    EXPECT_LT(color().red, 0) << "looking at it changes nothing";
    _window->pages().showPageWithKey(QStringLiteral("mix"));
    EXPECT_EQ(message(), "");
}

TEST_F(WideGamutTest, AColourThatIsTypedOnAnotherPageIsHeldToo)
{
    _window->pages().showPageWithKey(QStringLiteral("hex"));
    enterIntoField(_wide);
    EXPECT_TRUE(message().contains("outside sRGB"));
    EXPECT_EQ(text("_fullHexText").left(6), qColorFrom(_nearest).name().toUpper().left(6));
    EXPECT_LT(color().red, 0);
}

TEST_F(WideGamutTest, FormsOfSRGBHaveTheNearestColourAndTheOthersTheColour)
{
    enterIntoField(_wide);
    EXPECT_EQ(form(u"Hex Code"), qColorFrom(_nearest).name().toUpper());
    EXPECT_TRUE(form(u"Display P3 (CSS)").startsWith("color(display-p3 "));
    EXPECT_TRUE(form(u"OKLCH (CSS)").startsWith("oklch(84.8"))
        << form(u"OKLCH (CSS)").toStdString();
    EXPECT_EQ(_window->exchange().copiedText(), form(u"OKLCH (CSS)"));
    _window->colors().setColor(rgb(1, 2, 3));
    EXPECT_EQ(form(u"Display P3 (CSS)"), "");
    EXPECT_EQ(_window->exchange().copiedText(), "#010203");
}

TEST_F(WideGamutTest, OtherProgramsGetTheNearestColour)
{
    enterIntoField(_wide);
    _window->exchange().copy();
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    EXPECT_EQ(qvariant_cast<QColor>(copied->colorData()).rgb(), qColorFrom(_nearest).rgb());
    EXPECT_TRUE(copied->text().startsWith("oklch("));
}

TEST_F(WideGamutTest, CopyingAFormOfSRGBSaysThatItIsTheNearestColour)
{
    enterIntoField(_wide);
    _window->exchange().copyHexCode();
    EXPECT_TRUE(message().contains("nearest colour inside sRGB")) << message().toStdString();
    _window->exchange().copy();
    EXPECT_TRUE(message().contains("copied")) << message().toStdString();
    EXPECT_FALSE(message().contains("nearest")) << message().toStdString();
}

TEST_F(WideGamutTest, TheMemoryKeepsTheColour)
{
    enterIntoField(_wide);
    _window->colors().setOpacity(50);
    _window->exchange().copy();
    ASSERT_TRUE(writePanelMemory(_window->memory()));
    const PanelMemory memory = readPanelMemory();
    const auto read = memory.color.calibratedRGB().value_or(HostColor::Components{});
    EXPECT_NEAR(read.red, -0.511, 0.001);
    EXPECT_NEAR(read.green, 1.018, 0.001);
    EXPECT_NEAR(read.alpha, 0.5, 0.001);
    ASSERT_FALSE(memory.recent.empty());
    EXPECT_LT(memory.recent.front().calibratedRGB()->red, -0.5);
    ASSERT_TRUE(writePanelMemory(memory));
    EXPECT_EQ(readPanelMemory().color, memory.color) << "a second writing changes nothing";
}

TEST_F(WideGamutTest, TheNameSaysThatItIsOutside)
{
    enterIntoField(_wide);
    QStringList texts;
    for (const QLabel* label : _window->findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_EQ(texts.filter("Outside sRGB").size(), 1) << texts.join("|").toStdString();
}

}  // namespace
}  // namespace vantorel
