#include "panel/preferences/SnippetPreferences.h"

#include "hosts/qt/QtColors.h"
#include "panel/preferences/PanelPreferences.h"
#include "panel/preferences/SnippetEditor.h"
#include "panel/preferences/SnippetRows.h"
#include "panel/widgets/PanelSnippets.h"
#include "snippets/SnippetFile.h"
#include "testing/headless/MemoryFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

namespace vantorel {
namespace {

class SnippetPreferencesTest : public testing::Test {
protected:
    SnippetPreferencesTest()
    {
        for (const char* folder :
             {"/home/machine", "/home/machine/share", "/home/machine/share/vantorel"})
            _files.createDirectory(folder);
        HostBaseDirectories directories;
        directories.programData = "/home/machine/share";
        _files.setBaseDirectories(directories);
        const std::vector<QTXCodeSnippet> shipped{{u"One", u"one(%d, %d, %d)", u"rgbFixed"},
                                                  {u"Two", u"two(0x%06x)", u"rgbPackedInt"},
                                                  {u"Three", u"three(0x%06x)", u"rgbPackedInt"}};
        _files.writeAtomically("/home/machine/share/vantorel/Snippets.plist",
                               snippetFileText(shipped));
        _page.emplace(_files, HostColor::colorWithCalibratedRed(1, 0.5, 0, 1), nullptr);
        _page->show();
        _page->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*_page));
    }

    template <class Widget>
    [[nodiscard]] Widget& child(const char* name) const
    {
        return *_page->findChild<Widget*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QListWidget& rows() const { return child<QListWidget>("snippets"); }
    [[nodiscard]] QStringList shownNames() const
    {
        QStringList names;
        for (int i = 0; i < rows().count(); ++i)
            names.append(rows().item(i)->text());
        return names;
    }
    /// As the panel's copy menu gets them.
    [[nodiscard]] QStringList offeredNames()
    {
        QStringList names;
        for (const QTXCodeSnippet& snippet : _offered.others())
            names.append(qStringFrom(*snippet.nameSnippet()));
        return names;
    }
    [[nodiscard]] QString remark() const { return child<QLabel>("snippetRemark").text(); }
    void typeInto(QLineEdit& edit, const QString& text)
    {
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    void typeFormat(const QString& text)
    {
        auto& format = child<QPlainTextEdit>("snippetFormat");
        format.setFocus();
        format.selectAll();
        QTest::keyClicks(&format, text);
    }

    MemoryFiles _files;
    PanelSnippets _offered{_files};
    std::optional<SnippetPreferences> _page;
};

TEST_F(SnippetPreferencesTest, ShowsEachSnippetWithItsLineForTheColour)
{
    EXPECT_EQ(shownNames(), (QStringList{"One", "Two", "Three"}));
    EXPECT_EQ(rows().item(0)->data(Qt::AccessibleDescriptionRole), "one(255, 127, 0)");
    EXPECT_EQ(child<QPlainTextEdit>("snippetResult").toPlainText(), "one(255, 127, 0)");
    _page->setColor(HostColor::colorWithCalibratedRed(0, 0, 1, 1));
    EXPECT_EQ(rows().item(1)->data(Qt::AccessibleDescriptionRole), "two(0x0000ff)");
    EXPECT_EQ(child<QPlainTextEdit>("snippetResult").toPlainText(), "one(0, 0, 255)");
}

TEST_F(SnippetPreferencesTest, WhatIsTypedIsTriedAtOnceAndKeptWhenTheFieldIsLeft)
{
    const QSignalSpy changed(&*_page, &SnippetPreferences::changed);
    typeFormat(QStringLiteral("mine %d/%d/%d"));
    EXPECT_EQ(child<QPlainTextEdit>("snippetResult").toPlainText(), "mine 255/127/0");
    rows().setFocus();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(rows().item(0)->data(Qt::AccessibleDescriptionRole), "mine 255/127/0");
    EXPECT_EQ(_offered.others().front().formatStringSnippet(), u"mine %d/%d/%d");
}

TEST_F(SnippetPreferencesTest, WhatIsTypedIsKeptWhenThePageIsDestroyed)
{
    typeFormat(QStringLiteral("mine %d/%d/%d"));
    _page.reset();
    EXPECT_EQ(_offered.others().front().formatStringSnippet(), u"mine %d/%d/%d");
}

TEST_F(SnippetPreferencesTest, AValueWithoutAPlaceIsNamed)
{
    typeFormat(QStringLiteral("%d, %d"));
    EXPECT_EQ(remark(), "Blue has no place in the format; write %d where it belongs.");
    typeFormat(QStringLiteral("%d %d %d %d"));
    EXPECT_TRUE(remark().contains("4 places for 3 values")) << remark().toStdString();
    typeFormat(QStringLiteral("v(%d, %d, %d)"));
    EXPECT_EQ(remark(), "Every value has its place.");
}

TEST_F(SnippetPreferencesTest, ANameThatIsTakenOrEmptyIsNotKept)
{
    auto& name = child<QLineEdit>("snippetName");
    for (const QString& typed :
         {QStringLiteral("Two"), QStringLiteral("VBasic"), QStringLiteral("  ")}) {
        typeInto(name, typed);
        rows().setFocus();
        EXPECT_EQ(shownNames(), (QStringList{"One", "Two", "Three"})) << typed.toStdString();
        EXPECT_FALSE(remark().startsWith("Every")) << typed.toStdString();
    }
    typeInto(name, QStringLiteral("Other"));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ(shownNames(), (QStringList{"Other", "Two", "Three"}));
}

TEST_F(SnippetPreferencesTest, ASnippetCanBeAddedAndRemovedAndBroughtBack)
{
    child<QAction>("addSnippet").trigger();
    EXPECT_EQ(shownNames(), (QStringList{"One", "New snippet", "Two", "Three"}));
    EXPECT_TRUE(child<QLineEdit>("snippetName").hasFocus());
    EXPECT_EQ(offeredNames(), shownNames());
    rows().setCurrentRow(2);
    rows().setFocus();
    QTest::keyClick(&rows(), Qt::Key_Delete);
    EXPECT_EQ(offeredNames(), (QStringList{"One", "New snippet", "Three"}));
    QTest::keyClick(&rows(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(offeredNames(), (QStringList{"One", "New snippet", "Two", "Three"}));
    QTest::keyClick(&rows(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(offeredNames(), (QStringList{"One", "Two", "Three"}));
}

TEST_F(SnippetPreferencesTest, KeysAndDropsMoveASnippet)
{
    rows().setFocus();
    rows().setCurrentRow(0);
    QTest::keyClick(&rows(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(offeredNames(), (QStringList{"Two", "One", "Three"}));
    EXPECT_EQ(rows().currentRow(), 1) << "the row stays chosen";
    QTest::keyClick(&rows(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(offeredNames(), (QStringList{"One", "Two", "Three"}));
    emit static_cast<SnippetRows&>(rows()).moveRequested(0, 3);
    EXPECT_EQ(offeredNames(), (QStringList{"Two", "Three", "One"}));
}

TEST_F(SnippetPreferencesTest, TheProgramsSnippetsCanBeRestored)
{
    rows().setCurrentRow(1);
    child<QAction>("removeSnippet").trigger();
    typeFormat(QStringLiteral("changed"));
    child<QAction>("addSnippet").trigger();
    child<QAction>("restoreSnippets").trigger();
    EXPECT_THAT(offeredNames(),
                testing::UnorderedElementsAre("One", "Two", "Three", "New snippet"));
    for (const QTXCodeSnippet& snippet : _offered.others())
        EXPECT_NE(snippet.formatStringSnippet(), u"changed");
}

TEST_F(SnippetPreferencesTest, WhatIsExportedCanBeImported)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Lines.plist"));
    child<QAction>("addSnippet").trigger();
    _page->exportFile(QStringLiteral("/home/machine/Lines.plist"));
    const auto bytes = _files.contentsAtPath("/home/machine/Lines.plist");
    ASSERT_TRUE(bytes);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(*bytes));
    file.close();
    child<QAction>("removeSnippet").trigger();
    EXPECT_EQ(shownNames(), (QStringList{"One", "Two", "Three"}));
    _page->importFile(path);
    EXPECT_EQ(shownNames(), (QStringList{"One", "Two", "Three", "New snippet"}));
    _page->importFile(folder.path());
    EXPECT_EQ(rows().count(), 4);
}

TEST_F(SnippetPreferencesTest, TheLineCanBeCopied)
{
    const QSignalSpy copied(&*_page, &SnippetPreferences::copyRequested);
    QTest::mouseClick(&child<QPushButton>("copySnippet"), Qt::LeftButton);
    ASSERT_EQ(copied.count(), 1);
    EXPECT_EQ(copied.front().front(), "one(255, 127, 0)");
}

}  // namespace
}  // namespace vantorel
