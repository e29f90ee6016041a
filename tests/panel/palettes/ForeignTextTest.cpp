#include "PalettesPageFixture.h"

#include <QClipboard>
#include <QTextDocument>

namespace vantorel {
namespace {

/// Texts of files and other programs that look like markup.
class ForeignTextTest : public PalettesPageTest {
protected:
    ForeignTextTest()
    {
        put("data/Vantorel/Palettes/Tags.gpl",
            QByteArray("GIMP Palette\nName: <b>Tags</b> & more\n255 0 0\t") + picture + "\n");
    }
    /// Fails if a tool tip could be taken for markup with this picture.
    static void expectNoPicture(const QString& toolTip)
    {
        QTextDocument document;
        document.setHtml(Qt::mightBeRichText(toolTip) ? toolTip : QString());
        EXPECT_FALSE(document.toPlainText().contains(QChar::ObjectReplacementCharacter))
            << toolTip.toStdString();
    }
    void expectNoPictureAnywhere() const
    {
        for (const QWidget* widget : _window->findChildren<QWidget*>()) {
            expectNoPicture(widget->toolTip());
            const auto* label = qobject_cast<const QLabel*>(widget);
            EXPECT_TRUE(label == nullptr || label->textFormat() == Qt::PlainText)
                << widget->objectName().toStdString();
        }
        for (const QAction* action : _window->findChildren<QAction*>())
            expectNoPicture(action->toolTip());
    }

    static constexpr const char* picture = "<img src=\"/dev/zero\">";
};

TEST_F(ForeignTextTest, NamesOfColoursAreNotMarkup)
{
    show("<b>Tags</b> & more");
    const QModelIndex row = view()->model()->index(0, 0);
    EXPECT_EQ(row.data(), QString(picture));
    expectNoPicture(row.data(Qt::ToolTipRole).toString());
    EXPECT_TRUE(Qt::mightBeRichText(row.data(Qt::ToolTipRole).toString())) << "it is escaped";
    EXPECT_EQ(row.data(Qt::AccessibleTextRole), QString(picture) + ", #FF0000");
    expectNoPictureAnywhere();
}

TEST_F(ForeignTextTest, RemarksAboutPastedColoursAreNotMarkup)
{
    QApplication::clipboard()->setText(
        QStringLiteral("/*%1*/color(srgb 2 0 0)").arg(QLatin1String(picture)));
    _window->exchange().paste();
    EXPECT_TRUE(_window->findChild<MessageLabel*>()->text().contains(u'<'));
    expectNoPictureAnywhere();
}

TEST_F(ForeignTextTest, ProblemsWithPluginsAreNotMarkup)
{
    _window->showProblems({{phrase("%1 is left out", picture)}});
    bool isShown = false;
    for (const QLabel* label : _window->findChildren<QLabel*>())
        isShown = isShown || label->accessibleDescription().contains(QLatin1String(picture));
    EXPECT_TRUE(isShown);
    expectNoPictureAnywhere();
}

}  // namespace
}  // namespace vantorel
