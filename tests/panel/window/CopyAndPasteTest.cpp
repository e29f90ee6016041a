#include "PanelCommandsFixture.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/ColorClipboard.h"

#include <QDialog>
#include <QDropEvent>
#include <QFile>
#include <QMenu>
#include <QTemporaryDir>
#include <QUrl>

#include <array>

namespace vantorel {
namespace {

class CopyAndPasteTest : public PanelCommandsFixture {};

TEST_F(CopyAndPasteTest, CopyPutsTheDragTextAndTheColourOnTheClipboard)
{
    type(QKeySequence("Ctrl+C"));
    EXPECT_EQ(clipboard().text(), "#FF8000");
    EXPECT_EQ(qvariant_cast<QColor>(clipboard().colorData()).rgb(), qRgb(255, 128, 0));
    EXPECT_EQ(_window->colors().recent().front(), rgb(255, 128, 0)) << "what was copied is kept";
}

TEST_F(CopyAndPasteTest, CopiesKeepTheOpacityAndDragsDoNot)
{
    _window->colors().setColor(rgb(255, 128, 0, 0.5));
    type(QKeySequence("Ctrl+C"));
    EXPECT_EQ(clipboard().text(), "#FF800080");
    const auto texts = _window->exchange().colorTexts();
    EXPECT_EQ(qStringFrom(texts[0].text), "#FF800080");
    EXPECT_EQ(qStringFrom(texts[1].text), "RGB(255 128 0 / 0.5);");
    EXPECT_EQ(_window->exchange().draggedText(), "#FF8000");

    ASSERT_TRUE(_window->pages().showPageWithKey("palettes"));
    EXPECT_EQ(qStringFrom(_window->exchange().colorTexts()[1].text), "rgb(255 128 0 / 0.5)");
}

TEST_F(CopyAndPasteTest, CopyIsOfferedOnceAndCopyAsHasTheForms)
{
    QStringList texts;
    for (const QAction* action : _window->commands().menu().actions())
        texts.append(action->text());
    EXPECT_EQ(texts.count("Copy"), 1);
    EXPECT_EQ(texts.count("Copy as"), 1);
    const QAction* copyAs = _window->commands().menu().actions().at(texts.indexOf("Copy as"));
    EXPECT_EQ(copyAs->menu(), &_window->commands().copyMenu());
}

TEST_F(CopyAndPasteTest, TheCopyMenuIsNarrowAndShortensValuesInTheMiddle)
{
    QMenu& menu = _window->commands().copyMenu();
    emit menu.aboutToShow();
    EXPECT_LE(menu.sizeHint().width(), 360);
    EXPECT_GE(menu.sizeHint().width(), 300) << "the room is used";
    QStringList names;
    QString longest;
    for (const QAction* action : menu.actions()) {
        names.append(action->text().section('\t', 0, 0));
        if (names.back() == "ObjC fraction") longest = action->text().section('\t', 1);
    }
    EXPECT_EQ(names.mid(0, 5),
              (QStringList{"Hex Code", "RGB (CSS)", "HSL (CSS)", "OKLCH (CSS)", "ObjC fraction"}));
    EXPECT_TRUE(longest.startsWith("[NS")) << longest.toStdString();
    EXPECT_TRUE(longest.endsWith("]")) << longest.toStdString();
}

TEST_F(CopyAndPasteTest, TheMenuOffersEverySnippet)
{
    const auto texts = _window->exchange().colorTexts();
    std::vector<QString> names;
    names.reserve(texts.size());
    for (const HostColorText& text : texts)
        names.push_back(qStringFrom(text.name));
    ASSERT_EQ(names.size(), 16U) << "two codes, twelve snippets, two of CSS Color 4";
    EXPECT_EQ(names[1], "RGB (CSS)");
    EXPECT_EQ(names[4], "ObjC fraction");

    QMenu* menu = &_window->commands().copyMenu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), static_cast<qsizetype>(texts.size() + 1));
    menu->actions().at(15)->trigger();
    EXPECT_EQ(clipboard().text(), "RGB(255, 128, 0)");
    menu->actions().at(3)->trigger();
    EXPECT_TRUE(clipboard().text().startsWith("oklch(")) << clipboard().text().toStdString();
}

TEST_F(CopyAndPasteTest, SnippetsOfTheProgramAreOfferedBesideThoseOfThePage)
{
    _window->colors().setColor(rgb(255, 128, 0, 0.5));
    QMenu& menu = _window->commands().copyMenu();
    emit menu.aboutToShow();
    const QAction* last = menu.actions().constLast();
    ASSERT_NE(last->menu(), nullptr);
    const auto actions = last->menu()->actions();
    ASSERT_EQ(actions.size(), 16);
    EXPECT_TRUE(actions[0]->text().startsWith("SwiftUI\t")) << actions[0]->text().toStdString();
    EXPECT_LE(last->menu()->sizeHint().width(), 360);
    actions[0]->trigger();
    EXPECT_EQ(clipboard().text(), "Color(red: 1.000, green: 0.502, blue: 0.000, opacity: 0.500)");

    _window->exchange().setForm("Rust");
    EXPECT_EQ(_window->exchange().copiedText(), "Rgba([255u8, 128, 0, 127])");
}

TEST_F(CopyAndPasteTest, APageWithoutSnippetsCopiesTheHexCode)
{
    _window->pages().showPage(_window->pages().count() - 1);
    type(QKeySequence("Ctrl+Shift+C"));
    EXPECT_EQ(clipboard().text(), "#FF8000");
}

struct PasteRow {
    const char* text;
    QColor color;
};

class PasteTest : public CopyAndPasteTest, public testing::WithParamInterface<PasteRow> {};

TEST_P(PasteTest, AcceptsEveryCSSColour)
{
    QApplication::clipboard()->setText(QString::fromUtf8(GetParam().text));
    type(QKeySequence("Ctrl+V"));
    EXPECT_EQ(chosenColor().rgba(), GetParam().color.rgba()) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PasteTest,
    testing::Values(
        PasteRow{"#08f", QColor(0, 136, 255)}, PasteRow{"#08f8", QColor(0, 136, 255, 136)},
        PasteRow{"0080ff", QColor(0, 128, 255)}, PasteRow{"#0080ff80", QColor(0, 128, 255, 128)},
        PasteRow{"RGB(0, 128, 255);", QColor(0, 128, 255)},
        PasteRow{"hsl(210 100% 50%)", QColor(0, 128, 255)},
        PasteRow{"hwb(210 0% 0%)", QColor(0, 128, 255)},
        PasteRow{"color(srgb 0 0.5 1)", QColor(0, 128, 255)},
        PasteRow{"let c = Color(red: 0.0, green: 0.502, blue: 1, opacity: 1)", QColor(0, 128, 255)},
        PasteRow{"\\x1b[38;2;0;128;255mtext", QColor(0, 128, 255)},
        PasteRow{"navy", QColor(0, 0, 128)}));

TEST_F(CopyAndPasteTest, TheColourWellsAcceptDrops)
{
    const auto drop = [&](const char* well, QMimeData& data) {
        auto* target = child<QWidget>(well);
        const QPoint middle = target->rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent dropped(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &dropped);
        return dropped.isAccepted();
    };
    QMimeData text;
    text.setText(QStringLiteral("oklch(0 0 0)\0").append(QChar(u'\0')));
    EXPECT_TRUE(drop("colorWell", text)) << "some programs end a text with a NUL";
    EXPECT_EQ(chosenColor().rgb(), qRgb(0, 0, 0));

    QMimeData words;
    const std::array<quint16, 4> channels{0xFFFF, 0x8080, 0, 0xFFFF};
    words.setData("application/x-color",
                  QByteArray(reinterpret_cast<const char*>(channels.data()), sizeof channels));
    EXPECT_TRUE(drop("backgroundWell", words));
    EXPECT_EQ(qColorFrom(_window->colors().background()).rgb(), qRgb(255, 128, 0));
    EXPECT_EQ(chosenColor().rgb(), qRgb(0, 0, 0)) << "the other well stays";

    QMimeData picture;
    picture.setData("image/png", "x");
    EXPECT_FALSE(drop("colorWell", picture));
}

TEST_F(CopyAndPasteTest, PastePrefersTheColourToTheText)
{
    auto data = mimeDataFromColor(rgb(1, 2, 3, 0.5), QStringLiteral("white"));
    QApplication::clipboard()->setMimeData(data.release());
    type(QKeySequence("Ctrl+V"));
    EXPECT_EQ(chosenColor().rgba(), qRgba(1, 2, 3, 128));
}

TEST_F(CopyAndPasteTest, PastingAnInvalidColourChangesNoColourAndSaysWhy)
{
    for (const QString& text : {QStringLiteral("no colour"), QString(100000, u'x'), QString()}) {
        QApplication::clipboard()->setText(text);
        _window->showMessage({});
        type(QKeySequence("Ctrl+V"));
        EXPECT_EQ(chosenColor().rgb(), qRgb(255, 128, 0));
        EXPECT_FALSE(message().isEmpty());
    }
    QMimeData damaged;
    damaged.setData("application/x-color", "12345");
    EXPECT_FALSE(colorFromMimeData(damaged).color.has_value());
    EXPECT_FALSE(colorFromMimeData(damaged).message.isEmpty());
}

TEST_F(CopyAndPasteTest, PastingAColourOutsideSRGBMapsItAndSaysSo)
{
    QApplication::clipboard()->setText("color(display-p3 1 0 0)");
    type(QKeySequence("Ctrl+V"));
    EXPECT_EQ(chosenColor().red(), 255);
    EXPECT_TRUE(message().contains("sRGB"));
}

TEST_F(CopyAndPasteTest, AFailureIsShownWholeUntilTheNextSuccess)
{
    QApplication::clipboard()->setText("color-mix(in oklab, red 30%, rebeccamauve 70%)");
    _window->resizeToPage({180, 286});
    const int minimum = _window->minimumHeight();
    type(QKeySequence("Ctrl+V"));
    ASSERT_TRUE(messageLabel().isVisible());
    EXPECT_GE(messageLabel().height(), messageLabel().heightForWidth(messageLabel().width()));
    EXPECT_GT(messageLabel().y(), child<QWidget>("colorField")->geometry().bottom());
    EXPECT_LT(messageLabel().geometry().bottom(), child<QWidget>("pageBar")->y());
    EXPECT_GT(_window->minimumHeight(), minimum) << "the page keeps its least height";

    QApplication::clipboard()->setText("navy");
    type(QKeySequence("Ctrl+V"));
    EXPECT_FALSE(messageLabel().isVisible());
    EXPECT_EQ(_window->minimumHeight(), minimum);

    QApplication::clipboard()->setText("nonsense");
    type(QKeySequence("Ctrl+V"));
    ASSERT_TRUE(messageLabel().isVisible());
    type(QKeySequence("Ctrl+C"));
    EXPECT_EQ(message(), "\"#000080\" copied.");

    type(QKeySequence("Ctrl+V"));
    EXPECT_EQ(message(), QString()) << "a success without a message takes the last one away";
}

struct LetterRow {
    char letter;
    const char* copied;
};
void PrintTo(const LetterRow& row, std::ostream* out)
{
    *out << row.letter;
}

class PickLetterTest : public PanelCommandsFixture,
                       public testing::WithParamInterface<LetterRow> {};

TEST_P(PickLetterTest, PicksAndCopiesInItsForm)
{
    _pick.result = {.outcome = ScreenPickResult::Outcome::picked, .color = rgb(59, 130, 246)};
    _pick.letter = GetParam().letter;
    type(QKeySequence("Ctrl+P"));
    EXPECT_TRUE(_pick.letterPicks);
    EXPECT_EQ(clipboard().text(), GetParam().copied);
    EXPECT_EQ(chosenColor(), QColor(59, 130, 246));
    EXPECT_EQ(_window->colors().recent().front(), rgb(59, 130, 246));
}

INSTANTIATE_TEST_SUITE_P(Letters, PickLetterTest,
                         testing::Values(LetterRow{'H', "#3B82F6"},
                                         LetterRow{'R', "rgb(59, 130, 246)"},
                                         LetterRow{'S', "hsl(217.22 91.22% 59.8%)"},
                                         LetterRow{'O', "oklch(62.308% 0.18801 259.815)"}),
                         [](const auto& row) { return std::string(1, row.param.letter); });

TEST_F(CopyAndPasteTest, OtherLettersAndPicksForOthersDoNotChooseTheForm)
{
    _pick.result = {.outcome = ScreenPickResult::Outcome::picked, .color = rgb(59, 130, 246)};
    _pick.letter = 'X';
    type(QKeySequence("Ctrl+P"));
    EXPECT_FALSE(_pick.letterPicks);
    EXPECT_EQ(QApplication::clipboard()->text(), "") << "the preferences do not ask for it";
    _pick.letter = 'R';
    _window->exchange().pickFromScreen(false, [](const ScreenPickResult&) {});
    EXPECT_FALSE(_pick.letterPicks);
    EXPECT_EQ(QApplication::clipboard()->text(), "");
}

TEST_F(CopyAndPasteTest, TheMagnifierKnowsTheNamesOfColours)
{
    type(QKeySequence("Ctrl+P"));
    ASSERT_TRUE(_pick.options.nameOf);
    EXPECT_EQ(qStringFrom(_pick.options.nameOf(rgb(0, 0, 128))), "navy");
    EXPECT_EQ(qStringFrom(_pick.options.nameOf(rgb(59, 130, 246))),
              QStringLiteral("\u2248 dodgerblue"));
}

class PictureDropsTest : public PanelCommandsFixture {
protected:
    /// Drops on the first widget at a place that takes it, as Qt does.
    bool drop(const QMimeData& data, const char* over)
    {
        for (auto* target = _window->findChild<QWidget*>(over); target != nullptr;
             target = target->parentWidget()) {
            if (!target->acceptDrops()) continue;
            QDragEnterEvent entered({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            entered.ignore();
            QApplication::sendEvent(target, &entered);
            if (!entered.isAccepted()) continue;
            QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(target, &dropped);
            return dropped.isAccepted();
        }
        return false;
    }
};

TEST_F(PictureDropsTest, APictureIsDroppedOnEveryPageAndOnTheColours)
{
    const QTemporaryDir folder;
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(QColor(59, 130, 246));
    const QString path = folder.filePath("Sky.png");
    ASSERT_TRUE(picture.save(path));
    for (const char* over : {"_hexColorsView", "colorWell"}) {
        ASSERT_NE(_window->findChild<QWidget*>(over), nullptr) << over;
        ASSERT_TRUE(_window->pages().showPageWithKey("hex"));
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(path)});
        file.setText(path);
        EXPECT_TRUE(drop(file, over)) << over;
        EXPECT_EQ(_window->pages().current()->key(), "palettes") << over;
        auto* window = _window->findChild<QDialog*>("pictureColors");
        ASSERT_NE(window, nullptr) << over;
        EXPECT_TRUE(window->windowTitle().contains("Sky"));
        delete window;
    }
    EXPECT_EQ(chosenColor(), QColor(255, 128, 0)) << "a file is not a colour";
}

TEST_F(PictureDropsTest, OtherFilesAreLeftToThePages)
{
    const QTemporaryDir folder;
    QFile other(folder.filePath("notes.txt"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("not a picture");
    other.close();
    ASSERT_TRUE(_window->pages().showPageWithKey("hex"));
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(other.fileName())});
    EXPECT_FALSE(drop(file, "_hexColorsView"));
    EXPECT_EQ(_window->pages().current()->key(), "hex");
}

}  // namespace
}  // namespace vantorel
