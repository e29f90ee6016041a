#include "PanelWindowFixture.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <QToolButton>

namespace vantorel {
namespace {

class PanelWindowTest : public PanelWindowFixture {};

TEST_F(PanelWindowTest, AColourSetOnThePanelShowsInEveryField)
{
    _window->colors().setColor(HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 1));
    EXPECT_EQ(text("_fullHexText"), "#FF8000");
    EXPECT_EQ(text("_rgbDecimalText"), "RGB(255, 128, 0);");
    EXPECT_EQ(text("_redHexText"), "FF");
    EXPECT_EQ(text("_greenHexText"), "80");
    EXPECT_EQ(text("_blueHexText"), "00");
    EXPECT_EQ(child<QWidget>("_redHexText")->toolTip(), "255");
}

TEST_F(PanelWindowTest, TheWindowIconIsSetAfterTheFirstPaint)
{
    PanelWindow window(_desktop, _search.plugins, _problems);
    EXPECT_TRUE(window.windowIcon().isNull());
    window.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.windowIcon().isNull(); }));
}

TEST_F(PanelWindowTest, AClickInADigitCellChangesTheColourEverywhere)
{
    _window->colors().setColor(HostColor::blackColor());
    auto* colors = child<QWidget>("_hexColorsView");
    const HostRect bounds{0, 0, double(colors->width()), double(colors->height())};
    // The middle of the cell of red's high digit 10: column 1 of 15, row 10 of 16.
    const double x = 1 + (bounds.width - 2) / 15 * 1.5;
    const double y = 6 + (bounds.height - 12) / 16 * 10.5;
    const QPoint at = widgetPoint({x, y}, bounds).toPoint();
    QTimer::singleShot(20, [&] { QTest::mouseRelease(colors, Qt::LeftButton, {}, at); });
    QTest::mousePress(colors, Qt::LeftButton, {}, at);
    EXPECT_EQ(text("_fullHexText"), "#A00000");
    EXPECT_EQ(chosenColor(), QColor(0xA0, 0, 0));
}

TEST_F(PanelWindowTest, AMinimisedPanelUpdatesItsPageWhenItIsRestored)
{
    _window->colors().setColor(rgb(255, 128, 0));
    _window->showMinimized();
    _window->colors().setColor(rgb(1, 2, 3));
    EXPECT_EQ(text("_fullHexText"), "#FF8000");
    _window->showNormal();
    EXPECT_EQ(text("_fullHexText"), "#010203");
}

TEST_F(PanelWindowTest, APageThatIsChosenWhileThePanelIsHiddenIsUpToDateWhenItAppears)
{
    _window->hide();
    _window->pages().showPage(1);
    _window->colors().setColor(rgb(1, 2, 3));
    _window->pages().showPage(0);
    _window->show();
    EXPECT_EQ(text("_fullHexText"), "#010203");
}

TEST_F(PanelWindowTest, TypingAHexCodeChangesThePanelsColour)
{
    auto* field = child<QLineEdit>("_fullHexText");
    field->selectAll();
    QTest::keyClicks(field, "f80");
    EXPECT_EQ(text("_rgbDecimalText"), "3: R:248 G:000* B:---");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(chosenColor(), QColor(0xFF, 0x88, 0));
    EXPECT_EQ(field->text(), "#FF8800");
}

TEST_F(PanelWindowTest, EscapeInAFieldRestoresEveryField)
{
    // One third is not an eight-bit value; Escape must not round it.
    const HostColor color = HostColor::colorWithCalibratedRed(1 / 3.0, 128 / 255.0, 0, 0.5);
    struct Row {
        const char* field;
        const char* typed;
    };
    for (const Row& row : {Row{"_fullHexText", "12"}, Row{"_rgbDecimalText", "nav"},
                           Row{"_redHexText", "7"}, Row{"_blueHexText", "zz"}}) {
        SCOPED_TRACE(row.field);
        _window->colors().setColor(color);
        auto* field = child<QLineEdit>(row.field);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, row.typed);
        QTest::keyClick(field, Qt::Key_Escape);
        EXPECT_EQ(text("_fullHexText"), "#558000");
        EXPECT_EQ(text("_rgbDecimalText"), "RGB(85, 128, 0);");
        EXPECT_EQ(text("_redHexText"), "55");
        EXPECT_EQ(text("_greenHexText"), "80");
        EXPECT_EQ(text("_blueHexText"), "00");
        EXPECT_EQ(_window->colors().color(), color);
        EXPECT_TRUE(_window->isVisible());
    }
}

TEST_F(PanelWindowTest, TheOpacitySliderSetsThePanelsAlpha)
{
    auto* slider = _window->findChild<QSlider*>();
    slider->setValue(50);
    EXPECT_NEAR(chosenColor().alphaF(), 0.5, 0.01);
    child<QLineEdit>("_fullHexText")->setText("00ff00");
    QTest::keyClick(child<QLineEdit>("_fullHexText"), Qt::Key_Return);
    EXPECT_NEAR(chosenColor().alphaF(), 0.5, 0.01) << "a typed colour keeps it";
    EXPECT_EQ(chosenColor().green(), 255);
}

TEST_F(PanelWindowTest, TheModeButtonsShowTheActiveMode)
{
    auto* wheel = child<QToolButton>("wheelViewModeButton");
    auto* slider = child<QToolButton>("pickViewModeButton");
    EXPECT_TRUE(slider->isChecked());
    wheel->click();
    EXPECT_TRUE(wheel->isChecked());
    EXPECT_FALSE(slider->isChecked());
    wheel->click();
    EXPECT_TRUE(wheel->isChecked());
    _window->grab();
    EXPECT_GE(child<QWidget>("increaseCubeRingsButton")->x(), 0);
    slider->click();
}

TEST_F(PanelWindowTest, TheSettingsReplaceTheColours)
{
    const QRect place = child<QWidget>("_hexColorsView")->geometry();
    child<QToolButton>("settingsButton")->click();
    auto* settings = child<QWidget>("_hexSettingsView");
    ASSERT_NE(settings, nullptr);
    EXPECT_EQ(settings->geometry(), place);
    EXPECT_EQ(child<QWidget>("_hexColorsView"), nullptr) << "out of the window";
    for (const char* name : {"poundSignCheckbox", "entryFormPopUp", "componentDisplayPopUp",
                             "cCodeEntryFormPopUp", "codeDragTypePopUp", "settingsDoneButton"}) {
        EXPECT_TRUE(settings->rect().contains(child<QWidget>(name)->geometry())) << name;
    }
    child<QAbstractButton>("settingsDoneButton")->click();
    EXPECT_NE(child<QWidget>("_hexColorsView"), nullptr);
}

TEST_F(PanelWindowTest, NoControlsOverlapAtAnySize)
{
    for (const QSize size : {QSize(175, 190), QSize(212, 220), QSize(260, 340), QSize(480, 600)}) {
        _window->resizeToPage(size);
        auto* page = child<QWidget>("_hexPickerView");
        EXPECT_EQ(page->size(), size);
        QList<QWidget*> shown;
        for (QObject* object : page->children()) {
            auto* widget = qobject_cast<QWidget*>(object);
            if (widget != nullptr && page->rect().intersects(widget->geometry()))
                shown.append(widget);
        }
        for (qsizetype i = 0; i < shown.size(); ++i) {
            EXPECT_TRUE(page->rect().contains(shown[i]->geometry()))
                << shown[i]->objectName().toStdString() << " at " << size.width();
            for (qsizetype j = i + 1; j < shown.size(); ++j) {
                EXPECT_FALSE(shown[i]->geometry().intersects(shown[j]->geometry()))
                    << shown[i]->objectName().toStdString() << " and "
                    << shown[j]->objectName().toStdString() << " at " << size.width();
            }
        }
    }
}

TEST_F(PanelWindowTest, TheOtherPageFollowsTheColour)
{
    ASSERT_EQ(_window->pages().count(), 4);
    _window->colors().setColor(HostColor::colorWithCalibratedRed(0, 0, 1, 0.5));
    _window->pages().showPage(1);
    child<QAbstractButton>("mixSpace3")->click();
    EXPECT_EQ(text("mixNumber1").simplified(), "240.0 \u00B0");
    EXPECT_EQ(text("mixNumber4").simplified(), "50 %");
    auto* value = child<QLineEdit>("mixNumber3");
    value->setFocus();
    value->setText(QStringLiteral("20"));
    QTest::keyClick(value, Qt::Key_Return);
    EXPECT_EQ(chosenColor().rgba(), qRgba(0, 0, 51, 128));
    _window->pages().showPage(0);
    EXPECT_EQ(text("_fullHexText"), "#000033");
}

TEST(PanelPluginsTest, PluginsWithoutAPageAreNamedAndTheOthersWork)
{
    const std::string folder = VANTOREL_TEST_PLUGINS;
    QtDesktop desktop;
    const auto search = loadPlugins({}, {folder + "/throwing-plugin.so",
                                         folder + "/empty-plugin.so", folder + "/good-plugin.so"});
    EXPECT_TRUE(search.problems.empty());
    std::vector<Message> problems;
    PanelWindow window(desktop, search.plugins, problems);
    EXPECT_EQ(window.pages().count(), 2) << "the good one's and the panel's own";
    ASSERT_EQ(problems.size(), 2U);
    EXPECT_THAT(english(problems[0]), testing::HasSubstr("throwing-plugin.so is left out"));
    EXPECT_THAT(english(problems[0]), testing::HasSubstr("on purpose"));
    EXPECT_THAT(english(problems[1]), testing::HasSubstr("empty-plugin.so is left out"));
    // The good plug-in has no interface file: a message takes the place of its page.
    QStringList texts;
    for (const QLabel* label : window.findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.filter("could not be created").size() == 1) << texts.join("|").toStdString();
}

}  // namespace
}  // namespace vantorel
