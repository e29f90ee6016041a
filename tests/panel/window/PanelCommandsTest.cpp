#include "PanelCommandsFixture.h"
#include "hosts/qt/QtColors.h"
#include "panel/preferences/PanelPreferences.h"
#include "panel/preferences/PreferencesDialog.h"
#include "panel/window/ShortcutOverlay.h"

#include <gmock/gmock.h>

#include <QMenu>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>

#include <set>

namespace vantorel {
namespace {

class PanelCommandsTest : public PanelCommandsFixture {};

TEST_F(PanelCommandsTest, UndoAndRedoStepThroughTheColours)
{
    QTest::qWait(static_cast<int>(ColorHistory::settlingSeconds * 1000) + 50);
    _window->colors().setColor(rgb(1, 2, 3));
    type(QKeySequence("Ctrl+Z"));
    EXPECT_EQ(chosenColor().rgb(), qRgb(255, 128, 0));
    EXPECT_EQ(text("_fullHexText"), "#FF8000") << "the page follows";
    EXPECT_TRUE(command("Redo")->isEnabled());
    type(QKeySequence("Ctrl+Shift+Z"));
    EXPECT_EQ(chosenColor().rgb(), qRgb(1, 2, 3));
}

TEST_F(PanelCommandsTest, XSwapsTheTwoColours)
{
    _window->colors().setBackground(rgb(0, 0, 128));
    type(QKeySequence("X"));
    EXPECT_EQ(chosenColor().rgb(), qRgb(0, 0, 128));
    EXPECT_EQ(_window->colors().background(), rgb(255, 128, 0));
}

TEST_F(PanelCommandsTest, TypingAnXInAFieldDoesNotSwap)
{
    auto* field = child<QLineEdit>("_fullHexText");
    field->setFocus();
    QTest::keyClicks(field, "x");
    EXPECT_EQ(chosenColor().rgb(), qRgb(255, 128, 0));
}

TEST_F(PanelCommandsTest, ALastColourIsSelectedByMouseAndKeyboard)
{
    PanelMemory memory;
    memory.recent = {rgb(1, 1, 1), rgb(2, 2, 2), rgb(3, 3, 3)};
    memory.pinned = {rgb(9, 9, 9)};
    _window->recall(memory);
    auto* row = child<QWidget>("lastColors");
    QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(10, row->height() / 2));
    EXPECT_EQ(chosenColor().rgb(), qRgb(9, 9, 9)) << "pinned ones first";
    row->setFocus();
    QTest::keyClick(row, Qt::Key_Home);
    QTest::keyClick(row, Qt::Key_Right);
    QTest::keyClick(row, Qt::Key_Return);
    EXPECT_EQ(chosenColor().rgb(), qRgb(1, 1, 1));
}

TEST_F(PanelCommandsTest, TheLastColoursAreKeptAsAListOrCleared)
{
    PanelMemory memory;
    memory.recent = {rgb(1, 1, 1), rgb(2, 2, 2), rgb(2, 2, 2, 0.5)};
    memory.pinned = {rgb(9, 9, 9)};
    _window->recall(memory);
    auto* row = child<LastColors>("lastColors");
    emit row->keepAsListRequested();
    EXPECT_EQ(_window->pages().current()->key(), "palettes");
    const auto list = _desktop.paletteFiles().colorListNamed(u"Last colours");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->allKeys(), (std::vector<std::u16string>{u"#090909", u"#010101", u"#020202"}));

    emit row->clearRequested();
    EXPECT_TRUE(_window->colors().recent().empty());
    EXPECT_EQ(_window->colors().pinned(), memory.pinned);
}

TEST_F(PanelCommandsTest, ThePreferencesAreADialogOfTheWindow)
{
    type(QKeySequence("Ctrl+,"));
    auto* dialog = _window->findChild<PreferencesDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    dialog->close();
}

TEST_F(PanelCommandsTest, TheFirstColourIsNotRecent)
{
    PanelWindow fresh(_desktop, _search.plugins, _problems);
    fresh.recall(PanelMemory());
    EXPECT_EQ(fresh.colors().color(), PanelColors::firstColor());
    fresh.colors().setColor(rgb(1, 2, 3));
    EXPECT_TRUE(fresh.colors().recent().empty());
}

TEST_F(PanelCommandsTest, AColourPickedFromTheScreenBecomesTheColour)
{
    using Outcome = ScreenPickResult::Outcome;
    _pick.result = {.outcome = Outcome::picked, .color = rgb(10, 20, 30)};
    type(QKeySequence("Ctrl+Shift+P"));
    EXPECT_EQ(chosenColor().rgb(), qRgb(10, 20, 30));
    EXPECT_EQ(clipboard().text(), "#0A141E") << "picked and copied in one step";

    _pick.result = {.outcome = Outcome::notPossible, .reason = {phrase("there is no way to pick")}};
    type(QKeySequence("Ctrl+P"));
    EXPECT_EQ(chosenColor().rgb(), qRgb(10, 20, 30));
    EXPECT_EQ(message(), "There is no way to pick.");
}

TEST_F(PanelCommandsTest, PickingFollowsThePreferences)
{
    using Outcome = ScreenPickResult::Outcome;
    PanelPreferences preferences;
    preferences.setAveragedSide(5);
    preferences.setAfterPicking(AfterPicking::copies);
    _pick.result = {.outcome = Outcome::picked, .color = rgb(10, 20, 30)};
    type(QKeySequence("Ctrl+P"));
    EXPECT_EQ(_pick.options.averagedSide, 5);
    EXPECT_EQ(clipboard().text(), "#0A141E");
    EXPECT_FALSE(_window->isMinimized());

    _pick.result.color = rgb(11, 20, 30);
    preferences.setAfterPicking(AfterPicking::copiesHides);
    type(QKeySequence("Ctrl+P"));
    EXPECT_EQ(clipboard().text(), "#0B141E");
    EXPECT_TRUE(_window->isMinimized());

    // Another program decides itself.
    _window->showNormal();
    _pick.result.color = rgb(12, 20, 30);
    _window->exchange().pickFromScreen(false, [](const ScreenPickResult&) {});
    EXPECT_EQ(chosenColor().rgb(), qRgb(12, 20, 30));
    EXPECT_EQ(clipboard().text(), "#0B141E");
    EXPECT_FALSE(_window->isMinimized());
}

TEST_F(PanelCommandsTest, SaysThatAnAverageWasNotPossible)
{
    _pick.result = {.outcome = ScreenPickResult::Outcome::picked,
                    .color = rgb(10, 20, 30),
                    .lacksAverage = true};
    type(QKeySequence("Ctrl+P"));
    EXPECT_EQ(message(), "One pixel was picked: the desktop's own picker cannot average.");
}

TEST_F(PanelCommandsTest, EachColourPickedOnTheWayIsALastColour)
{
    _pick.onTheWay = {rgb(1, 1, 1), rgb(2, 2, 2), rgb(3, 3, 3)};
    type(QKeySequence("Ctrl+P"));
    EXPECT_EQ(chosenColor().rgb(), qRgb(3, 3, 3)) << "and was left by Escape then";
    EXPECT_THAT(_window->colors().recent(),
                testing::ElementsAre(rgb(3, 3, 3), rgb(2, 2, 2), rgb(1, 1, 1)));
}

TEST_F(PanelCommandsTest, TheMagnifierExplainsItselfInTheFirstThreePicks)
{
    _pick.result = {.outcome = ScreenPickResult::Outcome::picked};
    for (int i = 0; i < 3; ++i) {
        type(QKeySequence("Ctrl+P"));
        EXPECT_TRUE(_pick.options.showsHints) << i;
    }
    type(QKeySequence("Ctrl+P"));
    EXPECT_FALSE(_pick.options.showsHints);
    PanelWindow later(_desktop, _search.plugins, _problems,
                      std::make_unique<ScriptedScreenPicker>(_pick));
    later.recall(_window->memory());
    later.exchange().pick();
    EXPECT_FALSE(_pick.options.showsHints) << "nor after another start";
}

TEST_F(PanelCommandsTest, KeysSwitchPages)
{
    type(QKeySequence("Ctrl+PgDown"));
    EXPECT_EQ(_window->pages().currentIndex(), 1);
    type(QKeySequence("Ctrl+PgUp"));
    EXPECT_EQ(_window->pages().currentIndex(), 0);
    type(QKeySequence("Ctrl+PgUp"));
    EXPECT_EQ(_window->pages().currentIndex(), _window->pages().count() - 1);
}

TEST_F(PanelCommandsTest, TheShortcutsAreShownAndHidden)
{
    type(QKeySequence("F1"));
    auto* overlay = _window->findChild<ShortcutOverlay*>();
    ASSERT_NE(overlay, nullptr);
    const QString text = overlay->findChild<QLabel*>()->text();
    for (const char* shown : {"Ctrl+P", "Ctrl+Q", "<b>Hex</b>", "<b>Palettes</b>", "Ctrl+N",
                              "<b>Mix</b>", "Escape or a click closes the list."})
        EXPECT_TRUE(text.contains(QLatin1String(shown))) << shown;
    EXPECT_EQ(overlay->geometry(), _window->rect());
    QTest::keyClick(overlay, Qt::Key_PageDown);
    EXPECT_TRUE(overlay->isVisible());
    EXPECT_GT(overlay->verticalScrollBar()->value(), 0) << "the list is longer than the panel";
    QTest::keyClick(overlay, Qt::Key_Escape);
    EXPECT_FALSE(overlay->isVisible());
}

TEST_F(PanelCommandsTest, KeysThatTodaysKeyboardsLackAreNotListed)
{
    EXPECT_EQ(shownKeys({Qt::CTRL | Qt::Key_C, Qt::Key_F16, Qt::Key_F12}), "Ctrl+C, F12");
}

TEST_F(PanelCommandsTest, TheWindowIsCalledVantorel)
{
    EXPECT_EQ(_window->windowTitle(), "Vantorel");
}

TEST_F(PanelCommandsTest, TheStateIsRestored)
{
    _window->colors().setBackground(rgb(1, 2, 3));
    _window->pages().showPage(1);
    command("Always on top")->setChecked(true);
    writePanelMemory(_window->memory());

    PanelWindow next(_desktop, _search.plugins, _problems);
    next.recall(readPanelMemory());
    EXPECT_EQ(qColorFrom(next.colors().color()).rgb(), qRgb(255, 128, 0));
    EXPECT_EQ(next.colors().background(), rgb(1, 2, 3));
    EXPECT_EQ(next.pages().currentIndex(), 1);
    EXPECT_TRUE(next.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(PanelCommandsTest, ThePageIsRememberedByItsIdentifierAndByTheNameThatOlderPanelsWrote)
{
    struct Row {
        const char* key;
        const char* remembered;
        const char* name;
    };
    for (const auto& [key, remembered, name] :
         {Row{"palettes", "palettes", "Palettes"}, Row{"hex", "org.vantorel.hex", "Hex"},
          Row{"mix", "org.vantorel.mix", "Mix"}, Row{"scales", "org.vantorel.scales", "Scales"}}) {
        SCOPED_TRACE(key);
        ASSERT_TRUE(_window->pages().showPageWithKey(key));
        const int index = _window->pages().currentIndex();
        PanelMemory memory = _window->memory();
        EXPECT_EQ(memory.page, remembered);
        for (const char* page : {remembered, name}) {
            _window->pages().showNextPage();
            memory.page = page;
            _window->recall(memory);
            EXPECT_EQ(_window->pages().currentIndex(), index) << page;
        }
        memory.page = QStringLiteral("a page that is gone");
        _window->recall(memory);
        EXPECT_EQ(_window->pages().currentIndex(), index) << "no page for another";
    }
}

TEST_F(PanelCommandsTest, TabMovesFromThePageToTheColoursAndTheirTextsAndTheBar)
{
    QWidget* first = child<QLineEdit>("_fullHexText");
    first->setFocus();
    QStringList names;
    for (int i = 0; i < 40; ++i) {
        const QWidget* focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        names.append(focused->accessibleName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (QApplication::focusWidget() == first) break;
    }
    EXPECT_EQ(names.front(), "Hex code");
    const auto place = [&](const char* name) { return names.indexOf(QLatin1String(name)); };
    const QStringList wanted{"Colour name",
                             "Colour",
                             "Swap colour and background",
                             "Background",
                             "Form of the text, and of copies",
                             "Colour as a text",
                             "Copy",
                             "Copy as",
                             "Pick from the screen",
                             "Opacity",
                             "Pages",
                             "Commands"};
    for (qsizetype i = 1; i < wanted.size(); ++i)
        EXPECT_LT(names.indexOf(wanted[i - 1]), names.indexOf(wanted[i]))
            << wanted[i].toStdString() << " in " << names.join(", ").toStdString();
    EXPECT_NE(place("Commands"), -1);
    EXPECT_EQ(place("More rings"), -1) << "not what is out of sight";
    EXPECT_EQ(place("Last colours"), -1) << "nor what is empty";
}

TEST_F(PanelCommandsTest, BarAndToolsAreMirroredRightToLeft)
{
    _window->setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    _window->grab();
    const auto right = [&](const char* name) {
        QWidget* widget = child<QWidget>(name);
        return widget->mapTo(_window.get(), widget->rect().topRight()).x();
    };
    EXPECT_GT(right("colorWell"), right("backgroundWell"));
    EXPECT_GT(right("colorText"), right("pick"));
    auto* row = child<QWidget>("lastColors");
    PanelMemory memory;
    memory.recent = {rgb(1, 1, 1), rgb(2, 2, 2)};
    _window->recall(memory);
    QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(row->width() - 5, row->height() / 2));
    EXPECT_EQ(chosenColor().rgb(), qRgb(1, 1, 1)) << "the newest comes first";
    EXPECT_EQ(child<QWidget>("_fullHexText")->x(), 10) << "a page has places of its own";
}

TEST_F(PanelCommandsTest, EveryControlHasAToolTipAndAName)
{
    // The page's tip of a component that is 0 is blank, and not shown.
    _window->colors().setColor(rgb(17, 34, 51));
    for (QWidget* widget : _window->findChildren<QWidget*>()) {
        const bool isControl = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                               qobject_cast<QLineEdit*>(widget) != nullptr ||
                               qobject_cast<QSlider*>(widget) != nullptr;
        if (!isControl || !widget->isVisible()) continue;
        EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->objectName().toStdString();
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
}

}  // namespace
}  // namespace vantorel
