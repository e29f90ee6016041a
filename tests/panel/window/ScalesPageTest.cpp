#include "PanelCommandsFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

namespace vantorel {
namespace {

/// The page "Scales" in the panel.
class ScalesInPanelTest : public PanelCommandsFixture {
protected:
    void SetUp() override
    {
        PanelCommandsFixture::SetUp();
        _window->colors().setColor(rgb(59, 130, 246));
        _window->pages().showPageWithKey(QStringLiteral("scales"));
    }
    [[nodiscard]] HostColorPicker& picker() const { return *_window->pages().currentPicker(); }
    [[nodiscard]] QString spoken(const char* name) const
    {
        QAccessibleInterface* view = QAccessible::queryAccessibleInterface(child<QWidget>(name));
        return view != nullptr ? view->text(QAccessible::Description) : QString();
    }
    [[nodiscard]] QString contrasts() const { return spoken("scalesContrastLines"); }
};

TEST_F(ScalesInPanelTest, AClickTakesAColourAndIsAStepToUndo)
{
    auto* tints = child<QWidget>("scalesScaleRow2");
    QTest::mouseClick(tints, Qt::LeftButton, {}, {tints->width() - 12, tints->height() / 2});
    EXPECT_NE(chosenColor(), QColor(59, 130, 246));
    _window->colors().undo();
    EXPECT_EQ(chosenColor(), QColor(59, 130, 246));
    EXPECT_EQ(spoken("scalesScaleRow1"), "500, #3B82F6, the colour itself");
}

TEST_F(ScalesInPanelTest, AColourIsDroppedOnTheEndsOfTheGradient)
{
    picker().performAction("gradient", nullptr);
    auto* gradient = child<QWidget>("scalesGradientRow1");
    ASSERT_TRUE(gradient->acceptDrops());
    const auto drop = [](QWidget* target, const QMimeData& data, int x) {
        const QPoint at(x, target->height() / 2);
        QDragEnterEvent entered(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        entered.ignore();
        QApplication::sendEvent(target, &entered);
        if (!entered.isAccepted()) return false;
        QDragMoveEvent moved(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &moved);
        if (!moved.isAccepted()) return false;
        QDropEvent dropped(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &dropped);
        return dropped.isAccepted();
    };
    const auto end = [&] { return child<QLineEdit>("scalesGradientEnd")->text().toLower(); };
    QMimeData color;
    color.setColorData(QColor(16, 185, 129));
    EXPECT_TRUE(drop(gradient, color, gradient->width() - 12));
    EXPECT_EQ(end(), "#10b981");
    EXPECT_EQ(chosenColor(), QColor(59, 130, 246)) << "the other end stays";

    QMimeData text;
    text.setText("hsl(0 100% 50%)");
    EXPECT_TRUE(drop(gradient, text, 12));
    EXPECT_EQ(chosenColor(), QColor(255, 0, 0));
    EXPECT_EQ(end(), "#10b981");

    EXPECT_FALSE(drop(gradient, color, gradient->width() / 2)) << "between the ends";
    EXPECT_FALSE(drop(child<QWidget>("scalesScaleRow1"), color, 12)) << "a row without ends";
    QMimeData file;
    file.setUrls({QUrl("file:///tmp/a.png")});
    EXPECT_FALSE(drop(gradient, file, 12)) << "the window takes pictures";
    QMimeData words;
    words.setText("not a colour");
    EXPECT_TRUE(drop(gradient, words, 12));
    EXPECT_EQ(chosenColor(), QColor(255, 0, 0));
    EXPECT_TRUE(message().contains("not a colour")) << message().toStdString();
}

TEST_F(ScalesInPanelTest, ContrastsAreThoseOfThePanelsTwoColours)
{
    picker().performAction("contrast", nullptr);
    _window->colors().setBackground(HostColor::blackColor());
    EXPECT_TRUE(contrasts().startsWith("Background 5.70 AA;")) << contrasts().toStdString();
    _window->colors().setBackground(rgb(15, 23, 42));
    EXPECT_TRUE(contrasts().startsWith("Background 4.85 AA;")) << contrasts().toStdString();
    _window->colors().edit(EditedColor::background);
    EXPECT_TRUE(contrasts().startsWith("Background 4.85 AA; White 17."))
        << contrasts().toStdString();
    EXPECT_EQ(picker().colorPanel().colorPair(),
              (HostColorPair{rgb(59, 130, 246), rgb(15, 23, 42), true}));
}

TEST_F(ScalesInPanelTest, TextsAreCopiedAndReported)
{
    picker().colorPanel().copyText(u"--a: #3b82f6;\n--b: \u00E4;");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("--a: #3b82f6;\n--b: \u00E4;"));
    picker().colorPanel().report(u"Scale: <b>%1</b> copied");
    EXPECT_TRUE(message().contains("Scale: <b>%1</b> copied")) << message().toStdString();
}

}  // namespace
}  // namespace vantorel
