#include "PanelCommandsFixture.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/ColorClipboard.h"

#include <QDropEvent>
#include <QMenu>

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
    EXPECT_EQ(clipboard().text(), "#ff8000");
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

}  // namespace
}  // namespace vantorel
