#include "panel/preferences/ConfigurationFile.h"
#include "panel/preferences/GeneralPreferences.h"
#include "panel/preferences/PanelPreferences.h"
#include "panel/preferences/PreferencesDialog.h"
#include "panel/widgets/PanelTheme.h"
#include "panel/widgets/SegmentedChoice.h"
#include "panel/widgets/ThemeTables.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

namespace vantorel {
namespace {

class PreferencesDialogTest : public testing::Test {
protected:
    PreferencesDialogTest()
    {
        applyTheme(QStringLiteral("light"));
        setConfigurationFolder(_folder.path());
        _preferences.emplace();
        _dialog = new PreferencesDialog(*_preferences, nullptr);
        _dialog->show();
        _dialog->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(_dialog));
    }
    ~PreferencesDialogTest() override
    {
        delete _dialog;
        setConfigurationFolder({});
        applyTheme(QStringLiteral("desktop"));
    }

    template <class Widget>
    [[nodiscard]] Widget& child(const char* name) const
    {
        return *_dialog->findChild<Widget*>(QString::fromLatin1(name));
    }

    QTemporaryDir _folder;
    std::optional<PanelPreferences> _preferences;
    QPointer<PreferencesDialog> _dialog;
};

TEST_F(PreferencesDialogTest, AThemeTakesEffectAtOnceAndIsKept)
{
    EXPECT_EQ(child<SegmentedChoice>("theme").currentKey(), "auto");
    QTest::mouseClick(&child<QRadioButton>("dark"), Qt::LeftButton);
    EXPECT_EQ(themeOf(QApplication::palette()), &darkTheme());
    EXPECT_EQ(PanelPreferences().theme(), "dark");
    QTest::mouseClick(&child<QRadioButton>("contrast"), Qt::LeftButton);
    EXPECT_EQ(themeOf(QApplication::palette()), &contrastTheme());
}

TEST_F(PreferencesDialogTest, TheThemeCanBeChosenByArrowKeys)
{
    child<QRadioButton>("auto").setFocus();
    QTest::keyClick(&child<QRadioButton>("auto"), Qt::Key_Right);
    QTest::keyClick(&child<QRadioButton>("light"), Qt::Key_Right);
    EXPECT_EQ(PanelPreferences().theme(), "dark");
    EXPECT_TRUE(child<QRadioButton>("dark").hasFocus());
}

TEST_F(PreferencesDialogTest, TheDesktopsStyleTakesTheChoiceOfThemesAway)
{
    child<QCheckBox>("desktopStyle").click();
    EXPECT_EQ(themeOf(QApplication::palette()), nullptr);
    EXPECT_FALSE(child<SegmentedChoice>("theme").isEnabled());
    EXPECT_EQ(PanelPreferences().themeInForce(), "desktop");
    child<QCheckBox>("desktopStyle").click();
    EXPECT_NE(themeOf(QApplication::palette()), nullptr);
    EXPECT_TRUE(child<SegmentedChoice>("theme").isEnabled());
}

TEST_F(PreferencesDialogTest, ATextSizeIsKept)
{
    auto& sizes = child<QComboBox>("textSize");
    EXPECT_EQ(sizes.currentData().toInt(), 100);
    sizes.setFocus();
    QTest::keyClick(&sizes, Qt::Key_Down);
    EXPECT_EQ(PanelPreferences().textSize(), 125);
}

TEST_F(PreferencesDialogTest, ResidenceIsKept)
{
    EXPECT_FALSE(_preferences->staysResident());
    _dialog->general().addResidence();
    child<QCheckBox>("residence").click();
    EXPECT_TRUE(PanelPreferences().staysResident());
    _preferences->setStaysResident(false);
    EXPECT_FALSE(child<QCheckBox>("residence").isChecked());
}

TEST_F(PreferencesDialogTest, TheShortcutIsForAResidentPanelAndIsKept)
{
    _dialog->general().addShortcut();
    auto& keys = child<QKeySequenceEdit>("pickShortcut");
    auto& note = child<QLabel>("pickShortcutNote");
    EXPECT_FALSE(keys.isEnabled());
    _preferences->setStaysResident(true);
    ASSERT_TRUE(keys.isEnabled());
    keys.setKeySequence(QKeySequence(QStringLiteral("Ctrl+Alt+C, Ctrl+D")));
    EXPECT_EQ(PanelPreferences().pickShortcut(), "Ctrl+Alt+C") << "one key only";
    _preferences->setShortcutProblem({phrase("it does not work")});
    EXPECT_EQ(note.text(), "It does not work.");
    keys.setKeySequence({});
    EXPECT_EQ(PanelPreferences().pickShortcut(), "");
}

TEST_F(PreferencesDialogTest, WhatPickingDoesIsKept)
{
    auto& after = child<QComboBox>("afterPicking");
    after.setFocus();
    QTest::keyClick(&after, Qt::Key_Down);
    EXPECT_EQ(PanelPreferences().afterPicking(), AfterPicking::copies);
    QTest::keyClick(&after, Qt::Key_Down);
    EXPECT_EQ(PanelPreferences().afterPicking(), AfterPicking::copiesHides);
    EXPECT_EQ(PanelPreferences().averagedSide(), 1);
    auto& average = child<SegmentedChoice>("average");
    QTest::mouseClick(average.findChild<QRadioButton*>(QStringLiteral("5")), Qt::LeftButton);
    EXPECT_EQ(PanelPreferences().averagedSide(), 5);
    _preferences->setAveragedSide(4);
    EXPECT_EQ(PanelPreferences().averagedSide(), 5) << "no square has that side";
}

TEST_F(PreferencesDialogTest, ShowsWhatIsSetElsewhere)
{
    _preferences->setTheme(QStringLiteral("light"));
    _preferences->setTextSize(150);
    EXPECT_EQ(child<SegmentedChoice>("theme").currentKey(), "light");
    EXPECT_EQ(child<QComboBox>("textSize").currentData().toInt(), 150);
}

TEST_F(PreferencesDialogTest, AWordThatIsChosenMovesNoOther)
{
    auto& theme = child<SegmentedChoice>("theme");
    const auto words = theme.findChildren<QRadioButton*>();
    QList<QRect> places;
    for (const QRadioButton* word : words)
        places.append(word->geometry());
    for (QRadioButton* chosen : words) {
        chosen->click();
        QCoreApplication::processEvents();
        for (int i = 0; i < words.size(); ++i)
            EXPECT_EQ(words[i]->geometry(), places[i]);
    }
}

TEST_F(PreferencesDialogTest, RowsCanBeAdded)
{
    auto* control = new QCheckBox(_dialog);
    _dialog->general().addRule();
    _dialog->general().addRow(QStringLiteral("More"), *control);
    EXPECT_EQ(control->accessibleName(), "More");
    EXPECT_EQ(control->parentWidget(), &_dialog->general());
}

TEST_F(PreferencesDialogTest, EscapeClosesIt)
{
    QTest::keyClick(_dialog, Qt::Key_Escape);
    EXPECT_TRUE(_dialog.isNull() || !_dialog->isVisible());
}

}  // namespace
}  // namespace vantorel
