#include "PanelWindowFixture.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/ColorClipboard.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QSlider>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

/// Answers at once with the outcome set by the test.
class ScriptedScreenPicker final : public ScreenPicker {
public:
    explicit ScriptedScreenPicker(const ScreenPickResult& result) : _result(result) {}
    void start(QWidget*, Callback done) override { done(_result); }
    void cancel() override {}
    [[nodiscard]] bool isPicking() const override { return false; }

private:
    const ScreenPickResult& _result;
};

class PanelCommandsTest : public PanelWindowFixture {
protected:
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        QApplication::clipboard()->clear();
        _window->colors().setColor(rgb(255, 128, 0));
        _window->setFocus();
    }

    std::unique_ptr<ScreenPicker> screenPicker() override
    {
        return std::make_unique<ScriptedScreenPicker>(_pick);
    }
    static const QMimeData& clipboard() { return *QApplication::clipboard()->mimeData(); }
    /// The message in the bar, which is also its tool tip; empty if the bar shows the page's name.
    [[nodiscard]] QString message() const
    {
        return child<QWidget>("topBar")->findChild<QLabel*>()->toolTip();
    }
    [[nodiscard]] QAction* command(const QString& text) const
    {
        const QList<QAction*> all = _window->actions();
        const auto found = std::find_if(
            all.begin(), all.end(), [&](const QAction* action) { return action->text() == text; });
        return found != all.end() ? *found : nullptr;
    }
    void type(const QKeySequence& keys) { QTest::keySequence(_window.get(), keys); }

    /// How picks from the screen end.
    ScreenPickResult _pick;
};

TEST_F(PanelCommandsTest, CopyPutsTheDragTextAndTheColourOnTheClipboard)
{
    type(QKeySequence("Ctrl+C"));
    EXPECT_EQ(clipboard().text(), "#FF8000");
    EXPECT_EQ(qvariant_cast<QColor>(clipboard().colorData()).rgb(), qRgb(255, 128, 0));
    EXPECT_EQ(_window->colors().recent().front(), rgb(255, 128, 0)) << "what was copied is kept";
}

TEST_F(PanelCommandsTest, TheMenuOffersEverySnippet)
{
    const auto texts = _window->exchange().colorTexts();
    std::vector<QString> names;
    names.reserve(texts.size());
    for (const HostColorText& text : texts)
        names.push_back(qStringFrom(text.name));
    ASSERT_EQ(names.size(), 16U) << "two codes, twelve snippets, two of CSS Color 4";
    EXPECT_EQ(names[1], "RGB (CSS)");
    EXPECT_EQ(names[2], "ObjC fraction");

    QMenu* menu = command("Copy")->menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), static_cast<qsizetype>(texts.size()));
    menu->actions().at(13)->trigger();
    EXPECT_EQ(clipboard().text(), "RGB(255, 128, 0)");
    menu->actions().at(15)->trigger();
    EXPECT_TRUE(clipboard().text().startsWith("oklch(")) << clipboard().text().toStdString();
}

TEST_F(PanelCommandsTest, APageWithoutSnippetsCopiesTheHexCode)
{
    _window->pages().showPage(_window->pages().count() - 1);
    type(QKeySequence("Ctrl+Shift+C"));
    EXPECT_EQ(clipboard().text(), "#ff8000");
}

struct PasteRow {
    const char* text;
    QColor color;
};

class PasteTest : public PanelCommandsTest, public testing::WithParamInterface<PasteRow> {};

TEST_P(PasteTest, AcceptsEveryCSSColour)
{
    QApplication::clipboard()->setText(QString::fromUtf8(GetParam().text));
    type(QKeySequence("Ctrl+V"));
    EXPECT_EQ(chosenColor().rgba(), GetParam().color.rgba()) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Texts, PasteTest,
                         testing::Values(PasteRow{"#08f", QColor(0, 136, 255)},
                                         PasteRow{"#08f8", QColor(0, 136, 255, 136)},
                                         PasteRow{"0080ff", QColor(0, 128, 255)},
                                         PasteRow{"#0080ff80", QColor(0, 128, 255, 128)},
                                         PasteRow{"RGB(0, 128, 255);", QColor(0, 128, 255)},
                                         PasteRow{"hsl(210 100% 50%)", QColor(0, 128, 255)},
                                         PasteRow{"hwb(210 0% 0%)", QColor(0, 128, 255)},
                                         PasteRow{"color(srgb 0 0.5 1)", QColor(0, 128, 255)},
                                         PasteRow{"navy", QColor(0, 0, 128)}));

TEST_F(PanelCommandsTest, TheColourWellsAcceptDrops)
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

TEST_F(PanelCommandsTest, PastePrefersTheColourToTheText)
{
    auto data = mimeDataFromColor(rgb(1, 2, 3, 0.5), QStringLiteral("white"));
    QApplication::clipboard()->setMimeData(data.release());
    type(QKeySequence("Ctrl+V"));
    EXPECT_EQ(chosenColor().rgba(), qRgba(1, 2, 3, 128));
}

TEST_F(PanelCommandsTest, PastingAnInvalidColourChangesNoColourAndSaysWhy)
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

TEST_F(PanelCommandsTest, PastingAColourOutsideSRGBMapsItAndSaysSo)
{
    QApplication::clipboard()->setText("color(display-p3 1 0 0)");
    type(QKeySequence("Ctrl+V"));
    EXPECT_EQ(chosenColor().red(), 255);
    EXPECT_TRUE(message().contains("sRGB"));
}

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

TEST_F(PanelCommandsTest, TheContrastIsUpdatedLive)
{
    _window->colors().setBackground(rgb(255, 255, 255));
    struct Row {
        HostColor color;
        const char* text;
    };
    for (const auto& [color, shown] :
         {Row{rgb(0, 0, 0), "21.0 AAA"}, Row{rgb(0x76, 0x76, 0x76), "4.54 AA"},
          Row{rgb(0x77, 0x77, 0x77), "4.47 AA+"}, Row{rgb(255, 255, 0), "1.07 \u2013"}}) {
        _window->colors().setColor(color);
        EXPECT_EQ(child<QLabel>("contrast")->text(), QString::fromUtf8(shown));
    }
}

TEST_F(PanelCommandsTest, ARecentColourIsSelectedByMouseAndKeyboard)
{
    PanelMemory memory;
    memory.recent = {rgb(1, 1, 1), rgb(2, 2, 2), rgb(3, 3, 3)};
    _window->recall(memory);
    auto* row = child<RecentColors>("recentColors");
    QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(5, row->height() / 2));
    EXPECT_EQ(chosenColor().rgb(), qRgb(1, 1, 1));
    row->setFocus();
    QTest::keyClick(row, Qt::Key_End);
    QTest::keyClick(row, Qt::Key_Return);
    EXPECT_EQ(chosenColor().rgb(), qRgb(3, 3, 3));
}

TEST_F(PanelCommandsTest, AColourPickedFromTheScreenBecomesTheColour)
{
    using Outcome = ScreenPickResult::Outcome;
    _pick = {Outcome::picked, rgb(10, 20, 30), {}};
    type(QKeySequence("Ctrl+Shift+P"));
    EXPECT_EQ(chosenColor().rgb(), qRgb(10, 20, 30));
    EXPECT_EQ(clipboard().text(), "#0A141E") << "picked and copied in one step";

    _pick = {Outcome::notPossible, HostColor::blackColor(), {phrase("there is no way to pick")}};
    type(QKeySequence("Ctrl+P"));
    EXPECT_EQ(chosenColor().rgb(), qRgb(10, 20, 30));
    EXPECT_EQ(message(), "There is no way to pick.");
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
    QLabel* overlay = nullptr;
    for (QLabel* label : _window->findChildren<QLabel*>()) {
        if (label->accessibleName() == "Keyboard shortcuts") overlay = label;
    }
    ASSERT_NE(overlay, nullptr);
    EXPECT_TRUE(overlay->text().contains("Ctrl+P"));
    EXPECT_EQ(overlay->geometry(), _window->rect());
    QTest::keyClick(overlay, Qt::Key_Escape);
    EXPECT_FALSE(overlay->isVisible());
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
          Row{"dialog", "dialog", "Colour dialog"}}) {
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

TEST_F(PanelCommandsTest, TabMovesFromTheBarThroughThePageToTheTools)
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
    EXPECT_LT(place("Colour name"), place("Swap colour and background"));
    EXPECT_LT(place("Swap colour and background"), place("Copy"));
    EXPECT_LT(place("Copy"), place("Commands")) << names.join(", ").toStdString();
    EXPECT_EQ(place("More rings"), -1) << "not what is out of sight";
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
    auto* row = child<RecentColors>("recentColors");
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
